#include "Files.h"
#include "JS_Mediator_CustomInfoDialog.h"
#include "support/TestHost.h"

#include <QFileDialog>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const CustomItem Shown{"TestNo", "12", "", true, false};
const CustomItem Named{"Gas <b>", "N2 \"x\"", "bar", false, true};

QString listOf(const Camera& camera, bool recorded = false) {
    QStringList items;
    const CustomInfo info = camera.customInfo(recorded);
    for (const CustomItem& item : info.items()) {
        items << item.text() % QLatin1String(item.display ? " +" : " -") % QLatin1String(item.usefilename ? "+" : "-");
    }
    return items.join(QStringLiteral(", "));
}

/// Chooses a path in the next file dialog.
void chooseFile(const QString& path) {
    QTimer::singleShot(0, [path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(path);
        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
    });
}

class CustomInfoDialog : public testing::Test {
protected:
    CustomInfoDialog() : m_test(connected(3)) {
        for (const DOCKEY key : {1U, 2U}) {
            put(key, {Shown, Named});
            m_test.camera(key).set(&CameraState::selected, true);
        }
        m_test.camera(2).set(&CameraState::comment, QString("as it was"));
        m_test.host.docManager().selectOnly({1, 2});
    }

    void put(DOCKEY key, const QList<CustomItem>& items) {
        CustomInfo info;
        for (const CustomItem& item : items) {
            EXPECT_EQ(info.put(item), QString());
        }
        m_test.camera(key).set(&CameraState::customInfo, info);
    }

    JS_Mediator_CustomInfoDialog bridge(bool forTemporary = false) { return {&m_test.host, forTemporary}; }

    TestHost m_test;
    const QVariantList m_both{1U, 2U};
};

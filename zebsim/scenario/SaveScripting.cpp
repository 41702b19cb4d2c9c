#include "SaveScripting.h"

#include "EventWait.h"
#include "SaveDialog.h"
#include "SaveProgress.h"
#include "ScenarioError.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPointer>

namespace {

constexpr int ActivationMs = 2000;
const QString Folder = QStringLiteral("folder");
const QString Format = QStringLiteral("format");

SaveProgress* standingProgress() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* progress = qobject_cast<SaveProgress*>(window);
        if (progress != nullptr && progress->isVisible()) {
            return progress;
        }
    }
    return nullptr;
}

void choose(QComboBox& box, const QString& format) {
    const int index = box.findData(format);
    if (index < 0) {
        throw ScenarioError(QStringLiteral("files have no format \"%1\"").arg(format));
    }
    if (!(box.model()->index(index, 0).flags() & Qt::ItemIsEnabled)) {
        throw ScenarioError(QStringLiteral("the format \"%1\" can't be written here").arg(format));
    }
    box.setCurrentIndex(index);
}

}  // namespace

void SaveScripting::order(const QVariantMap& target) {
    for (auto member = target.keyBegin(); member != target.keyEnd(); ++member) {
        if (*member != Folder && *member != Format) {
            throw ScenarioError(QStringLiteral("zeb.save takes a folder and a format, not %1").arg(*member));
        }
    }
    m_orders.append(target);
}

bool SaveScripting::isFor(const QDialog& dialog) const {
    return isOrderLeft() && qobject_cast<const SaveDialog*>(&dialog) != nullptr;
}

void SaveScripting::serve(QDialog& dialog) {
    const QVariantMap target = m_orders.takeFirst();
    try {
        if (target.contains(Folder)) {
            dialog.findChild<QLineEdit*>(Folder)->setText(target.value(Folder).toString());
        }
        if (target.contains(Format)) {
            choose(*dialog.findChild<QComboBox*>(Format), target.value(Format).toString());
        }
    } catch (const ScenarioError&) {
        dialog.reject();
        throw;
    }
    dialog.accept();
}

QStringList SaveScripting::results(const std::function<bool()>& givenUp) {
    const QPointer<SaveProgress> progress = standingProgress();
    if (progress.isNull()) {
        throw ScenarioError(QStringLiteral("nothing is being saved"));
    }
    if (!waitUntil([&] { return progress.isNull() || progress->isFinished(); }, givenUp) || progress.isNull()) {
        throw ScenarioError(QStringLiteral("the save has not come to its end"));
    }
    const QStringList lines = progress->lines();
    progress->close();
    // The window before comes to the front, which keys and signals ask for.
    QElapsedTimer asked;
    asked.start();
    waitUntil([&] { return QApplication::activeWindow() != progress && QApplication::activeWindow() != nullptr; },
              [&] { return givenUp() || asked.hasExpired(ActivationMs); });
    return lines;
}

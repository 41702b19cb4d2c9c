#include "UTL_Messages.h"

#include "BoxText.h"
#include "ModalRun.h"
#include "NoHastyPress.h"
#include "PlainText.h"
#include "Style.h"
#include "TextKey.h"
#include "TraceScope.h"
#include "WindowPlacement.h"
#include "ZebHost.h"

#include <QApplication>
#include <QDebug>
#include <QMessageBox>
#include <QPushButton>

namespace {

constexpr auto BoxName = "UTL_Messages";

QString translated(const QString& text) {
    return QCoreApplication::translate("zeb4", text.toUtf8().constData());
}

QString buttonName(int button) {
    switch (button) {
        case QMessageBox::Ok:
            return QStringLiteral("Ok");
        case QMessageBox::Save:
            return TextKey("Save");
        case QMessageBox::Yes:
            return TextKey("Yes");
        case QMessageBox::No:
            return TextKey("No");
        case QMessageBox::Cancel:
            return TextKey("Cancel");
        default:
            return {};
    }
}

QMessageBox* makeWarning(const QString& text, const ZebHost& host, QWidget* parent, const ButtonTexts& buttonTexts) {
    const QString whole = plainText(text);
    const BoxText fitting = fitIntoBox(whole);
    auto* box = new QMessageBox(QMessageBox::Warning, translated(TextKey("Warning")), fitting.head,
                                QMessageBox::Ok | QMessageBox::Cancel, parent);
    if (fitting.cut) {
        box->setDetailedText(whole);
    }
    box->setObjectName(QLatin1String(BoxName));
    box->setTextFormat(Qt::PlainText);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    box->button(QMessageBox::Cancel)->setText(host.translate(TextKey("Cancel")));
    for (auto it = buttonTexts.begin(); it != buttonTexts.end(); ++it) {
        QAbstractButton* button = box->button(static_cast<QMessageBox::StandardButton>(it.key()));
        if (button) {
            button->setText(translated(it.value()));
        }
    }
    if (buttonTexts.isEmpty()) {
        applyNativeStyle(host, *box);
    } else {
        applyMessageBoxStyle(host, *box);
    }
    new NoHastyPress(*box);
    return box;
}

}  // namespace

bool UTL_Messages::warnOkCancel(const QString& text, ZebHost& host, QWidget* parent, const ButtonTexts& buttonTexts) {
    const QString shown = translated(text);
    const TraceScope trace(QStringLiteral("UTL_Messages::warnOkCancel"), {{"text", shown}});
    QMessageBox* box = makeWarning(shown, host, parent ? parent : host.getMainWindow(), buttonTexts);
    const bool suspended = host.isViewerRunning();
    if (suspended) {
        host.suspendViewer();
    }
    int result = QMessageBox::Cancel;
    {
        ModalRun run(box);
        box->show();
        centerWithoutMainWindow(host, *box);
        result = run.exec();
    }
    if (suspended) {
        host.resumeViewer();
    }
    qInfo() << QString(QLatin1Char('[') % shown % QStringLiteral("][result:") % buttonName(result) % QLatin1Char(']'));
    return result == QMessageBox::Ok;
}

void UTL_Messages::rejectAll() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->objectName() == QLatin1String(BoxName)) {
            qobject_cast<QDialog*>(window)->reject();
        }
    }
}

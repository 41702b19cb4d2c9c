#include "ReadyProgress.h"

#include "GUI_ProgressDialog.h"
#include "PLG_Interface.h"
#include "SettingsKeys.h"
#include "WindowPlacement.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"

#include <QDialog>

GUI_ProgressDialog* makeReadyProgressDialog(const QString& label, ZebHost& host) {
    PLG_Interface* wren = host.appStatus().getPlugin(QStringLiteral("wren"));
    QWidget* table = wren ? wren->getDialog(false) : nullptr;
    QWidget* parent = table ? table : host.getMainWindow();
    const QString colour = host.getPrefString(settingskeys::RecReadyTableColor);
    auto* progress = new GUI_ProgressDialog(label, QString(), 0, 0, parent,
                                            Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus, true);
    progress->setModal(false);
    // The host's keys are for the active window, and the trigger may be one of them; a click must not take it either.
    progress->setAttribute(Qt::WA_ShowWithoutActivating);
    progress->setAutoClose(true);
    progress->setAutoReset(true);
    progress->setStyleSheet(QStringLiteral("*{ color: #333333; background: #a1a7ad; font-size: 45px; font-weight:bold;}"
                                           "QProgressBar {color: black; text-align: center; height: 80px;}"
                                           "QProgressBar::chunk {color: black; background: ") %
                            colour % QStringLiteral(";}"));
    progress->setFixedSize(800, 150);
    centerWithoutMainWindow(host, *progress);
    return progress;
}

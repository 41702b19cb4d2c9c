#include "GUI_WrenDefaultSettingsDialog.h"

#include "JS_Mediator_WrenDefaultSettingsDialog.h"
#include "ModalRun.h"
#include "SettingsKeys.h"
#include "TextKey.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int Width = 810;
constexpr int MostHeight = 900;
constexpr double PartOfScreen = 0.9;
/// Without the buttons that close, minimise and maximise, ask for help, and keep a window on top.
constexpr unsigned int FlagsLeft = 0xF7FA3FFF;

}  // namespace

GUI_WrenDefaultSettingsDialog::GUI_WrenDefaultSettingsDialog(ZebHost* host, QWidget* parent)
    : GUI_WebViewDialog(host, TextKey("WREN Default Setting"), QStringLiteral("qrc:/wrendefaultsettingsdialog.html"),
                        new JS_Mediator_WrenDefaultSettingsDialog(host), parent) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    const int number = host->getPrefInt(QStringLiteral("wren/table/scrno"));
    const QScreen* on = number >= 0 && number < screens.size() ? screens.at(number) : screen();
    setFixedSize(Width, std::min(MostHeight, int(PartOfScreen * on->geometry().height())));
    setWindowFlags(windowFlags() & Qt::WindowFlags(int(FlagsLeft)));
}

bool GUI_WrenDefaultSettingsDialog::run(ZebHost& host, QWidget* parent) {
    if (host.isFileMode()) {
        return false;
    }
    auto* dialog = new GUI_WrenDefaultSettingsDialog(&host, parent ? parent : host.getMainWindow());
    const bool accepted = ModalRun(dialog).exec() == QDialog::Accepted;
    if (!accepted || host.appStatus().getPlugin(QStringLiteral("wren")) == nullptr) {
        return false;
    }
    host.setPrefBool(settingskeys::Done, true);
    return true;
}

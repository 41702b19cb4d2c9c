#include "GUI_CameraSettingsDialog.h"

#include "JS_Mediator_CameraSettingsDialog.h"
#include "SettingsFolder.h"
#include "TextKey.h"

namespace {

constexpr int Width = 600;
constexpr int Height = 500;

}  // namespace

GUI_CameraSettingsDialog::GUI_CameraSettingsDialog(ZebHost* host, QWidget* parent)
    : GUI_WebViewDialog(host, TextKey("Device Save"), QStringLiteral("qrc:/camerasettings.html"),
                        new JS_Mediator_CameraSettingsDialog(host, settingsFolder(*host)), parent) {
    setFixedSize(Width, Height);
}

#include "GUI_CameraSettingsDialog.h"

#include "JS_Mediator_CameraSettingsDialog.h"
#include "TextKey.h"

namespace {

constexpr int Width = 600;
constexpr int Height = 500;

}  // namespace

GUI_CameraSettingsDialog::GUI_CameraSettingsDialog(ZebHost* host, const QString& folder, QWidget* parent)
    : GUI_WebViewDialog(host, TextKey("Device Save"), QStringLiteral("qrc:/camerasettings.html"),
                        new JS_Mediator_CameraSettingsDialog(host, folder), parent) {
    setFixedSize(Width, Height);
}

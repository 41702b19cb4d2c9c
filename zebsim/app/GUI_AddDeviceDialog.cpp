#include "GUI_AddDeviceDialog.h"

#include "CameraBank.h"
#include "JS_Mediator_AddDeviceDialog.h"
#include "JS_Mediator_AutoCameraName.h"
#include "SimHost.h"
#include "TextKey.h"
#include "UiText.h"

namespace {

constexpr int Width = 460;
constexpr int Height = 300;

}  // namespace

GUI_AddDeviceDialog::GUI_AddDeviceDialog(SimHost& host, DOCKEY key, QWidget* parent)
    : GUI_WebViewDialog(&host, key == zeb::NoDocKey ? TextKey("Add camera") : TextKey("Camera"),
                        QStringLiteral("qrc:/livecontrol_adddevice.html"), new JS_Mediator_AddDeviceDialog(host, key),
                        parent),
      m_simHost(host),
      m_key(key) {
    addBridge(new JS_Mediator_AutoCameraName(&host));
    setFixedSize(Width, Height);
}

void GUI_AddDeviceDialog::follow() {
    if (m_simHost.cameras().find(m_key) == nullptr) {
        m_simHost.messages().notify(Message::Warn,
                                    uiText("The camera has disappeared. Its name and comment stay as they were."));
        reject();
    }
}

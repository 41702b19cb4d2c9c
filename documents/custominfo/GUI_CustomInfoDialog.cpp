#include "GUI_CustomInfoDialog.h"

#include "JS_Mediator_CustomInfoDialog.h"
#include "TextKey.h"

namespace {

constexpr int Width = 510;
constexpr int Height = 530;

}  // namespace

GUI_CustomInfoDialog::GUI_CustomInfoDialog(ZebHost* host, bool forTemporary, QWidget* parent)
    : GUI_WebViewDialog(host, TextKey("Custom info"), QStringLiteral("qrc:/custominfo.html"),
                        new JS_Mediator_CustomInfoDialog(host, forTemporary), parent) {
    setFixedSize(Width, Height);
}

void GUI_CustomInfoDialog::reject() {
    static_cast<JS_Mediator_CustomInfoDialog*>(getBridge())->cancel();
    GUI_WebViewDialog::reject();
}

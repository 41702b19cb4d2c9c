#include "GUI_CustomInfoDialog.h"

#include "JS_Mediator_CustomInfoDialog.h"
#include "TextKey.h"

#include <QPointer>

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
    // What could not be put back is told in a box, and the dialog may go with its parent meanwhile.
    const QPointer<GUI_CustomInfoDialog> here(this);
    static_cast<JS_Mediator_CustomInfoDialog*>(getBridge())->cancel();
    if (here) {
        GUI_WebViewDialog::reject();
    }
}

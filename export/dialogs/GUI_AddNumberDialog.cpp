#include "GUI_AddNumberDialog.h"

#include "JS_Mediator_AddNumberDialog.h"
#include "TextKey.h"

namespace {

constexpr int Width = 540;
constexpr int Height = 270;

}  // namespace

GUI_AddNumberDialog::GUI_AddNumberDialog(ZebHost* host, int slot, int documents, int heads, QWidget* parent)
    : GUI_WebViewDialog(host, TextKey("Adding a number"), QStringLiteral("qrc:/addnumberdialog.html"),
                        new JS_Mediator_AddNumberDialog(host, slot, documents, heads), parent) {
    setFixedSize(Width, Height);
}

#include "GUI_ConvertParameterEditDialog.h"

#include "JS_Mediator_ConvertParameterEditDialog.h"
#include "SavePageBridges.h"
#include "TextKey.h"

namespace {

constexpr int Width = 760;
constexpr int Height = 560;

}  // namespace

GUI_ConvertParameterEditDialog::GUI_ConvertParameterEditDialog(ZebHost* host, const DocKeyList& keys, QWidget* parent)
    : GUI_WebViewDialog(host, TextKey("Saved after the automatic conversion"),
                        QStringLiteral("qrc:/convertparametereditdialog.html"),
                        new JS_Mediator_ConvertParameterEditDialog(host, keys), parent) {
    addSaveOptions(*host, *this);
    resize(Width, Height);
}

#include "SavePageBridges.h"

#include "GUI_WebViewDialog.h"
#include "JS_Mediator_FileDialog.h"
#include "JS_Mediator_SaveFile.h"

JS_Mediator_SaveFile* addSaveOptions(ZebHost& host, GUI_WebViewDialog& dialog) {
    auto* options = new JS_Mediator_SaveFile(&host, dialog.getBridge()->bridgeName());
    dialog.addBridge(options);
    if (auto* files = qobject_cast<JS_Mediator_FileDialog*>(dialog.getBridge())) {
        QObject::connect(files, &JS_Mediator_FileDialog::selectedDocCount, options,
                         &JS_Mediator_SaveFile::selectedDocCount);
        QObject::connect(files, &JS_Mediator_FileDialog::selectedDocHeadCount, options,
                         &JS_Mediator_SaveFile::selectedDocHeadCount);
    }
    return options;
}

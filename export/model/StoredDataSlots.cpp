#include "BridgeCall.h"
#include "DOC_Interface.h"
#include "DOC_Storage.h"
#include "FolderChoice.h"
#include "JS_Mediator_FileDialog.h"
#include "NameFamilies.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"

/// Does what `work` does with a document that is there; answers a default for one that is gone.
template <typename Work>
auto JS_Mediator_FileDialog::onDocument(DOCKEY key, Work work) {
    DOC_Interface* doc = host().docManager().getDoc(key, 1);
    return doc != nullptr ? work(doc->storage()) : decltype(work(doc->storage()))();
}

bool JS_Mediator_FileDialog::canConvertDataName(DOCKEY docKey) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](const DOC_Storage& data) { return data.canConvertDataName(); }); });
}

bool JS_Mediator_FileDialog::canSavedCheck(DOCKEY docKey) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](const DOC_Storage& data) { return data.canSavedCheck(); }); });
}

void JS_Mediator_FileDialog::convertDataName(DOCKEY docKey, const QString& dataName, int sequence, bool fd) {
    call(*this, Change, __func__, {{"docKey", docKey}, {"dataName", dataName}},
         [&] { onDocument(docKey, [&](DOC_Storage& data) { data.convertDataName(dataName, sequence, fd); }); });
}

bool JS_Mediator_FileDialog::checkDeleteFile(DOCKEY docKey) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](const DOC_Storage& data) { return data.checkDeleteFile(); }); });
}

bool JS_Mediator_FileDialog::deleteFile(DOCKEY docKey) {
    return call(*this, Change, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](DOC_Storage& data) { return data.deleteFile(); }); });
}

bool JS_Mediator_FileDialog::savedCheck(const QVariantList& list) {
    return call(*this, Action, __func__, {}, [&] {
        const QString family = nameFamily(fileType(m_kind == JobKind::Convert ? m_kind : JobKind::Export));
        const QString folder = chooseFolder(host(), host().getPrefString(family % QStringLiteral("dir")));
        if (folder.isEmpty()) {
            return false;
        }
        host().docManager().media().checkSaved(list, folder);
        return true;
    });
}

#include "ChangeableDocs.h"

#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

const QString HeadAlertPref = QStringLiteral("alert/wren/multiheadlockalert");

bool reachesLockedHead(ZebHost& host, const DocList& docs, const SharedParameter& parameter) {
    bool reaches = false;
    for (DOC_Interface* doc : docs) {
        reaches = host.docManager().sharesDeviceWithLockedHead(doc, parameter.shutter, parameter.resolution);
        if (reaches && parameter.anyHeadAsks) {
            break;
        }
    }
    return reaches;
}

bool userAgrees(ZebHost& host, const SharedParameter& parameter) {
    const QString question = host.translate(
        QStringLiteral("%1 of locked heads will be changed at the same time.<br>Do you want to continue?"));
    return host.confirmWithDontShowAgain(question.arg(host.translate(QLatin1String(parameter.label))), HeadAlertPref,
                                         host.getMainWindow(), {});
}

}  // namespace

DocList changeableDocs(ZebHost& host, const DocKeyList& keys) {
    DocList docs;
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = host.docManager().getDocAny(key);
        if (doc != nullptr && doc->isConnected() && !doc->lock().isParamLocked()) {
            docs.append(doc);
        }
    }
    return docs;
}

DocList changeableDocs(ZebHost& host, const DocKeyList& keys, const SharedParameter& parameter) {
    const DocList docs = changeableDocs(host, keys);
    if (!host.getPrefBool(HeadAlertPref) || !reachesLockedHead(host, docs, parameter)) {
        return docs;
    }
    return userAgrees(host, parameter) && host.isLiveMode() ? changeableDocs(host, keys) : DocList();
}

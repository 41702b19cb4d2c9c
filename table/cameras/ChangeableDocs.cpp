#include "ChangeableDocs.h"

#include "DOC_Lock.h"
#include "TextKey.h"

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
    const QString question =
        host.translate(TextKey("%1 of locked heads will be changed at the same time.<br>Do you want to continue?"));
    return host.confirmWithDontShowAgain(question.arg(host.translate(QLatin1String(parameter.label))), HeadAlertPref,
                                         host.getMainWindow(), {});
}

}  // namespace

DocList changeableDocs(ZebHost& host, const DocKeyList& keys, GatheredFailures& failures) {
    DocList docs;
    forEachConnected(host, keys, failures, [&docs](DOC_Interface& doc) {
        if (!doc.lock().isParamLocked()) {
            docs.append(&doc);
        }
    });
    return docs;
}

DocList changeableDocs(ZebHost& host, const DocKeyList& keys, const SharedParameter& parameter,
                       GatheredFailures& failures) {
    const DocList docs = changeableDocs(host, keys, failures);
    if (!host.getPrefBool(HeadAlertPref) || !reachesLockedHead(host, docs, parameter)) {
        return docs;
    }
    return userAgrees(host, parameter) && host.isLiveMode() ? changeableDocs(host, keys, failures) : DocList();
}

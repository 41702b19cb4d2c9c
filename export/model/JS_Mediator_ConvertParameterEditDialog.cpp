#include "JS_Mediator_ConvertParameterEditDialog.h"

#include "BridgeCall.h"

JS_Mediator_ConvertParameterEditDialog::JS_Mediator_ConvertParameterEditDialog(ZebHost* host, const DocKeyList& keys,
                                                                               QObject* parent)
    : JS_Mediator_FileDialog(host, QStringLiteral("convertparametereditdialog"), parent), m_keys(keys) {
    setSelectDocKey(keys.value(0, zeb::NoDocKey));
    setSelectPartitionNo(1);
}

QString JS_Mediator_ConvertParameterEditDialog::list(bool temporary) {
    return call(*this, TracedQuery, __func__, {{"temporary", temporary}},
                [&] { return recordsText(m_keys, temporary); });
}

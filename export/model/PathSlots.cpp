#include "BridgeCall.h"
#include "ExportNames.h"
#include "HostNameSource.h"
#include "JS_Mediator_FileDialog.h"
#include "LogFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebSaver.h"

#include <QScopeGuard>

std::unique_ptr<NamedDocument> JS_Mediator_FileDialog::namedDocument(DOCKEY key, PARTITIONNUMBER /*partition*/) {
    return HostNameSource(host()).document(key);
}

/// What `names` takes from the names of a partition.
template <typename Names>
QString JS_Mediator_FileDialog::named(DOCKEY key, PARTITIONNUMBER partition, Names names) {
    const HostNameSource source(host());
    return names(ExportNames(source, fileType(m_kind), namedDocument(key, partition), partition, m_time));
}

QString JS_Mediator_FileDialog::exportFileName(bool details) {
    return named(m_selectDocKey, m_selectPartitionNo, [&](const ExportNames& names) { return names.file(details); });
}

QString JS_Mediator_FileDialog::groupDirOf(DOCKEY key, PARTITIONNUMBER partition) {
    return named(key, partition, [](const ExportNames& names) { return names.groupDir(); });
}

QString JS_Mediator_FileDialog::getExportGroupDir(DOCKEY docKey, PARTITIONNUMBER partitionNo) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}, {"partitionNo", partitionNo}}, [&] {
        m_groupDocKey = docKey;
        return groupDirOf(docKey, partitionNo);
    });
}

QString JS_Mediator_FileDialog::getExportGroupDir() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        const DocKeyList selected = host().docManager().getSelectedDocKeys(1);
        return getExportGroupDir(selected.value(0, zeb::NoDocKey));
    });
}

QString JS_Mediator_FileDialog::getExportPath() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        return named(m_selectDocKey, m_selectPartitionNo, [](const ExportNames& names) { return names.root(); });
    });
}

/// What `part` makes of the chosen partition. Meanwhile the host knows its group directory, unless the page has just
/// asked for that.
template <typename Part>
QString JS_Mediator_FileDialog::chosenName(Part part) {
    const auto forget = qScopeGuard([this] { logFailure([this] { host().saver().resetNameState(); }); });
    if (m_selectDocKey != m_groupDocKey) {
        const QString group = groupDirOf(m_selectDocKey, m_selectPartitionNo);
        if (!group.isEmpty()) {
            host().saver().setLastGroupDir(group);
        }
    }
    return part();
}

QString JS_Mediator_FileDialog::getExportFile() {
    return call(*this, TracedQuery, __func__, {},
                [this] { return chosenName([this] { return exportFileName(true); }); });
}

QString JS_Mediator_FileDialog::getExportSubDir() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        return chosenName([this] {
            return named(m_selectDocKey, m_selectPartitionNo, [](const ExportNames& names) { return names.subDir(); });
        });
    });
}

#include "BridgeCall.h"
#include "ExportNames.h"
#include "HostNameSource.h"
#include "JS_Mediator_FileDialog.h"
#include "LogFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebSaver.h"

#include <QScopeGuard>

QString JS_Mediator_FileDialog::exportFileName(bool details) {
    const HostNameSource source(host());
    return ExportNames(source, fileType(m_kind), m_selectDocKey, m_selectPartitionNo, m_time).file(details);
}

QString JS_Mediator_FileDialog::groupDirOf(DOCKEY key, PARTITIONNUMBER partition) const {
    const HostNameSource source(host());
    return ExportNames(source, fileType(m_kind), key, partition, m_time).groupDir();
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
        const HostNameSource source(host());
        return ExportNames(source, fileType(m_kind), m_selectDocKey, m_selectPartitionNo, m_time).root();
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
            const HostNameSource source(host());
            return ExportNames(source, fileType(m_kind), m_selectDocKey, m_selectPartitionNo, m_time).subDir();
        });
    });
}

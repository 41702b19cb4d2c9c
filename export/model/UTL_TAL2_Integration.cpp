#include "UTL_TAL2_Integration.h"

#include "ZebHost.h"

bool UTL_TAL2_Integration::isTAL2AppInstalled() const {
    QString folder;
    m_integration.host().getTal2Folder(folder);
    return m_integration.exists(folder, QStringLiteral("tal2.exe"));
}

bool UTL_TAL2_Integration::isTal2OptionDisabled() const {
    const ZebHost& host = m_integration.host();
    const bool whileRecording = host.getPrefBool(QStringLiteral("recording/RecordDuringDownload"));
    const bool afterRecording = host.getPrefBool(QStringLiteral("recording/AutoDownload"));
    return whileRecording || afterRecording;
}

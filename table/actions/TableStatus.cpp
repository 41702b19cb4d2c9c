#include "TableStatus.h"

#include "CycleFailures.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DocKeys.h"
#include "NamedFailure.h"
#include "RecordingStatus.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QJsonDocument>
#include <QJsonObject>

QString TableStatus::toJson(CycleFailures& failures) const {
    int found = 0;
    int connected = 0;
    int locked = 0;
    int armed = 0;
    const auto count = [&](DOC_Interface& doc) {
        if (doc.isConnected()) {
            const bool isLocked = doc.lock().isParamLocked();
            const bool isReady = isArmed(doc);
            ++connected;
            locked += isLocked ? 1 : 0;
            armed += isReady ? 1 : 0;
        }
    };
    ZebDocManager& documents = m_host.docManager();
    for (const DOCKEY key : documents.getDocKeys()) {
        if (DOC_Interface* doc = documents.getDocAny(key)) {
            ++found;
            failures.attempt(QStringLiteral("state of %1").arg(key), [&] { onCamera(*doc, [&] { count(*doc); }); });
        }
    }
    qint64 recording = -1;
    failures.attempt(QStringLiteral("time of the recording"), [&] { recording = recordMs(); });
    const QJsonObject status{{QStringLiteral("found"), found},        {QStringLiteral("connected"), connected},
                             {QStringLiteral("locked"), locked},      {QStringLiteral("armed"), armed},
                             {QStringLiteral("recordMs"), recording}, {QStringLiteral("search"), m_state.lastSearch}};
    QByteArray json = QJsonDocument(status).toJson(QJsonDocument::Compact);
    json.chop(1);
    json += ",\"result\":" + (m_state.result ? m_state.result->json() : QByteArrayLiteral("null")) + '}';
    return QString::fromUtf8(json);
}

/// From the first time that the table sees it.
qint64 TableStatus::recordMs() const {
    if (!m_host.isLiveMode() || RecordingStatus(m_host).state() != zeb::RecordRecording) {
        m_state.recording.invalidate();
        return -1;
    }
    if (!m_state.recording.isValid()) {
        m_state.recording.start();
    }
    return m_state.recording.elapsed();
}

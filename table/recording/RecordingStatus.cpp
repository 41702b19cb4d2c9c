#include "RecordingStatus.h"

#include "DOC_Interface.h"
#include "DocKeys.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebRecorder.h"

#include <QJsonObject>

#include <algorithm>

namespace {

/// Key of the text on the record button.
QString recordLabel(int state) {
    switch (state) {
        case zeb::RecordLive:
            return TextKey("Record");
        case zeb::RecordCtsReady:
            return TextKey("Waiting For CTS Signal");
        case zeb::RecordReady:
            return TextKey("Ready");
        case zeb::RecordRecording:
            return TextKey("Recording...");
        default:
            return TextKey("Error");
    }
}

bool mayRecord(DOC_Interface& doc) {
    try {
        return doc.isConnected() && isArmed(doc);
    } catch (...) {
        return true;
    }
}

}  // namespace

int RecordingStatus::state() const {
    return m_host.recorder().getRecStatus(m_host.docManager().getLiveDocKeys(0, 0));
}

void RecordingStatus::addTo(QJsonObject& status) const {
    if (m_host.isLiveMode()) {
        const int now = state();
        status.insert(QLatin1String("recStatus"), now);
        status.insert(QLatin1String("recStatusLabel"), m_host.translate(recordLabel(now)));
    }
}

bool RecordingStatus::isOver() const {
    if (!m_host.isLiveMode() || state() != zeb::RecordLive) {
        return false;
    }
    ZebDocManager& documents = m_host.docManager();
    const DocKeyList keys = documents.getDocKeys();
    return std::none_of(keys.begin(), keys.end(), [&documents](DOCKEY key) {
        DOC_Interface* doc = documents.getDocAny(key);
        return doc != nullptr && mayRecord(*doc);
    });
}

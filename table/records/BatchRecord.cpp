#include "BatchRecord.h"

#include "TextKey.h"
#include "ZebHost.h"

namespace {

const QString EmptyList = QStringLiteral("[]");

Record emptyRecord() {
    Record record;
    for (const auto* list : {"frameRates", "shutterSpeeds", "resolutions", "triggerModes"}) {
        record.setJson(QLatin1String(list), EmptyList);
    }
    return record;
}

void clearLiveMembers(Record& record) {
    for (const auto* text : {"cameraStatus", "syncStatus", "ipAddress", "comment", "comments", "externalSync",
                             "triggerIn", "triggerSwIn", "irigTimeStamp", "irigSync"}) {
        record.setText(QLatin1String(text), {});
    }
    record.setFlag(QLatin1String("irigSupported"), false);
    record.setJson(QLatin1String("plugins"), EmptyList);
}

void clearMemoryMembers(Record& record) {
    record.setText(QLatin1String("frameRate"), {});
    record.setJson(QLatin1String("plugins"), EmptyList);
}

}  // namespace

void BatchRecord::offer(DOCKEY key, bool selected, bool whole, const Record& record) {
    ++m_count;
    if (!whole) {
        m_chosenUnread = m_chosenUnread || key == m_chosen;
        return;
    }
    if (key == m_chosen) {
        m_chosenListed = true;
        m_chosenRecord = record;
    }
    if (selected) {
        m_lastSelected = key;
        m_lastSelectedRecord = record;
    }
}

DOCKEY BatchRecord::source() const {
    return m_chosenListed || m_lastSelected == zeb::NoDocKey ? m_chosen : m_lastSelected;
}

Record BatchRecord::build(const ZebHost& host) const {
    Record record = m_chosenListed                    ? m_chosenRecord
                    : m_lastSelected != zeb::NoDocKey ? m_lastSelectedRecord
                                                      : emptyRecord();
    record.setNumber(QLatin1String("recid"), -1);
    record.setNumber(QLatin1String("key"), -1);
    record.setText(QLatin1String("cameraName"), host.translate(TextKey("All camera")));
    record.setJson(QLatin1String("alert"), EmptyList);
    record.setNumber(QLatin1String("recordCount"), m_count);
    if (host.isLiveMode()) {
        clearLiveMembers(record);
    } else if (host.isMemoryMode()) {
        clearMemoryMembers(record);
    }
    return record;
}

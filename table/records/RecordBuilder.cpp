#include "records/RecordBuilder.h"

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"
#include "TableState.h"
#include "ZebHost.h"
#include "records/CameraInfoMembers.h"
#include "records/IrigMembers.h"
#include "records/PluginMembers.h"
#include "records/RecordRequest.h"
#include "records/SyncMembers.h"

RecordBuilder::RecordBuilder(ZebHost& host, TableState& state, int tab)
    : m_host(host),
      m_tab(tab),
      m_live(host.isLiveMode()),
      m_signal(host, state.sync),
      m_signalGivesFrequency(m_signal.givesFrequency()) {
    if (m_live && tab == LiveControlTab) {
        m_liveControl.emplace(host, state);
    } else if (!m_live && tab == MemoryInfoTab) {
        m_memoryInfo.emplace(host);
    }
}

Record RecordBuilder::build(DOC_Interface& doc, const RowState& row) {
    Record record;
    commonmembers::addAlways(record, doc, row);
    record.setText(QLatin1String("alert"), row.connected ? alertOf(doc) : QString());
    if (m_live) {
        addLive(record, doc, row.connected);
    } else {
        addMemory(record, doc, row.connected);
    }
    return record;
}

QString RecordBuilder::alertOf(DOC_Interface& doc) const {
    const DOC_Interface* device = doc.getParentDoc();
    QStringList alerts = device != nullptr ? device->getAlerts() : QStringList();
    alerts += doc.getAlerts();
    alerts.removeDuplicates();
    if (m_signalGivesFrequency && !m_signal.agreesWith(doc)) {
        alerts += m_host.translate(SignalDiffersText);
    }
    return alerts.join(QLatin1Char('\n'));
}

void RecordBuilder::addLive(Record& record, DOC_Interface& doc, bool connected) {
    const bool lowLight = connected && doc.control().isLowLightMode();
    commonmembers::addLive(record, doc, connected, lowLight);
    switch (m_tab) {
        case CameraInfoTab:
            camerainfo::add(record, doc);
            break;
        case LiveControlTab:
            m_liveControl->add(record, doc, connected, lowLight);
            break;
        case SyncTab:
            syncmembers::add(record, doc, m_host, connected);
            break;
        case IrigTab:
            irigmembers::add(record, doc, m_host, connected);
            break;
        case PluginTab:
            pluginmembers::add(record, doc, m_host, connected);
            break;
        default:
            break;
    }
}

void RecordBuilder::addMemory(Record& record, DOC_Interface& doc, bool connected) {
    record.setFlag(QLatin1String("check"), doc.frames().isRecordCheck());
    record.setText(QLatin1String("totalFrame"), {});
    if (m_memoryInfo) {
        m_memoryInfo->add(record, doc, connected);
    } else if (m_tab == MemoryPluginTab) {
        if (connected) {
            record.setText(QLatin1String("totalFrame"), QString::number(doc.head().getFrameTotal(1, 0)));
        }
        pluginmembers::add(record, doc, m_host, connected);
    }
}

#include "records/RecordBuilder.h"

#include "CycleFailures.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"
#include "DeviceAlerts.h"
#include "FailureText.h"
#include "NamedFailure.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "records/CameraInfoMembers.h"
#include "records/CommonMembers.h"
#include "records/IrigMembers.h"
#include "records/PluginMembers.h"
#include "records/RecordRequest.h"
#include "records/SyncMembers.h"

namespace {

const QString Signal = QStringLiteral("signal");

}  // namespace

RecordBuilder::RecordBuilder(ZebHost& host, TableState& state, int tab, CycleFailures& failures)
    : m_host(host),
      m_failures(failures),
      m_tab(tab),
      m_live(host.isLiveMode()),
      m_signal(host, state.sync),
      m_signalGivesFrequency(signalGivesFrequency()) {
    if (m_live && tab == LiveControlTab) {
        m_liveControl.emplace(host, state);
    } else if (!m_live && tab == MemoryInfoTab) {
        m_memoryInfo.emplace(host);
    }
}

QString RecordBuilder::sourceOf(DOCKEY key) {
    return QStringLiteral("row %1").arg(key);
}

/// A source that does not answer gives none.
bool RecordBuilder::signalGivesFrequency() const {
    try {
        const bool gives = m_signal.givesFrequency();
        m_failures.whole(Signal);
        return gives;
    } catch (...) {
        m_failures.failed(Signal, currentFailureText());
        return false;
    }
}

RecordBuilder::Row RecordBuilder::build(DOC_Interface& doc, DOCKEY key, int recid, bool select) {
    Row row;
    QString failure;
    const auto attempt = [&failure](auto&& ask) {
        try {
            ask();
        } catch (...) {
            if (failure.isEmpty()) {
                failure = currentFailureText();
            }
        }
    };
    bool connected = false;
    bool selected = false;
    bool current = false;
    QString alert;
    attempt([&] { connected = doc.isConnected(); });
    const bool isKnown = failure.isEmpty();
    attempt([&] { selected = (connected || select) && doc.isSelected(); });
    if (select && !selected) {
        attempt([&] {
            m_host.docManager().selectDoc(key);
            selected = row.newlySelected = true;
        });
    }
    attempt([&] { current = connected && m_host.docManager().isCurrentDoc(key); });
    row.selected = connected && selected;
    row.record.setNumber(QLatin1String("recid"), recid);
    row.record.setText(QLatin1String("key"), QString::number(key));
    row.record.setFlag(QLatin1String("connected"), connected);
    row.record.setFlag(QLatin1String("selected"), row.selected);
    row.record.setFlag(QLatin1String("current"), current);
    if (isKnown) {
        attempt([&] { addMembers(row.record, doc, connected); });
    } else {
        attempt([&] { commonmembers::addAlways(row.record, doc); });
    }
    if (failure.isEmpty()) {
        attempt([&] { alert = connected ? alertOf(doc) : QString(); });
    }
    row.whole = failure.isEmpty();
    row.record.setText(QLatin1String("alert"), row.whole ? alert : failure);
    if (!row.whole) {
        m_failures.failed(sourceOf(key), namedFailure(failure, doc));
    } else if (!m_failures.isEmpty()) {
        m_failures.whole(sourceOf(key));
    }
    return row;
}

void RecordBuilder::addMembers(Record& record, DOC_Interface& doc, bool connected) {
    commonmembers::addAlways(record, doc);
    if (m_live) {
        addLive(record, doc, connected);
    } else {
        addMemory(record, doc, connected);
    }
}

QString RecordBuilder::alertOf(DOC_Interface& doc) const {
    QStringList alerts = alertsOfParent(doc) + doc.getAlerts();
    if (m_signalGivesFrequency && !m_signal.agreesWith(doc)) {
        alerts += m_host.translate(SignalDiffersText);
    }
    alerts.removeDuplicates();
    return alerts.join(QLatin1Char('\n'));
}

/// A device that does not answer leaves the row of its head whole, which shows why.
QStringList RecordBuilder::alertsOfParent(DOC_Interface& doc) const {
    const DOC_Interface* device = doc.getParentDoc();
    const QString source = sourceOf(doc.getKey()) % QStringLiteral(", its device");
    try {
        const QStringList alerts = alertsOfDevice(device);
        m_failures.whole(source);
        return alerts;
    } catch (...) {
        m_failures.failed(source, currentFailureText());
        return {currentFailureText()};
    }
}

void RecordBuilder::addLive(Record& record, DOC_Interface& doc, bool connected) {
    const bool lowLight = commonmembers::addLive(record, doc, connected);
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
    if (m_memoryInfo) {
        m_memoryInfo->add(record, doc, connected);
        return;
    }
    const bool counted = connected && m_tab == MemoryPluginTab;
    record.setText(QLatin1String("totalFrame"), counted ? QString::number(doc.head().getFrameTotal(1, 0)) : QString());
    if (m_tab == MemoryPluginTab) {
        pluginmembers::add(record, doc, m_host, connected);
    }
}

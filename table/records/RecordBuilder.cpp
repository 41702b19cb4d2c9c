#include "RecordBuilder.h"

#include "CameraInfoMembers.h"
#include "CommonMembers.h"
#include "CycleFailures.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"
#include "DeviceAlerts.h"
#include "FailureText.h"
#include "IrigMembers.h"
#include "NamedFailure.h"
#include "PluginMembers.h"
#include "RecordRequest.h"
#include "SyncMembers.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

const QString Signal = QStringLiteral("signal");
const QString Current = QStringLiteral("current document of the host");

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
    return QLatin1String("row ") % QString::number(key);
}

/// A source that does not answer gives none.
bool RecordBuilder::signalGivesFrequency() const {
    bool gives = false;
    m_failures.attempt(Signal, [&] { gives = m_signal.givesFrequency(); });
    return gives;
}

RecordBuilder::Row RecordBuilder::build(DOC_Interface& doc, DOCKEY key, int recid, bool select, QString failure) {
    Row row;
    const auto attempt = [&failure](auto&& ask) {
        try {
            ask();
            return true;
        } catch (...) {
            failure = failure.isEmpty() ? currentFailureText() : failure;
            return false;
        }
    };
    bool connected = false;
    bool selected = false;
    bool current = false;
    QString name;
    const bool isKnown = attempt([&] { connected = doc.isConnected(); });
    attempt([&] { selected = (connected || select) && doc.isSelected(); });
    if (select && !selected) {
        attempt([&] {
            m_host.docManager().selectDoc(key);
            row.newlySelected = true;
            selected = doc.isSelected();
        });
    }
    // The host's own answer, and no camera's fault.
    m_failures.attempt(Current, [&] { current = connected && m_host.docManager().isCurrentDoc(key); });
    row.selected = connected && selected;
    row.record.setNumber(QLatin1String("recid"), recid);
    row.record.setText(QLatin1String("key"), QString::number(key));
    row.record.setFlag(QLatin1String("connected"), connected);
    row.record.setFlag(QLatin1String("selected"), row.selected);
    row.record.setFlag(QLatin1String("current"), current);
    QString alert;
    const bool whole = attempt([&] {
        name = doc.control().getCameraName(1);
        row.record.setText(QLatin1String("cameraName"), name);
        if (isKnown) {
            addMembers(row.record, doc, connected);
            alert = connected ? alertOf(doc) : QString();
        }
    });
    row.whole = whole && failure.isEmpty();
    row.record.setText(QLatin1String("alert"), row.whole ? alert : failure);
    note(row, doc, key, name, failure);
    return row;
}

void RecordBuilder::note(const Row& row, DOC_Interface& doc, DOCKEY key, const QString& name, const QString& failure) {
    if (row.whole) {
        m_failures.answered(sourceOf(key));
    } else {
        m_failures.failed(sourceOf(key), name.isEmpty() ? namedFailure(failure, doc) : withName(failure, name));
    }
}

void RecordBuilder::addMembers(Record& record, DOC_Interface& doc, bool connected) {
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
    DOC_Interface* device = doc.getParentDoc();
    QStringList alerts;
    const auto ask = [&] { onCamera(*device, [&] { alerts = alertsOfDevice(device); }); };
    if (device != nullptr) {
        m_failures.attempt(sourceOf(doc.getKey()) % QStringLiteral(", its device"), [&] {
            try {
                ask();
            } catch (const std::exception& failure) {
                alerts.append(QString::fromUtf8(failure.what()));
                throw;
            }
        });
    }
    return alerts;
}

void RecordBuilder::addLive(Record& record, DOC_Interface& doc, bool connected) {
    const bool lowLight = commonmembers::addLive(record, doc, connected);
    record.setFlag(QLatin1String("mobileSelected"), doc.isMobileSelected());
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
    record.setFlag(QLatin1String("mobileSelected"), doc.isMobileSelected());
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

#include "records/RecordModel.h"

#include "DOC_Activity.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "TableState.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebRecorder.h"
#include "records/BatchRecord.h"
#include "records/RecordBuilder.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

const QString GroupPref = QStringLiteral("wren/table/group");
const QString FilterPref = QStringLiteral("wren/table/filter");

QString compact(const QJsonDocument& document) {
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

/// Key of the text on the record button.
QString recordLabel(int state) {
    switch (state) {
        case zeb::RecordLive:
            return QStringLiteral("Record");
        case zeb::RecordCtsReady:
            return QStringLiteral("Waiting For CTS Signal");
        case zeb::RecordReady:
            return QStringLiteral("Ready");
        case zeb::RecordRecording:
            return QStringLiteral("Recording...");
        default:
            return QStringLiteral("Error");
    }
}

QString addressOf(DOC_Interface& doc) {
    return doc.control().getAddress(1);
}

}  // namespace

RecordModel::Answer RecordModel::getRecords(const QString& request) {
    if (m_host.isFileMode()) {
        return {QStringLiteral("{\"records\":[],\"batch\":[]}"), false};
    }
    const RecordRequest asked = RecordRequest::parse(request);
    const bool groupChanged = remember(asked);
    const Members members = membersOf(asked.group);
    const bool deselected = members && !m_state.recordRunning && !m_state.loadingRigx && deselectOutside(*members);
    Answer answer = build(asked, members, groupChanged);
    answer.selectionChanged = answer.selectionChanged || deselected;
    return answer;
}

QString RecordModel::getRecStatus() const {
    QJsonObject status;
    try {
        if (m_host.isLiveMode()) {
            const int state = recordState();
            status.insert(QLatin1String("recStatus"), state);
            status.insert(QLatin1String("recStatusLabel"), m_host.translate(recordLabel(state)));
        }
    } catch (const std::exception& e) {
        qCritical() << e.what();
    }
    return compact(QJsonDocument(status));
}

int RecordModel::recordState() const {
    return m_host.recorder().getRecStatus(m_host.docManager().getLiveDocKeys(0, 0));
}

QString RecordModel::getGroups() const {
    QJsonArray groups;
    const auto append = [&groups](const QString& key, const QString& name) {
        groups.append(QJsonObject{{QStringLiteral("key"), key}, {QStringLiteral("name"), name}});
    };
    for (const CameraGroup& group : m_state.groups) {
        append(group.name, group.name);
    }
    if (!groups.isEmpty()) {
        append({}, m_host.translate(QStringLiteral("All Group")));
    }
    return compact(QJsonDocument(groups));
}

QString RecordModel::getGroup() const {
    return groupToShow(m_state.group, m_host.getPrefString(GroupPref), m_state.groups);
}

int RecordModel::getFilter() const {
    return m_host.isFileMode() ? -1 : m_host.getPrefInt(FilterPref);
}

bool RecordModel::isSuspendReduceMode(DOCKEY key) const {
    ZebDocManager& documents = m_host.docManager();
    const DocKeyList keys = key == zeb::NoDocKey ? documents.getLiveDocKeys(0, 0) : DocKeyList{key};
    return std::any_of(keys.begin(), keys.end(), [&documents](DOCKEY each) {
        DOC_Interface* doc = documents.getDocAny(each);
        return doc != nullptr && doc->activity().isSuspendReduce();
    });
}

/// True when the group is another one than before.
bool RecordModel::remember(const RecordRequest& request) {
    const bool groupChanged = request.group != m_state.group;
    if (groupChanged) {
        m_host.setPrefString(GroupPref, request.group);
        m_state.group = request.group;
    }
    if (request.filter != m_state.filter) {
        m_host.setPrefInt(FilterPref, request.filter);
        m_state.filter = request.filter;
    }
    return groupChanged;
}

/// The addresses of a group; nothing for the group that stands for all.
RecordModel::Members RecordModel::membersOf(const QString& group) const {
    if (group.isEmpty()) {
        return std::nullopt;
    }
    const auto found = std::find_if(m_state.groups.begin(), m_state.groups.end(),
                                    [&group](const CameraGroup& each) { return each.name == group; });
    return found != m_state.groups.end() ? QSet<QString>(found->members.begin(), found->members.end())
                                         : QSet<QString>();
}

bool RecordModel::deselectOutside(const QSet<QString>& members) {
    ZebDocManager& documents = m_host.docManager();
    const bool live = m_host.isLiveMode();
    bool changed = false;
    for (const DOCKEY key : documents.getDocKeys()) {
        DOC_Interface* doc = documents.getDocAny(key);
        if (doc == nullptr || (live && doc->isMobileSelected()) || members.contains(addressOf(*doc))) {
            continue;
        }
        if (!m_host.isSelectionKept() && doc->isSelected()) {
            documents.deselectDoc(key);
            changed = true;
        }
    }
    return changed;
}

DocKeyList RecordModel::keysFor(int filter) const {
    ZebDocManager& documents = m_host.docManager();
    if (filter == ShowConnected) {
        return documents.getConnectedDocKeys();
    }
    DocKeyList keys = documents.getDocKeys();
    if (filter == ShowDisconnected) {
        const auto listed = [&documents](DOCKEY key) {
            const DOC_Interface* doc = documents.getDocAny(key);
            return doc != nullptr && !doc->isConnected();
        };
        keys.erase(std::remove_if(keys.begin(), keys.end(), [&listed](DOCKEY key) { return !listed(key); }),
                   keys.end());
    }
    return keys;
}

RecordModel::Answer RecordModel::build(const RecordRequest& request, const Members& members, bool selectListed) {
    ZebDocManager& documents = m_host.docManager();
    RecordBuilder builder(m_host, m_state, request.tab);
    BatchRecord batch(m_state.batchDocKey);
    Answer answer;
    QString rows;
    int recid = 0;
    for (const DOCKEY key : keysFor(request.filter)) {
        DOC_Interface* doc = documents.getDocAny(key);
        if (doc == nullptr || (members && !members->contains(addressOf(*doc)))) {
            continue;
        }
        if (selectListed && !doc->isSelected()) {
            documents.selectDoc(key);
            answer.selectionChanged = true;
        }
        const bool connected = doc->isConnected();
        const RowState row{++recid, connected, connected && doc->isSelected(),
                           connected && documents.isCurrentDoc(key)};
        const Record record = builder.build(*doc, row);
        rows += recid > 1 ? QLatin1String(",") : QLatin1String();
        record.appendTo(rows);
        batch.offer(key, row.selected, record);
    }
    m_state.batchDocKey = batch.source();
    answer.json = QStringLiteral("{\"records\":[") % rows % QLatin1String("],\"batch\":[");
    batch.build(m_host).appendTo(answer.json);
    answer.json += QLatin1String("]}");
    return answer;
}

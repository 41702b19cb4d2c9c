#include "RecordModel.h"

#include "BatchRecord.h"
#include "CycleFailures.h"
#include "DOC_Activity.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "RecordBuilder.h"
#include "ShortReply.h"
#include "TableState.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

const QString GroupPref = QStringLiteral("wren/table/group");
const QString FilterPref = QStringLiteral("wren/table/filter");

QString compact(const QJsonDocument& document) {
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

/// What `ask` answers; `fallback` from a camera that does not.
template <typename Ask>
bool answerOr(bool fallback, Ask&& ask) {
    try {
        return ask();
    } catch (...) {
        return fallback;
    }
}

}  // namespace

/// The cameras of the group that is chosen.
class GroupFilter {
public:
    GroupFilter(const QString& name, const QList<CameraGroup>& groups) : m_all(name.isEmpty()) {
        const auto found =
            std::find_if(groups.begin(), groups.end(), [&name](const CameraGroup& each) { return each.name == name; });
        if (found != groups.end()) {
            m_members = QSet<QString>(found->members.begin(), found->members.end());
        }
    }

    /// Whether it stands for all cameras.
    bool isAll() const { return m_all; }
    /// Whether the camera belongs to it, or may: when its address can't be read, `unread` says why.
    bool mayHave(DOC_Interface& doc, QString& unread) const {
        try {
            return m_all || m_members.contains(doc.control().getAddress(1));
        } catch (...) {
            unread = currentFailureText();
            return true;
        }
    }

private:
    bool m_all;
    QSet<QString> m_members;
};

RecordModel::Answer RecordModel::getRecords(const QString& request, CycleFailures& failures) {
    if (m_host.isFileMode()) {
        return {QStringLiteral("{\"records\":[],\"batch\":[]}"), false};
    }
    const RecordRequest asked = RecordRequest::parse(request);
    store(asked);
    const GroupFilter group(asked.group, m_state.groups);
    const bool deselected =
        !group.isAll() && !m_state.recordRunning && !m_state.loadingRigx && deselectOutside(group, failures);
    Answer answer = build(asked, group, failures);
    answer.selectionChanged = answer.selectionChanged || deselected;
    // Not before: a list that came to nothing has selected nobody.
    m_state.group = asked.group;
    m_state.filter = asked.filter;
    return answer;
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
        append({}, m_host.translate(TextKey("All Group")));
    }
    return compact(QJsonDocument(groups));
}

QString RecordModel::getGroup() const {
    return groupToShow(m_state.group, m_host.getPrefString(GroupPref), m_state.groups);
}

int RecordModel::getFilter() const {
    return m_host.isFileMode() ? -1 : m_host.getPrefInt(FilterPref);
}

bool RecordModel::isSuspendReduceMode(DOCKEY key, CycleFailures& failures) const {
    ZebDocManager& documents = m_host.docManager();
    const auto isSuspended = [&documents](DOCKEY each) {
        DOC_Interface* doc = documents.getDocAny(each);
        bool suspended = false;
        if (doc != nullptr) {
            onCamera(*doc, [&] { suspended = doc->activity().isSuspendReduce(); });
        }
        return suspended;
    };
    if (key != zeb::NoDocKey) {
        return isSuspended(key);
    }
    bool any = false;
    for (const DOCKEY each : documents.getLiveDocKeys(0, 0)) {
        failures.attempt(QStringLiteral("live speed of %1").arg(each), [&] { any = isSuspended(each) || any; });
    }
    return any;
}

void RecordModel::store(const RecordRequest& request) const {
    if (request.group != m_state.group) {
        m_host.setPrefString(GroupPref, request.group);
    }
    if (request.filter != m_state.filter) {
        m_host.setPrefInt(FilterPref, request.filter);
    }
}

/// A camera that does not tell whether it belongs to the group keeps its selection.
bool RecordModel::deselectOutside(const GroupFilter& group, CycleFailures& failures) const {
    if (m_host.isSelectionKept()) {
        return false;
    }
    ZebDocManager& documents = m_host.docManager();
    const bool live = m_host.isLiveMode();
    bool changed = false;
    for (const DOCKEY key : documents.getDocKeys()) {
        DOC_Interface* doc = documents.getDocAny(key);
        QString unread;
        const auto isOutside = [&] {
            return !(live && doc->isMobileSelected()) && !group.mayHave(*doc, unread) && doc->isSelected();
        };
        if (doc == nullptr || !answerOr(false, isOutside)) {
            continue;
        }
        failures.attempt(RecordBuilder::sourceOf(key) % QStringLiteral(", its selection"), [&] {
            onCamera(*doc, [&] {
                documents.deselectDoc(key);
                changed = changed || !doc->isSelected();
            });
        });
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
            return doc != nullptr && !answerOr(false, [doc] { return doc->isConnected(); });
        };
        keys.erase(std::remove_if(keys.begin(), keys.end(), [&listed](DOCKEY key) { return !listed(key); }),
                   keys.end());
    }
    return keys;
}

RecordModel::Answer RecordModel::build(const RecordRequest& request, const GroupFilter& group,
                                       CycleFailures& failures) {
    ZebDocManager& documents = m_host.docManager();
    const bool selectListed = request.group != m_state.group;
    RecordBuilder builder(m_host, m_state, request.tab, failures);
    const DOCKEY chosen = m_state.unreadBatchDocKey != zeb::NoDocKey ? m_state.unreadBatchDocKey : m_state.batchDocKey;
    BatchRecord batch(chosen);
    Answer answer;
    QString rows;
    std::optional<ShortReply> reply;
    if (request.taken) {
        reply.emplace(m_state.page, *request.taken);
    }
    int recid = 0;
    for (const DOCKEY key : keysFor(request.filter)) {
        DOC_Interface* doc = documents.getDocAny(key);
        QString unread;
        if (doc == nullptr || !group.mayHave(*doc, unread)) {
            continue;
        }
        const bool select = selectListed && unread.isEmpty();
        const RecordBuilder::Row row = builder.build(*doc, key, ++recid, select, unread);
        answer.selectionChanged = answer.selectionChanged || row.newlySelected;
        if (reply) {
            reply->add(row.record);
        } else {
            rows += recid > 1 ? QLatin1String(",") : QLatin1String();
            row.record.appendTo(rows);
        }
        batch.offer(key, row.selected, row.whole, row.record);
    }
    m_state.batchDocKey = batch.source();
    m_state.unreadBatchDocKey = batch.isChosenUnread() ? chosen : zeb::NoDocKey;
    if (reply) {
        reply->setBatch(batch.build(m_host));
        answer.json = reply->finish();
        return answer;
    }
    answer.json = QStringLiteral("{\"records\":[") % rows % QLatin1String("],\"batch\":[");
    batch.build(m_host).appendTo(answer.json);
    answer.json += QLatin1String("]}");
    return answer;
}

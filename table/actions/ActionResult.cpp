#include "ActionResult.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

bool isSet(const ActionResult::Row& row) {
    return row.verdict == QLatin1String("set");
}

}  // namespace

ActionResult::ActionResult(const QString& action, const QVector<Row>& rows) : m_action(action), m_rows(rows) {
    QJsonArray array;
    for (const Row& row : rows) {
        array.append(QJsonObject{{QStringLiteral("key"), QString::number(row.key)},
                                 {QStringLiteral("name"), row.name},
                                 {QStringLiteral("asked"), row.asked},
                                 {QStringLiteral("got"), row.got},
                                 {QStringLiteral("verdict"), row.verdict},
                                 {QStringLiteral("reason"), row.reason}});
    }
    const QJsonObject result{{QStringLiteral("action"), action},
                             {QStringLiteral("ok"), std::all_of(rows.begin(), rows.end(), isSet)},
                             {QStringLiteral("rows"), array}};
    m_json = QJsonDocument(result).toJson(QJsonDocument::Compact);
}

void ActionResult::log() const {
    for (const Row& row : m_rows) {
        if (!isSet(row)) {
            qWarning() << m_action << row.name << row.verdict << "asked:" << row.asked << "has:" << row.got
                       << row.reason;
        }
    }
}

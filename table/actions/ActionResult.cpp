#include "ActionResult.h"

#include <QDebug>
#include <QJsonArray>

#include <algorithm>

namespace {

bool isSet(const ActionResult::Row& row) {
    return row.verdict == QLatin1String("set");
}

}  // namespace

bool ActionResult::isOk() const {
    return std::all_of(rows.begin(), rows.end(), isSet);
}

QJsonObject ActionResult::toJson() const {
    QJsonArray array;
    for (const Row& row : rows) {
        array.append(QJsonObject{{QStringLiteral("key"), QString::number(row.key)},
                                 {QStringLiteral("name"), row.name},
                                 {QStringLiteral("asked"), row.asked},
                                 {QStringLiteral("got"), row.got},
                                 {QStringLiteral("verdict"), row.verdict},
                                 {QStringLiteral("reason"), row.reason}});
    }
    return {{QStringLiteral("action"), action}, {QStringLiteral("ok"), isOk()}, {QStringLiteral("rows"), array}};
}

void ActionResult::log() const {
    for (const Row& row : rows) {
        if (!isSet(row)) {
            qWarning() << action << row.name << row.verdict << "asked:" << row.asked << "has:" << row.got << row.reason;
        }
    }
}

#include "RecordRequest.h"

#include <QJsonDocument>
#include <QJsonObject>

RecordRequest RecordRequest::parse(const QString& json) {
    const QJsonObject object = QJsonDocument::fromJson(json.toUtf8()).object();
    RecordRequest request;
    request.group = object.value(QLatin1String("group")).toString();
    request.filter = object.value(QLatin1String("filter")).toInt();
    request.tab = object.value(QLatin1String("tab")).toInt();
    const QJsonValue taken = object.value(QLatin1String("taken"));
    if (taken.isDouble()) {
        request.taken = taken.toInt();
    }
    return request;
}

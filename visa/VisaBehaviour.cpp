#include "VisaBehaviour.h"

#include "VisaStatus.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <stdexcept>

namespace {

[[noreturn]] void refuse(const QString& text) {
    throw std::runtime_error(QString("VISA script: " % text).toStdString());
}

void require(bool isRight, const QString& member, const char* kind) {
    if (!isRight) {
        refuse('"' % member % "\" is to be " % kind % '.');
    }
}

QJsonObject object(const QString& member, const QJsonValue& value) {
    require(value.isObject(), member, "an object");
    return value.toObject();
}

double number(const QString& member, const QJsonValue& value) {
    require(value.isDouble(), member, "a number");
    return value.toDouble();
}

bool yes(const QString& member, const QJsonValue& value) {
    require(value.isBool(), member, "true or false");
    return value.toBool();
}

/// Statuses are written with and without a sign.
std::int32_t status(const QString& member, const QJsonValue& value) {
    const double given = number(member, value);
    require(given >= INT32_MIN && given <= UINT32_MAX, member, "a number of 32 bits");
    return static_cast<std::int32_t>(static_cast<std::int64_t>(given));
}

VisaBehaviour::Call call(const QJsonObject& members) {
    VisaBehaviour::Call call;
    for (auto member = members.begin(); member != members.end(); ++member) {
        const QString name = member.key();
        if (name == QLatin1String("status")) {
            call.status = status(name, *member);
        } else if (name == QLatin1String("never")) {
            if (yes(name, *member)) {
                call.status = visastatus::TimeOut;
            }
        } else if (name == QLatin1String("hold")) {
            call.holds = yes(name, *member);
        } else if (name == QLatin1String("from")) {
            call.from = member->toInt(1);
        } else {
            refuse("there is no \"" % name % "\" for a call.");
        }
    }
    return call;
}

QMap<QByteArray, QByteArray> replies(const QJsonObject& members) {
    QMap<QByteArray, QByteArray> texts;
    for (auto member = members.begin(); member != members.end(); ++member) {
        require(member->isString() || member->isNull(), member.key(), "a text or null");
        texts.insert(member.key().toUtf8(), member->toString().toUtf8());
    }
    return texts;
}

bool isCall(const QString& name) {
    static const QStringList calls{QStringLiteral("viOpenDefaultRM"), QStringLiteral("viOpen"),
                                   QStringLiteral("viPrintf"),        QStringLiteral("viScanf"),
                                   QStringLiteral("viClose"),         QStringLiteral("viClear")};
    return calls.contains(name);
}

void take(VisaBehaviour& behaviour, const QString& name, const QJsonValue& value) {
    if (name == QLatin1String("identity")) {
        require(value.isString(), name, "a text");
        behaviour.identity = value.toString().toUtf8();
    } else if (name == QLatin1String("frequency")) {
        behaviour.frequency = number(name, value);
    } else if (name == QLatin1String("replies")) {
        behaviour.replies = replies(object(name, value));
    } else if (isCall(name)) {
        behaviour.calls.insert(name.toLatin1(), call(object(name, value)));
    } else {
        refuse("there is no \"" % name % "\".");
    }
}

}  // namespace

VisaBehaviour VisaBehaviour::fromJson(const QByteArray& json) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject()) {
        refuse(document.isNull() ? error.errorString() : QStringLiteral("it is to be an object."));
    }
    VisaBehaviour behaviour;
    const QJsonObject members = document.object();
    for (auto member = members.begin(); member != members.end(); ++member) {
        take(behaviour, member.key(), *member);
    }
    return behaviour;
}

#include "TableFixture.h"

#include "camera/Camera.h"
#include "camera/Rig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

TableFixture::TableFixture() {
    host.setRig(Rig::fromFile(QStringLiteral("eight-mixed")));
    // A test says itself what is recorded.
    for (Camera* camera : host.cameras().all()) {
        camera->change({{QStringLiteral("recorded"), false},
                        {QStringLiteral("recordCheck"), false},
                        {QStringLiteral("recordedRange"), QVariantList{0, -1}},
                        {QStringLiteral("recordedRate"), 0},
                        {QStringLiteral("recordedTrigger"), 0},
                        {QStringLiteral("selectedRange"), QVariantList{0, -1}},
                        {QStringLiteral("triggerOffset"), 0},
                        {QStringLiteral("triggerOffsetEnabled"), false},
                        {QStringLiteral("effectivePlugins"), QStringList()}});
    }
}

void TableFixture::connectAll() {
    for (Camera* camera : host.cameras().all()) {
        camera->change({{QStringLiteral("connected"), true}});
    }
}

void TableFixture::change(DOCKEY key, const QVariantMap& members) {
    host.cameras().find(key)->change(members);
}

QVariant TableFixture::stateOf(DOCKEY key, const char* member) {
    return host.cameras().find(key)->state().toPlain().value(QLatin1String(member));
}

QStringList TableFixture::calls() {
    QStringList texts;
    for (const QVariant& entry : host.journal().since(m_mark)) {
        const QVariantMap call = entry.toMap();
        const QString name = call.value(QStringLiteral("call")).toString();
        if (name != QLatin1String("ZebHost::updateUI")) {
            texts.append(name % QLatin1Char(' ') % text(call.value(QStringLiteral("args"))));
        }
    }
    m_mark = host.journal().count();
    return texts;
}

QString TableFixture::text(const QVariant& value) {
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromVariantList(value.toList())).toJson(QJsonDocument::Compact));
}

void expectJson(const QString& actual, const QString& expected) {
    const auto lines = [](const QString& json) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << json.toStdString();
        return document.toJson().toStdString();
    };
    EXPECT_EQ(lines(actual), lines(expected));
}

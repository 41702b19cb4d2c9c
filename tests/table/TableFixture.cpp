#include "TableFixture.h"

#include <QJsonDocument>

TableFixture::TableFixture() : TestHost(readRig(QStringLiteral("eight-mixed"))) {
    plugin.setHost(&host);
    host.appStatus().registerPlugin(&plugin);
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

void expectJson(const QString& actual, const QString& expected) {
    const auto lines = [](const QString& json) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << json.toStdString();
        return document.toJson().toStdString();
    };
    EXPECT_EQ(lines(actual), lines(expected));
}

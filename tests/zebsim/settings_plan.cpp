#include "Course.h"
#include "Files.h"
#include "LoadPlan.h"
#include "LoadTexts.h"
#include "ModelCatalogue.h"
#include "SettingsReader.h"
#include "Translator.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

PlanCamera camera(const QString& label, const QString& address, int head, const QVariant& row) {
    const auto model = ModelCatalogue::shipped().find(row.toMap()["model"].toString());
    PlanCamera made{1, label, address, head, model, model->initial};
    made.state.connected = true;
    made.state.apply(row.toMap()["state"].toMap());
    return made;
}

/// Camera A and, when there is a second, B: the other head of the device when it is of the same model.
QList<PlanCamera> camerasOf(const QVariantList& rows) {
    QList<PlanCamera> list{camera("A", "10.0.0.1", 1, rows.first())};
    if (rows.size() > 1) {
        const bool isHead = rows[0].toMap()["model"] == rows[1].toMap()["model"];
        list.append(camera("B", isHead ? "10.0.0.1" : "10.0.0.2", isHead ? 2 : 1, rows[1]));
    }
    return list;
}

/// Those of the heads of A's device.
QList<HeadSettings> fileOf(const QVariantList& settings) {
    QVariantList heads;
    for (const QVariant& members : settings) {
        heads << QVariantMap{{"head", heads.size() + 1}, {"settings", members}};
    }
    const QVariantMap device{{"address", "10.0.0.1"}, {"heads", heads}};
    const QVariantMap file{{"format", 1}, {"cameras", QVariantList{device}}};
    return readSettingsText("x", QJsonDocument::fromVariant(file).toJson());
}

/// What the user sees, without what the file does not have.
QStringList preview(const LoadPlan& plan) {
    return LoadTexts(Translator()).preview(plan).filter(QRegularExpression("^(?!.*not in the file:)"));
}

TEST(LoadPlan, TellsForEachSettingWhatBecomesOfIt) {
    const QByteArray rows = contentOf(SOURCE_FOLDER "/tests/zebsim/loads/plans.json");
    for (const QVariant& each : QJsonDocument::fromJson(rows).toVariant().toList()) {
        const QVariantMap row = each.toMap();
        const LoadPlan plan = planLoad(fileOf(row["settings"].toList()), camerasOf(row["cameras"].toList()));
        EXPECT_EQ(preview(plan), row["lines"].toStringList()) << row["name"].toString().toStdString();
        EXPECT_EQ(plan.isOdd(), row["odd"].toBool()) << row["name"].toString().toStdString();
    }
}

/// Half of them are not in the file.
TEST(LoadPlan, OfManyCamerasIsShort) {
    QList<PlanCamera> many;
    QList<HeadSettings> settings;
    for (int i = 0; i < 1024; ++i) {
        const QVariantMap row{{"model", "standard"}, {"state", QVariantMap{{"locked", i > 1018}}}};
        many.append(camera(QString("C%1").arg(i), QString("10.0.%1.%2").arg(i / 256).arg(i % 256), 1, row));
        if (i % 2 == 0) {
            settings.append({many.last().address, 1, {{"rate", 500U}, {"irig", false}}});
        }
    }
    const LoadPlan plan = planLoad(settings, many);
    EXPECT_TRUE(preview(plan).first().endsWith(", C1021, C1023: it is not in the file")) << "each is named";
    EXPECT_EQ(preview(plan).mid(1), (QStringList{"C1020, C1022: it is locked, and stays as it is",
                                                 "C0, C2, C4 and 507 more: Frame rate 1000 fps → 500 fps"}));
    EXPECT_EQ(plan.changes(), 510);
    EXPECT_EQ(plan.equal(), 510);
}

}  // namespace

#include "Course.h"
#include "LoadPlan.h"
#include "LoadTexts.h"
#include "ModelCatalogue.h"
#include "Translator.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// Camera A; with a second model also B, the other head of the device when it is the same.
QList<PlanCamera> cameras(const char* model, const QVariantMap& members, const char* second = nullptr,
                          const QVariantMap& secondMembers = {}) {
    QList<PlanCamera> list;
    const auto add = [&list](const char* label, const char* address, int head, const char* name,
                             const QVariantMap& state) {
        const auto found = ModelCatalogue::shipped().find(name);
        list.append({DOCKEY(list.size() + 1), label, address, head, found, found->initial});
        list.last().state.connected = true;
        list.last().state.apply(state);
    };
    add("A", "10.0.0.1", 1, model, members);
    if (second) {
        const bool isHead = QString(model) == second;
        add("B", isHead ? "10.0.0.1" : "10.0.0.2", isHead ? 2 : 1, second, secondMembers);
    }
    return list;
}

QList<HeadSettings> file(const QVariantMap& first, const QVariantMap& second = {}) {
    QList<HeadSettings> heads{{"10.0.0.1", 1, first}};
    if (!second.isEmpty()) {
        heads.append({"10.0.0.1", 2, second});
    }
    return heads;
}

/// What the user sees, without what the file does not have.
QStringList preview(const LoadPlan& plan) {
    QStringList lines = LoadTexts(Translator()).preview(plan);
    return lines.filter(QRegularExpression("^(?!.*not in the file:)"));
}

TEST(LoadPlan, TellsForEachSettingWhatBecomesOfIt) {
    const QVariantMap slow{{"rate", 500U}, {"shutter", 500}};
    const QVariantMap rate2000{{"rate", 2000U}};
    const struct {
        const char* name;
        QList<HeadSettings> file;
        QList<PlanCamera> cameras;
        QStringList lines;
        bool isOdd;
    } rows[] = {
        {"all is as it should be", file({{"rate", 1000U}, {"irig", false}}), cameras("standard", {}), {}, false},
        {"a change",
         file({{"rate", 2000U}, {"shutter", 5000}, {"name", "x"}}),
         cameras("standard", {{"name", "<b>"}}),
         {"A: Frame rate 1000 fps → 2000 fps", "A: Shutter speed 1/1000 s → 1/5000 s",
          "A: Camera name \"<b>\" → \"x\""},
         false},
        {"a faster rate shortens the shutter",
         file(rate2000),
         cameras("standard", {}),
         {"A: Shutter speed 1/1000 s → 1/2000 s (no exposure lasts longer than a frame)",
          "A: Frame rate 1000 fps → 2000 fps"},
         true},
        {"not in low light",
         file({{"rate", 2000U}, {"lowLight", true}, {"shutter", 50}}),
         cameras("standard", {{"shutter", 50}}),
         {"A: Frame rate 1000 fps → 2000 fps", "A: Lowlight OFF → ON"},
         false},
        {"which ends",
         file({{"lowLight", false}, {"shutter", 50}}),
         cameras("standard", {{"lowLight", true}, {"shutter", 50}}),
         {"A: Shutter speed 1/50 s → 1/1000 s (no exposure lasts longer than a frame)", "A: Lowlight ON → OFF"},
         true},
        {"the next lower rate",
         file({{"rate", 2999U}}),
         cameras("standard", {{"shutter", 5000}}),
         {"A: Frame rate 1000 fps → 2000 fps (2999 fps is not offered)"},
         true},
        {"the same a second time",
         file({{"rate", 2999U}}),
         cameras("standard", {{"rate", 2000}, {"shutter", 5000}}),
         {"A: Frame rate stays 2000 fps (2999 fps is not offered)"},
         true},
        {"another model",
         file({{"rate", 60U},
               {"resolution", QVariantList{8, 8}},
               {"shutter", 7},
               {"triggerMode", 13},
               {"lowLight", true},
               {"reduce", true},
               {"binningPower", 1},
               {"variable", 1U}}),
         cameras("fast", {{"lowLight", false}, {"triggerMode", 4}}),
         {"A: Resolution stays 512 x 512 (8 x 8 is not offered)",
          "A: Frame rate stays 10000 fps (60 fps is not offered)",
          "A: Shutter speed stays 1/20000 s (1/7 s is not offered)",
          "A: Trigger mode stays Manual Trg (Rec on cmd Trg is not offered)",
          "A: Live speed stays OFF (ON is not offered)", "A: Lowlight OFF → ON", "A: Variable channel 0 → 1",
          "A: Binning 0 → 1"},
         true},
        {"a channel without a text",
         file({{"variable", 3U}}),
         cameras("fast", {}),
         {"A: Variable channel stays 0 (3 is not offered)"},
         true},
        {"parts of lists",
         file({{"ports", QVariantMap{{"1", 13}, {"99", 1}}}, {"effectivePlugins", QStringList{"lut", "none"}}}),
         cameras("standard", {}),
         {"A: Signals at the ports (1 12, 2 8, 5 14, 7 16) → (1 13, 2 8, 5 14, 7 16) ((1 13, 99 1) is not offered)",
          "A: Image plug-ins that work () → (lut) ((lut, none) is not offered)"},
         true},
        {"fewer ports are no reason to complain",
         file({{"ports", QVariantMap{{"1", 12}}}}),
         cameras("standard", {}),
         {},
         false},
        {"heads that share and differ",
         file({{"rate", 1000U}, {"shutter", 1000}}, {{"rate", 2000U}, {"shutter", 2000}}),
         cameras("two-head", slow, "two-head", slow),
         {"A, B: Frame rate stays 500 fps (all heads of the device share it, and the file has them differ)",
          "A: Shutter speed 1/500 s → 1/1000 s", "B: Shutter speed 1/500 s → 1/2000 s"},
         true},
        {"a locked head",
         file({{"rate", 1000U}, {"shutter", 1000}}, {{"rate", 1000U}}),
         cameras("two-head", slow, "two-head", {{"locked", true}}),
         {"A: Frame rate stays 500 fps (another head of the device shares it, and stays as it is)",
          "B: it is locked, and stays as it is", "A: Shutter speed 1/500 s → 1/1000 s"},
         true},
        {"armed",
         file(rate2000),
         cameras("standard", {{"recordState", 2}}),
         {"A: it is armed, and stays as it is"},
         true},
        {"records",
         file(rate2000),
         cameras("standard", {{"recordState", 3}}),
         {"A: it records, and stays as it is"},
         true},
        {"off",
         file(rate2000),
         cameras("standard", {{"connected", false}}, "bench", {{"connected", false}}),
         {"A: it is not connected, and stays as it is"},
         true},
        {"another one is not in the file",
         file({{"rate", 1000U}}),
         cameras("standard", {}, "bench"),
         {"B: it is not in the file"},
         false},
        {"one of the file is not there",
         file({{"rate", 1000U}}, rate2000),
         cameras("standard", {}),
         {"10.0.0.1-2: there is no such camera"},
         true},
    };
    for (const auto& row : rows) {
        const LoadPlan plan = planLoad(row.file, row.cameras);
        EXPECT_EQ(preview(plan), row.lines) << row.name;
        EXPECT_EQ(plan.isOdd(), row.isOdd) << row.name;
    }
}

TEST(LoadPlan, OfManyCamerasIsShort) {
    QList<PlanCamera> many;
    QList<HeadSettings> settings;
    for (int i = 0; i < 64; ++i) {
        many.append(cameras("standard", {{"locked", i > 60}}));
        many.last().label = QString("C%1").arg(i);
        many.last().address = settings.isEmpty() ? "10.0.0.1" : QString("10.0.1.%1").arg(i);
        settings.append({many.last().address, 1, {{"rate", 500U}, {"irig", false}}});
    }
    const LoadPlan plan = planLoad(settings, many);
    EXPECT_EQ(preview(plan), (QStringList{"C61, C62, C63: it is locked, and stays as it is",
                                          "C0, C1, C2 and 58 more: Frame rate 1000 fps → 500 fps"}));
    EXPECT_EQ(plan.changes(), 61);
    EXPECT_EQ(plan.equal(), 61);
}

}  // namespace

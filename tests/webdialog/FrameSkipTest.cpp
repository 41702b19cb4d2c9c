#include "Camera.h"
#include "ProbeBridge.h"

#include <gtest/gtest.h>

namespace {

/// With all decimals that there are.
QString text(double value) {
    return QString::number(value, 'g', 15);
}

/// "least-most: offers".
QString text(const FrameSkip& skip) {
    QStringList offers;
    for (const double value : skip.list) {
        offers.append(text(value));
    }
    return QStringLiteral("%1-%2: %3").arg(text(skip.minFrames), text(skip.maxFrames), offers.join(' '));
}

TEST(FrameSkip, ByTime) {
    FrameSkip before;
    before.rate = 1000;
    before.list = {1.0, 2.0, 3.0};
    const struct {
        const char* sentence;
        FrameSkip before;
        QList<unsigned int> rates;
        unsigned int frames;
        int rate;
        const char* skip;
    } cases[] = {
        {"steps of a frame's time", {}, {1000}, 4, 1000, "1-4: 1 2 3 4"},
        {"rates share their divisor", {}, {2000, 3000, 2000}, 2, 1000, "1-2: 1 2"},
        {"four decimals", {}, {30}, 3, 30, "33.3333-99.9999: 33.3333 66.6666 99.9999"},
        {"half a place goes up", {}, {32000}, 1, 32000, "0.0313-0.0313: 0.0313"},
        {"up goes into the whole part", {}, {600}, 3, 600, "1.6667-5.0001: 1.6667 3.3334 5.0001"},
        {"without frames the shortest time alone", {}, {500}, NoFrameCount, 500, "2-2: 2"},
        {"offers stay while the rate stays", before, {1000}, 5, 1000, "1-5: 1 2 3 5"},
        {"no second offer of the longest", before, {1000}, 2, 1000, "1-2: 1 2 3"},
        {"another rate makes other offers", before, {500}, 2, 500, "2-4: 2 4"},
        {"a frame that takes no time", {}, {30000000}, 7, 30000000, "0-0: 0"},
        {"no rate at all", {}, {}, 2, 0, "1-2: 1 2"},
    };
    for (const auto& row : cases) {
        const FrameSkip skip = skipByTime(row.before, row.rates, row.frames);
        EXPECT_EQ(text(skip), row.skip) << row.sentence;
        EXPECT_EQ(skip.rate, row.rate) << row.sentence;
    }
    QStringList ten;
    for (int i = 1; i <= 10; ++i) {
        ten.append(text(double(i)));
    }
    EXPECT_EQ(text(skipByTime({}, {1000}, 10)), QString("1-10: " + ten.join(' ')));
}

/// The bridge of an export.
class ExportBridge : public ProbeBridge {
public:
    using ProbeBridge::frameSkip;
    using ProbeBridge::ProbeBridge;
    using ProbeBridge::refreshSkipFrames;

    int mode = SkipByFrames;
    double frames = 1.0;

    int getSkipMode() override { return mode; }
    void setSkipMode(int value) override { Course::note(QString("mode %1").arg(mode = value)); }
    double getSkipFrames() override { return frames; }
    void applySkipFrames(double value) override { Course::note(QString("apply ") % text(value)); }
};

/// A camera's rate, and what it has recorded at another one: its frames from 0 on.
QVariantMap recording(int rate, int recordedRate, int last) {
    return {
        {"rate", rate}, {"recorded", true}, {"recordedRate", recordedRate}, {"recordedRange", QVariantList{0, last}}};
}

TEST(FrameSkip, FollowsWhatIsExported) {
    const QMap<DOCKEY, QList<PARTITIONNUMBER>> Both = {{1, {1, 2}}, {2, {1}}};
    const QMap<DOCKEY, QList<PARTITIONNUMBER>> Blank = {{3, {1}}};  // has recorded nothing
    const struct {
        const char* sentence;
        QMap<DOCKEY, QList<PARTITIONNUMBER>> targets;
        int mode;
        int operatingMode;
        double frames;
        const char* bounds;
        int offers;
        QStringList calls;
    } cases[] = {
        {"nothing to export", {}, SkipByTime, zeb::LiveMode, 9, "1 1", 0, {}},
        {"frames of the shortest", Both, SkipByFrames, zeb::MemoryMode, 5, "1 6", 0, {"apply 5"}},
        {"a value above", Both, SkipByFrames, zeb::MemoryMode, 7, "1 6", 0, {"apply 1"}},
        {"the bounds belong to it", {{1, {1}}}, SkipByFrames, zeb::MemoryMode, 8, "1 8", 0, {"apply 8"}},
        {"no frames known", Blank, SkipByFrames, zeb::MemoryMode, 9, "1 4294967295", 0, {"apply 9"}},
        {"rates of the cameras", Both, SkipByTime, zeb::LiveMode, 4, "2 16384", 8192, {"apply 4"}},
        {"rates of the recordings", Both, SkipByTime, zeb::MemoryMode, 4, "40 240", 6, {"apply 40"}},
        {"no rate known", Blank, SkipByTime, zeb::MemoryMode, 9, "1 4294967295", 0, {"mode 0", "apply 9"}},
    };
    for (const auto& row : cases) {
        TestHost test(connected(3));
        test.camera(1).change(recording(500, 50, 7));
        test.camera(2).change(recording(1500, 75, 5));
        test.host.appStatus().enterMode(row.operatingMode);
        ExportTargets targets;
        for (auto target = row.targets.begin(); target != row.targets.end(); ++target) {
            targets.insert(test.doc(target.key()), target.value());
        }
        Course course;
        ExportBridge bridge(&test.host);
        bridge.mode = row.mode;
        bridge.frames = row.frames;
        bridge.refreshSkipFrames(targets);
        EXPECT_EQ(QString(text(bridge.getSkipMinFrames()) % ' ' % text(bridge.getSkipMaxFrames())), row.bounds)
            << row.sentence;
        EXPECT_EQ(bridge.frameSkip().list.size(), row.offers) << row.sentence;
        EXPECT_EQ(course.take(), row.calls) << row.sentence;
    }
}

}  // namespace

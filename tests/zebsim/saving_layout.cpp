#include "support/SavingTest.h"

#include <cmath>
#include <limits>

namespace {

TEST(TimeSteps, PairFramesOfAnyRatesByTheirTimeFromTheTrigger) {
    constexpr qint64 Most = std::numeric_limits<int>::max();
    const struct {
        const char* what;
        std::vector<TimedRange> ranges;
        FrameSkipRule skip;
        int count;
        /// At the first moment, and at the last.
        qint64 time, lastTime;
        std::vector<qint64> frames, lastFrames;
    } cases[] = {
        {"one", {{1000, -1, 2}}, {}, 4, -1000, 2000, {-1}, {2}},
        {"a slow one lasts longer", {{500, -2, 3}, {4000, -5, 7}}, {}, 41, -4000, 6000, {-2, -16}, {3, 24}},
        {"rates that do not divide", {{2000, -3, 3}, {3000, -3, 1}}, {}, 9, -1334, 1333, {-3, -4}, {2, 4}},
        {"all after the trigger", {{1000, 5, 6}, {3000, 30, 31}}, {}, 17, 5000, 10333, {5, 15}, {10, 31}},
        {"every third frame of the fastest", {{1000, -4, 5}}, {3, 0}, 3, -3000, 3000, {-3}, {3}},
        {"every third of a millisecond", {{1000, -1, 1}}, {1, 3'333}, 7, -1000, 999, {-1}, {0}},
        {"no moment at all", {{1000, 5, 6}}, {1, 10'000'000}, 1, 1'000'000, 1'000'000, {1000}, {1000}},
        {"far apart",
         {{4'000'000'000, 0, 0}, {1, -Most, Most}},
         {},
         int(Most),
         -Most * 1'000'000,
         -2147483646463130,
         {-Most * 4'000'000'000, -Most},
         {-8589934585852516354, -2147483647}},
    };
    for (const auto& one : cases) {
        const TimeSteps steps(one.ranges, one.skip);
        EXPECT_EQ(steps.count(), one.count) << one.what;
        const int last = steps.count() - 1;
        EXPECT_EQ(steps.time(0), one.time) << one.what;
        EXPECT_EQ(steps.time(last), one.lastTime) << one.what;
        for (std::size_t i = 0; i < one.ranges.size(); ++i) {
            EXPECT_EQ(steps.frameAt(0, one.ranges[i].rate), one.frames[i]) << one.what;
            EXPECT_EQ(steps.frameAt(last, one.ranges[i].rate), one.lastFrames[i]) << one.what;
        }
    }
}

TEST(LayoutRule, SharesThePictureAsPreferencesSay) {
    const struct {
        QHash<QString, QVariant> prefs;
        int tiles;
        QSize grid, tile, whole;
    } cases[] = {
        {{}, 1, {1, 1}, {480, 360}, {480, 360}},
        {{}, 5, {3, 2}, {480, 360}, {1440, 720}},
        {{}, 100, {10, 10}, {384, 288}, {3840, 2880}},
        {{{"combinedmethod", "row"}, {"count", 2}}, 16, {16, 1}, {240, 180}, {3840, 180}},
        {{{"combinedmethod", "column"}}, 16, {1, 16}, {320, 240}, {320, 3840}},
        {{{"combinedmethod", "column"}}, 5000, {1, 5000}, {1, 1}, {1, 5000}},
        {{{"combinedmethod", "spiral"}, {"count", -1}}, 4, {2, 2}, {480, 360}, {960, 720}},
        {{{"count", 3}}, 4, {3, 2}, {480, 360}, {1440, 720}},
        {{{"count", 9}}, 4, {4, 1}, {480, 360}, {1920, 360}},
        {{{"combinedresolutionspecify", true}}, 4, {2, 2}, {960, 540}, {1920, 1080}},
        {{{"combinedresolutionspecify", true},
          {"combinedresolutionspecifywidth", 101},
          {"combinedresolutionspecifyheight", 15}},
         4,
         {2, 2},
         {50, 540},
         {101, 1080}},
    };
    for (const auto& one : cases) {
        const LayoutRule rule = chosen(one.prefs).layout;
        EXPECT_EQ(rule.grid(one.tiles), one.grid);
        EXPECT_EQ(rule.tileSize(one.tiles), one.tile);
        EXPECT_EQ(rule.wholeSize(one.tiles), one.whole);
    }
}

TEST_F(SavingTest, ShowsInEachTileTheLastFrameThatIsNotLater) {
    const struct {
        int rate, trigger, zero, first, last;
    } cameras[] = {{500, 100, 100, 98, 103}, {1000, 20, 7, 18, 21}, {2000, 300, 400, 300, 304}, {4000, 5, 5, 1, 9}};
    host.host.setRig(standardRig(4));
    for (DOCKEY key = 1; key <= 4; ++key) {
        const auto& camera = cameras[key - 1];
        prepare(key, QString::number(key), camera.first, camera.last);
        host.camera(key).change({{"recordedRate", camera.rate}, {"recordedTrigger", camera.trigger}});
        host.camera(key).change({{"triggerOffsetEnabled", true}, {"triggerOffset", camera.zero}});
    }
    for (const bool holds : {true, false}) {
        for (const bool tells : {true, false}) {
            SaveOrders wanted = chosen({{"format", "bmp"}, {"mode", holds ? "hold" : "blank"}, {"info", tells}});
            wanted.add(tracksOfLayout(sources(), "Layout").front());
            wanted.tracks[0].stem = path("Layout");
            EXPECT_EQ(run(wanted), QStringList("Layout: 41 of 41 up to 40, saved")) << "-4 ms to 6 ms";
            for (const int index : {0, 7, 15, 16, 17, 18, 23, 24, 25, 40}) {
                const QImage whole =
                    QImage(wanted.fileOf(wanted.tracks[0], index)).convertToFormat(QImage::Format_RGB32);
                for (int place = 0; place < 4; ++place) {
                    const auto& camera = cameras[place];
                    const int frame = camera.trigger + int(std::floor((index - 16) * camera.rate / 4000.0));
                    const int inRange = std::clamp(frame, camera.first, camera.last);
                    const QSize size = fitInto({480, 360}, Size);
                    const QPoint corner(480 * (place % 2), 360 * (place / 2) + (360 - size.height()) / 2);
                    CameraFrame expected{QString::number(place + 1),
                                         Size,
                                         inRange - camera.zero,
                                         qint64(inRange - camera.trigger) * 1'000'000 / camera.rate,
                                         SensorNoise::of(host.camera(DOCKEY(place + 1))),
                                         {},
                                         tells};
                    const QImage tile = whole.copy(QRect(corner, size));
                    if (holds || frame == inRange) {
                        EXPECT_EQ(tile, drawFrame(expected, size)) << index << ' ' << place;
                    } else {
                        QImage rest = tile.copy(0, 60, size.width(), size.height() - 60);
                        QImage ground = rest;
                        ground.fill(QColor(24, 26, 30));
                        EXPECT_EQ(rest, ground) << index << ' ' << place;
                        ground = ground.scaled(size.width(), 60);
                        EXPECT_EQ(tile.copy(0, 0, size.width(), 60) == ground, !tells) << "the name alone";
                    }
                }
            }
            removeFiles();
        }
    }
    SaveOrders stretched = chosen({{"combinedmethod", "row"}, {"combinedmethodaspect", false}});
    stretched.add(tracksOfLayout(sources(), "Layout").front());
    const CameraFrame first{"1", Size, -2, -4000, SensorNoise::of(host.camera(1)), {}};
    EXPECT_EQ(stretched.tracks[0].picture(0).copy(0, 0, 480, 360), drawFrame(first, {480, 360}));
}

}  // namespace

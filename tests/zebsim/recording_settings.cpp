#include "RecordSettings.h"
#include "support/RecordingTest.h"

namespace {

/// 1000 frames at 1000 a second.
RecordSettings settingsOf(int mode, int randomFrames = 0, int randomTimes = 0, const QPoint& area = {}) {
    RecordSettings settings;
    settings.mode = mode;
    settings.capacity = 1000;
    settings.rate = 1000;
    settings.triggerFrame = 700;
    settings.randomFrames = randomFrames;
    settings.randomTimes = randomTimes;
    settings.area = area;
    return settings;
}

constexpr qint64 Long = 100000;

TEST(RecordSettings, MakeTheRangeOfARecording) {
    const struct {
        const char* what;
        RecordSettings settings;
        qint64 ready, recorded;
        const char* range;
    } rows[] = {
        {"start keeps what comes after the trigger", settingsOf(zeb::TriggerStart), Long, Long, "0..999 trigger 0"},
        {"stopped after a quarter of a second", settingsOf(zeb::TriggerStart), Long, 250, "0..249 trigger 0"},
        {"stopped at once it has the trigger's frame", settingsOf(zeb::TriggerStart), Long, 0, "0..0 trigger 0"},
        {"center keeps half from before", settingsOf(zeb::TriggerCenter), Long, Long, "0..999 trigger 500"},
        {"center soon after ready has fewer before", settingsOf(zeb::TriggerCenter), 20, Long, "0..519 trigger 20"},
        {"end stops with the trigger", settingsOf(zeb::TriggerEnd), Long, Long, "0..999 trigger 999"},
        {"end at once after ready", settingsOf(zeb::TriggerEnd), 0, Long, "0..0 trigger 0"},
        {"manual keeps what it was set to for after the trigger", settingsOf(zeb::TriggerManual), Long, Long,
         "0..999 trigger 300"},
        {"random takes its frames so many times", settingsOf(zeb::TriggerRandom, 30, 4), Long, Long,
         "0..119 trigger 0"},
        {"random without an end fills the memory", settingsOf(zeb::TriggerRandom, 300, 0), Long, Long,
         "0..899 trigger 0"},
        {"random of more than fits", settingsOf(zeb::TriggerRandomReset, 300, 2000000000), Long, Long,
         "0..899 trigger 0"},
        {"random center has half of its frames before", settingsOf(zeb::TriggerRandomCenter, 100, 2), Long, Long,
         "0..199 trigger 50"},
        {"random manual has its share before", settingsOf(zeb::TriggerRandomManual, 100, 2), Long, Long,
         "0..199 trigger 30"},
        {"two stages, an eighth before", settingsOf(zeb::TriggerTwostageOneeighth), Long, Long, "0..999 trigger 125"},
        {"an area counts from the trigger", settingsOf(zeb::TriggerCenter, 0, 0, {-100, 49}), Long, Long,
         "400..549 trigger 500"},
        {"an area reaches past what is there", settingsOf(zeb::TriggerCenter, 0, 0, {-100, 49}), 20, 10,
         "0..29 trigger 20"},
        {"an area that was not reached", settingsOf(zeb::TriggerStart, 0, 0, {500, 600}), Long, 100, "nothing"},
        {"an area that ends before it starts is none", settingsOf(zeb::TriggerStart, 0, 0, {5, 4}), Long, Long,
         "0..999 trigger 0"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(told(row.settings.recording(row.ready, row.recorded)), row.range) << row.what;
    }
    RecordSettings none = settingsOf(zeb::TriggerCenter);
    none.capacity = 0;
    EXPECT_EQ(told(none.recording(Long, Long)), "nothing") << "no memory";
}

TEST_F(RecordingTest, RandomTriggersFillTheMemoryUnlessTheyAreCounted) {
    const struct {
        int mode;
        bool counted;
        int frames;
    } rows[] = {{zeb::TriggerRandom, true, 400},
                {zeb::TriggerRandom, false, 8100},
                {zeb::TriggerRandomReset, false, 8100},
                {zeb::TriggerRandomLoop, false, 400}};
    for (const auto& row : rows) {
        CameraState state = test.camera(1).state();
        state.triggerMode = row.mode;
        state.randomFrames = 100;
        state.randomTimes = 4;
        state.randomCounted = row.counted;
        EXPECT_EQ(RecordSettings::of(state, test.camera(1).model()).framesAfter(), row.frames) << row.mode;
    }
}

}  // namespace

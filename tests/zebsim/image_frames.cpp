#include "CameraModel.h"
#include "FramePicture.h"
#include "Playback.h"
#include "Recording.h"

#include <gtest/gtest.h>

namespace {

constexpr QSize Size{320, 240};

CameraFrame frameOf(const QString& camera, qint64 number) {
    return {camera, QSize(640, 480), number, number * 1000, {}, {}};
}

TEST(FramePicture, ShowsWhichFrameOfWhichCameraItIs) {
    const QImage picture = drawFrame(frameOf("Gate", 12), Size);
    EXPECT_EQ(picture, drawFrame(frameOf("Gate", 12), Size));
    EXPECT_EQ(picture.size(), Size);
    EXPECT_NE(picture, drawFrame(frameOf("Ramp", 12), Size));
    EXPECT_NE(picture, drawFrame(frameOf("Gate", 13), Size));
    // The texts tell even where wheel and mark stand alike: after a whole turn, and for names of one colour.
    const QRect upper(0, 0, 320, 40);
    const QRect lower(0, 210, 320, 20);
    EXPECT_NE(picture.copy(lower), drawFrame(frameOf("Gate", 12 + 2400), Size).copy(lower));
    EXPECT_NE(drawFrame(frameOf("", 12), Size).copy(upper), drawFrame(frameOf(" .", 12), Size).copy(upper));
    EXPECT_TRUE(drawFrame(frameOf("Gate", 12), QSize()).isNull());
}

TEST(CameraFrame, TellsNumberAndTimeFromTheZeroPoint) {
    CameraState state;
    state.name = QStringLiteral("Gate");
    state.rate = 2000;
    const CameraFrame live = CameraFrame::live(state, {}, 1500);
    EXPECT_EQ(live.number, 3000);
    EXPECT_EQ(live.time, 1500000);
    Recording recording;
    recording.rate = 4000;
    recording.last = 999;
    recording.zero = 400;
    EXPECT_EQ(CameraFrame::recorded(state, {}, recording, 396).number, -4);
    EXPECT_EQ(CameraFrame::recorded(state, {}, recording, 396).time, -1000);
    recording.rate = 0;
    EXPECT_EQ(CameraFrame::recorded(state, {}, recording, 396).time, 0);
}

TEST(Playback, GoesThroughTheFramesToKeep) {
    Recording recording;
    recording.last = 999;
    recording.selectedFirst = 100;
    recording.selectedLast = 159;
    Playback playback;
    EXPECT_EQ(playback.frame(1, recording), 100);
    playback.advance(1, recording, 1000);
    EXPECT_EQ(playback.frame(1, recording), 130);
    for (int i = 0; i < 90; ++i) {
        playback.advance(1, recording, 11);
    }
    EXPECT_EQ(playback.frame(1, recording), 159) << "parts of a frame add up";
    playback.advance(1, recording, 40);
    EXPECT_EQ(playback.frame(1, recording), 100) << "it begins again";
    playback.seek(1, 20);
    playback.advance(1, recording, 3000);
    EXPECT_EQ(playback.frame(1, recording), 110) << "from before the frames to keep it plays into them";
    playback.seek(1, 5000);
    EXPECT_EQ(playback.frame(1, recording), 999) << "a shorter recording has come meanwhile";
    EXPECT_EQ(playback.frame(2, recording), 100);
}

}  // namespace

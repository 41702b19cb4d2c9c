#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "RigFile.h"
#include "TableFixture.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>

namespace {

/// Four cameras that have recorded, of different lengths and triggers; the fifth has nothing, the sixth is not
/// connected.
class MemoryEditingTest : public BridgeFixture {
protected:
    MemoryEditingTest() {
        host.setRig(standardRig(6));
        connectAll();
        record(1, 0, 999, 500);
        record(2, 0, 4095, 1000);
        record(3, 0, 99, 99);
        record(4, 0, 0, 0);
        record(6, 0, 999, 500);
        change(6, {{"connected", false}});
        host.appStatus().enterMode(zeb::MemoryMode);
        makeBridge();
        calls();
    }

    void record(DOCKEY key, int first, int last, int trigger) {
        change(key, {{"recorded", true},
                     {"selected", true},
                     {"recordedRange", QVariantList{first, last}},
                     {"recordedTrigger", trigger},
                     {"selectedRange", QVariantList{first, last}}});
    }

    DOC_Interface& doc(DOCKEY key) { return *host.docManager().getDocAny(key); }

    /// Start and end to keep as the user sees them, counted from the trigger.
    QString range(DOCKEY key) {
        const DOC_Frames& frames = doc(key).frames();
        const int trigger = frames.getTriggerFrame(0);
        return QStringLiteral("%1..%2")
            .arg(frames.getSelectStartFrame(0) - trigger)
            .arg(frames.getSelectEndFrame(0) - trigger);
    }
    QStringList ranges() { return {range(1), range(2), range(3), range(4)}; }
};

TEST_F(MemoryEditingTest, EachCameraTakesANumberAsFarAsItsFramesGo) {
    const QVariantList all{1, 2, 3, 4, 5, 6, 77};
    const struct {
        const char* sentence;
        std::function<void()> edit;
        QStringList ranges;
    } cases[] = {
        {"at first all is kept", [] {}, {"-500..499", "-1000..3095", "-99..0", "0..0"}},
        {"a start that some cannot reach",
         [&] { bridge->setSelectStartFrameNo(all, -600); },
         {"-500..499", "-600..3095", "-99..0", "0..0"}},
        {"an end beyond some",
         [&] { bridge->setSelectEndFrameNo(all, 2000); },
         {"-500..499", "-600..2000", "-99..0", "0..0"}},
        {"an end before the start becomes the start",
         [&] { bridge->setSelectEndFrameNo({2}, -5000); },
         {"-500..499", "-600..-600", "-99..0", "0..0"}},
        {"a start behind the end becomes the end",
         [&] { bridge->setSelectStartFrameNo(all, 3000); },
         {"499..499", "-600..-600", "0..0", "0..0"}},
        {"the largest number there is",
         [&] { bridge->setSelectEndFrameNo(all, std::numeric_limits<int>::max()); },
         {"499..499", "-600..3095", "0..0", "0..0"}},
        {"the smallest",
         [&] { bridge->setSelectStartFrameNo(all, std::numeric_limits<int>::min()); },
         {"-500..499", "-1000..3095", "-99..0", "0..0"}},
    };
    for (const auto& each : cases) {
        each.edit();
        EXPECT_EQ(ranges(), each.ranges) << each.sentence;
    }
    const QStringList asked = calls();
    EXPECT_TRUE(asked.filter(QRegularExpression("Range [56] ")).isEmpty())
        << "without frames, or not connected: " << asked.join('\n').toStdString();
    EXPECT_EQ(desk.texts(), QStringList());

    host.appStatus().enterMode(zeb::LiveMode);
    calls();
    bridge->setSelectStartFrameNo(all, 0);
    bridge->setSelectEndFrameNo(all, 0);
    bridge->setTriggerOffset(all, 1);
    bridge->setRecordCheck(all, true);
    EXPECT_EQ(calls("^DOC_"), QStringList()) << "in memory mode only";
}

TEST_F(MemoryEditingTest, AnOffsetOfNothingSwitchesItOff) {
    const struct {
        const char* sentence;
        int offset;
        QStringList calls;
    } cases[] = {
        {"moved", 20, {"setTriggerOffsetEnabled 1 true", "setTriggerOffset 1 520"}},
        {"back", 0, {"setTriggerOffsetEnabled 1 false", "setTriggerOffset 1 0"}},
        {"before the first frame", -700, {"setTriggerOffsetEnabled 1 true", "setTriggerOffset 1 0"}},
        {"behind the last", 700, {"setTriggerOffsetEnabled 1 true", "setTriggerOffset 1 999"}},
    };
    for (const auto& each : cases) {
        bridge->setTriggerOffset({1}, each.offset);
        EXPECT_EQ(calls(), each.calls) << each.sentence;
    }
    EXPECT_EQ(doc(1).control().getTriggerOffset() - doc(1).control().getTriggerOffsetBase(), 499);
    bridge->setTriggerOffset({6, 77}, 5);
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(MemoryEditingTest, HalfAnOffsetIsNone) {
    host.faults().plant(1, "setTriggerOffset", Fault{"no answer", 0, false});
    const int zero = host.docManager().getDocAny(1)->frames().getTriggerFrame(0);
    bridge->setTriggerOffset({1}, 30);
    EXPECT_EQ(desk.texts().size(), 1);
    EXPECT_EQ(host.docManager().getDocAny(1)->frames().getTriggerFrame(0), zero);
}

TEST_F(MemoryEditingTest, ACheckNeedsAConnectedAndSelectedCamera) {
    change(2, {{"selected", false}});
    bridge->setRecordCheck({1, 2, 3, 6, 77}, true);
    EXPECT_EQ(calls(), (QStringList{"setRecordCheck 1 true", "setRecordCheck 3 true"}));
}

TEST_F(MemoryEditingTest, SavingAsksForWhatNobodyHasLookedAt) {
    const QString question = "Do you want to save even though playback confirmation has not been completed?";
    const Answer no{false, false};
    const Fault down{"The link is down", 0, false};
    const auto check = [this](bool checked) {
        for (const DOCKEY key : {1, 2, 3, 4}) {
            change(key, {{"recordCheck", checked}});
        }
    };
    const struct {
        const char* sentence;
        std::function<void()> prepare;
        QStringList questions;
        bool saves;
    } cases[] = {
        {"all are checked; the one without frames and the one that is not connected do not count",
         [&] { check(true); },
         {},
         true},
        {"one is not, and the user does not want that",
         [&] { camera(3).set(&CameraState::recordCheck, false), desk.answers = {no}; },
         {question},
         false},
        {"he does", [] {}, {question}, true},
        {"the host leaves memory mode while the question stands",
         [&] { desk.whileStanding = [this] { host.appStatus().enterMode(zeb::LiveMode); }; },
         {question},
         false},
        {"one does not answer, and the others are to be saved",
         [&] { check(true), host.faults().plant(3, "isRecordCheck", down); },
         {question + "\nCamera 3: The link is down"},
         true},
        {"in live mode", [] {}, {}, false},
    };
    for (const auto& each : cases) {
        for (const bool layout : {false, true}) {
            host.appStatus().enterMode(QByteArray(each.sentence) == "in live mode" ? zeb::LiveMode : zeb::MemoryMode);
            each.prepare();
            calls();
            layout ? bridge->saveLayout() : bridge->save();
            EXPECT_EQ(desk.take(), each.questions) << each.sentence;
            const QStringList saved{layout ? "saveLayoutFiles" : "saveFiles"};
            EXPECT_EQ(calls("^ZebHost::save"), each.saves ? saved : QStringList()) << each.sentence;
        }
    }
}

TEST_F(MemoryEditingTest, WhateverIsEditedNoRangeTurnsRound) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        std::mt19937 random(seed);
        const auto upTo = [&random](int count) { return int(random() % unsigned(count)); };
        for (int step = 0; step < 4000; ++step) {
            QVariantList keys;
            for (int n = upTo(3); n >= 0; --n) {
                keys.append(1 + upTo(7));
            }
            const int number = upTo(10) == 0 ? int(random()) : upTo(6000) - 3000;
            switch (upTo(6)) {
                case 0:
                    bridge->setTriggerOffset(keys, number);
                    break;
                case 1:
                    bridge->setRecordCheck(keys, upTo(2) == 0);
                    break;
                case 2:
                    record(4, upTo(100), 100 + upTo(100), upTo(200));
                    break;
                case 3:
                    bridge->setSelectStartFrameNo(upTo(4) == 0 ? QVariantList{1, 2, 3, 4, 5, 6} : keys, number);
                    break;
                default:
                    bridge->setSelectEndFrameNo(keys, number);
            }
            for (const DOCKEY key : {1, 2, 3, 4}) {
                const DOC_Frames& frames = doc(key).frames();
                const QList<int> ends{frames.getFirstFrame(0, 0), frames.getSelectStartFrame(0),
                                      frames.getSelectEndFrame(0), frames.getLastFrame(0, 0)};
                ASSERT_TRUE(std::is_sorted(ends.begin(), ends.end()))
                    << "seed " << seed << ", step " << step << ", camera " << key << ": " << range(key).toStdString();
            }
        }
    }
    EXPECT_EQ(desk.texts(), QStringList());
}

}  // namespace

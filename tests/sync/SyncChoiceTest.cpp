#include "MasterChoice.h"
#include "SignalChoice.h"
#include "SyncChecks.h"
#include "SyncOrder.h"

#include <gtest/gtest.h>

namespace {

/// Cameras as "B2 A*200.0.0.1": class and address each, of which 10.0.0. is left out.
QList<SyncCamera> cameras(const char* texts) {
    QList<SyncCamera> all;
    for (const QString& text : QString(texts).split(' ', Qt::SkipEmptyParts)) {
        const bool delayedA = text.startsWith("A*");
        SyncCamera camera;
        camera.address = text.mid(delayedA ? 2 : 1);
        if (!camera.address.contains('.')) {
            camera.address.prepend("10.0.0.");
        }
        camera.delayed = delayedA || text.startsWith('B');
        camera.exposure = exposureClassOf(text.startsWith('A') ? 1 : 0, camera.delayed ? 2 : 0);
        all.append(camera);
    }
    return all;
}

std::string addresses(const QList<SyncCamera>& cameras) {
    QStringList all;
    for (const SyncCamera& camera : cameras) {
        all.append(QString(camera.address).remove("10.0.0."));
    }
    return all.join(' ').toStdString();
}

}  // namespace

TEST(SyncChoice, AddressesAreNumbersOfFourOctetsTheFirstTheHighest) {
    EXPECT_EQ(addressNumber(QStringLiteral("192.168.0.11")), 0xC0A8000BU);
    EXPECT_EQ(addressNumber(QStringLiteral("255.255.255.255")), 0xFFFFFFFFU);
    EXPECT_GT(addressNumber(QStringLiteral("200.0.0.1")), addressNumber(QStringLiteral("100.255.255.255")));
}

TEST(SyncChoice, CandidatesForTheMaster) {
    const struct {
        const char* sentence;
        const char* cameras;
        int triggerMode;
        const char* candidates;
    } cases[] = {
        {"without cameras nobody leads", "", zeb::TriggerStart, ""},
        {"class A leads before N", "N1 A2 A3", zeb::TriggerStart, "2 3"},
        {"class N leads when there is no A", "N2 N1", zeb::TriggerManual, "2 1"},
        {"class B leads when there is nothing else", "B1 B2", zeb::TriggerStart, "1 2"},
        {"a class A with a delay is still A", "A*1 B2", zeb::TriggerCenter, "1"},
        {"mixed, post-trigger: B leads", "A1 B2 N3", zeb::TriggerCenter, "2"},
        {"mixed, post-trigger without a pure B: nobody", "A*1 N2", zeb::TriggerEnd, ""},
        {"mixed, start: A leads", "N3 B2 A1", zeb::TriggerStart, "1"},
        {"mixed, random is no post-trigger mode: N when there is no A", "B2 N3", zeb::TriggerRandom, "3"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(addresses(masterCandidates(cameras(each.cameras), each.triggerMode)), each.candidates)
            << each.sentence;
    }
}

TEST(SyncChoice, OrderOfTheCameras) {
    const char* const mixed = "N9 B4 A200.0.0.1 A7 B2 N1";
    const struct {
        const char* sentence;
        const char* cameras;
        bool external;
        const char* master;
        int triggerMode;
        const char* order;
    } cases[] = {
        {"external: by address, unsigned", mixed, true, "10.0.0.9", zeb::TriggerCenter, "1 2 4 7 9 200.0.0.1"},
        {"chain, start: A, N, B behind it", mixed, false, "10.0.0.1", zeb::TriggerStart, "1 7 200.0.0.1 9 2 4"},
        {"chain, post-trigger: B, A, N", mixed, false, "10.0.0.4", zeb::TriggerManual, "4 2 7 200.0.0.1 1 9"},
        {"all with a delay: not mixed, A before B", "B1 A*2", false, "10.0.0.2", zeb::TriggerCenter, "2 1"},
        {"the master is found by its number", "N1 N2", false, "10.00.0.02", zeb::TriggerStart, "2 1"},
        {"of two heads of the master the first moves", "N1 N2 N2", false, "10.0.0.2", zeb::TriggerStart, "2 1 2"},
        {"a master from elsewhere moves nobody", "N2 N1", false, "10.0.0.3", zeb::TriggerStart, "1 2"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(addresses(sortForSync(cameras(each.cameras), each.external, each.master, each.triggerMode)),
                  each.order)
            << each.sentence;
    }
}

TEST(SyncChoice, FrequencyThatTheTableShows) {
    struct Case {
        const char* sentence;
        QStringList configured;
        int chosen;
        SignalOffer source;
        int frequency;
        QStringList frequencies;
        QString text;
    };
    const QStringList source{"1000", "2000"};
    const QStringList own{"500", "1000"};
    const Case cases[] = {
        {"the source's list and frequency, without one of our own", {}, 500, {2000, source}, 2000, source, "2000"},
        {"the source's frequency even if it is 0", {}, 500, {0, source}, 0, source, {}},
        {"our list stays, the source's frequency wins", own, 500, {1000, source}, 1000, own, "1000"},
        {"a frequency that is not in our list is not shown", own, 500, {2000, source}, 2000, own, {}},
        {"our frequency stays when the source has none", own, 500, {0, source}, 500, own, "500"}};
    for (const Case& each : cases) {
        const SignalChoice choice = chooseSignal(each.configured, each.chosen, each.source);
        EXPECT_EQ(choice.frequency, each.frequency) << each.sentence;
        EXPECT_EQ(choice.frequencies, each.frequencies) << each.sentence;
        EXPECT_EQ(choice.text(), each.text) << each.sentence;
    }
    EXPECT_TRUE(needsFrequency(2000, {1000, source}));
    EXPECT_FALSE(needsFrequency(1000, {1000, source})) << "it makes that already";
    EXPECT_FALSE(needsFrequency(500, {1000, source})) << "it does not offer that";
}

TEST(SyncChoice, SomeTriggerModesSuitMixedExposures) {
    for (int mode = zeb::TriggerStart; mode <= zeb::TriggerNoneError; ++mode) {
        const bool suits = QList<int>{1, 2, 3, 4, 6, 7, 13, 14}.contains(mode);
        EXPECT_EQ(suitsMixedExposures(mode), suits) << mode;
    }
}

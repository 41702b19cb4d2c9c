#include "MasterChoice.h"
#include "SignalChoice.h"
#include "SyncChecks.h"
#include "SyncOrder.h"

#include <gtest/gtest.h>

namespace {

/// A camera as "B 192.168.0.12": its class and its address.
SyncCamera camera(const QString& text) {
    SyncCamera camera;
    camera.address = text.section(QLatin1Char(' '), 1);
    const QString exposure = text.section(QLatin1Char(' '), 0, 0);
    camera.delayed = exposure == QLatin1String("B") || exposure == QLatin1String("A*");
    camera.exposure = exposureClassOf(exposure.startsWith(QLatin1Char('A')) ? 1 : 0, camera.delayed ? 2 : 0);
    return camera;
}

QList<SyncCamera> cameras(const QStringList& texts) {
    QList<SyncCamera> all;
    for (const QString& text : texts) all.append(camera(text));
    return all;
}

QStringList addresses(const QList<SyncCamera>& cameras) {
    QStringList all;
    for (const SyncCamera& camera : cameras) all.append(camera.address);
    return all;
}

}  // namespace

TEST(SyncChoice, AddressesAreNumbersOfFourOctetsTheFirstTheHighest) {
    EXPECT_EQ(addressNumber(QStringLiteral("192.168.0.11")), 0xC0A8000BU);
    EXPECT_EQ(addressNumber(QStringLiteral("255.255.255.255")), 0xFFFFFFFFU);
    EXPECT_GT(addressNumber(QStringLiteral("200.0.0.1")), addressNumber(QStringLiteral("100.255.255.255")));
}

TEST(SyncChoice, CandidatesForTheMaster) {
    struct Case {
        const char* sentence;
        QStringList cameras;
        int triggerMode;
        QStringList candidates;
    };
    const Case cases[] = {
        {"without cameras nobody leads", {}, zeb::TriggerStart, {}},
        {"class A leads before N",
         {"N 10.0.0.1", "A 10.0.0.2", "A 10.0.0.3"},
         zeb::TriggerStart,
         {"10.0.0.2", "10.0.0.3"}},
        {"class N leads when there is no A",
         {"N 10.0.0.2", "N 10.0.0.1"},
         zeb::TriggerManual,
         {"10.0.0.2", "10.0.0.1"}},
        {"class B leads when there is nothing else",
         {"B 10.0.0.1", "B 10.0.0.2"},
         zeb::TriggerStart,
         {"10.0.0.1", "10.0.0.2"}},
        {"a class A with a delay is still A", {"A* 10.0.0.1", "B 10.0.0.2"}, zeb::TriggerCenter, {"10.0.0.1"}},
        {"mixed, post-trigger: B leads", {"A 10.0.0.1", "B 10.0.0.2", "N 10.0.0.3"}, zeb::TriggerCenter, {"10.0.0.2"}},
        {"mixed, post-trigger without a pure B: nobody", {"A* 10.0.0.1", "N 10.0.0.2"}, zeb::TriggerEnd, {}},
        {"mixed, start: A leads", {"N 10.0.0.3", "B 10.0.0.2", "A 10.0.0.1"}, zeb::TriggerStart, {"10.0.0.1"}},
        {"mixed, random is no post-trigger mode: N when there is no A",
         {"B 10.0.0.2", "N 10.0.0.3"},
         zeb::TriggerRandom,
         {"10.0.0.3"}}};
    for (const Case& each : cases) {
        EXPECT_EQ(addresses(masterCandidates(cameras(each.cameras), each.triggerMode)), each.candidates)
            << each.sentence;
    }
}

TEST(SyncChoice, OrderOfTheCameras) {
    struct Case {
        const char* sentence;
        QStringList cameras;
        bool external;
        QString master;
        int triggerMode;
        QStringList order;
    };
    const QStringList mixed{"N 10.0.0.9", "B 10.0.0.4", "A 200.0.0.1", "A 10.0.0.7", "B 10.0.0.2", "N 10.0.0.1"};
    const Case cases[] = {{"external: by address, unsigned, and the master stays",
                           mixed,
                           true,
                           "10.0.0.9",
                           zeb::TriggerCenter,
                           {"10.0.0.1", "10.0.0.2", "10.0.0.4", "10.0.0.7", "10.0.0.9", "200.0.0.1"}},
                          {"chain, mixed, start: A, N, B behind the master",
                           mixed,
                           false,
                           "10.0.0.1",
                           zeb::TriggerStart,
                           {"10.0.0.1", "10.0.0.7", "200.0.0.1", "10.0.0.9", "10.0.0.2", "10.0.0.4"}},
                          {"chain, mixed, post-trigger: B, A, N behind the master",
                           mixed,
                           false,
                           "10.0.0.4",
                           zeb::TriggerManual,
                           {"10.0.0.4", "10.0.0.2", "10.0.0.7", "200.0.0.1", "10.0.0.1", "10.0.0.9"}},
                          {"chain, all with a delay, post-trigger: not mixed, A before B",
                           {"B 10.0.0.1", "A* 10.0.0.2"},
                           false,
                           "10.0.0.2",
                           zeb::TriggerCenter,
                           {"10.0.0.2", "10.0.0.1"}},
                          {"the master is found by its number",
                           {"N 10.0.0.1", "N 10.0.0.2"},
                           false,
                           "10.00.0.02",
                           zeb::TriggerStart,
                           {"10.0.0.2", "10.0.0.1"}},
                          {"of two heads with the master's address the first moves",
                           {"N 10.0.0.1", "N 10.0.0.2", "N 10.0.0.2"},
                           false,
                           "10.0.0.2",
                           zeb::TriggerStart,
                           {"10.0.0.2", "10.0.0.1", "10.0.0.2"}},
                          {"a master from elsewhere moves nobody",
                           {"N 10.0.0.2", "N 10.0.0.1"},
                           false,
                           "10.0.0.3",
                           zeb::TriggerStart,
                           {"10.0.0.1", "10.0.0.2"}}};
    for (const Case& each : cases) {
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

TEST(SyncChoice, WhatKeepsCamerasFromSharingASignal) {
    const QString type = "The selected camera does not support sync setting";
    const QString modes = "Sync setting is possible only when all cameras are in the same trigger mode.";
    const QString lowLight = "Synchronization setting is impossible due to the presence of low light camera.";
    const QString mixed =
        "Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not be "
        "used. Consider using manual mode.";
    struct Case {
        const char* sentence;
        SyncFitness camera;
        QString obstacle;
    };
    const Case cases[] = {
        {"a camera in the mode of the others is fit", {true, zeb::TriggerManual, false}, {}},
        {"another mode", {true, zeb::TriggerStart, false}, modes},
        {"low light", {true, zeb::TriggerManual, true}, lowLight},
        {"the type comes before the mode, the mode before low light", {false, zeb::TriggerStart, true}, type},
        {"the mode comes before low light", {true, zeb::TriggerStart, true}, modes},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(syncObstacle(each.camera, zeb::TriggerManual), each.obstacle) << each.sentence;
    }
    for (int mode = zeb::TriggerStart; mode <= zeb::TriggerNoneError; ++mode) {
        const bool suits = QList<int>{1, 2, 3, 4, 6, 7, 13, 14}.contains(mode);
        EXPECT_EQ(mixedExposureObstacle(mode), suits ? QString() : mixed) << mode;
    }
}

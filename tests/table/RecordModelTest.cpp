#include "CycleFailures.h"
#include "FaultPlan.h"
#include "NumberFormat.h"
#include "RecordModel.h"
#include "SyncMembers.h"
#include "TableFixture.h"
#include "TableState.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace {

QJsonObject readJson(const QString& name) {
    QFile file(QStringLiteral(":/table/expected/") % name % QStringLiteral(".json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    EXPECT_TRUE(document.isObject()) << name.toStdString();
    return document.object();
}

QString toText(const QJsonObject& object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

/// An expected answer; a text "@name" stands for the list of that name.
QString expected(const QString& name) {
    QString answer = toText(readJson(name));
    const QJsonObject lists = readJson("lists");
    for (const QString& list : lists.keys()) {
        answer.replace("\"@" % list % '"', QJsonDocument(lists[list].toArray()).toJson(QJsonDocument::Compact));
    }
    return answer;
}

/// The answer with what a tab adds to its rows, row by row.
QJsonObject with(QJsonObject answer, const QString& name) {
    const QJsonObject added = readJson(name);
    for (const QString& part : added.keys()) {
        QJsonArray rows;
        for (const auto& each : answer[part].toArray()) {
            QJsonObject row = each.toObject();
            const QJsonObject members = added[part].toArray()[rows.size()].toObject();
            for (const QString& member : members.keys()) {
                row.insert(member, members[member]);
            }
            rows.append(row);
        }
        EXPECT_EQ(rows.size(), added[part].toArray().size()) << name.toStdString();
        answer.insert(part, rows);
    }
    return answer;
}

QJsonObject row(const QString& answer, int index) {
    return QJsonDocument::fromJson(answer.toUtf8())[QStringLiteral("records")][index].toObject();
}

QStringList keysOf(const QString& answer) {
    QStringList keys;
    for (const QJsonValue each : QJsonDocument::fromJson(answer.toUtf8())[QStringLiteral("records")].toArray()) {
        keys.append(each[QStringLiteral("key")].toString());
    }
    return keys;
}

QStringList valuesOf(const QJsonValue& choices) {
    QStringList values;
    for (const QJsonValue each : choices.toArray()) {
        values.append(each[QStringLiteral("value")].toString());
    }
    return values;
}

class RecordModelTest : public TableFixture {
protected:
    RecordModelTest() { state.group.clear(); }

    /// Brings the cameras into states of `cameras.json`: "use" has six of them in those that a row can show.
    void bring(const QStringList& states) {
        const QJsonObject all = readJson(QStringLiteral("cameras"));
        for (const QString& name : states) {
            const QJsonObject cameras = all[name].toObject();
            for (const QString& key : cameras.keys()) {
                change(key.toUInt(), cameras[key].toObject().toVariantMap());
            }
        }
    }

    RecordModel::Answer getRecords(const char* request) {
        return model.getRecords(QString::fromUtf8(request), failures);
    }
    QString records(const char* request) { return getRecords(request).json; }

    TableState state;
    CycleFailures failures;
    RecordModel model{host, state};
};

TEST_F(RecordModelTest, ShowsEachTabAndModeAsTheCamerasAre) {
    bring({"use"});
    expectJson(records(R"({"group":"","filter":0,"tab":1})"), expected("livecontrol"));
    expectJson(records(R"({"group":"","filter":0,"tab":0})"), expected("camerainfo"));
    host.appStatus().enterMemoryMode();
    change(2, {{"recordCheck", true}});
    expectJson(records(R"({"group":"","filter":0,"tab":0})"), expected("memory"));
    expectJson(records(R"({"group":"","filter":0,"tab":1})"), expected("memory"));
    host.appStatus().enterMode(zeb::FileMode);
    expectJson(records(R"({"group":"","filter":0,"tab":1})"), R"({"records":[],"batch":[]})");
}

TEST_F(RecordModelTest, ShowsInputsIrigAndPluginsOfLiveCameras) {
    bring({"use", "irig", "plugins"});
    const QJsonObject live = readJson("live");
    expectJson(records(R"({"tab":2})"), toText(with(live, "sync")));
    expectJson(records(R"({"tab":3})"), toText(with(live, "irig")));
    expectJson(records(R"({"tab":4})"), toText(with(live, "plugins")));
    expectJson(records(R"({"tab":6})"), toText(live));
}

TEST_F(RecordModelTest, ShowsRecordingsAndPluginsInMemoryMode) {
    bring({"use", "plugins", "recordings"});
    host.appStatus().enterMemoryMode();
    const QJsonObject memory = readJson("memory");
    expectJson(records(R"({"tab":5})"), toText(with(memory, "memoryinfo")));
    expectJson(records(R"({"tab":6})"), toText(with(with(memory, "plugins"), "memoryplugins")));
    expectJson(records(R"({"tab":4})"), toText(memory));
}

TEST_F(RecordModelTest, TakesAMalformedRequestForAnEmptyOne) {
    bring({"use"});
    for (const char* request : {"", "{", "[]", R"({"group":7,"filter":"2","tab":null})"}) {
        SCOPED_TRACE(request);
        expectJson(records(request), expected("camerainfo"));
        EXPECT_EQ(state.group, QString());
    }
}

TEST_F(RecordModelTest, TextArrivesAsItWasWritten) {
    QString awkward =
        QStringLiteral("<img src=x onerror=alert(1)> \"'\\/ \u30ab\u30e1\u30e9 \u2028 \U0001F3A5 %1 {}[],:");
    for (char16_t control = 1; control < 0x20; ++control) {
        awkward.append(QChar(control));
    }
    awkward.append(QString(4096, QLatin1Char('x')));
    change(1, {{"connected", true}, {"name", awkward}, {"alerts", QStringList{awkward}}});
    change(1, {{"comment", QString(awkward % QLatin1String(zeb::CommentSeparator) % awkward)}});
    const QJsonObject gate = row(records(R"({"tab":0})"), 0);
    EXPECT_EQ(gate.value("cameraName").toString(), awkward);
    EXPECT_EQ(gate.value("alert").toString(), awkward);
    EXPECT_EQ(gate.value("comment").toString(), awkward);
    EXPECT_EQ(gate.value("comments").toString(), QString(awkward % QLatin1Char('\n') % awkward));
}

TEST_F(RecordModelTest, WithoutCamerasIsABatchRowOfEmptyLists) {
    for (DOCKEY key = 1; key <= 8; ++key) {
        host.faults().plant(key, "*", {{}, 0, true});
    }
    const QJsonObject empty{{"records", QJsonArray()}, {"batch", QJsonArray{readJson("emptybatch")}}};
    expectJson(records(R"({"tab":1})"), toText(empty));
}

TEST_F(RecordModelTest, BatchRowCopiesTheChosenCameraElseTheLastSelected) {
    bring({"use"});
    const auto source = [this](DOCKEY chosen, const char* request) {
        state.batchDocKey = chosen;
        records(request);
        return state.batchDocKey;
    };
    EXPECT_EQ(source(7, R"({"tab":1})"), 7U) << "the chosen one need not be selected";
    EXPECT_EQ(source(6, R"({"tab":1,"filter":1})"), 3U) << "the chosen one is not listed";
    EXPECT_EQ(source(3, R"({"tab":1,"filter":2})"), 3U) << "nothing listed is selected: it is kept";
}

TEST_F(RecordModelTest, ChangeOfGroupSelectsTheGroupAndNothingElse) {
    bring({"use"});
    change(8, {{"selected", true}});
    change(1, {{"selected", true}});
    state.groups = {{"Nozzles", {"192.168.0.13"}}, {"Front", {"192.168.0.11", "192.168.0.12"}}};
    calls();

    RecordModel::Answer answer = getRecords(R"({"group":"Nozzles","tab":0})");
    EXPECT_TRUE(answer.selectionChanged);
    EXPECT_EQ(keysOf(answer.json), (QStringList{"3", "4"}));
    EXPECT_TRUE(row(answer.json, 1).value("selected").toBool());
    // The mobile camera 8 keeps its selection.
    EXPECT_EQ(calls(),
              (QStringList{"setPrefString wren/table/group Nozzles", "deselectDoc 1", "deselectDoc 2", "selectDoc 4"}));

    answer = getRecords(R"({"group":"Nozzles","tab":0})");
    EXPECT_FALSE(answer.selectionChanged);
    EXPECT_EQ(calls(), QStringList());

    answer = getRecords(R"({"group":"Nobody","tab":0})");
    EXPECT_EQ(keysOf(answer.json), QStringList());
    EXPECT_EQ(calls(), (QStringList{"setPrefString wren/table/group Nobody", "deselectDoc 3", "deselectDoc 4"}));
}

TEST_F(RecordModelTest, NothingIsDeselectedWhileRecordingOrWhenTheHostKeepsItsSelection) {
    bring({"use"});
    state.groups = {{"Nozzles", {"192.168.0.13"}}};
    const QStringList selectsOnly{"setPrefString wren/table/group Nozzles", "selectDoc 4"};
    calls();
    state.recordRunning = true;
    change(5, {{"recordState", zeb::RecordReady}});
    EXPECT_TRUE(getRecords(R"({"group":"Nozzles"})").selectionChanged);
    EXPECT_EQ(calls(), selectsOnly);
    EXPECT_TRUE(state.recordRunning);

    change(5, {{"recordState", zeb::RecordLive}});
    host.flags().set("IsSelectionKept", true);
    getRecords(R"({"group":"Nozzles"})");
    state.recordRunning = false;
    state.group.clear();
    change(4, {{"selected", false}});
    host.flags().set("IsSelectionKept", true);
    getRecords(R"({"group":"Nozzles"})");
    EXPECT_EQ(calls(), selectsOnly);
}

TEST_F(RecordModelTest, FirstListAfterOpeningSelectsEveryCamera) {
    state.group = QLatin1String(UnreadGroup);
    EXPECT_FALSE(getRecords(R"({"group":"","filter":1})").selectionChanged) << "none is listed";
    state.group = QLatin1String(UnreadGroup);
    change(2, {{"connected", true}});
    host.faults().plant(FaultPlan::Host, "getDocKeys", {"no answer", 0, false});
    EXPECT_THROW(getRecords(R"({"group":""})"), std::exception);
    host.faults().clear();
    EXPECT_TRUE(getRecords(R"({"group":""})").selectionChanged) << "the first list that came to something";
    EXPECT_TRUE(stateOf(2, "selected").toBool());
}

TEST_F(RecordModelTest, DefaultSettingsLimitWhatIsOffered) {
    connectAll();
    state.allowed = {{"300", "1000", "2000"}, {"50", "70"}, {"512 x 512"}};
    QJsonObject gate = row(records(R"({"tab":1})"), 0);
    EXPECT_EQ(valuesOf(gate.value("frameRates")), (QStringList{"300", "1000", "2000"}));
    EXPECT_EQ(gate.value("frameRate"), "1000");
    EXPECT_EQ(valuesOf(gate.value("shutterSpeeds")), (QStringList{"50", "70"}));
    EXPECT_EQ(gate.value("shutterSpeed"), "");
    EXPECT_EQ(gate.value("resolutions"), (QJsonArray{"512 x 512"}));
    EXPECT_EQ(gate.value("resolution"), "");

    // By exposure time: 1/50 s is in the camera's list, 1/70 s is not and is divided and cut.
    host.setPrefInt("display/ShutterSpeed", zeb::ShutterDisplaySecondList);
    gate = row(records(R"({"tab":1})"), 0);
    EXPECT_EQ(gate.value("shutterSpeeds"), (QJsonArray{QJsonObject{{"name", "20 ms"}, {"value", "20000000"}},
                                                       QJsonObject{{"name", "14.2857 ms"}, {"value", "14285714"}}}));

    change(1, {{"lowLight", true}});
    gate = row(records(R"({"tab":1})"), 0);
    EXPECT_EQ(gate.value("frameRates").toArray().size(), 13) << "in low light the camera's own lists stand";
    EXPECT_EQ(gate.value("shutterSpeeds").toArray().size(), 16);
    EXPECT_EQ(gate.value("resolutions").toArray().size(), 5);
}

TEST_F(RecordModelTest, NumbersReadAsTheUserLikesThem) {
    connectAll();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    host.setPrefBool("display/recordRateInsertDelimiter", true);
    const QJsonArray rates = row(records(R"({"tab":1})"), 0).value("frameRates").toArray();
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(rates.last(), (QJsonObject{{"name", "10,000 fps"}, {"value", "10000"}}));
    EXPECT_EQ(numberformat::rate(0, "fps", true), "");

    const struct {
        int triggerFrame;
        unsigned int frames;
        QString percent;
    } cases[] = {{25, 100, "75"}, {1, 3, "66.67"}, {0, 9, "100"}, {9, 9, "0"}, {1, 100000, "100"}, {1, 0, ""}};
    for (const auto& each : cases) {
        EXPECT_EQ(numberformat::manualTriggerPercent(each.triggerFrame, each.frames), each.percent);
    }
}

TEST_F(RecordModelTest, FramesReadAsTheUserLikesThemWhereTheyAreNotEdited) {
    bring({"use", "recordings"});
    host.appStatus().enterMemoryMode();
    host.setPrefBool("display/frameInsertDelimiter", true);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QJsonObject gate = row(records(R"({"tab":5})"), 0);
    const QJsonObject gateOfPlugins = row(records(R"({"tab":6})"), 0);
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(gate.value("frameRate"), "2000 fps") << "rates have a preference of their own";
    EXPECT_EQ(gate.value("originalEndFrameNo"), "4,549");
    EXPECT_EQ(gate.value("totalFrame"), "1,000");
    EXPECT_EQ(gate.value("selectEndMaxFrameNo"), "4549");
    EXPECT_EQ(gate.value("maxTriggerOffset"), "5999");
    EXPECT_EQ(gateOfPlugins.value("totalFrame"), "1000");
}

TEST_F(RecordModelTest, RatesFollowTheSyncSignal) {
    connectAll();
    state.allowed.frameRates = QStringList{"0", "250", "300", "1000", "2000"};
    state.sync.frequency = 1000;
    const auto offered = [this] { return valuesOf(row(records(R"({"tab":1})"), 0).value("frameRates")); };
    EXPECT_EQ(offered().size(), 5) << "without the settings all rates stay";
    host.setPrefBool("wren/settings/deviceSpeedPlaying", true);
    host.setPrefBool("wren/settings/syncInEnable", true);
    EXPECT_EQ(offered(), (QStringList{"250", "1000", "2000"}));
    state.allowed.frameRates = QStringList{"300"};
    EXPECT_EQ(offered(), QStringList{"1000"}) << "the current rate stands in for an empty list";
}

TEST_F(RecordModelTest, FindsTheGroupToShow) {
    EXPECT_EQ(model.getGroup(), "");
    state.groups = {{"A", {}}, {"B", {}}};
    const struct {
        const char* sentence;
        const char* held;
        const char* stored;
        const char* shown;
    } cases[] = {{"the held one", "B", "A", "B"},
                 {"not read yet: the stored one", "*", "B", "B"},
                 {"never stored: the first", "*", "*", "A"},
                 {"all groups", "", "B", ""},
                 {"one that is no more: the first", "C", "B", "A"}};
    for (const auto& each : cases) {
        EXPECT_EQ(groupToShow(each.held, each.stored, state.groups), each.shown) << each.sentence;
    }
    EXPECT_EQ(groupToShow("C", "B", {}), "C") << "without groups nothing is looked up";
}

TEST_F(RecordModelTest, WhatSteersARowIsReadApart) {
    bring({"use"});
    state.groups = {{"Nozzles", {"192.168.0.13"}}};
    const auto rowOf = [this](const char* operation, const char* request) {
        host.faults().plant(1, operation, {"no answer", 0, false});
        return row(records(request), 0);
    };
    QJsonObject gate = rowOf("isConnected", R"({"tab":1})");
    EXPECT_EQ(gate.value("connected"), false);
    EXPECT_EQ(gate.value("cameraName"), "Gate");
    EXPECT_FALSE(gate.contains("lock")) << "no camera is shown as open that did not say so";
    host.faults().clear();

    change(1, {{"selected", true}});
    gate = rowOf("isSelected", R"({"tab":1})");
    EXPECT_EQ(gate.value("selected"), false);
    EXPECT_TRUE(gate.contains("frameRate"));
    host.faults().clear();

    // It may belong to any group, and nobody knows whether its selection is right.
    EXPECT_EQ(rowOf("getAddress", R"({"group":"Nozzles","tab":1})").value("key"), "1");
    EXPECT_TRUE(stateOf(1, "selected").toBool());
    host.faults().clear();

    state.batchDocKey = 2;
    host.faults().plant(2, "getCameraStatus", {"no answer", 0, false});
    const QJsonObject batch = QJsonDocument::fromJson(records(R"({"tab":1})").toUtf8())["batch"][0].toObject();
    EXPECT_EQ(state.batchDocKey, 7U) << "the last selected one";
    host.faults().clear();
    records(R"({"tab":1})");
    EXPECT_EQ(state.batchDocKey, 2U) << "it can be read again";
    EXPECT_TRUE(batch.contains("frameRate"));
}

TEST_F(RecordModelTest, ADeviceWhoseFirstHeadIsOffHasNoAlerts) {
    connectAll();
    change(3, {{"connected", false}, {"alerts", QStringList{"The device is warm"}}});
    EXPECT_EQ(row(records(R"({"tab":1})"), 3).value("alert"), "The lens is missing");
    EXPECT_TRUE(failures.isEmpty());
}

TEST(SyncMembersTest, InputsAreOnThePortsOfTheCamerasClass) {
    // A signal of its own on each port tells which one was taken.
    const QMap<int, int> all{{1, 1}, {2, 8}, {3, 9}, {4, 6}, {5, 7}, {7, 16}, {8, 10}, {10, 11}};
    const struct {
        QList<int> types;
        const char* inputs;
    } cases[] = {{{0, 12, 24, 26, 27, 33, 34, 41, 45, 48, 52}, "EVENT POS|TRIG NEG|NORMALLY OPEN"},
                 {{23, 25, 28, 29, 30, 31, 32}, "EVENT NEG|TRIG POS|-"},
                 {{35}, "EVENT POS|READY POS|-"},
                 {{36, 37, 38, 39, 40, 42, 43, 44, 46, 47, 50, 51}, "EVENT NEG|TRIG POS|NORMALLY OPEN"},
                 {{49}, "EVENT NEG|READY NEG|NORMALLY OPEN"}};
    for (const auto& each : cases) {
        for (const int type : each.types) {
            const syncmembers::InputNames names = syncmembers::inputNames(type, all);
            const QStringList inputs{names.externalSync, names.triggerIn, names.triggerSwIn};
            EXPECT_EQ(inputs.join('|'), each.inputs) << "type " << type;
        }
        const syncmembers::InputNames none = syncmembers::inputNames(each.types.first(), {});
        EXPECT_EQ((QStringList{none.externalSync, none.triggerIn, none.triggerSwIn}), QStringList({"-", "-", "-"}));
    }
}

TEST(SyncMembersTest, PolarityRefinesTheSyncInput) {
    const struct {
        const char* sentence;
        int type;
        QMap<int, int> ports;
        const char* externalSync;
    } cases[] = {{"cameras, positive", 36, {{1, 12}, {5, 14}}, "ON CAM POS"},
                 {"cameras, negative", 23, {{1, 13}, {5, 14}}, "ON CAM NEG"},
                 {"others, positive", 49, {{1, 12}, {5, 15}}, "ON OTHERS POS"},
                 {"others, negative", 51, {{1, 13}, {5, 15}}, "ON OTHERS NEG"},
                 {"no port for the polarity", 36, {{5, 14}}, "ON CAM"},
                 {"something else on that port", 36, {{1, 8}, {5, 15}}, "ON OTHERS"},
                 {"a signal without polarity", 36, {{1, 12}, {5, 6}}, "EVENT POS"},
                 {"a class that does not refine", 35, {{1, 12}, {4, 14}}, "ON CAM"},
                 {"a signal without a name", 36, {{1, 12}, {5, 99}}, ""}};
    for (const auto& each : cases) {
        EXPECT_EQ(syncmembers::inputNames(each.type, each.ports).externalSync, each.externalSync) << each.sentence;
    }
}

}  // namespace

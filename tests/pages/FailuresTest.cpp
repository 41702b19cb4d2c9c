#include "Operation.h"
#include "TablePage.h"

// What the table shows of a camera that does not answer, and of all others meanwhile.

namespace {

/// What differs from the shapes that were kept: of other rows, and of the row `7` beside its alert and what is empty.
const char* Differences = R"js((() => {
    const now = probe.shapes();
    const isEmpty = field => {
        const row = probe.drawn().find(one => one.querySelector('[dockey="7"]') !== null);
        const column = probe.grid().columns.findIndex(one => one.field === field);
        return row !== undefined && row.querySelector(`td[col="${column}"] > div`).children.length === 0;
    };
    const stands = ['row', 'alert'].concat(%1);
    const plain = shape => shape.replace(/ differs="\d+"/, ''); // of the batch row, which follows what the rows show
    const differs = place => plain(now[place]) !== plain(probe.before[place]);
    return Object.keys(probe.before).filter(differs).filter(place => {
        const [key, field] = place.split('/');
        return key !== '7' || !(stands.includes(field) || isEmpty(field));
    });
})())js";

const char* Changed =
    "(() => { const now = probe.shapes();"
    "return Object.keys(now).filter(place => now[place] !== probe.before[place]); })()";

/// The cells that show something else than before because the camera did not tell an `operation`.
QString standing(const QString& operation) {
    if (operation == "isConnected") {
        return "['connectIcon', 'connectionStatus', 'cameraName']";
    }
    // The pencil beside the name is there, and the switch open, when the camera has told what rules its controls.
    const QStringList ruling{"getCameraName", "isParamLocked", "isMobileSelected", "isRecordCheck"};
    return ruling.contains(operation) ? "['cameraName', 'connectionStatus']" : "[]";
}

class PageFailures : public testing::Test {
protected:
    PageFailures() {
        connectCameras(test, 1, 8);
        for (DOCKEY key = 1; key <= 8; ++key) {
            test.camera(key).change({{"lowLight", false},
                                     {"recorded", true},
                                     {"recordedRange", QVariantList{0, 99}},
                                     {"recordedTrigger", 50},
                                     {"selectedRange", QVariantList{10, 90}}});
        }
    }
    ~PageFailures() override { test.desk.shown.clear(); }

    void open(int tab) {
        page = std::make_unique<TablePage>(test, tab);
        test.desk.shown.clear();
    }
    void plant(DOCKEY key, const QString& operation) { test.host.faults().plant(key, operation, Fault{"no answer"}); }
    void takeAway(DOCKEY key, const QString& operation) { test.host.faults().plant(key, operation, {}); }
    QStringList told() {
        page->settle();
        return test.desk.take();
    }

    TestHost test{readRig(QStringLiteral("eight-mixed"))};
    std::unique_ptr<TablePage> page;
};

TEST_F(PageFailures, AGetterThatFailsEmptiesItsCellsAndNoOtherRow) {
    open(0);
    int shown = 0;
    for (int tab = 0; tab < 7; ++tab) {
        page->show(tab);
        page->run("probe.before = probe.shapes(); return 0");
        for (const QString& operation : CameraOperation::names()) {
            SCOPED_TRACE("tab " + std::to_string(tab) + ", " + operation.toStdString());
            plant(7, operation);
            const QStringList writes = page->tick();
            page->tick();
            const QStringList texts = told();
            if (texts.isEmpty()) {
                EXPECT_EQ(writes, QStringList()) << "nobody has asked for it";
                takeAway(7, operation);
                continue;
            }
            EXPECT_EQ(texts.size(), 1);
            EXPECT_TRUE(texts.first().endsWith("Impact: no answer"));
            // That is asked for the line of all cameras alone.
            const bool isOfAll = operation == "getRecordState" || (tab >= 5 && operation == "isParamLocked");
            const int alerts = isOfAll ? 0 : 1;
            EXPECT_EQ(page->number("$('[id$=_alert_7][alerts=\"Impact: no answer\"]').length"), alerts);
            ++shown;
            EXPECT_EQ(page->list(QString(Differences).arg(standing(operation))), QStringList());
            takeAway(7, operation);
            page->tick();
            EXPECT_EQ(page->list(Changed), QStringList()) << "as it was";
            EXPECT_EQ(told(), QStringList());
        }
    }
    EXPECT_GT(shown, 80);
}

TEST_F(PageFailures, ARowBuiltAnewAtATickKeepsItsPlace) {
    test.host.prefs().setValue("wren/table/filter", 1);
    open(0);
    choose(test, {"6"});
    test.camera(3).change({{"connected", false}});
    plant(5, "getComment");
    page->tick();
    page->click("[dockey=\"5\"].wren_label_edit_camera_name");
    EXPECT_EQ(camerasWith(test, &CameraState::selected), QStringList("5"));
    EXPECT_EQ(told(), QStringList{"Roof: no answer"});
}

TEST_F(PageFailures, ARefreshThatGotNoListIsMadeUpFor) {
    open(0);
    page->show(5);
    plant(FaultPlan::Host, "getDocKeys");
    page->run("$('#tabs').tabs('option', 'active', 0); return 0");
    page->settle();
    told();
    takeAway(FaultPlan::Host, "getDocKeys");
    test.camera(2).change({{"connected", false}});
    page->tick();
    EXPECT_EQ(page->number("$('#wren_cameraInfo_alert_2').length"), 0) << "a tick alone would leave it standing";
    EXPECT_EQ(page->number("probe.drawn().length"), 8);
}

TEST_F(PageFailures, WhatTheUserAsksForIsToldAlthoughTheTicksHaveToldIt) {
    open(0);
    plant(FaultPlan::Host, "getRecordingState");
    page->tick();
    page->tick();
    EXPECT_EQ(told().size(), 1);
    page->run("wrentabledialog.record(); return 0");
    page->run("wrentabledialog.record(); return 0");
    EXPECT_EQ(told().size(), 2);
}

TEST_F(PageFailures, AnExceptionInWhatTheBackEndRaisesEndsInTheLog) {
    open(0);
    QStringList lines;
    page->expectErrors(&lines);
    for (const char* name : {"open", "update", "autoUpdate"}) {
        for (const char* thrown : {"null", "undefined", "new Error('broken')", "'text'"}) {
            page->run(QString("probe.kept = wrentabledialog_obj.%1; wrentabledialog_obj.%1 = () => { throw %2; };"
                              "try { wrentabledialog.%1(); } finally { wrentabledialog_obj.%1 = probe.kept; } return 0")
                          .arg(name, thrown));
        }
    }
    EXPECT_EQ(lines.size(), 12) << lines.join('\n').toStdString();
    EXPECT_EQ(page->number("probe.drawn().length"), 8);
}

}  // namespace

#include "TablePage.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

/// The controls, those together that go together, and the parts that may be hidden.
const char* Describe = R"js(
    const controls = {
        address: '#livecontrol_ip1, #livecontrol_ip2, #livecontrol_ip3, #livecontrol_search, #livecontrol_discovery',
        list: '#livecontrol_deleteall, #livecontrol_update',
        sync: '#connect_signal_generator, #connect_signal_distributor, #externalSyncSelector',
        execute: '#sync_execute',
        devices: '#livecontrol_save_button, #livecontrol_load_button',
        load: '.edit-buttons .loadCamera', read: '.edit-buttons .read', apply: '.edit-buttons .apply',
        snapshot: '#btn-snapshot button',
        live: '#timeline_stopLiveCheckbox, label[for="timeline_stopLiveCheckbox"], #timeline_updateLiveButton',
        partition: '#recording_partition, #recording_partition_span_button',
        record: '#timeline_rec_exec', cancel: '#timeline_rec_cancel', test: '#timeline_trigger_test',
        save: '#btn-save button',
        links: '#wren_io_setting, #wren_ethernet_setting',
        on: '#wrenBatchLowlightBlock_ON', off: '#wrenBatchLowlightBlock_OFF',
        defaults: '#wrentabledialog_defaultsettings', display: '#wrentabledialog_displaySettings',
        filter: '#recordFilter', group: '.groupButton'
    };
    const parts = ['.exec-recording', '.option-recording', '.partition', '#trigger_test', '.exec-saving',
        '#wren_related_settings', '#wrenBatchLowlightBlock', '#wrenGroupBlock'];
    const words = Object.keys(controls).map(name => {
        const elements = $(controls[name]).get();
        const disabled = elements.filter(element => element.hasAttribute('disabled')).length;
        return disabled === 0 ? '' : name + (disabled === elements.length ? '' : ' in part');
    });
    const colours = $('#wren-root-block, #accordion_div').get().map(element =>
        (element.className.match(/wren-table-color-\w+/g) || ['none']).join('+'));
    return [words.filter(word => word).sort().join(' '),
        parts.filter(part => getComputedStyle($(part)[0]).display === 'none').sort().join(' '),
        String($('#tabs').tabs('option', 'disabled')),
        colours.join(' ')];
)js";

/// What a state adds to the page of the live mode.
struct State {
    const char* name;
    const char* disabled;
    const char* hidden = "";
    const char* tabs = "false";
    const char* colour = "none";
    /// Whether the recorder is still in no state of its own, so that there is nothing to cancel.
    bool idle = true;
};

const char* Armed =
    "address list sync execute devices apply snapshot live partition test links on off defaults display";
const char* Ready = "wren-table-color-green";
const char* Works = "snapshot live partition record cancel test save";

const State States[] = {
    {"IsReady", Armed, "", "true", Ready, false},
    {"IsRecording", Armed, "", "true", "wren-table-color-orange", false},
    {"IsRecordingError", "record cancel test", "", "false", "none", false},
    {"IsBgSaving",
     "address list sync execute devices load read apply snapshot live partition save links on off defaults display "
     "filter",
     "", "true"},
    {"IsNoneDocument", "list execute"},
    {"IsNoneWindow", "load apply record cancel test snapshot live partition save execute", ".partition"},
    {"ExistLowlight", "partition record cancel test save defaults execute links", "", "5,6"},
    {"IsAllLowlightON", "on"},
    {"IsAllLowlightOFF", "off"},
    {"IsLensCalibration", "snapshot live partition record cancel test save links sync execute on off", "", "5,6"},
    {"IsConflictPartition", "snapshot live partition record test"},
    {"IsDirectSaving", "partition", "", "5,6"},
    {"IsAutoExposureSetting", "on off", "", "5,6"},
    {"IsHwTriggerSetting", "on off", "", "5,6"},
    {"IsVariableSetting", "on off", "", "5,6"},
    {"IsTracking", "on off", "", "5,6"},
    {"IsSendingNodeCommand", Works},
    {"IsAdjustingImage", Works},
    {"IsDetectingPixelDefect", Works},
    {"IsImageTriggerDetecting", "partition"},
    {"IsImageTriggerCapturing", "partition"},
    {"IsOtherPluginOpen", "devices address list filter defaults group apply on off"},
    {"IsAllWrenLockDevice", "on off"},
};

/// The words of a text and some more, each once.
QString together(const char* words, const QStringList& more) {
    QStringList all = QString(words).split(' ', Qt::SkipEmptyParts) + more;
    all.removeDuplicates();
    all.sort();
    return all.join(' ');
}

QStringList expected(const State& state) {
    QStringList always = {"off"};
    if (state.idle) {
        always.append("cancel");
    }
    return {together(state.disabled, always), together(state.hidden, {".exec-saving"}), state.tabs,
            QString("%1 %1").arg(state.colour)};
}

const State Live = {"", ""};

int progressDialogs() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return int(std::count_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->inherits("QProgressDialog");
    }));
}

/// A page on which all can be used but "Cancel" and "OFF": nothing records, and no camera is in low light mode.
class PageControls : public testing::Test {
protected:
    PageControls() : test(Rig::standard(2)) {
        connectCameras(test, 1, 2);
        test.camera(1).change({{"selected", true}, {"stopLive", true}});
        page = std::make_unique<TablePage>(test);
        page->run("$('<input type=\"button\" class=\"groupButton\">').appendTo('#wrenGroupBox')");
    }

    QStringList with(const char* name, bool on) {
        test.host.flags().set(name, on);
        return described();
    }
    QStringList described() {
        page->run("wrentabledialog_obj.autoUpdate()");
        return page->list(Describe);
    }

    TestHost test;
    std::unique_ptr<TablePage> page;
};

TEST_F(PageControls, FollowEachState) {
    EXPECT_EQ(described(), expected(Live));
    for (const State& state : States) {
        EXPECT_EQ(with(state.name, true), expected(state)) << state.name;
        EXPECT_EQ(progressDialogs(), QString(state.name) == "IsReady" ? 1 : 0) << state.name;
        EXPECT_EQ(with(state.name, false), expected(Live)) << state.name << " is over";
    }
    EXPECT_EQ(progressDialogs(), 0);

    const State waiting = {"", Armed, "", "true", Ready, false};
    QStringList look = expected(waiting);
    look[0] = together(Armed, {"off", "record"});
    EXPECT_EQ(with("IsCTSReady", true), look);
    with("IsCTSReady", false);

    test.host.prefs().setValue("recording/useTriggerTest", false);
    EXPECT_EQ(described(), expected({"", "", "#trigger_test"}));
}

TEST_F(PageControls, HearOfEverySwitchOfTheHost) {
    QWidget window;
    test.host.setMainWindow(&window);
    const auto isOn = [this](const QString& name) {
        return page->run(QString("JSON.parse(wrentabledialog.getControlStatus())." + name));
    };
    int heard = 0;
    for (const QString& name : test.host.flags().names()) {
        test.host.flags().set(name, true);
        const QJsonValue state = isOn(name);
        test.host.flags().set(name, false);
        if (!state.isNull() && !state.isUndefined()) {
            ++heard;
            EXPECT_TRUE(state.toBool()) << name.toStdString();
        }
    }
    EXPECT_GE(heard, 36);
}

TEST_F(PageControls, FollowTheMode) {
    const char* moved = "address list sync execute devices defaults";
    const char* live = ".exec-recording .option-recording #wren_related_settings #wrenBatchLowlightBlock";
    test.host.appStatus().enterMode(zeb::MemoryMode);
    page->settle();
    EXPECT_EQ(described(), QStringList({together(moved, {"cancel", "off"}), together(live, {}), "false",
                                        "wren-table-color-skyblue wren-table-color-skyblue"}));
    EXPECT_EQ(with("ExistLowlight", true)[2], "5,6") << "also while one of them is in front";
    EXPECT_EQ(page->number("$('#tabs').tabs('option', 'active')"), 5);
    with("ExistLowlight", false);
    test.host.appStatus().enterMode(zeb::FileMode);
    page->settle();
    EXPECT_EQ(described(),
              QStringList({together(moved, {"cancel", "off", "load", "read", "apply", "filter", "display"}),
                           together(live, {".exec-saving", "#wrenGroupBlock"}), "true", "none none"}));
    EXPECT_EQ(with("IsTracking", true)[2], "true") << "tabs that are all off stay so";
    with("IsTracking", false);
    test.host.appStatus().enterMode(zeb::LiveMode);
    page->settle();
    EXPECT_EQ(described(), expected(Live));
}

TEST_F(PageControls, OverrideEachOther) {
    with("IsReady", true);
    EXPECT_EQ(with("IsTracking", true)[2], "true") << "the memory tabs alone would leave the others on";
    EXPECT_EQ(with("IsReady", false)[2], "5,6");
    with("IsTracking", false);

    with("ExistLowlight", true);
    EXPECT_TRUE(with("IsNoneWindow", true)[0].contains("snapshot")) << "there is no view to take one of";
    EXPECT_FALSE(with("IsNoneWindow", false)[0].contains("snapshot"));
    with("ExistLowlight", false);

    test.camera(2).change({{"lowLight", true}});
    EXPECT_EQ(described()[0], together("partition record cancel test save defaults execute links", {}))
        << "either button of the low light has something to do";
    test.camera(1).change({{"lowLight", true}});
    EXPECT_EQ(described()[0], together("partition record cancel test save defaults execute links on", {}));
}

}  // namespace

#include "TablePage.h"
#include "VisibleWindows.h"

#include <QRegularExpression>

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
    // What is greyed and does not say why, or says why and is not greyed.
    const odd = $('button, input, select, a, #tabs > ul > li').get().filter(element => {
        const heard = holder => holder.title && getComputedStyle(holder).pointerEvents !== 'none';
        const greyed = isGreyed(element);
        return greyed ? !titleHolders(element).some(heard) && !element.closest('[why]') : element.title || element.closest('td [why]');
    });
    return [words.filter(word => word).sort().join(' ') + odd.map(element => ' mute or stale: ' + element.id).join(),
        parts.filter(part => getComputedStyle($(part)[0]).display === 'none').sort().join(' '),
        String($('#tabs').tabs('option', 'disabled')),
        colours.join(' ')];
)js";

/// What a state disables, hides and does.
struct State {
    const char* name;
    QString disabled;
    const char* hidden = "";
    const char* tabs = "false";
    const char* colour = "none";
    /// Whether the recorder is still in no state of its own, so that there is nothing to cancel.
    bool idle = true;
};

const State Live = {"", "", ".exec-saving"};
const State Memory = {"", "address list sync execute devices defaults",
                      ".exec-recording .option-recording #wren_related_settings #wrenBatchLowlightBlock", "false",
                      "wren-table-color-skyblue"};
// There is no window of a camera in file mode.
const State File = {"",
                    "address list sync execute devices load read apply filter defaults display "
                    "record cancel test snapshot live partition save",
                    ".exec-recording .option-recording #wren_related_settings #wrenBatchLowlightBlock .exec-saving "
                    "#wrenGroupBlock .partition",
                    "true"};

const QString Armed =
    "address list sync execute devices apply snapshot live partition test links on off defaults display";
const char* Ready = "wren-table-color-green";
const char* Works = "snapshot live partition record cancel test save";

const State States[] = {
    {"IsCTSReady", Armed + " record", "", "true", Ready, false},
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

const State& named(const QString& name) {
    return *std::find_if(std::begin(States), std::end(States), [&](const State& state) { return name == state.name; });
}

/// The words of all texts, each once.
QString together(const QStringList& texts) {
    QStringList all = texts.join(' ').split(' ', Qt::SkipEmptyParts);
    all.removeDuplicates();
    all.sort();
    return all.join(' ');
}

/// What states that are on together make of the page. None is in low light, so "OFF" is always disabled.
QStringList expected(const QList<State>& states) {
    QStringList disabled = {"off"};
    QStringList hidden;
    QStringList tabs;
    QString colour = "none";
    bool idle = true;
    for (const State& state : states) {
        disabled << state.disabled;
        hidden << state.hidden;
        tabs << state.tabs;
        colour = state.colour == QString("none") ? colour : state.colour;
        idle = idle && state.idle;
    }
    if (idle) {
        disabled << "cancel";
    }
    const char* off = tabs.contains("true") ? "true" : tabs.contains("5,6") ? "5,6" : "false";
    return {together(disabled), together(hidden), off, QString("%1 %1").arg(colour)};
}

/// A page on which all can be used but "Cancel" and "OFF": nothing records, and no camera is in low light mode.
class PageControls : public testing::Test {
protected:
    PageControls() : test(connected(2)) {
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
    EXPECT_EQ(described(), expected({Live}));
    for (const State& state : States) {
        EXPECT_EQ(with(state.name, true), expected({Live, state})) << state.name;
        EXPECT_EQ(visibleWindows().count("GUI_ProgressDialog"), QString(state.name) == "IsReady" ? 1 : 0) << state.name;
        EXPECT_EQ(with(state.name, false), expected({Live})) << state.name << " is over";
    }
    EXPECT_EQ(visibleWindows().count("GUI_ProgressDialog"), 0);

    test.host.prefs().setValue("recording/useTriggerTest", false);
    EXPECT_EQ(described(), expected({Live, {"", "", "#trigger_test"}}));
}

TEST_F(PageControls, FollowStatesThatMeet) {
    struct Meeting {
        zeb::OperatingMode mode;
        QStringList states;
        /// That a function of one state enables again.
        QString free = {};
    };
    for (const Meeting& meeting : QList<Meeting>{
             {zeb::LiveMode, {"IsReady", "IsRecording"}},
             {zeb::LiveMode, {"IsReady", "IsTracking"}},
             {zeb::LiveMode, {"IsReady", "ExistLowlight"}, "snapshot"},
             {zeb::LiveMode, {"ExistLowlight", "IsNoneWindow"}},
             {zeb::LiveMode, {"ExistLowlight", "IsLensCalibration"}},
             {zeb::LiveMode, {"ExistLowlight", "IsAdjustingImage"}},
             {zeb::LiveMode, {"ExistLowlight", "IsConflictPartition"}},
             {zeb::LiveMode, {"IsRecording", "IsDirectSaving"}},
             {zeb::LiveMode, {"IsRecording", "IsOtherPluginOpen"}},
             {zeb::LiveMode, {"IsRecording", "IsConflictPartition"}},
             {zeb::LiveMode, {"IsRecordingError", "ExistLowlight"}},
             {zeb::LiveMode, {"IsBgSaving", "IsTracking"}},
             {zeb::LiveMode, {"IsBgSaving", "IsDirectSaving"}},
             {zeb::LiveMode, {"IsNoneDocument", "IsNoneWindow"}},
             {zeb::LiveMode, {"IsLensCalibration", "IsTracking"}},
             {zeb::LiveMode, {"IsLensCalibration", "IsSendingNodeCommand"}},
             {zeb::LiveMode, {"IsConflictPartition", "IsImageTriggerDetecting"}},
             {zeb::LiveMode, {"IsAllWrenLockDevice", "IsHwTriggerSetting", "IsVariableSetting"}},
             {zeb::MemoryMode, {}},
             {zeb::MemoryMode, {"IsBgSaving"}},
             {zeb::MemoryMode, {"ExistLowlight"}, "snapshot"},
             {zeb::MemoryMode, {"IsNoneWindow"}},
             {zeb::MemoryMode, {"IsOtherPluginOpen", "IsAdjustingImage"}},
             {zeb::FileMode, {}},
             {zeb::FileMode, {"IsOtherPluginOpen"}},
             {zeb::FileMode, {"IsBgSaving"}},
             {zeb::FileMode, {"IsTracking"}},
             {zeb::LiveMode, {}},
         }) {
        const QString what = QString::number(meeting.mode) + ' ' + meeting.states.join(" and ");
        const State& mode = meeting.mode == zeb::LiveMode ? Live : meeting.mode == zeb::MemoryMode ? Memory : File;
        page->enter(meeting.mode);
        QList<State> states = {mode};
        for (const QString& name : meeting.states) {
            states << named(name);
            test.host.flags().set(name, true);
        }
        QStringList look = expected(states);
        look[0] = look[0].split(' ').filter(QRegularExpression("^(?!" + meeting.free + "$)")).join(' ');
        EXPECT_EQ(described(), look) << what.toStdString();
        for (const QString& name : meeting.states) {
            test.host.flags().set(name, false);
        }
        EXPECT_EQ(described(), expected({mode})) << what.toStdString() << " is over";
    }
}

TEST_F(PageControls, SayWhyWhateverMeets) {
    for (const State* one = std::begin(States); one != std::end(States); ++one) {
        for (const State* other = one + 1; other != std::end(States); ++other) {
            test.host.flags().set(one->name, true);
            EXPECT_FALSE(with(other->name, true)[0].contains("mute")) << one->name << " and " << other->name;
            test.host.flags().set(one->name, false);
            EXPECT_FALSE(with(other->name, false)[0].contains("mute")) << one->name << " and " << other->name;
        }
    }
    test.host.flags().set("IsConflictPartition", true);
    with("ExistLowlight", true);
    EXPECT_EQ(page->text("document.getElementById('timeline_rec_exec').title"),
              "A camera is in low light mode. The partitions of the cameras differ.");
}

TEST_F(PageControls, ShowTheRecordStatusOnTheirFaces) {
    const char* faces = R"js(
        $('#timeline_rec_exec, #timeline_rec_cancel').get().map(button => `${button.className}: ${button.innerHTML}`)
            .concat(String($('#timeline_rec_exec').data('status')))
    )js";
    const QStringList idle = {"rec-exec huge strong: <span></span>Record", "rec-cancel huge: Cancel"};
    const QString stop = "rec-cancel huge stat-pause: <span></span>";
    EXPECT_EQ(page->list(faces), idle + QStringList("0"));
    for (const auto& [state, shown] : QList<QPair<const char*, QStringList>>{
             {"IsCTSReady", {"rec-exec stat-ctsready huge strong: Waiting for CTS", stop + "Cancel", "1"}},
             {"IsReady", {"rec-exec huge strong stat-recording-green: Ready", stop + "Cancel", "2"}},
             {"IsRecording", {"rec-exec huge strong stat-recording-orange: Recording...", stop + "Stop", "3"}},
             {"IsRecordingError", idle + QStringList("4")}}) {
        with(state, true);
        EXPECT_EQ(page->list(faces), shown) << state;
        EXPECT_EQ(page->run("wrentabledialog_obj.isCtsReady").toBool(), shown.last() == "1");
        with(state, false);
    }
}

/// Whatever a page's library or a user does to the controls, the next cycle sets right.
TEST_F(PageControls, AreRightAgainAfterTheNextCycle) {
    const char* upset = R"js(
        $('button:not(#wren_attention), #recordFilter, .groupButton, #timeline_trigger_test, #wren_io_setting').get().forEach(element => {
            if (element.hasAttribute('disabled')) {
                element.removeAttribute('disabled');
            } else {
                element.setAttribute('disabled', 'disabled');
            }
        });
        $('.exec-recording, .option-recording, .exec-saving, #wren_related_settings').toggleClass('zeb-hidden');
        $('#wren-root-block, #accordion_div').addClass('wren-table-color-red');
        $('#tabs').tabs('option', 'disabled', [1]);
        $('#timeline_rec_exec, #timeline_rec_cancel').addClass('ui-state-hover').text('?');
        $('#timeline_trigger_test, #timeline_stopLiveCheckbox').prop('checked', (index, on) => !on);
        $('#caption_on_off, #recording_partition').text('?');
    )js";
    const char* values = R"js(
        return [$('.exec-recording button').get().map(button =>
                [button.className, button.disabled, button.title, button.innerHTML].join()).join(),
            $('#timeline_trigger_test, #timeline_stopLiveCheckbox').get().map(box => box.checked).join(),
            $('#caption_on_off').text(), $('#recording_partition').text()];
    )js";
    for (const char* state : {"IsTracking", "IsRecordingError", "IsReady"}) {
        const QStringList look = with(state, true);
        const QStringList shown = page->list(values);
        page->run(QString(upset) + "; return 0");
        EXPECT_NE(page->list(Describe), look);
        EXPECT_NE(page->list(values), shown);
        EXPECT_EQ(described(), look) << state;
        EXPECT_EQ(page->list(values), shown) << state;
        with(state, false);
    }
}

TEST_F(PageControls, OfLowLightFollowTheCameras) {
    test.camera(2).change({{"lowLight", true}});
    EXPECT_EQ(described()[0], together({"partition record cancel test save defaults execute links"}))
        << "either button of the low light has something to do";
    test.camera(1).change({{"lowLight", true}});
    EXPECT_EQ(described()[0], together({"partition record cancel test save defaults execute links on"}));
}

}  // namespace

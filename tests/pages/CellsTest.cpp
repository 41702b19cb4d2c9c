#include "TablePage.h"

// What stands in the cells of the plug-in and memory tabs.

namespace {

/// A line for each row: its key and the spinners as "least <= value <= most", "(off)" where one takes no input.
const char* Spinners = R"js(
    probe.drawn().concat(probe.batch()).map(row => {
        const key = probe.keyOf(row);
        const spinner = word => {
            const input = document.getElementById('wren_spinner_' + word + key);
            return !input ? '-' : `${input.getAttribute('min')} <= ${input.value} <= ${input.getAttribute('max')}` +
                (input.disabled ? ' (off)' : '');
        };
        return [key + ':', spinner('select_start_frameno'), spinner('select_end_frameno'),
            spinner('trigger_offset')].join(' | ');
    })
)js";

/// A line for each row: the record check of the tab in front.
const char* Checks = R"js(
    probe.drawn().concat(probe.batch()).map(row => {
        const box = row.querySelector(`input.wren_checkbox_recordCheck`);
        return probe.keyOf(row) + ': ' + (!box ? '-' : box.id + (box.checked ? ' on' : ' no') +
            (box.parentNode.classList.contains('wren-recordCheck-status') ? ' green' : ''));
    })
)js";

/// A line for each row: its icons.
const char* Icons = R"js(
    probe.drawn().concat(probe.batch()).map(row => probe.keyOf(row) + ': ' +
        Array.from(row.querySelectorAll('#effects > .wren_effect_icons > .item')).map(item => {
            const box = item.querySelector('input[type="checkbox"]:first-child');
            const label = item.querySelector('label:last-child.localize');
            const same = box.id === label.htmlFor && box.id === `${box.getAttribute('plgName')}_${probe.keyOf(row)}` &&
                [box, label].every(one => one.getAttribute('dockey') === probe.keyOf(row));
            return [label.getAttribute('key'), box.getAttribute('plgName'), box.getAttribute('plgPat'),
                box.checked ? 'works' : '', box.disabled ? 'off' : '', same ? '' : 'in disorder']
                .filter(word => word).join(' ');
        }).join(', '))
)js";

QVariantMap recorded(int first, int last, int trigger) {
    return {{"recorded", true},
            {"recordedRange", QVariantList{first, last}},
            {"recordedTrigger", trigger},
            {"recordedRate", 2000}};
}

TEST(PageCells, ShowTheRecordedFrames) {
    TestHost test(standardRig(4));
    connectCameras(test, 2, 4);
    test.camera(1).change(recorded(0, 49, 0));  // and is not connected
    test.camera(3).change(recorded(0, 49, 0));
    test.camera(3).change({{"triggerOffsetEnabled", true}, {"triggerOffset", 30}});
    test.camera(4).change(recorded(100, 1099, 600));
    test.camera(4).change({{"selectedRange", QVariantList{200, 900}}});
    test.host.appStatus().enterMode(zeb::MemoryMode);
    TablePage page(test, 5);
    const QString last = "-500 <= -400 <= 300 | -400 <= 300 <= 499 | 100 <= 0 <= 1099";
    EXPECT_EQ(page.list(Spinners),
              QStringList({"1: | - | - | -", "2: | - | - | -",
                           "3: | -30 <= -30 <= 19 | -30 <= 19 <= 19 | 0 <= 30 <= 49", "4: | " + last, "-1: | " + last}))
        << "the batch row stands for the last camera";
    EXPECT_EQ(page.list("$('#wren-memoryInfo-list tr[recid=4] .wren_text').get().map(text => text.textContent)"),
              QStringList({"2000 fps", "-500", "499", "701"}));

    test.camera(4).change({{"selectedRange", QVariantList{300, 800}}, {"recordCheck", true}});
    EXPECT_EQ(page.tick(), QStringList({"-1/selectEndFrameNo", "-1/selectStartFrameNo", "4/recordCheck",
                                        "4/selectEndFrameNo", "4/selectStartFrameNo"}));
    EXPECT_EQ(page.list(Spinners).at(3), "4: | -500 <= -400 <= 200 | -300 <= 300 <= 499 | 100 <= 0 <= 1099")
        << "a tick moves the limits, and leaves what may be being typed";
    EXPECT_EQ(page.list(Checks), QStringList({"1: -", "2: -", "3: wren_memoryInfo_recordCheck_3 no",
                                              "4: wren_memoryInfo_recordCheck_4 on green", "-1: -"}));
    page.update();
    EXPECT_EQ(page.list(Spinners).at(3), "4: | -500 <= -300 <= 200 | -300 <= 200 <= 499 | 100 <= 0 <= 1099");

    test.camera(3).change({{"recorded", false}});
    page.update();
    EXPECT_EQ(page.list(Spinners).at(2), "3: | - | - | -");
    EXPECT_EQ(page.list(Checks).at(2), "3: -");
    page.show(6);
    EXPECT_EQ(page.list(Checks),
              QStringList({"1: -", "2: -", "3: -", "4: wren_memoryPlugin_recordCheck_4 on green", "-1: -"}));
}

TEST(PageCells, ShowTheImagePlugins) {
    TestHost test(standardRig(4));
    connectCameras(test, 1, 3);
    test.camera(1).change({{"plugins", QStringList{"lut", "mosaic"}}, {"effectivePlugins", QStringList{"mosaic"}}});
    test.camera(2).change({{"plugins", QStringList{"pseudo"}}, {"blockedPlugins", QStringList{"pseudo"}}});
    test.camera(3).change({{"plugins", QStringList{}}});
    TablePage page(test, 4);
    const QStringList planted = {"1: p_lut tool-adj-lut, p_mosaic tool-edt-mosaic OK works",
                                 "2: p_pseudo tool-msr-pseudo off", "3: ", "4: ", "-1: "};
    EXPECT_EQ(page.list(Icons), planted);
    EXPECT_EQ(page.list("$('.wren_effect_icons:first label').get().map(label => label.textContent + label.title)"),
              QStringList({"Tone curveTone curve", "MosaicMosaic"}));

    page.run("probe.label = document.querySelector('#wren_plugin_effect_icons_1 label'); return 0");
    test.camera(1).change({{"effectivePlugins", QStringList{"lut"}}});
    EXPECT_EQ(page.tick(), QStringList()) << "what a box shows is no part of the document";
    EXPECT_EQ(page.list(Icons).first(), "1: p_lut tool-adj-lut works, p_mosaic tool-edt-mosaic OK");
    EXPECT_TRUE(page.run("document.contains(probe.label)").toBool()) << "the icons are the same";

    test.camera(1).change({{"plugins", QStringList{"lut", "filter"}}});
    EXPECT_EQ(page.tick(), QStringList("1/plugin"));
    EXPECT_EQ(page.list(Icons).first(), "1: p_lut tool-adj-lut works, p_filter tool-adj-filter OK");
    test.host.flags().set("IsOtherPluginOpen", true);
    page.tick();
    EXPECT_EQ(page.list("$('.wren_effect_icons label').get().map(label => label.getAttribute('cursorDisable'))"),
              QStringList({"true", "true", "true"}));
}

TEST(PageCells, TakeAnyNameForAPlugin) {
    TestHost test(connected(1));
    TablePage page(test, 4);
    page.run(R"js(
        views[4].newest.get('1').plugins =
            ['icons', 'constructor', 'label icons'].map(name => ({ name, effective: true, enable: true }));
        views[4].tick();
        return 0;
    )js");
    EXPECT_EQ(page.list("$('#wren_plugin_effect_icons_1 > .item > input').get().map(box => box.id + box.checked)"),
              QStringList({"icons_1true", "constructor_1true", "label icons_1true"}));
}

}  // namespace

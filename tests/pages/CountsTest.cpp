#include "TablePage.h"

// What must not grow with the number of cameras or of refreshes.

namespace {

constexpr double Growth = 1.1;

QMap<QString, int> countsOf(const QStringList& names) {
    QMap<QString, int> counts;
    for (const QString& name : names) {
        ++counts[name];
    }
    return counts;
}

struct Size {
    int elements;
    QStringList calls;
};

Size sizeWith(int cameras, int tab) {
    TestHost test(connected(cameras));
    TablePage page(test, tab);
    // What is recorded in live mode would have to be erased first.
    for (Camera* camera : test.host.cameras().all()) {
        camera->change({{"recorded", test.host.isMemoryMode()}, {"recordedRange", QVariantList{0, 99}}});
    }
    page.update();
    EXPECT_EQ(page.number("$('input.spinner').length > 60 ? 1 : 0"), tab == 5 ? 1 : 0);
    EXPECT_EQ(page.number("probe.grid().records.length"), cameras);
    return {page.number("probe.elements()"),
            page.list("probe.calls(() => wrentabledialog_obj.autoUpdate()).map(call => call[0])")};
}

TEST(PageCounts, DoNotGrowWithTheNumberOfCameras) {
    for (const int tab : {0, 1, 4, 5, 6}) {
        const Size few = sizeWith(64, tab);
        const Size many = sizeWith(1024, tab);
        EXPECT_GT(few.elements, 300) << "tab " << tab << ": the rows are there";
        EXPECT_LE(many.elements, Growth * few.elements) << "tab " << tab;
        EXPECT_LE(many.calls.size(), Growth * few.calls.size()) << "tab " << tab;
        for (const char* once : {"getRecords", "getControlStatus", "getRecStatus"}) {
            EXPECT_EQ(countsOf(many.calls).value(once), tab < 5 || once != QString("getRecStatus") ? 1 : 0)
                << once << " of tab " << tab;
        }
    }
}

/// `refresh` touches a control each time, for its widget brings handlers of its own; it answers how many stand then.
void checkHandlers(TablePage& page, const QString& refresh) {
    page.run("probe.watchHandlers()");
    EXPECT_EQ(page.number(refresh), 1) << "the widget is there";
    const int once = page.number("probe.handlers()");
    const int elements = page.number("probe.elements()");
    for (int i = 0; i < 49; ++i) {
        page.run(refresh);
    }
    EXPECT_LE(page.number("probe.handlers()"), Growth * once);
    EXPECT_EQ(page.number("probe.elements()"), elements) << "nor do elements stay behind";
    page.run("$(window).on('resize', () => 0); window.addEventListener('resize', () => 0)");
    EXPECT_EQ(page.number("probe.handlers()"), once + 2) << "either kind would have been counted";
}

TEST(PageCounts, HandlersDoNotGrowWithRefreshes) {
    TestHost test(connected(8));
    TablePage page(test, 1);
    checkHandlers(page,
                  "$('.SumoSelect[dockey=\"2\"]')[0].click(); var open = $('.wren-dropdown').length;"
                  "wrentabledialog_obj.update(); return open");
    test.camera(2).change({{"recorded", true}, {"recordedRange", QVariantList{0, 99}}});
    page.show(5);
    checkHandlers(page,
                  "document.getElementById('wren_spinner_trigger_offset2').focus(); wrentabledialog_obj.update();"
                  "const open = $('.ui-spinner').length; document.activeElement.blur(); return open");
}

TEST(PageCounts, ATickWithNothingChangedWritesNothing) {
    TestHost test(readRig("eight-mixed"));
    connectCameras(test, 1, 7);
    // What is recorded would have to be erased first.
    for (Camera* camera : test.host.cameras().all()) {
        camera->set(&CameraState::recorded, false);
    }
    test.camera(1).change({{"selected", true}, {"locked", true}});
    test.camera(2).change({{"lowLight", true}, {"reduce", true}});
    TablePage page(test);
    const auto quiet = [&](const std::string& where) {
        page.update();
        page.tick();
        EXPECT_EQ(page.tick(), QStringList()) << where;
    };
    for (const int tab : {0, 1, 2, 3, 4}) {
        page.show(tab);
        quiet("tab " + std::to_string(tab));
    }
    for (const char* state : {"IsReady", "IsRecording", "IsBgSaving"}) {
        test.host.flags().set(state, true);
        quiet(state);
        test.host.flags().set(state, false);
    }
    test.host.prefs().setValue("env/style", "dark");
    quiet("dark");
    page.enter(zeb::MemoryMode);
    test.camera(1).change({{"recorded", true}, {"recordCheck", true}});
    test.camera(3).change({{"recorded", true}, {"selectedRange", QVariantList{10, 90}}});
    for (const int tab : {6, 5}) {
        page.show(tab);
        quiet("tab " + std::to_string(tab));
        EXPECT_EQ(page.number("probe.drawn()[0].querySelectorAll('.wren_checkbox_recordCheck:checked').length"), 1);
    }
    const QStringList calls = page.list("probe.calls(() => wrentabledialog_obj.autoUpdate()).map(call => call[0])");
    EXPECT_TRUE(calls.contains("getRecords"));
    EXPECT_FALSE(calls.contains("getRecStatus")) << "there is no record status in memory mode";
    test.host.appStatus().enterMode(zeb::FileMode);
    quiet("file mode");
}

}  // namespace

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "TablePage.h"

// Which cameras the table lists.

namespace {

const char* Listed = "probe.drawn().map(probe.keyOf)";
const char* Chosen = "$('.groupButton[buttonselected=\"true\"]').get().map(button => button.getAttribute('groupkey'))";

/// Groups over the cameras of a rig of the standard model.
void setGroups(TestHost& test, const QStringList& groups) {
    test.host.prefs().setValue("wren/settings/groups", groups.join(':'));
}

QString address(TestHost& test, DOCKEY key) {
    return test.doc(key)->control().getAddress(1);
}

TEST(PageListing, FollowsTheGroup) {
    TestHost test(connected(4));
    const QString hostile = "<b onclick='x'>\"Gate\" & more";
    setGroups(test, {"Ramp|" + address(test, 1), hostile + '|' + address(test, 2) + '|' + address(test, 4)});
    test.host.prefs().setValue("wren/table/group", "a group that is gone");
    TablePage page(test);
    EXPECT_EQ(page.list(Chosen), QStringList("Ramp")) << "the first one";
    EXPECT_EQ(page.list(Listed), QStringList("1"));
    EXPECT_EQ(page.list("$('.groupButton').get().map(button => button.id + ' ' + button.value)"),
              QStringList({"group_button_0 Ramp", "group_button_1 " + hostile, "group_button_2 All groups"}));

    page.run("$('#group_button_1').trigger('mouseover'); return 0");
    EXPECT_EQ(page.list("$('.ui-tooltip').get().map(tip => tip.textContent)"), QStringList(hostile));
    page.run(R"js(
        const records = wrentabledialog_obj.fetchRecords;
        wrentabledialog_obj.fetchRecords = function (tab) {
            probe.usable = $('.groupButton:not(:disabled)').length;
            return records.call(this, tab);
        };
        probe.usable = -1;
        $('#group_button_1').click();
        wrentabledialog_obj.fetchRecords = records;
        return 0;
    )js");
    EXPECT_EQ(page.number("probe.usable"), 0) << "no second choice while the first is being shown";
    page.settle();
    EXPECT_EQ(page.number("$('.ui-tooltip').length"), 0);
    EXPECT_EQ(page.number("$('.groupButton:not(:disabled)').length"), 3);
    EXPECT_EQ(page.list(Chosen), QStringList(hostile));
    EXPECT_EQ(page.list(Listed), QStringList({"2", "4"}));
    EXPECT_EQ(page.list("probe.selected()"), QStringList({"2", "4"})) << "and they are selected";
    EXPECT_EQ(test.host.prefs().value("wren/table/group").toString(), hostile);
    page.click("#group_button_2");
    EXPECT_EQ(page.list(Listed), QStringList({"1", "2", "3", "4"}));
}

TEST(PageListing, WithoutGroupsHasNoGroupBox) {
    TestHost test(standardRig(2));
    TablePage page(test);
    EXPECT_FALSE(page.run("$('#wrenGroupBlock').is(':visible')").toBool());
    EXPECT_EQ(page.list(Listed), QStringList({"1", "2"}));
}

TEST(PageListing, FollowsTheFilterAndSelectsWhatIsConnected) {
    TestHost test(standardRig(4));
    connectCameras(test, 2, 3);
    test.host.prefs().setValue("wren/table/filter", 2);
    TablePage page(test);
    EXPECT_EQ(page.list(Listed), QStringList({"1", "4"}));
    choose(test, {});
    const auto filter = [&page](int entry) {
        page.click("#tabs .inTabItems p.CaptionCont");
        page.click(QString("#tabs .inTabItems .options li:nth-child(%1)").arg(entry));
        return page.list(Listed);
    };
    EXPECT_EQ(filter(2), QStringList({"2", "3"}));
    EXPECT_EQ(page.list("probe.selected()"), QStringList({"2", "3"}));
    EXPECT_EQ(filter(1), QStringList({"1", "2", "3", "4"}));
    EXPECT_EQ(test.host.prefs().value("wren/table/filter").toInt(), 0);
}

TEST(PageListing, GreysACameraThatTheListHasLost) {
    TestHost test(connected(4));
    TablePage page(test, 1);
    page.run("document.getElementById('recordFilter').value = '1'; wrentabledialog_obj.update(); return 0");
    const char* greyed = "probe.drawn().filter(row => row.hasAttribute('unlisted')).map(probe.keyOf)";
    for (const bool on : {false, true}) {
        test.camera(2).change({{"connected", on}});
        page.tick();
        EXPECT_EQ(page.list(greyed), on ? QStringList() : QStringList("2"));
        EXPECT_EQ(page.tick(), QStringList());
    }
    test.camera(2).change({{"connected", false}});
    page.tick();
    page.update();
    EXPECT_EQ(page.list("probe.drawn().map(probe.keyOf)"), QStringList({"1", "3", "4"}));
    EXPECT_EQ(page.list(greyed), QStringList()) << "nor does a row used again stay grey";
}

TEST(PageListing, KeepsTheFilterThroughFileModeAndIsFilledByAFullUpdate) {
    TestHost test(standardRig(4));
    connectCameras(test, 2, 3);
    test.host.prefs().setValue("wren/table/filter", 1);
    test.host.appStatus().enterMode(zeb::FileMode);
    TablePage page(test);
    EXPECT_TRUE(page.until("$('.w2ui-lock:visible').length > 0"));
    EXPECT_TRUE(page.run("$('#tabs').tabs('option', 'disabled')").toBool());
    EXPECT_EQ(page.number("wrentabledialog.getFilter()"), -1);
    test.host.appStatus().enterMode(zeb::LiveMode);
    page.tick();
    EXPECT_EQ(page.list(Listed), QStringList()) << "a tick fills nothing";
    page.settle();
    EXPECT_TRUE(page.until("$('.w2ui-lock:visible').length === 0"));
    EXPECT_EQ(page.list(Listed), QStringList({"2", "3"}));
    EXPECT_EQ(page.text("$('#tabs .inTabItems p.CaptionCont').text().trim()"), "Connected");
    EXPECT_EQ(test.host.prefs().value("wren/table/filter").toInt(), 1);
}

}  // namespace

#include "TablePage.h"

// The panel by which cameras come into the table and go, and the one that switches low light for all of them.

namespace {

class PageManagement : public testing::Test {
protected:
    PageManagement() {
        page.click("#accordion h3");
        test.host.prefs().setValue("cameraconnection/SearchIP", "192.168.7.0");
    }

    QString octet(int number) { return page.text(QString("$('#livecontrol_ip%1').val()").arg(number)); }
    void fill(int number, const char* text) {
        page.click(QString("#livecontrol_ip%1").arg(number));
        page.run(QString("$('#livecontrol_ip%1').select(); return 0").arg(number));
        page.type(QLatin1String(text));
    }
    int rows() { return page.number("probe.grid().records.length"); }

    TestHost test{readRig("eight-mixed")};
    TablePage page{test};
};

TEST_F(PageManagement, AnOctetTakesANumberUpTo255) {
    fill(1, "1a9-2\t");
    EXPECT_EQ(octet(1), "192");
    fill(2, "999\t");
    EXPECT_EQ(octet(2), "255");
    fill(2, "\b\t");
    EXPECT_EQ(octet(2), "") << "an empty one stays empty";
    page.run("$('#livecontrol_ip3').val('x7 .y'); return 0");
    page.click("#livecontrol_ip3");
    page.key(Qt::Key_End);
    EXPECT_EQ(octet(3), "7") << "pasted text";
    page.show(1);
    EXPECT_EQ(octet(1) + ' ' + octet(2) + ' ' + octet(3), "192 168 7") << "the address of the last search";
}

TEST_F(PageManagement, FindsCamerasWhileTheTableIsOpen) {
    const int before = rows();
    page.show(1);
    page.show(0);
    fill(2, "\b\t");
    EXPECT_EQ(commands(test, page, [&] { page.click("#livecontrol_search"); }), QStringList());
    EXPECT_EQ(test.desk.take(),
              QStringList("The address is not whole: each of its numbers is one from 0 to 255, the last "
                          "at least 1, and at most 254 in 192.168."));
    fill(2, "168");
    EXPECT_EQ(commands(test, page, [&] { page.click("#livecontrol_search"); }),
              QStringList("searchCamera 192.168.7.0"));
    EXPECT_EQ(test.desk.take(), QStringList("Search in 192.168.7.xxx: found Hall left, Hall right."));
    EXPECT_EQ(rows(), before + 2);
    EXPECT_EQ(page.text("probe.drawn().map(row => row.textContent).join()").contains("Hall right"), true);
    EXPECT_EQ(commands(test, page, [&] { page.click("#livecontrol_discovery"); }), QStringList("discoverCameras"));
    EXPECT_EQ(test.desk.take(), QStringList("Search in the whole network: found Spare."));
    EXPECT_EQ(rows(), before + 3);
    EXPECT_EQ(commands(test, page, [&] { page.click("#livecontrol_update"); }), QStringList("updateCameras"));
    EXPECT_EQ(rows(), before + 3);
}

TEST_F(PageManagement, DeletesAllWhenTheUserAgrees) {
    const int before = rows();
    test.desk.answers = {{false, false}};
    page.click("#livecontrol_deleteall");
    EXPECT_EQ(test.desk.take(), QStringList("Delete all cameras?"));
    EXPECT_EQ(rows(), before);
    page.click("#livecontrol_deleteall");
    EXPECT_EQ(test.desk.take(), QStringList("Delete all cameras?"));
    EXPECT_EQ(rows(), 0);
    EXPECT_FALSE(page.run("$('[id^=wren_button_connection_]').is(':visible')").toBool()) << "nothing to connect";
}

TEST_F(PageManagement, SwitchesLowLightForAll) {
    for (Camera* camera : test.host.cameras().all()) {
        camera->change({{"recorded", false}, {"connected", camera->key() <= 3}});
    }
    page.update();
    EXPECT_EQ(commands(test, page, [&] { page.click("#wrenBatchLowlightBlock_ON"); }),
              QStringList("setLowLight 1,2,3 true"));
    EXPECT_EQ(commands(test, page, [&] { page.click("#wrenBatchLowlightBlock_OFF"); }),
              QStringList("setLowLight 1,2,3 false"));
}

}  // namespace

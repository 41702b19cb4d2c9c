#include "TablePage.h"

#include "ZebTypes.h"

// The dialog of the comment column.

namespace {

const char* Open = "$('#wrentabledialog_comment_dialog').is(':visible')";
const char* Text = "$('#wren_comment_textarea').val()";
const QString Hostile = QStringLiteral("</textarea><b id=\"got-in\">x</b>\nsecond & third");

class PageComments : public testing::Test {
protected:
    PageComments() {
        connectCameras(test, 1, 3);
        test.camera(2).change({{"comment", QString(Hostile).replace('\n', zeb::CommentSeparator)}});
        page.update();
    }

    void open(int key) { page.doubleClick(QString("#wren-cameraInfo-list tr[recid=\"%1\"] td[col=\"8\"]").arg(key)); }
    bool isOpen() { return page.run(Open).toBool(); }
    QString comment(DOCKEY key) { return test.camera(key).get(&CameraState::comment); }

    TestHost test{standardRig(4)};
    TablePage page{test};
};

TEST_F(PageComments, OpenByADoubleClickWhereTheyMayBeChanged) {
    EXPECT_FALSE(isOpen());
    open(4);
    EXPECT_FALSE(isOpen()) << "not connected";
    test.camera(1).change({{"locked", true}});
    page.tick();
    open(1);
    EXPECT_FALSE(isOpen()) << "locked";
    for (const char* state : {"IsOtherPluginOpen", "IsBgSaving"}) {
        test.host.flags().set(state, true);
        open(2);
        EXPECT_FALSE(isOpen()) << state;
        test.host.flags().set(state, false);
    }
    page.doubleClick("#wren-cameraInfo-list .wren_label_edit_camera_name[dockey=\"2\"]");
    EXPECT_FALSE(isOpen()) << "another column";
    page.run("$('#wren_cameraInfo_comment_2').trigger('mouseover'); return 0");
    EXPECT_EQ(page.number("$('.ui-tooltip').length"), 1);
    open(2);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(page.number("$('.ui-tooltip').length"), 0);
    EXPECT_EQ(page.text(Text), Hostile);
    EXPECT_EQ(page.number("$('#got-in').length"), 0);
}

TEST_F(PageComments, GoToTheCameraOrToAll) {
    const auto left = [&](const char* button) {
        open(2);
        page.run("$('#wren_comment_textarea').select(); return 0");
        page.type("one\ntwo");
        return commands(test, page, [&] { page.click(QString(".ui-dialog-buttons.%1").arg(button)); });
    };
    page.run("probe.callsBegin(); return 0");
    EXPECT_EQ(left("close"), QStringList());
    EXPECT_EQ(left("ok"), QStringList("setComment 2 one{Separator}two"));
    EXPECT_EQ(page.text("$('#wren_cameraInfo_comment_2').text()"), "one");
    EXPECT_EQ(page.text("$('#wren_cameraInfo_comment_2').attr('comments')"), "one\ntwo");
    test.camera(3).change({{"locked", true}});
    left("caution");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(comment(1), comment(2));
    EXPECT_EQ(comment(3) + comment(4), "") << "locked, not connected";
    EXPECT_EQ(page.list("probe.callsEnd().filter(call => /^setComment|FocusState/.test(call[0]))"
                        ".map(call => [call[0]].concat(call[1]).join(' '))"),
              QStringList({"setTextBoxFocusState true", "setTextBoxFocusState false", "setTextBoxFocusState true",
                           "setTextBoxFocusState false", "setComment 2 one\ntwo", "setTextBoxFocusState true",
                           "setTextBoxFocusState false", "setComment 1,2,3,4 one\ntwo"}))
        << "a click on a button takes the keyboard from the text";
    open(1);
    page.type("\x1b");
    EXPECT_FALSE(isOpen()) << "Escape";
}

}  // namespace

#include "TablePage.h"

#include <QApplication>
#include <QTimer>

#include <random>

// The table without a mouse: where the keyboard is, and what a key does there.

namespace {

/// Key and column of the current cell, as "3 frameRate"; empty when none is drawn.
const char* Current =
    "Array.from(keyboardHome.grid().querySelectorAll('td[current]')).map(td => probe.keyOf(td.parentNode) + ' ' +"
    " probe.grid().columns[td.getAttribute('col')].field).join('; ')";
const char* HasKeyboard = "keyboardHome.grid() === document.activeElement";

TEST(PageKeys, MoveToCellsThatStayWithTheirCameras) {
    TestHost test(connected(40));
    TablePage page(test, 1);
    EXPECT_TRUE(page.run(HasKeyboard).toBool());
    EXPECT_EQ(page.text(Current), "1 lock");
    const auto move = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        EXPECT_EQ(page.made("^(set|connect|record|select|save)", [&] { page.key(key, modifiers); }), QStringList())
            << "a move asks nothing";
        return page.text(Current);
    };
    EXPECT_EQ(move(Qt::Key_Down), "2 lock");
    EXPECT_EQ(move(Qt::Key_End), "2 lowlight");
    EXPECT_EQ(move(Qt::Key_Left), "2 reduce");
    EXPECT_EQ(move(Qt::Key_Down, Qt::ControlModifier), "-1 reduce") << "the batch row is the last one";
    EXPECT_EQ(move(Qt::Key_Up), "40 reduce");
    page.tick();
    page.update();
    EXPECT_EQ(page.text(Current), "40 reduce");
    test.host.faults().plant(40, "*", {{}, 0, true});
    page.update();
    EXPECT_EQ(page.text(Current), "-1 reduce");
    move(Qt::Key_Up, Qt::ControlModifier);
    move(Qt::Key_Down);
    test.host.faults().plant(2, "*", {{}, 0, true});
    page.update();
    EXPECT_EQ(page.text(Current), "3 reduce") << "the next row has it";
    page.run("viewAt(1).box.scrollTop = 900; return 0");
    page.update();
    EXPECT_EQ(page.text(Current), "3 reduce") << "also out of sight";
    EXPECT_EQ(page.tick(), QStringList());
    page.show(0);
    EXPECT_TRUE(page.run(HasKeyboard).toBool());
}

TEST(PageKeys, WorkTheControlOfTheCellElseSelect) {
    TestHost test(connected(5));
    TablePage page(test, 1);
    choose(test, {});
    page.update();
    const auto made = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        return page.made("^set|^select|^record", [&] { page.key(key, modifiers); });
    };
    EXPECT_EQ(made(Qt::Key_Space), QStringList("setParamLock 1 true"));
    EXPECT_EQ(made(Qt::Key_Return), QStringList("setParamLock 1 false"));
    page.key(Qt::Key_Right);
    EXPECT_EQ(made(Qt::Key_Space), QStringList("select 1 true"));
    EXPECT_EQ(made(Qt::Key_Down, Qt::ShiftModifier), QStringList("select 2 true"));
    EXPECT_EQ(made(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier), QStringList("select 3,4,5 true"));
    EXPECT_EQ(made(Qt::Key_Up, Qt::ShiftModifier), QStringList());
    page.key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(made(Qt::Key_A, Qt::ControlModifier), QStringList("select 1,2,3,4,5 true"));
    page.run("viewAt(1).cursor.field = 'frameRate'; viewAt(1).cursor.mark(); return 0");
    page.key(Qt::Key_Return);
    page.key(Qt::Key_Down);
    EXPECT_EQ(made(Qt::Key_Return).size(), 1);
    EXPECT_TRUE(page.run(HasKeyboard).toBool()) << "a list gives it back";
    page.run("viewAt(1).cursor.moveTo(0, 0); return 0");
    test.host.faults().plant(1, "*", {{}, 0, true});
    page.tick();
    EXPECT_EQ(made(Qt::Key_Space), QStringList()) << "its camera has gone";
    page.key(Qt::Key_F1);
    EXPECT_TRUE(page.run("$('#wren_keys').is(':visible')").toBool());
    page.key(Qt::Key_Escape);
    EXPECT_TRUE(page.run(HasKeyboard).toBool());
}

TEST(PageKeys, TellWhyACellTakesNothing) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    test.camera(1).change({{"locked", true}});
    test.camera(2).change({{"lowLight", true}});
    page.update();
    const auto why = [&](const char* field, DOCKEY key) {
        return page.text(QString("viewAt(1).rows.find(row => row.key === '%1').cells.find(cell => cell.field === '%2')"
                                 ".box.getAttribute('why') || ''")
                             .arg(key)
                             .arg(field));
    };
    const auto tip = [&](Qt::Key key) {
        page.key(key);
        return page.text("$('.ui-tooltip-content').text()");
    };
    EXPECT_EQ(why("frameRate", 1), "The camera is locked.");
    EXPECT_EQ(why("frameRate", 2), "The camera is in low light mode.");
    EXPECT_EQ(why("shutterSpeed", 2) + why("frameRate", 3) + why("lock", 1), "");
    page.run("viewAt(1).cursor.field = 'frameRate'; viewAt(1).cursor.mark(); return 0");
    EXPECT_EQ(page.made("^set", [&] { page.key(Qt::Key_Return); }), QStringList());
    EXPECT_EQ(tip(Qt::Key_F2), "The camera is locked.");
    EXPECT_EQ(tip(Qt::Key_Right), "");
    test.host.flags().set("IsReady", true);
    page.update();
    EXPECT_EQ(why("frameRate", 2), "The camera is in low light mode. Cameras are ready to record.");
    EXPECT_EQ(page.tick(), QStringList());
    page.run("viewAt(1).cursor.field = 'cameraName'; viewAt(1).cursor.mark(); return 0");
    EXPECT_EQ(tip(Qt::Key_Space), "The camera is locked. Cameras are ready to record.");
    test.host.flags().set("IsReady", false);
    test.camera(1).change({{"locked", false}});
    page.tick();
    EXPECT_EQ(page.text("$('.ui-tooltip-content').text()"), "") << "no reason stands that does not hold";
    EXPECT_EQ(why("frameRate", 1) + why("lock", 2), "");
}

TEST(PageKeys, GoIntoTheIconsOfACell) {
    TestHost test(connected(2));
    TablePage page(test, 4);
    page.run("viewAt(4).cursor.field = 'plugin'; viewAt(4).cursor.mark(); return 0");
    const auto made = [&](Qt::Key key) {
        return page.made("^togglePlugin|^effectContextMenu", [&] { page.key(key); });
    };
    EXPECT_EQ(made(Qt::Key_Space), QStringList());
    page.key(Qt::Key_Right);
    EXPECT_EQ(made(Qt::Key_Space), QStringList("togglePlugin 1 lut true"));
    QTimer::singleShot(0, [] { QApplication::activePopupWidget()->close(); });
    EXPECT_EQ(made(Qt::Key_Menu).value(0).section(' ', 0, 2), "effectContextMenu 1 lut");
    page.key(Qt::Key_Left);
    page.key(Qt::Key_Left);
    EXPECT_EQ(made(Qt::Key_Return), QStringList("togglePlugin 1 filter true"));
    page.key(Qt::Key_Escape);
    EXPECT_TRUE(page.run(HasKeyboard).toBool());
}

TEST(PageKeys, HeldDownPressOnce) {
    TestHost test(connected(2));
    TablePage page(test, 1);
    for (const DOCKEY key : {1, 2}) {
        test.camera(key).change({{"locked", true}});
    }
    page.update();
    page.run("document.getElementById('timeline_rec_exec').focus(); return 0");
    EXPECT_EQ(page.made("^record$", [&] { page.hold(Qt::Key_Space, 60); }), QStringList("record"));
    EXPECT_EQ(test.host.recorder().getRecordingState(), zeb::RecordReady) << "armed, and not triggered";
    page.run("document.getElementById('timeline_rec_cancel').focus(); return 0");
    EXPECT_EQ(page.made("^cancelRecord", [&] { page.hold(Qt::Key_Return, 60); }), QStringList("cancelRecord"));
    page.update();
    EXPECT_FALSE(page.run("document.activeElement === document.body").toBool()) << "the button is greyed";
    page.run("viewAt(1).cursor.focus(); return 0");
    EXPECT_EQ(page.made("^setParamLock", [&] { page.hold(Qt::Key_Space, 60); }).size(), 1);
}

TEST(PageKeys, KeepTheKeyboardWhateverComes) {
    TestHost test(connected(16));
    TablePage page(test, 1);
    std::mt19937 random(24);
    const Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,   Qt::Key_Right,
                            Qt::Key_Home, Qt::Key_End,  Qt::Key_PageUp, Qt::Key_PageDown};
    const auto any = [&](int count) { return int(random() % unsigned(count)); };
    for (int step = 0; step < 300; ++step) {
        const DOCKEY key = DOCKEY(1 + any(16));
        switch (any(6)) {
            case 0:
                page.tick();
                break;
            case 1:
                page.update();
                break;
            case 2:
                test.host.faults().plant(key, "*", any(2) == 0 ? Fault{{}, 0, true} : Fault{});
                break;
            default:
                EXPECT_EQ(
                    page.made("^(set|connect|record|select|save)",
                              [&] { page.key(keys[any(8)], any(4) == 0 ? Qt::ControlModifier : Qt::NoModifier); }),
                    QStringList());
        }
        ASSERT_TRUE(page.run(HasKeyboard).toBool()) << step;
        ASSERT_EQ(page.number("keyboardHome.grid().querySelectorAll('td[current]').length"), 1) << step;
    }
}

}  // namespace

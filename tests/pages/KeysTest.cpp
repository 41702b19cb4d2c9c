#include "TablePage.h"

#include <QApplication>
#include <QSet>
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
    page.run("viewAt(1).cursor.field = 'lock'; viewAt(1).cursor.mark(); return 0");
    move(Qt::Key_Space);
    EXPECT_LT(page.number("viewAt(1).box.scrollTop"), 100) << "the first press shows it";
    const auto locked = [&] { return page.made("^setParamLock", [&] { page.key(Qt::Key_Space); }); };
    EXPECT_EQ(locked(), QStringList()) << "what was pressed by now was meant for camera 2";
    page.run("viewAt(1).cursor.movedAt = 0; return 0");
    EXPECT_EQ(locked(), QStringList("setParamLock 3 true"));
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
    EXPECT_EQ(made(Qt::Key_Return), QStringList("setFrameRate 1 2000"));
    EXPECT_TRUE(page.run(HasKeyboard).toBool()) << "a list gives it back";
    page.key(Qt::Key_Return);
    page.key(Qt::Key_End);
    EXPECT_EQ(made(Qt::Key_Return), QStringList("setFrameRate 1 10000"));
    page.key(Qt::Key_Return);
    page.type("50");
    page.type("0");
    EXPECT_EQ(made(Qt::Key_Return), QStringList("setFrameRate 1 500"));
    page.run("document.querySelector('.inTabItems .SumoSelect').focus(); return 0");
    page.key(Qt::Key_Space);
    page.type("d");
    EXPECT_EQ(page.made("^getFilter|^select", [&] { page.key(Qt::Key_Return); }), QStringList());
    EXPECT_EQ(page.text("document.getElementById('recordFilter').value"), "2");
    EXPECT_FALSE(page.run("document.getElementById('recordFilter').sumo.is_opened").toBool());
    page.key(Qt::Key_Space);
    page.key(Qt::Key_Home);
    page.key(Qt::Key_Space);
    page.run("viewAt(1).cursor.focus(); return 0");
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

/// A key that is held for two seconds comes some sixty times.
TEST(PageKeys, HeldDownOnAnyControlWorkItOnce) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    page.run("$('#accordion_label').click(); return 0");
    const char* changes = "^(set|connect|record|select|lock|cancel|snap|stop|update|toggle|discovery|search)";
    // Those that open a window of the host are left out.
    const QStringList controls = page.list(
        "$('button, input[type=\"checkbox\"], input[type=\"button\"], a[tabindex=\"0\"]').get()"
        ".filter(element => element.offsetWidth > 0 && !element.disabled && element.id)"
        ".map(element => '#' + element.id).filter(id => !/setting|_button|_save|_load|deleteall|Settings/.test(id))");
    EXPECT_GE(controls.size(), 12);
    const auto once = [&](const QString& what, Qt::Key key) {
        EXPECT_LE(page.made(changes, [&] { page.hold(key, 60); }).size(), 1) << what.toStdString() << " " << key;
    };
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        for (const QString& control : controls) {
            page.run(QString("document.querySelector('%1').focus(); return 0").arg(control));
            once(control, key);
        }
        page.run("wrentabledialog.cancelRecord(); wrentabledialog.stopLive(false); return 0");
        page.update();
        for (const QString& field : page.list("viewAt(1).grid.columns.map(column => column.field)")) {
            if (field != "cameraName") {  // its button opens a dialog of the host
                page.run(QString("viewAt(1).cursor.focus(); viewAt(1).cursor.field = '%1';"
                                 "viewAt(1).cursor.moveTo(1, viewAt(1).cursor.columns().findIndex(column =>"
                                 " column.field === '%1')); return 0")
                             .arg(field));
                once(field, key);
                page.key(Qt::Key_Escape);
            }
        }
    }
    test.desk.shown.clear();  // what the searches found
}

/// Keys that belong together: what the first one opens, the last one closes.
const QList<QList<QKeySequence>> Strokes = {{Qt::Key_Space, Qt::Key_Escape},
                                            {Qt::Key_Return, Qt::Key_Escape},
                                            {Qt::Key_Return, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape},
                                            {Qt::Key_F2, Qt::Key_Down, Qt::Key_Escape},
                                            {Qt::Key_Menu, Qt::Key_Down, Qt::Key_Escape},
                                            {Qt::Key_F1, Qt::Key_Escape},
                                            {Qt::CTRL + Qt::Key_A},
                                            {Qt::CTRL + Qt::Key_C},
                                            {Qt::SHIFT + Qt::Key_Down},
                                            {Qt::SHIFT + Qt::Key_Home},
                                            {Qt::SHIFT + Qt::Key_Space},
                                            {Qt::Key_Tab, Qt::Key_F2, Qt::SHIFT + Qt::Key_Tab},
                                            {Qt::SHIFT + Qt::Key_Tab, Qt::Key_Tab}};
const QList<QKeySequence> Moves = {
    Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,         Qt::Key_Home,
    Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::CTRL + Qt::Key_Up, Qt::CTRL + Qt::Key_End};

/// 10,000 steps in the long run.
TEST(PageKeys, KeepTheKeyboardWhateverComes) {
    const int steps = qEnvironmentVariableIsSet("WREN_LONG") ? 10000 : 500;
    TestHost test(connected(64));
    TablePage page(test, 1);
    std::mt19937 random(24);
    const auto any = [&](int count) { return int(random() % unsigned(count)); };
    const auto press = [&](const QKeySequence& keys) {
        page.key(Qt::Key(keys[0] & ~Qt::KeyboardModifierMask),
                 Qt::KeyboardModifiers(keys[0] & Qt::KeyboardModifierMask));
    };
    const auto changes = [&](const std::function<void()>& work) {
        return page.made("^(set|connect|record|select|save|toggle|lock|cancel|snap|edit|open)", work);
    };
    int asked = 0;
    QSet<DOCKEY> gone;
    for (int step = 0; step < steps; ++step) {
        const DOCKEY key = DOCKEY(1 + any(64));
        const bool isGone = gone.contains(key);
        QStringList made;
        switch (any(8)) {
            case 0:
                made = changes([&] { page.tick(); });
                break;
            case 1:
                made = changes([&] { page.update(); });
                break;
            case 2:
                test.host.faults().plant(key, "*", isGone ? Fault{} : Fault{{}, 0, true});
                gone = isGone ? gone - QSet<DOCKEY>{key} : gone + QSet<DOCKEY>{key};
                break;
            case 3:
                if (!isGone) {
                    test.camera(key).change({{any(2) == 0 ? "locked" : "lowLight", any(2) == 0}});
                }
                break;
            case 4:
                // The name's button opens a dialog of the host.
                if (page.text("keyboardHome.grid() && viewAt(1).cursor.field") != "cameraName") {
                    asked += changes([&] {
                                 for (const QKeySequence& keys : Strokes[any(Strokes.size())]) {
                                     press(keys);
                                 }
                             }).size();
                }
                break;
            default:
                made = changes([&] { press(Moves[any(Moves.size())]); });
        }
        ASSERT_EQ(made, QStringList()) << step << ": no key asked for it";
        ASSERT_EQ(page.text("document.activeElement.id"), "wren-livecontrol-list") << step;
        ASSERT_EQ(page.number("keyboardHome.grid().querySelectorAll('td[current]').length"), 1) << step;
    }
    printf("%d steps, %d calls by keys\n", steps, asked);
    EXPECT_GT(asked, steps / 50);
    test.desk.shown.clear();
}

}  // namespace

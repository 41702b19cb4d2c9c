#include "TablePage.h"

namespace {

/// The test clicks faster than a person.
const char* NoDoubleClick = "probe.grid().last.click_time = 0";

QString row(int key) {
    return QStringLiteral("#wren-cameraInfo-list tr .wren_label_edit_camera_name[dockey=\"%1\"]").arg(key);
}

TEST(PageSelection, OfManyRowsIsOneCall) {
    constexpr int Cameras = 721;
    TestHost test(connected(Cameras));
    QJsonArray keys;
    for (int key = 1; key <= Cameras; ++key) {
        if (key == 3 || key == 90) {
            test.camera(DOCKEY(key)).set(&CameraState::connected, false);
        } else {
            keys.append(QString::number(key));
        }
    }
    TablePage page(test);
    choose(test, {"7"});
    page.update();
    const auto selects = [&page](const std::function<void()>& work) {
        page.run("probe.callsBegin(); return 0");
        work();
        return page.run("probe.callsEnd().filter(call => call[0] === 'select').map(call => call[1])").toArray();
    };
    EXPECT_EQ(selects([&] { page.click("#grid_wren-cameraInfo-list_summary .wren_label_edit_camera_name"); }),
              QJsonArray{QJsonValue(QJsonArray{QJsonValue(keys), true})})
        << "the name of the batch row, all that are connected";
    EXPECT_EQ(camerasWith(test, &CameraState::selected).size(), Cameras - 2);
    const QStringList shown = page.list("probe.selected()");
    EXPECT_TRUE(shown.contains("2") && !shown.contains("3")) << shown.join(" ").toStdString();

    const QJsonArray one = selects([&] { page.click(row(1)); });
    EXPECT_EQ(one.size(), 1);
    EXPECT_EQ(one.first().toArray().first().toArray().size(), Cameras - 3) << "the others go";
    const QJsonArray range = selects([&] {
        page.number("probe.scrollTo(100000)");
        page.click(row(Cameras), Qt::ShiftModifier);
    });
    EXPECT_EQ(range.size(), 1);
    EXPECT_EQ(range.first().toArray().first().toArray().size(), Cameras - 1) << "those that come";
}

TEST(PageSelection, ShowsNothingThatTheCamerasDoNotHave) {
    TestHost test(connected(2));
    TablePage page(test);
    choose(test, {"2"});
    for (const DOCKEY key : {1U, 2U}) {
        test.camera(key).set(&CameraState::recordState, int(zeb::RecordReady));
    }
    test.host.recorder().startRecReady();
    page.update();
    EXPECT_EQ(page.list("probe.selected()"), QStringList());
    page.click(row(2));
    EXPECT_EQ(page.list("probe.selected()"), QStringList()) << "while they are ready no row is";
}

/// As without it when the hand moves a little.
TEST(PageSelection, FollowsTheMouse) {
    struct Case {
        const char* what;
        QStringList before;
        QString target;
        Qt::KeyboardModifiers keys;
        QStringList after;
    };
    TestHost test(connected(5));
    TablePage page(test);
    for (const Case& c : {
             Case{"a row", {}, row(2), {}, {"2"}},
             Case{"one of several", {"1", "2", "5"}, row(2), {}, {"2"}},
             Case{"the one selected row", {"2"}, row(2), {}, {"2"}},
             Case{"one more", {"4"}, row(2), Qt::ControlModifier, {"2", "4"}},
             Case{"one less", {"2", "4"}, row(2), Qt::ControlModifier, {"4"}},
             Case{"the last one less", {"2"}, row(2), Qt::ControlModifier, {}},
             Case{"a range", {"3", "4"}, row(2), Qt::ShiftModifier, {"2", "3", "4"}},
             Case{"with Alt", {"3", "4"}, row(2), Qt::AltModifier, {"3", "4"}},
             Case{"the comment", {"1"}, "#wren-cameraInfo-list tr[recid=\"2\"] td[col=\"8\"]", {}, {"1"}},
             Case{"the lock", {"1"}, "#wren_cameraInfo_button_lockStatus_unlock_2", {}, {"1"}},
         }) {
        for (const int pixels : {0, 3, 8}) {
            SCOPED_TRACE(std::string(c.what) + " " + std::to_string(pixels));
            choose(test, c.before);
            test.camera(2).set(&CameraState::locked, false);
            page.update();
            page.run(NoDoubleClick);
            page.clickMoving(c.target, pixels, c.keys);
            EXPECT_EQ(camerasWith(test, &CameraState::selected), c.after);
            EXPECT_EQ(page.list("probe.selected()"), c.after);
        }
    }
}

TEST(PageSelection, ARubberBandTakesTheRowsItCrosses) {
    const QString list = QStringLiteral("#wren-cameraInfo-list ");
    TestHost test(connected(6));
    TablePage page(test);
    test.camera(2).change({{"comment", "here"}});
    for (const auto& [from, after] :
         QList<QPair<QString, QStringList>>{{row(2), {"2", "3", "4"}},
                                            {list + "#wren_cameraInfo_button_lockStatus_unlock_2", {"6"}},
                                            {list + "tr[recid=\"2\"] .wren_cameraInfo_comment", {"6"}}}) {
        choose(test, {"6"});
        page.update();
        page.press(from);
        for (const int over : {4, 3, 4}) {
            page.move(row(over));
        }
        EXPECT_EQ(page.made("^select$", [&] { page.release(); }).size(), after.size() == 3 ? 2 : 0) << "at its end";
        EXPECT_EQ(camerasWith(test, &CameraState::selected), after) << from.toStdString();
        EXPECT_EQ(page.list("probe.selected()"), after);
        EXPECT_FALSE(test.camera(2).get(&CameraState::locked));
    }
}

}  // namespace

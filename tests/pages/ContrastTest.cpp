#include "TablePage.h"

#include <QFile>

// Whether each text can be read, in both styles and in every colour that rows and page take.

namespace {

class PageContrast : public testing::TestWithParam<const char*> {
protected:
    PageContrast() : test(connected(4)) {
        test.host.prefs().setValue("env/style", GetParam());
        test.camera(1).change({{"connected", false}});
        test.camera(2).change({{"comment", "at the gate"}, {"alerts", QStringList("warm")}});
        test.camera(3).change({{"lowLight", true}});
        page = std::make_unique<TablePage>(test, 1);
        test.camera(4).change({{"locked", true}});
        QFile script(":/page_test/contrast.js");
        EXPECT_TRUE(script.open(QIODevice::ReadOnly));
        page->run(QString::fromUtf8(script.readAll()) + "; $.fx.off = true; return 0");
    }

    void expectReadable(const QString& what) {
        EXPECT_EQ(page->list("probe.faintTexts()"), QStringList()) << what.toStdString();
        EXPECT_GT(page->number("probe.textsSeen"), 100) << what.toStdString();
    }

    TestHost test;
    std::unique_ptr<TablePage> page;
};

TEST_P(PageContrast, OfTabsAndColours) {
    page->run("$('#accordion_label').click(); return 0");
    for (const char* colour : {"red", "green", "yellow", "orange", "blue", "skyblue"}) {
        for (const char* key : {"recready", "recording", "memory"}) {
            test.host.prefs().setValue(QString("wren/settings/%1TableColor").arg(key), colour);
        }
        for (const int tab : {0, 1, 2, 4, 5}) {
            page->enter(tab < 5 ? zeb::LiveMode : zeb::MemoryMode);
            page->show(tab);
            expectReadable(QString("tab %1, %2").arg(tab).arg(colour));
            for (const char* state : {"IsReady", "IsRecording", "IsOtherPluginOpen"}) {
                test.host.flags().set(state, tab < 5);
                page->update();
                expectReadable(QString("%1, tab %2, %3").arg(state).arg(tab).arg(colour));
                test.host.flags().set(state, false);
                page->update();
            }
        }
    }
    page->enter(zeb::LiveMode);
    page->show(1);
    page->run("viewAt(1).grid.box.querySelector('.wren_label_edit_camera_name').style.color = '#808080'; return 0");
    EXPECT_EQ(page->list("probe.faintTexts()").size(), 1) << "a faint one is found";
}

TEST_P(PageContrast, OfWhatOpensOverTheTable) {
    page->run("wrentabledialog.setFrameRate(['2', '4'], '2000'); return 0");
    page->update();
    for (const char* open :
         {"$('#wren_status_result').click()", "tableText.openMenu(viewAt(1), 100, 100)",
          "contextMenu.close(); keyHelp.open()",
          "$('#wren_keys').dialog('close'); $('#wrentabledialog_displaySettings').click()",
          "wrentabledialog_obj.cancelDisplayDialog(); wrentabledialog_obj.editComment(viewAt(1), '2')",
          "$('.ui-dialog-titlebar-close').click(); $('#wren_livecontrol_alert_2').trigger('mouseover')"}) {
        page->run(QString(open) + "; return 0");
        expectReadable(open);
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, PageContrast, testing::Values("light", "dark"));

}  // namespace

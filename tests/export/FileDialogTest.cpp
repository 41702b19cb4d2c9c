#include "JS_Mediator_FileDialog.h"

#include "ChooseFile.h"
#include "DOC_Control.h"
#include "Files.h"
#include "FrameSkip.h"
#include "support/TestHost.h"

#include <QDir>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

/// Three cameras in memory mode: the first holds frames 0 to 99 of 1,000 a second and keeps 20 to 69, in another
/// partition 10 frames; the second holds nothing; the third 50 frames of 2,000 a second.
class FileDialog : public testing::Test, public TestHost {
protected:
    FileDialog() : TestHost(connected(3)) {
        host.appStatus().enterMode(zeb::MemoryMode);
        camera(1).change({{"partitions", 4}, {"partition", 3}});
        record(1, 1000, 9);
        camera(1).change({{"partition", 1}});
        record(1, 1000, 99);
        camera(1).change({{"selectedRange", QVariantList{20, 69}}, {"comment", "a{Separator}b"}});
        record(3, 2000, 49);
        for (const char* family : {"export/", "convert/", "layout/"}) {
            host.setPref(QLatin1String(family) + "dir", folder.path());
        }
        host.prefs().setValue("export/filename", "shot");
        host.prefs().setValue("export/filenameadddetails", "name");
        calls();
    }

    void record(DOCKEY key, int rate, int last) {
        camera(key).change({{"recorded", true},
                            {"recordedRate", rate},
                            {"recordedResolution", QVariantList{64, 32}},
                            {"recordedRange", QVariantList{0, last}}});
    }

    static QJsonArray records(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).array(); }
    /// These members of each record.
    static QStringList told(const QString& text, const QStringList& members) {
        QStringList lines;
        const QJsonArray all = records(text);
        for (const QJsonValue& record : all) {
            QStringList values;
            for (const QString& member : members) {
                EXPECT_TRUE(record.toObject().contains(member)) << member.toStdString();
                values << QJsonDocument(QJsonArray{record[member]}).toJson(QJsonDocument::Compact).chopped(1).mid(1);
            }
            lines << values.join(' ');
        }
        return lines;
    }

    JS_Mediator_FileDialog bridge{&host, "savedialog"};
};

TEST_F(FileDialog, ListsWhatCanBeSaved) {
    camera(2).set(&CameraState::selected, true);
    camera(1).change({{"recordedCustomInfo", QVariantList{QVariantMap{{"name", "Lens"}, {"value", "50"}},
                                                          QVariantMap{{"name", "TestNo"}, {"value", "T<1>"}},
                                                          QVariantMap{{"name", "Oil"}, {"value", "hot"}}}}});
    host.setPref("export/groupdir", true);
    host.setPref("export/groupdirasfilename", true);
    host.setPref("display/frameInsertDelimiter", true);
    camera(3).change({{"recordedRange", QVariantList{0, 4999}}});
    const QString text = bridge.list(false);
    EXPECT_EQ(text, bridge.list());
    EXPECT_EQ(told(text, {"recid", "dockey", "partitionno", "selected", "currentpartition", "partitions", "slotno"}),
              QStringList({"1 1 1 false true [1,3] 0", "2 1 3 false false [1,3] 0", "3 3 1 false true [1] 0"}));
    EXPECT_EQ(told(text, {"totalframes", "totalframesplain", "saveframes", "exportframes", "multiskip", "recordrate",
                          "capacity", "capacitylabel", "resolution"}),
              QStringList({R"("100" 100 50 50 1 1000 102400 "100.00KB" "64 x 32")",
                           R"("10" 10 10 10 1 1000 20480 "20.00KB" "64 x 32")",
                           R"("5,000" 5000 5000 5000 1 2000 10240000 "9.77MB" "64 x 32")"}));
    EXPECT_EQ(told(text, {"cameraname", "ipaddress", "TestNo", "Project", "TestType", "TestTypeNo", "Date", "Engineer",
                          "Technician", "Comments", "filepath"})
                  .first(),
              R"("Camera 1" "192.168.0.11" "T<1>" "" "" "" "" "" "" "a\nb" "")");
    EXPECT_EQ(told(text, {"path"}).first(), '"' + folder.path() + R"(/shot/")");
    EXPECT_EQ(records(text).first()["Custom_1"].toString() + records(text).first()["Custom_2"].toString(), "50hot");
    EXPECT_EQ(bridge.list(true), "[]");
    host.appStatus().enterMode(zeb::LiveMode);
    EXPECT_EQ(records(bridge.list()).size(), 3) << "whatever is shown now";
    host.docManager().setTemporarySaveDocs({3, 1});
    camera(3).change({{"recordedShutter", 4000}});
    EXPECT_EQ(told(bridge.list(true), {"dockey", "filename", "name", "dataname", "drivename", "serialno", "datano",
                                       "devicename", "date", "time", "shutterspeed", "style"})
                  .first(),
              R"(3 "" "" "" "" "" 0 "" "" "" "1/4000 sec" "")");
}

TEST_F(FileDialog, ACameraThatFailsCostsItsOwnRecords) {
    const QStringList names{"dockey", "partitionno"};
    const QStringList all = told(bridge.list(), names);
    int failed = 0;
    for (int call = 1;; ++call) {
        host.faults().plantAt(call, {"no answer"});
        desk.take();
        JS_Mediator_FileDialog fresh(&host, "savedialog");
        const QString text = fresh.list();
        if (host.faults().calls().size() < call) {
            EXPECT_EQ(told(text, names), all);
            break;
        }
        const auto met = host.faults().calls().at(call - 1);
        SCOPED_TRACE(met.operation.toStdString() + " " + std::to_string(met.key));
        QStringList rest = all;
        for (const QString& own : all) {
            if (met.key != FaultPlan::Host && own.startsWith(QString::number(met.key))) {
                rest.removeAll(own);
                ++failed;
            }
        }
        // Of the host it depends on what it was asked for.
        EXPECT_TRUE(met.key == FaultPlan::Host ? told(text, names).size() < 3 : told(text, names) == rest);
        EXPECT_EQ(desk.take().size(), 1);
        EXPECT_EQ(told(fresh.list(), names), all) << "it was that call alone";
    }
    EXPECT_GT(failed, 20);
}

TEST_F(FileDialog, SkipsFramesOfASave) {
    const struct {
        const char* dialog;
        const char* on;
        int frames;
        double time;
        /// Of the first and the last record.
        const char* told;
    } cases[] = {
        {"savedialog", "", 4, 0, "1 50, 1 50"},
        {"savedialog", "export/", 4, 0, "4 13, 4 13"},
        {"savedialog", "export/", 0, 0, "1 50, 1 50"},
        {"savedialog", "export/", 9, 3, "3 17, 6 9"},
        {"savedialog", "export/", 9, 0.01, "1 50, 1 50"},
        {"savedialog", "export/", 9, 1e18, "9 6, 9 6"},
        {"layoutsavedialog", "export/", 4, 0, "1 50, 1 50"},
        {"layoutsavedialog", "layout/", 7, 0, "7 8, 7 8"},
        {"snapshotdialog", "export/", 4, 0, "1 50, 1 50"},
    };
    for (const auto& row : cases) {
        for (const QString family : {"export/", "layout/"}) {
            host.setPrefBool(family + "skipsave", family == row.on);
            host.setPrefInt(family + "skipunit", row.time > 0 ? SkipByTime : SkipByFrames);
            host.setPrefInt(family + "skipsaveframe", row.frames);
            host.setPref(QString(family + "skipsavemsec"), row.time);
        }
        const QStringList lines = told(JS_Mediator_FileDialog(&host, row.dialog).list(), {"multiskip", "exportframes"});
        EXPECT_EQ(lines.first() + ", " + lines.last(), row.told) << row.dialog << ' ' << row.on << row.frames;
    }
}

TEST_F(FileDialog, TakesTheNearestTimeOnOffer) {
    const QVariantMap targets{{"1", QVariantList{1, "3"}}, {"3", QVariantList{1}}, {"9", QVariantList{1}}};
    const auto stored = [this] {
        return QStringLiteral("%1 %2 %3")
            .arg(host.getPref("export/skipsaveframe").toString(), host.getPref("export/skipsavemsec").toString())
            .arg(bridge.getSkipFrames());
    };
    bridge.setSkipMode(SkipByTime);
    bridge.setSkipFrames(2.4);
    EXPECT_EQ(stored(), "1 2.4 2.4") << "no rate is known yet";
    host.setPref("export/skipsaveframe", 7);
    bridge.refreshSkipFrame(targets);
    EXPECT_EQ(bridge.targets().size(), 4) << "those of cameras that are gone are kept";
    EXPECT_EQ(QStringLiteral("%1 %2").arg(bridge.getSkipMinFrames()).arg(bridge.getSkipMaxFrames()), "1 10");
    EXPECT_EQ(stored(), "2 2 2");
    for (const auto& [asked, expected] : QMap<double, const char*>{
             {2.4999, "2 2 2"},
             {2.5, "2 2 2"},
             {2.5001, "3 3 3"},
             {-4, "1 1 1"},
             {1e9, "10 10 10"}}.toStdMap()) {
        bridge.setSkipFrames(asked);
        EXPECT_EQ(stored(), expected) << asked;
    }
    bridge.setSkipMode(SkipByFrames);
    bridge.setSkipFrames(5.9);
    EXPECT_EQ(stored(), "5 10 5");
    bridge.setSkipFrames(-1e12);
    EXPECT_EQ(stored(), "0 10 0");
    bridge.refreshSkipFrame(targets);
    EXPECT_EQ(stored(), "1 10 1") << "inside the bounds again";
}

TEST_F(FileDialog, TellsWhereFilesGo) {
    for (const char* name : {"groupdir", "subdir"}) {
        host.prefs().setValue(QStringLiteral("export/") + name, true);
        host.prefs().setValue(QStringLiteral("export/") + name + "asfilename", true);
    }
    host.prefs().setValue("export/subdirasfilenameincludeoption", true);
    camera(3).set(&CameraState::selected, true);
    bridge.setSelectDocKey(1);
    bridge.setSelectPartitionNo(3);
    EXPECT_EQ(bridge.getExportPath(), folder.path() + '/');
    calls();
    EXPECT_EQ(bridge.getExportFile(), "shot_Camera 1");
    EXPECT_EQ(calls(), QStringList({"setLastGroupDir shot", "resetNameState"}));
    EXPECT_EQ(bridge.getExportGroupDir(1), "shot");
    EXPECT_EQ(bridge.getExportSubDir(), "shot_Camera 1");
    EXPECT_EQ(calls(), QStringList("resetNameState")) << "its group directory is known";
    host.prefs().setValue("export/groupdirasfilenameincludeoption", true);
    EXPECT_EQ(bridge.getExportGroupDir(), "shot_Camera 3") << "of the first that is selected";
    EXPECT_EQ(bridge.getExportSubDir(), "shot_Camera 1");
    EXPECT_EQ(calls(), QStringList({"setLastGroupDir shot_Camera 1", "resetNameState"}));
    host.prefs().setValue("export/groupdir", false);
    EXPECT_EQ(bridge.getExportFile(), "shot_Camera 1");
    EXPECT_EQ(calls(), QStringList("resetNameState"));
    host.faults().plant(1, "getCustomInfoList", {"no answer"});
    host.setPref("export/filenameusecustom", true);
    calls();
    EXPECT_EQ(bridge.getExportSubDir(), "");
    EXPECT_EQ(calls(), QStringList("resetNameState"));
}

TEST_F(FileDialog, ShowsThePartitionThatIsChosen) {
    QList<int> heads;
    QObject::connect(&bridge, &JS_Mediator_FileDialog::selectedDocHeadCount, [&](int count) { heads << count; });
    const auto picture = [](const QString& text) {
        return QImage::fromData(QByteArray::fromBase64(text.toLatin1()), "PNG");
    };
    const QImage first = picture(bridge.select(1, 1, 40, 300));
    EXPECT_EQ(first.size(), QSize(40, 20));
    EXPECT_NE(picture(bridge.select(1, 3, 40, 300)), first) << "another partition";
    EXPECT_EQ(bridge.getSelectDocKey(), 1U);
    EXPECT_EQ(bridge.getSelectPartitionNo(), 3U);
    EXPECT_EQ(bridge.select(2, 1, 40, 300), "") << "it holds nothing";
    EXPECT_EQ(bridge.select(9, 1, 40, 300), "") << "it is gone";
    EXPECT_EQ(bridge.getSelectDocKey(), 9U);
    EXPECT_EQ(heads, QList<int>({1, 1, 1}));
}

TEST_F(FileDialog, IsRefusedWhileFilesAreConverted) {
    const MarkedTexts marked;
    host.flags().set("IsBgConverting", true);
    calls();
    EXPECT_FALSE(bridge.openCustumTimeCodeDialog());
    EXPECT_FALSE(bridge.openConvertParameterEditDialog({1}));
    EXPECT_FALSE(bridge.saveInfoView({1, "3"}));
    const QString text = "<You can not edit during the conversion process.>";
    EXPECT_EQ(desk.take(), QStringList({text, text, text}));
    EXPECT_EQ(calls(), QStringList());
    host.flags().set("IsBgConverting", false);
    EXPECT_FALSE(bridge.openCustumTimeCodeDialog() || bridge.saveInfoView({1, "3", "no"}));
    EXPECT_EQ(calls(), QStringList({"openCustomTimeCodeDialog", "openSaveInfoView 1,3"}));
    QString title;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        title = dialog->windowTitle();
        dialog->accept();
    });
    EXPECT_TRUE(bridge.openConvertParameterEditDialog({1}));
    EXPECT_EQ(title, "<Saved after the automatic conversion>");
}

}  // namespace

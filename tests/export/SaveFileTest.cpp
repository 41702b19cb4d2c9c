#include "JS_Mediator_SaveFile.h"

#include "ChooseFile.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "Files.h"
#include "FolderChoice.h"
#include "GUI_AddNumberDialog.h"
#include "GUI_CustomInfoDialog.h"
#include "JS_Mediator_AddNumberDialog.h"
#include "JS_Mediator_FileDialog.h"
#include "SavePageBridges.h"
#include "SizeText.h"
#include "support/TestHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

class SaveFile : public testing::Test, public TestHost {
protected:
    SaveFile() : TestHost(connected(2)) {}

    std::unique_ptr<JS_Mediator_SaveFile> of(const char* dialog) {
        return std::make_unique<JS_Mediator_SaveFile>(&host, dialog);
    }

    JS_Mediator_SaveFile options{&host, "savedialog"};
};

/// What the next modal dialog is asked before it closes.
template <typename Dialog, typename Ask>
void inModal(Ask ask) {
    QTimer::singleShot(0, [ask] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        ask(*dialog);
        dialog->reject();
    });
}

TEST_F(SaveFile, TakesWhatTheSensorSeesIntoSomeFormats) {
    const struct {
        const char* dialog;
        const char* on;
        const char* format;
        bool isRaw;
    } cases[] = {
        {"savedialog", "", "Graw", true},
        {"savedialog", "export/raww/bayersave", "Mraw", false},
        {"savedialog", "export/mraw/bayersave", "mraw", true},
        {"savedialog", "export/tiff/bayersave", "TIFF (Multi-Page)", true},
        {"savedialog", "convert/tiff/bayersave", "Tiff", false},
        {"batchconverter", "convert/tiff/bayersave", "Tiff", true},
        {"savedialog", "export/tiff/bayersave", "Png", false},
        {"snapshotdialog", "export/tiff/bayersave", "Tiff", false},
        {"snapshotdialog", "", "Graw", false},
        {"layoutsavedialog", "", "Graw", false},
    };
    for (const auto& row : cases) {
        host.setPref(row.on, true);
        EXPECT_EQ(of(row.dialog)->isRawFormat(row.format), row.isRaw) << row.dialog << ' ' << row.on << row.format;
        host.setPref(row.on, false);
    }
}

TEST_F(SaveFile, ListsFormatsOfFiles) {
    EXPECT_EQ(options.getFileFormats(false).join(' '), "BMP TIFF JPEG PNG RAWW MRAW AVI MOV MP4");
    EXPECT_EQ(options.getFileFormats(true).join(' '), "BMP TIFF JPEG PNG RAWW MRAW GRAW AVI MOV MP4");
    EXPECT_EQ(options.getSnapFileFormats().join(' '), "BMP TIFF JPEG PNG AVI MOV MP4");
    EXPECT_EQ(options.getLayoutFileFormats().join(' '), "BMP TIFF JPEG PNG");
    EXPECT_EQ(options.getCodecFilters().join(' '), "RAW H264 MJPEG MPEG2 MPEG4 HUFFYUV");
    QString movies;
    for (const char* format : {"AVI", "mov", "Wmv", "MP4", "MRAW", "graw", "raww", "png", "tiff", ""}) {
        movies += options.isMovieFormat(format) ? '1' : '0';
    }
    EXPECT_EQ(movies, "1111110000");
    EXPECT_EQ(options.addDateTime("'now'"), "now");
}

TEST_F(SaveFile, TellsSizesAndFreeSpace) {
    const std::map<qint64, const char*> texts{
        {-1, "0.00KB"},           {128, "0.13KB"},       {1048575, "1024.00KB"},     {1048576, "1.00MB"},
        {1536LL << 20, "1.50GB"}, {1LL << 40, "1.00TB"}, {5000LL << 40, "5000.00TB"}};
    for (const auto& [bytes, text] : texts) {
        EXPECT_EQ(sizeText(bytes), text) << bytes;
    }
    EXPECT_EQ(nearestFolder("/dev/shm/not/there/yet/"), "/dev/shm");
    EXPECT_NE(options.getFreeSpace(folder.filePath("not/there/yet")), "0.00KB");
    EXPECT_EQ(options.getFreeSpace("D:/data/x"), "0.00KB");
    EXPECT_EQ(options.getFreeSpace(""), "0.00KB");
}

TEST_F(SaveFile, ListsFoldersByCamera) {
    host.setPref("export/multipathlist", "top|/data/a?broken?x|y|z?low|/data/\"b\"");
    EXPECT_EQ(options.getMultiPaths(),
              R"([{"name":"top","path":"/data/a","recid":1},{"name":"low","path":"/data/\"b\"","recid":2}])");
    host.setPrefString("export/multipathdevicelist", doc(2)->control().getAddress(1) + "|low?nobody|top");
    const auto chosen = [this] {
        QStringList texts;
        const QJsonArray devices = QJsonDocument::fromJson(options.getMultiPathDevices().toUtf8()).array();
        for (const QJsonValue& record : devices) {
            texts << QStringLiteral("%1 %2 %3 %4 %5")
                         .arg(record["recid"].toInt())
                         .arg(record["device"].toString(), record["pathselector"].toString("none"),
                              record["path"].toString("none"))
                         .arg(record["paths"].toArray().size());
        }
        return texts.join(", ");
    };
    EXPECT_EQ(chosen(), "1 192.168.0.11 top /data/a 2, 2 192.168.0.12 low /data/\"b\" 2");
    host.setPref("export/multipathlist", "");
    EXPECT_EQ(options.getMultiPaths(), "[]");
    EXPECT_EQ(chosen(), "1 192.168.0.11 none none 0, 2 192.168.0.12 none none 0");
    Rig rig = connected(2);
    rig.devices[1].heads.append(rig.devices[1].heads.first());
    host.setRig(rig);
    EXPECT_EQ(chosen(), "1 192.168.0.11 none none 0, 2 192.168.0.12 none none 0") << "each device once";
}

TEST_F(SaveFile, KnowsWhetherPicturesShowTheirFile) {
    const std::map<QString, bool> cases{{"||||||File name:1", true},
                                        {"Date:1,File name:1", true},
                                        {"File name:0|File name:1", false},
                                        {"File name of all:1|File name:1", false},
                                        {"Date:1|Comment:1,File name:1,Date:0", true},
                                        {"", false}};
    for (const auto& [displays, shown] : cases) {
        for (int i = 0; i < 7; ++i) {
            host.setPref(QStringLiteral("saveinfo/display%1").arg(i), displays.split('|').value(i));
        }
        EXPECT_EQ(options.isNeedRefreshPreview(), shown) << displays.toStdString();
    }
}

TEST_F(SaveFile, KnowsTheAnalysisProgram) {
    const QStringList modes{"recording/RecordDuringDownload", "recording/AutoDownload"};
    for (const QString& key : modes) {
        host.setPref(key, false);
    }
    EXPECT_FALSE(options.isTAL2AppInstalled() || options.isTal2OptionDisabled());
    host.setPref("tal2/folder", folder.path());
    EXPECT_FALSE(options.isTAL2AppInstalled());
    write(folder.filePath("tal2.exe"), "");
    EXPECT_TRUE(options.isTAL2AppInstalled());
    for (const QString& key : modes) {
        host.setPref(key, true);
        EXPECT_TRUE(options.isTal2OptionDisabled()) << key.toStdString();
        host.setPref(key, false);
    }
}

TEST_F(SaveFile, OpensItsDialogs) {
    const Course course;
    chooseFile(folder.path());
    EXPECT_EQ(options.selectFolder(folder.filePath("not/there")), folder.path() + '/');
    chooseFile("");
    EXPECT_EQ(options.selectFolder("/"), "");

    auto* bridge = new JS_Mediator_FileDialog(&host, "reportExportDialog");
    GUI_WebViewDialog dialog(&host, "Title", "about:blank", bridge);
    JS_Mediator_SaveFile& report = *addSaveOptions(host, dialog);
    Q_EMIT bridge->selectedDocCount(12);
    Q_EMIT bridge->selectedDocHeadCount(3);
    const auto layout = of("layoutsavedialog");
    QStringList found;
    for (JS_Mediator_SaveFile* each : {&report, layout.get()}) {
        for (const auto open :
             {&JS_Mediator_SaveFile::numberSetting4GroupDir, &JS_Mediator_SaveFile::numberSetting4SubDir,
              &JS_Mediator_SaveFile::numberSetting4FileName}) {
            inModal<GUI_AddNumberDialog>([&](const GUI_AddNumberDialog& numbers) {
                auto& asked = static_cast<JS_Mediator_AddNumberDialog&>(*numbers.getBridge());
                found << QStringLiteral("%1: %2 %3")
                             .arg(asked.getCallbackType())
                             .arg(asked.getAutoDeviceDigits())
                             .arg(asked.getAutoHeadDigits());
            });
            (each->*open)();
        }
    }
    EXPECT_EQ(found.join(", "), "0: 2 1, 1: 2 1, 2: 2 1, 0: 1 0, 15: 1 0, 16: 1 0");
    bool isOpen = false;
    inModal<GUI_CustomInfoDialog>([&](const GUI_CustomInfoDialog&) { isOpen = true; });
    options.editCustom(false);
    EXPECT_TRUE(isOpen);
}

}  // namespace

#include "Camera.h"
#include "ProbeBridge.h"
#include "RigFile.h"
#include "SupportFileExport.h"
#include "ZebSupportFile.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <atomic>

#include <gtest/gtest.h>

namespace {

/// Says how the writing ends.
class ExportHost : public SimHost {
public:
    using SimHost::SimHost;

    bool tableStands = false;
    /// Runs on the worker's thread.
    std::function<bool(const QString&, const ZebSupportFile&)> onExport;

    bool hasWrenWindow() const override { return tableStands; }
    bool exportSupportFile(const QString& path, const ZebSupportFile& file) override { return onExport(path, file); }
};

class SupportFile : public testing::Test {
protected:
    SupportFile() {
        noteCalls(host);
        host.setWindows(&windows);
        host.prefs().setValue("support/dir", dir.path());
    }

    /// What the user does with the file dialog as soon as it stands.
    static void inFileDialog(const std::function<void(QFileDialog*)>& action) {
        QTimer::singleShot(0, qApp, [action] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            action(dialog);
        });
    }
    void exportTo(const QString& path) {
        inFileDialog([path](QFileDialog* dialog) {
            dialog->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        bridge.openExportSupportFileDialog();
    }
    /// The calls of the host but for the question and the ends of the bridge's call.
    QStringList calls() {
        QStringList entries = course.take();
        for (const char* frame : {"pause", "resume"}) {
            entries.removeAll(frame);
        }
        return entries.filter(QRegularExpression("^(?!confirm|info: )"));
    }

    QTemporaryDir dir;
    QTemporaryDir own;
    SteppedClock clock;
    ScriptedDesk desk;
    ExportHost host{clock, desk, own.filePath("prefs.ini")};
    MarkedTexts marked;
    Course course;
    NotedWindows windows;
    ProbeBridge bridge{&host};
};

TEST_F(SupportFile, TellsWhatItHolds) {
    host.setRig(readRig(":/webdialog/rigs/functions.json"));
    const QString start =
        "confirm <The information below will be output in ZIP file format. Do you want to proceed?>\n"
        "\n<- Camera setting values>\n<- ZEB setting values>\n<- ZEB operation log>\n<- SDK operation log>";
    const QString log = "\n<- Camera log>";
    const QString middle = "\n<- PC environment>\n<- ZEB version>\n<- ZEB full screen capture>";
    const QString table = "\n<- WREN window screen capture>";
    const QString end = "\n<- Currently displayed image data (1 frame)>";
    const struct {
        DOCKEY camera;
        bool wren;
        QString question;
    } cases[] = {
        {1, false, start + middle + end},
        {2, true, start + middle + table + end},
        {3, false, start + log + middle + end},
        {4, true, start + log + middle + table + end},
    };
    for (const auto& row : cases) {
        for (DOCKEY key = 1; key <= 4; ++key) {
            host.faults().plant(key, "*", {{}, 0, key != row.camera});
        }
        host.tableStands = row.wren;
        desk.answers = {{false, false}};
        bridge.openExportSupportFileDialog();
        EXPECT_EQ(course.take(),
                  QStringList({"pause", "info: [ENTER] \"JS_Mediator::openExportSupportFileDialog\" \"\"", row.question,
                               "info: [LEAVE] \"JS_Mediator::openExportSupportFileDialog\"", "resume"}));
    }
    EXPECT_EQ(host.prefs().value("support/dir"), dir.path());
}

TEST_F(SupportFile, IsWrittenByAWorkerWhereTheUserSaid) {
    QDir(dir.path()).mkdir("sub \"<b>");
    const QString path = dir.filePath("sub \"<b>/state.zip");
    QFile(path).open(QIODevice::WriteOnly);  // replaced without a question
    QString written;
    const QThread* worker = nullptr;
    host.onExport = [&](const QString& where, const ZebSupportFile& file) {
        worker = QThread::currentThread();
        written = where;
        EXPECT_TRUE(file.files.contains("cameras.json"));
        return true;
    };
    inFileDialog([&](QFileDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "<Export support file>");
        EXPECT_EQ(dialog->directory().path(), dir.path());
        EXPECT_EQ(dialog->nameFilters(), QStringList("zip (*.zip)"));
        EXPECT_TRUE(bridge.isInCall());
        dialog->selectFile(path);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    bridge.openExportSupportFileDialog();
    EXPECT_EQ(written, path);
    EXPECT_NE(worker, QThread::currentThread());
    EXPECT_EQ(calls(), QStringList({"execProgress Saving...", "info <Please attach preserved file to a mail.>",
                                    "setPref support/dir " + QFileInfo(path).path()}));
}

TEST_F(SupportFile, IsNotWrittenWithoutAName) {
    inFileDialog([](QFileDialog* dialog) { dialog->reject(); });
    bridge.openExportSupportFileDialog();
    EXPECT_EQ(calls(), QStringList());
}

TEST_F(SupportFile, AFailureIsShownOnceAndNothingIsStored) {
    const QString failure = "Failed to save support file.";
    const QString logged = "critical: \"APP_Exception:[message:Failed to save support file.] [errorCode:0] \"";
    const struct {
        const char* sentence;
        bool written;
        std::function<void(QFutureWatcherBase&)> progress;
        QString told;
    } cases[] = {
        {"it is told behind the progress", false, {}, failure},
        {"and if the progress left early", false, [](QFutureWatcherBase&) {}, failure},
        {"a progress that fails is told itself", false,
         [](QFutureWatcherBase&) { throw std::runtime_error("no window"); }, "no window"},
        {"though the file is written", true, [](QFutureWatcherBase&) { throw std::runtime_error("no window"); },
         "no window"},
    };
    for (const auto& row : cases) {
        windows.onProgress = row.progress;
        host.onExport = [&row](const QString&, const ZebSupportFile&) { return row.written; };
        exportTo(dir.filePath("elsewhere.zip"));
        QStringList entries = calls();
        EXPECT_EQ(entries.removeAll(logged), row.written ? 0 : 1) << row.sentence;
        EXPECT_EQ(entries,
                  QStringList({"execProgress Saving...", "critical: \"" + row.told + '"', "error <" + row.told + '>'}))
            << row.sentence;
    }
    windows.onProgress = nullptr;
    host.onExport = [](const QString&, const ZebSupportFile&) -> bool { throw std::runtime_error("disk"); };
    exportTo(dir.filePath("elsewhere.zip"));
    EXPECT_EQ(calls().filter("error "), QStringList("error <disk>"));
    EXPECT_EQ(host.prefs().value("support/dir"), dir.path());
}

TEST_F(SupportFile, NoWorkerOutlivesTheCall) {
    QSemaphore left;
    std::atomic<bool> ended{false};
    host.onExport = [&](const QString&, const ZebSupportFile&) {
        left.acquire();
        for (int i = 0; i < 10000; ++i) {
            QThread::yieldCurrentThread();
        }
        ended = true;
        return true;
    };
    for (const bool fails : {false, true}) {
        ended = false;
        windows.onProgress = [&](QFutureWatcherBase&) {
            left.release();
            if (fails) {
                throw 42;
            }
        };
        exportTo(dir.filePath("late.zip"));
        EXPECT_TRUE(ended) << fails;
        EXPECT_EQ(course.take().contains("error <Unknown failure.>"), fails);
    }
}

}  // namespace

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "RUN_SyncingThread.h"
#include "VIGenThread.h"
#include "VisaFile.h"
#include "VisaLibrary.h"
#include "support/TestHost.h"
#include "vi.h"

#include <QCoreApplication>
#include <QProgressDialog>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

const auto Resource = QStringLiteral("TCPIP0::10.0.0.2::inst0::INSTR");

/// Runs the thread under a dialog, as a generator is opened, and answers its result.
bool resultOf(VIGenThread& thread) {
    QProgressDialog dialog(QStringLiteral("Searching..."), {}, 0, 0);
    thread.attachDialog(&dialog);
    thread.start();
    dialog.exec();
    thread.wait();
    return thread.result();
}

TEST(VIGenThreadTest, WhatItOpensIsTheCallersThen) {
    VisaFile file;
    ASSERT_TRUE(VisaLibrary::instance().load());
    for (int i = 0; i < 50; ++i) {
        VIGenThread thread([resource = Resource] { return vi::open(resource); });
        ASSERT_TRUE(resultOf(thread));
        vi::sendCommandString(QStringLiteral("FREQ?\n"));
        EXPECT_EQ(vi::recvString(), QStringLiteral("+1.0000000000000E+03\n"));
        vi::close();
    }
    VisaLibrary::instance().unload();
}

TEST(VIGenThreadTest, WorkThatThrowsHasFailed) {
    VIGenThread standard([]() -> bool { throw std::runtime_error("broken"); });
    EXPECT_FALSE(resultOf(standard));
    VIGenThread other([]() -> bool { throw std::string("broken"); });
    EXPECT_FALSE(resultOf(other));
}

TEST(RUN_SyncingThreadTest, WorksWhileTheHostAnswersOthers) {
    TestHost test(standardRig(8));
    SimHost& host = test.host;
    for (Camera* camera : host.cameras().all()) {
        camera->set(&CameraState::connected, true);
    }
    host.faults().plant(5, "synchronise", {QStringLiteral("no lock on the signal"), 0, false});

    int failed = 0;
    for (int i = 0; i < 20; ++i) {
        const DocList docs = host.docManager().getCameraDocs();
        RUN_SyncingThread thread(&host, docs, docs.first(), {0, true, false, 0, 1000, 0});
        QObject::connect(&thread, &RUN_SyncingThread::complete, &thread, [&failed](bool status) { failed += !status; });
        thread.start();
        while (!thread.isFinished()) {
            for (DOC_Interface* doc : docs) {
                doc->control().getSyncStatusText();
                doc->control().getRecordRate(0);
            }
            host.journal().since(0);
            host.faults().plant(4, "getRecordRate", i % 2 ? Fault() : Fault{{}, 1, false});
        }
        thread.wait();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(failed, 20);
    EXPECT_EQ(host.docManager().getDoc(8, 1)->control().getSyncStatusText(), QStringLiteral("Sync In"));
}

}  // namespace

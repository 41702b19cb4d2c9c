#include "VIGenThread.h"
#include "VisaFile.h"
#include "VisaLibrary.h"
#include "vi.h"

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

}  // namespace

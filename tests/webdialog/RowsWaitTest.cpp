#include "ParallelRows.h"
#include "RowsWait.h"
#include "support/TestHost.h"

#include <QMessageBox>
#include <QPushButton>
#include <QSemaphore>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

TEST(RowsWait, LetsABoxBeAnsweredAndNothingElseBePressed) {
    TestHost test;
    int presses = 0;
    QPushButton button;
    QObject::connect(&button, &QPushButton::clicked, [&presses] { ++presses; });
    button.show();
    QSemaphore answer;
    bool agreed = false;
    {
        RowsWait wait(test.host);
        const ParallelRows rows(1, [&answer](int) { answer.acquire(); });
        QTimer::singleShot(0, &button, [&] {
            QTest::mouseClick(&button, Qt::LeftButton);
            QMessageBox box(QMessageBox::Question, {}, "Quit?", QMessageBox::Yes);
            QTimer::singleShot(0, &box, [&box] { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
            agreed = box.exec() == QMessageBox::Yes;
            answer.release();
        });
        wait.waitFor(rows, {"Camera 1"});
        QTest::mouseClick(&button, Qt::LeftButton);
        wait.finish();
    }
    EXPECT_TRUE(agreed);
    EXPECT_EQ(presses, 0);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(presses, 1);
}

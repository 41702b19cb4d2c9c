#include "GUI_MarqueeProgressDialog.h"
#include "PlainText.h"
#include "RUN_ProgressThreadInterface.h"
#include "ReadyProgress.h"
#include "UTL_Messages.h"
#include "support/StubPlugin.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const char* const Markup = "<img src=x> & \"it\"<br>second line";

class Messages : public testing::Test, public TestHost {
protected:
    /// What the user does as soon as a modal dialog stands.
    template <typename Dialog>
    static void whenModal(std::function<void(Dialog*)> action) {
        QTimer::singleShot(0, qApp, [action] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            action(dialog);
        });
    }

    MarkedTexts marked;
    Course course;
    QWidget mainWindow;
};

TEST_F(Messages, WarningShowsPlainTextAndAnswers) {
    host.setMainWindow(&mainWindow);
    whenModal<QMessageBox>([&](QMessageBox* box) {
        EXPECT_EQ(box->parent(), &mainWindow);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->text(), "<img src=x> & \"it\"\nsecond line");
        EXPECT_EQ(box->windowTitle(), "<Warning>");
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->button(QMessageBox::Cancel)->text(), "<Cancel>");
        EXPECT_EQ(box->styleSheet(), "QDialog { color: #010101; }\n");
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_TRUE(UTL_Messages::warnOkCancel(Markup, host));
    const QString line = QStringLiteral("<img src=x> & \\\"it\\\"<br>second line");
    EXPECT_EQ(course.take().join('\n').toStdString(),
              QStringList({"info: [ENTER] \"UTL_Messages::warnOkCancel\" \"[text:" + line + "]\"", "suspendViewer",
                           "resumeViewer", "info: \"[" + line + "][result:Ok]\"",
                           "info: [LEAVE] \"UTL_Messages::warnOkCancel\""})
                  .join('\n')
                  .toStdString());
}

TEST_F(Messages, WarningWithOwnButtonTexts) {
    QWidget parent;
    whenModal<QMessageBox>([&](QMessageBox* box) {
        EXPECT_EQ(box->parent(), &parent);
        EXPECT_EQ(box->button(QMessageBox::Ok)->text(), "<Yes>");
        EXPECT_EQ(box->button(QMessageBox::Cancel)->text(), "<No>");
        EXPECT_EQ(box->styleSheet(), "QMessageBox { color: #030303; }\n");
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_FALSE(UTL_Messages::warnOkCancel("go on?", host, &parent,
                                            {{QMessageBox::Ok, "Yes"}, {QMessageBox::Cancel, "No"}, {7, "odd"}}));
    EXPECT_TRUE(course.take().contains("info: \"[<go on?>][result:Cancel]\""));
}

TEST_F(Messages, AWarningOfManyLinesLeavesItsButtonsOnTheScreen) {
    QStringList lines;
    for (int n = 1; n <= 256; ++n) {
        lines << "Camera with a name of usual length・・The fan turns slowly";
    }
    whenModal<QMessageBox>([&](QMessageBox* box) {
        EXPECT_LT(box->height(), 800);
        EXPECT_EQ(box->detailedText(), QString('<' + lines.join('\n') + '>'));
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_TRUE(UTL_Messages::warnOkCancel(lines.join('\n'), host));
}

TEST_F(Messages, WarningIsRefusedWhenItsParentGoes) {
    auto* parent = new QWidget;
    whenModal<QMessageBox>([parent](QMessageBox*) { delete parent; });
    EXPECT_FALSE(UTL_Messages::warnOkCancel("go on?", host, parent));
}

/// A worker whose thread ends at once, or only when it is asked to.
class FakeWorker : public QThread, public RUN_ProgressThreadInterface {
public:
    explicit FakeWorker(bool waits) : m_waits(waits) {}

    QThread* thread() override { return this; }
    void attachDialog(QProgressDialog* dialog) override {
        connect(this, &QThread::finished, dialog, &QProgressDialog::reset);
    }
    void requestStop() override {
        Course::note("requestStop");
        requestInterruption();
    }
    QString errorMessage() const override { return {}; }

protected:
    void run() override {
        while (m_waits && !isInterruptionRequested()) {
            yieldCurrentThread();
        }
    }

private:
    const bool m_waits;
};

TEST_F(Messages, MarqueeStandsUntilTheWorkHasEnded) {
    host.setMainWindow(&mainWindow);
    GUI_MarqueeProgressDialog progress(&host, Markup, "Stop", true);
    EXPECT_EQ(progress.parent(), &mainWindow);
    EXPECT_EQ(progress.windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(progress.windowFlags(), Qt::WindowFlags(Qt::Tool | Qt::FramelessWindowHint));
    EXPECT_EQ(progress.maximum(), 0);
    auto* label = progress.findChild<QLabel*>();
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), plainText(Markup));
    progress.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&progress));
    QTest::keyClick(&progress, Qt::Key_Escape);
    EXPECT_TRUE(progress.isVisible());
    EXPECT_FALSE(progress.wasCanceled());
    progress.hide();

    FakeWorker quick(false);
    quick.attachDialog(&progress);
    progress.execThread(quick);
    EXPECT_TRUE(quick.isFinished());

    FakeWorker slow(true);
    whenModal<QProgressDialog>([](QProgressDialog* dialog) { dialog->findChild<QAbstractButton*>()->click(); });
    progress.execThread(slow);
    EXPECT_TRUE(slow.isFinished());
    EXPECT_FALSE(progress.isVisible());
    EXPECT_EQ(course.take().count("requestStop"), 2);

    GUI_MarqueeProgressDialog endless(&host, "wait", "", false);
    FakeWorker last(true);
    last.attachDialog(&endless);
    QTimer::singleShot(0, &endless, [&] {
        EXPECT_FALSE(endless.close());
        endless.reject();
        EXPECT_TRUE(endless.isVisible()) << "nothing but the work ends it";
        last.requestInterruption();
    });
    endless.execThread(last);
    EXPECT_FALSE(endless.isVisible());
    EXPECT_FALSE(endless.findChild<QAbstractButton*>());
    EXPECT_EQ(endless.windowModality(), Qt::NonModal);
}

TEST_F(Messages, ReadyProgressStandsOverTheTable) {
    StubPlugin wren("wren");
    wren.dialog = std::make_unique<QDialog>();
    host.appStatus().registerPlugin(&wren);
    host.prefs().setValue("wren/settings/recreadyTableColor", "orange");
    const QScopedPointer<GUI_ProgressDialog> progress(makeReadyProgressDialog("Ready...", host));
    EXPECT_EQ(progress->parent(), wren.dialog.get());
    EXPECT_EQ(progress->size(), QSize(800, 150));
    EXPECT_FALSE(progress->isModal());
    EXPECT_TRUE(progress->styleSheet().endsWith("QProgressBar::chunk {color: black; background: orange;}"));

    host.appStatus().unregisterPlugin(&wren);
    host.setMainWindow(&mainWindow);
    const QScopedPointer<GUI_ProgressDialog> alone(makeReadyProgressDialog("Ready...", host));
    EXPECT_EQ(alone->parent(), &mainWindow);
}

}  // namespace

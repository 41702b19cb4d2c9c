#include "BoxText.h"
#include "ComeToFront.h"
#include "MessageBoxes.h"
#include "ScenarioDialogs.h"
#include "Until.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

namespace {

class Boxes : public testing::Test {
protected:
    Boxes() { boxes.setHost(&test.host); }

    static Message message(Message::Kind kind, const QString& text, const ButtonTexts& buttons = {}) {
        return {kind, text, {}, nullptr, buttons, 0, false};
    }
    std::string shown() {
        QStringList lines;
        for (const QVariant& box : dialogs.takeMessages()) {
            const QVariantMap map = box.toMap();
            lines << map.value("kind").toString() + "|" + map.value("text").toString() + "|" +
                         map.value("answer").toString();
        }
        return lines.join("; ").toStdString();
    }

    /// Runs while a box stands, before it is answered.
    QMetaObject::Connection onStanding(const std::function<void(QMessageBox&)>& look) {
        return QObject::connect(&watcher, &ModalWatcher::stands,
                                [look](QDialog* dialog) { look(*qobject_cast<QMessageBox*>(dialog)); });
    }

    TestHost test;
    MessageBoxes boxes;
    ScenarioDialogs dialogs;
    ModalWatcher watcher;
};

TEST_F(Boxes, ShowTheWholeTextsOfTheirButtons) {
    qApp->setStyleSheet("QPushButton { min-width: 20px; }");
    onStanding([](const QMessageBox& box) {
        for (const QAbstractButton* button : box.buttons()) {
            EXPECT_GE(button->width(), button->sizeHint().width());
        }
    });
    boxes.show(message(Message::Confirm, "c",
                       {{QMessageBox::Yes, "Overwrite all of them"},
                        {QMessageBox::No, "Leave this camera alone"},
                        {QMessageBox::Cancel, "Write nothing any more"}}));
    qApp->setStyleSheet({});
}

TEST_F(Boxes, AreAcceptedUnlessAnAnswerWasQueued) {
    EXPECT_TRUE(boxes.show(message(Message::Warn, "w")).accepted);
    EXPECT_TRUE(boxes.show(message(Message::Confirm, "c")).accepted);
    dialogs.queueAnswers({"cancel", "OK", "later", "No"});
    EXPECT_FALSE(boxes.show(message(Message::Confirm, "c")).accepted);
    EXPECT_TRUE(boxes.show(message(Message::Confirm, "c")).accepted);
    const ButtonTexts named = {{QMessageBox::Ok, "Now"}, {QMessageBox::Cancel, "Later"}};
    EXPECT_FALSE(boxes.show(message(Message::Confirm, "c", named)).accepted);
    const ButtonTexts yesNo = {{QMessageBox::Yes, "Yes"}, {QMessageBox::No, "No"}};
    EXPECT_FALSE(boxes.show(message(Message::Confirm, "c", yesNo)).accepted);
    EXPECT_EQ(shown(), "warn|w|OK; confirm|c|OK; confirm|c|Cancel; confirm|c|OK; confirm|c|Later; confirm|c|No");
}

TEST_F(Boxes, AreRefusedByEnterAndEscapeUnlessTheCallerPrefersAnother) {
    const ButtonTexts yesNo = {{QMessageBox::Yes, "Yes"}, {QMessageBox::No, "No"}};
    const ButtonTexts four = {{QMessageBox::Yes, "Overwrite"},
                              {QMessageBox::YesToAll, "All"},
                              {QMessageBox::No, "Skip"},
                              {QMessageBox::Cancel, "Cancel"}};
    struct Case {
        const char* what;
        ButtonTexts buttons;
        int preferred;
        int byEnter;
        int byEscape;
    };
    constexpr int Cancel = QMessageBox::Cancel;
    constexpr int No = QMessageBox::No;
    for (const Case& c :
         {Case{"the usual buttons", {}, 0, Cancel, Cancel},
          Case{"named ones", {{QMessageBox::Ok, "Erase"}}, 0, Cancel, Cancel}, Case{"yes and no", yesNo, 0, No, No},
          Case{"four of them", four, 0, Cancel, Cancel}, Case{"one is preferred", four, No, No, Cancel}}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            Message question = message(Message::Confirm, "c", c.buttons);
            question.preferred = c.preferred;
            const auto pressing = onStanding([key](QMessageBox& box) { QTest::keyClick(&box, key); });
            const Answer answer = boxes.show(question);
            QObject::disconnect(pressing);
            EXPECT_EQ(answer.button, key == Qt::Key_Return ? c.byEnter : c.byEscape) << c.what;
            EXPECT_FALSE(answer.accepted) << c.what;
        }
    }
}

TEST_F(Boxes, AreNotAnsweredByThePressThatBroughtThemUp) {
    onStanding([](QMessageBox& box) {
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        QTest::mouseDClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        EXPECT_TRUE(box.isVisible());
    });
    dialogs.queueAnswers({"cancel"});
    EXPECT_FALSE(boxes.show(message(Message::Confirm, "c")).accepted);
}

TEST_F(Boxes, StandOverTheWindowInWhichTheUserIsAndGiveItTheKeyboardBack) {
    QWidget viewer;
    test.host.setMainWindow(&viewer);
    viewer.show();
    QDialog table(&viewer);
    comeToFront(table);
    for (QWidget* parent : {static_cast<QWidget*>(nullptr), &viewer}) {
        Message told = message(Message::Alert, "a");
        told.parent = parent;
        const auto looking = onStanding([&](QMessageBox& box) {
            EXPECT_EQ(box.windowHandle()->transientParent(), table.windowHandle());
            EXPECT_TRUE(table.frameGeometry().contains(box.frameGeometry().center()));
            comeToFront(viewer);
        });
        boxes.show(told);
        QObject::disconnect(looking);
        EXPECT_TRUE(until([&] { return table.isActiveWindow(); }));
    }
}

TEST_F(Boxes, OfANoticeKeepNobodyFromWorking) {
    QWidget window;
    comeToFront(window);
    boxes.notify(message(Message::Info, "one"));
    boxes.notify(message(Message::Error, "two"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(window.isActiveWindow()) << "keys go where they went";
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), "error|one\ntwo|") << "in one box";
    for (int i = 0; i < 40; ++i) {
        boxes.notify(message(Message::Error, QStringLiteral("news %1").arg(i)));
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    const bool isLastSeen = std::any_of(windows.begin(), windows.end(), [](QWidget* standing) {
        const auto* notice = qobject_cast<QMessageBox*>(standing);
        return notice != nullptr && notice->text().endsWith(QStringLiteral("news 39"));
    });
    EXPECT_TRUE(isLastSeen);
    QCoreApplication::processEvents();
    EXPECT_THAT(shown(), testing::HasSubstr("news 0\n")) << "the whole stands behind its details";
    boxes.notify(message(Message::Error, "three"));
    boxes.rejectAll();
    boxes.notify(message(Message::Error, "four"));
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), "") << "the application is closing";
}

TEST_F(Boxes, SayWhenTheyHaveNoButtonOfTheAnswer) {
    QSignalSpy unanswerable(&dialogs, &ScenarioDialogs::unanswerable);
    dialogs.queueAnswers({"perhaps"});
    EXPECT_TRUE(boxes.show(message(Message::Confirm, "Erase?")).accepted);
    ASSERT_EQ(unanswerable.count(), 1);
    EXPECT_EQ(unanswerable.at(0).at(0).toString(), "the box \"Erase?\" has no button \"perhaps\"");
}

TEST_F(Boxes, ShowMarkupAsItStandsAndFitTheScreen) {
    const QString hostile = QStringLiteral("<img src=x onerror=alert(1)>&amp;\"'\n日本 ");
    QStringList many;
    for (int i = 0; i < 256; ++i) {
        many << QStringLiteral("Camera %1: no answer").arg(i);
    }
    Message listed = message(Message::Error, hostile);
    listed.list = many;
    for (const Message& shownMessage : {message(Message::Error, hostile + QString(200, 'x')),
                                        message(Message::Error, hostile + QString(4096, 'x')), listed}) {
        const QString text = (QStringList(shownMessage.text) + shownMessage.list).join('\n');
        QString label;
        QString details;
        QSize size;
        const auto looking = onStanding([&](QMessageBox& box) {
            const auto* shownText = box.findChild<QLabel*>("qt_msgbox_label");
            EXPECT_EQ(shownText->textFormat(), Qt::PlainText);
            label = shownText->text().remove(QChar(0x200B));
            details = box.detailedText();
            size = box.size();
        });
        boxes.show(shownMessage);
        QObject::disconnect(looking);
        EXPECT_TRUE(label.startsWith(hostile) && (label == text || details == text)) << label.toStdString();
        EXPECT_EQ(shown(), "error|" + text.toStdString() + "|OK");
        EXPECT_TRUE(size.width() < 1000 && size.height() < 700) << size.width() << "x" << size.height();
    }
}

TEST_F(Boxes, TellWhenTheyAreNotToComeAgain) {
    Message silent = message(Message::Confirm, "Again?");
    silent.offersSilence = true;
    EXPECT_FALSE(boxes.show(silent).silenced);
    onStanding([](QMessageBox& box) { box.checkBox()->click(); });
    EXPECT_TRUE(boxes.show(silent).silenced);
}

TEST_F(Boxes, AreRejectedWhileTheHostCloses) {
    onStanding([&](QMessageBox&) { boxes.rejectAll(); });
    EXPECT_FALSE(boxes.show(message(Message::Confirm, "standing")).accepted);
    EXPECT_FALSE(boxes.show(message(Message::Confirm, "to come")).accepted);
}

}  // namespace

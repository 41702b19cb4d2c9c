// The boxes and notices of the host.

#include "MessageDesk.h"
#include "SimHost.h"
#include "TextKey.h"
#include "ZebCycleFailure.h"

#include <QMessageBox>
#include <QtDebug>

Message SimHost::message(int kind, const QString& text, QWidget* parent) const {
    Message message;
    message.kind = static_cast<Message::Kind>(kind);
    // The plug-in hands over keys and finished texts alike; a finished one has no translation and stays.
    message.text = translate(text).replace(QStringLiteral("<br>"), QStringLiteral("\n"));
    message.parent = parent ? parent : m_mainWindow.data();
    return message;
}

Answer SimHost::show(const Message& box) {
    m_docManager.endTurn();
    return m_desk.show(box);
}

void SimHost::tell(Message::Kind kind, const QString& text, const QStringList& list, QWidget* parent) {
    Message box = message(kind, text, parent);
    box.list = list;
    show(box);
}

void SimHost::tellFailure(const std::exception& e) {
    const QString text = QString::fromUtf8(e.what());
    if (!text.isEmpty()) {
        qCritical() << text;
        tell(Message::Error, text);
    }
}

void SimHost::notify(Message::Kind kind, const QString& text) {
    const Message notice = message(kind, text, nullptr);
    (kind == Message::Info ? qInfo() : qCritical()) << notice.text;
    m_desk.notify(notice);
}

int SimHost::choose(const QString& text, QWidget* parent, const ButtonTexts& buttons, int preferred,
                    const QStringList& list) {
    Message box = message(Message::Confirm, text, parent);
    box.list = list;
    box.buttons = buttons;
    box.preferred = preferred;
    return show(box).button;
}

bool SimHost::mayLose(const QString& question, const QStringList& lines) {
    const ButtonTexts answers{{QMessageBox::Yes, translate(TextKey("Yes"))},
                              {QMessageBox::No, translate(TextKey("No"))}};
    return choose(question, nullptr, answers, QMessageBox::No, lines) == QMessageBox::Yes;
}

void SimHost::info(const QString& text, QWidget* parent) {
    m_calls.ask("info");
    tell(Message::Info, text, {}, parent);
}

void SimHost::warn(const QString& text, QWidget* parent) {
    m_calls.ask("warn");
    tell(Message::Warn, text, {}, parent);
}

void SimHost::warnList(const QString& text, const QStringList& messages, QWidget* parent) {
    m_calls.ask("warnList");
    tell(Message::Warn, text, messages, parent);
}

void SimHost::alert(const QString& text, QWidget* parent) {
    m_calls.ask("alert");
    tell(Message::Alert, text, {}, parent);
}

void SimHost::alertList(const QString& text, const QStringList& messages, QWidget* parent) {
    m_calls.ask("alertList");
    tell(Message::Alert, text, messages, parent);
}

bool SimHost::confirm(const QString& text) {
    m_calls.ask("confirm");
    return show(message(Message::Confirm, text, nullptr)).accepted;
}

bool SimHost::confirmModal(const QString& text, QWidget* parent, const ButtonTexts& buttons) {
    m_calls.ask("confirmModal");
    Message box = message(Message::Confirm, text, parent);
    box.buttons = buttons;
    return show(box).accepted;
}

bool SimHost::confirmWithDontShowAgain(const QString& text, const QString& prefKey, QWidget* parent,
                                       const ButtonTexts& buttons) {
    m_calls.ask("confirmWithDontShowAgain");
    Message box = message(Message::Confirm, text, parent);
    box.buttons = buttons;
    return showSilenceable(box, prefKey);
}

void SimHost::alertWithDontShowAgain(const QString& text, const QString& prefKey, QWidget* parent,
                                     const ButtonTexts& buttons) {
    m_calls.ask("alertWithDontShowAgain");
    Message box = message(Message::Alert, text, parent);
    box.buttons = buttons;
    showSilenceable(box, prefKey);
}

/// Whether the user agreed.
bool SimHost::showSilenceable(Message box, const QString& prefKey) {
    box.offersSilence = true;
    const Answer answer = show(box);
    if (answer.silenced) {
        m_prefs.setValue(prefKey, false);
    }
    return answer.accepted;
}

void SimHost::errorHandler(const std::exception& e) {
    m_calls.ask("errorHandler");
    if (dynamic_cast<const ZebCycleFailure*>(&e) == nullptr) {
        tellFailure(e);
    } else if (*e.what() != '\0') {
        m_desk.notify(message(Message::Error, QString::fromUtf8(e.what()), nullptr));
    }
}

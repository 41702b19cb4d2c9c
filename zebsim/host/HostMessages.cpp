#include "HostMessages.h"

#include "Preferences.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "ZebCycleFailure.h"
#include "ZebHost.h"

#include <QMessageBox>
#include <QtDebug>

#include <algorithm>

/// A failure often has the name of a camera or file before its reason.
QString HostMessages::translated(const QString& text) const {
    const QString whole = m_host.translate(text);
    const int end = text.indexOf(QLatin1String(": "));
    if (whole != text || end < 0 || text.contains(QLatin1Char('\n'))) {
        return whole;
    }
    return text.left(end + 2) % translated(text.mid(end + 2));
}

Message HostMessages::message(Message::Kind kind, const QString& text, QWidget* parent) const {
    Message message;
    message.kind = kind;
    // The plug-in hands over keys and finished texts alike; a finished one has no translation and stays.
    message.text = m_host.translate(text).replace(QStringLiteral("<br>"), QStringLiteral("\n"));
    message.parent = parent ? parent : m_host.getMainWindow();
    return message;
}

Answer HostMessages::show(const Message& box) {
    m_docs.endTurn();
    return m_desk.show(box);
}

void HostMessages::tell(Message::Kind kind, const QString& text, const QStringList& list, QWidget* parent) {
    Message box = message(kind, text, parent);
    box.list = list;
    show(box);
}

void HostMessages::tellFailure(const std::exception& e) {
    const QString text = QString::fromUtf8(e.what());
    if (!text.isEmpty()) {
        qCritical() << text;
        QStringList lines = text.split(QLatin1Char('\n'));
        std::transform(lines.begin(), lines.end(), lines.begin(),
                       [this](const QString& line) { return translated(line); });
        tell(Message::Error, m_host.translate(text) == text ? lines.join(QLatin1Char('\n')) : text);
    }
}

void HostMessages::tellFailureOrNews(const std::exception& e) {
    if (dynamic_cast<const ZebCycleFailure*>(&e) == nullptr) {
        tellFailure(e);
    } else if (*e.what() != '\0') {
        m_desk.notify(message(Message::Error, QString::fromUtf8(e.what()), nullptr));
    }
}

void HostMessages::notify(Message::Kind kind, const QString& text) {
    const Message notice = message(kind, text, nullptr);
    (kind == Message::Info ? qInfo() : qCritical()) << notice.text;
    m_desk.notify(notice);
}

bool HostMessages::confirm(const QString& text, QWidget* parent, const ButtonTexts& buttons) {
    Message box = message(Message::Confirm, text, parent);
    box.buttons = buttons;
    return show(box).accepted;
}

bool HostMessages::showSilenceable(Message::Kind kind, const QString& text, const QString& prefKey, QWidget* parent,
                                   const ButtonTexts& buttons) {
    Message box = message(kind, text, parent);
    box.buttons = buttons;
    box.offersSilence = true;
    const Answer answer = show(box);
    if (answer.silenced) {
        m_prefs.setValue(prefKey, false);
    }
    return answer.accepted;
}

int HostMessages::choose(const QString& text, QWidget* parent, const ButtonTexts& buttons, int preferred,
                         const QStringList& list) {
    Message box = message(Message::Confirm, text, parent);
    box.list = list;
    box.buttons = buttons;
    box.preferred = preferred;
    return show(box).button;
}

bool HostMessages::agrees(const QString& question, const QStringList& list) {
    const ButtonTexts answers{{QMessageBox::Yes, m_host.translate(TextKey("Yes"))},
                              {QMessageBox::No, m_host.translate(TextKey("No"))}};
    return choose(question, nullptr, answers, QMessageBox::No, list) == QMessageBox::Yes;
}

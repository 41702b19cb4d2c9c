#include "HostMessages.h"

#include "Preferences.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "ZebCycleFailure.h"
#include "ZebHost.h"

#include <QMessageBox>
#include <QtDebug>

#include <algorithm>

namespace {

/// Of a failure, with colons between: file, line and member, or camera and setting, and a reason.
constexpr int MostParts = 4;

}  // namespace

/// A failure often has the name of a camera or file before its reason.
QString HostMessages::translated(const QString& text) const {
    int from = 0;
    for (int part = 0; part < MostParts && from >= 0; ++part) {
        const QString reason = text.mid(from);
        const QString known = m_host.translate(reason);
        if (known != reason) {
            return text.left(from) % known;
        }
        const int colon = text.indexOf(QLatin1String(": "), from);
        from = colon < 0 ? -1 : colon + 2;
    }
    return text;
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

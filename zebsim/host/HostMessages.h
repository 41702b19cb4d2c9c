#pragma once

#include "MessageDesk.h"

#include <exception>

class Preferences;
class SimDocManager;
class ZebHost;

/// The boxes and notices of the host. A text is translated, "<br>" in it is a line feed, and a box without a parent
/// stands over the main window. GUI thread.
class HostMessages {
public:
    /// All must outlive the object.
    HostMessages(const ZebHost& host, MessageDesk& desk, Preferences& prefs, SimDocManager& docs)
        : m_host(host), m_desk(desk), m_prefs(prefs), m_docs(docs) {}

    void tell(Message::Kind kind, const QString& text, const QStringList& list = {}, QWidget* parent = nullptr);
    /// With its line in the log; nothing for an empty text.
    void tellFailure(const std::exception& e);
    /// The same beside the work that goes on, and without a line, when it is a `ZebCycleFailure`.
    void tellFailureOrNews(const std::exception& e);
    /// A failure with its reason in the user's language, where it has one.
    QString translated(const QString& text) const;
    /// Says something beside the work that goes on, and in the log.
    void notify(Message::Kind kind, const QString& text);

    /// Whether the user has agreed.
    bool confirm(const QString& text, QWidget* parent = nullptr, const ButtonTexts& buttons = {});
    /// The same of a box that offers "don't show again", which stores false under `prefKey`.
    bool showSilenceable(Message::Kind kind, const QString& text, const QString& prefKey, QWidget* parent,
                         const ButtonTexts& buttons);
    /// Asks a question with answers of its own, of which Enter means `preferred`; answers the chosen one of `buttons`,
    /// 0 when the box was left.
    int choose(const QString& text, QWidget* parent, const ButtonTexts& buttons, int preferred,
               const QStringList& list = {});

    /// Asks with Yes and No, of which Enter means no. Whether the user said yes.
    bool agrees(const QString& question, const QStringList& list);

private:
    Message message(Message::Kind kind, const QString& text, QWidget* parent) const;
    Answer show(const Message& box);

    const ZebHost& m_host;
    MessageDesk& m_desk;
    Preferences& m_prefs;
    SimDocManager& m_docs;
};

#pragma once

#include "ZebTypes.h"

#include <QStringList>

class QWidget;

/// A message box that the host wants to show.
struct Message {
    enum Kind { Info, Warn, Alert, Confirm, Error };

    Kind kind = Info;
    /// Plain text; lines are separated by line feeds.
    QString text;
    /// Lines of a list under the text; mostly empty.
    QStringList list;
    /// May be null.
    QWidget* parent = nullptr;
    /// Texts for the buttons; empty for the usual ones.
    ButtonTexts buttons;
    /// The one of them that Enter means; 0 for the one that refuses.
    int preferred = 0;
    /// Whether the box offers "don't show again".
    bool offersSilence = false;
};

/// How the user left a message box.
struct Answer {
    bool accepted = true;
    /// "Don't show again" was ticked.
    bool silenced = false;
    /// The chosen one of `Message::buttons`; 0 for none of them.
    int button = 0;
};

/// Shows message boxes: to a user, or to a test that has its answers ready. GUI thread.
class MessageDesk {
public:
    virtual ~MessageDesk() = default;

    /// Back when the box is dismissed. Every kind but `Confirm` has an OK button only.
    virtual Answer show(const Message& message) = 0;
    /// Tells something beside the work that goes on: a desk with windows keeps no one from them, and is back at once.
    virtual void notify(const Message& message) { show(message); }
};

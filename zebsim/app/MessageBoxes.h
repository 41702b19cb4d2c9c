#pragma once

#include "MessageDesk.h"

#include <QPointer>

class QMessageBox;
class ZebHost;

/// Shows the host's messages as message boxes, over the window that the user works in.
class MessageBoxes : public MessageDesk {
public:
    MessageBoxes() = default;
    ~MessageBoxes() override;
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    /// Name of a box's property that tells what kind of message it is: "info", "warn", "alert", "confirm" or "error".
    static constexpr auto KindProperty = "messageKind";
    /// Name of a box's property that holds the whole text, as it was before it was made to fit.
    static constexpr auto TextProperty = "messageText";

    /// Whose style and language the boxes have; must outlive the boxes. What is to be shown before is held back.
    void setHost(const ZebHost* host) { m_host = host; }
    /// Shows what was held back, one box after the other.
    void showHeld();
    /// From now on no box is shown; those that stand and those to come are rejected.
    void rejectAll();
    /// Gives the notice that stands the style of the host, which may have changed.
    void followStyle();

    /// Enter and Escape refuse a question, unless its caller prefers another button.
    Answer show(const Message& message) override;
    /// The box is not modal, leaves the keyboard where it is, and stands also while the viewer is minimised. While it
    /// stands, further texts join it, and one of an error makes it one.
    void notify(const Message& message) override;

private:
    QMessageBox* makeBox(const Message& message) const;
    void setKind(QMessageBox& box, Message::Kind kind) const;
    void join(QMessageBox& notice, const Message& message) const;
    static void setTexts(QMessageBox& box, const QString& whole, const QString& shown);
    void nameButtons(QMessageBox& box, const ButtonTexts& texts) const;
    QString translated(const QString& text) const;

    const ZebHost* m_host = nullptr;
    QList<Message> m_held;
    QPointer<QMessageBox> m_notice;
    QString m_noticeStyle;
    bool m_rejecting = false;
};

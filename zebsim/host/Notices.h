#pragma once

#include "MessageDesk.h"

#include <QObject>

#include <functional>

/// Messages to the user from work that nobody sits before. They keep nobody from working on.
class Notices : public QObject {
    Q_OBJECT
public:
    /// `show` is called on the GUI thread, from the event loop, and must come back at once.
    explicit Notices(std::function<void(Message::Kind, const QString&)> show) : m_show(std::move(show)) {}

    /// Any thread.
    void add(Message::Kind kind, const QString& text) {
        QMetaObject::invokeMethod(
            this, [this, kind, text] { m_show(kind, text); }, Qt::QueuedConnection);
    }

private:
    std::function<void(Message::Kind, const QString&)> m_show;
};

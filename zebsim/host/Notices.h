#pragma once

#include <QObject>

#include <functional>

/// Messages to the user from work that nobody sits before. They keep nobody from working on.
class Notices : public QObject {
    Q_OBJECT
public:
    /// `show` is called on the GUI thread, from the event loop, and must come back at once.
    explicit Notices(std::function<void(const QString&)> show) : m_show(std::move(show)) {}

    /// Any thread.
    void add(const QString& text) {
        QMetaObject::invokeMethod(
            this, [this, text] { m_show(text); }, Qt::QueuedConnection);
    }

private:
    std::function<void(const QString&)> m_show;
};

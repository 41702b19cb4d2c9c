#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

/// Messages to the user from work that nobody sits before. Each waits until no modal dialog stands.
class WaitingMessages : public QObject {
    Q_OBJECT
public:
    /// `show` is called on the GUI thread, from the event loop.
    explicit WaitingMessages(std::function<void(const QString&)> show) : m_show(std::move(show)) {}

    /// Any thread.
    void add(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showAll();

    std::function<void(const QString&)> m_show;
    QStringList m_texts;
};

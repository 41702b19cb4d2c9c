#pragma once

#include "MessageDesk.h"

#include <QList>

#include <functional>
#include <utility>

/// Keeps the message boxes and notices, and answers boxes from a queue; without an answer one is accepted.
class ScriptedDesk : public MessageDesk {
public:
    Answer show(const Message& message) override {
        shown.append(message);
        if (const auto work = std::exchange(whileStanding, nullptr)) {
            work();
        }
        return answers.isEmpty() ? Answer() : answers.takeFirst();
    }
    void notify(const Message& message) override {
        shown.append(message);
        beside.append(message.text);
    }

    QStringList texts() const {
        QStringList list;
        for (const Message& message : shown) {
            list.append(message.text);
        }
        return list;
    }
    /// The texts, which are forgotten then.
    QStringList take() {
        const QStringList list = texts();
        shown.clear();
        return list;
    }

    QList<Message> shown;
    /// Those of them that were notices.
    QStringList beside;
    QList<Answer> answers;
    /// Runs while the next box stands.
    std::function<void()> whileStanding;
};

#pragma once

#include "host/MessageDesk.h"

#include <QList>

#include <functional>
#include <utility>

/// Keeps the message boxes and answers them from a queue; without an answer a box is accepted.
class ScriptedDesk : public MessageDesk {
public:
    Answer show(const Message& message) override {
        shown.append(message);
        if (const auto work = std::exchange(whileStanding, nullptr)) {
            work();
        }
        return answers.isEmpty() ? Answer() : answers.takeFirst();
    }

    QStringList texts() const {
        QStringList list;
        for (const Message& message : shown) {
            list.append(message.text);
        }
        return list;
    }

    QList<Message> shown;
    QList<Answer> answers;
    /// Runs while the next box stands.
    std::function<void()> whileStanding;
};

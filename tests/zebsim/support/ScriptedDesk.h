#pragma once

#include "host/MessageDesk.h"

#include <QList>

#include <functional>

/// Keeps the message boxes and answers them from a queue; without an answer a box is accepted.
class ScriptedDesk : public MessageDesk {
public:
    Answer show(const Message& message) override {
        shown.append(message);
        if (whileStanding) {
            whileStanding();
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
    /// Runs while a box stands.
    std::function<void()> whileStanding;
};

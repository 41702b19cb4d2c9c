#pragma once

#include "Course.h"
#include "MessageDesk.h"

#include <QList>

#include <functional>
#include <utility>

/// Keeps the message boxes and notices, which stand in the course too, and answers boxes from a queue; without an
/// answer one is accepted.
class ScriptedDesk : public MessageDesk {
public:
    Answer show(const Message& message) override {
        keep(message);
        if (const auto work = std::exchange(whileStanding, nullptr)) {
            work();
        }
        return answers.isEmpty() ? Answer() : answers.takeFirst();
    }
    void notify(const Message& message) override {
        keep(message);
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

private:
    void keep(const Message& message) {
        static constexpr const char* Kinds[] = {"info ", "warn ", "alert ", "confirm ", "error "};
        Course::note(Kinds[message.kind] + (QStringList(message.text) + message.list).join(QLatin1Char('|')));
        shown.append(message);
    }
};

#pragma once

#include "FailureText.h"

#include <QHash>
#include <QMap>
#include <QStringList>

/// What the update cycles of a page fail to read, by its source: a question of the page, a camera, a hub. GUI thread.
///
/// A failure is known by its text, for several sources may meet the same one. It is told when a source meets it that
/// has not, or that has had an answer since, and no other source meets it as well. The log has a line when a failure
/// begins and one with the number of times it was met when none meets it any more.
class CycleFailures {
public:
    /// Runs `ask`, and notes what `source` makes of it. False when it has thrown.
    template <typename Ask>
    bool attempt(const QString& source, Ask&& ask) {
        try {
            ask();
        } catch (...) {
            failed(source, currentFailureText());
            return false;
        }
        answered(source);
        return true;
    }

    /// `source` tells one from the other; `text` is for the user and names what has failed.
    void failed(const QString& source, const QString& text);
    void answered(const QString& source);
    /// A cycle begins. A failure that was not met in the last one is over, whether somebody asks again or not.
    void nextCycle();
    /// Whether none was met in this cycle or the last.
    bool isEmpty() const;

    /// The texts that are to be told, since the last call, a line each; empty when there are none.
    QString takeNew();

private:
    struct Failing {
        /// Those that have met it since their last answer, with the number of the cycle in which they did last.
        QHash<QString, int> sources;
        /// Since it began; 0 when it is over.
        int count = 0;
    };

    bool isMet(const Failing& failing) const;
    static void end(const QString& text, Failing& failing);

    /// By their texts.
    QMap<QString, Failing> m_failing;
    QStringList m_new;
    int m_cycle = 0;
};

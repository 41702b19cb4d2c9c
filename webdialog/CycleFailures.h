#pragma once

#include <QHash>
#include <QMap>
#include <QStringList>

/// What the update cycles of a page fail to read, by its source: a question of the page, a camera, a hub. GUI thread.
///
/// A failure is known by its text, for several sources may meet the same one. It is new until it is told, and again
/// when all that met it have been whole since. A new one stands in the log at once and waits to be told; when it is
/// over, the log gets one more line with the number of times it was met.
class CycleFailures {
public:
    /// `source` tells one from the other; `text` is for the user and names what has failed. An empty text is none.
    void failed(const QString& source, const QString& text);
    void whole(const QString& source);
    /// A cycle begins. What failed before the last one and was not asked in it has nothing to do with this failure.
    void nextCycle();
    /// Whether everything was whole when it was asked last.
    bool isEmpty() const { return m_failing.isEmpty(); }

    /// The texts that are new since the last call, a line each; empty when there are none.
    QString takeNew();

private:
    using Sources = QHash<QString, int>;
    struct Failing {
        /// Those that meet it, with the number of the cycle in which they did last.
        Sources sources;
        int count = 0;
    };

    /// Leaves out the sources that `isOver` tells, and what none meets any more.
    template <typename IsOver>
    void drop(IsOver&& isOver);

    /// By their texts.
    QMap<QString, Failing> m_failing;
    QStringList m_new;
    int m_cycle = 0;
};

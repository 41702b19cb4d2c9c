#pragma once

#include <QMap>
#include <QSet>
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
    /// Whether everything was whole when it was asked last.
    bool isEmpty() const { return m_failing.isEmpty(); }

    /// The texts that are new since the last call, a line each; empty when there are none.
    QString takeNew();

private:
    struct Failing {
        QSet<QString> sources;
        int count = 0;
    };

    /// By their texts.
    QMap<QString, Failing> m_failing;
    QStringList m_new;
};

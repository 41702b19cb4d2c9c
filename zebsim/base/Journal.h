#pragma once

#include "Ring.h"
#include "ZebTypes.h"

#include <QObject>
#include <QVariantList>

#include <atomic>

/// The calls of the plug-in that change something, the newest of them: a ring. Any thread.
class Journal : public QObject {
    Q_OBJECT
public:
    /// Calls that are kept; older ones are forgotten.
    static constexpr int Capacity = 10000;

    /// Adds a call, as ("ZebCameraOps::setRecordRate", {{3, 5}, 2000}): documents stand as their keys. No effect when
    /// off.
    void record(const char* call, const QVariantList& args = {});

    /// Keys as an argument.
    static QVariant keyList(const DocKeyList& keys);

    /// On at first.
    void setEnabled(bool enabled);

    /// Number of calls ever added; a mark for `since`.
    quint64 count() const { return m_calls.count(); }
    /// The calls added after the mark `mark`, oldest first, each a map with `call` (text) and `args` (list).
    QVariantList since(quint64 mark) const { return m_calls.since(mark); }

Q_SIGNALS:
    /// A call was added; raised on the thread that made it.
    void recorded(const QString& call, const QVariantList& args);

private:
    std::atomic<bool> m_enabled{true};
    Ring<QVariant> m_calls{Capacity};
};

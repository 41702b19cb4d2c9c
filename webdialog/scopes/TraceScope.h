#pragma once

#include "TraceText.h"

/// Writes the line `[ENTER]` when it is made and `[LEAVE]` when it goes, on every way out of a method.
class TraceScope {
public:
    /// `name` is class and method.
    explicit TraceScope(const QString& name, TraceArgs args = {});
    ~TraceScope();
    Q_DISABLE_COPY(TraceScope)

private:
    const QString m_name;
};

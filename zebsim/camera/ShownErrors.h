#pragma once

#include "camera/CameraError.h"

#include <QByteArray>
#include <QPair>
#include <QSet>

#include <atomic>
#include <mutex>

/// The failing questions that the user has been told of, so that one that comes at every tick is told once. Any thread.
class ShownErrors {
public:
    /// Whether this failure is to be shown: true once, until the same question has had an answer.
    bool showNow(const QueryError& error);
    void answered(DOCKEY key, const char* operation);
    void clear();

private:
    std::atomic<bool> m_any{false};
    std::mutex m_mutex;
    QSet<QPair<DOCKEY, QByteArray>> m_shown;
};

#pragma once

#include "FunctionGenerator.h"
#include "VisaBehaviour.h"

#include <QSet>
#include <QStringList>

#include <condition_variable>
#include <cstdint>
#include <mutex>

/// The library behind its functions: one instrument, the sessions to it, and what the script makes of the calls. Any
/// thread. The calls answer a VISA status.
class ScriptedVisa {
public:
    static ScriptedVisa& instance();

    std::int32_t openManager(std::uint32_t& manager);
    std::int32_t open(std::uint32_t manager, const QByteArray& resource, std::uint32_t& session);
    std::int32_t print(std::uint32_t session, const QByteArray& text);
    /// Puts at most `size` bytes of the reply into `buffer`, a zero behind them only where there is room. The rest of
    /// a longer reply is lost.
    std::int32_t scan(std::uint32_t session, char* buffer, std::size_t size);
    std::int32_t clear(std::uint32_t session);
    std::int32_t close(std::uint32_t object);

    /// See `VisaScript.h`. Throws `std::runtime_error` when the script is not understood.
    void replaceScript(const QByteArray& json);
    QStringList takeJournal();
    int signal();
    void release();

private:
    using Lock = std::unique_lock<std::mutex>;

    template <typename Work>
    std::int32_t call(const char* name, const QString& argument, Work&& work);
    std::int32_t planned(Lock& lock, const char* name);
    std::uint32_t open(QSet<std::uint32_t>& sessions);
    QString nameOf(std::uint32_t object) const;

    std::mutex m_mutex;
    std::condition_variable m_released;
    VisaBehaviour m_behaviour;
    /// Scripts so far: a call that is held knows by it that its own has gone.
    int m_scriptCount = 0;
    bool m_isReleased = false;
    QMap<QByteArray, int> m_counts;
    QStringList m_journal;
    FunctionGenerator m_generator;
    QSet<std::uint32_t> m_managers;
    QSet<std::uint32_t> m_instruments;
    std::uint32_t m_lastSession = 0;
};

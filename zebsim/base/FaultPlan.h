#pragma once

#include "ZebTypes.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QVector>

#include <atomic>
#include <functional>
#include <mutex>

class Clock;

/// What goes wrong at an operation. All of it empty: nothing.
struct Fault {
    /// The operation throws this text; empty: it does not.
    QString throws;
    /// The operation takes this much longer, in milliseconds.
    int delay = 0;
    /// The camera is gone from the moment the operation is called; with the operation "*" at once.
    bool gone = false;
    /// So many calls meet no fault before.
    int afterCalls = 0;

    bool isEmpty() const { return throws.isEmpty() && delay <= 0 && !gone; }
};

/// The faults planted on cameras, hubs and the host itself, by key and operation. Any thread.
///
/// Operations are named as the host call is: "setRecordRate", "getRecordRate", "connectDocs". "*" stands for all that
/// have no fault of their own.
class FaultPlan {
public:
    static constexpr auto EveryOperation = "*";
    /// Key of the host; no camera has it.
    static constexpr DOCKEY Host = zeb::NoDocKey;
    /// Key of the disk, whose one operation is "write", once a file of a save.
    static constexpr DOCKEY Disk = Host - 1;

    /// To be told when a camera goes, and when it is back; on the thread that finds out, and without asking the plan.
    void whenGone(std::function<void()> tell) { m_tellGone = std::move(tell); }

    /// Plants a fault in the place of an earlier one. An empty fault takes it away, and brings a camera back that it
    /// had made gone.
    void plant(DOCKEY key, const QString& operation, const Fault& fault);
    /// Those of a key, by operation.
    QHash<QString, Fault> planted(DOCKEY key) const;
    /// Plants a fault on the call number `call` of those that cameras, hubs, the host and the disk get from now on,
    /// counted from 1.
    void plantAt(int call, const Fault& fault);
    /// One of those calls.
    struct Call {
        DOCKEY key = Host;
        QByteArray operation;
    };
    /// Those since `plantAt`, in their order.
    QVector<Call> calls() const;
    void clear();

    /// An operation meets its fault, with the time it takes; from then on the camera is gone if the fault says so.
    /// Answers why the operation fails: empty when it does not, and for a camera that is gone.
    QString suffer(DOCKEY key, const char* operation, Clock& clock);
    bool isGone(DOCKEY key) const;

private:
    Fault meet(DOCKEY key, const char* operation);
    /// Under the lock, as `updateAny`.
    void insertGone(DOCKEY key);
    void updateAny();

    std::function<void()> m_tellGone = [] {};
    std::atomic<bool> m_any{false};
    mutable std::mutex m_mutex;
    QHash<DOCKEY, QHash<QString, Fault>> m_faults;
    QSet<DOCKEY> m_gone;
    QVector<Call> m_calls;
    int m_faultyCall = 0;
    Fault m_callFault;
};

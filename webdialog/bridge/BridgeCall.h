#pragma once

#include "BridgePause.h"
#include "CycleFailures.h"
#include "JS_Mediator.h"
#include "OperationEventHandler.h"
#include "TraceScope.h"

#include <QDebug>

#include <utility>

/// The frame of a bridge call: no exception leaves it, for one that reaches the page's script ends the process.
///
/// The slot's scopes are made inside `work`, so they have written their lines and asked for the update before
/// the message box stands; the bridge counts as busy until the box is gone.
template <typename Work>
void bridgeCall(JS_Mediator& bridge, Work&& work) {
    const BridgePause pause(bridge);
    try {
        std::forward<Work>(work)();
    } catch (...) {
        bridge.reportCurrentFailure();
    }
    bridge.tellCycleFailures();
}

/// The same for a call that answers: what `work` returns, or `fallback` after a failure.
template <typename Result, typename Work>
Result bridgeCall(JS_Mediator& bridge, Result fallback, Work&& work) {
    bridgeCall(bridge, [&] { fallback = std::forward<Work>(work)(); });
    return fallback;
}

/// Which question of a page: the slot and, where their answers fail apart from each other, its argument.
struct Query {
    Query(const char* method, QVariant arg = {}) : slot(method), argument(std::move(arg)) {}

    QString source() const { return QLatin1String(slot) % QLatin1Char(' ') % argument.toString(); }

    /// A literal.
    const char* slot;
    QVariant argument;
};

/// For what the update cycle asks. A failure comes again at every cycle while it lasts, so it is told when it is new
/// and not again until the same question has had an answer.
template <typename Result, typename Work>
Result queryCall(JS_Mediator& bridge, const Query& query, Result fallback, Work&& work) {
    const BridgePause pause(bridge);
    bridge.cycleFailures().attempt(query.source(), [&] { fallback = std::forward<Work>(work)(); });
    bridge.tellCycleFailures();
    return fallback;
}

/// The same for what the cycle does without an answer.
template <typename Work>
void queryCall(JS_Mediator& bridge, const Query& query, Work&& work) {
    queryCall(bridge, query, true, [&work] {
        std::forward<Work>(work)();
        return true;
    });
}

/// For what changes cameras or the host. The page can get here inside another call only from an event loop that this
/// call runs, over a box or a dialog: what the user decides there must not find other cameras than the user saw. So it
/// is refused with a line in the log. `method` is class and method, `args` what `traceArg` built.
template <typename Work>
void changingCall(JS_Mediator& bridge, const QString& method, const QString& args, Work&& work) {
    if (bridge.isInCall()) {
        qWarning() << method << args << "refused: another call of the page still waits for its end";
        return;
    }
    bridgeCall(bridge, std::forward<Work>(work));
}

/// A changing call whose end asks for an update.
template <typename Work>
void operationCall(JS_Mediator& bridge, const QString& method, const QString& args, Work&& work) {
    changingCall(bridge, method, args, [&] {
        const OperationEventHandler scope(bridge, method, args);
        std::forward<Work>(work)();
    });
}

/// A changing call that only leaves its lines in the log.
template <typename Work>
void tracedCall(JS_Mediator& bridge, const QString& method, const QString& args, Work&& work) {
    changingCall(bridge, method, args, [&] {
        const TraceScope scope(method, args);
        std::forward<Work>(work)();
    });
}

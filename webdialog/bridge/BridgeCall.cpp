#include "BridgeCall.h"

#include "APP_ConcurrentException.h"
#include "APP_Exception.h"
#include "BridgePause.h"
#include "LogFailure.h"
#include "OperationEventHandler.h"
#include "TextKey.h"
#include "TraceScope.h"
#include "ZebCycleFailure.h"
#include "ZebHost.h"

#include <QDebug>

void JS_Mediator::runCall(CallKind kind, const QString& name, TraceArgs args, const std::function<void()>& work) {
    if ((kind & Exclusive) != 0 && isInCall()) {
        qWarning() << name << traceText(args) << "refused: another call of the page still waits for its end";
        return;
    }
    const BridgePause pause(*this);
    if ((kind & Query) != 0) {
        m_cycleFailures.attempt(name % traceText(args), [&] { runTraced(kind, name, args, work); });
    } else {
        try {
            runTraced(kind, name, args, work);
        } catch (...) {
            reportCurrentFailure();
        }
    }
    tellCycleFailures();
}

/// The scopes have written their lines and asked for the update before the box of a failure stands.
void JS_Mediator::runTraced(CallKind kind, const QString& name, TraceArgs args, const std::function<void()>& work) {
    if ((kind & Updating) != 0) {
        const OperationEventHandler scope(*this, name, args);
        work();
    } else if ((kind & Traced) != 0) {
        const TraceScope scope(name, args);
        work();
    } else {
        work();
    }
}

/// Shows the exception that is being handled. Only inside a `catch`.
void JS_Mediator::reportCurrentFailure() noexcept {
    logFailure([this] {
        try {
            throw;
        } catch (const APP_ConcurrentException& e) {
            APP_Exception inner = e.inner();
            errorHandler(inner);
        } catch (std::exception& e) {
            errorHandler(e);
        } catch (...) {
            APP_Exception unknown(TextKey("Unknown failure."));
            errorHandler(unknown);
        }
    });
}

/// Tells what is new of it, as one `ZebCycleFailure`.
void JS_Mediator::tellCycleFailures() noexcept {
    const QString news = m_cycleFailures.takeNew();
    if (!news.isEmpty()) {
        logFailure([&] { host().errorHandler(ZebCycleFailure(news.toStdString())); });
    }
}

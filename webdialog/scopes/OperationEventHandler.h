#pragma once

#include "TraceText.h"

class JS_Mediator;

/// A trace scope for methods that change what the page shows: its end asks for an update before it writes `[LEAVE]`.
class OperationEventHandler {
public:
    /// `bridge` must outlive the scope. `name` is class and method.
    OperationEventHandler(JS_Mediator& bridge, const QString& name, TraceArgs args = {});
    ~OperationEventHandler();
    Q_DISABLE_COPY(OperationEventHandler)

private:
    JS_Mediator& m_bridge;
    const QString m_name;
};

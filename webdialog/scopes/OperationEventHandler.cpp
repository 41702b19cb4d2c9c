#include "OperationEventHandler.h"

#include "JS_Mediator.h"

OperationEventHandler::OperationEventHandler(JS_Mediator& bridge, const QString& name, TraceArgs args)
    : m_bridge(bridge), m_name(name) {
    logEnter(m_name, traceText(args).trimmed());
}

OperationEventHandler::~OperationEventHandler() {
    m_bridge.updateUI();
    logLeave(m_name);
}

#include "OperationEventHandler.h"

#include "JS_Mediator.h"
#include "TraceText.h"

OperationEventHandler::OperationEventHandler(JS_Mediator& bridge, const QString& name, const QString& args)
    : m_bridge(bridge), m_name(name) {
    logEnter(m_name, args.trimmed());
}

OperationEventHandler::~OperationEventHandler() {
    m_bridge.updateUI();
    logLeave(m_name);
}

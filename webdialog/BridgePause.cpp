#include "BridgePause.h"

#include "JS_Mediator.h"

BridgePause::BridgePause(JS_Mediator& bridge) : m_bridge(bridge) {
    m_bridge.enterCall();
}

BridgePause::~BridgePause() {
    m_bridge.leaveCall();
}

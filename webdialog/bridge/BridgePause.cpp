#include "BridgePause.h"

#include "PageBridge.h"

BridgePause::BridgePause(PageBridge& bridge) : m_bridge(bridge) {
    m_bridge.enterCall();
}

BridgePause::~BridgePause() {
    m_bridge.leaveCall();
}

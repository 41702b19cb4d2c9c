#pragma once

#include <QtGlobal>

class PageBridge;

/// Marks that a call of the bridge runs. `JS_Mediator::runCall` makes it; nobody else needs to.
class BridgePause {
public:
    explicit BridgePause(PageBridge& bridge);
    ~BridgePause();
    Q_DISABLE_COPY(BridgePause)

private:
    PageBridge& m_bridge;
};

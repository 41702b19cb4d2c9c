#pragma once

#include <QtGlobal>

class JS_Mediator;

/// Marks that a call of the bridge runs. `bridgeCall` makes it; nobody else needs to.
class BridgePause {
public:
    explicit BridgePause(JS_Mediator& bridge);
    ~BridgePause();
    Q_DISABLE_COPY(BridgePause)

private:
    JS_Mediator& m_bridge;
};

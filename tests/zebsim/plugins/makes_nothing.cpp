#include "PLG_Interface.h"

extern "C" Q_DECL_EXPORT PLG_Interface* makeButtonPlugin() {
    return nullptr;
}

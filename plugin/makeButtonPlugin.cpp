#include "PLG_wren.h"

#include <new>

/// The one symbol of the library. The caller owns what it gets; null when memory is exhausted.
extern "C" Q_DECL_EXPORT PLG_Interface* makeButtonPlugin() {
    try {
        return new PLG_wren;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

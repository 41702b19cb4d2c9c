#include <QtGlobal>

extern "C" Q_DECL_EXPORT int makeSomethingElse() {
    return 1;
}

#include "CameraState.h"

#include "PlainState.h"

QVariantMap CameraState::toPlain() const {
    return readMembers(staticMetaObject, this);
}

void CameraState::apply(const QVariantMap& members) {
    CameraState changed = *this;
    writeMembers(staticMetaObject, &changed, members);
    *this = changed;
}

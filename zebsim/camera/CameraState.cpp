#include "CameraState.h"

#include "PlainState.h"

#include <QMetaClassInfo>

namespace {

QStringList membersOf(const char* kind) {
    const QMetaObject& type = CameraState::staticMetaObject;
    return QString::fromLatin1(type.classInfo(type.indexOfClassInfo(kind)).value()).split(QLatin1Char(' '));
}

}  // namespace

const QStringList& CameraState::recordSettings() {
    static const QStringList names = membersOf("recordSettings");
    return names;
}

const QStringList& CameraState::settings() {
    static const QStringList names = membersOf("recordSettings") + membersOf("userSettings");
    return names;
}

QVariantMap CameraState::toPlain() const {
    return readMembers(staticMetaObject, this);
}

QVariantMap CameraState::toPlain(const QStringList& names) const {
    return readMembers(staticMetaObject, this, names);
}

void CameraState::apply(const QVariantMap& members) {
    CameraState changed = *this;
    writeMembers(staticMetaObject, &changed, members);
    *this = changed;
}

#include "SlotCall.h"

void callSlot(QObject& object, const QMetaMethod& method, const QMap<int, QVariant>& values) {
    QVariantList given;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const int type = method.parameterType(i);
        given.append(values.value(type, QVariant(type, nullptr)));
    }
    QVariant answer(method.returnType() == QMetaType::Void ? QVariant() : QVariant(method.returnType(), nullptr));
    QVector<void*> arguments{answer.data()};
    for (int i = 0; i < given.size(); ++i) {
        const bool plain = method.parameterType(i) == QMetaType::QVariant;
        arguments.append(plain ? static_cast<void*>(&given[i]) : given[i].data());
    }
    QMetaObject::metacall(&object, QMetaObject::InvokeMetaMethod, method.methodIndex(), arguments.data());
}

QList<QMetaMethod> slotsOf(const QMetaObject& type, bool withBases) {
    QList<QMetaMethod> found;
    for (int i = withBases ? QObject::staticMetaObject.methodCount() : type.methodOffset(); i < type.methodCount();
         ++i) {
        if (type.method(i).methodType() == QMetaMethod::Slot) {
            found.append(type.method(i));
        }
    }
    return found;
}

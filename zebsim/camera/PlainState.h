#pragma once

#include <QMetaObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// A member of a state that does not exist or does not take its value.
struct StateError {
    QString member;
    QString reason;
};

/// The members of a gadget as plain data: texts, numbers, bools and lists of them; sizes and points are lists of two
/// numbers, what goes by number or name is an object, as `{"5": 14}`, custom information a list of objects.
QVariantMap readMembers(const QMetaObject& type, const void* gadget);
/// Those of these names, which must be there.
QVariantMap readMembers(const QMetaObject& type, const void* gadget, const QStringList& names);

/// Sets the members that `members` names, one after the other. Throws `StateError` at the first that can't be set.
void writeMembers(const QMetaObject& type, void* gadget, const QVariantMap& members);

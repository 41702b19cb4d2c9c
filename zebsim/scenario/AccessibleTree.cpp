#include "AccessibleTree.h"

#include "AccessibleState.h"

#include <QAccessible>
#include <QMetaEnum>

QVariantMap accessibleTree(QAccessibleInterface& element) {
    QVariantList children;
    for (int i = 0; i < element.childCount(); ++i) {
        if (QAccessibleInterface* child = element.child(i)) {
            children.append(accessibleTree(*child));
        }
    }
    return {{QStringLiteral("role"), QMetaEnum::fromType<QAccessible::Role>().valueToKey(element.role())},
            {QStringLiteral("name"), element.text(QAccessible::Name)},
            {QStringLiteral("description"), element.text(QAccessible::Description)},
            {QStringLiteral("value"), element.text(QAccessible::Value)},
            {QStringLiteral("states"), stateNames(element.state())},
            {QStringLiteral("children"), children}};
}

#pragma once

#include <QVariantMap>

class QAccessibleInterface;

/// What a screen reader gets of a widget or an element and of what is in it: `role` and `states` by Qt's names, `name`,
/// `description`, `value` and `children`.
QVariantMap accessibleTree(QAccessibleInterface& element);

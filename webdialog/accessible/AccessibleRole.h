#pragma once

#include <QAccessible>

class QString;

/// Qt's role for one of a page's, as "gridcell". A grouping for a role that has no counterpart.
QAccessible::Role accessibleRole(const QString& name);

#include "AccessibleRange.h"

#include "AccessibleElement.h"

double AccessibleRange::at(int place) const {
    return m_element.ask(QStringLiteral("range")).toList().value(place).toDouble();
}

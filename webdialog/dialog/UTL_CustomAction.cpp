#include "UTL_CustomAction.h"

UTL_CustomAction::UTL_CustomAction(const QString& text, const QVariant& variant, const QVariantMap& map,
                                   QObject* parent)
    : QAction(text, parent), m_variant(variant), m_map(map) {
    connect(this, &QAction::triggered, this, &UTL_CustomAction::slotTriggered);
}

void UTL_CustomAction::slotTriggered() {
    if (m_map.isEmpty()) {
        Q_EMIT signalTriggered(m_variant);
    } else {
        Q_EMIT signalTriggeredMap(m_map);
    }
}

#pragma once

#include <QAction>
#include <QVariant>
#include <QVariantMap>

/// An action that carries a value and a map, and hands over one of them when it is triggered.
class UTL_CustomAction : public QAction {
    Q_OBJECT

public:
    UTL_CustomAction(const QString& text, const QVariant& variant, const QVariantMap& map, QObject* parent);

Q_SIGNALS:
    void signalTriggered(QVariant variant);
    /// In place of `signalTriggered` when the map is not empty.
    void signalTriggeredMap(QVariantMap map);

public Q_SLOTS:
    void slotTriggered();

private:
    const QVariant m_variant;
    const QVariantMap m_map;
};

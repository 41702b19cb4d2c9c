#include "PartitionName.h"

#include <QCoreApplication>

QString partitionName(const QStringList& names, PARTITIONNUMBER partition) {
    const QString name = names.value(int(partition) - 1);
    return name.isEmpty() ? QCoreApplication::translate("zeb4", QT_TR_NOOP("Partition %1")).arg(partition) : name;
}

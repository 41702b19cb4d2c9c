#include "StatusFlags.h"

#include <QMetaEnum>

#include <stdexcept>

QStringList StatusFlags::names() {
    const QMetaEnum flags = QMetaEnum::fromType<Flag>();
    QStringList names;
    for (int i = 0; i < flags.keyCount(); ++i) {
        names.append(QString::fromLatin1(flags.key(i)));
    }
    return names;
}

void StatusFlags::set(const QString& name, bool on) {
    const int flag = names().indexOf(name);
    if (flag < 0) {
        throw std::invalid_argument(QStringLiteral("the host has no state \"%1\"; it has %2")
                                        .arg(name, names().join(QStringLiteral(", ")))
                                        .toStdString());
    }
    set(Flag(flag), on);
}

#include "FileNames.h"

#include "SaveNames.h"

FileNames::FileNames(const QStringList& reserved) {
    for (const QString& name : reserved) {
        take(fileNameOf(name), {});
    }
}

QStringList FileNames::of(const QList<NamedCamera>& cameras) {
    QHash<QString, int> bearers;
    for (const NamedCamera& camera : cameras) {
        ++bearers[fileNameOf(camera.name).toCaseFolded()];
    }
    QStringList names;
    for (const NamedCamera& camera : cameras) {
        QString name = fileNameOf(camera.name);
        // A camera can be called as another one with its address is.
        while (bearers.value(name.toCaseFolded()) > 1 || !take(name, camera.address)) {
            name = name % QLatin1Char('_') % fileNameOf(camera.address);
        }
        names.append(name);
    }
    return names;
}

bool FileNames::take(const QString& name, const QString& address) {
    const QString key = name.toCaseFolded();
    if (!m_owners.contains(key)) {
        m_owners.insert(key, address);
    }
    return m_owners.value(key) == address;
}

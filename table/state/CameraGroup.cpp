#include "CameraGroup.h"

#include <algorithm>

QString groupToShow(const QString& held, const QString& stored, const QList<CameraGroup>& groups) {
    const QLatin1String unread(UnreadGroup);
    const QString first = groups.isEmpty() ? QString() : groups.first().name;
    const QString known = held == unread ? stored : held;
    const QString wanted = known == unread ? first : known;
    const bool exists =
        std::any_of(groups.begin(), groups.end(), [&wanted](const CameraGroup& group) { return group.name == wanted; });
    return wanted.isEmpty() || groups.isEmpty() || exists ? wanted : first;
}

#include "PairList.h"

#include <QStringList>

#include <algorithm>

QList<QPair<QString, QString>> readPairs(const QString& list) {
    QList<QPair<QString, QString>> pairs;
    for (const QString& entry : list.split('?')) {
        const QStringList parts = entry.split('|');
        if (parts.size() == 2) {
            pairs.append({parts.first(), parts.last()});
        }
    }
    return pairs;
}

std::optional<QString> valueOf(const QList<QPair<QString, QString>>& pairs, const QString& key) {
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&key](const auto& pair) { return pair.first == key; });
    return found == pairs.end() ? std::nullopt : std::optional(found->second);
}

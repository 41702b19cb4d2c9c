#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// What a drop-down offers.
struct Choices {
    /// JSON array as the page gets it.
    QString json = QStringLiteral("[]");
    /// The values in it.
    QStringList values;

    /// `value` if it is on offer, else empty: the page shows no neighbour for it.
    QString shown(const QString& value) const { return values.contains(value) ? value : QString(); }
};

/// Lists of a camera model come again with each of its cameras: what was made of one is kept under the list itself.
template <typename List>
class ChoicesCache {
public:
    template <typename Make>
    const Choices& get(const List& list, Make make) {
        auto known = m_made.find(list);
        if (known == m_made.end()) {
            known = m_made.insert(list, make(list));
        }
        return known.value();
    }

private:
    QHash<List, Choices> m_made;
};

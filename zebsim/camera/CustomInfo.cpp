#include "CustomInfo.h"

#include "PlainState.h"
#include "TextKey.h"
#include "ZebTypes.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

QString CustomItem::text() const {
    return unit.isEmpty() ? QString(name % QStringLiteral(": ") % value)
                          : QString(name % QStringLiteral(": ") % value % QLatin1Char(' ') % unit);
}

bool CustomItem::operator==(const CustomItem& other) const {
    return name == other.name && value == other.value && unit == other.unit && display == other.display &&
           usefilename == other.usefilename;
}

QList<CustomItem> CustomInfo::shown() const {
    QList<CustomItem> items;
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(items),
                 [](const CustomItem& item) { return item.display; });
    return items;
}

QStringList CustomInfo::shownTexts() const {
    QStringList texts;
    for (const CustomItem& item : shown()) {
        texts.append(item.text());
    }
    return texts;
}

int CustomInfo::find(const QString& name) const {
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&name](const CustomItem& item) { return item.name == name; });
    return found == m_items.end() ? -1 : int(found - m_items.begin());
}

QString CustomInfo::put(const CustomItem& item) {
    if (item.name.isEmpty()) {
        return TextKey("an item of the custom information needs a name");
    }
    const int place = find(item.name);
    if (place >= 0) {
        m_items[place] = item;
        return {};
    }
    if (m_items.size() >= zeb::MostCustomItems) {
        return QStringLiteral("there is no room for the item \"%1\", %2 are the most")
            .arg(item.name, QString::number(zeb::MostCustomItems));
    }
    m_items.append(item);
    return {};
}

QString CustomInfo::rename(const QString& name, const QString& newName) {
    const int place = find(name);
    if (place < 0 || name == newName) {
        return {};
    }
    if (newName.isEmpty()) {
        return TextKey("an item of the custom information needs a name");
    }
    if (find(newName) >= 0) {
        return QStringLiteral("there is an item \"%1\" already").arg(newName);
    }
    m_items[place].name = newName;
    return {};
}

void CustomInfo::update(const CustomItem& item) {
    const int place = find(item.name);
    if (place >= 0) {
        m_items[place] = item;
    }
}

void CustomInfo::remove(const QString& name) {
    const int place = find(name);
    if (place >= 0) {
        m_items.removeAt(place);
    }
}

QVariantList CustomInfo::toPlain() const {
    QVariantList plain;
    for (const CustomItem& item : m_items) {
        plain.append(readMembers(CustomItem::staticMetaObject, &item));
    }
    return plain;
}

CustomInfo CustomInfo::fromPlain(const QVariant& plain) {
    if (plain.type() != QVariant::List) {
        throw StateError{{}, QStringLiteral("a list of objects is expected")};
    }
    CustomInfo info;
    for (const QVariant& members : plain.toList()) {
        CustomItem item;
        const int number = info.m_items.size() + 1;
        if (members.type() != QVariant::Map) {
            throw StateError{{}, QStringLiteral("item %1 is no object").arg(number)};
        }
        try {
            writeMembers(CustomItem::staticMetaObject, &item, members.toMap());
        } catch (const StateError& error) {
            throw StateError{
                {}, QStringLiteral("item %1, \"%2\": %3").arg(QString::number(number), error.member, error.reason)};
        }
        const QString refusal =
            info.find(item.name) < 0 ? info.put(item) : QStringLiteral("the name \"%1\" occurs twice").arg(item.name);
        if (!refusal.isEmpty()) {
            throw StateError{{}, QStringLiteral("item %1: %2").arg(QString::number(number), refusal)};
        }
    }
    return info;
}

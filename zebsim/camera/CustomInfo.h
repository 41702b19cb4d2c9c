#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// A named value that goes with a camera's recordings.
struct CustomItem {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString unit MEMBER unit)
    Q_PROPERTY(bool display MEMBER display)
    Q_PROPERTY(bool usefilename MEMBER usefilename)
public:
    QString name;
    QString value;
    QString unit;
    /// It is shown with the images.
    bool display = false;
    bool usefilename = false;

    /// As "Pressure: 3.2 bar".
    QString text() const;
    bool operator==(const CustomItem& other) const;
};

/// The list of a camera or of a recording: names are unique and not empty, and there are at most
/// `zeb::MostCustomItems`.
class CustomInfo {
public:
    bool operator==(const CustomInfo& other) const { return m_items == other.m_items; }
    bool operator!=(const CustomInfo& other) const { return !(*this == other); }
    const QList<CustomItem>& items() const { return m_items; }
    QList<CustomItem> shown() const;
    QStringList shownTexts() const;

    /// In the place of the item of that name, or at the end. These two answer why it can't be done, or an empty text.
    [[nodiscard]] QString put(const CustomItem& item);
    /// An item that is not there is not renamed.
    [[nodiscard]] QString rename(const QString& name, const QString& newName);
    /// Without effect when there is no such item.
    void update(const CustomItem& item);
    void remove(const QString& name);

    /// A list of objects with the properties of `CustomItem`; one that is absent is empty or false. Throws
    /// `StateError`.
    QVariantList toPlain() const;
    static CustomInfo fromPlain(const QVariant& plain);

private:
    /// -1 for none.
    int find(const QString& name) const;

    QList<CustomItem> m_items;
};
Q_DECLARE_METATYPE(CustomInfo)

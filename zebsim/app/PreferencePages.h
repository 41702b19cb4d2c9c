#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// One value that can be chosen for a preference. The texts of all of these are keys of the catalogue.
struct PreferenceChoice {
    QVariant value;
    const char* label = nullptr;
};

/// A preference that the user can set.
struct PreferenceField {
    /// Shown and stored as what `fallback` is: a box for a bool, a number, a text, or one of `choices` where there are
    /// any. `fallback` is also the value of a key that nobody has written.
    QString key;
    const char* label = nullptr;
    QVariant fallback;
    QList<PreferenceChoice> choices = {};
    int lowest = 0;
    int highest = 0;
};

/// A page of the preference dialog. Its id is the key of its title too.
struct PreferencePage {
    const char* id = nullptr;
    QList<PreferenceField> fields;
};

/// All pages in their order.
const QList<PreferencePage>& preferencePages();

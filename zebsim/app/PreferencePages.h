#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// One value that can be chosen for a preference. The texts of all of these are keys of the catalogue.
struct PreferenceChoice {
    QVariant value;
    QString label;
};

/// A preference that the user can set. What it is until then is the factory's. What a dialog of the plug-in edits has
/// its place there alone.
struct PreferenceField {
    enum Editor { Box, Number, Choice, Text };

    QString key;
    QString label;
    Editor editor = Box;
    /// Of a choice.
    QList<PreferenceChoice> choices = {};
    /// Of a number.
    int lowest = 0;
    int highest = 0;
};

/// A page of the preference dialog. Its id is the key of its title too.
struct PreferencePage {
    QString id;
    QList<PreferenceField> fields;
};

/// All pages in their order.
const QList<PreferencePage>& preferencePages();

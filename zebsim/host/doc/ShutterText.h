#pragma once

#include <QString>

class Preferences;

/// Shutter speeds as the preference `display/ShutterSpeed` wants to see them: 1/n second, or exposure time.
class ShutterText {
public:
    explicit ShutterText(const Preferences& prefs);

    /// Number of the list in use: 1 fractions, 2 exposure times in nanoseconds.
    int list() const { return m_list; }
    /// `fraction` (n of 1/n) as it stands in list `list`.
    static int valueIn(int list, int fraction);
    /// `value` as in the list in use.
    QString label(int value) const;
    /// "value;label;type", as a document offers it.
    QString entry(int fraction) const;

private:
    int m_list;
};

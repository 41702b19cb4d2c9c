#pragma once

#include <QString>
#include <QStringList>

/// What the user asked the program to do.
struct CommandLine {
    /// A text to print instead of running, and the status to exit with; the text of a mistake goes to stderr.
    QString printout;
    int exitStatus = 0;

    /// A rig file, or the name of a rig that ships; empty together with `cameraCount` 0: the program's own choice.
    QString rig;
    /// So many cameras of the standard model; 0: `rig` says which.
    int cameraCount = 0;
    /// Empty: the user's configuration folder.
    QString prefs;
    QString scenario;
    int scenarioTimeout = 0;
    /// Empty: the library beside the program.
    QString plugin;
    /// "light", "dark", or empty for what the preferences say.
    QString style;
    /// One of `Translator::languages`, or empty for what the preferences say.
    QString language;
    bool openTable = true;
    /// Load the scripted VISA library, behind which a generator answers.
    bool scriptedVisa = false;

    /// `arguments` as `QCoreApplication::arguments` answers them. Needs no display.
    static CommandLine parse(const QStringList& arguments);
};

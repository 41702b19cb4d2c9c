#pragma once

#include <QString>

#include <vector>

/// What is known of a kind of storage media.
struct MediumKind {
    /// A `zeb::MediumKind`, or `RigMedium::SdCard`; also its place in the list of kinds.
    int kind;
    /// As rigs and scenarios write it.
    QString word;
    /// What it is called in lists, to be translated.
    QString text;
    /// It is called by a letter where plug-ins list it.
    bool isLettered;
    /// This program formats it; others are formatted in the camera.
    bool isFormattable;
    bool canHavePassword;
};

/// In the order in which media are listed.
const std::vector<MediumKind>& mediumKinds();
/// Null when there is none of that word.
const MediumKind* mediumKind(const QString& word);
/// The words, as "sd, quikDrive, cfast".
QString mediumWords();

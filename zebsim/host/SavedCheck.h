#pragma once

#include "InformationFile.h"

#include <QHash>
#include <QList>

#include <vector>

class Medium;

/// Which frames of recordings stand in files of a folder, by what the files beside the pictures tell: of a copy that a
/// camera, or the program from the opened recording, has saved. GUI thread.
class SavedCheck {
public:
    /// Reads once all that tells of recordings below `folder`.
    explicit SavedCheck(const QString& folder);

    struct Result {
        /// Of each frame of the recording whether it is saved.
        std::vector<bool> frames;
        int saved = 0;
        /// Number of the first one as the program shows it.
        int first = 0;
        /// There is one on the medium itself, which does not count.
        bool isOnMedium = false;

        bool isWhole() const { return saved == int(frames.size()); }
        /// Numbers of the frames that are not saved, as "0 … 8, 12, 14, ..., 20"; cut when there are many rows of them.
        QString missing() const;
    };
    /// Which copies count: all, or those alone that have every bit of the recording.
    enum Copies { All, WithoutLoss };
    /// Of a recording on that medium, by what its own file tells.
    Result of(const RecordingInformation& whole, const Medium& medium, Copies copies) const;

private:
    struct Copy {
        QString folder;
        RecordingInformation information;
    };
    /// Whether the picture of that frame stands there.
    bool isThere(const Copy& copy, int index) const;

    QList<Copy> m_copies;
    /// How many there are in a file, once it was looked at.
    mutable QHash<QString, int> m_pictures;
};

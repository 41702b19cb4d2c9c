#pragma once

#include "FrameSink.h"
#include "SaveFormat.h"

class FileClaims;

/// Writes each frame as a picture of its own.
class PictureSink : public FrameSink {
public:
    /// The files are called `stem`, '_' and the frame's number. `claims` must outlive the sink.
    PictureSink(FileClaims& claims, SaveFormat format, QString stem);

    bool write(SavedFrame frame) override;

private:
    FileClaims& m_claims;
    const SaveFormat m_format;
    const QString m_stem;
};

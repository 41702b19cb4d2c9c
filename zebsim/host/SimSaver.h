#pragma once

#include "ZebSaver.h"

#include <QImage>

#include <functional>

class Journal;
class StatusFlags;

/// Whether images are being saved, and the way to the clipboard.
class SimSaver : public ZebSaver {
public:
    /// `currentImage` answers the image in front, a null image without one.
    SimSaver(Journal& journal, const StatusFlags& flags, std::function<QImage()> currentImage);

    bool isSaving() const override;
    bool isBgSaving() const override;
    bool isBgConverting() const override;
    void copyToClipboard(int what) override;
    void snapShot(int mode) override;

private:
    Journal& m_journal;
    const StatusFlags& m_flags;
    const std::function<QImage()> m_currentImage;
};

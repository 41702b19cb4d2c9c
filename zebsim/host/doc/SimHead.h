#pragma once

#include "DOC_Head.h"
#include "DocTopic.h"

/// A document as a head of its device.
class SimHead : public DocTopic<DOC_Head> {
public:
    using DocTopic::DocTopic;

    // These are known to the host, and no camera is asked.
    int getDeviceCount() const override;
    /// As the preferences of the family say it, see `FileNameDetails.h`.
    zeb::FileNameDetails getFileNameDetails(int type, PARTITIONNUMBER partition, int session,
                                            const QDateTime& time) const override;
    unsigned int getFrameTotal(int /*mode*/, int /*head*/) const override {
        const auto recording = askConnected(OPERATION("getFrameTotal")).recording();
        return recording ? recording->selectedCount() : 0;
    }
    void refreshAfterPreset(int mode) override { changeConnected(OPERATION("DOC_Head::refreshAfterPreset"), {mode}); }
};

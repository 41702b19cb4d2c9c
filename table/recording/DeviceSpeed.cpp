#include "DeviceSpeed.h"

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "MasterChoice.h"
#include "NamedFailure.h"
#include "SyncPreferences.h"
#include "SyncState.h"
#include "SyncableDocs.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

int referenceFrequency(ZebHost& host, const SyncState& sync) {
    if (syncprefs::isExternal(host)) {
        return sync.frequency;
    }
    DOC_Interface* master = chooseMaster(host, withoutDummies(host.docManager().getCameraDocs()));
    return master != nullptr ? int(master->control().getRecordRate(0)) : sync.frequency;
}

void setFrameSkip(ZebHost& host, DOC_Frames& frames, int skip) {
    frames.setFrameSkipEnabled(true);
    host.setPref(QStringLiteral("play/syncMode"), QStringLiteral("0"));
    frames.setFrameSkipMode(0);
    frames.setFrameSkip(skip);
}

}  // namespace

FrameSkipChoice chooseFrameSkip(unsigned int rate, int frequency) {
    if (rate == 0 || frequency <= 0) {
        return {};
    }
    if (rate > unsigned(frequency)) {
        return {std::nullopt, true};
    }
    return {frequency / int(rate), false};
}

bool setDeviceSpeedPlaying(ZebHost& host, const SyncState& sync, const DocList& docs, GatheredFailures& failures) {
    // Without its master a chain has no frequency to play by.
    int frequency = 0;
    failures.attempt([&] { frequency = referenceFrequency(host, sync); });
    bool fits = true;
    for (DOC_Interface* doc : docs) {
        attemptOn(*doc, failures, [&] {
            DOC_Frames& frames = doc->frames();
            const FrameSkipChoice choice = chooseFrameSkip(doc->control().getRecordRate(0), frequency);
            if (choice.skip) {
                setFrameSkip(host, frames, *choice.skip);
            } else if (choice.tooFast) {
                fits = false;
                if (frames.isFrameSkipEnabled() && frames.getFrameSkip() > 1) {
                    setFrameSkip(host, frames, 1);
                }
            }
        });
    }
    return fits;
}

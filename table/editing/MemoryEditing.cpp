#include "MemoryEditing.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "RecordChecks.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <algorithm>

namespace {

/// The nearest number of a frame to one that was asked for.
int clamped(long long asked, int first, int last) {
    return int(std::min<long long>(std::max<long long>(asked, first), last));
}

}  // namespace

void MemoryEditing::setRange(const DocKeyList& keys, const std::function<QPair<int, int>(DOC_Frames&)>& rangeOf) {
    if (!m_host.isMemoryMode()) {
        return;
    }
    for (DOC_Interface* doc : connectedDocs(m_host.docManager(), keys)) {
        if (doc->frames().getFrameCount(0, 0) > 0) {
            const QPair<int, int> range = rangeOf(doc->frames());
            doc->control().setSelectRange(range.first, range.second);
        }
    }
}

void MemoryEditing::setSelectStartFrameNo(const DocKeyList& keys, int frameNo) {
    setRange(keys, [frameNo](DOC_Frames& frames) {
        const int end = frames.getSelectEndFrame(0);
        const long long asked = static_cast<long long>(frameNo) + frames.getTriggerFrame(0);
        return qMakePair(clamped(asked, frames.getFirstFrame(0, 0), end), end);
    });
}

void MemoryEditing::setSelectEndFrameNo(const DocKeyList& keys, int frameNo) {
    setRange(keys, [frameNo](DOC_Frames& frames) {
        const int start = frames.getSelectStartFrame(0);
        const long long asked = static_cast<long long>(frameNo) + frames.getTriggerFrame(0);
        return qMakePair(start, clamped(asked, start, frames.getLastFrame(0, 0)));
    });
}

void MemoryEditing::setTriggerOffset(const DocKeyList& keys, int offset) {
    if (!m_host.isMemoryMode()) {
        return;
    }
    for (DOC_Interface* doc : connectedDocs(m_host.docManager(), keys)) {
        DOC_Control& control = doc->control();
        const int base = control.getTriggerOffsetBase();
        const long long asked = static_cast<long long>(base) + offset;
        const int last = doc->frames().getLastFrame(0, 0);
        const int value = clamped(asked, doc->frames().getFirstFrame(0, 0), last);
        const bool wasEnabled = control.isTriggerOffsetEnabled();
        control.setTriggerOffsetEnabled(value != base);
        try {
            control.setTriggerOffset(value != base ? value : 0);
        } catch (...) {
            // Half of it would count every frame of the camera from somewhere else.
            logFailure([&] { control.setTriggerOffsetEnabled(wasEnabled); });
            throw;
        }
    }
}

void MemoryEditing::save() {
    if (m_host.isMemoryMode() && userTakesUnchecked()) {
        m_host.saveFiles();
    }
}

void MemoryEditing::saveLayout() {
    if (m_host.isMemoryMode() && userTakesUnchecked()) {
        m_host.saveLayoutFiles();
    }
}

/// A camera that does not answer keeps nobody from saving the others.
bool MemoryEditing::userTakesUnchecked() {
    GatheredFailures unread;
    const bool complete = RecordChecks(m_host).areComplete(unread);
    unread.log();
    if (complete && unread.isEmpty()) {
        return true;
    }
    const QStringList question{
        m_host.translate(TextKey("Do you want to save even though playback confirmation has not been completed?"))};
    return m_host.confirm((question + unread.lines()).join(QLatin1Char('\n'))) && m_host.isMemoryMode();
}

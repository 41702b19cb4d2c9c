#include "MemoryInfoMembers.h"

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"
#include "NumberFormat.h"
#include "Record.h"
#include "TextKey.h"
#include "ZebHost.h"

namespace {

int triggerOffset(const DOC_Control& camera) {
    return camera.isTriggerOffsetEnabled() ? camera.getTriggerOffset() - camera.getTriggerOffsetBase() : 0;
}

}  // namespace

MemoryInfoMembers::MemoryInfoMembers(const ZebHost& host)
    : m_delimitFrames(host.getPrefBool(QStringLiteral("display/frameInsertDelimiter"))),
      m_delimitRates(host.getPrefBool(QStringLiteral("display/recordRateInsertDelimiter"))),
      m_rateUnit(host.translate(TextKey("fps"))) {}

void MemoryInfoMembers::add(Record& record, DOC_Interface& doc, bool connected) const {
    if (connected && doc.frames().getFrameCount(0, 0) != 0) {
        addRecording(record, doc);
        return;
    }
    for (const auto* name :
         {"frameRate", "originalStartFrameNo", "originalEndFrameNo", "selectStartMinFrameNo", "selectStartFrameNo",
          "selectEndFrameNo", "selectEndMaxFrameNo", "totalFrame", "triggerOffset"}) {
        record.setText(QLatin1String(name), {});
    }
}

void MemoryInfoMembers::addRecording(Record& record, DOC_Interface& doc) const {
    const DOC_Frames& frames = doc.frames();
    const int base = frames.getTriggerFrame(0);
    const int first = frames.getFirstFrame(0, 0);
    const int last = frames.getLastFrame(0, 0);
    const auto setPlain = [&record](const char* name, int number) {
        record.setText(QLatin1String(name), QString::number(number));
    };
    const auto setFormatted = [&record, this](const char* name, qlonglong number) {
        record.setText(QLatin1String(name), numberformat::number(number, m_delimitFrames));
    };
    record.setText(QLatin1String("frameRate"),
                   numberformat::rate(doc.control().getRecordedRate(), m_rateUnit, m_delimitRates));
    setFormatted("originalStartFrameNo", first - base);
    setFormatted("originalEndFrameNo", last - base);
    setPlain("selectStartMinFrameNo", first - base);
    setPlain("selectStartFrameNo", frames.getSelectStartFrame(0) - base);
    setPlain("selectEndFrameNo", frames.getSelectEndFrame(0) - base);
    setPlain("selectEndMaxFrameNo", last - base);
    setFormatted("totalFrame", doc.head().getFrameTotal(1, 0));
    setPlain("triggerOffset", triggerOffset(doc.control()));
    // Counted from the recording's first frame, unlike the offset itself.
    setPlain("minTriggerOffset", first);
    setPlain("maxTriggerOffset", last);
}

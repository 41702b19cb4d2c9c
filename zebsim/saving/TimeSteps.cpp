#include "TimeSteps.h"

#include <algorithm>
#include <limits>

namespace {

/// A product of frames, rates and parts of a second is larger than 64 bits.
__extension__ using Wide = __int128;

qint64 quotientBelow(Wide dividend, Wide divisor) {
    const Wide quotient = dividend / divisor;
    return qint64(dividend % divisor < 0 ? quotient - 1 : quotient);
}

}  // namespace

TimeSteps::TimeSteps(const std::vector<TimedRange>& ranges, const FrameSkipRule& skip) {
    const auto fastest = std::max_element(ranges.begin(), ranges.end(),
                                          [](const auto& one, const auto& two) { return one.rate < two.rate; });
    m_numerator = skip.span > 0 ? skip.span : skip.frames;
    m_denominator = skip.span > 0 ? FrameSkipRule::SpansInSecond : fastest->rate;
    qint64 last = std::numeric_limits<qint64>::min();
    m_first = std::numeric_limits<qint64>::max();
    for (const TimedRange& range : ranges) {
        const Wide step = Wide(m_numerator) * range.rate;
        m_first = std::min(m_first, -quotientBelow(-Wide(range.first) * m_denominator, step));
        last = std::max(last, quotientBelow(Wide(range.last) * m_denominator, step));
    }
    m_count = int(std::clamp<Wide>(Wide(last) - m_first + 1, 1, std::numeric_limits<int>::max()));
}

qint64 TimeSteps::frameAt(int index, unsigned int rate) const {
    return quotientBelow(Wide(m_first + index) * m_numerator * rate, m_denominator);
}

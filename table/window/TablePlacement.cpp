#include "TablePlacement.h"

namespace {

/// The screen that shows the most of `window`; negative when none shows any of it.
int screenOf(const QRect& window, const QVector<QRect>& screens) {
    int best = -1;
    qint64 largest = 0;
    for (int i = 0; i < screens.size(); ++i) {
        const QSize shown = screens.at(i).intersected(window).size();
        const qint64 area = shown.isEmpty() ? 0 : qint64(shown.width()) * shown.height();
        if (area > largest) {
            largest = area;
            best = i;
        }
    }
    return best;
}

/// Keeps stored numbers, which may be anything, within what a rectangle can add up.
QPoint bounded(const QPoint& point) {
    constexpr int Far = 1 << 20;
    return {qBound(-Far, point.x(), Far), qBound(-Far, point.y(), Far)};
}

QSize bounded(const QSize& size, const QSize& minimumSize) {
    constexpr int Huge = 1 << 16;
    return size.boundedTo(QSize(Huge, Huge)).expandedTo(minimumSize);
}

}  // namespace

TablePlacement placeTable(const StoredPlacement& stored, const QSize& minimumSize, const QVector<QRect>& screens,
                          const QRect& mainScreen) {
    const QRect geometry(bounded(stored.position), bounded(stored.size, minimumSize));
    const bool known = stored.screen >= 0 && stored.screen < screens.size();
    const int screen = known ? stored.screen : screenOf(geometry, screens);
    if (screen >= 0 && screens.at(screen).contains(geometry)) {
        const bool minimised = stored.state.testFlag(Qt::WindowMinimized);
        return {geometry, minimised ? Qt::WindowStates(Qt::WindowNoState) : stored.state, false};
    }
    const QSize half(mainScreen.width() / 2 - 1, mainScreen.height() / 2 - 1);
    return {QRect(QPoint(0, 0), half.expandedTo(minimumSize)), Qt::WindowNoState, true};
}

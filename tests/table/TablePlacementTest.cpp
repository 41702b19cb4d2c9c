#include "TablePlacement.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

const QRect Left(0, 0, 1920, 1200);
const QRect Right(1920, 0, 2560, 1440);
const QSize Minimum(1200, 400);

struct Case {
    const char* sentence;
    StoredPlacement stored;
    QVector<QRect> screens;
    QRect geometry;
    Qt::WindowStates state;
    bool centered;
};

const Case Cases[] = {
    {"a window opens where it was closed", {{100, 80}, {1300, 600}, {}, 0}, {Left}, {100, 80, 1300, 600}, {}, false},
    {"a maximised one opens maximised over its normal place",
     {{100, 80}, {1300, 600}, Qt::WindowMaximized, 0},
     {Left},
     {100, 80, 1300, 600},
     Qt::WindowMaximized,
     false},
    {"a minimised one opens normal at its place",
     {{100, 80}, {1300, 600}, Qt::WindowMinimized | Qt::WindowMaximized, 0},
     {Left},
     {100, 80, 1300, 600},
     {},
     false},
    {"it finds its place on the second screen",
     {{2000, 0}, {1300, 600}, {}, 1},
     {Left, Right},
     {2000, 0, 1300, 600},
     {},
     false},
    {"without a stored screen it lies on the one that shows most of it",
     {{2000, 0}, {1300, 600}, {}, -1},
     {Left, Right},
     {2000, 0, 1300, 600},
     {},
     false},
    {"the stored screen is gone and so is its place: half of the main screen, not maximised",
     {{2000, 0}, {1300, 600}, Qt::WindowMaximized, 1},
     {Left},
     {0, 0, 1200, 599},
     {},
     true},
    {"the stored screen is gone, but the window lies on another: it stays",
     {{100, 80}, {1300, 600}, {}, 7},
     {Left},
     {100, 80, 1300, 600},
     {},
     false},
    {"a screen that holds a part of the window only does not hold it",
     {{900, 80}, {1300, 600}, {}, 0},
     {Left},
     {0, 0, 1200, 599},
     {},
     true},
    {"too small a window gets the least size before it is judged",
     {{800, 900}, {10, 10}, {}, 0},
     {Left},
     {0, 0, 1200, 599},
     {},
     true},
    {"numbers that are no place add up to none",
     {{INT_MAX, INT_MIN}, {INT_MAX, INT_MAX}, {}, INT_MAX},
     {Left},
     {0, 0, 1200, 599},
     {},
     true},
};

TEST(TablePlacement, opensWhereItWasUnlessThatIsNoScreen) {
    for (const Case& each : Cases) {
        SCOPED_TRACE(each.sentence);
        const TablePlacement placement = placeTable(each.stored, Minimum, each.screens, Left);
        EXPECT_EQ(placement.geometry, each.geometry);
        EXPECT_EQ(placement.state, each.state);
        EXPECT_EQ(placement.centered, each.centered);
    }
}

}  // namespace

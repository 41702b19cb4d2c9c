#include "TablePlacement.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

const QVector<QRect> Screens{{0, 0, 1920, 1200}, {1920, 0, 2560, 1440}};
const QRect Place(100, 80, 1300, 600);
const QRect FarPlace(2000, 0, 1300, 600);
/// Half of the first screen, but not below the least size.
const QRect Half(0, 0, 1200, 599);

TEST(TablePlacement, OpensWhereItWasUnlessThatIsNoScreen) {
    const struct {
        const char* sentence;
        QPoint position;
        QSize size;
        Qt::WindowStates state;
        int screen;
        int screens;
        QRect geometry;
        Qt::WindowStates opens;
    } cases[] = {
        {"where it was closed", {100, 80}, {1300, 600}, {}, 0, 1, Place, {}},
        {"maximised over its place", {100, 80}, {1300, 600}, Qt::WindowMaximized, 0, 1, Place, Qt::WindowMaximized},
        {"minimised opens normal", {100, 80}, {1300, 600}, Qt::WindowMinimized, 0, 1, Place, {}},
        {"on the second screen", {2000, 0}, {1300, 600}, {}, 1, 2, FarPlace, {}},
        {"no stored screen", {2000, 0}, {1300, 600}, {}, -1, 2, FarPlace, {}},
        {"its screen is gone", {2000, 0}, {1300, 600}, Qt::WindowMaximized, 1, 1, Half, {}},
        {"another screen is gone", {100, 80}, {1300, 600}, {}, 7, 1, Place, {}},
        {"half off the screen", {900, 80}, {1300, 600}, {}, 0, 1, Half, {}},
        {"off the screen at its least size", {800, 900}, {10, 10}, {}, 0, 1, Half, {}},
        {"numbers that are no place", {INT_MAX, INT_MIN}, {INT_MAX, INT_MAX}, {}, INT_MAX, 1, Half, {}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.sentence);
        const TablePlacement placement = placeTable({each.position, each.size, each.state, each.screen}, {1200, 400},
                                                    Screens.mid(0, each.screens), Screens.first());
        EXPECT_EQ(placement.geometry, each.geometry);
        EXPECT_EQ(placement.state, each.opens);
        EXPECT_EQ(placement.centered, each.geometry == Half);
    }
}

}  // namespace

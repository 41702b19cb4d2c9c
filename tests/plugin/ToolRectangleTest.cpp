#include "ToolRectangle.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

using Tool = ToolRectangle;

const QSize Image(640, 480);
const QRect Rect(QPoint(100, 50), QPoint(299, 149));
constexpr auto Unchanged = "(100,50)-(299,149)";

constexpr Tool::View Plain{0, false, false, 1.0};
constexpr Tool::View Turned90{90, false, false, 1.0};

Tool::Rules free() {
    Tool::Rules rules;
    rules.mirrorX = false;
    rules.mirrorY = false;
    return rules;
}

std::string text(const QRect& rect) {
    return QStringLiteral("(%1,%2)-(%3,%4)")
        .arg(rect.left())
        .arg(rect.top())
        .arg(rect.right())
        .arg(rect.bottom())
        .toStdString();
}

}  // namespace

TEST(ToolRectangle, GoesTheWayThatTheUserSees) {
    // By the side of the rectangle: above, beside, below.
    constexpr int handles[3][3] = {{Tool::TopLeftCorner, Tool::TopEdge, Tool::TopRightCorner},
                                   {Tool::LeftEdge, Tool::Inside, Tool::RightEdge},
                                   {Tool::BottomLeftCorner, Tool::BottomEdge, Tool::BottomRightCorner}};
    constexpr Qt::CursorShape shapes[3][3] = {{Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor},
                                              {Qt::SizeHorCursor, Qt::SizeAllCursor, Qt::SizeHorCursor},
                                              {Qt::SizeBDiagCursor, Qt::SizeVerCursor, Qt::SizeFDiagCursor}};
    constexpr int keys[3][3] = {{0, Qt::Key_Up, 0}, {Qt::Key_Left, 0, Qt::Key_Right}, {0, Qt::Key_Down, 0}};
    const QPoint points[3] = {Rect.topLeft(), Rect.center(), Rect.bottomRight()};
    for (int i = 0; i < 16 * 9; ++i) {
        SCOPED_TRACE(i);
        const Tool::View view{90 * (i % 4), (i & 4) != 0, (i & 8) != 0, 1.0};
        const QPoint side(i / 16 % 3 - 1, i / 48 - 1);
        const QPoint seen = QTransform()
                                .rotate(view.rotation)
                                .scale(view.horizontalFlip ? -1 : 1, view.verticalFlip ? -1 : 1)
                                .map(side);
        const int key = keys[seen.y() + 1][seen.x() + 1];
        const QPoint named = key != 0 ? seen : side;  // a corner is named by its place in the image
        const int handle = handles[named.y() + 1][named.x() + 1];
        const QPoint at(points[side.x() + 1].x(), points[side.y() + 1].y());
        const bool all = side.isNull();
        const QRect moved = Rect.adjusted(7 * (side.x() < 0 || all), 9 * (side.y() < 0 || all),
                                          7 * (side.x() > 0 || all), 9 * (side.y() > 0 || all));
        const Tool tool(Image, view, free());
        EXPECT_EQ(tool.handleAt(Rect, at), handle);
        EXPECT_EQ(tool.cursorFor(handle), shapes[seen.y() + 1][seen.x() + 1]);
        EXPECT_EQ(text(tool.dragged(Rect, handle, at, at + QPoint(7, 9))), text(moved));
        EXPECT_EQ(tool.stepped(Rect, key, {}).value_or(Rect), Rect.translated(key != 0 ? side : QPoint()));
    }
    EXPECT_EQ(Tool(Image, Plain, free()).cursorFor(Tool::Outside), std::nullopt);
}

TEST(ToolRectangle, FindsTheHandleNearAPoint) {
    const struct {
        const char* sentence;
        QPoint point;
        double zoom;
        int handle;
    } rows[] = {
        {"five pixels out still hit the edge", {200, 45}, 1.0, Tool::TopEdge},
        {"six pixels out do not", {200, 44}, 1.0, Tool::Outside},
        {"five pixels in hit the edge, six are inside", {105, 100}, 1.0, Tool::LeftEdge},
        {"six pixels in are inside", {106, 100}, 1.0, Tool::Inside},
        {"beside the line of an edge is outside", {306, 50}, 1.0, Tool::Outside},
        {"at zoom 2 the tolerance is two pixels", {200, 47}, 2.0, Tool::Outside},
        {"at zoom 0.5 the tolerance is ten pixels", {200, 40}, 0.5, Tool::TopEdge},
        {"at zoom 8 one pixel of tolerance is left", {200, 49}, 8.0, Tool::TopEdge},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Tool(Image, {0, false, false, row.zoom}, free()).handleAt(Rect, row.point), row.handle)
            << row.sentence;
    }
}

TEST(ToolRectangle, FollowsTheMouse) {
    Tool::Rules least = free();
    least.minSize = QSize(50, 40);
    Tool::Rules mirrored;
    Tool::Rules mirroredAcross = free();
    mirroredAcross.mirrorX = true;
    mirroredAcross.minSize = QSize(50, 40);
    Tool::Rules grid = free();
    grid.pixelStepX = 16;
    grid.pixelStepY = 8;

    const struct {
        const char* sentence;
        int handle;
        QPoint to;
        Tool::Rules rules;
        const char* result;
    } rows[] = {
        {"a move stops at the image's border", Tool::Inside, {900, 100}, free(), "(440,50)-(639,149)"},
        {"an edge stops there too", Tool::TopEdge, {200, -30}, free(), "(100,0)-(299,149)"},
        {"an edge may go to the least size", Tool::RightEdge, {149, 0}, least, "(100,50)-(149,149)"},
        {"an edge that would come closer stays", Tool::RightEdge, {148, 0}, least, Unchanged},
        {"of a corner, only the edge too close stays", Tool::TopLeftCorner, {260, 60}, least, "(100,60)-(299,149)"},
        {"an edge never passes its opposite", Tool::BottomEdge, {200, 10}, free(), Unchanged},
        {"a mirrored edge moves its opposite too", Tool::LeftEdge, {200, 0}, mirrored, "(200,50)-(439,149)"},
        {"mirrored edges keep the least size", Tool::LeftEdge, {300, 0}, mirroredAcross, Unchanged},
        {"each axis is mirrored by itself", Tool::TopLeftCorner, {200, 60}, mirroredAcross, "(200,60)-(439,149)"},
        {"mirroring does not touch a move", Tool::Inside, {210, 100}, mirrored, "(110,50)-(309,149)"},
        {"a resized one lies on the grid", Tool::BottomRightCorner, {250, 120}, grid, "(96,48)-(239,119)"},
        {"a moved one begins on the grid", Tool::Inside, {230, 100}, grid, "(128,48)-(327,147)"},
        {"the outside takes nothing", Tool::Outside, {0, 0}, free(), Unchanged},
    };
    for (const auto& row : rows) {
        const Tool tool(Image, Plain, row.rules);
        EXPECT_EQ(text(tool.dragged(Rect, row.handle, QPoint(200, 100), row.to)), row.result) << row.sentence;
    }
}

TEST(ToolRectangle, FollowsTheArrowKeys) {
    Tool::Rules steps = free();
    steps.widthStep = 8;
    steps.heightStep = 4;
    steps.xStep = 10;
    steps.yStep = 20;
    Tool::Rules mirrored = steps;
    mirrored.mirrorX = true;
    mirrored.widthStep = 9;
    Tool::Rules least = steps;
    least.minSize = QSize(195, 0);

    const auto shift = Qt::ShiftModifier;
    const auto both = Qt::ShiftModifier | Qt::ControlModifier;
    const struct {
        const char* sentence;
        int key;
        Qt::KeyboardModifiers modifiers;
        Tool::View view;
        Tool::Rules rules;
        const char* result;
    } rows[] = {
        {"an arrow moves it by its step", Qt::Key_Down, {}, Plain, steps, "(100,70)-(299,169)"},
        {"shift brings the right edge in", Qt::Key_Left, shift, Plain, steps, "(100,50)-(291,149)"},
        {"shift and control put the left edge out", Qt::Key_Left, both, Plain, steps, "(92,50)-(299,149)"},
        {"shift brings the upper edge in", Qt::Key_Down, shift, Plain, steps, "(100,54)-(299,149)"},
        {"the right edge as it is seen", Qt::Key_Up, shift, Turned90, steps, "(100,50)-(291,149)"},
        {"mirrored, both edges move by half", Qt::Key_Right, shift, Plain, mirrored, "(105,50)-(294,149)"},
        {"at its least size it gets no smaller", Qt::Key_Right, shift, Plain, least, Unchanged},
    };
    for (const auto& row : rows) {
        const auto result = Tool(Image, row.view, row.rules).stepped(Rect, row.key, row.modifiers);
        ASSERT_TRUE(result) << row.sentence;
        EXPECT_EQ(text(*result), row.result) << row.sentence;
    }
    EXPECT_FALSE(Tool(Image, Plain, steps).stepped(Rect, Qt::Key_Return, shift));
    const QRect atBorder(0, 0, 100, 100);
    EXPECT_EQ(Tool(Image, Plain, steps).stepped(atBorder, Qt::Key_Up, {}), atBorder);
}

TEST(ToolRectangle, HasNoPlaceOnAnEmptyImage) {
    EXPECT_TRUE(Tool(QSize(0, 0), Plain, free()).dragged(Rect, Tool::Inside, {0, 0}, {5, 5}).isEmpty());
    EXPECT_TRUE(Tool(QSize(0, 0), Plain, free()).stepped(Rect, Qt::Key_Left, Qt::ShiftModifier)->isEmpty());
}

TEST(ToolRectangle, DescribesItselfToThePanel) {
    Tool::Rules rules = free();
    rules.minSize = QSize(4, 2);
    rules.pixelStepX = 16;
    rules.heightStep = 3;
    const Tool tool(Image, {0, false, false, 0.5}, rules);

    const QVariantMap values{{"Width", 200},       {"WidthMin", 16},    {"WidthMax", 640},  {"WidthStep", 1},
                             {"Height", 100},      {"HeightMin", 2},    {"HeightMax", 480}, {"HeightStep", 3},
                             {"PosX", 100},        {"PosXMin", 0},      {"PosXMax", 440},   {"PosXStep", 1},
                             {"PosY", 50},         {"PosYMin", 0},      {"PosYMax", 380},   {"PosYStep", 1},
                             {"AspectRatio", 2.0}, {"FixAspect", false}};
    EXPECT_EQ(tool.parameters(Rect, false), values);

    QVariantMap shown = values;
    shown.insert("OriginalAspect", 640.0 / 480.0);
    shown.insert("CurrentWidth", 640);
    shown.insert("CurrentHeight", 480);
    shown.insert("ZoomRate", 0.5);
    shown.insert("ZoomResolution", "100 x 50");
    EXPECT_EQ(tool.parameters(Rect, true), shown);
}

TEST(ToolRectangle, FitsTheSensor) {
    EXPECT_EQ(text(Tool::toSensor(Rect, 2.0)), "(50,25)-(149,74)");
    EXPECT_EQ(text(Tool::toSensor(Rect, 1.0)), text(Rect));
    EXPECT_EQ(text(Tool::toSensor(QRect(6, 6, 2, 2), 4.0)), "(1,1)-(1,1)");
    EXPECT_EQ(text(Tool::toSensor(QRect(), 2.0)), "(0,0)-(0,0)");
}

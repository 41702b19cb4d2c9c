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
constexpr Tool::View Turned180{180, false, false, 1.0};
constexpr Tool::View Turned270{270, false, false, 1.0};
constexpr Tool::View FlippedH{0, true, false, 1.0};
constexpr Tool::View FlippedV{0, false, true, 1.0};
constexpr Tool::View FlippedHTurned90{90, true, false, 1.0};

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

TEST(ToolRectangle, findsTheHandleUnderAPoint) {
    const struct {
        const char* sentence;
        QPoint point;
        Tool::View view;
        int handle;
    } rows[] = {
        {"a point on the upper edge", {200, 50}, Plain, Tool::TopEdge},
        {"a point on the lower edge", {200, 149}, Plain, Tool::BottomEdge},
        {"a point on the left edge", {100, 100}, Plain, Tool::LeftEdge},
        {"a point on the right edge", {299, 100}, Plain, Tool::RightEdge},
        {"a point at the top left corner", {100, 50}, Plain, Tool::TopLeftCorner},
        {"a point at the top right corner", {299, 50}, Plain, Tool::TopRightCorner},
        {"a point at the bottom left corner", {100, 149}, Plain, Tool::BottomLeftCorner},
        {"a point at the bottom right corner", {299, 149}, Plain, Tool::BottomRightCorner},
        {"a point well inside", {200, 100}, Plain, Tool::Inside},
        {"five pixels out still hit the edge", {200, 45}, Plain, Tool::TopEdge},
        {"six pixels out do not", {200, 44}, Plain, Tool::Outside},
        {"five pixels in hit the edge, six are inside", {105, 100}, Plain, Tool::LeftEdge},
        {"six pixels in are inside", {106, 100}, Plain, Tool::Inside},
        {"beside the line of an edge is outside", {306, 50}, Plain, Tool::Outside},
        {"at zoom 2 the tolerance is two pixels", {200, 47}, {0, false, false, 2.0}, Tool::Outside},
        {"at zoom 0.5 the tolerance is ten pixels", {200, 40}, {0, false, false, 0.5}, Tool::TopEdge},
        {"at zoom 8 one pixel of tolerance is left", {200, 49}, {0, false, false, 8.0}, Tool::TopEdge},
        {"turned by 90 degrees, the upper edge is seen right", {200, 50}, Turned90, Tool::RightEdge},
        {"turned by 180 degrees it is seen below", {200, 50}, Turned180, Tool::BottomEdge},
        {"turned by 270 degrees it is seen on the left", {200, 50}, Turned270, Tool::LeftEdge},
        {"flipped sideways, the left edge is seen right", {100, 100}, FlippedH, Tool::RightEdge},
        {"flipped sideways the upper edge stays above", {200, 50}, FlippedH, Tool::TopEdge},
        {"flipped upside down the upper edge is seen below", {200, 50}, FlippedV, Tool::BottomEdge},
        {"flipped, then turned, the left edge is seen below", {100, 100}, FlippedHTurned90, Tool::BottomEdge},
        {"a corner keeps its place in the image", {100, 50}, Turned90, Tool::TopLeftCorner},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Tool(Image, row.view, free()).handleAt(Rect, row.point), row.handle) << row.sentence;
}

TEST(ToolRectangle, showsTheWayAHandleGoesOnTheScreen) {
    const struct {
        const char* sentence;
        int handle;
        Tool::View view;
        int shape;
    } rows[] = {
        {"the edge seen above goes up and down", Tool::TopEdge, Turned90, Qt::SizeVerCursor},
        {"the edge seen on the right goes sideways", Tool::RightEdge, Turned90, Qt::SizeHorCursor},
        {"the top left corner goes along the falling diagonal", Tool::TopLeftCorner, Plain, Qt::SizeFDiagCursor},
        {"the bottom left corner goes along the rising one", Tool::BottomLeftCorner, Plain, Qt::SizeBDiagCursor},
        {"a quarter turn swaps the diagonals", Tool::TopLeftCorner, Turned270, Qt::SizeBDiagCursor},
        {"half a turn does not", Tool::TopLeftCorner, Turned180, Qt::SizeFDiagCursor},
        {"a flip swaps them", Tool::TopRightCorner, FlippedV, Qt::SizeFDiagCursor},
        {"a flip and a quarter turn do not", Tool::TopRightCorner, FlippedHTurned90, Qt::SizeBDiagCursor},
        {"the inside goes everywhere", Tool::Inside, Plain, Qt::SizeAllCursor},
        {"the outside has no cursor", Tool::Outside, Plain, -1},
        {"no handle has no cursor", -1, Plain, -1},
    };
    for (const auto& row : rows) {
        const auto shape = Tool(Image, row.view, free()).cursorFor(row.handle);
        EXPECT_EQ(shape ? int(*shape) : -1, row.shape) << row.sentence;
    }
}

TEST(ToolRectangle, followsTheMouse) {
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
        Tool::View view;
        Tool::Rules rules;
        const char* result;
    } rows[] = {
        {"an edge goes to the mouse", Tool::LeftEdge, {120, 9}, Plain, free(), "(120,50)-(299,149)"},
        {"a corner takes two edges", Tool::BottomRightCorner, {400, 90}, Plain, free(), "(100,50)-(400,90)"},
        {"the inside takes the whole rectangle", Tool::Inside, {210, 95}, Plain, free(), "(110,45)-(309,144)"},
        {"a move stops at the image's border", Tool::Inside, {900, 100}, Plain, free(), "(440,50)-(639,149)"},
        {"an edge stops there too", Tool::TopEdge, {200, -30}, Plain, free(), "(100,0)-(299,149)"},
        {"an edge may go to the least size", Tool::RightEdge, {149, 0}, Plain, least, "(100,50)-(149,149)"},
        {"an edge that would come closer stays", Tool::RightEdge, {148, 0}, Plain, least, Unchanged},
        {"of a corner, only the edge too close stays",
         Tool::TopLeftCorner,
         {260, 60},
         Plain,
         least,
         "(100,60)-(299,149)"},
        {"an edge never passes its opposite", Tool::BottomEdge, {200, 10}, Plain, free(), Unchanged},
        {"a mirrored edge moves its opposite too", Tool::LeftEdge, {200, 0}, Plain, mirrored, "(200,50)-(439,149)"},
        {"mirrored edges keep the least size", Tool::LeftEdge, {300, 0}, Plain, mirroredAcross, Unchanged},
        {"each axis is mirrored by itself",
         Tool::TopLeftCorner,
         {200, 60},
         Plain,
         mirroredAcross,
         "(200,60)-(439,149)"},
        {"mirroring does not touch a move", Tool::Inside, {210, 100}, Plain, mirrored, "(110,50)-(309,149)"},
        {"turned, the right edge is the upper one", Tool::RightEdge, {0, 70}, Turned90, free(), "(100,70)-(299,149)"},
        {"a resized one lies on the grid", Tool::BottomRightCorner, {250, 120}, Plain, grid, "(96,48)-(239,119)"},
        {"a moved one begins on the grid", Tool::Inside, {230, 100}, Plain, grid, "(128,48)-(327,147)"},
        {"the outside takes nothing", Tool::Outside, {0, 0}, Plain, free(), Unchanged},
    };
    for (const auto& row : rows) {
        const Tool tool(Image, row.view, row.rules);
        EXPECT_EQ(text(tool.dragged(Rect, row.handle, QPoint(200, 100), row.to)), row.result) << row.sentence;
    }
}

TEST(ToolRectangle, followsTheArrowKeys) {
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
        {"left moves it by one step", Qt::Key_Left, {}, Plain, steps, "(90,50)-(289,149)"},
        {"down moves it by the other step", Qt::Key_Down, {}, Plain, steps, "(100,70)-(299,169)"},
        {"shift brings the right edge in", Qt::Key_Left, shift, Plain, steps, "(100,50)-(291,149)"},
        {"shift and control put the left edge out", Qt::Key_Left, both, Plain, steps, "(92,50)-(299,149)"},
        {"shift brings the upper edge in", Qt::Key_Down, shift, Plain, steps, "(100,54)-(299,149)"},
        {"mirrored, both edges move by half", Qt::Key_Right, shift, Plain, mirrored, "(105,50)-(294,149)"},
        {"at its least size it gets no smaller", Qt::Key_Right, shift, Plain, least, Unchanged},
        {"turned by 90 degrees, up is left", Qt::Key_Up, {}, Turned90, steps, "(90,50)-(289,149)"},
        {"turned by 270 degrees, up is right", Qt::Key_Up, {}, Turned270, steps, "(110,50)-(309,149)"},
        {"turned by 180 degrees, left is right", Qt::Key_Left, {}, Turned180, steps, "(110,50)-(309,149)"},
        {"flipped, left is right", Qt::Key_Left, {}, FlippedH, steps, "(110,50)-(309,149)"},
        {"flipped, then turned, up is right", Qt::Key_Up, {}, FlippedHTurned90, steps, "(110,50)-(309,149)"},
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

TEST(ToolRectangle, hasNoPlaceOnAnEmptyImage) {
    EXPECT_TRUE(Tool(QSize(0, 0), Plain, free()).dragged(Rect, Tool::Inside, {0, 0}, {5, 5}).isEmpty());
    EXPECT_TRUE(Tool(QSize(0, 0), Plain, free()).stepped(Rect, Qt::Key_Left, Qt::ShiftModifier)->isEmpty());
}

TEST(ToolRectangle, describesItselfToThePanel) {
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

TEST(ToolRectangle, fitsTheSensor) {
    EXPECT_EQ(text(Tool::toSensor(Rect, 2.0)), "(50,25)-(149,74)");
    EXPECT_EQ(text(Tool::toSensor(Rect, 1.0)), text(Rect));
    EXPECT_EQ(text(Tool::toSensor(QRect(6, 6, 2, 2), 4.0)), "(1,1)-(1,1)");
    EXPECT_EQ(text(Tool::toSensor(QRect(), 2.0)), "(0,0)-(0,0)");
}

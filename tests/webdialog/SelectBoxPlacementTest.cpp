#include "SelectBoxPlacement.h"
#include "SelectBoxText.h"

#include <QFont>
#include <QFontMetrics>

#include <gtest/gtest.h>

namespace {

TEST(SelectBoxPlacement, StandsBesideItsAnchor) {
    struct Case {
        const char* what;
        SelectBoxDirection direction;
        int rows;
        int textWidth;
        QRect expected;
    };
    // A control 100 wide and 30 high at (40, 500) of a window at (200, 100).
    const QRect anchor(40, 500, 100, 30);
    const QRect parent(200, 100, 1200, 700);
    const Case cases[] = {
        {"above ends where the control begins", SelectBoxDirection::Above, 4, 0, {240, 480, 100, 120}},
        {"above keeps the control's width", SelectBoxDirection::Above, 4, 900, {240, 480, 100, 120}},
        {"no rows, no height", SelectBoxDirection::Above, 0, 0, {240, 600, 100, 0}},
        {"ten rows are the most", SelectBoxDirection::Above, 10, 0, {240, 300, 100, 300}},
        {"more are scrolled", SelectBoxDirection::Above, 20, 0, {240, 300, 100, 300}},
        {"above, a long text grows to the left", SelectBoxDirection::AboveWideToLeft, 2, 150, {190, 540, 150, 60}},
        {"a short one does not", SelectBoxDirection::AboveWideToLeft, 2, 50, {240, 540, 100, 60}},
        {"above, a long text grows to the right", SelectBoxDirection::AboveWideToRight, 2, 150, {240, 540, 150, 60}},
        {"below begins at the control's last line", SelectBoxDirection::Below, 4, 900, {240, 629, 100, 120}},
        {"below, a long text grows to the left", SelectBoxDirection::BelowWideToLeft, 2, 150, {190, 629, 150, 60}},
        {"below, no rows", SelectBoxDirection::BelowWideToLeft, 0, 0, {240, 629, 100, 0}},
    };
    for (const Case& c : cases) {
        const QRect place = placeSelectBox({c.direction, anchor, parent, c.rows, c.textWidth});
        EXPECT_EQ(place, c.expected) << c.what << ": " << place.x() << ' ' << place.y() << ' ' << place.width() << ' '
                                     << place.height();
    }
}

TEST(SelectBoxPlacement, ScrollsOnlyAListThatIsTooLong) {
    EXPECT_EQ(selectBoxScroll(20, 30, 12), 360);
    EXPECT_EQ(selectBoxScroll(20, 30, 0), 0);
    EXPECT_EQ(selectBoxScroll(20, 30, -1), std::nullopt) << "nothing is selected";
    EXPECT_EQ(selectBoxScroll(10, 30, 9), std::nullopt) << "all rows are in sight";
}

TEST(SelectBoxPlacement, EachCharacterCountsByItsFont) {
    const QString latin = "Segoe UI";
    const QString meiryo = QString::fromUtf8("メイリオ");
    struct Case {
        uint character;
        QString family;
        int size;
    };
    const Case cases[] = {
        {'a', latin, 15},     {'z', latin, 15},     {'A', latin, 16},     {'Z', latin, 16},      {'5', meiryo, 17},
        {' ', meiryo, 17},    {'{', meiryo, 17},    {0xE4, latin, 15},    {0xC4, latin, 16},     {0x3B1, latin, 15},
        {0x411, latin, 16},   {0xD7, meiryo, 17},   {0x3042, meiryo, 17}, {0x4E00, meiryo, 17},  {0x4E01, meiryo, 14},
        {0x9FEA, meiryo, 14}, {0x9FEB, meiryo, 17}, {0xAA, meiryo, 17},   {0x1F600, meiryo, 17},
    };
    for (const Case& c : cases) {
        const SelectBoxFont font = selectBoxFont(c.character);
        EXPECT_EQ(font.family.toStdString(), c.family.toStdString()) << std::hex << c.character;
        EXPECT_EQ(font.pointSize, c.size) << std::hex << c.character;
        EXPECT_EQ(font.weight, c.size) << std::hex << c.character;
    }

    const auto width = [](const QString& character, const QString& family, int size) {
        return QFontMetrics(QFont(family, size, size)).boundingRect(character).width();
    };
    EXPECT_EQ(selectBoxTextWidth("Ab1"), width("A", latin, 16) + width("b", latin, 15) + width("1", meiryo, 17));
    EXPECT_EQ(selectBoxTextWidth({}), 0);
}

}  // namespace

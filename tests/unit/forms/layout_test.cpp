#include "forms/layout.h"

#include <gtest/gtest.h>

#include "forms/form.h"

namespace {

using namespace forms;

// Extents that are easy to add up: a character is 10 pixels wide, a line 20 high, the gap 5.
Extent ExtentOf(const Control& control) { return {control.size.characters * 10, control.size.lines * 20}; }

class LayoutTest : public testing::Test {
 protected:
  const Measures measures{ExtentOf, 5};
  Form form{"frmTest", ""};
  Label small{form, "small", "", {4, 1}};
  Label tall{form, "tall", "", {6, 3}};
  TextBox field{form, "field", {10, 1}};
  RichTextBox text{form, "text", {20, 4, true}};
  ProgressBar bar{form, "bar", {8, 1, true}};
  Label wide{form, "wide", "", {9, 1}};

  void ExpectPlace(const Placement& placement, const Control& control, int left, int top, int width, int height) {
    EXPECT_EQ(placement.control, &control);
    EXPECT_EQ(placement.left, left) << control.name;
    EXPECT_EQ(placement.top, top) << control.name;
    EXPECT_EQ(placement.width, width) << control.name;
    EXPECT_EQ(placement.height, height) << control.name;
  }

  void ExpectExtent(const Box& box, int width, int height) {
    const Extent extent = SmallestExtent(box, measures);
    EXPECT_EQ(extent.width, width);
    EXPECT_EQ(extent.height, height);
  }
};

TEST_F(LayoutTest, AnEmptyColumnNeedsNoRoom) {
  ExpectExtent(Column({}), 0, 0);
  EXPECT_TRUE(Arrange(Column({}), {100, 100}, measures).empty());
}

TEST_F(LayoutTest, ASingleControlNeedsItsExtent) { ExpectExtent(small, 40, 20); }

TEST_F(LayoutTest, ARowPutsItsBoxesSideBySideAndLevelsThem) {
  const Box row = Row({small, tall, field});
  ExpectExtent(row, 40 + 5 + 60 + 5 + 100, 60);
  const auto placements = Arrange(row, {210, 60}, measures);
  ASSERT_EQ(placements.size(), 3u);
  ExpectPlace(placements[0], small, 0, 20, 40, 20);
  ExpectPlace(placements[1], tall, 45, 0, 60, 60);
  ExpectPlace(placements[2], field, 110, 20, 100, 20);
}

TEST_F(LayoutTest, AColumnPutsItsBoxesBelowEachOther) {
  const Box column = Column({tall, field});
  ExpectExtent(column, 100, 60 + 5 + 20);
  const auto placements = Arrange(column, {100, 85}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[0], tall, 0, 0, 60, 60);
  ExpectPlace(placements[1], field, 0, 65, 100, 20);
}

TEST_F(LayoutTest, AGridLinesUpItsColumns) {
  // small field
  // tall  wide
  const Box grid = Grid(2, {small, field, tall, wide});
  ExpectExtent(grid, 60 + 5 + 100, 20 + 5 + 60);
  const auto placements = Arrange(grid, {165, 85}, measures);
  ASSERT_EQ(placements.size(), 4u);
  ExpectPlace(placements[0], small, 0, 0, 40, 20);
  ExpectPlace(placements[1], field, 65, 0, 100, 20);
  ExpectPlace(placements[2], tall, 0, 25, 60, 60);
  ExpectPlace(placements[3], wide, 65, 45, 90, 20);
}

TEST_F(LayoutTest, AGridWithAnUnfilledLastRow) {
  const Box grid = Grid(2, {small, field, tall});
  ExpectExtent(grid, 165, 85);
  EXPECT_EQ(Arrange(grid, {165, 85}, measures).size(), 3u);
}

TEST_F(LayoutTest, AGridWithFewerBoxesThanColumnsHasNoGapForTheMissing) {
  ExpectExtent(Grid(4, {small, field}), 145, 20);
}

TEST_F(LayoutTest, ButtonsStandAtTheRightEndInEqualWidth) {
  const Box buttons = Buttons({small, wide});
  ExpectExtent(buttons, 90 + 5 + 90, 20);
  const auto placements = Arrange(buttons, {300, 20}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[0], small, 115, 0, 90, 20);
  ExpectPlace(placements[1], wide, 210, 0, 90, 20);
}

TEST_F(LayoutTest, ButtonsInAColumnUseTheColumnsWholeWidth) {
  const auto placements = Arrange(Column({tall, Buttons({small})}), {200, 85}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[1], small, 160, 65, 40, 20);
}

TEST_F(LayoutTest, ButtonsInARowReachItsRightEnd) {
  const auto placements = Arrange(Row({tall, Column({Buttons({small})})}), {200, 60}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[0], tall, 0, 0, 60, 60);
  ExpectPlace(placements[1], small, 160, 20, 40, 20);
}

TEST_F(LayoutTest, AGrowingControlTakesTheRestOfItsRow) {
  const auto placements = Arrange(Row({small, bar, field}), {400, 20}, measures);
  ASSERT_EQ(placements.size(), 3u);
  ExpectPlace(placements[0], small, 0, 0, 40, 20);
  ExpectPlace(placements[1], bar, 45, 0, 400 - 40 - 100 - 10, 20);
  ExpectPlace(placements[2], field, 300, 0, 100, 20);
}

TEST_F(LayoutTest, AGrowingTextTakesTheRestOfItsColumnInBothDirections) {
  const auto placements = Arrange(Column({text, Buttons({small})}), {500, 300}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[0], text, 0, 0, 500, 275);
  ExpectPlace(placements[1], small, 460, 280, 40, 20);
}

TEST_F(LayoutTest, AGrowingControlOfOneLineKeepsItsHeight) {
  const auto placements = Arrange(Column({bar}), {300, 200}, measures);
  ASSERT_EQ(placements.size(), 1u);
  ExpectPlace(placements[0], bar, 0, 0, 300, 20);
}

TEST_F(LayoutTest, GrowingControlsShareTheRestToThePixel) {
  const auto placements = Arrange(Row({bar, text}), {80 + 5 + 200 + 7, 80}, measures);
  ASSERT_EQ(placements.size(), 2u);
  EXPECT_EQ(placements[0].width + placements[1].width, 80 + 200 + 7);
  EXPECT_EQ(placements[0].width, 83);
  EXPECT_EQ(placements[1].left + placements[1].width, 292);
}

TEST_F(LayoutTest, WhatDoesNotGrowKeepsItsSizeInALargerRoom) {
  const auto placements = Arrange(Column({Row({small, field})}), {900, 900}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[0], small, 0, 0, 40, 20);
  ExpectPlace(placements[1], field, 45, 0, 100, 20);
}

TEST_F(LayoutTest, ATooSmallRoomCutsNothing) {
  const auto placements = Arrange(Row({small, field}), {50, 10}, measures);
  ASSERT_EQ(placements.size(), 2u);
  ExpectPlace(placements[1], field, 45, 0, 100, 20);
}

TEST_F(LayoutTest, TheOrderIsThatOfTheLayoutWhateverTheBoxes) {
  const Box box = Column({Row({field, small}), Grid(2, {tall, bar}), Buttons({wide})});
  const std::vector<Control*> expected{&field, &small, &tall, &bar, &wide};
  EXPECT_EQ(ControlsOf(box), expected);
  const auto placements = Arrange(box, SmallestExtent(box, measures), measures);
  ASSERT_EQ(placements.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(placements[i].control, expected[i]);
}

}  // namespace

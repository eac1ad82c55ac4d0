#include "results/drawings/section_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace barvon::testing {
namespace {

const Canvas kCanvas{600, 300, 12};

/// 2 x 3 cells of 100 by 200 ft: 0, 10, 20 in both rows.
Cell_Values Slope() {
  return {.rows = 2,
          .columns = 3,
          .spacing_x = 100,
          .spacing_z = 200,
          .values = {0, 10, 20, 0, 10, 20}};
}

std::vector<Line_Shape> Curves(const Shape_List& picture) {
  std::vector<Line_Shape> curves;
  for (const Shape& shape : picture.shapes) {
    const auto* line = std::get_if<Line_Shape>(&shape);
    if (line && line->stroke.width == 1.8) curves.push_back(*line);
  }
  return curves;
}

// 400 ft at four samples to the spacing of 100 ft: 16 steps would be fewer than 20.
TEST(SectionDrawing, Samples_Are_Even_And_Read_Like_The_Map) {
  const auto samples = Samples_Along(Slope(), {{50, 0}, {50, 400}});
  ASSERT_EQ(samples.size(), 21);
  EXPECT_EQ(samples[0].value, 0);
  EXPECT_EQ(samples[10].distance, 200);
  EXPECT_EQ(samples[10].value, 10);
  EXPECT_EQ(samples[5].place.z, 100);
  EXPECT_EQ(samples[5].value, 5);
  EXPECT_EQ(samples[20].value, 20);
  EXPECT_EQ(samples[20].distance, 400);
}

TEST(SectionDrawing, Long_Lines_Have_A_Sample_For_A_Quarter_Of_The_Spacing_Up_To_A_Bound) {
  Cell_Values cells = Slope();
  cells.spacing_x = 40;  // 400 / 10
  EXPECT_EQ(Samples_Along(cells, {{0, 0}, {0, 400}}).size(), 41);
  cells.spacing_x = 0.1;
  EXPECT_EQ(Samples_Along(cells, {{0, 0}, {0, 400}}).size(), 2001);
}

TEST(SectionDrawing, A_Line_Without_Length_Has_No_Section) {
  EXPECT_TRUE(Samples_Along(Slope(), {{50, 50}, {50, 50}}).empty());
  EXPECT_TRUE(Samples_Along({}, {{50, 0}, {50, 50}}).empty());
  const Section_Drawing drawing = Draw_Section(Slope(), {{5, 5}, {5, 5}}, "ft", {}, false);
  EXPECT_EQ(drawing.description, "The line has no length.");
}

TEST(SectionDrawing, The_Curve_Has_The_Values_Over_The_Distance) {
  const Section_Drawing drawing =
      Draw_Section(Slope(), {{0, 0}, {0, 400}}, "mg/l", {.levels = {5, 10}}, false);
  EXPECT_EQ(drawing.description,
            "Section of 400 ft from X 0 ft, Z 0 ft to X 0 ft, Z 400 ft. Largest 20 mg/l at X 0 ft, "
            "Z 400 ft.");
  EXPECT_EQ(drawing.across.high, 400);
  EXPECT_EQ(drawing.upright.low, 0);
  EXPECT_EQ(drawing.upright.high, 20);
  const Shape_List picture = Section_Shapes(drawing, kCanvas);
  const auto curves = Curves(picture);
  ASSERT_EQ(curves.size(), 1);
  ASSERT_EQ(curves[0].points.size(), 21);
  // A slope of one value is a straight line.
  const Place first = curves[0].points.front(), middle = curves[0].points[10],
              last = curves[0].points.back();
  EXPECT_NEAR(middle.x, (first.x + last.x) / 2, 1e-9);
  EXPECT_NEAR(middle.y, (first.y + last.y) / 2, 1e-9);
  EXPECT_LT(last.y, first.y);
  const auto marks = std::ranges::count_if(picture.shapes, [](const Shape& shape) {
    const auto* line = std::get_if<Line_Shape>(&shape);
    return line && line->stroke.width == 2;
  });
  EXPECT_EQ(marks, 2);
}

TEST(SectionDrawing, On_A_Logarithmic_Axis_What_Is_Below_It_Leaves_A_Gap) {
  Cell_Values cells = Slope();
  cells.values = {10, 0, 10, 10, 0, 10};
  const Section_Drawing drawing =
      Draw_Section(cells, {{0, 0}, {0, 400}}, "mg/l", {.levels = {0.5, 5}}, true);
  EXPECT_TRUE(drawing.upright.logarithmic);
  EXPECT_EQ(drawing.upright.low, 0.1);
  EXPECT_EQ(drawing.upright.high, 10);
  // 10, 9, .. 1 and then 0 in the middle: two curves of ten samples.
  const auto curves = Curves(Section_Shapes(drawing, kCanvas));
  ASSERT_EQ(curves.size(), 2);
  EXPECT_EQ(curves[0].points.size() + curves[1].points.size(), 20);
}

TEST(SectionDrawing, Differences_Have_Both_Sides_Of_Zero) {
  Cell_Values cells = Slope();
  cells.values = {-20, 0, 20, -20, 0, 20};
  const Section_Drawing drawing =
      Draw_Section(cells, {{0, 0}, {0, 400}}, "ft", {.levels = {5}, .two_sides = true}, true);
  EXPECT_FALSE(drawing.upright.logarithmic);
  EXPECT_EQ(drawing.upright.low, -20);
  EXPECT_EQ(drawing.upright.high, 20);
}

}  // namespace
}  // namespace barvon::testing

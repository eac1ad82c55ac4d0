#include "pictures/shapes/bars.h"

#include <gtest/gtest.h>

#include <limits>

#include "pictures/shapes/lettering.h"

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
const Canvas kCanvas = {500, 300, 12};
const Colour kSand = {1, 2, 3}, kClay = {4, 5, 6};

/// The filled rectangles of one colour, in their order.
std::vector<Polygon_Shape> Filled(const Shape_List& picture, Colour fill) {
  std::vector<Polygon_Shape> found;
  for (const Shape& shape : picture.shapes) {
    const auto* polygon = std::get_if<Polygon_Shape>(&shape);
    if (polygon && polygon->fill == fill) found.push_back(*polygon);
  }
  return found;
}

double Left(const Polygon_Shape& bar) { return bar.points[0].x; }
double Right(const Polygon_Shape& bar) { return bar.points[1].x; }
double Height(const Polygon_Shape& bar) { return bar.points[2].y - bar.points[1].y; }

bool Says(const Shape_List& picture, const std::string& words) {
  for (const Shape& shape : picture.shapes) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    if (text && text->text == words) return true;
  }
  return false;
}

TEST(Bars, Plain_Bars_Are_As_Long_As_Their_Values) {
  Bar_Chart chart;
  chart.value_label = "Volume (cy)";
  chart.bars = {Plain_Bar("one", 100, kSand), Plain_Bar("four", 400, kSand)};
  const Bars_Drawing drawing = Draw_Bars(chart);
  EXPECT_EQ(drawing.scale.low, 0);
  EXPECT_EQ(drawing.description, "2 bars, Volume (cy). one: 100. four: 400.");
  const auto bars = Filled(Bar_Shapes(drawing, kCanvas), kSand);
  ASSERT_EQ(bars.size(), 2u);
  EXPECT_EQ(Left(bars[0]), Left(bars[1]));
  EXPECT_NEAR(Right(bars[1]) - Left(bars[1]), 4 * (Right(bars[0]) - Left(bars[0])), 1e-6);
  EXPECT_LT(bars[0].points[2].y, bars[1].points[0].y);
}

TEST(Bars, Amounts_Are_Stacked_And_Those_Of_No_Size_Take_No_Room) {
  const Bar bar = Stacked_Bar(
      "Layer 1",
      {{0.2, kSand, "sand"}, {0, kClay, "silt"}, {-1, kClay, "?"}, {0.3, kClay, "clay"}});
  ASSERT_EQ(bar.parts.size(), 2u);
  EXPECT_EQ(bar.parts[1].from, 0.2);
  EXPECT_EQ(bar.parts[1].to, 0.5);
  Bar_Chart chart;
  chart.bars = {bar};
  const Shape_List picture = Bar_Shapes(Draw_Bars(chart), kCanvas);
  EXPECT_EQ(Right(Filled(picture, kSand).at(0)), Left(Filled(picture, kClay).at(0)));
  EXPECT_EQ(Bar_Words(bar), "Layer 1: sand 0.2, clay 0.2 to 0.5");
}

TEST(Bars, Parts_May_Leave_Gaps_As_On_A_Time_Line) {
  Bar_Chart chart;
  chart.bars = {{"Prints", {{100, 200, kSand, ""}, {300, 400, kSand, ""}}}};
  const auto parts = Filled(Bar_Shapes(Draw_Bars(chart), kCanvas), kSand);
  ASSERT_EQ(parts.size(), 2u);
  EXPECT_GT(Left(parts[1]), Right(parts[0]) + 10);
}

TEST(Bars, Heights_Go_By_Weight) {
  Bar_Chart chart;
  chart.bars = {Plain_Bar("thin", 1, kSand), Plain_Bar("thick", 1, kSand)};
  chart.bars[1].weight = 3;
  const auto bars = Filled(Bar_Shapes(Draw_Bars(chart), kCanvas), kSand);
  // The gaps of at most 6 pixels apart.
  EXPECT_NEAR(Height(bars[1]) + 6, 3 * (Height(bars[0]) + 6), 1e-6);
}

// 5 and 2000 lie in the decades from 1 to 10 and from 1000 to 10000.
TEST(Bars, A_Logarithmic_Axis_Has_A_Decade_For_Each_Factor_Of_Ten) {
  Bar_Chart chart;
  chart.logarithmic = true;
  chart.bars = {Plain_Bar("a", 5, kSand), Plain_Bar("b", 50, kSand), Plain_Bar("c", 2000, kSand)};
  const Bars_Drawing drawing = Draw_Bars(chart);
  EXPECT_EQ(drawing.scale.low, 1);
  EXPECT_EQ(drawing.scale.high, 10000);
  const auto bars = Filled(Bar_Shapes(drawing, kCanvas), kSand);
  ASSERT_EQ(bars.size(), 3u);
  const double decade = Right(bars[1]) - Right(bars[0]);
  EXPECT_GT(decade, 20);
  EXPECT_NEAR(Right(bars[0]) - Left(bars[0]), decade * 0.698970004, 1e-6);   // log10(5)
  EXPECT_NEAR(Right(bars[2]) - Right(bars[1]), decade * 1.602059991, 1e-6);  // log10(40)
}

TEST(Bars, A_Value_Of_One_Still_Has_A_Length_On_A_Logarithmic_Axis) {
  Bar_Chart chart;
  chart.logarithmic = true;
  chart.bars = {Plain_Bar("a", 1, kSand)};
  const auto bars = Filled(Bar_Shapes(Draw_Bars(chart), kCanvas), kSand);
  ASSERT_EQ(bars.size(), 1u);
  EXPECT_GT(Right(bars[0]), Left(bars[0]) + 20);
}

TEST(Bars, Zero_And_Less_Have_No_Place_On_A_Logarithmic_Axis_And_That_Is_Told) {
  Bar_Chart chart;
  chart.logarithmic = true;
  chart.bars = {Plain_Bar("zero", 0, kSand), Plain_Bar("less", -3, kSand),
                Plain_Bar("none", kNan, kSand)};
  const Bars_Drawing drawing = Draw_Bars(chart);
  EXPECT_EQ(drawing.left_out, 3);
  EXPECT_EQ(drawing.note, "3 values not shown.");
  EXPECT_LT(drawing.scale.low, drawing.scale.high);
  EXPECT_TRUE(Filled(Bar_Shapes(drawing, kCanvas), kSand).empty());
}

TEST(Bars, What_Cannot_Be_Met_Goes_To_The_End_And_Says_So) {
  Bar_Chart chart;
  chart.logarithmic = true;
  chart.bars = {Plain_Bar("Copper", 12, kSand), {"Lead", {}, 1, true, false, "cannot be met"}};
  const Bars_Drawing drawing = Draw_Bars(chart);
  EXPECT_EQ(drawing.scale.high, 100);  // the endless one has no say in the scale
  EXPECT_NE(drawing.description.find("Lead: cannot be met"), std::string::npos);
  const Shape_List picture = Bar_Shapes(drawing, kCanvas);
  EXPECT_TRUE(Says(picture, "cannot be met"));
  const double copper = Right(Filled(picture, kSand).at(0));
  bool outline = false;
  for (const Shape& shape : picture.shapes) {
    const auto* polygon = std::get_if<Polygon_Shape>(&shape);
    if (!polygon || !polygon->stroke || polygon->stroke->dash != Dash::dashed) continue;
    outline = true;
    EXPECT_GT(Right(*polygon), copper + 50);
  }
  EXPECT_TRUE(outline);
}

TEST(Bars, A_Bar_That_Warns_Has_An_Edge) {
  Bar_Chart chart;
  chart.bars = {Plain_Bar("plain", 1, kSand), Plain_Bar("too much", 2, kSand)};
  chart.bars[1].warned = true;
  const auto bars = Filled(Bar_Shapes(Draw_Bars(chart), kCanvas), kSand);
  EXPECT_FALSE(bars[0].stroke);
  EXPECT_TRUE(bars[1].stroke);
}

TEST(Bars, Five_Hundred_Bars_Have_As_Many_Labels_As_There_Is_Room_For) {
  Bar_Chart chart;
  for (int i = 1; i <= 500; ++i) {
    chart.bars.push_back(Plain_Bar("Parameter " + std::to_string(i), i, kSand));
  }
  const Bars_Drawing drawing = Draw_Bars(chart);
  EXPECT_TRUE(drawing.description.ends_with("And 460 more."));
  const Shape_List picture = Bar_Shapes(drawing, kCanvas);
  EXPECT_EQ(Filled(picture, kSand).size(), 500u);
  double last = -100;
  for (const Shape& shape : picture.shapes) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    if (!text || !text->text.starts_with("Parameter")) continue;
    EXPECT_GE(text->place.y - last, text->size);
    last = text->place.y;
  }
  EXPECT_GT(last, 0);
}

TEST(Bars, Names_That_Differ_At_Their_End_Are_Told_Apart) {
  Bar_Chart chart;
  for (const char* name :
       {"Parameter of the upper layer 1", "Parameter of the upper layer 2",
        "Gr\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6 2"}) {
    chart.bars.push_back(Plain_Bar(name, 100, kSand));
  }
  const Canvas narrow = {200, 300, 12};
  std::vector<std::string> labels;
  for (const Shape& shape : Bar_Shapes(Draw_Bars(chart), narrow).shapes) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    if (text && text->text.find("...") != std::string::npos) labels.push_back(text->text);
  }
  ASSERT_EQ(labels.size(), 3u);
  EXPECT_TRUE(labels[0].starts_with("Par")) << labels[0];
  EXPECT_TRUE(labels[0].ends_with(" 1")) << labels[0];
  EXPECT_TRUE(labels[1].ends_with(" 2")) << labels[1];
  EXPECT_TRUE(labels[2].starts_with("Gr\xC3\xB6")) << labels[2];
  EXPECT_NE(labels[2].find("..."), std::string::npos);
  EXPECT_EQ((labels[2][labels[2].find("...") + 3] & 0xC0), 0xC0) << "whole letters only";
}

TEST(Bars, The_Last_Number_Of_The_Axis_Is_On_The_Picture) {
  Bar_Chart chart;
  chart.logarithmic = true;
  chart.bars = {Plain_Bar("one", 100000, kSand)};
  const Shape_List picture = Bar_Shapes(Draw_Bars(chart), {200, 300, 12});
  for (const Shape& shape : picture.shapes) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    if (!text || text->anchor != Anchor::middle) continue;
    EXPECT_LE(text->place.x + Text_Width(text->text, text->size) / 2, 200) << text->text;
  }
  EXPECT_TRUE(Says(picture, "100000"));
}

TEST(Bars, A_Place_Finds_Its_Bar) {
  Bar_Chart chart;
  chart.bars = {Plain_Bar("a", 1, kSand), Plain_Bar("b", 2, kSand)};
  const Bars_Drawing drawing = Draw_Bars(chart);
  const auto bars = Filled(Bar_Shapes(drawing, kCanvas), kSand);
  for (std::size_t i = 0; i < 2; ++i) {
    const double middle = (bars[i].points[0].y + bars[i].points[2].y) / 2;
    EXPECT_EQ(Bar_At(drawing, kCanvas, {Left(bars[i]) + 1, middle}), i);
  }
  EXPECT_EQ(Bar_At(drawing, kCanvas, {100, 0}), std::nullopt);
  EXPECT_EQ(Bar_At(drawing, kCanvas, {100, 299}), std::nullopt);
}

TEST(Bars, Nothing_And_No_Room_Are_No_Trouble) {
  const Bars_Drawing none = Draw_Bars({});
  EXPECT_EQ(none.note, "Nothing to show yet.");
  EXPECT_EQ(Bar_At(none, kCanvas, {100, 100}), std::nullopt);
  Bar_Chart chart;
  chart.bars = {Plain_Bar("a", kNan, kSand), Plain_Bar("b", 1e300, kSand)};
  chart.bars[0].weight = kNan;
  for (const Canvas canvas : {kCanvas, Canvas{0, 0, 12}, Canvas{1, 900, 12}}) {
    EXPECT_GE(Bar_Shapes(none, canvas).width, 0);
    EXPECT_GE(Bar_Shapes(Draw_Bars(chart), canvas).width, 0);
  }
}

}  // namespace
}  // namespace barvon

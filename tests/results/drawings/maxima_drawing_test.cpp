#include "results/drawings/maxima_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/svg_writer.h"
#include "results/small_results.h"

namespace barvon::testing {
namespace {

constexpr Canvas kCanvas{500, 300, 12};

Results Another() {
  Results other = Small_Results();
  other.path = "/work/wide.DUI";
  for (Result_Maxima& row : other.maxima) row.time += 50;
  return other;
}

std::vector<double> Values_Of(const Maxima_Curve& curve) {
  std::vector<double> values;
  for (const Timed_Value& value : curve.values) values.push_back(value.value);
  return values;
}

bool Says(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::vector<Line_Shape> Lines_In(const Shape_List& picture, Colour colour) {
  std::vector<Line_Shape> lines;
  for (const Shape& shape : picture.shapes) {
    const auto* line = std::get_if<Line_Shape>(&shape);
    if (line != nullptr && line->stroke.colour == colour) lines.push_back(*line);
  }
  return lines;
}

TEST(MaximaDrawing, A_Curve_For_Each_Area_Of_The_Run) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 2, .depth = 20.0});
  ASSERT_EQ(drawing.curves.size(), 2u);
  EXPECT_EQ(drawing.title, "Ammonia at 20 ft");
  EXPECT_EQ(drawing.curves[0].name, "inside the site");
  EXPECT_EQ(Values_Of(drawing.curves[0]), (std::vector<double>{6, 4, 2, 0.5}));
  EXPECT_EQ(drawing.curves[1].name, "outside the site");
  EXPECT_EQ(Values_Of(drawing.curves[1]), (std::vector<double>{0.5, 3, 1, 0.7}));
}

TEST(MaximaDrawing, Curves_Of_A_Mixing_Zone_Say_So) {
  Results zone = Small_Results();
  zone.mixing_zone = true;
  zone.path = "/work/zone.DUI";
  const Results site = Small_Results();
  const auto drawing = Draw_Maxima(zone, &site, {.species = 2, .inside = false});
  ASSERT_EQ(drawing.curves.size(), 2u);
  EXPECT_EQ(drawing.curves[0].name, "zone, outside the mixing zone");
  EXPECT_EQ(drawing.curves[1].name, "small, outside the site");
}

TEST(MaximaDrawing, All_Depths_Are_The_Largest_Of_Them) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 2, .inside = false});
  ASSERT_EQ(drawing.curves.size(), 1u);
  EXPECT_EQ(drawing.title, "Ammonia at all depths");
  EXPECT_EQ(Values_Of(drawing.curves[0]), (std::vector<double>{0.5, 3, 1.5, 1}));
}

TEST(MaximaDrawing, Without_A_Site_One_Curve_Stands_For_All_Places) {
  Results results = Small_Results();
  results.site.reset();
  const auto drawing =
      Draw_Maxima(results, nullptr, {.species = 1, .inside = false, .outside = false});
  ASSERT_EQ(drawing.curves.size(), 1u);
  EXPECT_EQ(drawing.curves[0].name, "anywhere");
  EXPECT_EQ(Values_Of(drawing.curves[0]), (std::vector<double>{90, 30, 6, 2}));
}

TEST(MaximaDrawing, Outside_The_Zid_Is_Drawn_Where_There_Is_One) {
  Results results = Small_Results();
  results.zid = {.top = 0, .left = 0, .bottom = 50, .right = 50};
  ASSERT_EQ(Draw_Maxima(results, nullptr, {}).curves.size(), 3u);
  EXPECT_EQ(Draw_Maxima(results, nullptr, {}).curves[2].name, "outside the ZID");
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.outside_zid = false}).curves.size(), 2u);
}

TEST(MaximaDrawing, A_Limit_Is_Told_With_The_Solvers_Own_Times) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 2});
  ASSERT_EQ(drawing.limits.size(), 1u);
  EXPECT_EQ(drawing.limits[0].exceeded, (std::vector<Time_Span>{{140, 260}}));
  EXPECT_EQ(
      drawing.limits[0].words,
      "criterion outside the disposal site, 2 mg/l, at any point and depth: exceeded from 140 s "
      "(2.3 min) to 260 s (4.3 min), largest 3.4 mg/l at 210 s (3.5 min)");
  EXPECT_TRUE(Says(drawing.note, drawing.limits[0].words));
  EXPECT_TRUE(Says(drawing.description, drawing.limits[0].words));
  EXPECT_TRUE(Draw_Maxima(Small_Results(), nullptr, {.species = 1}).limits.empty());
  EXPECT_TRUE(
      Draw_Maxima(Small_Results(), nullptr, {.species = 2, .limits = false}).limits.empty());
}

TEST(MaximaDrawing, One_Depth_Has_The_Limit_Without_The_Times_Of_All_Depths) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 2, .depth = 20.0});
  ASSERT_EQ(drawing.limits.size(), 1u);
  EXPECT_TRUE(drawing.limits[0].exceeded.empty());
  EXPECT_TRUE(Says(drawing.note, "at any point and depth: exceeded from 140 s"));
}

TEST(MaximaDrawing, A_Run_Of_Descent_And_Collapse_Alone_Says_So) {
  Results results = Small_Results();
  results.maxima.clear();
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.species = 1}).note,
            "The run has no concentrations: it ends with descent and collapse.");
}

TEST(MaximaDrawing, A_Limit_That_Is_Kept_Says_So) {
  Results results = Small_Results();
  results.limits[0].exceeded = false;
  results.limits[0].worst = 1.5;
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.species = 2}).limits[0].words,
            "criterion outside the disposal site, 2 mg/l, at any point and depth: not exceeded, "
            "largest 1.5 mg/l at "
            "210 s (3.5 min)");
}

TEST(MaximaDrawing, A_Typed_Value_Is_Exceeded_Where_The_Lines_Are_Above_It) {
  // Inside 90, 30, 4, 1 at 100 to 400 s; 17 is halfway from 30 to 4.
  const auto drawing =
      Draw_Maxima(Small_Results(), nullptr, {.species = 1, .outside = false, .held_against = 17});
  ASSERT_EQ(drawing.limits.size(), 1u);
  EXPECT_EQ(drawing.limits[0].exceeded, (std::vector<Time_Span>{{100, 250}}));
  EXPECT_EQ(drawing.limits[0].words,
            "17 mg/l held against the curves, means over cells at the output times and output "
            "depths: inside the site exceeded from 100 s (1.7 min) to 250 s (4.2 min)");
}

// Outside the curve goes up to 3, the solver found 3.4 at a point.
TEST(MaximaDrawing, What_A_Curve_Does_Not_Show_Of_A_Typed_Value_Is_Told_Beside_It) {
  const auto typed = [](double value, std::optional<double> depth = {}) {
    return Draw_Maxima(Small_Results(), nullptr,
                       {.species = 2, .depth = depth, .limits = false, .held_against = value})
        .limits.at(0)
        .words;
  };
  EXPECT_EQ(typed(3.2),
            "3.2 mg/l held against the curves, means over cells at the output times and output "
            "depths: inside the site exceeded from 100 s (1.7 min) to 240 s (4 min); outside the "
            "site not exceeded, but 3.4 mg/l at any point and depth at 210 s (3.5 min)");
  EXPECT_EQ(typed(3.4).find("but"), std::string::npos);
  EXPECT_EQ(typed(2.9).find("but"), std::string::npos);
  const std::string at_depth = typed(2, 5);
  EXPECT_TRUE(Says(at_depth, "output times and 5 ft: inside")) << at_depth;
  EXPECT_TRUE(Says(at_depth, "outside the site not exceeded, but 3.4 mg/l")) << at_depth;
}

TEST(MaximaDrawing, A_Value_That_Is_Above_Its_Limit_Does_Not_Read_Like_It) {
  Results results = Small_Results();
  const auto words = [&](double value, double worst) {
    results.limits[0].value = value;
    results.limits[0].worst = worst;
    return Draw_Maxima(results, nullptr, {.species = 2}).limits.at(0).words;
  };
  EXPECT_TRUE(Says(words(2.2, 2.20004), "largest 2.20004 mg/l at"));
  EXPECT_TRUE(Says(words(2.2, 2.200001), "largest 2.200001 mg/l at"));
  EXPECT_TRUE(Says(words(2.2, 2.199999), "largest 2.199999 mg/l at"));
  EXPECT_TRUE(Says(words(2.2, 2.2), "largest 2.2 mg/l at"));
  EXPECT_TRUE(Says(words(2.2, 2.345678), "largest 2.3457 mg/l at"));
}

TEST(MaximaDrawing, Times_Between_Outputs_Are_Told_In_Whole_Seconds) {
  // From 30 to 4 in 100 s it is at 18 after 46.15 s.
  const auto drawing =
      Draw_Maxima(Small_Results(), nullptr, {.species = 1, .outside = false, .held_against = 18});
  EXPECT_NEAR(drawing.limits[0].exceeded[0].to, 246.1538, 1e-4);
  EXPECT_TRUE(Says(drawing.limits[0].words, "to 246 s (4.1 min)"));
}

TEST(MaximaDrawing, Two_Results_Are_Told_Apart_By_Their_Projects) {
  const Results own = Small_Results(), other = Another();
  const auto drawing = Draw_Maxima(own, &other, {.species = 1, .inside = false});
  ASSERT_EQ(drawing.curves.size(), 2u);
  EXPECT_EQ(drawing.curves[0].name, "small, outside the site");
  EXPECT_EQ(drawing.curves[1].name, "wide, outside the site");
  EXPECT_FALSE(drawing.curves[0].of_other);
  EXPECT_TRUE(drawing.curves[1].of_other);
  EXPECT_EQ(Reading_Times(drawing), (std::vector<double>{100, 150, 200, 250, 300, 350, 400, 450}));
  const Shape_List picture = Maxima_Shapes(drawing, kCanvas);
  int solid = 0, dashed = 0;
  for (const Line_Shape& line : Lines_In(picture, kZInk)) {
    if (line.points.size() != 4) continue;
    ++(line.stroke.dash == Dash::dashed ? dashed : solid);
  }
  EXPECT_EQ(solid, 1);
  EXPECT_EQ(dashed, 1);
}

TEST(MaximaDrawing, What_The_Other_Has_Not_Is_Told) {
  const Results own = Small_Results();
  Results other = Another();
  for (Result_Maxima& row : other.maxima) row.depth += 1;
  auto drawing = Draw_Maxima(own, &other, {.species = 1, .depth = 20.0});
  EXPECT_EQ(drawing.curves.size(), 2u);
  EXPECT_EQ(drawing.note, "wide has no values at 20 ft.");
  other.species[0].unit = "%";
  drawing = Draw_Maxima(own, &other, {.species = 1, .depth = 20.0});
  EXPECT_EQ(drawing.note, "wide has no Sand in mg/l.");
}

TEST(MaximaDrawing, The_Same_Species_Is_Found_By_Its_Name) {
  const Results own = Small_Results();
  Results other = Another();
  std::swap(other.species[0], other.species[1]);
  const auto drawing = Draw_Maxima(own, &other, {.species = 1, .inside = false, .limits = false});
  ASSERT_EQ(drawing.curves.size(), 2u);
  EXPECT_EQ(Values_Of(drawing.curves[1]), (std::vector<double>{0.5, 3, 1.5, 1}));
}

TEST(MaximaDrawing, The_Axis_Holds_Values_And_Limits) {
  const auto linear = Draw_Maxima(Small_Results(), nullptr, {.species = 1, .held_against = 100});
  EXPECT_EQ(linear.value.low, 0);
  EXPECT_EQ(linear.value.high, 100);
  EXPECT_EQ(linear.time.low, 0);
  EXPECT_EQ(linear.time.high, 400);
  EXPECT_EQ(linear.left_out, 0);
}

TEST(MaximaDrawing, On_A_Logarithmic_Axis_A_Zero_Is_A_Gap_And_Told) {
  // Outside 0, 8, 6, 2: three values are one line, the first has no place.
  const auto drawing =
      Draw_Maxima(Small_Results(), nullptr, {.species = 1, .logarithmic = true, .inside = false});
  EXPECT_EQ(drawing.value.low, 1);
  EXPECT_EQ(drawing.value.high, 10);
  EXPECT_EQ(drawing.left_out, 1);
  EXPECT_EQ(drawing.note, "1 value below the logarithmic axis left out as gaps.");
  int curves = 0;
  for (const Line_Shape& line : Lines_In(Maxima_Shapes(drawing, kCanvas), kZInk)) {
    curves += line.points.size() == 3;
  }
  EXPECT_EQ(curves, 1);
}

TEST(MaximaDrawing, A_Logarithmic_Axis_Goes_Down_Eight_Decades_At_Most) {
  Results results = Small_Results();
  for (Result_Maxima& row : results.maxima) row.inside = row.time < 150 ? 1000 : 1e-9;
  const auto drawing = Draw_Maxima(
      results, nullptr, {.species = 1, .depth = 5.0, .logarithmic = true, .outside = false});
  EXPECT_EQ(drawing.left_out, 3);
  EXPECT_GE(drawing.value.low, 1e-5 * 0.999);
}

TEST(MaximaDrawing, A_Value_That_Is_No_Number_Splits_The_Line) {
  Results results = Small_Results();
  for (Result_Maxima& row : results.maxima) {
    if (row.time == 200) row.outside = std::numeric_limits<double>::quiet_NaN();
  }
  const auto drawing = Draw_Maxima(results, nullptr, {.species = 1, .inside = false});
  EXPECT_EQ(drawing.left_out, 1);
  EXPECT_EQ(drawing.note, "1 value without a place left out as gaps.");
  for (const Line_Shape& line : Lines_In(Maxima_Shapes(drawing, kCanvas), kZInk)) {
    EXPECT_LT(line.points.size(), 3u);
  }
}

TEST(MaximaDrawing, Nothing_To_See_Is_Said) {
  EXPECT_EQ(Draw_Maxima({}, nullptr, {}).note, "The outputs hold no species.");
  Results results = Small_Results();
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.species = 1, .inside = false, .outside = false}).note,
            "No curve is chosen.");
  for (Result_Maxima& row : results.maxima) row.inside = row.outside = row.species == 2 ? 0.5 : 0;
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.species = 1}).note, "All values are 0.");
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.species = 2, .limits = false}).note,
            "All values are those of the background, 0.5 mg/l.");
  std::erase_if(results.maxima, [](const Result_Maxima& row) { return row.species == 1; });
  EXPECT_EQ(Draw_Maxima(results, nullptr, {.species = 1}).note,
            "The outputs hold no values of it.");
}

TEST(MaximaDrawing, A_Reading_At_A_Time) {
  const Results own = Small_Results(), other = Another();
  const auto drawing = Draw_Maxima(own, &other, {.species = 1, .inside = false});
  EXPECT_EQ(Nearest_Reading(drawing, 160), 150);
  EXPECT_EQ(Nearest_Reading(drawing, 175), 150);
  EXPECT_EQ(Nearest_Reading(drawing, -1e9), 100);
  EXPECT_EQ(Nearest_Reading(Draw_Maxima({}, nullptr, {}), 1), std::nullopt);
  // Own 8 and 6 at 200 and 300 s; the other's 8 and 6 at 250 and 350 s.
  EXPECT_EQ(Reading_Words(drawing, 300),
            "300 s (5 min): small, outside the site 6 mg/l; wide, outside the site about 7 mg/l");
  EXPECT_EQ(Reading_Words(drawing, 100), "100 s (1.7 min): small, outside the site 0 mg/l");
  EXPECT_EQ(Reading_Words(drawing, 99), "");
  EXPECT_EQ(Value_At(drawing.curves[0], 225), 7.5);
  EXPECT_EQ(Value_At(drawing.curves[0], 401), std::nullopt);
}

TEST(MaximaDrawing, The_Table_Has_A_Column_For_Each_Curve) {
  const Results own = Small_Results(), other = Another();
  EXPECT_EQ(Maxima_Csv(Draw_Maxima(own, nullptr, {.species = 1})),
            "time (s),inside the site (mg/l),outside the site (mg/l)\r\n"
            "100,90,0\r\n200,30,8\r\n300,4,6\r\n400,1,2\r\n");
  const std::string both = Maxima_Csv(Draw_Maxima(own, &other, {.species = 1, .inside = false}));
  EXPECT_TRUE(both.starts_with(
      "time (s),\"small, outside the site (mg/l)\",\"wide, outside the site (mg/l)\"\r\n"
      "100,0,\r\n150,,0\r\n200,8,\r\n"))
      << both;
}

TEST(MaximaDrawing, The_Picture_Shows_The_Limit_And_When_It_Is_Exceeded) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 2});
  const Shape_List picture = Maxima_Shapes(drawing, kCanvas);
  const Plot_Frame frame = Frame_Of(drawing, kCanvas);
  const auto limits = Lines_In(picture, kWarnInk);
  ASSERT_FALSE(limits.empty());
  EXPECT_TRUE(std::ranges::any_of(limits, [&](const Line_Shape& line) {
    return std::abs(line.points[0].y - frame.At(0, 2).y) < 1e-9 &&
           line.points[1].x == frame.right() && line.stroke.dash == Dash::dashed;
  }));
  const auto* band = std::get_if<Polygon_Shape>(&picture.shapes.front());
  ASSERT_NE(band, nullptr);
  EXPECT_NEAR(band->points[0].x, frame.At(140, 0).x, 1e-9);
  EXPECT_NEAR(band->points[1].x, frame.At(260, 0).x, 1e-9);
  EXPECT_TRUE(Says(Svg_Text(picture), "exceeded from 140 s (2.3 min) to 260 s (4.3 min)"));
}

TEST(MaximaDrawing, The_Words_Of_A_Limit_Keep_Out_Of_The_Curves_Way) {
  Results results = Small_Results();
  results.limits[0].value = 0.9;  // the curve outside ends at 1
  results.limits[0].exceeded = false;
  const auto drawing = Draw_Maxima(results, nullptr, {.species = 2, .inside = false});
  const Plot_Frame frame = Frame_Of(drawing, kCanvas);
  for (const Shape& shape : Maxima_Shapes(drawing, kCanvas).shapes) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    if (text == nullptr || !text->text.starts_with("0.9 mg/l")) continue;
    EXPECT_LT(text->place.y, frame.At(400, 1).y - 3);
    return;
  }
  FAIL();
}

TEST(MaximaDrawing, The_Reading_Is_Marked_On_Each_Curve) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 1});
  const Shape_List above = Reading_Shapes(drawing, kCanvas, 200);
  const Plot_Frame frame = Frame_Of(drawing, kCanvas);
  ASSERT_EQ(above.shapes.size(), 3u);
  const auto* inside = std::get_if<Circle_Shape>(&above.shapes[1]);
  ASSERT_NE(inside, nullptr);
  EXPECT_EQ(inside->centre, frame.At(200, 30));
}

TEST(MaximaDrawing, The_Legend_Names_The_Curves_As_Long_As_There_Is_Room) {
  const auto drawing = Draw_Maxima(Small_Results(), nullptr, {.species = 2});
  ASSERT_FALSE(drawing.limits.empty());
  const auto words = [&](const Canvas& canvas) {
    std::string all;
    for (const Shape& shape : Maxima_Shapes(drawing, canvas).shapes) {
      if (const auto* text = std::get_if<Text_Shape>(&shape)) all += text->text + "\n";
    }
    return all;
  };
  const std::string curve = "outside the site\n", limit = drawing.limits[0].name + "\n";
  EXPECT_TRUE(Says(words(kCanvas), curve));
  EXPECT_TRUE(Says(words(kCanvas), limit));
  Canvas least = kCanvas;
  least.height = Least_Height(drawing, kCanvas);
  EXPECT_TRUE(Says(words(least), curve));
  EXPECT_FALSE(Says(words(least), limit));
  least.height -= 3;
  EXPECT_FALSE(Says(words(least), curve));
}

TEST(MaximaDrawing, Any_Room_Is_Survived) {
  for (const Canvas canvas : {Canvas{0, 0, 12}, {20, 10, 30}, {200, 100, 9}}) {
    Svg_Text(Maxima_Shapes(Draw_Maxima(Small_Results(), nullptr, {.species = 2}), canvas));
    Svg_Text(Maxima_Shapes(Draw_Maxima({}, nullptr, {}), canvas));
  }
}

}  // namespace
}  // namespace barvon::testing

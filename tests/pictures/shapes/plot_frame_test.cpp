#include "pictures/shapes/plot_frame.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "pictures/shapes/lettering.h"

namespace barvon {
namespace {

Plot_Layout Velocity_Against_Depth() {
  Plot_Layout layout;
  layout.across = {Scale_Over({0, 2}, 1), "Velocity (ft/s)"};
  layout.upright = {Scale_Over({0, 40}, 1), "Depth (ft)"};
  layout.upright.downwards = true;
  layout.legend = {{"X velocity", {}, Sample::circles}, {"Z velocity", {}, Sample::squares}};
  return layout;
}

std::vector<Text_Shape> Texts_Of(const Shape_List& picture) {
  std::vector<Text_Shape> texts;
  for (const Shape& shape : picture.shapes) {
    if (const auto* text = std::get_if<Text_Shape>(&shape)) texts.push_back(*text);
  }
  return texts;
}

TEST(PlotFrame, Values_And_Places_Undo_Each_Other) {
  const Plot_Frame frame(Velocity_Against_Depth(), {400, 300, 12});
  for (const double across : {0.0, 0.7, 2.0}) {
    for (const double upright : {0.0, 13.0, 40.0}) {
      const Place place = frame.At(across, upright);
      EXPECT_TRUE(frame.Holds(place));
      EXPECT_NEAR(frame.Across_At(place), across, 1e-9);
      EXPECT_NEAR(frame.Upright_At(place), upright, 1e-9);
    }
  }
  EXPECT_LT(frame.At(0, 0).x, frame.At(1, 0).x);
  EXPECT_LT(frame.At(0, 0).y, frame.At(0, 1).y);
}

TEST(PlotFrame, An_Upright_Axis_Grows_Upwards_Unless_Told) {
  Plot_Layout layout = Velocity_Against_Depth();
  layout.upright.downwards = false;
  const Plot_Frame frame(layout, {400, 300, 12});
  EXPECT_GT(frame.At(0, 0).y, frame.At(0, 1).y);
  EXPECT_NEAR(frame.Upright_At(frame.At(1, 30)), 30, 1e-9);
}

std::vector<std::string> Upright_Labels(const Axis_Scale& scale) {
  Plot_Layout layout = Velocity_Against_Depth();
  layout.upright = {scale, ""};
  layout.across.labelled = false;
  layout.legend.clear();
  Shape_List picture;
  Plot_Frame(layout, {400, 300, 12}).Add_Axes(picture);
  std::vector<std::string> labels;
  for (const Text_Shape& text : Texts_Of(picture)) {
    if (!text.text.empty() && text.anchor == Anchor::end) labels.push_back(text.text);
  }
  return labels;
}

TEST(PlotFrame, Few_Decades_Have_Labels_Between_Their_Powers) {
  EXPECT_EQ(Upright_Labels(Log_Scale_Over({0.1, 1})),
            (std::vector<std::string>{"0.1", "0.2", "0.5", "1"}));
  EXPECT_EQ(Upright_Labels(Log_Scale_Over({1, 1000})),
            (std::vector<std::string>{"1", "10", "100", "1000"}));
}

TEST(PlotFrame, No_Letters_Leave_The_Canvas_Nor_Lie_On_Each_Other) {
  for (const Canvas canvas : {Canvas{420, 280, 12}, {260, 200, 11}, {900, 600, 24}}) {
    const Plot_Frame frame(Velocity_Against_Depth(), canvas);
    Shape_List picture = frame.Ground("", "");
    frame.Add_Axes(picture);
    std::vector<std::array<double, 4>> boxes;
    for (const Text_Shape& text : Texts_Of(picture)) {
      const double width = Text_Width(text.text, text.size);
      const double before = text.anchor == Anchor::start    ? 0
                            : text.anchor == Anchor::middle ? width / 2
                                                            : width;
      // Left, top, right, bottom; a turned text goes up from its place.
      std::array<double, 4> box = {text.place.x - before, text.place.y - 0.75 * text.size,
                                   text.place.x - before + width, text.place.y};
      if (text.upwards) {
        box = {text.place.x - 0.75 * text.size, text.place.y + before - width, text.place.x,
               text.place.y + before};
      }
      EXPECT_GE(box[0], 0) << text.text;
      EXPECT_GE(box[1], 0) << text.text;
      EXPECT_LE(box[2], canvas.width) << text.text;
      EXPECT_LE(box[3], canvas.height) << text.text;
      for (const auto& other : boxes) {
        EXPECT_FALSE(box[0] < other[2] && other[0] < box[2] && box[1] < other[3] &&
                     other[1] < box[3])
            << text.text << " at " << canvas.width;
      }
      boxes.push_back(box);
    }
    EXPECT_GE(boxes.size(), 8u);
  }
}

// Beside the numbers the axis has 38 pixels less than the canvas. "Velocity (ft/s)" is estimated at
// 7.54 x 12 = 90, "ft/s" at 1.84 x 12 = 22.
TEST(PlotFrame, A_Label_Wider_Than_Its_Axis_Is_Short_Then_None_Where_It_May_Be) {
  Plot_Layout layout = Velocity_Against_Depth();
  const auto has = [&](double width, const char* words) {
    Shape_List picture;
    Plot_Frame(layout, {width, 300, 12}).Add_Axes(picture);
    for (const Text_Shape& text : Texts_Of(picture)) {
      if (text.text == words) return true;
    }
    return false;
  };
  EXPECT_TRUE(has(100, "Velocity (ft/s)"));
  layout.upright.label.clear();
  layout.across.short_label = "ft/s";
  EXPECT_TRUE(has(300, "Velocity (ft/s)"));
  EXPECT_FALSE(has(110, "Velocity (ft/s)"));
  EXPECT_TRUE(has(110, "ft/s"));
  EXPECT_FALSE(has(45, "ft/s"));
}

TEST(PlotFrame, Two_Numbers_That_Would_Touch_Are_One) {
  Plot_Layout layout;
  layout.across = {Scale_Over({0, 1000}, 1), "", 0};
  layout.upright = {Scale_Over({0, 1000}, 1), "", 0};
  Shape_List picture;
  Plot_Frame(layout, {150, 80, 24}).Add_Axes(picture);
  std::vector<std::string> numbers;
  for (const Text_Shape& text : Texts_Of(picture)) numbers.push_back(text.text);
  EXPECT_EQ(numbers, (std::vector<std::string>{"0", "0"}));
}

TEST(PlotFrame, A_Value_Without_A_Place_Is_No_Number) {
  const Plot_Frame frame(Velocity_Against_Depth(), {400, 300, 12});
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(frame.At(nan, 1).x));
  EXPECT_FALSE(std::isnan(frame.At(nan, 1).y));
  Shape_List picture;
  Add_Marked_Line(picture, frame, {{1, 1}, {nan, 2}}, {}, Sample::circles);
  ASSERT_EQ(picture.shapes.size(), 3u);  // a line and two markers
  EXPECT_FALSE(Has_Places(picture.shapes[0]));
  EXPECT_TRUE(Has_Places(picture.shapes[1]));
  EXPECT_FALSE(Has_Places(picture.shapes[2]));
}

TEST(PlotFrame, A_Canvas_Without_Room_Is_No_Trouble) {
  for (const Canvas canvas : {Canvas{0, 0, 12}, {1, 1, 12}, {-5, 30, 12}, {3000, 2, 12}}) {
    const Plot_Frame frame(Velocity_Against_Depth(), canvas);
    Shape_List picture = frame.Ground("", "");
    frame.Add_Axes(picture);
    EXPECT_GE(picture.width, 0);
    EXPECT_TRUE(std::isfinite(frame.At(1, 20).x));
    EXPECT_TRUE(std::isfinite(frame.Across_At({0, 0})));
  }
}

TEST(PlotFrame, Equal_Scales_Make_A_Square_Of_A_Square) {
  Plot_Layout layout = Velocity_Against_Depth();
  layout.across = {Scale_Over({0, 100}, 1), "", 0};
  layout.upright = {Scale_Over({0, 100}, 1), "", 0, true};
  layout.equal_scales = true;
  for (const Canvas canvas : {Canvas{800, 300, 12}, {300, 800, 12}}) {
    const Plot_Frame frame(layout, canvas);
    EXPECT_NEAR(frame.right() - frame.left(), frame.bottom() - frame.top(), 1e-9);
    EXPECT_LE(frame.right(), canvas.width);
    EXPECT_LE(frame.bottom(), canvas.height);
  }
}

}  // namespace
}  // namespace barvon

#include "pictures/drawings/time_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <variant>
#include <vector>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(TimeDrawing, Shows_Duration_Steps_And_The_Quarters_That_Are_Printed) {
  const Time_Drawing drawing = Draw_Times({3600, 100, false, {}});
  EXPECT_EQ(drawing.duration, 3600);
  EXPECT_EQ(drawing.steps, 36);
  ASSERT_EQ(drawing.prints.size(), 4u);
  EXPECT_EQ(drawing.prints[0].time, 900);
  EXPECT_EQ(drawing.prints[3].time, 3600);
  EXPECT_TRUE(drawing.prints[3].is_taken);
  EXPECT_EQ(drawing.time.low, 0);
  EXPECT_EQ(drawing.time.high, 4000);
  EXPECT_EQ(drawing.note, "");
  EXPECT_EQ(drawing.description,
            "Duration: 3600 s. Time steps: 36 of 100 s. "
            "Print times: quarterly, 900, 1800, 2700, 3600 s.");
}

TEST(TimeDrawing, Print_Times_Of_The_Users_Own_Take_The_Place_Of_The_Quarters) {
  const Time_Drawing drawing = Draw_Times({3600, 100, true, {600, 1200}});
  EXPECT_EQ(drawing.prints.size(), 2u);
  EXPECT_EQ(Lane_Words(drawing, Time_Lane::prints), "Print times: 600, 1200 s");
}

TEST(TimeDrawing, A_Print_Time_Outside_Of_The_Duration_Is_Told_And_In_The_Picture) {
  const Time_Drawing drawing = Draw_Times({3600, 100, true, {-10, 0, 600, 3600, 9000}});
  EXPECT_EQ(drawing.note, "3 print times not within the duration.");
  EXPECT_FALSE(drawing.prints[0].is_taken);
  EXPECT_TRUE(drawing.prints[3].is_taken);
  EXPECT_LE(drawing.time.low, -10);
  EXPECT_GE(drawing.time.high, 9000);
}

TEST(TimeDrawing, Times_Out_Of_Order_And_Empty_Cells_Are_Told) {
  EXPECT_EQ(Draw_Times({3600, 100, true, {1200, 600}}).note, "Print times do not increase.");
  const Time_Drawing drawing = Draw_Times({3600, 100, true, {600, kNan, 1e300}});
  EXPECT_EQ(drawing.prints.size(), 1u);
  EXPECT_EQ(drawing.note, "2 print times missing.");
}

TEST(TimeDrawing, A_Step_Of_Half_The_Duration_Is_Told) {
  EXPECT_EQ(Draw_Times({3600, 1800, false, {}}).note,
            "The time step is half of the duration or longer.");
  EXPECT_EQ(Draw_Times({3600, 1799, false, {}}).note, "");
  EXPECT_EQ(Draw_Times({3600, 0, false, {}}).note, "No time step above 0 yet.");
}

TEST(TimeDrawing, Steps_Are_Whole_And_No_Rounding_Takes_One) {
  EXPECT_EQ(Draw_Times({3600, 1000, false, {}}).steps, 3);
  EXPECT_EQ(Draw_Times({0.3, 0.1, false, {}}).steps, 3);
}

TEST(TimeDrawing, Without_A_Duration_There_Are_Axes_And_A_Note) {
  for (const double none : {0.0, -5.0, kNan, 1e300}) {
    const Time_Drawing drawing = Draw_Times({none, 100, false, {}});
    EXPECT_EQ(drawing.note, "No duration above 0 yet.");
    EXPECT_TRUE(drawing.prints.empty());
    EXPECT_LT(drawing.time.low, drawing.time.high);
    EXPECT_EQ(drawing.description,
              "Duration: none. Time steps: 100 s each. Print times: none. "
              "No duration above 0 yet.");
  }
}

// A million steps would be a million lines.
TEST(TimeDrawing, Steps_Too_Thin_To_Be_Seen_Are_One_Band) {
  const Canvas canvas{600, 200, 12};
  const auto few = Time_Shapes(Draw_Times({3600, 360, false, {}}), canvas).shapes.size();
  const auto more = Time_Shapes(Draw_Times({3600, 300, false, {}}), canvas).shapes.size();
  EXPECT_EQ(more, few + 2);
  const auto thin = Time_Shapes(Draw_Times({3600, 1e-6, false, {}}), canvas).shapes.size();
  EXPECT_LT(thin, few);
}

TEST(TimeDrawing, Every_Lane_Has_Its_Name) {
  std::vector<std::string> texts;
  for (const Shape& shape : Time_Shapes(Draw_Times({}), {600, 200, 12}).shapes) {
    if (const auto* text = std::get_if<Text_Shape>(&shape)) texts.push_back(text->text);
  }
  for (const char* name : {"Duration", "Time steps", "Print times", "Time (sec)"}) {
    EXPECT_EQ(std::count(texts.begin(), texts.end(), name), 1) << name;
  }
}

}  // namespace
}  // namespace barvon

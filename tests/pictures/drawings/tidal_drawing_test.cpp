#include "pictures/drawings/tidal_drawing.h"

#include <gtest/gtest.h>

#include <limits>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// 26 points, X rising by 0.1 from 0, Z constant; 2 h from 3 h on. Point 7 is at 3 h and has 0.6,
// point 11 at 5 h has 1.0: the average of X is 0.8.
Tidal_Pattern Rising() {
  Tidal_Pattern pattern;
  for (int i = 0; i < 26; ++i) pattern.x.push_back(0.1 * i);
  pattern.z.assign(26, -0.5);
  pattern.start = 3;
  pattern.duration = 2;
  pattern.average_x = 0.8;
  pattern.average_z = -0.5;
  return pattern;
}

TEST(TidalDrawing, A_Point_Every_Half_Hour_From_Zero) {
  const Tidal_Drawing drawing = Draw_Tide(Rising());
  ASSERT_EQ(drawing.x.size(), 26u);
  ASSERT_EQ(drawing.z.size(), 26u);
  EXPECT_EQ(drawing.x[6].hour, 3);
  EXPECT_DOUBLE_EQ(drawing.x[6].velocity, 0.6);
  EXPECT_EQ(drawing.z[25].hour, 12.5);
  EXPECT_EQ(drawing.pattern_end, 12.5);
  EXPECT_EQ(drawing.time.low, 0);
  EXPECT_EQ(drawing.time.high, 12.5);
  EXPECT_EQ(drawing.time.step, 2);
  // -0.5 to 2.5 is 3, steps of 1.
  EXPECT_EQ(drawing.velocity.low, -1);
  EXPECT_EQ(drawing.velocity.high, 3);
}

TEST(TidalDrawing, The_Simulated_Interval_Is_Shaded_And_Has_Its_Averages) {
  const Tidal_Drawing drawing = Draw_Tide(Rising());
  ASSERT_TRUE(drawing.shaded);
  EXPECT_EQ(drawing.shaded->low, 3);
  EXPECT_EQ(drawing.shaded->high, 5);
  EXPECT_EQ(drawing.average_x, 0.8);
  EXPECT_EQ(drawing.average_z, -0.5);
  EXPECT_EQ(drawing.note, "");
  EXPECT_EQ(drawing.description,
            "X velocity from 0 ft/s at 0 h to 2.5 ft/s at 12.5 h. Z velocity -0.5 ft/s throughout. "
            "Simulated: 3 to 5 h. X average 0.8 ft/s. Z average -0.5 ft/s.");
}

TEST(TidalDrawing, An_Interval_Beyond_The_Pattern_Is_Seen) {
  Tidal_Pattern pattern = Rising();
  pattern.start = 12;
  const Tidal_Drawing drawing = Draw_Tide(pattern);
  EXPECT_EQ(drawing.shaded->low, 12);
  EXPECT_EQ(drawing.shaded->high, 14);
  EXPECT_EQ(drawing.time.high, 14);
  EXPECT_EQ(drawing.pattern_end, 12.5);
}

TEST(TidalDrawing, An_Interval_Far_Beyond_The_Pattern_Is_Cut_And_Told) {
  Tidal_Pattern pattern = Rising();
  pattern.start = 13;
  pattern.duration = 100;
  const Tidal_Drawing cut = Draw_Tide(pattern);
  EXPECT_EQ(cut.time.high, kLatestDrawnHour);
  EXPECT_EQ(cut.shaded->high, kLatestDrawnHour);
  EXPECT_EQ(cut.note, "The simulated interval goes on to 113 h.");
  pattern.start = 45000;
  pattern.duration = 2;
  const Tidal_Drawing gone = Draw_Tide(pattern);
  EXPECT_FALSE(gone.shaded);
  EXPECT_EQ(gone.time.high, 12.5);
  EXPECT_EQ(gone.note, "The simulated interval, 45000 to 45002 h, lies beyond the picture.");
}

TEST(TidalDrawing, A_Start_Before_The_Pattern_Is_Seen) {
  Tidal_Pattern pattern = Rising();
  pattern.start = -1;
  const Tidal_Drawing drawing = Draw_Tide(pattern);
  EXPECT_EQ(drawing.time.low, -1);
  EXPECT_EQ(drawing.shaded->low, -1);
  EXPECT_EQ(drawing.shaded->high, 1);
}

TEST(TidalDrawing, Without_A_Duration_There_Is_No_Interval) {
  for (const double duration : {0.0, -2.0, kNan, 1e300}) {
    Tidal_Pattern pattern = Rising();
    pattern.duration = duration;
    const Tidal_Drawing drawing = Draw_Tide(pattern);
    EXPECT_FALSE(drawing.shaded) << duration;
    EXPECT_FALSE(drawing.average_x) << duration;
    EXPECT_EQ(drawing.note, "No interval: the simulation duration is not above 0.");
  }
}

TEST(TidalDrawing, Missing_Values_Are_Left_Out_And_Keep_The_Others_In_Their_Place) {
  Tidal_Pattern pattern = Rising();
  pattern.x[1] = kNan;
  pattern.z[2] = -1e300;
  const Tidal_Drawing drawing = Draw_Tide(pattern);
  ASSERT_EQ(drawing.x.size(), 25u);
  EXPECT_EQ(drawing.x[1].hour, 1);
  EXPECT_EQ(drawing.note, "2 values missing.");
  EXPECT_EQ(Draw_Tide({}).x.size(), 0u);
  EXPECT_EQ(Draw_Tide({}).time.high, 12.5);
}

TEST(TidalDrawing, The_Nearest_Point_Is_Told) {
  Tidal_Pattern pattern = Rising();
  EXPECT_EQ(Tidal_Text_At(pattern, 3.2), "Point 7, 3.0 h\nX 0.6 ft/s\nZ -0.5 ft/s");
  pattern.z.resize(3);
  EXPECT_EQ(Tidal_Text_At(pattern, 3.3), "Point 8, 3.5 h\nX 0.7 ft/s\nZ none");
  for (const double hour : {-0.3, 12.8, kNan}) EXPECT_EQ(Tidal_Text_At(pattern, hour), "");
}

}  // namespace
}  // namespace barvon

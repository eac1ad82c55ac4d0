#include "pictures/tidal_curve.h"

#include <gtest/gtest.h>

#include <limits>

#include "pictures/picture_bench.h"
#include "pictures/plot_parts.h"

namespace barvon::testing {
namespace {

// X is 1 ft/s and Z -1 ft/s throughout; the averages are told as 0.5 and -0.5, so that their lines
// lie apart from the curves.
Tidal_Pattern Even() {
  Tidal_Pattern pattern;
  pattern.x.assign(26, 1);
  pattern.z.assign(26, -1);
  pattern.start = 3;
  pattern.duration = 4;
  pattern.average_x = 0.5;
  pattern.average_z = -0.5;
  return pattern;
}

// Pixels of the colour along a level line between two hours.
int Ink_Along(Tidal_Curve& curve, const QImage& seen, double from, double to, double velocity,
              const QColor& colour) {
  const QPoint start = curve.Place_Of(from, velocity).toPoint();
  const QPoint end = curve.Place_Of(to, velocity).toPoint();
  return Count_Pixels(seen, QRect(start.x(), start.y() - 1, end.x() - start.x(), 3), colour);
}

TEST(TidalCurve, The_Simulated_Interval_Is_Shaded_And_Nothing_Else) {
  Tidal_Curve curve;
  curve.Show(Even());
  const QImage seen = Seen(curve);
  const QColor shade = seen.pixelColor(curve.Place_Of(5.2, 0.3).toPoint());
  EXPECT_GT(Difference(shade, Qt::white), 30);
  for (const double hour : {3.1, 6.9}) {
    EXPECT_EQ(seen.pixelColor(curve.Place_Of(hour, 0.3).toPoint()), shade) << hour;
  }
  for (const double hour : {0.5, 2.9, 7.1, 12.2}) {
    EXPECT_EQ(seen.pixelColor(curve.Place_Of(hour, 0.3).toPoint()), QColor(Qt::white)) << hour;
  }
}

TEST(TidalCurve, The_Averages_Lie_Over_The_Interval_Only) {
  Tidal_Curve curve;
  curve.Show(Even());
  const QImage seen = Seen(curve);
  EXPECT_GT(Ink_Along(curve, seen, 3.1, 6.9, 0.5, kXColour), 40);
  EXPECT_EQ(Ink_Along(curve, seen, 0.5, 2.8, 0.5, kXColour), 0);
  EXPECT_EQ(Ink_Along(curve, seen, 7.2, 12, 0.5, kXColour), 0);
  EXPECT_GT(Ink_Along(curve, seen, 3.1, 6.9, -0.5, kZColour), 40);
  EXPECT_EQ(Ink_Along(curve, seen, 7.2, 12, -0.5, kZColour), 0);
}

TEST(TidalCurve, Both_Curves_Go_From_The_First_To_The_Last_Point) {
  Tidal_Curve curve;
  curve.Show(Even());
  const QImage seen = Seen(curve);
  EXPECT_GT(Ink_Along(curve, seen, 0.2, 12.4, 1, kXColour), 200);
  EXPECT_GT(Ink_Along(curve, seen, 0.2, 12.4, -1, kZColour), 200);
  EXPECT_LT(curve.Place_Of(0, 1).y(), curve.Place_Of(0, -1).y());
}

TEST(TidalCurve, An_Interval_Beyond_The_Pattern_Is_Shaded_To_Its_End) {
  Tidal_Curve curve;
  Tidal_Pattern pattern = Even();
  pattern.start = 12;
  curve.Show(pattern);  // 12 to 16 h
  const QImage seen = Seen(curve);
  const QColor shade = seen.pixelColor(curve.Place_Of(12.2, 0.3).toPoint());
  EXPECT_GT(Difference(shade, Qt::white), 30);
  EXPECT_EQ(seen.pixelColor(curve.Place_Of(15.8, 0.3).toPoint()), shade);
  EXPECT_EQ(Ink_Along(curve, seen, 12.8, 15.8, 1, kXColour), 0);
}

TEST(TidalCurve, A_Longer_Interval_Is_Seen_At_Once) {
  Tidal_Curve curve;
  curve.Show(Even());
  const QImage before = Seen(curve);
  const QPoint place = curve.Place_Of(8.5, 0.3).toPoint();
  Tidal_Pattern pattern = Even();
  pattern.duration = 6;
  curve.Show(pattern);
  EXPECT_NE(Seen(curve).pixelColor(place), before.pixelColor(place));
}

TEST(TidalCurve, The_Pointer_Reads_The_Nearest_Point) {
  Tidal_Curve curve;
  curve.Show(Even());
  Seen(curve);
  EXPECT_EQ(curve.Tip_At(curve.Place_Of(3.1, 0)), "Point 7, 3.0 h\nX 1 ft/s\nZ -1 ft/s");
  EXPECT_EQ(curve.Tip_At({1, 1}), "");
}

TEST(TidalCurve, No_Values_Are_Any_Trouble) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  Tidal_Curve curve;
  for (const double value : {0.0, nan, 1e12, -1e300}) {
    for (const double time : {0.0, -3.0, 45000.0, nan, 1e300}) {
      Tidal_Pattern pattern = {std::vector<double>(26, value), {value}, time, time, value, value};
      curve.Show(pattern);
      EXPECT_FALSE(Seen(curve).isNull());
      pattern.duration = 2;
      curve.Show(pattern);
      EXPECT_FALSE(Seen(curve).isNull());
    }
  }
}

}  // namespace
}  // namespace barvon::testing

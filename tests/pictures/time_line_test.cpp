#include "pictures/time_line.h"

#include <gtest/gtest.h>

#include "pictures/picture_bench.h"

namespace barvon::testing {
namespace {

TEST(TimeLine, Time_Goes_To_The_Right_And_The_Lanes_Are_Below_Each_Other) {
  Time_Line line;
  line.Show({3600, 100, false, {}});
  Seen(line);
  const QPointF start = line.Place_Of(0, Time_Lane::duration);
  EXPECT_LT(start.x(), line.Place_Of(3600, Time_Lane::duration).x());
  EXPECT_LT(start.y(), line.Place_Of(0, Time_Lane::steps).y());
  EXPECT_LT(line.Place_Of(0, Time_Lane::steps).y(), line.Place_Of(0, Time_Lane::prints).y());
}

TEST(TimeLine, The_Duration_Is_A_Bar_Up_To_Its_End) {
  Time_Line line;
  line.Show({2400, 100, true, {4000}});
  const QImage seen = Seen(line);
  const auto colour = [&](double time) {
    return seen.pixelColor(line.Place_Of(time, Time_Lane::duration).toPoint());
  };
  EXPECT_GT(Difference(colour(1200), Qt::white), 200);
  EXPECT_EQ(colour(3100), QColor(Qt::white));
}

TEST(TimeLine, It_Is_Live_And_Tells_Its_Numbers) {
  Time_Line line;
  line.Show({3600, 100, false, {}});
  const QImage before = Seen(line);
  EXPECT_EQ(line.Tip_At(line.Place_Of(1000, Time_Lane::steps)), "Time steps: 36 of 100 s");
  line.Show({3600, 900, true, {600}});
  EXPECT_NE(Seen(line), before);
  EXPECT_EQ(line.Tip_At(line.Place_Of(1000, Time_Lane::prints)), "Print times: 600 s");
  EXPECT_EQ(line.Tip_At(line.Place_Of(0, Time_Lane::duration)), "Duration: 3600 s");
  EXPECT_EQ(line.Tip_At({0, 0}), "");
  EXPECT_EQ(line.accessibleDescription(), QString::fromStdString(line.Drawn().description));
}

TEST(TimeLine, Without_Times_There_Is_A_Note) {
  Time_Line line;
  Seen(line);
  EXPECT_EQ(line.Drawn().note, "No duration above 0 yet.");
}

}  // namespace
}  // namespace barvon::testing

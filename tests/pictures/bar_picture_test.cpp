#include "pictures/bar_picture.h"

#include <gtest/gtest.h>

#include "pictures/picture_bench.h"

namespace barvon::testing {
namespace {

const Colour kBlue = {20, 80, 200};

TEST(BarPicture, A_Longer_Bar_Has_More_Ink_And_Tells_Its_Number) {
  Bar_Picture picture("Volumes", "volumes");
  Bar_Chart chart;
  chart.bars = {Plain_Bar("short", 1, kBlue), Plain_Bar("long", 4, kBlue)};
  picture.Show(chart);
  const QImage seen = Seen(picture);
  int rows[2] = {0, 0};
  for (int y = 0; y < seen.height(); ++y) {
    const QString tip = picture.Tip_At(QPointF(seen.width() / 2.0, y));
    const int ink = Count_Pixels(seen, QRect(0, y, seen.width(), 1), QColor(20, 80, 200), 30);
    if (tip == "short: 1") rows[0] = std::max(rows[0], ink);
    if (tip == "long: 4") rows[1] = std::max(rows[1], ink);
  }
  EXPECT_GT(rows[0], 20);
  EXPECT_NEAR(rows[1], 4 * rows[0], 4);
  EXPECT_EQ(picture.accessibleName(), "Volumes");
  EXPECT_TRUE(picture.accessibleDescription().contains("long: 4."));
}

TEST(BarPicture, It_Follows_Its_Data_Also_To_Nothing) {
  Bar_Picture picture("Volumes", "volumes");
  Bar_Chart chart;
  chart.bars = {Plain_Bar("one", 1, kBlue)};
  picture.Show(chart);
  EXPECT_GT(Count_Pixels(Seen(picture), QRect(0, 0, 480, 360), QColor(20, 80, 200)), 100);
  picture.Show({});
  EXPECT_EQ(Count_Pixels(Seen(picture), QRect(0, 0, 480, 360), QColor(20, 80, 200)), 0);
  EXPECT_TRUE(picture.accessibleDescription().contains("Nothing to show yet."));
}

}  // namespace
}  // namespace barvon::testing

#include "pictures/two_point_profile.h"

#include <gtest/gtest.h>

#include "pictures/picture_bench.h"
#include "pictures/plot_parts.h"

namespace barvon::testing {
namespace {

int Ink_At(const QImage& seen, const QPointF& place, const QColor& colour) {
  return Count_Pixels(seen, QRect(place.toPoint() - QPoint(2, 2), QSize(5, 5)), colour);
}

TEST(TwoPointProfile, Both_Lines_Go_Through_Their_Two_Points) {
  Two_Point_Profile profile;
  profile.Show({Profile_Point{0, 1.2, 0, -0.4}, {40, 0.4, 20, 0.2}});
  const QImage seen = Seen(profile);
  // Half-way: X 0.8 ft/s at 20 ft, Z -0.1 ft/s at 10 ft.
  EXPECT_GT(Ink_At(seen, profile.Place_Of(0.8, 20), kXColour), 2);
  EXPECT_EQ(Ink_At(seen, profile.Place_Of(0.8, 20), kZColour), 0);
  EXPECT_GT(Ink_At(seen, profile.Place_Of(-0.1, 10), kZColour), 2);
  EXPECT_EQ(Ink_At(seen, profile.Place_Of(-0.1, 10), kXColour), 0);
}

TEST(TwoPointProfile, The_Surface_Is_At_The_Top_And_Positive_At_The_Right) {
  Two_Point_Profile profile;
  profile.Show({Profile_Point{0, 1, 0, -1}, {40, 1, 40, -1}});
  Seen(profile);
  EXPECT_LT(profile.Place_Of(0, 0).y(), profile.Place_Of(0, 40).y());
  EXPECT_LT(profile.Place_Of(-1, 0).x(), profile.Place_Of(1, 0).x());
}

TEST(TwoPointProfile, A_Point_Tells_Its_Numbers) {
  Two_Point_Profile profile;
  profile.Show({Profile_Point{0, 1.2, 0, 1.2}, {40, 0.4, 20, 0.2}});
  Seen(profile);
  EXPECT_EQ(profile.Tip_At(profile.Place_Of(0.4, 40)), "X velocity 0.4 ft/s at 40 ft");
  EXPECT_EQ(profile.Tip_At(profile.Place_Of(1.2, 0)),
            "X velocity 1.2 ft/s at 0 ft\nZ velocity 1.2 ft/s at 0 ft");
  EXPECT_EQ(profile.Tip_At(profile.Place_Of(0.9, 35)), "");
}

TEST(TwoPointProfile, It_Follows_The_Data_Also_To_Nothing) {
  Two_Point_Profile profile;
  profile.Show({Profile_Point{0, 1, 0, -1}, {40, 1, 40, -1}});
  Seen(profile);
  profile.Show({});
  EXPECT_TRUE(profile.Drawn().x.empty());
  const QImage seen = Seen(profile);
  // Below the legend there is no line left.
  const QRect axes(profile.Place_Of(profile.Drawn().velocity.low, 0).toPoint(),
                   profile.Place_Of(profile.Drawn().velocity.high, 1).toPoint());
  EXPECT_GT(axes.height(), 100);
  EXPECT_EQ(Count_Pixels(seen, axes, kXColour), 0);
  EXPECT_EQ(Count_Pixels(seen, axes, kZColour), 0);
}

}  // namespace
}  // namespace barvon::testing

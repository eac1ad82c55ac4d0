#include "pictures/drawings/profile_drawing.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(ProfileDrawing, Each_Direction_Has_Its_Own_Depths) {
  const Profile_Drawing drawing =
      Draw_Profile({Profile_Point{0, 1.2, 5, -0.4}, {40, 0.3, 30, 0.2}});
  ASSERT_EQ(drawing.x.size(), 2u);
  ASSERT_EQ(drawing.z.size(), 2u);
  EXPECT_EQ(drawing.x[1].velocity, 0.3);
  EXPECT_EQ(drawing.x[1].depth, 40);
  EXPECT_EQ(drawing.z[0].velocity, -0.4);
  EXPECT_EQ(drawing.z[0].depth, 5);
  // -0.4 to 1.2 in steps of 0.5, 0 to 40 in steps of 10.
  EXPECT_EQ(drawing.velocity.low, -0.5);
  EXPECT_EQ(drawing.velocity.high, 1.5);
  EXPECT_EQ(drawing.depth.low, 0);
  EXPECT_EQ(drawing.depth.high, 40);
  EXPECT_EQ(drawing.description,
            "X velocity: 1.2 ft/s at 0 ft, 0.3 ft/s at 40 ft. Z velocity: -0.4 ft/s at 5 ft, 0.2 "
            "ft/s at 30 ft.");
}

TEST(ProfileDrawing, What_Is_Not_Complete_Is_Left_Out_And_Told) {
  Profile_Point half;
  half.x_depth = 10;
  half.x_velocity = 1;
  half.z_depth = 20;
  const Profile_Drawing drawing = Draw_Profile({half, {}});
  EXPECT_EQ(drawing.x.size(), 1u);
  EXPECT_TRUE(drawing.z.empty());
  EXPECT_EQ(drawing.left_out, 3);
  EXPECT_EQ(drawing.note, "3 value pairs not complete.");
  EXPECT_EQ(Draw_Profile({}).note, "No point has a depth and a velocity yet.");
}

TEST(ProfileDrawing, Zero_And_Huge_Values_Have_Axes) {
  for (const double value : {0.0, 1e12, -1e12, 1e300}) {
    const Profile_Point point = {value, value, value, value};
    const Profile_Drawing drawing = Draw_Profile({point, point});
    EXPECT_LT(drawing.velocity.low, drawing.velocity.high) << value;
    EXPECT_LT(drawing.depth.low, drawing.depth.high) << value;
  }
}

}  // namespace
}  // namespace barvon

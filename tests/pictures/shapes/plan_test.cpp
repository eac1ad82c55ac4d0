#include "pictures/shapes/plan.h"

#include <gtest/gtest.h>

#include <limits>

namespace barvon {
namespace {

const Feet_Area kSite = {0, 0, 2000, 4000};
const Canvas kCanvas = {500, 400, 12};

TEST(Plan, X_Goes_Down_And_Z_To_The_Right_A_Foot_As_Long_In_Both) {
  const Plan_Frame frame(kSite, kCanvas);
  const Place origin = frame.At({0, 0});
  const Place down = frame.At({1000, 0}), right = frame.At({0, 1000});
  EXPECT_EQ(down.x, origin.x);
  EXPECT_EQ(right.y, origin.y);
  EXPECT_GT(down.y, origin.y);
  EXPECT_GT(right.x, origin.x);
  EXPECT_NEAR(down.y - origin.y, right.x - origin.x, 1e-9);
  EXPECT_NEAR(frame.Pixels_Per_Foot() * 1000, right.x - origin.x, 1e-9);
}

TEST(Plan, The_Rings_Of_An_Area_Are_Placed_Like_Points) {
  Plan plan;
  plan.area = kSite;
  plan.shapes.push_back(
      Area_Shape{{{On_Plan({0, 0}), On_Plan({0, 400}), On_Plan({200, 0})}}, Colour{1, 2, 3}, {}});
  const Plan_Frame frame(kSite, kCanvas);
  bool seen = false;
  for (const Shape& shape : Plan_Shapes(plan, kCanvas).shapes) {
    const auto* area = std::get_if<Area_Shape>(&shape);
    if (!area) continue;
    seen = true;
    EXPECT_EQ(area->rings, (std::vector<std::vector<Place>>{
                               {frame.At({0, 0}), frame.At({0, 400}), frame.At({200, 0})}}));
  }
  EXPECT_TRUE(seen);
}

TEST(Plan, A_Place_Reads_In_Round_Feet_No_Coarser_Than_A_Pixel) {
  const Plan_Frame frame(kSite, kCanvas);
  const double pixel = 1 / frame.Pixels_Per_Foot();
  ASSERT_GT(pixel, 5);  // 5 ft is the round number below it
  ASSERT_LT(pixel, 10);
  Place place = frame.At({1200, 800});
  place.x += 0.3 * frame.Pixels_Per_Foot();
  EXPECT_EQ(frame.Feet_At(place), (Feet_Point{1200, 800}));
  EXPECT_EQ(Words_Of(*frame.Feet_At(place)), "X 1200 ft, Z 800 ft");
}

TEST(Plan, Outside_Of_The_Area_There_Is_No_Point_But_A_Nearest_One) {
  const Plan_Frame frame(kSite, kCanvas);
  const Place corner = frame.At({2000, 4000});
  EXPECT_TRUE(frame.Feet_At(corner));
  EXPECT_FALSE(frame.Feet_At({corner.x + 1, corner.y}));
  EXPECT_FALSE(frame.Feet_At({corner.x, corner.y + 1}));
  EXPECT_EQ(frame.Nearest_Feet({corner.x + 50, corner.y + 9}), (Feet_Point{2000, 4000}));
  EXPECT_EQ(frame.Nearest_Feet({-9, -9}), (Feet_Point{0, 0}));
}

TEST(Plan, An_Area_Need_Not_Begin_Nor_End_On_A_Round_Number) {
  const Plan_Frame frame({-37, 13, 103, 91}, kCanvas);
  EXPECT_FALSE(frame.Is_Empty());
  EXPECT_EQ(frame.Nearest_Feet(frame.At({-37, 91})), (Feet_Point{-37, 91}));
}

TEST(Plan, An_Area_Without_Extent_And_A_Canvas_Without_Room_Are_Empty) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const Feet_Area area :
       {Feet_Area{}, {0, 0, 10, 0}, {10, 0, 0, 10}, {nan, 0, 1, 1}, {0, 0, 1e300, 1}}) {
    EXPECT_TRUE(Plan_Frame(area, kCanvas).Is_Empty());
    EXPECT_FALSE(Plan_Frame(area, kCanvas).Feet_At({250, 200}));
    EXPECT_TRUE(Plan_Shapes({area, "", {}, {}, {}, "", ""}, kCanvas).shapes.empty());
  }
  for (const Canvas canvas : {Canvas{0, 0, 12}, {500, 0, 12}, {2, 400, 12}}) {
    EXPECT_TRUE(Plan_Frame(kSite, canvas).Is_Empty());
    EXPECT_FALSE(Plan_Frame(kSite, canvas).Feet_At({0, 0}));
  }
}

TEST(Plan, Shapes_In_Feet_Come_To_Their_Places) {
  Plan plan;
  plan.area = kSite;
  plan.title = "Site";
  plan.shapes.push_back(Circle_Shape{On_Plan({1000, 3000}), 100, Colour{}, {}});
  plan.arrows.push_back({{1000, 1000}, {1000, 2000}, {}});
  plan.marks.push_back(Circle_Shape{On_Plan({1000, 3000}), 4, Colour{255, 0, 0}, {}});
  const Plan_Frame frame(plan.area, kCanvas);
  const Shape_List picture = Plan_Shapes(plan, kCanvas);
  EXPECT_EQ(picture.title, "Site");
  std::vector<Circle_Shape> circles;
  bool head = false;
  for (const Shape& shape : picture.shapes) {
    if (const auto* circle = std::get_if<Circle_Shape>(&shape)) circles.push_back(*circle);
    const auto* polygon = std::get_if<Polygon_Shape>(&shape);
    head = head || (polygon && polygon->points[0] == frame.At({1000, 2000}));
  }
  ASSERT_EQ(circles.size(), 2u);
  EXPECT_EQ(circles[0].centre, frame.At({1000, 3000}));
  EXPECT_NEAR(circles[0].radius, 100 * frame.Pixels_Per_Foot(), 1e-9);
  EXPECT_EQ(circles[1].radius, 4);
  EXPECT_TRUE(head);
}

TEST(Plan, An_Arrow_With_Bends_Has_One_Head_By_The_Length_Of_The_Whole_Way) {
  Plan plan;
  plan.area = kSite;
  plan.arrows.push_back({{1000, 1000}, {1500, 2010}, {}, {{1000, 2000}, {1500, 2000}}});
  const Plan_Frame frame(plan.area, kCanvas);
  const Shape_List picture = Plan_Shapes(plan, kCanvas);
  int heads = 0;
  for (const Shape& shape : picture.shapes) {
    const auto* polygon = std::get_if<Polygon_Shape>(&shape);
    if (polygon == nullptr || polygon->points.size() != 3) continue;
    ++heads;
    EXPECT_EQ(polygon->points[0], frame.At({1500, 2010}));
    // 9 pixels: the way has some hundred, its last part one or two.
    EXPECT_NEAR(polygon->points[0].x - polygon->points[1].x, 9, 1e-9);
  }
  EXPECT_EQ(heads, 1);
}

}  // namespace
}  // namespace barvon

#include "results/map_place.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>

namespace barvon::testing {
namespace {

constexpr double kNear = 1e-9;

Map_Place Feet(double turn) { return {1000, 2000, turn, Place_Unit::foot, ""}; }

void Expect_At(const Map_Place& place, const Result_Point& point, double easting, double northing) {
  EXPECT_NEAR(On_Map(place, point).easting, easting, kNear);
  EXPECT_NEAR(On_Map(place, point).northing, northing, kNear);
}

TEST(MapPlace, Without_A_Turn_Z_Grows_To_The_East_And_X_To_The_South) {
  Expect_At(Feet(0), {0, 0}, 1000, 2000);
  Expect_At(Feet(0), {100, 0}, 1000, 1900);
  Expect_At(Feet(0), {0, 200}, 1200, 2000);
}

TEST(MapPlace, A_Turn_Is_Clockwise_About_The_Corner_Point) {
  Expect_At(Feet(90), {0, 200}, 1000, 1800);
  Expect_At(Feet(90), {100, 0}, 900, 2000);
  Expect_At(Feet(-90), {100, 200}, 1100, 2200);
  Expect_At(Feet(180), {100, 200}, 800, 2100);
  const double height = 50 * std::sqrt(3.0);
  Expect_At(Feet(30), {0, 100}, 1000 + height, 1950);
  Expect_At(Feet(30), {100, 0}, 950, 2000 - height);
}

TEST(MapPlace, Quarter_Turns_Are_Exact) {
  for (const double turns : {-360, 0, 360}) {
    EXPECT_EQ(Turn_Of(turns).cosine, 1);
    EXPECT_EQ(Turn_Of(turns + 90).cosine, 0);
    EXPECT_EQ(Turn_Of(turns + 90).sine, 1);
    EXPECT_EQ(Turn_Of(turns + 180).cosine, -1);
    EXPECT_EQ(Turn_Of(turns + 180).sine, 0);
    EXPECT_EQ(Turn_Of(turns + 270).sine, -1);
  }
}

TEST(MapPlace, Feet_Come_In_The_Systems_Unit) {
  Expect_At({500000, 4000000, 0, Place_Unit::metre, ""}, {100, 200}, 500060.96, 3999969.52);
  Expect_At({0, 0, 0, Place_Unit::metre_survey, ""}, {3937, 7874}, 2400, -1200);
  Expect_At({0, 0, 0, Place_Unit::foot, ""}, {1, 2}, 2, -1);
}

TEST(MapPlace, The_Way_Back_Leads_To_The_Same_Point) {
  EXPECT_TRUE(rc::check([] {
    const auto any = [](int most) { return *rc::gen::inRange(-most, most) / 10.0; };
    const Map_Place place{any(10000000), any(10000000), any(3600),
                          static_cast<Place_Unit>(*rc::gen::inRange(0, 3)), ""};
    const Result_Point point{any(1000000), any(1000000)};
    const Result_Point back = On_Grid(place, On_Map(place, point));
    RC_ASSERT(std::abs(back.x - point.x) < 1e-6);
    RC_ASSERT(std::abs(back.z - point.z) < 1e-6);
  }));
}

TEST(MapPlace, A_Code_Of_The_Register_Is_Known_In_Its_Usual_Forms) {
  for (const char* text : {"EPSG:32618", "epsg:32618", "EPSG 32618", " Epsg::32618 ", "32618"}) {
    EXPECT_EQ(Epsg_Code(text), 32618) << text;
  }
  for (const char* text : {"", "EPSG", "EPSG:", "UTM zone 18N", "EPSG:32618 and more", "12",
                           "-32618", "EPSG:3261899", "EPSG:99999999999999", "32618.5"}) {
    EXPECT_EQ(Epsg_Code(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace barvon::testing

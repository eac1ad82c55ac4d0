#include "pictures/drawings/site_plan_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "pictures/shapes/svg_writer.h"

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// A grid of 2000 ft by 4000 ft with a vessel that lies still at X 400 ft, Z 1000 ft.
Site_Plan Site() {
  Site_Plan site;
  site.length_x = 2000;
  site.length_z = 4000;
  site.disposal_point = Feet_Point{400, 1000};
  site.vessel_length = 200;
  site.vessel_width = 60;
  return site;
}

/// The areas of the plan in its order: the grid first.
std::vector<Feet_Area> Areas(const Plan& plan) {
  std::vector<Feet_Area> areas;
  for (const Shape& shape : plan.shapes) {
    const auto* polygon = std::get_if<Polygon_Shape>(&shape);
    if (polygon == nullptr) continue;
    Feet_Area area{1e9, 1e9, -1e9, -1e9};
    for (const Place& place : polygon->points) {
      area = {std::min(area.top, place.y), std::min(area.left, place.x),
              std::max(area.bottom, place.y), std::max(area.right, place.x)};
    }
    areas.push_back(area);
  }
  return areas;
}

std::string Text_Of(const Feet_Area& area) {
  std::string text;
  for (const double side : {area.top, area.left, area.bottom, area.right}) {
    text += std::to_string(static_cast<int>(std::lround(side))) + " ";
  }
  text.pop_back();
  return text;
}

std::vector<std::string> Drawn(const Plan& plan) {
  std::vector<std::string> drawn;
  for (const Feet_Area& area : Areas(plan)) drawn.push_back(Text_Of(area));
  return drawn;
}

using Lines = std::vector<std::string>;

TEST(SitePlanDrawing, Shows_The_Grid_And_A_Vessel_That_Lies_Along_X) {
  const Plan plan = Draw_Site(Site());
  EXPECT_EQ(Text_Of(plan.area), "0 0 2000 4000");
  EXPECT_EQ(Drawn(plan), (Lines{"0 0 2000 4000", "300 970 500 1030"}));
  EXPECT_EQ(plan.note, "");
  EXPECT_EQ(plan.description,
            "Grid of X 2000 ft by Z 4000 ft. Disposal point: X 400 ft, Z 1000 ft.");
}

TEST(SitePlanDrawing, Without_A_Grid_There_Is_A_Note_And_Nothing_Else) {
  for (const double length : {0.0, -5.0, kNan, 1e300}) {
    Site_Plan site = Site();
    site.length_x = length;
    const Plan plan = Draw_Site(site);
    EXPECT_EQ(plan.note, "No grid yet: its points and spacings are disposal site data.");
    EXPECT_EQ(plan.description, plan.note);
    EXPECT_TRUE(plan.shapes.empty());
    EXPECT_TRUE(Plan_Shapes(plan, {400, 300, 12}).shapes.empty());
  }
}

TEST(SitePlanDrawing, A_Course_Is_Followed_Leg_By_Leg_And_The_Vessel_Lies_Along_It) {
  Site_Plan site = Site();
  site.course = {{0, 0, 100}, {0, 5, 100}, {2, 0, 100}};
  const Plan plan = Draw_Site(site);
  EXPECT_EQ(Drawn(plan)[1], "370 900 430 1100");  // 200 ft along Z
  ASSERT_EQ(plan.arrows.size(), 1u);
  EXPECT_EQ(plan.arrows[0].tail, (Feet_Point{400, 1000}));
  // The first leg does not move.
  EXPECT_EQ(plan.arrows[0].bends, (std::vector{Feet_Point{400, 1500}}));
  EXPECT_EQ(plan.arrows[0].tip, (Feet_Point{600, 1500}));
  EXPECT_NE(plan.description.find("While it empties, the vessel moves to X 600 ft, Z 1500 ft."),
            std::string::npos);
}

TEST(SitePlanDrawing, A_Course_Over_The_Edge_Is_Cut_Half_A_Side_Beside_The_Grid_And_Told) {
  Site_Plan site = Site();
  site.course = {{-10, 0, 1000}, {0, 1, 100}};
  const Plan plan = Draw_Site(site);
  ASSERT_EQ(plan.arrows.size(), 1u);
  EXPECT_EQ(plan.arrows[0].tip, (Feet_Point{-2000, 1000}));
  EXPECT_EQ(Text_Of(plan.area), "-2000 0 2000 4000");
  EXPECT_EQ(plan.note, "The vessel's course leaves the grid.");
}

TEST(SitePlanDrawing, A_Point_Beside_The_Grid_Is_Shown_And_One_Far_Away_Only_Told) {
  Site_Plan site = Site();
  site.disposal_point = Feet_Point{400, 4500};
  Plan plan = Draw_Site(site);
  EXPECT_EQ(Text_Of(plan.area), "0 0 2000 4530");
  EXPECT_EQ(plan.note, "The disposal point is outside of the grid.");
  EXPECT_EQ(plan.marks.size(), 1u);
  site.disposal_point = Feet_Point{400, 1e8};
  plan = Draw_Site(site);
  EXPECT_EQ(Text_Of(plan.area), "0 0 2000 4000");
  EXPECT_EQ(plan.note, "The disposal point is outside of the grid.");
  EXPECT_TRUE(plan.marks.empty());
  EXPECT_EQ(Drawn(plan), Lines{"0 0 2000 4000"});
}

TEST(SitePlanDrawing, A_Vessel_Over_The_Edge_And_A_Point_Without_A_Place_Are_Told) {
  Site_Plan site = Site();
  site.disposal_point = Feet_Point{99, 1000};  // half of its 200 ft is more
  EXPECT_EQ(Draw_Site(site).note, "The vessel reaches beyond the grid.");
  site.disposal_point = Feet_Point{100, 1000};
  EXPECT_EQ(Draw_Site(site).note, "");
  site.disposal_point = Feet_Point{kNan, 1000};
  const Plan plan = Draw_Site(site);
  EXPECT_EQ(plan.note, "The disposal point has no place.");
  EXPECT_EQ(Drawn(plan), (Lines{"0 0 2000 4000"}));
}

TEST(SitePlanDrawing, Boundary_And_Zid_Are_Areas_With_Their_Names) {
  Site_Plan site = Site();
  site.boundary_name = "Disposal site";
  site.boundary = Feet_Area{200, 500, 1500, 3000};
  site.zid = Feet_Area{300, 600, 700, 1400};
  const Plan plan = Draw_Site(site);
  EXPECT_EQ(Drawn(plan),
            (Lines{"0 0 2000 4000", "200 500 1500 3000", "300 600 700 1400", "300 970 500 1030"}));
  EXPECT_EQ(plan.note, "");
  EXPECT_NE(plan.description.find("Disposal site: X 200 to 1500 ft, Z 500 to 3000 ft. "
                                  "ZID: X 300 to 700 ft, Z 600 to 1400 ft."),
            std::string::npos);
}

TEST(SitePlanDrawing, Corners_The_Wrong_Way_Round_Are_Told) {
  Site_Plan site = Site();
  site.boundary = Feet_Area{1500, 500, 200, 3000};
  EXPECT_EQ(Draw_Site(site).note, "The corners of the mixing zone do not make an area.");
  site.boundary = Feet_Area{kNan, 500, 200, 3000};
  EXPECT_EQ(Draw_Site(site).note, "Mixing zone has no place.");
}

TEST(SitePlanDrawing, A_Boundary_Beyond_The_Grid_Is_Cut_And_Told) {
  Site_Plan site = Site();
  site.boundary = Feet_Area{500, 500, 1e7, 3000};
  const Plan plan = Draw_Site(site);
  EXPECT_EQ(Drawn(plan)[1], "500 500 4000 3000");  // 2000 ft below the grid
  EXPECT_EQ(plan.note, "Mixing zone reaches beyond the grid.");
}

TEST(SitePlanDrawing, A_Depression_Lies_About_The_Disposal_Point) {
  Site_Plan site = Site();
  site.hole_x = 300;
  site.hole_z = 500;
  EXPECT_EQ(Drawn(Draw_Site(site))[1], "250 750 550 1250");
  site.hole_z = 0;  // of no width there is nothing to see
  EXPECT_EQ(Drawn(Draw_Site(site)).size(), 2u);
}

TEST(SitePlanDrawing, The_Mean_Current_Has_An_Arrow_Far_From_The_Vessel) {
  Site_Plan site = Site();
  site.current = Mean_Current{0.3, 0.4};
  Plan plan = Draw_Site(site);
  ASSERT_EQ(plan.arrows.size(), 1u);
  // 0.16 of 2000 ft long, and 0.04 of it from the edge: about X 1760 ft, Z 3760 ft.
  const Plan_Arrow& arrow = plan.arrows[0];
  EXPECT_NEAR(arrow.tip.x - arrow.tail.x, 320 * 0.6, 1e-9);
  EXPECT_NEAR(arrow.tip.z - arrow.tail.z, 320 * 0.8, 1e-9);
  EXPECT_NEAR((arrow.tip.x + arrow.tail.x) / 2, 1760, 1e-9);
  EXPECT_NEAR((arrow.tip.z + arrow.tail.z) / 2, 3760, 1e-9);
  EXPECT_NE(plan.description.find("Mean current: 0.5 ft/s down and right."), std::string::npos);
  site.current = Mean_Current{0, 0};
  plan = Draw_Site(site);
  EXPECT_TRUE(plan.arrows.empty());
  EXPECT_NE(plan.description.find("No mean current."), std::string::npos);
  site.current = Mean_Current{kNan, 0};
  EXPECT_EQ(Draw_Site(site).note, "The mean current cannot be drawn.");
}

TEST(SitePlanDrawing, On_A_Narrow_Grid_The_Current_Is_Named_Beside_It) {
  Site_Plan site = Site();
  site.current = Mean_Current{0.3, 0.4};
  const auto named_at = [&] {
    for (const Shape& mark : Draw_Site(site).marks) {
      const auto* text = std::get_if<Text_Shape>(&mark);
      if (text != nullptr && text->anchor == Anchor::start) return text->place.x;
    }
    return 0.0;  // to the left of the arrow
  };
  EXPECT_EQ(named_at(), 0);
  site.length_z = 900;
  EXPECT_EQ(named_at(), 900);
}

TEST(SitePlanDrawing, Values_Without_A_Place_Do_No_Harm) {
  for (const double value : {kNan, 1e300, -1e300, 0.0, -1.0}) {
    Site_Plan site = Site();
    site.disposal_point = Feet_Point{value, 10};
    site.vessel_length = site.hole_x = site.hole_z = value;
    site.course = {{value, value, value}, {1, 1, value}, {value, 1, 10}};
    site.boundary = Feet_Area{value, value, value, value};
    site.zid = Feet_Area{0, 0, 10, value};
    site.current = Mean_Current{value, value};
    const Plan plan = Draw_Site(site);
    EXPECT_FALSE(Svg_Text(Plan_Shapes(plan, {500, 400, 12})).empty());
    for (const double side : {plan.area.top, plan.area.left, plan.area.bottom, plan.area.right}) {
      EXPECT_TRUE(side >= -2000 && side <= 6000) << value;
    }
  }
}

}  // namespace
}  // namespace barvon

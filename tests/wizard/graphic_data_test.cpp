#include "wizard/graphic_data.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/project_defaults.h"
#include "core/velocity_types.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// 3000 ft wide and 1500 ft high at (100, 200), currents 0.5 ft/s along Z and -0.1 along X: 16
/// points 200 ft apart in Z; a negative velocity asks for 35 ft, so 1 + 42 points of 1500 / 42 ft.
class GraphicData : public ::testing::Test {
 protected:
  GraphicData() {
    Set_Project_Defaults(record);
    record.AvgVelocityZ = 0.5;
    record.AvgVelocityX = -0.1;
    Type("100", "200", "3000", "1500");
  }
  void Type(const char* x, const char* y, const char* width, const char* height) {
    texts("Text6", kUpperLeftX) = x;
    texts("Text6", kUpperLeftY) = y;
    texts("Text6", kWidth) = width;
    texts("Text6", kHeight) = height;
  }
  void Construct() { Construct_Grid(texts, record, page); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner_;
  Field_Texts texts;
  Graphic_Page page;
};

TEST_F(GraphicData, A_Drag_Shows_What_It_Is_And_Is_Put_Right_When_It_Is_Let_Go) {
  const Field_Texts dragged = Dragged_Texts({500, 400}, {200.4, 100});
  const Names raw = {"500", "400", "200", "100", "-300", "-300"};
  for (int i = 0; i < kRectangleFields; ++i) EXPECT_EQ(dragged("Text6", i), raw[i]) << i;
  const Field_Texts let_go = Rectangle_Texts({500, 400}, {200.4, 100});
  const Names right = {"200", "100", "500", "400", "300", "300"};
  for (int i = 0; i < kRectangleFields; ++i) EXPECT_EQ(let_go("Text6", i), right[i]) << i;
  EXPECT_EQ(Rectangle_Texts({0, 0}, {70000, 40000})("Text6", kWidth), "70000") << "beyond 16 bits";
}

TEST_F(GraphicData, The_Lower_Right_Corner_Follows_Corner_And_Size) {
  EXPECT_EQ(Lower_Right_Texts(texts)("Text6", kLowerRightX), "3100");
  EXPECT_EQ(Lower_Right_Texts(texts)("Text6", kLowerRightY), "1700");
  Type("", "", "0", "0");
  EXPECT_EQ(Lower_Right_Texts(texts)("Text6", kLowerRightX), "");
}

TEST_F(GraphicData, Constructing_Shows_Counts_And_Spacings) {
  Construct();
  const Field_Texts shown = Constructed_Texts(texts, page);
  EXPECT_EQ(shown("Text2", kPointsZ), "16");
  EXPECT_EQ(shown("Text2", kPointsX), "43");
  EXPECT_EQ(shown("Text2", kSpacingZ), "200.00");
  EXPECT_EQ(shown("Text2", kSpacingX), "35.71");
  EXPECT_EQ(shown.Find({"Text6", kWidth}), nullptr) << "what is typed stays as it is typed";
}

TEST_F(GraphicData, A_Negative_Size_Is_Put_Right) {
  Type("3100", "1700", "-3000", "-1500");
  Construct();
  EXPECT_EQ(page.grid->upper_left.x, 100);
  EXPECT_EQ(page.grid->upper_left.y, 200);
  const Field_Texts shown = Constructed_Texts(texts, page);
  EXPECT_EQ(shown("Text6", kUpperLeftX), "100");
  EXPECT_EQ(shown("Text6", kHeight), "1500");
}

TEST_F(GraphicData, Without_A_Size_There_Is_A_Grid_That_No_Project_Can_Have) {
  Type("100", "200", "0", "0");
  Construct();
  EXPECT_EQ(page.grid->points_x, 8);
  EXPECT_EQ(page.grid->spacing_x, 0);
  EXPECT_FALSE(Has_Grid_To_Take(page));
  Draw_Page(texts, page, record);
  Pick_Corner({1, 1}, page);
  Pick_Corner({2, 2}, page);
}

TEST_F(GraphicData, Picks_Are_Corners_And_The_Second_Places_The_Vessel_Upstream) {
  Pick_Corner({500, 500}, page);
  EXPECT_FALSE(page.first) << "no grid yet";
  Construct();
  Pick_Corner({610, 200}, page);  // 510 ft right of the corner: the fourth column is the nearest
  EXPECT_EQ(*page.first, (Grid_Pick{4, 1}));
  EXPECT_FALSE(page.vessel);
  Field_Texts corners = Corner_Texts(page);
  EXPECT_EQ(corners("Text3", kUpperLeftX), "700.00");
  EXPECT_EQ(corners("Text3", kUpperLeftY), "200.00");
  EXPECT_EQ(corners("Text3", kLowerRightX), "");
  Pick_Corner({1500, 915}, page);  // 1400 right, 715 down: column 8, row 21
  EXPECT_EQ(*page.last, (Grid_Pick{8, 21}));
  // Along Z the current runs to the right, so on the left; along X upwards, so at the bottom.
  EXPECT_DOUBLE_EQ(page.vessel->x, 700);
  EXPECT_DOUBLE_EQ(page.vessel->y, 20 * (1500.0 / 42) + 200);
  Pick_Corner({1500, 200}, page);
  EXPECT_EQ(*page.first, (Grid_Pick{4, 1})) << "each further pick is the second corner";
  EXPECT_EQ(*page.last, (Grid_Pick{8, 1}));
}

TEST_F(GraphicData, Clear_Forgets_Grid_And_Picks) {
  Construct();
  Pick_Corner({610, 200}, page);
  Clear_Page(page);
  EXPECT_FALSE(page.grid);
  EXPECT_FALSE(page.first);
  EXPECT_EQ(Corner_Texts(page)("Text3", kUpperLeftX), "");
}

TEST_F(GraphicData, OK_Without_A_Vessel_Writes_Nothing) {
  const auto before = std::make_unique<ProjectRecord>(record);
  Save_Page(page, false, record);
  Construct();
  Save_Page(page, false, record);
  EXPECT_EQ(Differing_Fields(*before, record), Names{});
}

TEST_F(GraphicData, OK_Without_The_Grid_Writes_The_Vessel_Where_The_Picture_Shows_It) {
  record.DataSaved = kTrue;
  Construct();
  Pick_Corner({610, 200}, page);
  Pick_Corner({1500, 915}, page);
  Save_Page(page, false, record);
  EXPECT_DOUBLE_EQ(record.ZBARGE, 700);
  EXPECT_DOUBLE_EQ(record.XBARGE, 20 * (1500.0 / 42) + 200);
  EXPECT_EQ(record.NMAX0, 32);
  EXPECT_EQ(record.DataSaved, kFalse);
}

TEST_F(GraphicData, A_Grid_That_Is_Taken_Is_What_All_Is_Measured_From) {
  Construct();
  Pick_Corner({1500, 915}, page);  // the lower right corner first
  Pick_Corner({610, 200}, page);
  Save_Page(page, true, record);
  EXPECT_EQ(record.NMAX0, 16);
  EXPECT_EQ(record.MMAX0, 43);
  EXPECT_DOUBLE_EQ(record.DZ0, 200);
  EXPECT_DOUBLE_EQ(record.DX0, 1500.0 / 42);
  EXPECT_DOUBLE_EQ(record.DistZ, 3000);
  EXPECT_DOUBLE_EQ(record.DistX, 1500);
  EXPECT_DOUBLE_EQ(record.SiteLeft, 600);
  EXPECT_DOUBLE_EQ(record.SiteTop, 0);
  EXPECT_DOUBLE_EQ(record.SiteRight, 1400);
  EXPECT_DOUBLE_EQ(record.SiteBottom, 20 * (1500.0 / 42));
  // Upstream of the picks in their order: the first column picked, the last row picked.
  EXPECT_DOUBLE_EQ(record.ZBARGE, 1400);
  EXPECT_DOUBLE_EQ(record.XBARGE, 0);
}

TEST_F(GraphicData, A_Grid_Without_A_Site_Leaves_The_Projects_Corners) {
  record.SiteTop = 5;
  Construct();
  Pick_Corner({610, 200}, page);
  Save_Page(page, true, record);
  EXPECT_EQ(record.MMAX0, 43);
  EXPECT_EQ(record.SiteTop, 5);
  EXPECT_EQ(record.XBARGE, 0);
}

TEST_F(GraphicData, The_Radius_Is_A_Whole_Number_Or_Stays) {
  Set_Point_Radius("25.4", record);
  EXPECT_EQ(record.GridPointRadius, 25);
  for (const char* answer : {"", "0", "-3", "wide", "32768", "1e300", "0.4"}) {
    Set_Point_Radius(answer, record);
    EXPECT_EQ(record.GridPointRadius, 25) << answer;
  }
}

TEST_F(GraphicData, The_Picture_Draws_Lines_Points_Site_And_Vessel) {
  EXPECT_EQ(Draw_Page(texts, page, record).shapes.size(), 1U) << "the rectangle alone";
  Construct();
  Pick_Corner({610, 200}, page);
  Pick_Corner({1500, 915}, page);
  Plan plan = Draw_Page(texts, page, record);
  EXPECT_EQ(plan.shapes.size(), 16U + 43U);
  EXPECT_EQ(plan.marks.size(), 16U * 43U + 1U) << "points of a few pixels, and the vessel";
  EXPECT_EQ(plan.description,
            "A grid of 16 by 43 points, 200.00 ft apart in Z and 35.71 ft in X. The disposal site "
            "begins at X 700, Y 200 and ends at X 1500, Y 914. The vessel is at X 700, Y 914.");
  record.GridPointRadius = 20;
  plan = Draw_Page(texts, page, record);
  EXPECT_EQ(plan.marks.size(), 0U);
  const auto& vessel = std::get<Circle_Shape>(plan.shapes.back());
  EXPECT_EQ(vessel.radius, 20);
  EXPECT_EQ(vessel.fill, (Colour{255, 0, 0}));
  int black = 0;
  for (const Shape& shape : plan.shapes) {
    const auto* point = std::get_if<Circle_Shape>(&shape);
    if (point != nullptr && point->fill == Colour{0, 0, 0}) ++black;
  }
  EXPECT_EQ(black, 5 * 21);
}

TEST_F(GraphicData, Before_A_Grid_Is_Constructed_The_Projects_Own_Is_Dashed) {
  record.DX0 = 100;
  record.DZ0 = 50;
  Plan plan = Draw_Page(texts, page, record);
  ASSERT_EQ(plan.shapes.size(), 2U);
  const auto& grid = std::get<Polygon_Shape>(plan.shapes.at(0));
  EXPECT_EQ(grid.stroke->dash, Dash::dashed);
  EXPECT_EQ(grid.points.at(2), (Place{1550, 3100}));
  EXPECT_EQ(plan.description, "Dashes show the project's grid. No grid is constructed yet.");
  Construct();
  plan = Draw_Page(texts, page, record);
  EXPECT_EQ(plan.shapes.size(), 16U + 43U);
}

TEST_F(GraphicData, The_Picture_Has_Room_For_The_Projects_Grid_And_More) {
  Type("", "", "0", "0");
  Feet_Area area = Area_Of_Page(texts, page, record);
  EXPECT_GE(area.right, 10000) << "no grid yet";
  record.DX0 = 100;
  record.DZ0 = 50;
  area = Area_Of_Page(texts, page, record);
  EXPECT_NEAR(area.bottom, 1.5 * 3100, 0.05 * 4650);
  EXPECT_NEAR(area.right, 1.5 * 1550, 0.05 * 2325);
  Type("5000", "0", "1000", "10");
  EXPECT_GE(Area_Of_Page(texts, page, record).right, 6000);
}

TEST_F(GraphicData, The_Readout_Is_In_Whole_Feet) {
  EXPECT_EQ(Coordinates_Text({1200.4, 800}), "X: 1200 Y: 800");
  EXPECT_EQ(Coordinates_Text({70000, 3}), "X: 70000 Y: 3");
}

}  // namespace
}  // namespace barvon::testing

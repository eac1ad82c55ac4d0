#include "results/drawings/balance_drawing.h"

#include <gtest/gtest.h>

#include "pictures/shapes/svg_writer.h"
#include "results/small_results.h"

namespace barvon::testing {
namespace {

TEST(BalanceDrawing, A_Bar_Is_Made_Of_Parts_Of_The_Release) {
  Results results = Small_Results();
  results.beds.push_back({.time = 400, .species = 1, .values = {}});
  const Bar_Chart chart = Balance_Chart(results, nullptr, std::nullopt);
  EXPECT_EQ(chart.title, "Balance at the end");
  ASSERT_EQ(chart.bars.size(), 2u);
  EXPECT_EQ(Bar_Words(chart.bars[0]),
            "Sand, 1000 ft3: in the water 10, on the bottom 10 to 80, outside the grid 80 to 100");
  EXPECT_EQ(chart.bars[0].parts[0].to, 10);
  EXPECT_EQ(chart.bars[1].label, "Ammonia, 1000 mg/l ft3");
  ASSERT_EQ(chart.bars[1].parts.size(), 2u);
  EXPECT_EQ(chart.bars[1].parts[0].to, 80);
  EXPECT_EQ(chart.bars[1].parts[1].words, "not accounted for");
  EXPECT_EQ(chart.legend.size(), 4u);
}

TEST(BalanceDrawing, At_A_Time_It_Is_Of_What_Was_Released_Up_To_Then) {
  const Bar_Chart chart = Balance_Chart(Small_Results(), nullptr, 100);
  EXPECT_EQ(chart.title, "Balance at 100 s (1.7 min)");
  EXPECT_EQ(chart.bars[0].parts[0].to, 75);
  EXPECT_EQ(chart.legend.size(), 3u);
  EXPECT_EQ(Balance_Chart(Small_Results(), nullptr, 50).bars[0].remark, "no balance at this time");
}

TEST(BalanceDrawing, Before_Anything_Left_The_Vessel_There_Are_No_Parts) {
  Results results = Small_Results();
  results.masses[0] = {.time = 100, .species = 1};
  EXPECT_EQ(Balance_Chart(results, nullptr, 100).bars[0].remark, "nothing released");
}

TEST(BalanceDrawing, Two_Results_Have_Their_Bars_Below_Each_Other) {
  const Results own = Small_Results();
  Results other = Small_Results();
  other.path = "/work/wide.DUI";
  other.species[1].name = "Copper";
  const Bar_Chart chart = Balance_Chart(own, &other, std::nullopt);
  ASSERT_EQ(chart.bars.size(), 4u);
  EXPECT_TRUE(chart.bars[0].label.starts_with("Sand, small, 1000"));
  EXPECT_TRUE(chart.bars[1].label.starts_with("Sand, wide, 1000"));
  EXPECT_TRUE(chart.bars[2].label.starts_with("Ammonia, small"));
  EXPECT_TRUE(chart.bars[3].label.starts_with("Copper, wide"));
}

TEST(BalanceDrawing, Amounts_Have_The_Unit_Of_A_Solid_Or_Of_The_Tracer) {
  Results results = Small_Results();
  results.beds.push_back({.time = 400, .species = 1, .values = {}});
  EXPECT_EQ(Amount_Unit(results, 1), "ft3");
  EXPECT_EQ(Amount_Unit(results, 2), "mg/l ft3");
  results.beds.clear();
  results.species[1].unit = "%";
  EXPECT_EQ(Amount_Unit(results, 1), "ft3");
  EXPECT_EQ(Amount_Unit(results, 2), "% ft3");
}

TEST(BalanceDrawing, The_Table_Has_The_Amounts) {
  Results results = Small_Results();
  results.beds.clear();
  EXPECT_TRUE(
      Balance_Csv(results, nullptr, std::nullopt)
          .starts_with("project,species,unit,time (s),released,in the water,on the "
                       "bottom,outside the grid\r\nsmall,Sand,ft3,400,1000,100,700,200\r\n"));
}

TEST(BalanceDrawing, Without_Balances_It_Says_So) {
  EXPECT_TRUE(Balance_Chart({}, nullptr, std::nullopt).bars.empty());
  EXPECT_NE(Svg_Text(Balance_Shapes(Balance_Chart(Small_Results(), nullptr, 50), {400, 200, 12}))
                .find("no balance at this time"),
            std::string::npos);
}

}  // namespace
}  // namespace barvon::testing

#include "results/summary.h"

#include <gtest/gtest.h>

#include <limits>

#include "results/small_results.h"

namespace barvon::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(Summary, The_Balance_At_The_End_Is_The_Last_Row_Of_Each_Species) {
  const auto balances = Balance_At_End(Small_Results());
  ASSERT_EQ(balances.size(), 2u);
  EXPECT_EQ(balances[0].species, 1);
  EXPECT_EQ(balances[0].time, 400);
  EXPECT_EQ(balances[0].suspended, 100);
  EXPECT_EQ(balances[0].on_grid, 700);
  EXPECT_EQ(balances[0].off_grid, 200);
  EXPECT_EQ(balances[0].Missing(), 0);
  EXPECT_DOUBLE_EQ(balances[0].Share(700), 0.7);
  EXPECT_EQ(balances[1].species, 2);
  EXPECT_EQ(balances[1].Missing(), 200);
}

TEST(Summary, The_Balance_Between_Output_Times_Is_On_The_Line_And_None_Beyond_Them) {
  const Results results = Small_Results();
  const auto between = Balance_At(results, 150);
  ASSERT_EQ(between.size(), 2u);
  EXPECT_DOUBLE_EQ(between[0].released, 900);
  EXPECT_DOUBLE_EQ(between[0].suspended, 550);
  EXPECT_DOUBLE_EQ(between[0].on_grid, 300);
  EXPECT_DOUBLE_EQ(between[0].off_grid, 50);
  EXPECT_EQ(Balance_At(results, 300)[0].on_grid, 650);
  EXPECT_EQ(Balance_At(results, 100)[0].on_grid, 200);
  EXPECT_TRUE(Balance_At(results, 99).empty());
  EXPECT_TRUE(Balance_At(results, 401).empty());
  EXPECT_EQ(Balance_Times(results), (std::vector<double>{100, 200, 300, 400}));
}

TEST(Summary, Rounding_Of_Seven_Digits_Is_No_Loss_And_Of_Nothing_There_Is_No_Share) {
  const Species_Balance rounded{1, 0, 1234567, 1234566.5, 0, 0};
  EXPECT_EQ(rounded.Missing(), 0);
  EXPECT_EQ(Species_Balance{}.Share(0), 0);
  EXPECT_TRUE(Balance_At_End({}).empty());
}

TEST(Summary, The_Largest_By_Area_With_Time_And_Depth) {
  const Largest_Values sand = Largest_Of(Small_Results(), 1);
  ASSERT_TRUE(sand.inside && sand.outside);
  EXPECT_EQ(sand.inside->value, 90);
  EXPECT_EQ(sand.inside->time, 100);
  EXPECT_EQ(sand.inside->depth, 20);
  EXPECT_EQ(sand.outside->value, 8);
  EXPECT_EQ(sand.outside->time, 200);
  EXPECT_FALSE(sand.outside_zid);
  EXPECT_FALSE(Largest_Of(Small_Results(), 3).outside);
  EXPECT_EQ(Largest_Peak(Small_Results(), 1)->value, 120);
  EXPECT_FALSE(Largest_Peak(Small_Results(), 3));
}

TEST(Summary, Equal_Largest_Values_Are_Told_At_The_First) {
  Results results;
  results.maxima = {{1, 1, 5, 2, 2, 2}, {2, 1, 5, 2, 2, 2}};
  EXPECT_EQ(Largest_Of(results, 1).outside->time, 1);
}

TEST(Summary, Areas_Are_Those_That_The_Outputs_Tell) {
  Results results = Small_Results();
  EXPECT_TRUE(Has_Site(results));
  EXPECT_FALSE(Has_Zid(results));
  results.zid = {.top = 0, .left = 0, .bottom = 50, .right = 50};
  EXPECT_TRUE(Has_Zid(results));
  results.site.reset();
  EXPECT_FALSE(Has_Site(results));
  EXPECT_FALSE(Largest_Of(results, 1).inside);
  EXPECT_TRUE(Largest_Of(results, 1).outside_zid);
}

TEST(Summary, Outputs_Of_Before_Have_A_Zid_Where_Its_Column_Is_A_Value_Of_Its_Own) {
  Results results = Small_Results();
  results.site.reset();
  results.input_sum.reset();
  EXPECT_TRUE(Has_Site(results));
  EXPECT_FALSE(Has_Zid(results));
  results.maxima.back().outside_zid = 0.6;
  EXPECT_TRUE(Has_Zid(results));
}

TEST(Summary, A_Series_Is_The_Largest_Of_All_Depths_Or_That_Of_One) {
  const Results results = Small_Results();
  const auto all = Series_Of(results, 2, Result_Where::outside, std::nullopt);
  ASSERT_EQ(all.size(), 4u);
  EXPECT_EQ(all[0].value, 0.5);
  EXPECT_EQ(all[1].value, 3);
  EXPECT_EQ(all[2].value, 1.5);  // at 5 ft
  EXPECT_EQ(all[3].value, 1);
  EXPECT_EQ(Series_Of(results, 2, Result_Where::outside, 20)[2].value, 1);
  EXPECT_EQ(Series_Of(results, 2, Result_Where::anywhere, 20)[2].value, 2);
  EXPECT_TRUE(Series_Of(results, 2, Result_Where::outside, 21).empty());
  EXPECT_EQ(Output_Depths(results), (std::vector<double>{5, 20}));
  EXPECT_EQ(Background_Of(results, 2), 0.5);
  EXPECT_EQ(Background_Of(results, 1), 0);
}

TEST(Summary, A_Span_Begins_And_Ends_Where_The_Line_Crosses_The_Value) {
  // From 0 to 4 in 100 s it is at 1 after 25 s; from 4 down to 0 at 1 after 75 s.
  EXPECT_EQ(Spans_Above({{0, 0}, {100, 4}, {200, 0}}, 1), (std::vector<Time_Span>{{25, 175}}));
  EXPECT_EQ(Spans_Above({{0, 4}, {100, 0}, {200, 2}}, 1),
            (std::vector<Time_Span>{{0, 75}, {150, 200}}));
}

TEST(Summary, A_Value_That_Is_Reached_Is_Not_Exceeded) {
  EXPECT_TRUE(Spans_Above({{0, 1}, {100, 1}}, 1).empty());
  EXPECT_EQ(Spans_Above({{0, 1}, {100, 2}, {200, 1}}, 1), (std::vector<Time_Span>{{0, 200}}));
  EXPECT_TRUE(Spans_Above({}, 1).empty());
}

TEST(Summary, A_Span_Ends_Before_A_Value_That_Is_No_Number) {
  EXPECT_EQ(Spans_Above({{0, 2}, {100, 3}, {200, kNan}, {300, 3}}, 1),
            (std::vector<Time_Span>{{0, 100}, {300, 300}}));
}

TEST(Summary, The_Deposit_In_Numbers) {
  Results results = Small_Results();
  const Result_Map* bed = Last_Bed(results);
  ASSERT_NE(bed, nullptr);
  EXPECT_EQ(bed->time, 400);
  // Cells of 50 ft x 20 ft; 1 ft and 2 ft thick, the second at row 2, column 3.
  const Deposit_Totals totals = Totals_Of(results.grid, *bed);
  EXPECT_EQ(totals.volume, 3000);
  EXPECT_EQ(totals.thickest, 2);
  EXPECT_EQ(totals.x, 50);
  EXPECT_EQ(totals.z, 40);
  results.beds.clear();
  EXPECT_EQ(Last_Bed(results), nullptr);
}

}  // namespace
}  // namespace barvon::testing

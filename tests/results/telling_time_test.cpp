#include "results/telling_time.h"

#include <gtest/gtest.h>

#include "results/small_results.h"

namespace barvon::testing {
namespace {

/// The map of the moment's species, depth and time; null where the outputs have none.
const Result_Map* Telling_Map(const Results& results, const Telling_Moment& moment) {
  for (const Result_Map& map : results.maps) {
    const bool is_meant = map.species == moment.species && map.depth == moment.depth;
    if (is_meant && map.time == moment.map_time) return &map;
  }
  return nullptr;
}

TEST(TellingTime, The_Species_With_The_Tightest_Limit_At_Its_Largest_Value_Outside) {
  const Telling_Moment moment = Telling_Moment_Of(Small_Results());
  EXPECT_EQ(moment.species, 2);
  EXPECT_EQ(moment.depth, 20);
  EXPECT_EQ(moment.time, 200);
  EXPECT_EQ(moment.map_time, 200);
  EXPECT_EQ(moment.bed_time, 400);
}

TEST(TellingTime, The_Tightest_Limit_Is_The_One_Whose_Worst_Is_The_Largest_Part_Of_It) {
  Results results = Small_Results();
  // 3.4 of 2 is more than 8 of 5, and a limit of 0 is none.
  results.limits.push_back({.species = 1, .value = 5, .worst = 8, .of = "other"});
  results.limits.push_back({.species = 1, .value = 0, .worst = 8, .of = "none"});
  EXPECT_EQ(Telling_Moment_Of(results).species, 2);
  results.limits[1].worst = 9;
  EXPECT_EQ(Telling_Moment_Of(results).species, 1);
}

TEST(TellingTime, The_Area_Of_The_Limit_Goes_First) {
  Results results = Small_Results();
  results.limits[0].where = Result_Where::inside;
  EXPECT_EQ(Telling_Moment_Of(results).time, 100);
  results.limits[0].where = Result_Where::anywhere;
  EXPECT_EQ(Telling_Moment_Of(results).time, 100);
  results.limits[0].where = Result_Where::outside_zid;  // there is no ZID: outside the site
  EXPECT_EQ(Telling_Moment_Of(results).time, 200);
}

TEST(TellingTime, A_Limit_Does_Not_Look_At_Earlier_Times) {
  Results results = Small_Results();
  results.limits[0].where = Result_Where::anywhere;
  results.limits[0].from = 250;
  const Telling_Moment moment = Telling_Moment_Of(results);
  EXPECT_EQ(moment.time, 300);  // 2 at 20 ft inside
  EXPECT_EQ(moment.depth, 20);
  EXPECT_EQ(moment.map_time, 400);
  // Nothing from then on: what was before says more than nothing.
  results.limits[0].from = 500;
  EXPECT_EQ(Telling_Moment_Of(results).time, 200);
}

TEST(TellingTime, Without_Limits_It_Is_The_Largest_Number_Outside) {
  Results results = Small_Results();
  results.limits.clear();
  const Telling_Moment moment = Telling_Moment_Of(results);
  EXPECT_EQ(moment.species, 1);
  EXPECT_EQ(moment.depth, 20);
  EXPECT_EQ(moment.time, 200);
}

TEST(TellingTime, Where_All_Outside_Is_Background_It_Is_The_Largest_Inside) {
  Results results = Small_Results();
  for (Result_Maxima& row : results.maxima) row.outside = row.species == 2 ? 0.5 : 0;
  EXPECT_EQ(Telling_Moment_Of(results).species, 2);
  EXPECT_EQ(Telling_Moment_Of(results).time, 100);
  results.limits.clear();
  EXPECT_EQ(Telling_Moment_Of(results).species, 1);
  EXPECT_EQ(Telling_Moment_Of(results).time, 100);
}

TEST(TellingTime, The_Map_Is_The_One_At_Whose_Time_The_Area_Has_Its_Largest) {
  Results results = Small_Results();
  Result_Map& first = results.maps[3];  // at 200 s, tracer, 20 ft
  ASSERT_EQ(first.species, 2);
  ASSERT_EQ(first.depth, 20);
  EXPECT_EQ(Telling_Map(results, Telling_Moment_Of(results)), &first);
  // The largest of all is at 100 s, which has no map; of 200 and 400 s the first is larger.
  results.limits[0].where = Result_Where::inside;
  EXPECT_EQ(Telling_Moment_Of(results).time, 100);
  EXPECT_EQ(Telling_Moment_Of(results).map_time, 200);
  // Now it is the other way round: 4 at 200 s, 5 at 400 s.
  for (Result_Maxima& row : results.maxima) {
    if (row.time == 400 && row.species == 2) row.inside = 5;
  }
  EXPECT_EQ(Telling_Moment_Of(results).map_time, 400);
}

TEST(TellingTime, An_Empty_Map_Is_Not_Shown_Where_Another_Has_Something) {
  Results results = Small_Results();
  results.maps[3].values.clear();
  results.maps[3].bottom = 0;
  EXPECT_EQ(Telling_Moment_Of(results).map_time, 400);
}

TEST(TellingTime, Maps_Between_The_Output_Times_Are_Taken_By_Nearness) {
  Results results = Small_Results();
  for (Result_Map& map : results.maps) map.time += 10;
  EXPECT_EQ(Telling_Moment_Of(results).map_time, 210);
}

TEST(TellingTime, Without_Anything_There_Is_No_Species_And_No_Map) {
  Telling_Moment moment = Telling_Moment_Of({});
  EXPECT_EQ(moment.species, 0);
  EXPECT_EQ(moment.bed_time, 0);
  EXPECT_EQ(Telling_Map({}, moment), nullptr);
  Results results;
  results.species = {{"Sand", "mg/l"}};
  results.maxima = {{100, 1, 5, 0, 0, 0}, {200, 1, 5, 0, 0, 0}};
  moment = Telling_Moment_Of(results);
  EXPECT_EQ(moment.species, 1);
  EXPECT_EQ(moment.time, 200);
  EXPECT_EQ(moment.map_time, 200);
}

}  // namespace
}  // namespace barvon::testing

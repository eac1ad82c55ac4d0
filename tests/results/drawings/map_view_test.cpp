#include "results/drawings/map_view.h"

#include <gtest/gtest.h>

#include "results/mapped_results.h"

namespace barvon::testing {
namespace {

using Depths = std::vector<double>;

Map_View Of(int species, double depth, double time) {
  Map_View view;
  view.species = species;
  view.depth = depth;
  view.time = time;
  return view;
}

TEST(MapView, Lists_What_There_Are_Maps_Of) {
  const Results results = Mapped_Results();
  EXPECT_EQ(Mapped_Species(results, Map_Kind::concentration), (std::vector<int>{1, 2}));
  EXPECT_EQ(Mapped_Species(results, Map_Kind::thickness), (std::vector<int>{0, 1}));
  EXPECT_EQ(Mapped_Depths(results, Map_Kind::concentration, 1), (Depths{10, 20}));
  EXPECT_EQ(Mapped_Depths(results, Map_Kind::thickness, 0), (Depths{0}));
  EXPECT_EQ(Mapped_Times(results, Map_Kind::concentration, 2, 20), (Depths{600, 1200}));
  EXPECT_TRUE(Mapped_Times(results, Map_Kind::concentration, 2, 30).empty());
  EXPECT_TRUE(Has_Largest(results, 1, 10));
  EXPECT_FALSE(Has_Largest(results, 1, 20));
  EXPECT_EQ(Mapped_Name(results, 0), "All solids");
  EXPECT_EQ(Mapped_Name(results, 2), "COPPER");
}

TEST(MapView, A_View_Goes_To_The_Nearest_Map) {
  const Results results = Mapped_Results();
  Map_View view = Of(7, 14, 1000);
  view.largest = true;
  view = Nearest_View(results, view);
  EXPECT_EQ(view.species, 1);
  EXPECT_EQ(view.depth, 10);
  EXPECT_EQ(view.time, 1200);
  EXPECT_TRUE(view.largest);
  view.depth = 18;
  EXPECT_FALSE(Nearest_View(results, view).largest);
  EXPECT_EQ(Nearest_View({}, view).depth, 18);
}

TEST(MapView, Shows_The_Map_Of_Species_Depth_And_Time) {
  const Map_Content content = Content_Of(Mapped_Results(), nullptr, Of(2, 10, 600));
  EXPECT_EQ(content.nothing, "");
  EXPECT_EQ(content.title, "COPPER at 10 ft, 600 s (10 min)");
  EXPECT_EQ(content.unit, "mg/l");
  EXPECT_EQ(content.cells.values, (Depths{0, 0, 0, 4}));
  EXPECT_TRUE(content.site);
}

// Copper at 10 ft is 4 and 64.
TEST(MapView, The_Scale_Is_The_Same_Through_Time_Or_Fits_What_Is_Shown) {
  Map_View view = Of(2, 10, 600);
  EXPECT_EQ(Content_Of(Mapped_Results(), nullptr, view).scale.levels,
            (Depths{0.2, 0.5, 1, 2, 5, 10, 20, 50}));
  view.same_scale = false;
  EXPECT_EQ(Content_Of(Mapped_Results(), nullptr, view).scale.levels,
            (Depths{0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1, 2}));
  view.logarithmic = false;
  EXPECT_EQ(Content_Of(Mapped_Results(), nullptr, view).scale.levels,
            (Depths{0.5, 1, 1.5, 2, 2.5, 3, 3.5}));
}

TEST(MapView, The_Largest_Over_Time_Has_Its_Own_Scale) {
  Map_View view = Of(1, 10, 600);
  EXPECT_EQ(Content_Of(Mapped_Results(), nullptr, view).scale.levels.back(), 10);  // below 16
  view.largest = true;
  const Map_Content content = Content_Of(Mapped_Results(), nullptr, view);
  EXPECT_EQ(content.title, "SAND at 10 ft, largest over time");
  EXPECT_EQ(content.cells.values, (Depths{0, 0, 0, 5000}));
  EXPECT_EQ(content.scale.levels.back(), 2000);
}

TEST(MapView, A_Background_Is_No_Cloud) {
  Results results = Mapped_Results();
  for (Result_Map& map : results.maps) {
    map.base = 3;
    for (double& value : map.values) value += 3;
  }
  const Map_Content content = Content_Of(results, nullptr, Of(1, 10, 600));
  EXPECT_GT(content.scale.levels.front(), 3);
  EXPECT_EQ(content.scale.levels.back(), 13);  // 10 above it, of 16
}

// The base comes with seven digits, the cells with five.
TEST(MapView, A_Background_Is_Written_Like_The_Cells) {
  Results results = Mapped_Results();
  for (Result_Map& map : results.maps) {
    map.base = 0.123456;
    map.top = map.bottom = map.right = 1;
    map.values = {0.12346};
  }
  const Map_Content content = Content_Of(results, nullptr, Of(1, 10, 600));
  EXPECT_EQ(content.cells.values, (Depths{0.12346, 0.12346, 0.12346, 0.12346}));
  EXPECT_TRUE(content.scale.levels.empty());
  EXPECT_EQ(Draw_Map(content).summary, "0.12346 mg/l everywhere.");
}

TEST(MapView, Thickness_Is_In_Feet_With_All_Solids_Together_First) {
  Map_View view = Of(0, 0, 1200);
  view.kind = Map_Kind::thickness;
  Map_Content content = Content_Of(Mapped_Results(), nullptr, view);
  EXPECT_EQ(content.title, "Deposit of all solids, 1200 s (20 min)");
  EXPECT_EQ(content.unit, "ft");
  EXPECT_EQ(content.cells.values, (Depths{0, 0, 0, 1.2}));
  view.species = 1;
  content = Content_Of(Mapped_Results(), nullptr, view);
  EXPECT_EQ(content.title, "Deposit of SAND, 1200 s (20 min)");
  EXPECT_EQ(content.cells.values, (Depths{0, 0, 0, 0.6}));
}

TEST(MapView, Outputs_Without_Maps_Say_So) {
  Results results = Mapped_Results();
  results.maps.clear();
  results.beds.clear();
  EXPECT_EQ(Content_Of(results, nullptr, Of(1, 10, 600)).nothing,
            "The outputs hold no maps of concentrations.");
  Map_View view;
  view.kind = Map_Kind::thickness;
  EXPECT_EQ(Content_Of(results, nullptr, view).nothing, "The outputs hold no maps of the deposit.");
}

/// The other one: its species in another order, twice as much of all.
Results Other() {
  Results other = Mapped_Results();
  other.path = "/p/other.DUI";
  std::swap(other.species[0], other.species[1]);
  for (auto* maps : {&other.maps, &other.beds}) {
    for (Result_Map& map : *maps) {
      for (double& value : map.values) value *= 3;
      if (map.species > 0) map.species = 3 - map.species;
    }
  }
  return other;
}

TEST(MapView, The_Other_Is_Shown_By_The_Name_Of_Its_Species) {
  const Results other = Other();
  Map_View view = Of(2, 10, 600);
  view.side = Map_Side::other;
  const Map_Content content = Content_Of(Mapped_Results(), &other, view);
  EXPECT_EQ(content.title, "other: COPPER at 10 ft, 600 s (10 min)");
  EXPECT_EQ(content.cells.values, (Depths{0, 0, 0, 12}));
  EXPECT_EQ(content.scale.levels.back(), 100);  // both have one scale: of 3 x 64
  view.side = Map_Side::own;
  EXPECT_EQ(Content_Of(Mapped_Results(), &other, view).scale.levels.back(), 100);
  EXPECT_EQ(Content_Of(Mapped_Results(), &other, view).title,
            "own: COPPER at 10 ft, 600 s (10 min)");
}

// 4 less 12 at this time; 64 less 192 at the other.
TEST(MapView, The_Difference_Is_The_Own_Less_The_Other) {
  const Results other = Other();
  Map_View view = Of(2, 10, 600);
  view.side = Map_Side::difference;
  Map_Content content = Content_Of(Mapped_Results(), &other, view);
  EXPECT_EQ(content.nothing, "");
  EXPECT_EQ(content.title, "own less other: COPPER at 10 ft, 600 s (10 min)");
  EXPECT_EQ(content.cells.values, (Depths{0, 0, 0, -8}));
  EXPECT_TRUE(content.scale.two_sides);
  EXPECT_EQ(content.scale.levels.back(), 100);  // below 128
  view.same_scale = false;
  content = Content_Of(Mapped_Results(), &other, view);
  EXPECT_EQ(content.scale.levels.back(), 5);  // below 8
}

TEST(MapView, A_Difference_Has_No_Digits_Of_The_Subtraction) {
  Results own = Mapped_Results(), other = Mapped_Results();
  own.beds[0].values = {0.9, 1.2, 0.3, 0.9};
  other.beds[0].values = {0.6, 1.1, 0, 0.9};
  other.path = "/p/other.DUI";
  Map_View view = Of(0, 0, 600);
  view.kind = Map_Kind::thickness;
  view.side = Map_Side::difference;
  const Map_Content content = Content_Of(own, &other, view);
  EXPECT_EQ(Map_Numbers(Draw_Map(content)),
            "X (ft),Z (ft),Difference in thickness (ft)\r\n"
            "0,0,0.3\r\n0,100,0.1\r\n100,0,0.3\r\n100,100,0\r\n");
}

// 0.04 is the larger difference, but none in tenths; the smaller one is in hundredths.
TEST(MapView, The_Scale_Of_Differences_Is_Of_Those_That_Are_Shown) {
  Results own = Mapped_Results(), other = Mapped_Results();
  own.beds[0].values = {1000.0, 0.03, 0, 0};
  other.beds[0].values = {999.96, 0.01, 0, 0};
  own.beds[2].values = other.beds[2].values = {1000.0, 0, 0, 0};
  other.path = "/p/other.DUI";
  Map_View view = Of(0, 0, 600);
  view.kind = Map_Kind::thickness;
  view.side = Map_Side::difference;
  for (const bool same_scale : {true, false}) {
    view.same_scale = same_scale;
    const Map_Content content = Content_Of(own, &other, view);
    EXPECT_EQ(content.cells.values, (Depths{0, 0.02, 0, 0}));
    ASSERT_FALSE(content.scale.levels.empty());
    EXPECT_EQ(content.scale.levels.back(), 0.01);
  }
}

TEST(MapView, Grids_That_Differ_Have_No_Difference) {
  Results other = Other();
  other.grid.spacing_z = 50;
  Map_View view = Of(2, 10, 600);
  view.side = Map_Side::difference;
  EXPECT_EQ(Content_Of(Mapped_Results(), &other, view).nothing,
            "No difference can be shown: the grids are not alike. This one has 2 x 2 points of 100 "
            "ft by 100 ft, the other one 2 x 2 points of 100 ft by 50 ft.");
  view.side = Map_Side::other;
  EXPECT_EQ(Content_Of(Mapped_Results(), &other, view).nothing, "");
}

TEST(MapView, What_The_Other_Has_Not_Is_Told) {
  const Results own = Mapped_Results();
  Results other = Other();
  for (const Map_Side side : {Map_Side::other, Map_Side::difference}) {
    Map_View view = Of(2, 10, 600);
    view.side = side;
    Results without_time = other;
    std::erase_if(without_time.maps, [](const Result_Map& map) { return map.time == 600; });
    EXPECT_EQ(Content_Of(own, &without_time, view).nothing,
              "The other outputs hold no maps of COPPER at 10 ft at 600 s (10 min). The time in "
              "both is 1200 s (20 min).");
    Results without_depth = other;
    std::erase_if(without_depth.maps, [](const Result_Map& map) { return map.depth == 10; });
    without_depth.maps.push_back(Small_Map(600, 1, 20, {0, 0, 0, 1}));
    EXPECT_EQ(Content_Of(own, &without_depth, view).nothing,
              "The other outputs hold no maps of COPPER at 10 ft.");
    Results without_species = other;
    without_species.species[0].name = "LEAD";
    EXPECT_EQ(Content_Of(own, &without_species, view).nothing,
              "The other outputs hold no maps of COPPER.");
    view = Of(0, 0, 600);
    view.kind = Map_Kind::thickness;
    view.side = side;
    other.beds.clear();
    EXPECT_EQ(Content_Of(own, &other, view).nothing,
              "The other outputs hold no maps of the deposit of all solids.");
    view.time = 1200;
    other.beds = own.beds;
    for (Result_Map& map : other.beds) map.time += 5000;
    EXPECT_TRUE(Content_Of(own, &other, view)
                    .nothing.starts_with("The other outputs hold no maps of the deposit of all "
                                         "solids at 1200 s (20 min). "));
    EXPECT_TRUE(Content_Of(own, &other, view).nothing.ends_with("No time is in both outputs."));
  }
}

// Maps each 100 s to 800 s beside one without that of 300 s.
TEST(MapView, Of_Many_Times_In_Both_The_Nearest_Is_Told) {
  Results own = Mapped_Results();
  const Result_Map first = own.beds.front();
  own.beds.clear();
  for (int time = 100; time <= 800; time += 100) {
    own.beds.push_back(first);
    own.beds.back().time = time;
  }
  Results other = own;
  other.beds.erase(other.beds.begin() + 2);
  Map_View view = Of(first.species, 0, 300);
  view.kind = Map_Kind::thickness;
  view.side = Map_Side::other;
  EXPECT_TRUE(Content_Of(own, &other, view)
                  .nothing.ends_with("7 times are in both, from 100 s (1.7 min) to 800 s (13.3 "
                                     "min); the nearest is 200 s (3.3 min)."))
      << Content_Of(own, &other, view).nothing;
  other.beds.resize(3);
  EXPECT_TRUE(Content_Of(own, &other, view)
                  .nothing.ends_with("The times in both are 100 s (1.7 min), 200 s (3.3 min) and "
                                     "400 s (6.7 min)."));
}

TEST(MapView, Numbers_Are_A_Line_For_Each_Cell_And_Then_The_Section) {
  Map_View view = Of(2, 10, 600);
  const std::string cells =
      "X (ft),Z (ft),Concentration (mg/l)\r\n"
      "0,0,0\r\n0,100,0\r\n100,0,0\r\n100,100,4\r\n";
  EXPECT_EQ(Map_Numbers(Draw_Map(Content_Of(Mapped_Results(), nullptr, view))), cells);
  view.section = Section_Line{{0, 100}, {100, 100}};
  const std::string both = Map_Numbers(Draw_Map(Content_Of(Mapped_Results(), nullptr, view)));
  EXPECT_TRUE(both.starts_with(
      cells + "\r\nDistance (ft),X (ft),Z (ft),Concentration (mg/l)\r\n0,0,100,0\r\n5,5,100,0.2"))
      << both;
  EXPECT_TRUE(both.ends_with("100,100,100,4\r\n"));
  EXPECT_EQ(Map_Numbers(Draw_Map({})), "");
}

}  // namespace
}  // namespace barvon::testing

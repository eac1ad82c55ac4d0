#include "solver/evaluation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "solver/comparison.h"
#include "solver/look_times.h"
#include "tests/solver/solver_case.h"

namespace companion {
namespace {

/// The plain site with a site of 11 to 31 and one of the evaluations.
Model_Input Case_Of(Evaluation evaluation) {
  Model_Input input = Solver_Case();
  Give_Tracer(input, 5, 1);
  input.evaluation = evaluation;
  input.site = {11, 31, 11, 31, 1000, 3000, 1000, 3000};
  Fluid& fluid = input.batches[0].fluid;
  fluid.criterion = 2;
  fluid.dilution = 3;
  fluid.zid_dilution = 4;
  fluid.zid_standard = 6;
  return input;
}

std::vector<std::string> Compared(const Model_Input& input, const Additions& additions = {}) {
  std::vector<std::string> texts, notes;
  for (const Comparison& comparison : Comparisons(input, additions, notes)) {
    texts.push_back(comparison.of);
  }
  texts.insert(texts.end(), notes.begin(), notes.end());
  return texts;
}

using Texts = std::vector<std::string>;

TEST(Evaluation, Compares_What_The_Input_Holds) {
  EXPECT_EQ(Compared(Case_Of(Evaluation::None)), Texts{});
  EXPECT_EQ(Compared(Case_Of(Evaluation::Tracer)), Texts{});
  EXPECT_EQ(Compared(Case_Of(Evaluation::Criterion)), Texts{"criterion outside the disposal site"});
  EXPECT_EQ(Compared(Case_Of(Evaluation::Toxicity)), Texts{"dilution outside the disposal site"});
  EXPECT_EQ(Compared(Case_Of(Evaluation::Sediment)),
            Texts{"The criterion is not in the input for this evaluation: no verdict."});
  Additions additions;
  additions.criterion = 0.05;
  EXPECT_EQ(Compared(Case_Of(Evaluation::Sediment), additions),
            Texts{"criterion outside the disposal site"});
}

TEST(Evaluation, Tells_A_Limit_Of_0) {
  Model_Input input = Case_Of(Evaluation::Criterion);
  input.batches[0].fluid.criterion = 0;
  EXPECT_EQ(Compared(input), Texts{"The criterion of the disposal site is 0: no verdict."});
  input = Case_Of(Evaluation::Zone_Toxicity);
  input.batches[0].fluid.dilution = input.batches[0].fluid.zid_dilution = 0;
  EXPECT_EQ(Compared(input), Texts{"The dilution of the mixing zone is 0: no verdict."});
  input.zid_asked = true;
  EXPECT_EQ(Compared(input), (Texts{"The dilution of the mixing zone is 0: no verdict.",
                                    "The limit of the ZID is 0: no verdict outside it."}));
}

TEST(Evaluation, Compares_Outside_The_Zid_Where_One_Is_Asked_For) {
  const std::string zone = "criterion outside the mixing zone";
  Model_Input input = Case_Of(Evaluation::Zone_Criterion);
  EXPECT_EQ(Compared(input), Texts{zone});
  input.zid_asked = true;
  input.zid = {16, 26, 16, 26, 1500, 2500, 1500, 2500};
  EXPECT_EQ(Compared(input),
            (Texts{zone, "The ZID standard is not in the input: no verdict outside the ZID."}));
  Additions additions;
  additions.zid_standard = 0.4;
  EXPECT_EQ(Compared(input, additions),
            (Texts{zone, "standard outside the zone of initial dilution (ZID)"}));
  input.evaluation = Evaluation::Zone_Toxicity;
  EXPECT_EQ(Compared(input), (Texts{"dilution outside the mixing zone",
                                    "dilution outside the zone of initial dilution (ZID)"}));
  input.evaluation = Evaluation::Zone_Sediment;
  EXPECT_EQ(Limit_Of_Zid(input, {}), 6);
  EXPECT_EQ(Limit_Of_Site(input, {}), 2);
}

TEST(Evaluation, Computes_The_Zone_That_Is_Not_Given) {
  Model_Input input = Case_Of(Evaluation::Zone_Criterion);
  input.site = {3, 5, 3, 5, 0, 0, 0, 0};
  EXPECT_TRUE(Mixing_Zone_Asked(input));
  EXPECT_EQ(Compared(input), Texts{});
  input.zid_asked = true;
  EXPECT_TRUE(Zid_Asked(input));
  input.evaluation = Evaluation::Criterion;
  EXPECT_FALSE(Mixing_Zone_Asked(input));
}

TEST(Evaluation, Allows_Four_Hours_Inside_The_Site) {
  Model_Input input = Case_Of(Evaluation::Criterion);
  input.duration = 14400;
  EXPECT_EQ(Compared(input),
            (Texts{"criterion outside the disposal site", "criterion anywhere, from 14400 s on"}));
}

TEST(Evaluation, Verdicts_Say_When_And_Where) {
  Comparison comparison;
  comparison.value = 2;
  comparison.from = 100;
  EXPECT_EQ(comparison.Verdict("mg/l"), "not exceeded at the times looked at");
  comparison.Look(50, {true, 9, 50, 0, 0, 0});  // too early to count
  comparison.Look(150, {true, 2, 150, 0, 0, 0});
  EXPECT_FALSE(comparison.ever);
  comparison.Look(200, {true, 3, 200, 100, 300, 0});
  comparison.Look(300, {true, 5, 300, 400, 1250, 0});
  comparison.Look(420, {true, 2.5, 420, 500, 500, 0});
  comparison.Look(500, {});
  EXPECT_EQ(comparison.Verdict("mg/l"),
            "exceeded from 200 s to 420 s, worst 5 mg/l at (400, 1250)");
}

TEST(Evaluation, A_Background_Above_The_Limit_Exceeds_It_By_Itself) {
  Model_Input input = Case_Of(Evaluation::Criterion);
  input.batches[0].fluid.background = 3;
  std::vector<std::string> notes;
  const std::vector<Comparison> comparisons = Comparisons(input, {}, notes);
  ASSERT_EQ(comparisons.size(), 1U);
  EXPECT_EQ(comparisons[0].Verdict("mg/l"),
            "exceeded everywhere and always: the background alone is 3 mg/l");
}

TEST(Evaluation, A_Site_Holds_Its_Four_Indices) {
  const Model_Input input = Case_Of(Evaluation::Criterion);
  const Areas areas(input);
  EXPECT_TRUE(areas.Counts(Area::Inside, 10, 30));  // from 0: the points 11 and 31
  EXPECT_FALSE(areas.Counts(Area::Outside, 10, 30));
  EXPECT_TRUE(areas.Counts(Area::Outside, 9, 30));
  EXPECT_TRUE(areas.Counts(Area::Outside_Zid, 20, 20));  // there is none
  EXPECT_EQ(areas.Row(1049), 10);
  EXPECT_EQ(areas.Row(1051), 11);
  EXPECT_EQ(areas.Column(-51), -1);
}

TEST(Evaluation, The_Smallest_Zone_Holds_Every_Cell_That_Passes) {
  const Model_Input input = Case_Of(Evaluation::Zone_Criterion);
  std::vector<std::vector<double>> most(2, std::vector<double>(41 * 41, 0.0));
  Zone zone = Smallest_Zone(input, most, 1);
  EXPECT_FALSE(zone.any);
  most[0][18 * 41 + 22] = 1.5;
  most[1][25 * 41 + 20] = 1.1;
  most[1][3 * 41 + 3] = 1;  // is no more than the value
  zone = Smallest_Zone(input, most, 1);
  EXPECT_TRUE(zone.any);
  EXPECT_FALSE(zone.at_edge);
  EXPECT_EQ(zone.top, 19);
  EXPECT_EQ(zone.bottom, 26);
  EXPECT_EQ(zone.left, 21);  // the disposal point's own
  EXPECT_EQ(zone.right, 23);
  most[0][18 * 41 + 40] = 7;
  EXPECT_TRUE(Smallest_Zone(input, most, 1).at_edge);
}

TEST(Evaluation, A_Window_Holds_What_Is_Not_The_Base) {
  std::vector<double> values(5 * 4, 0.0);
  Cell_Map map = Windowed(values, 5, 4, 1, 3);
  EXPECT_TRUE(map.Empty());
  values[2 * 4 + 1] = 10;
  values[3 * 4 + 3] = 1;
  values[4 * 4 + 0] = 1e-6;  // a ten millionth of the largest
  map = Windowed(values, 5, 4, 2, 3);
  EXPECT_EQ(map.top, 2);
  EXPECT_EQ(map.bottom, 3);
  EXPECT_EQ(map.left, 1);
  EXPECT_EQ(map.right, 3);
  EXPECT_EQ(map.values, (std::vector<double>{23, 3, 3, 3, 3, 5}));
}

TEST(LookTimes, Maps_Have_Quarters_Where_No_Times_Are_Given) {
  Model_Input input = Solver_Case();
  EXPECT_EQ(Map_Times(input), (std::vector<double>{900, 1800, 2700, 3600}));
  input.print_times = {1200, 600, 5000, 600, 3600};
  EXPECT_EQ(Map_Times(input), (std::vector<double>{600, 1200, 3600}));
}

TEST(LookTimes, A_Series_Has_Steps_Maps_And_The_End) {
  Model_Input input = Solver_Case();
  input.step = 1500;
  EXPECT_EQ(Series_Times(input), (std::vector<double>{900, 1500, 1800, 2700, 3000, 3600}));
  input.step = 1e6;
  EXPECT_EQ(Series_Times(input), (std::vector<double>{900, 1800, 2700, 3600}));
}

TEST(LookTimes, Are_Close_Where_Maxima_Are_Short) {
  Model_Input input = Solver_Case();
  input.step = 3600;
  input.duration = 20000;
  const std::vector<double> times = Look_Times(input, 100, {33});
  for (const double time : {10.0, 33.01, 390.0, 430.0, 760.0, 14400.0, 20000.0}) {
    EXPECT_TRUE(Holds_Time(times, time)) << time;
  }
  EXPECT_TRUE(std::is_sorted(times.begin(), times.end()));
  EXPECT_LT(times.size(), 150U);
  EXPECT_EQ(times.back(), 20000);
}

TEST(LookTimes, Stay_Few_When_The_Load_Leaves_Slowly) {
  Model_Input input = Solver_Case();
  input.duration = 600000;
  input.step = 600000;
  EXPECT_LT(Look_Times(input, 590000, {}).size(), 1000U);
}

}  // namespace
}  // namespace companion

#include "solver/listing.h"

#include <gtest/gtest.h>

#include <string>

#include "solver/comparison.h"
#include "solver/simulation.h"
#include "tests/solver/solver_case.h"

namespace companion {
namespace {

/// The plain site with a dyed load that drifts out of its disposal site.
Model_Input Compared_Case(Evaluation evaluation) {
  Model_Input input = Solver_Case();
  Give_Tracer(input, 50);
  input.evaluation = evaluation;
  input.mean_x = 0.5;
  input.mean_depth = 60;
  input.output_depths = {10, 55};
  return input;
}

/// The listing of a run without its line breaks and their indents.
std::string Told(const Model_Input& input, const Outcome& outcome,
                 const Additions& additions = {}) {
  std::string text;
  for (const char c : Listing(input, additions, outcome)) {
    const bool blank = c == ' ' || c == '\r' || c == '\n';
    if (!blank || (!text.empty() && text.back() != ' ')) text += blank ? ' ' : c;
  }
  return text;
}

std::string Told(const Model_Input& input, const Additions& additions = {}) {
  return Told(input, Simulate("a.due", input, additions), additions);
}

#define EXPECT_TELLS(text, part) EXPECT_NE((text).find(part), std::string::npos) << (text)

TEST(Listing, A_Load_Cleaner_Than_The_Water_Is_Not_Followed_And_Told) {
  Model_Input input = Compared_Case(Evaluation::Criterion);
  input.batches[0].fluid.concentration = 1;
  input.batches[0].fluid.background = 3;
  input.batches[0].fluid.criterion = 5;
  input.site = {11, 31, 11, 31, 1000, 3000, 1000, 3000};
  const Outcome outcome = Simulate("a.due", input, {});
  const std::string text = Told(input, outcome);
  EXPECT_TELLS(text, "no more of TRACER than the water around, or less");
  EXPECT_TELLS(text, "not exceeded at the times looked at");
  for (const Mass_Row& row : outcome.masses) {
    if (row.species == 0) continue;
    EXPECT_EQ(row.released, 0);
    EXPECT_EQ(row.suspended, 0);
    EXPECT_EQ(row.on_grid + row.off_grid, 0);
  }
  // What is shown is the water's own.
  for (const auto& spots : outcome.cell_spots[1])
    for (const Spot& spot : spots) EXPECT_EQ(spot.value, 3);
  for (const Spot& spot : outcome.point_spots[1]) EXPECT_EQ(spot.value, 3);
  EXPECT_LT(outcome.worst_balance, 1e-12);
}

TEST(Listing, No_Zone_Is_Computed_Where_The_Background_Alone_Is_Above_The_Limit) {
  Model_Input input = Compared_Case(Evaluation::Zone_Criterion);
  input.batches[0].fluid.background = 3;
  input.batches[0].fluid.criterion = 2.2;
  const std::string text = Told(input);
  EXPECT_TELLS(text, "Mixing zone none: the background alone is 3 mg/l, above 2.2 mg/l");
  EXPECT_EQ(text.find("outside it no cell ever passes"), std::string::npos);
}

TEST(Listing, Tells_A_Limit_That_No_Cell_Ever_Passes) {
  Model_Input input = Compared_Case(Evaluation::Zone_Criterion);
  input.batches[0].fluid.criterion = 5000;  // of a load that has 50
  EXPECT_TELLS(Told(input), "no cell ever passes 5000 mg/l at the output depths");
}

TEST(Listing, Tells_Why_There_Is_No_Verdict) {
  EXPECT_TELLS(Told(Compared_Case(Evaluation::Tracer)), "None: nothing is compared in this run.");
  EXPECT_TELLS(Told(Compared_Case(Evaluation::Sediment)), "None: the notes say why.");
  Model_Input input = Compared_Case(Evaluation::Zone_Criterion);
  input.batches[0].fluid.criterion = 0.3;
  EXPECT_TELLS(Told(input), "None: what is asked for is a zone, below.");
}

TEST(Listing, Tells_What_It_Leaves_Out_Of_The_Times_And_Of_The_Depression) {
  Model_Input input = Compared_Case(Evaluation::Tracer);
  input.print_times = {0, 600, 7200};
  input.hole_x = input.hole_z = 600;
  input.hole_depth = 30;
  const std::string text = Told(input);
  EXPECT_TELLS(text, "The print time 0 s is not behind the start and left out.");
  EXPECT_TELLS(text, "The print time 7200 s is behind the end and left out.");
  EXPECT_TELLS(text, "The layers of what drifts out of the depression become as thin");
}

TEST(Listing, Tells_A_Disposal_Point_Off_The_Grid_And_Water_That_Is_Denser_Above) {
  Model_Input input = Compared_Case(Evaluation::Tracer);
  input.vessel_x = -500;
  input.profile_depths = {0, 20, 60};
  input.profile_densities = {1.02, 1.01, 1.03};
  const std::string text = Told(input);
  EXPECT_TELLS(text, "The disposal point lies off the grid.");
  EXPECT_TELLS(text,
               "The water is denser above than below between 0 and 20 ft: it counts as not layered "
               "there.");
}

TEST(Listing, Tells_Where_The_Tides_Table_Does_Not_Reach) {
  Model_Input input = Compared_Case(Evaluation::Tracer);
  input.velocity_type = 5;
  Additions additions;
  const std::string begins =
      "The tide's table begins 1800 s after the start: until then the water "
      "stands still.";
  const std::string ends =
      "The tide's table ends at 2000 s of the run: from there on its last "
      "value holds.";
  additions.tide = Tide{{1800, 3600}, {0, 1}, {0, 0}};
  std::string text = Told(input, additions);
  EXPECT_TELLS(text, begins);
  EXPECT_EQ(text.find("The tide's table ends"), std::string::npos);
  additions.tide = Tide{{-1600, 2000}, {0, 1}, {0, 0}};
  text = Told(input, additions);
  EXPECT_TELLS(text, ends);
  EXPECT_EQ(text.find("The tide's table begins"), std::string::npos);
}

TEST(Listing, Tells_Where_The_Disposal_Points_Nearest_Grid_Point_Is_Land) {
  Model_Input input = Compared_Case(Evaluation::Tracer);
  input.constant_depth = false;
  input.depths.assign(41, std::vector<double>(41, 60));
  EXPECT_TELLS(Told(input), "Depth at the disposal point 60 ft");
  input.depths[20][20] = 0;
  EXPECT_TELLS(Told(input), "Depth at the disposal point land at the nearest grid point");
}

TEST(Listing, Tells_Of_Maps_That_No_Print_Time_Makes) {
  Model_Input input = Compared_Case(Evaluation::Sediment);
  input.print_times = {7200};
  const std::string text = Told(input);
  EXPECT_TELLS(text,
               "No print time lies within the run: the maps are those of the largest values.");
  EXPECT_TELLS(text, "All of the contaminant counts as dissolved: its values are upper bounds.");
}

TEST(Listing, No_Mean_Of_A_Cell_Is_Above_The_Largest_At_Any_Point_Of_Its_Area) {
  // A site that the cloud's middle doesn't leave: cells outside it have something all the same.
  Model_Input input = Compared_Case(Evaluation::Criterion);
  input.mean_x = 0;
  input.batches[0].fluid.criterion = 0.3;
  input.site = {20, 22, 20, 22, 1900, 2100, 1900, 2100};
  const Outcome outcome = Simulate("a.due", input, {});
  for (std::size_t species = 0; species < 2; ++species)
    for (const Area area : {Area::Inside, Area::Outside, Area::Anywhere})
      for (const auto& spots : outcome.cell_spots[species]) {
        const std::size_t at = static_cast<std::size_t>(area);
        EXPECT_GT(spots[at].value, 0);
        EXPECT_GE(outcome.point_spots[species][at].value, spots[at].value);
      }
}

}  // namespace
}  // namespace companion

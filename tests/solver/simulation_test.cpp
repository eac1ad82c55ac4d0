#include "solver/simulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "solver/due_fields.h"
#include "solver/listing.h"
#include "solver/release.h"
#include "solver/tables.h"
#include "tests/solver/sample_inputs.h"
#include "tests/solver/solver_case.h"
#include "tests/solver/verification.h"

namespace companion {
namespace {

Outcome Simulated(const Model_Input& input, const Additions& additions = {}) {
  return Simulate("Tmpfile.Due", input, additions);
}

const Spot& Cell_Spot(const Outcome& outcome, std::size_t species, std::size_t depth, Area area) {
  return outcome.cell_spots[species][depth][static_cast<std::size_t>(area)];
}

/// The plain site with a dye of 50 mg/l in a current of half a foot per second.
Model_Input Dyed_Case() {
  Model_Input input = Solver_Case();
  Give_Tracer(input, 50);
  input.mean_x = 0.5;
  input.mean_depth = 60;
  input.output_depths = {10, 55};
  return input;
}

TEST(Simulation, Samples_Balance_At_Every_Output_Time) {
  for (const std::string& sample : Samples()) {
    const Outcome outcome = Simulated(Sample_Input(sample));
    SCOPED_TRACE(sample);
    Verified("samples, at every output time, clouds in motion and in fall included", "exact",
             outcome.worst_balance, 1e-12);
    for (const Mass_Row& row : outcome.masses) {
      EXPECT_GE(row.suspended, 0);
      EXPECT_GE(row.on_grid, 0);
      EXPECT_GE(row.off_grid, 0);
    }
    EXPECT_TRUE(
        std::is_sorted(outcome.masses.begin(), outcome.masses.end(),
                       [](const Mass_Row& a, const Mass_Row& b) { return a.time < b.time; }));
  }
}

TEST(Simulation, No_Cloud_Takes_Grains_Back) {
  Model_Input input = Sample_Input("Section_404_Zid");
  input.slope_x = 0.05;
  input.batches[1].solids[1].fall_velocity = 10;
  const Outcome outcome = Simulated(input);
  for (const Source& source : outcome.near_field.sources) EXPECT_GE(source.amount, 0);
  for (const Deposit& deposit : outcome.near_field.deposits) EXPECT_GE(deposit.amount, 0);
  EXPECT_LE(outcome.worst_balance, 1e-12);
}

TEST(Simulation, What_Drifts_Arrives_With_The_Current) {
  const Outcome outcome = Simulated(Dyed_Case());
  const auto at = [&](double time) {
    return *std::find_if(outcome.drift.begin(), outcome.drift.end(), [&](const Drift_Row& row) {
      return row.time == time && row.species == 1;
    });
  };
  // Behind the collapse everything goes with the current: 900 s of it are 450 ft.
  EXPECT_NEAR(at(3600).x - at(2700).x, 450, 0.1);
  EXPECT_NEAR(at(2700).x - at(1800).x, 450, 0.1);
  EXPECT_NEAR(at(3600).z, 2000, 1e-6);
}

/// The largest difference between the listed maxima of two runs, in parts of the species' largest.
double Difference(const Model_Input& input, const Outcome& a, const Outcome& b) {
  double worst = 0;
  for (std::size_t s = 0; s < input.Species(); ++s) {
    double largest = 0;
    for (std::size_t d = 0; d < input.output_depths.size(); ++d) {
      largest = std::max(largest, Cell_Spot(a, s, d, Area::Anywhere).value);
    }
    for (std::size_t d = 0; d < input.output_depths.size(); ++d) {
      const double one = Cell_Spot(a, s, d, Area::Anywhere).value;
      const double other = Cell_Spot(b, s, d, Area::Anywhere).value;
      if (one < 0.01 * largest) continue;
      worst = std::max(worst, std::abs(one - other) / one);
    }
  }
  return worst;
}

TEST(Simulation, Maxima_Do_Not_Hang_On_The_Step) {
  Model_Input bed = Dyed_Case();
  bed.output_depths = {20, 40, 55};
  Model_Input level = bed;
  level.depth = 300;
  level.profile_depths = {0, 40, 60, 300};
  level.profile_densities = {1.015, 1.016, 1.036, 1.037};
  level.batches[0].volume = 300;
  level.batches[0].solids[0].fraction = 0.04;
  level.output_depths = {30, 50, 70};
  double worst_bed = 0, worst_level = 0;
  const auto with_step = [](Model_Input input, double step) {
    input.step = step;
    return Simulated(input);
  };
  const Outcome bed_600 = with_step(bed, 600), level_600 = with_step(level, 600);
  ASSERT_EQ(level_600.near_field.phases[1].kind, Phase_Kind::Level_Collapse);
  for (const double step : {60.0, 77.0}) {
    worst_bed = std::max(worst_bed, Difference(bed, bed_600, with_step(bed, step)));
    worst_level = std::max(worst_level, Difference(level, level_600, with_step(level, step)));
  }
  const double fine = Difference(level, level_600, with_step(level, 7));
  Verified("maxima, step 600 against 7 s, at a level", "the same", fine, 0.1);
  Verified("maxima, step 600 against 60, 77 s, on the bed", "the same", worst_bed, 0.03);
  Verified("maxima, step 600 against 60, 77 s, at a level", "the same", worst_level, 0.03);
}

TEST(Simulation, Counts_The_Contaminant_Of_The_Sediment_As_Dissolved) {
  Model_Input input = Dyed_Case();
  input.evaluation = Evaluation::Sediment;
  input.batches[0].fluid.concentration = 7;
  input.batches[0].fluid.background = 2;
  const Outcome outcome = Simulated(input);
  // 1000 cu yd are 27,000 ft3: 7 mg/l of all of it, less 2 mg/l of its nine tenths of water.
  const double expected = 7 * 27000 - 2 * 24300;
  Verified("KEY3 4 tracer", "by hand", (outcome.near_field.released[1] - expected) / expected,
           1e-12);
  EXPECT_TRUE(outcome.comparisons.empty());
  Additions additions;
  additions.present = true;
  additions.criterion = 2.5;
  const Outcome compared = Simulated(input, additions);
  ASSERT_EQ(compared.comparisons.size(), 1U);
  EXPECT_TRUE(compared.comparisons[0].ever);
  EXPECT_NE(Listing(input, additions, compared).find("exceeded from "), std::string::npos);
}

TEST(Simulation, Follows_The_Loads_Own_Water_Where_Toxicity_Is_Asked) {
  Model_Input input = Dyed_Case();
  input.evaluation = Evaluation::Toxicity;
  input.batches[0].fluid.dilution = 1;
  const Outcome outcome = Simulated(input);
  EXPECT_NEAR(outcome.near_field.released[1], 100 * 24300.0, 1e-6);
  EXPECT_LE(outcome.point_spots[1][static_cast<std::size_t>(Area::Anywhere)].value, 100);
  EXPECT_NE(Series_Table(input, {}, outcome).find("SPEC     2  TRACER    %   "), std::string::npos);
}

TEST(Simulation, Follows_No_Fluid_Without_An_Evaluation) {
  Model_Input input = Dyed_Case();
  input.evaluation = Evaluation::None;
  const Outcome outcome = Simulated(input);
  EXPECT_EQ(outcome.near_field.released.size(), 1U);
  EXPECT_EQ(Series_Table(input, {}, outcome).find("SPEC     2"), std::string::npos);
}

TEST(Simulation, Adds_The_Background_To_What_Is_Listed) {
  Model_Input input = Dyed_Case();
  input.batches[0].fluid.background = 0.5;
  const Outcome outcome = Simulated(input);
  for (const Maxima_Row& row : outcome.maxima) {
    if (row.species == 1) {
      EXPECT_GE(row.outside, 0.5);
    }
  }
  EXPECT_NEAR(outcome.near_field.released[1], 49.5 * 24300, 1e-6);
}

TEST(Simulation, Has_No_Excess_Of_What_The_Water_Holds_More_Of) {
  Model_Input input = Dyed_Case();
  input.batches[0].fluid.background = 60;
  const Outcome outcome = Simulated(input);
  EXPECT_EQ(outcome.near_field.released[1], 0);
  EXPECT_EQ(Cell_Spot(outcome, 1, 1, Area::Anywhere).value, 60);
  input.batches[0].solids[0].fraction = 0;
  EXPECT_THROW(Simulated(input), No_Physics);
}

/// Nothing outside the computed zone passes the value, and each of its edges has a cell that does.
void Expect_Smallest(const Model_Input& input, const Outcome& outcome, const Zone& zone,
                     double value) {
  ASSERT_TRUE(zone.any);
  bool top = false, bottom = false, left = false, right = false;
  for (const Cell_Map& map : outcome.most) {
    if (map.number != 2) continue;
    std::size_t at = 0;
    for (int i = map.top; i <= map.bottom; ++i) {
      for (int k = map.left; k <= map.right; ++k) {
        if (map.values[at++] <= value) continue;
        EXPECT_TRUE(i + 1 >= zone.top && i + 1 <= zone.bottom && k + 1 >= zone.left &&
                    k + 1 <= zone.right);
        top = top || i + 1 == zone.top;
        bottom = bottom || i + 1 == zone.bottom;
        left = left || k + 1 == zone.left;
        right = right || k + 1 == zone.right;
      }
    }
  }
  EXPECT_TRUE(top || zone.top == 21);
  EXPECT_TRUE(bottom || zone.bottom == 21);
  EXPECT_TRUE(left || zone.left == 21);
  EXPECT_TRUE(right || zone.right == 21);
  EXPECT_EQ(input.vessel_x, 2000);  // the point 21
}

TEST(Simulation, Computes_Zones_That_Are_Asked_For) {
  Model_Input input = Dyed_Case();
  input.evaluation = Evaluation::Zone_Criterion;
  input.batches[0].fluid.criterion = 0.3;
  input.zid_asked = true;
  Additions additions;
  additions.zid_standard = 0.6;
  const Outcome outcome = Simulated(input, additions);
  ASSERT_TRUE(outcome.zone_computed && outcome.zid_computed);
  Expect_Smallest(input, outcome, outcome.zone, 0.3);
  Expect_Smallest(input, outcome, outcome.zid, 0.6);
  EXPECT_GE(outcome.zone.bottom, outcome.zid.bottom);
  const std::string listing = Listing(input, additions, outcome);
  EXPECT_NE(listing.find("COMPUTED MIXING ZONE"), std::string::npos);
  EXPECT_NE(listing.find("COMPUTED ZONE OF INITIAL DILUTION"), std::string::npos);
}

TEST(Simulation, Every_Evaluation_Ends_With_A_Listing) {
  for (int key3 = 0; key3 <= 7; ++key3) {
    SCOPED_TRACE(key3);
    Model_Input input = Dyed_Case();
    input.evaluation = static_cast<Evaluation>(key3);
    input.site = {11, 31, 11, 31, 1000, 3000, 1000, 3000};
    input.batches[0].fluid.criterion = input.batches[0].fluid.dilution = 0.1;
    const Outcome outcome = Simulated(input);
    EXPECT_LE(outcome.worst_balance, 1e-12);
    EXPECT_EQ(outcome.comparisons.size(), key3 < 2 || key3 == 4 ? 0U : 1U);
    const std::string listing = Listing(input, {}, outcome);
    for (const char* section : {"INPUT", "ASSUMED", "PHASES", "BALANCE AT THE END", "VERDICTS",
                                "DEPOSIT AT THE END", "NOTES", "WHAT THIS MODEL LEAVES OUT"}) {
      EXPECT_NE(listing.find(std::string("\r\n") + section + "\r\n-"), std::string::npos)
          << section;
    }
  }
}

TEST(Simulation, Descent_And_Collapse_Alone_Carry_Nothing_On) {
  Model_Input input = Dyed_Case();
  input.key2 = 1;
  input.evaluation = Evaluation::Criterion;
  input.batches[0].fluid.criterion = 0.001;
  const Outcome outcome = Simulated(input);
  EXPECT_TRUE(outcome.comparisons.empty());
  EXPECT_EQ(Listing(input, {}, outcome).find("not exceeded"), std::string::npos);
  Model_Input zone = input;
  zone.evaluation = Evaluation::Zone_Criterion;
  EXPECT_FALSE(Simulated(zone).zone_computed);
  EXPECT_TRUE(outcome.most.empty());
  EXPECT_TRUE(outcome.maps.empty());
  EXPECT_TRUE(outcome.maxima.empty());
  EXPECT_FALSE(outcome.beds.empty());
  EXPECT_LE(outcome.worst_balance, 1e-12);
  Model_Input whole = input;
  whole.key2 = 0;
  EXPECT_LT(outcome.masses.back().on_grid + outcome.masses[outcome.masses.size() - 2].on_grid,
            Simulated(whole).masses[Simulated(whole).masses.size() - 2].on_grid);
  EXPECT_NE(Listing(input, {}, outcome).find("washed off"), std::string::npos);
}

TEST(Simulation, Stays_Within_The_Balance_When_The_Run_Is_Shorter_Than_The_Release) {
  Model_Input input = Dyed_Case();
  input.emptying = 3600;
  input.duration = 1800;
  const Outcome outcome = Simulated(input);
  Verified("emptying in 3600 s; run shorter than it: balance at all times", "exact",
           outcome.worst_balance, 1e-12);
  const double released = outcome.near_field.released[0], aboard = outcome.near_field.aboard[0];
  Verified("emptying in 3600 s, run half as long: half aboard", "0.5",
           aboard / (released + aboard) - 0.5, 1e-12);
}

TEST(Simulation, The_Tide_Turns_With_Its_Table) {
  Model_Input input = Dyed_Case();
  input.velocity_type = 5;
  Additions additions;
  Tide tide;
  for (int i = 0; i < 26; ++i) {
    tide.times.push_back(1800.0 * i);
    tide.x.push_back(i == 0 ? 0.5 : -0.5);  // turns in the first half hour
    tide.z.push_back(0);
  }
  additions.tide = tide;
  const Outcome turned = Simulated(input, additions), mean = Simulated(input);
  const auto end = [](const Outcome& outcome) { return outcome.drift.back().x; };
  EXPECT_GT(end(mean), 2000 + 1500);
  EXPECT_LT(end(turned), 2000);
}

}  // namespace
}  // namespace companion

#include "solver/near_field.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "solver/cloud.h"
#include "solver/det_math.h"
#include "tests/solver/near_field_case.h"
#include "tests/solver/solver_case.h"
#include "tests/solver/verification.h"

namespace companion {
namespace {

Model_Input Case_With_Tracer() {
  Model_Input input = Solver_Case();
  input.batches.front().solids = {Test_Solid("SAND", 0.05, 0.06), Test_Solid("CLAY", 0.1, 0.001)};
  input.batches.front().solids[1].cohesive = true;
  input.batches.front().solids[1].stripped = true;
  Give_Tracer(input, 50);
  return input;
}

void Layer(Model_Input& input, double surface, double bed) {
  input.profile_depths = {0, input.depth};
  input.profile_densities = {surface, bed};
}

struct Limit {
  const char* name;
  std::function<void(Model_Input&)> vary;
};

TEST(NearField, The_Limits_Hold_Their_Balance_At_Every_Stop) {
  const Limit limits[] = {
      {"bed", [](Model_Input&) {}},
      {"level",
       [](Model_Input& input) {
         input.depth = 400;
         Layer(input, 1.0, 1.03);
       }},
      {"moisture 0", [](Model_Input& input) { input.moisture_adjusts = true; }},
      {"no excess",
       [](Model_Input& input) {
         for (Solid& solid : input.batches.front().solids) solid.sg = 1.02;
       }},
      {"all coefficients 0",
       [](Model_Input& input) { input.coefficients = {0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}; }},
      {"emptying at once", [](Model_Input& input) { input.emptying = 0; }},
      {"a current", [](Model_Input& input) { input.mean_x = 1.5; }},
      {"9 ft/s off the grid",
       [](Model_Input& input) {
         input.mean_x = 9;
         input.vessel_x = 3900;
       }},
      {"water shallower than the cloud",
       [](Model_Input& input) {
         input.depth = 6;
         Layer(input, 1.02, 1.02);
       }},
      {"clumps of 3 ft/s in 600 ft",
       [](Model_Input& input) {
         input.depth = 600;
         input.batches.front().solids[0].fall_velocity = 3;
         Layer(input, 1.02, 1.025);
       }},
      {"moving vessel",
       [](Model_Input& input) {
         Cut_Into_Batches(input, 3);
         input.emptying = 300;
         for (Batch& batch : input.batches) batch.velocity_z = 4;
       }},
  };
  for (const Limit& limit : limits) {
    SCOPED_TRACE(limit.name);
    Model_Input input = Case_With_Tracer();
    limit.vary(input);
    const Near_Field field = Followed(input);
    Expect_Sound(input, field);
    Verified("Limits of the clouds' phases, at every stop: clouds + sources + deposits",
             "what was released", Worst_Balance(input, field), 1e-12);
    for (const Phase& phase : field.phases) EXPECT_NE(phase.end, "steps");
  }
}

TEST(NearField, Slow_Emptying_Keeps_The_Balance_And_What_Is_Aboard) {
  Model_Input input = Case_With_Tracer();
  input.emptying = 3600;
  input.duration = 7200;
  const Near_Field whole = Followed(input);
  Verified("Emptying in 3600 s: balance at all times", "what was released",
           Worst_Balance(input, whole), 1e-12);
  EXPECT_EQ(whole.aboard, std::vector<double>(3, 0));
  input.duration = 1800;
  const Near_Field half = Followed(input);
  Expect_Sound(input, half);
  Verified("Run shorter than the emptying: balance at all times", "what was released",
           Worst_Balance(input, half), 1e-12);
  for (std::size_t i = 0; i < 3; ++i)
    Verified("Run of half the emptying: what stays aboard", "half",
             half.aboard[i] / (half.aboard[i] + half.released[i]) - 0.5, 1e-12);
  EXPECT_TRUE(Has_Note(half, "500 cu yd of 1000 stay aboard"));
}

TEST(NearField, A_Fresh_Load_In_The_Sea_Is_Light_And_Its_Tracer_Reaches_The_Surface) {
  Model_Input input = Case_With_Tracer();
  Batch& batch = input.batches.front();
  batch.fluid.density = input.load_density = 1;
  for (Solid& solid : batch.solids) solid.fraction = 1e-4;
  const Near_Field field = Followed(input);
  EXPECT_EQ(First(field, Phase_Kind::Descent).end, "light");
  EXPECT_TRUE(Has_Note(field, "lighter than the water"));
  bool surfaced = false;
  for (const Source& source : field.sources) {
    if (source.species != 2) continue;
    EXPECT_EQ(source.top, 0);
    surfaced = true;
  }
  EXPECT_TRUE(surfaced);
  Verified("Fresh load in the sea: balance", "what was released", Worst_Balance(input, field),
           1e-12);
}

TEST(NearField, A_Cloud_That_Turns_Light_On_The_Bed_Sends_Its_Tracer_To_Its_Own_Depth) {
  Model_Input input = Case_With_Tracer();
  Layer(input, 1.02, 1.03);
  input.batches.front().solids = {Test_Solid("SAND", 0.3, 0.3)};
  const Near_Field field = Followed(input);
  const Phase& bed = First(field, Phase_Kind::Bed_Collapse);
  ASSERT_EQ(bed.end, "light");
  const Cloud_State& end = bed.rows.back();
  double solids = 0;
  for (const double solid : end.solids) solids += solid;
  const double fluid = (end.density * end.volume - 2.65 * solids) / (end.volume - solids);
  const double depth = 60 * (fluid - 1.02) / 0.01;
  bool risen = false;
  for (const Source& source : field.sources) {
    if (source.time != end.t || source.species != 1) continue;
    Verified("Lighter bed cloud: tracer up to", "the depth of its own density",
             source.top / depth - 1, 1e-6);
    EXPECT_LT(depth, end.y - end.height / 2);
    EXPECT_NEAR(source.foot, 60, 1e-9);
    risen = true;
  }
  EXPECT_TRUE(risen);
}

TEST(NearField, The_Level_Of_A_Density_Is_Sought_Upwards_From_The_Foot) {
  Model_Input input = Solver_Case();
  input.profile_depths = {5, 10, 10, 30};
  input.profile_densities = {1.0, 1.01, 1.02, 1.03};
  EXPECT_NEAR(Level_Of(input, 1.025, 50), 20, 1e-9);
  EXPECT_NEAR(Level_Of(input, 1.025, 25), 20, 1e-9);
  EXPECT_EQ(Level_Of(input, 1.028, 20), 20);
  EXPECT_NEAR(Level_Of(input, 1.015, 50), 10, 1e-9);
  EXPECT_NEAR(Level_Of(input, 1.004, 50), 7, 1e-9);
  EXPECT_EQ(Level_Of(input, 0.99, 50), 0);
  EXPECT_EQ(Level_Of(input, 0.99, 2), 0);
  EXPECT_EQ(Level_Of(input, 1.5, 50), 50);
}

TEST(NearField, The_Layering_Of_A_Range_Is_Its_Mean_And_Its_Best_Line) {
  Model_Input input = Solver_Case();
  input.profile_depths = {10, 50};
  input.profile_densities = {1.0, 1.04};
  Layering layering = Layering_Of(input, 20, 40);
  EXPECT_NEAR(layering.density, 1.02, 1e-12);
  EXPECT_NEAR(layering.squared_frequency, kGravity * 0.001 / 1.02, 1e-12);
  layering = Layering_Of(input, 55, 60);
  EXPECT_NEAR(layering.density, 1.04, 1e-12);
  EXPECT_EQ(layering.squared_frequency, 0);
  // A jump in the middle of 8 ft: the best line has a slope of 3/2 of the jump over the height.
  input.profile_depths = {0, 30, 30, 60};
  input.profile_densities = {1.0, 1.0, 1.01, 1.01};
  layering = Layering_Of(input, 26, 34);
  EXPECT_NEAR(layering.density, 1.005, 1e-12);
  EXPECT_NEAR(layering.squared_frequency, kGravity * 1.5 * 0.01 / 8 / 1.005, 1e-12);
  // An edge that comes over the jump finds nothing of it yet.
  EXPECT_NEAR(Layering_Of(input, 22, 30 + 1e-9).squared_frequency, 0, 1e-9);
  input.profile_densities = {1.01, 1.01, 1.0, 1.0};
  EXPECT_EQ(Layering_Of(input, 26, 34).squared_frequency, 0);
}

TEST(NearField, A_Cloud_Rests_On_A_Jump_Of_The_Profile) {
  Model_Input input = Case_With_Tracer();
  input.depth = 200;
  input.profile_depths = {0, 80, 80, 200};
  input.profile_densities = {1.0, 1.0, 1.03, 1.03};
  for (Solid& solid : input.batches.front().solids) solid.fraction = 0.02;
  const Near_Field field = Followed(input);
  const Phase& level = First(field, Phase_Kind::Level_Collapse);
  EXPECT_EQ(level.end, "spread");
  EXPECT_NEAR(level.rows.back().y, 80, level.rows.back().height);
  EXPECT_LE(Worst_Balance(input, field), 1e-12);
}

TEST(NearField, The_Depression_Holds_A_Cloud_That_Is_Too_Slow_To_Leave_It) {
  Model_Input input = Case_With_Tracer();
  input.hole_x = input.hole_z = 400;
  input.hole_depth = 20;
  const Near_Field field = Followed(input);
  const Phase& bed = First(field, Phase_Kind::Bed_Collapse);
  EXPECT_EQ(bed.end, "held");
  EXPECT_NEAR(bed.rows.back().radius, std::sqrt(400.0 * 400 / kPi), 1e-6);
  int held = 0;
  for (const Source& source : field.sources) {
    if (!source.held) continue;
    ++held;
    EXPECT_NEAR(source.x, 2000, 1e-9);
    EXPECT_NEAR(source.foot, 80, 1e-9);
  }
  EXPECT_EQ(held, 3);
  EXPECT_LE(Worst_Balance(input, field), 1e-12);
  EXPECT_TRUE(Has_Note(field, "depression"));
  input.hole_depth = 0.5;
  EXPECT_NE(First(Followed(input), Phase_Kind::Bed_Collapse).end, "held");
}

TEST(NearField, Clouds_That_Land_Together_Are_One_And_Apart_Are_Many) {
  Model_Input input = Case_With_Tracer();
  input.emptying = 200;
  Near_Field field = Followed(input);
  const auto count = [&field](Phase_Kind kind) {
    int phases = 0;
    for (const Phase& phase : field.phases) phases += phase.kind == kind;
    return phases;
  };
  EXPECT_GT(count(Phase_Kind::Descent), 5);
  EXPECT_EQ(count(Phase_Kind::Bed_Collapse), 1);
  EXPECT_EQ(field.phases[1].end, "bed, joins cloud 1 of layer 1");
  input.batches.front().velocity_x = 6;
  input.barge = false;
  field = Followed(input);
  EXPECT_EQ(count(Phase_Kind::Bed_Collapse), count(Phase_Kind::Descent));
  EXPECT_EQ(field.phases[1].end, "bed");
  EXPECT_EQ(field.phases[1].name, "Descent of cloud 2 of opening 1");
}

TEST(NearField, A_Handed_Over_Cloud_Has_Its_Own_Concentration_At_Its_Peak) {
  const Model_Input input = Case_With_Tracer();
  const Near_Field field = Followed(input);
  const Cloud_State& end = First(field, Phase_Kind::Bed_Collapse).rows.back();
  for (const Source& source : field.sources) {
    if (source.time != end.t || source.species >= 2) continue;
    const double area =
        2 * kPi *
        std::sqrt(source.spread.xx * source.spread.zz - source.spread.xz * source.spread.xz);
    // A long cloud's ellipse is a little larger or smaller than its capsule.
    EXPECT_NEAR(source.amount / (area * (source.foot - source.top)) /
                    (end.solids[source.species] / end.volume),
                1, 0.05);
  }
}

TEST(NearField, Stops_Leave_The_Phases_As_They_Are) {
  const Model_Input input = Case_With_Tracer();
  const Water water(input, {});
  const Near_Field without = Follow_Clouds(input, water, {}), with = Followed(input);
  ASSERT_EQ(without.phases.size(), with.phases.size());
  for (std::size_t i = 0; i < with.phases.size(); ++i) {
    EXPECT_EQ(with.phases[i].end, without.phases[i].end);
    EXPECT_NEAR(with.ends[i], without.ends[i], 1e-4 * with.ends[i]);
  }
  const Near_Field rough = Follow_Clouds(input, water, {}, 1e-6);
  for (std::size_t i = 0; i < with.phases.size(); ++i)
    EXPECT_NEAR(rough.ends[i], without.ends[i], 0.005);
}

TEST(NearField, A_Cloud_In_Motion_At_The_End_Of_The_Run_Stands_In_The_Last_Stop) {
  Model_Input input = Case_With_Tracer();
  input.duration = 12;
  const Near_Field field = Followed(input);
  EXPECT_EQ(First(field, Phase_Kind::Bed_Collapse).end, "time");
  EXPECT_FALSE(field.moving.back().collapsing.empty());
  EXPECT_LE(Worst_Balance(input, field), 1e-12);
  EXPECT_TRUE(Has_Note(field, "still in motion"));
  input.duration = 4;
  const Near_Field falling = Followed(input);
  EXPECT_EQ(First(falling, Phase_Kind::Descent).end, "time");
  EXPECT_FALSE(falling.moving.back().falling.empty());
  EXPECT_LE(Worst_Balance(input, falling), 1e-12);
}

TEST(NearField, The_Notes_Tell_What_Was_Assumed) {
  Model_Input input = Case_With_Tracer();
  input.moisture_adjusts = true;
  input.coefficients.CDRAG = 0.2;
  input.coefficients.CM = 1e-6;
  const Near_Field field = Followed(input);
  EXPECT_TRUE(Has_Note(field, "The moisture of layer 1 is 0"));
  EXPECT_TRUE(Has_Note(field, "CDRAG is not above 1/4"));
  EXPECT_TRUE(Has_Note(field, "CM is below 0.01"));
}

}  // namespace
}  // namespace companion

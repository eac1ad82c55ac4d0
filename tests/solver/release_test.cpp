#include "solver/release.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "solver/det_math.h"
#include "tests/solver/solver_case.h"
#include "tests/solver/verification.h"

namespace companion {
namespace {

/// Every batch falls for as long as this, s.
Release With_Fall(const Model_Input& input, double fall) {
  return Release_Load(input, Water(input, {}), [fall](const Cloud_Start&) { return fall; });
}

Model_Input Moving(double velocity_x, double velocity_z) {
  Model_Input input = Solver_Case();
  input.batches.front().velocity_x = velocity_x;
  input.batches.front().velocity_z = velocity_z;
  return input;
}

TEST(Capsule, Radius_Keeps_The_Volume) {
  for (const double volume : {1e-3, 1.0, 2700.0, 27000.0, 1e5, 5.2e5, 1e7}) {
    const double radius = Capsule_Radius(volume, 100);
    const double straight = std::max(0.0, 100 - 2 * radius);
    const double held = kPi * radius * radius * straight + 4 * kPi / 3 * radius * radius * radius;
    EXPECT_NEAR(held / volume, 1, 1e-14) << volume;
  }
}

TEST(Capsule, Is_A_Ball_Where_The_Volume_Is_Too_Large_For_The_Length) {
  const double ball = 4 * kPi / 3 * 50 * 50 * 50;
  EXPECT_NEAR(Capsule_Radius(ball, 100), 50, 1e-12);
  EXPECT_NEAR(Capsule_Radius(8 * ball, 100), 100, 1e-12);
  EXPECT_NEAR(Capsule_Radius(ball * 0.999999, 100), 50, 1e-3);
  EXPECT_NEAR(Capsule_Radius(4 * kPi / 3, 0), 1, 1e-15);
  EXPECT_EQ(Capsule_Radius(0, 100), 0);
}

TEST(Release_Of_The_Load, All_At_Once_Is_One_Cloud_At_Rest) {
  Model_Input input = Solver_Case();
  input.emptying = 0;
  const Release release = With_Fall(input, 5);
  ASSERT_EQ(release.clouds.size(), 1u);
  const Cloud_Start& cloud = release.clouds.front();
  EXPECT_EQ(cloud.time, 0);
  EXPECT_EQ(cloud.x, 2000);
  EXPECT_EQ(cloud.z, 2000);
  EXPECT_EQ(cloud.downward, 0);
  EXPECT_EQ(cloud.axis_x, 1);  // a vessel at rest lies along X
  EXPECT_EQ(cloud.axis_z, 0);
  EXPECT_DOUBLE_EQ(cloud.solids.front(), 2700);
  EXPECT_DOUBLE_EQ(cloud.fluid_volume, 24300);
  EXPECT_DOUBLE_EQ(cloud.fluid_mass, 24300 * 1.02);
  EXPECT_DOUBLE_EQ(cloud.Volume(), 27000);
  EXPECT_DOUBLE_EQ(cloud.Mass(input), 24300 * 1.02 + 2700 * 2.65);
  EXPECT_DOUBLE_EQ(cloud.length, 100 - 2 * cloud.radius);
  // The draft is that of half the volume: 10 to 4 ft.
  EXPECT_DOUBLE_EQ(cloud.y, 7 + cloud.radius);
}

TEST(Release_Of_The_Load, Batches_Leave_One_After_The_Other) {
  Model_Input input = Solver_Case();
  Cut_Into_Batches(input, 2);
  input.batches[0].volume = 250;
  input.batches[1].volume = 750;
  input.batches[0].velocity_x = 2;
  input.batches[1].velocity_z = -1;
  input.emptying = 40;
  const Release release = With_Fall(input, 100);
  ASSERT_EQ(release.batches.size(), 2u);
  EXPECT_DOUBLE_EQ(release.batches[0].duration, 10);
  EXPECT_DOUBLE_EQ(release.batches[1].begin, 10);
  EXPECT_DOUBLE_EQ(release.batches[1].duration, 30);
  EXPECT_DOUBLE_EQ(release.batches[1].x, 2020);
  EXPECT_DOUBLE_EQ(release.batches[0].draft, 10 - 6 * 0.125);
  EXPECT_DOUBLE_EQ(release.batches[1].draft, 10 - 6 * 0.625);
  ASSERT_EQ(release.clouds.size(), 2u);
  EXPECT_DOUBLE_EQ(release.clouds[0].time, 5);
  EXPECT_DOUBLE_EQ(release.clouds[0].x, 2010);
  EXPECT_DOUBLE_EQ(release.clouds[1].time, 25);
  EXPECT_DOUBLE_EQ(release.clouds[1].x, 2020);
  EXPECT_DOUBLE_EQ(release.clouds[1].z, 1985);
  EXPECT_EQ(release.clouds[1].batch, 1u);
  EXPECT_DOUBLE_EQ(release.clouds[1].axis_z, -1);
}

TEST(Release_Of_The_Load, Clouds_Are_Apart_In_Time) {
  Model_Input input = Solver_Case();
  input.emptying = 100;
  // 100 s over 30 s of fall.
  EXPECT_EQ(With_Fall(input, 30).batches.front().clouds, 3);
  EXPECT_EQ(With_Fall(input, 101).batches.front().clouds, 1);
  EXPECT_EQ(With_Fall(input, 0.1).batches.front().clouds, 12);
  EXPECT_EQ(With_Fall(input, 0).batches.front().clouds, 1);  // it doesn't fall
  const Release release = With_Fall(input, 30);
  ASSERT_EQ(release.clouds.size(), 3u);
  EXPECT_DOUBLE_EQ(release.clouds[0].time, 100 * 0.5 / 3);
  EXPECT_DOUBLE_EQ(release.clouds[2].time, 100 * 2.5 / 3);
  EXPECT_DOUBLE_EQ(release.clouds[2].Volume(), 9000);
}

TEST(Release_Of_The_Load, Clouds_Are_Apart_In_Space) {
  Model_Input input = Moving(3, 4);
  input.emptying = 50;  // 250 ft of a capsule of 100
  Release release = With_Fall(input, 1000);
  ASSERT_EQ(release.clouds.size(), 3u);
  EXPECT_DOUBLE_EQ(release.clouds[1].x, 2000 + 3 * 25);
  EXPECT_DOUBLE_EQ(release.clouds[1].z, 2000 + 4 * 25);
  EXPECT_DOUBLE_EQ(release.clouds[1].axis_x, 0.6);
  EXPECT_DOUBLE_EQ(release.clouds[1].axis_z, 0.8);
  EXPECT_DOUBLE_EQ(release.clouds[1].velocity_x, 3);
  // With the water it has no way through it.
  input.mean_x = 3;
  input.mean_z = 4;
  EXPECT_EQ(With_Fall(input, 1000).batches.front().clouds, 1);
  // A moored vessel has: the water comes to it.
  input.batches.front().velocity_x = input.batches.front().velocity_z = 0;
  EXPECT_EQ(With_Fall(input, 1000).batches.front().clouds, 3);
}

TEST(Release_Of_The_Load, All_Batches_Together_Have_No_More_Than_Their_Clouds) {
  for (const std::size_t batches : {1u, 3u, 4u, 5u, 6u, 36u, 40u}) {
    Model_Input input = Solver_Case();
    input.emptying = 1000;
    Cut_Into_Batches(input, batches);
    const Release release = With_Fall(input, 1e-3);
    const std::size_t each = std::min<std::size_t>(12, std::max<std::size_t>(1, 36 / batches));
    EXPECT_EQ(release.clouds.size(), batches * each) << batches;
  }
}

TEST(Release_Of_The_Load, The_Whole_Batch_Is_Asked_About_At_The_Middle_Of_Its_Time) {
  Model_Input input = Moving(2, 0);
  input.emptying = 60;
  int asked = 0;
  Release_Load(input, Water(input, {}), [&asked](const Cloud_Start& cloud) {
    ++asked;
    EXPECT_DOUBLE_EQ(cloud.Volume(), 27000);
    EXPECT_DOUBLE_EQ(cloud.time, 30);
    EXPECT_DOUBLE_EQ(cloud.x, 2060);
    return 10.0;
  });
  EXPECT_EQ(asked, 1);
}

TEST(Release_Of_The_Load, The_Outflow_Is_No_Faster_Than_The_Head_Lets_It) {
  Model_Input input = Solver_Case();
  input.emptying = 3;
  EXPECT_DOUBLE_EQ(With_Fall(input, 1e9).clouds.front().downward, 27000 / (3 * 100 * 30.0));
  input.emptying = 0.5;
  const Cloud_Start fast = With_Fall(input, 1e9).clouds.front();
  const double weight = 32.174 * (fast.Mass(input) / fast.Volume() - 1.02) / 1.02;
  EXPECT_DOUBLE_EQ(fast.downward, std::sqrt(2 * weight * 7));
  input.batches.front().solids.front().sg = 0.5;
  EXPECT_EQ(With_Fall(input, 1e9).clouds.front().downward, 0);
  input.batches.front().solids.front().sg = 2.65;
  input.width = 0;
  EXPECT_DOUBLE_EQ(With_Fall(input, 1e9).clouds.front().downward, std::sqrt(2 * weight * 7));
}

TEST(Release_Of_The_Load, A_Wide_Opening_Turns_The_Capsule) {
  Model_Input input = Moving(3, 4);
  input.length = 30;
  input.width = 100;
  const Cloud_Start cloud = With_Fall(input, 1e9).clouds.front();
  EXPECT_DOUBLE_EQ(cloud.axis_x, -0.8);
  EXPECT_DOUBLE_EQ(cloud.axis_z, 0.6);
  EXPECT_DOUBLE_EQ(cloud.length, 100 - 2 * cloud.radius);
}

TEST(Release_Of_The_Load, Starts_Between_The_Bed_And_Half_Its_Radius) {
  Model_Input input = Solver_Case();
  input.depth = 20;
  Cloud_Start cloud = With_Fall(input, 1e9).clouds.front();
  EXPECT_GT(7 + 2 * cloud.radius, 20);
  EXPECT_DOUBLE_EQ(cloud.y, 20 - cloud.radius);
  input.depth = 5;
  cloud = With_Fall(input, 1e9).clouds.front();
  EXPECT_DOUBLE_EQ(cloud.y, cloud.radius / 2);
  input.depth = 20;
  input.hole_x = input.hole_z = 50;
  input.hole_depth = 100;
  cloud = With_Fall(input, 1e9).clouds.front();
  EXPECT_DOUBLE_EQ(cloud.y, 7 + cloud.radius);
}

TEST(Release_Of_The_Load, What_Would_Leave_After_The_End_Stays_Aboard) {
  Model_Input input = Solver_Case();
  input.emptying = 3600;
  input.duration = 1800;
  const Release release = With_Fall(input, 20);
  ASSERT_EQ(release.clouds.size(), 12u);
  int aboard = 0;
  for (const Cloud_Start& cloud : release.clouds) {
    EXPECT_EQ(cloud.aboard, cloud.time >= 1800);
    aboard += cloud.aboard ? 1 : 0;
  }
  EXPECT_EQ(aboard, 6);
}

TEST(Release_Of_The_Load, A_Batch_Without_Volume_Has_No_Cloud) {
  Model_Input input = Solver_Case();
  Cut_Into_Batches(input, 2);
  input.batches[0].volume = 0;
  const Release release = With_Fall(input, 20);
  ASSERT_EQ(release.batches.size(), 2u);
  EXPECT_EQ(release.batches[0].clouds, 0);
  ASSERT_EQ(release.clouds.size(), 1u);
  EXPECT_EQ(release.clouds.front().batch, 1u);
}

TEST(Release_Of_The_Load, Moisture_Acts_By_Its_Flag_Alone) {
  Model_Input input = Solver_Case();
  input.batches.front().moisture = 1.5;
  EXPECT_EQ(With_Fall(input, 20).clouds.front().moisture, 0);
  input.moisture_adjusts = true;
  EXPECT_EQ(With_Fall(input, 20).clouds.front().moisture, 1.5);
}

TEST(Tracer_Of_A_Batch, Is_What_The_Evaluation_Compares) {
  Model_Input input = Solver_Case();
  Batch& batch = input.batches.front();
  batch.fluid.concentration = 50;
  batch.fluid.background = 2;
  const double fluid = 24300, bulk = 27000;
  const auto amount = [&input](Evaluation evaluation) {
    input.evaluation = evaluation;
    return Tracer_Amount(input, input.batches.front());
  };
  EXPECT_EQ(amount(Evaluation::None), 0);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Tracer), 48 * fluid);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Criterion), 48 * fluid);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Toxicity), 100 * fluid);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Sediment), 50 * bulk - 2 * fluid);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Zone_Criterion), 48 * fluid);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Zone_Toxicity), 100 * fluid);
  EXPECT_DOUBLE_EQ(amount(Evaluation::Zone_Sediment), 50 * bulk - 2 * fluid);
}

RC_GTEST_PROP(Release_Of_The_Load, Neither_Makes_Nor_Loses_Anything, ()) {
  Model_Input input = Solver_Case();
  const auto from = [](int low, int high) { return *rc::gen::inRange(low, high) / 10.0; };
  Cut_Into_Batches(input, static_cast<std::size_t>(*rc::gen::inRange(1, 7)));
  double bulk = 0, solids = 0, tracer = 0;
  Give_Tracer(input, from(10, 500));
  for (Batch& batch : input.batches) {
    batch.volume = from(1, 100000);
    batch.velocity_x = from(-100, 100);
    batch.velocity_z = from(-100, 100);
    batch.solids.front().fraction = from(0, 9);
    bulk += batch.volume * 27;
    solids += batch.volume * 27 * batch.solids.front().fraction;
    tracer += Tracer_Amount(input, batch);
  }
  input.emptying = from(0, 9000);
  const Release release = With_Fall(input, from(0, 1000));
  double got_bulk = 0, got_solids = 0, got_tracer = 0, before = 0;
  for (const Cloud_Start& cloud : release.clouds) {
    got_bulk += cloud.Volume();
    got_solids += cloud.solids.front();
    got_tracer += cloud.tracer;
    RC_ASSERT(cloud.time >= before);
    before = cloud.time;
    RC_ASSERT(cloud.length >= 0);
    RC_ASSERT(std::abs(cloud.axis_x * cloud.axis_x + cloud.axis_z * cloud.axis_z - 1) < 1e-14);
  }
  RC_ASSERT(std::abs(got_bulk / bulk - 1) < 1e-13);
  RC_ASSERT(std::abs(got_solids - solids) <= 1e-13 * solids);
  RC_ASSERT(std::abs(got_tracer / tracer - 1) < 1e-13);
}

}  // namespace
}  // namespace companion

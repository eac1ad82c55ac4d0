#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "solver/cloud.h"
#include "tests/solver/near_field_case.h"
#include "tests/solver/solver_case.h"

namespace companion {
namespace {

using Vary = std::function<void(Model_Input&)>;
using Figure = std::function<double(const Model_Input&)>;

/// A load that lands on the bed in a slow current.
Model_Input Bed_Case(bool barge) {
  Model_Input input = Solver_Case();
  input.barge = barge;
  input.mean_x = 0.3;
  input.batches.front().solids = {Test_Solid("SAND", 0.05, 0.3), Test_Solid("CLAY", 0.1, 0.001)};
  Give_Tracer(input, 50);
  return input;
}

/// A load that comes to a level in 400 ft of layered water.
Model_Input Level_Case(bool barge) {
  Model_Input input = Bed_Case(barge);
  input.depth = 400;
  input.profile_depths = {0, 400};
  input.profile_densities = {1.0, 1.02};
  return input;
}

Phase First_Of(const Model_Input& input, Phase_Kind kind) {
  return First(Follow_Clouds(input, Water(input, {}), {}), kind);
}

Cloud_State End_Of_Fall(const Model_Input& input) {
  return First_Of(input, Phase_Kind::Descent).rows.back();
}

/// At the end of a run cut short within the collapse.
Cloud_State Spreading_After(Model_Input input, Phase_Kind kind, double seconds) {
  const double begun = First_Of(input, kind).rows.front().t;
  input.duration = begun + seconds;
  return First_Of(input, kind).rows.back();
}

double Bed_Radius(const Model_Input& input) {
  return Spreading_After(input, Phase_Kind::Bed_Collapse, 60).radius;
}
double Level_Radius(const Model_Input& input) {
  return Spreading_After(input, Phase_Kind::Level_Collapse, 120).radius;
}

/// Both by the barge's and by the hopper's input: more of the quantity, more of the figure.
void Expect_More(Model_Input (*site)(bool), const Vary& less, const Vary& more,
                 const Figure& figure) {
  for (const bool barge : {true, false}) {
    Model_Input few = site(barge), many = site(barge);
    less(few);
    more(many);
    EXPECT_GT(figure(many), figure(few)) << (barge ? "barge" : "hopper");
  }
}

/// A coefficient at half and at twice its usual value.
void Expect_More(Model_Input (*site)(bool), double Coefficients::*coefficient,
                 const Figure& figure) {
  const double usual = std::max(Coefficients().*coefficient, 0.05);
  Expect_More(
      site, [=](Model_Input& input) { input.coefficients.*coefficient = usual / 2; },
      [=](Model_Input& input) { input.coefficients.*coefficient = usual * 2; }, figure);
}

double Less(double value) { return -value; }

TEST(WhatAQuantityDoes, Alpha0_Takes_Water_Into_The_Falling_Cloud) {
  Expect_More(Bed_Case, &Coefficients::ALPHA0,
              [](const Model_Input& input) { return End_Of_Fall(input).volume; });
}

TEST(WhatAQuantityDoes, Beta_Lets_Grains_Settle_Out_Of_It) {
  Expect_More(Bed_Case, &Coefficients::BETA, [](const Model_Input& input) {
    return First_Of(input, Phase_Kind::Descent).fallen[0];
  });
}

TEST(WhatAQuantityDoes, Cm_Slows_The_Fall_By_The_Mass_That_Moves_Along) {
  Expect_More(Bed_Case, &Coefficients::CM,
              [](const Model_Input& input) { return End_Of_Fall(input).t; });
}

TEST(WhatAQuantityDoes, Cd_Slows_The_Fall) {
  Expect_More(Bed_Case, &Coefficients::CD,
              [](const Model_Input& input) { return End_Of_Fall(input).t; });
}

TEST(WhatAQuantityDoes, Gama_Slows_The_Spreading_At_A_Level) {
  Expect_More(Level_Case, &Coefficients::GAMA,
              [](const Model_Input& input) { return Less(Level_Radius(input)); });
}

TEST(WhatAQuantityDoes, Cdrag_Slows_The_Front) {
  Expect_More(Bed_Case, &Coefficients::CDRAG,
              [](const Model_Input& input) { return Less(Bed_Radius(input)); });
  Expect_More(Level_Case, &Coefficients::CDRAG,
              [](const Model_Input& input) { return Less(Level_Radius(input)); });
}

TEST(WhatAQuantityDoes, Cfric_Slows_The_Spreading_By_The_Water) {
  Expect_More(Bed_Case, &Coefficients::CFRIC,
              [](const Model_Input& input) { return Less(Bed_Radius(input)); });
  Expect_More(Level_Case, &Coefficients::CFRIC,
              [](const Model_Input& input) { return Less(Level_Radius(input)); });
}

TEST(WhatAQuantityDoes, Frictn_Slows_The_Spreading_By_The_Bed_Alone) {
  Expect_More(Bed_Case, &Coefficients::FRICTN,
              [](const Model_Input& input) { return Less(Bed_Radius(input)); });
  Model_Input smooth = Level_Case(true), rough = smooth;
  rough.coefficients.FRICTN = 1;
  EXPECT_EQ(Level_Radius(smooth), Level_Radius(rough));
}

TEST(WhatAQuantityDoes, Cd3_Carries_A_Flat_Cloud_With_The_Current) {
  Expect_More(
      Level_Case,
      [](Model_Input& input) {
        input.coefficients.CD3 = 0.05;
        input.coefficients.CFRIC = input.coefficients.ALPHAC = 0;
        input.batches.front().velocity_z = 6;
      },
      [](Model_Input& input) {
        input.coefficients.CD3 = 2;
        input.coefficients.CFRIC = input.coefficients.ALPHAC = 0;
        input.batches.front().velocity_z = 6;
      },
      [](const Model_Input& input) {
        return Less(Spreading_After(input, Phase_Kind::Level_Collapse, 300).z);
      });
}

TEST(WhatAQuantityDoes, Cd4_Holds_A_Flat_Cloud_From_Overshooting_Its_Level) {
  Expect_More(Level_Case, &Coefficients::CD4, [](const Model_Input& input) {
    double deepest = 0;
    for (const Cloud_State& row : First_Of(input, Phase_Kind::Level_Collapse).rows)
      deepest = std::max(deepest, row.y);
    return Less(deepest);
  });
}

TEST(WhatAQuantityDoes, Alphac_Takes_Water_Into_The_Spreading_Cloud) {
  Expect_More(Bed_Case, &Coefficients::ALPHAC, [](const Model_Input& input) {
    return Spreading_After(input, Phase_Kind::Bed_Collapse, 30).volume;
  });
  Expect_More(Level_Case, &Coefficients::ALPHAC, [](const Model_Input& input) {
    return Spreading_After(input, Phase_Kind::Level_Collapse, 60).volume;
  });
}

TEST(WhatAQuantityDoes, Alamda_Ends_The_Collapse_Sooner) {
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.coefficients.ALAMDA = 1e-4; },
      [](Model_Input& input) { input.coefficients.ALAMDA = 1e-2; },
      [](const Model_Input& input) {
        return Less(First_Of(input, Phase_Kind::Bed_Collapse).rows.back().t);
      });
}

TEST(WhatAQuantityDoes, Cstrip_Washes_Off_The_Marked_Fractions_Alone) {
  const auto washed = [](std::size_t species) {
    return [species](Model_Input input) {
      input.batches.front().solids[1].stripped = true;
      return First_Of(input, Phase_Kind::Descent).washed[species];
    };
  };
  Expect_More(Bed_Case, &Coefficients::CSTRIP, washed(1));
  Expect_More(Bed_Case, &Coefficients::CSTRIP, washed(2));
  EXPECT_EQ(washed(0)(Bed_Case(true)), 0);
}

TEST(WhatAQuantityDoes, A_Dry_Load_Takes_In_Less_Water) {
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.batches.front().moisture = 0.5; },
      [](Model_Input& input) { input.batches.front().moisture = 3; },
      [](Model_Input input) {
        input.moisture_adjusts = true;
        return End_Of_Fall(input).volume;
      });
}

TEST(WhatAQuantityDoes, The_Draft_Is_Where_The_Cloud_Starts) {
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.draft_full = 6; },
      [](Model_Input& input) { input.draft_full = 14; },
      [](const Model_Input& input) { return First_Of(input, Phase_Kind::Descent).rows.front().y; });
}

TEST(WhatAQuantityDoes, A_Fall_Velocity_Brings_Grains_To_The_Bed) {
  const auto settled = [](const Model_Input& input) {
    return First_Of(input, Phase_Kind::Bed_Collapse).settled[0];
  };
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.batches.front().solids[0].fall_velocity = 0.01; },
      [](Model_Input& input) { input.batches.front().solids[0].fall_velocity = 0.1; }, settled);
}

TEST(WhatAQuantityDoes, A_Critical_Shear_Keeps_Grains_Off_The_Bed_While_It_Is_Passed) {
  const auto settled = [](Model_Input input) {
    input.duration = First_Of(input, Phase_Kind::Bed_Collapse).rows.front().t + 20;
    return First_Of(input, Phase_Kind::Bed_Collapse).settled[0];
  };
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.batches.front().solids[0].critical_shear = 0.01; },
      [](Model_Input& input) { input.batches.front().solids[0].critical_shear = 0; }, settled);
}

TEST(WhatAQuantityDoes, Cohesive_Grains_Settle_As_Flocs) {
  const auto settled = [](const Model_Input& input) {
    return First_Of(input, Phase_Kind::Bed_Collapse).settled[1];
  };
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.batches.front().solids[1].cohesive = false; },
      [](Model_Input& input) { input.batches.front().solids[1].cohesive = true; }, settled);
}

TEST(WhatAQuantityDoes, A_Slope_Pushes_The_Bed_Cloud_Towards_Growing_X_Or_Z) {
  const auto end = [](const Model_Input& input) {
    const Cloud_State last = First_Of(input, Phase_Kind::Bed_Collapse).rows.back();
    return last.x + last.z;
  };
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.slope_x = -1; },
      [](Model_Input& input) { input.slope_x = 1; }, end);
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.slope_z = -1; },
      [](Model_Input& input) { input.slope_z = 1; }, end);
}

TEST(WhatAQuantityDoes, A_Moving_Vessel_Leaves_Its_Velocity_To_The_Cloud) {
  Expect_More(
      Bed_Case, [](Model_Input& input) { input.batches.front().velocity_x = 1; },
      [](Model_Input& input) { input.batches.front().velocity_x = 5; },
      [](const Model_Input& input) { return End_Of_Fall(input).x; });
}

TEST(WhatAQuantityDoes, A_Current_Over_A_Rough_Bed_Ends_The_Collapse_Sooner) {
  Expect_More(
      Bed_Case,
      [](Model_Input& input) {
        input.mean_x = 2;
        input.roughness = 1e-4;
      },
      [](Model_Input& input) {
        input.mean_x = 2;
        input.roughness = 1;
      },
      [](const Model_Input& input) {
        return Less(First_Of(input, Phase_Kind::Bed_Collapse).rows.back().t);
      });
}

}  // namespace
}  // namespace companion

#include "solver/refusals.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "solver/due_fields.h"
#include "tests/solver/sample_inputs.h"
#include "tests/solver/solver_case.h"

namespace companion {
namespace {

std::string Refused(const std::function<void(Model_Input&)>& change) {
  Model_Input input = Sample_Input("Barge_Four_Layers");
  change(input);
  try {
    Check_Values("Tmpfile.Due", input);
  } catch (const Refusal& refusal) {
    return std::to_string(refusal.line_) + ": " + refusal.reason_;
  }
  return "";
}

TEST(Refusals, Take_What_The_Samples_Hold) {
  for (const std::string& sample : Samples()) {
    EXPECT_NO_THROW(Check_Values(sample, Sample_Input(sample))) << sample;
  }
}

TEST(Refusals, Name_The_Value_And_Its_Line) {
  EXPECT_EQ(Refused([](Model_Input& i) { i.depth = 0; }), "10: DEPC0 is 0, and must be above 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.depth = 1e-300; }),
            "10: DEPC0 is 1e-300, less than 0.01");
  EXPECT_EQ(Refused([](Model_Input& i) { i.spacing_x = -80; }),
            "10: DX0 is -80, and must be above 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.profile_densities[2] = 0; }),
            "16: Densities[3] is 0, and must be above 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.profile_depths[2] = 30; }),
            "15: DensityDepths[3] is 30, above the point before it");
  EXPECT_EQ(Refused([](Model_Input& i) { i.duration = 0; }),
            "19: SimulationDuration is 0, and must be above 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.step = -1; }),
            "19: LongTermTimeStep is -1, and must be above 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.step = 0.01; }),
            "19: LongTermTimeStep is 0.01, which makes more than 10000 times of the run");
  EXPECT_EQ(Refused([](Model_Input& i) { i.coefficients.CM = 0; }),
            "21: CM is 0, and must be at least 0.001");
  EXPECT_EQ(Refused([](Model_Input& i) { i.coefficients.CD = -1; }),
            "21: CD is -1, and can't be below 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.coefficients.CD = 0; }), "");
}

TEST(Refusals, Tell_Which_Batch) {
  EXPECT_EQ(Refused([](Model_Input& i) { i.batches[0].volume = -1; }),
            "24: LayerVolume is -1, and can't be below 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.batches[1].volume = -1; }),
            "29: LayerVolume is -1, and can't be below 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.batches[1].solids[2].fall_velocity = -1; }),
            "32: SolidFallVelocity[3] is -1, and can't be below 0");
  EXPECT_EQ(Refused([](Model_Input& i) { i.batches[1].solids[1].fraction = 0.95; }),
            "31: SolidVolFraction[2] brings the sum of the fractions to 1, which must be below 1");
}

TEST(Refusals, Tell_A_Batch_That_Is_Next_To_Nothing) {
  EXPECT_EQ(Refused([](Model_Input& i) { i.batches[0].volume = 1e-7; }),
            "24: LayerVolume is 1e-07, less than 1e-06");
  EXPECT_EQ(Refused([](Model_Input& i) { i.batches[0].volume = 0; }), "");
}

TEST(Refusals, Tell_Additions_That_The_Model_Cannot_Take) {
  const auto refused = [](const std::function<void(Additions&)>& change) {
    Additions additions;
    additions.depths = {{30, -2}, {0, 0.01}};
    additions.tide.emplace();
    additions.tide->times = {-3600, 0};
    additions.tide->x = additions.tide->z = {0, 1};
    change(additions);
    try {
      Check_Values("Tmpfile.Add", additions);
    } catch (const Refusal& refusal) {
      return refusal.reason_;
    }
    return std::string();
  };
  EXPECT_EQ(refused([](Additions&) {}), "");
  EXPECT_EQ(refused([](Additions& a) { a.criterion = 2e12; }), "Criterion is too large");
  EXPECT_EQ(refused([](Additions& a) { a.zid_standard = 2e12; }), "ZidStandard is too large");
  EXPECT_EQ(refused([](Additions& a) { a.depths[0][1] = -50000; }),
            "a depth of -50000 ft is too large");
  EXPECT_EQ(refused([](Additions& a) { a.depths[1][1] = 0.009; }),
            "a depth of 0.009 ft is neither land nor water");
  // 31 days of 24 hours.
  EXPECT_EQ(refused([](Additions& a) { a.tide->times[0] = -2678400; }), "");
  EXPECT_EQ(refused([](Additions& a) { a.tide->times[0] = -2678401; }),
            "TideStart is too far from the pattern");
  EXPECT_EQ(refused([](Additions& a) { a.tide->z[1] = -101; }),
            "a tidal velocity of -101 ft/s is too large");
}

TEST(Refusals, Tell_A_Load_That_Is_None) {
  Model_Input input = Solver_Case();
  EXPECT_NO_THROW(Check_Load("x", input, 0));
  input.batches[0].solids[0].fraction = 0;
  EXPECT_THROW(Check_Load("x", input, 0), No_Physics);
  EXPECT_NO_THROW(Check_Load("x", input, 1));
  input.batches[0].volume = 0;
  EXPECT_THROW(Check_Load("x", input, 1), No_Physics);
}

TEST(Refusals, Tell_A_Disposal_Point_On_Land) {
  Model_Input input = Solver_Case();
  input.constant_depth = false;
  input.depths.assign(41, std::vector<double>(41, 60));
  const Additions none;
  EXPECT_NO_THROW(Check_Land("x", input, none));
  for (std::size_t i = 20; i <= 21; ++i) input.depths[i][20] = input.depths[i][21] = 0;
  EXPECT_THROW(Check_Land("x", input, none), Refusal);
  Additions deep;
  deep.depths.assign(41, std::vector<double>(41, 60));
  EXPECT_NO_THROW(Check_Land("x", input, deep));
  input.depths.assign(41, std::vector<double>(41, -1));
  EXPECT_THROW(Check_Land("x", input, none), Refusal);
  // It says whose depths they are.
  deep.depths.assign(41, std::vector<double>(41, 0));
  try {
    Check_Land("x", input, deep);
    ADD_FAILURE() << "not refused";
  } catch (const Refusal& refusal) {
    EXPECT_NE(
        std::string(refusal.what()).find("DepthGrid, as the additions have it, is land everywhere"),
        std::string::npos)
        << refusal.what();
  }
}

}  // namespace
}  // namespace companion

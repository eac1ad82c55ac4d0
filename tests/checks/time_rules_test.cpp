#include "checks/time_rules.h"

#include <gtest/gtest.h>

#include <limits>

#include "checks/sound_project.h"

namespace barvon::testing {
namespace {

const Finding kDuration = {"Please Specify the Duration of the Simulation.",
                           "frmSimulation!Text1(0)", 3000};
const Finding kStep = {"Please Specify Long Term Time Step for Diffusion.",
                       "frmSimulation!Text1(1)", 3000};
const Finding kTooLong = {"Simulation Duration Is Too Large.  Please Reduce.",
                          "frmSimulation!Text1(0)", 3000};
const Finding kStepTooLarge = {"Simulation Time Step Is Too Large.  Please Reduce.",
                               "frmSimulation!Text1(1)", 3000};

TEST(TimeRules, Duration_And_Step_Must_Be_Given) {
  const Rule_Case cases[] = {
      {"no duration",
       [](ProjectRecord& r) { r.SimulationDuration = 0; },
       {kDuration, kStepTooLarge}},
      {"no step", [](ProjectRecord& r) { r.LongTermTimeStep = 0; }, {kStep}},
      {"neither",
       [](ProjectRecord& r) { r.SimulationDuration = r.LongTermTimeStep = 0; },
       {kDuration, kStep, kStepTooLarge}},
      {"negative",
       [](ProjectRecord& r) { r.SimulationDuration = r.LongTermTimeStep = -1; },
       {kDuration, kStep}},
      {"next to nothing",
       [](ProjectRecord& r) {
         r.SimulationDuration = 0.3;
         r.LongTermTimeStep = 0.1;
       },
       {}},
  };
  Check_Cases(Check_Time, cases);
}

TEST(TimeRules, The_Longest_Duration_Follows_The_Analysis) {
  const Rule_Case cases[] = {
      {"ocean, at the limit",
       [](ProjectRecord& r) {
         r.AnalysisType = 2;
         r.SimulationDuration = 144000;
       },
       {}},
      {"ocean, beyond",
       [](ProjectRecord& r) {
         r.AnalysisType = 2;
         r.SimulationDuration = 144000.5;
       },
       {kTooLong}},
      {"navigable waters, at the limit",
       [](ProjectRecord& r) {
         r.AnalysisType = 3;
         r.SimulationDuration = 36000;
       },
       {}},
      {"navigable waters, beyond",
       [](ProjectRecord& r) {
         r.AnalysisType = 3;
         r.SimulationDuration = 36000.5;
       },
       {kTooLong}},
      {"general",
       [](ProjectRecord& r) {
         r.AnalysisType = 1;
         r.SimulationDuration = 1e9;
       },
       {}},
  };
  Check_Cases(Check_Time, cases);
}

TEST(TimeRules, The_Step_Must_Be_Below_Half_The_Duration) {
  const Rule_Case cases[] = {
      {"below", [](ProjectRecord& r) { r.LongTermTimeStep = 1799.9; }, {}},
      {"half", [](ProjectRecord& r) { r.LongTermTimeStep = 1800; }, {kStepTooLarge}},
      {"above", [](ProjectRecord& r) { r.LongTermTimeStep = 1e9; }, {kStepTooLarge}},
  };
  Check_Cases(Check_Time, cases);
}

TEST(TimeRules, A_Duration_That_Is_No_Number_Finds_Nothing) {
  const Rule_Case cases[] = {
      {"nan",
       [](ProjectRecord& r) { r.SimulationDuration = std::numeric_limits<double>::quiet_NaN(); },
       {}}};
  Check_Cases(Check_Time, cases);
}

}  // namespace
}  // namespace barvon::testing

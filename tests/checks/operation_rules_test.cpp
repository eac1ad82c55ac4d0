#include "checks/operation_rules.h"

#include <gtest/gtest.h>

#include "checks/sound_project.h"

namespace barvon::testing {
namespace {

const Finding kLocation = {"Location of Vessel Outside of Grid", "frmOperation!Text1(0)"};
const Finding kLength = {"Inapproprite Length of Vessel Bin", "frmOperation!Text1(2)"};
const Finding kHopperWidth = {"Inapproprite Width of Vessel Bin", "frmOperation!Text1(3)"};
const Finding kBargeWidth = {"Inapproprite Width of Vessel Bin", "frmOperation!Text1(3)", 3000};

TEST(OperationRules, The_Vessel_May_Stand_On_The_Edge_But_Not_Before_It) {
  const Rule_Case cases[] = {
      {"on the edges", [](ProjectRecord& r) { r.XBARGE = r.ZBARGE = 0; }, {}},
      {"X", [](ProjectRecord& r) { r.XBARGE = -0.1; }, {kLocation}},
      {"Z", [](ProjectRecord& r) { r.ZBARGE = -0.1; }, {kLocation}},
      {"both are one finding", [](ProjectRecord& r) { r.XBARGE = r.ZBARGE = -1; }, {kLocation}},
  };
  Check_Cases(Check_Operation, cases);
}

TEST(OperationRules, A_Vessel_Beyond_The_Far_Edge_Is_Not_Found) {
  const Rule_Case cases[] = {{"far away", [](ProjectRecord& r) { r.XBARGE = r.ZBARGE = 1e9; }, {}}};
  Check_Cases(Check_Operation, cases);
}

TEST(OperationRules, A_Hopper_Needs_Its_Bin_And_A_Barge_Its_Own) {
  const Rule_Case cases[] = {
      {"hopper length 0", [](ProjectRecord& r) { r.BINL = 0; }, {kLength}},
      {"hopper length", [](ProjectRecord& r) { r.BINL = 0.01; }, {}},
      {"hopper width 0", [](ProjectRecord& r) { r.BINW = 0; }, {kHopperWidth}},
      {"hopper width", [](ProjectRecord& r) { r.BINW = 0.01; }, {}},
      {"hopper, negative", [](ProjectRecord& r) { r.BINL = r.BINW = -1; }, {kLength, kHopperWidth}},
      {"a hopper needs no barge", [](ProjectRecord& r) { r.BargeLength = r.BargeWidth = 0; }, {}},
      {"barge length 0",
       [](ProjectRecord& r) {
         r.DisposalMethod = 3;
         r.BargeLength = 0;
       },
       {kLength}},
      {"barge width 0",
       [](ProjectRecord& r) {
         r.DisposalMethod = 3;
         r.BargeWidth = 0;
       },
       {kBargeWidth}},
      {"barge",
       [](ProjectRecord& r) {
         r.DisposalMethod = 3;
         r.BargeLength = r.BargeWidth = 0.01;
         r.BINL = r.BINW = 0;
       },
       {}},
      {"barge, both",
       [](ProjectRecord& r) {
         r.DisposalMethod = 3;
         r.BargeLength = r.BargeWidth = 0;
       },
       {kLength, kBargeWidth}},
      {"continuous",
       [](ProjectRecord& r) {
         r.DisposalMethod = 2;
         r.BINL = r.BINW = r.BargeLength = r.BargeWidth = 0;
       },
       {}},
  };
  Check_Cases(Check_Operation, cases);
}

}  // namespace
}  // namespace barvon::testing

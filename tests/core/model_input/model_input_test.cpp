#include "core/model_input/model_input.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <tuple>

#include "core/model_input/model_examples.h"
#include "core/project_defaults.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// 20 by 30 points 100 apart, the site well inside.
ProjectRecord Square_Spacing() {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.FileTypeTag = "DUE";
  r.MMAX0 = 20, r.NMAX0 = 30;
  r.DX0 = r.DZ0 = 100;
  r.SiteTop = 500, r.SiteBottom = 900, r.SiteLeft = 600, r.SiteRight = 1200;
  return r;
}

using Indices = std::array<int, 4>;

Indices Site_Indices(ProjectRecord record) {
  Written(record);
  return {record.SiteGridTop, record.SiteGridBottom, record.SiteGridLeft, record.SiteGridRight};
}

Indices Zid_Indices(ProjectRecord record) {
  record.KEY3 = 5;
  record.ZidFlag = 1;
  Written(record);
  return {record.ZidGridTop, record.ZidGridBottom, record.ZidGridLeft, record.ZidGridRight};
}

Failure Failure_Of(ProjectRecord& record) {
  std::string text = "left over";
  const Failure failure = Write_Model_Input(record, text);
  EXPECT_EQ(text.empty(), failure != Failure::None);
  return failure;
}

Failure Failure_With(void (*change)(ProjectRecord&), int method = 1) {
  ProjectRecord record = Square_Spacing();
  record.DisposalMethod = static_cast<std::int16_t>(method);
  change(record);
  return Failure_Of(record);
}

// ---- Spacing and grid points

TEST(ModelInput, A_Missing_Z_Spacing_Is_The_X_Spacing_And_Is_Written) {
  ProjectRecord record = Square_Spacing();
  record.DZ0 = 0;
  record.DEPC0 = 0;
  const auto lines = Whole_Lines(Written(record));
  EXPECT_EQ(record.DZ0, 100);
  EXPECT_EQ(lines[9], "         0       100       100");
}

TEST(ModelInput, A_Corner_Goes_To_The_Next_Grid_Point) {
  EXPECT_EQ(Site_Indices(Square_Spacing()), (Indices{6, 10, 7, 13}));
  ProjectRecord record = Square_Spacing();
  record.SiteTop = 549.9, record.SiteBottom = 950;
  EXPECT_EQ(Site_Indices(record), (Indices{6, 11, 7, 13}));
}

TEST(ModelInput, X_Spacing_Is_For_Top_And_Bottom_And_Z_Spacing_For_Left_And_Right) {
  ProjectRecord record = Square_Spacing();
  record.DX0 = 50, record.DZ0 = 60;
  EXPECT_EQ(Site_Indices(record), (Indices{11, 18, 11, 21}));
}

TEST(ModelInput, A_Site_Top_On_The_Grid_Edge_Is_Pulled_In_To_3) {
  ProjectRecord record = Square_Spacing();
  record.SiteTop = 0, record.SiteLeft = 0;
  EXPECT_EQ(Site_Indices(record), (Indices{3, 10, 3, 13}));
}

TEST(ModelInput, A_Site_Bottom_Beyond_The_Grid_Is_Pulled_In_By_Two_Points) {
  ProjectRecord record = Square_Spacing();
  record.SiteBottom = 5000, record.SiteRight = 5000;
  EXPECT_EQ(Site_Indices(record), (Indices{6, 18, 7, 28}));
}

TEST(ModelInput, A_Flat_Site_Gets_Two_Points_Each_Way) {
  ProjectRecord record = Square_Spacing();
  record.SiteBottom = 500, record.SiteRight = 600;
  EXPECT_EQ(Site_Indices(record), (Indices{6, 8, 7, 9}));
}

TEST(ModelInput, A_Site_Beyond_The_Grid_Is_Moved_Back_With_Its_Upper_Corner) {
  ProjectRecord record = Square_Spacing();
  record.SiteTop = 4000, record.SiteBottom = 5000, record.SiteLeft = 4000, record.SiteRight = 5000;
  EXPECT_EQ(Site_Indices(record), (Indices{16, 18, 26, 28}));
}

TEST(ModelInput, A_Grid_Too_Small_For_All_Limits_Follows_The_Last_Ones) {
  ProjectRecord record = Square_Spacing();
  record.MMAX0 = 5, record.NMAX0 = 4;
  EXPECT_EQ(Site_Indices(record), (Indices{1, 3, 0, 2}));
}

TEST(ModelInput, A_Negative_Site_Top_Clears_All_Four_Indices) {
  ProjectRecord record = Square_Spacing();
  record.SiteTop = -1;
  EXPECT_EQ(Site_Indices(record), (Indices{0, 0, 0, 0}));
}

TEST(ModelInput, A_Negative_Site_Left_Clears_Nothing) {
  ProjectRecord record = Square_Spacing();
  record.SiteLeft = -1;
  EXPECT_EQ(Site_Indices(record), (Indices{6, 10, 3, 13}));
}

// ---- Zone of initial dilution

TEST(ModelInput, The_Zid_Keeps_Fixed_Lower_Limits) {
  ProjectRecord record = Square_Spacing();
  record.ZidTop = 700, record.ZidBottom = 800, record.ZidLeft = 900, record.ZidRight = 1000;
  // Bottom and right stay where they are: 5 is far below them. Top and left give way instead.
  EXPECT_EQ(Zid_Indices(record), (Indices{7, 9, 9, 11}));
  record.ZidTop = record.ZidBottom = record.ZidLeft = record.ZidRight = 0;
  EXPECT_EQ(Zid_Indices(record), (Indices{3, 5, 3, 5}));
  record.ZidTop = 10, record.ZidBottom = record.ZidRight = 9000;
  EXPECT_EQ(Zid_Indices(record), (Indices{3, 18, 3, 28}));
}

TEST(ModelInput, A_Negative_Zid_Top_Clears_The_Zid_Alone) {
  ProjectRecord record = Square_Spacing();
  record.ZidTop = -1, record.ZidBottom = 800, record.ZidLeft = 900, record.ZidRight = 1000;
  EXPECT_EQ(Zid_Indices(record), (Indices{0, 0, 0, 0}));
  record.KEY3 = 5, record.ZidFlag = 1;
  EXPECT_EQ(Site_Indices(record), (Indices{6, 10, 7, 13}));
}

TEST(ModelInput, Zid_Indices_Stay_Unless_A_Zid_Is_Evaluated) {
  for (const auto& [key3, flag, method, derived] :
       {std::tuple{5, 1, 1, true}, std::tuple{6, 1, 3, true}, std::tuple{4, 1, 1, false},
        std::tuple{5, 0, 1, false}, std::tuple{5, -1, 1, false}, std::tuple{7, 1, 2, false}}) {
    ProjectRecord record = Square_Spacing();
    record.KEY3 = static_cast<std::int16_t>(key3);
    record.ZidFlag = static_cast<Flag>(flag);
    record.DisposalMethod = static_cast<std::int16_t>(method);
    record.ZidGridTop = 77;
    Written(record);
    EXPECT_EQ(record.ZidGridTop, derived ? 3 : 77) << key3 << ' ' << flag << ' ' << method;
  }
}

// ---- Density profile

TEST(ModelInput, Deeper_Water_Than_The_Profile_Adds_A_Point) {
  ProjectRecord record = Square_Spacing();
  record.DEPC0 = 100;
  record.DensityDepths = {0, 0, 80};
  record.Densities = {0, 1.01, 1.02};
  const auto lines = Whole_Lines(Written(record));
  EXPECT_EQ(record.NROA0, 3);
  EXPECT_EQ(record.DensityDepths[3], 100);
  EXPECT_EQ(record.Densities[3], 1.02);
  EXPECT_EQ(lines[14], "         0        80       100");
  EXPECT_EQ(lines[15], "      1.01      1.02      1.02");
}

TEST(ModelInput, A_Full_Profile_Is_Stretched_And_Keeps_Its_Last_Density) {
  ProjectRecord record = Square_Spacing();
  record.DEPC0 = 100;
  record.NROA0 = 5;
  record.DensityDepths = {0, 0, 20, 40, 60, 80};
  record.Densities = {0, 1.01, 1.02, 1.03, 1.04, 1.05};
  Written(record);
  EXPECT_EQ(record.NROA0, 5);
  EXPECT_EQ(record.DensityDepths[4], 60);
  EXPECT_EQ(record.DensityDepths[5], 100);
  EXPECT_EQ(record.Densities[5], 1.05);
}

TEST(ModelInput, A_Profile_That_Reaches_The_Bottom_Stays) {
  ProjectRecord record = Square_Spacing();
  record.DEPC0 = 80;
  record.DensityDepths = {0, 0, 80};
  Written(record);
  EXPECT_EQ(record.NROA0, 2);
}

TEST(ModelInput, An_Empty_Profile_Gets_Its_First_Point) {
  ProjectRecord record = Square_Spacing();
  record.NROA0 = 0;
  record.DEPC0 = 80;
  Written(record);
  EXPECT_EQ(record.NROA0, 1);
  EXPECT_EQ(record.DensityDepths[1], 80);
  EXPECT_EQ(record.Densities[1], 0);
}

// ---- Concentrations, flags, counters

struct Concentration_Case {
  int method, layers, separation;
  double fluid;
};

TEST(ModelInput, The_Fluid_Concentration_Follows_Method_Layers_And_Separation) {
  // Plain 10 x 2 x 0.5 = 10; layered 10 x (2 x 0.25 x 4) / 4 = 5; -1 is what stood there before.
  for (const auto& row : {Concentration_Case{1, 1, 0, 10}, Concentration_Case{1, 2, 1, 10},
                          Concentration_Case{2, 1, 0, -1}, Concentration_Case{2, 2, 1, -1},
                          Concentration_Case{3, 1, 1, 10}, Concentration_Case{3, 2, 0, 10},
                          Concentration_Case{3, 2, -1, 10}, Concentration_Case{3, 2, 1, 5}}) {
    for (const int key3 : {4, 7}) {
      ProjectRecord record = Square_Spacing();
      record.KEY3 = static_cast<std::int16_t>(key3);
      record.DisposalMethod = static_cast<std::int16_t>(row.method);
      record.LAYERS = static_cast<std::int16_t>(row.layers);
      record.SeparationFlag = static_cast<Flag>(row.separation);
      record.SedimentConcentration = 10;
      record.SolidSG[1] = 2, record.SolidVolFraction[1] = 0.5;
      record.LayerVolume = {0, 3, 1};
      record.LayerSolidFraction[1] = {0, 0.25, 0.25};
      record.TracerConcentration = record.FluidComputedConcentration = -1;
      Written(record);
      EXPECT_EQ(record.TracerConcentration, 10);
      EXPECT_EQ(record.FluidComputedConcentration, row.fluid)
          << row.method << ' ' << row.layers << ' ' << row.separation;
    }
  }
}

TEST(ModelInput, Other_Evaluations_Keep_Their_Tracer_Concentration) {
  ProjectRecord record = Square_Spacing();
  record.KEY3 = 5;
  record.SedimentConcentration = 10;
  record.SolidSG[1] = 2, record.SolidVolFraction[1] = 0.5;
  record.TracerConcentration = 3, record.FluidComputedConcentration = 4;
  Written(record);
  EXPECT_EQ(record.TracerConcentration, 3);
  EXPECT_EQ(record.FluidComputedConcentration, 4);
}

TEST(ModelInput, Tracer_Flags_Follow_The_Evaluation_For_The_Solids_Of_The_Project) {
  ProjectRecord record = Square_Spacing();
  record.NumSolids = 2;
  record.SolidTracerFlag = {0, 9, 9, 9};
  record.KEY3 = 1;
  Written(record);
  EXPECT_EQ(record.SolidTracerFlag[1], 0);
  EXPECT_EQ(record.SolidTracerFlag[2], 0);
  EXPECT_EQ(record.SolidTracerFlag[3], 9);
  record.KEY3 = 2;
  Written(record);
  EXPECT_EQ(record.SolidTracerFlag[2], 1);
}

TEST(ModelInput, The_Counters_Are_Zero) {
  ProjectRecord record = Square_Spacing();
  record.CohesiveCount = record.StrippedCount = 5;
  record.TracerSolidCount = record.DepthGridFlagOut = 5;
  record.SolidCohesive[1] = record.SolidStripped[1] = 1;
  Written(record);
  EXPECT_EQ(record.CohesiveCount + record.StrippedCount, 0);
  EXPECT_EQ(record.TracerSolidCount + record.DepthGridFlagOut, 0);
}

TEST(ModelInput, Writing_Does_Not_Mark_The_Project_As_Changed) {
  ProjectRecord record = Hopper_Example();
  record.DataSaved = kTrue;
  Written(record);
  EXPECT_EQ(record.DataSaved, kTrue);
}

TEST(ModelInput, A_Method_Without_A_Section_Has_No_Text) {
  for (const int method : {0, 4, -1}) {
    ProjectRecord record = Square_Spacing();
    record.DisposalMethod = static_cast<std::int16_t>(method);
    record.KEY3 = 2;
    EXPECT_EQ(Written(record), "") << method;
    EXPECT_EQ(record.SolidTracerFlag[1], 1);
  }
}

// ---- Failures

TEST(ModelInput, A_Zero_Spacing_Stops_The_Writing) {
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.DX0 = 0; }), Failure::Division_By_Zero);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.DX0 = r.DZ0 = 0; }), Failure::Division_By_Zero);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.DX0 = r.DZ0 = r.SiteTop = 0; }),
            Failure::Division_By_Zero);
}

TEST(ModelInput, A_Fresh_Project_Has_No_Spacing_And_Is_Not_Written) {
  ProjectRecord record;
  Set_Project_Defaults(record);
  EXPECT_EQ(Failure_Of(record), Failure::Division_By_Zero);
}

TEST(ModelInput, What_Was_Derived_Before_A_Failure_Stays) {
  ProjectRecord record = Square_Spacing();
  record.KEY3 = 4;
  record.SedimentConcentration = 10;
  record.SolidSG[1] = 2, record.SolidVolFraction[1] = 0.5;
  record.DX0 = 0, record.DEPC0 = 50;
  EXPECT_EQ(Failure_Of(record), Failure::Division_By_Zero);
  EXPECT_EQ(record.TracerConcentration, 10);
  EXPECT_EQ(record.SolidTracerFlag[1], 1);
  EXPECT_EQ(record.NROA0, 2);
}

TEST(ModelInput, Grid_Points_Beyond_16_Bits_Are_An_Overflow) {
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.SiteBottom = 1e9; }), Failure::Overflow);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.SiteLeft = -1e9; }), Failure::Overflow);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.SiteTop = 3276600; }), Failure::Overflow);
  EXPECT_EQ(Failure_With(
                [](ProjectRecord& r) { r.SiteRight = std::numeric_limits<double>::quiet_NaN(); }),
            Failure::Overflow);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.MMAX0 = -32768; }), Failure::Overflow);
}

TEST(ModelInput, Counts_Beyond_The_Arrays_Are_Subscript_Failures) {
  const auto S = Failure::Subscript;
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumSolids = 6; }), S);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NROA0 = 6; }), S);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NROA0 = -1; }), S);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NOPENS = 7; }), S);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumPrintTimes = 13; }), S);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumOutputDepths = 6; }), S);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.LAYERS = 7; }, 3), S);
  EXPECT_EQ(Failure_With(
                [](ProjectRecord& r) {
                  r.NumSolids = 5;
                  r.SeparationFlag = 1;
                },
                3),
            S);
  for (const int method : {1, 2, 3}) {
    EXPECT_EQ(Failure_With(
                  [](ProjectRecord& r) {
                    r.MMAX0 = 97;
                    r.ConstantDepthFlag = 0;
                  },
                  method),
              S);
    EXPECT_EQ(Failure_With(
                  [](ProjectRecord& r) {
                    r.NMAX0 = 97;
                    r.VelocityProfileType = 4;
                  },
                  method),
              S);
    EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumPrintTimes = 32767; }, method), S);
    EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumOutputDepths = 1e300; }, method), S);
  }
}

TEST(ModelInput, Counts_That_Form_No_Subscript_Are_Written_As_They_Are) {
  const auto none = Failure::None;
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.MMAX0 = r.NMAX0 = 500; }), none);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.LAYERS = 7; }), none);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NOPENS = 7; }, 3), none);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumSolids = 5; }), none);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumOutputDepths = 5.9; }), none);
  EXPECT_EQ(Failure_With([](ProjectRecord& r) { r.NumOutputDepths = r.NumPrintTimes = -2; }), none);
}

// ---- The export

TEST(ModelExtract, Stands_Beside_The_Project_With_The_Extension_DUE) {
  const Scratch_Folder folder;
  ProjectRecord record = Hopper_Example();
  record.FileTypeTag = "   DUMP";
  EXPECT_EQ(Save_Model_Extract(folder / "site.a.dui", record), Failure::None);
  EXPECT_EQ(record.FileTypeTag, "DUE");
  EXPECT_EQ(Read_Text(folder / "site.a.DUE"),
            Read_Text(std::string(BARVON_TEST_DATA) + "/model_input/hopper_with_two_openings.due"));
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"site.a.DUE"});
}

TEST(ModelExtract, A_Path_Without_A_Dot_Gets_The_Extension_Added) {
  const Scratch_Folder folder;
  ProjectRecord record = Hopper_Example();
  EXPECT_EQ(Save_Model_Extract(folder / "site", record), Failure::None);
  EXPECT_TRUE(Exists(folder / "site.DUE"));
}

TEST(ModelExtract, Replaces_A_Longer_Older_Export_As_A_Whole) {
  const Scratch_Folder folder;
  Write_Text(folder / "site.DUE", std::string(100000, 'x'));
  ProjectRecord record = Hopper_Example();
  ProjectRecord same = Hopper_Example();
  EXPECT_EQ(Save_Model_Extract(folder / "site.DUI", record), Failure::None);
  EXPECT_EQ(Read_Text(folder / "site.DUE"), Written(same));
}

TEST(ModelExtract, What_Cannot_Be_Derived_Leaves_No_File) {
  const Scratch_Folder folder;
  ProjectRecord record = Hopper_Example();
  record.FileTypeTag = "   DUMP";
  record.DX0 = 0;
  EXPECT_EQ(Save_Model_Extract(folder / "site.DUI", record), Failure::Division_By_Zero);
  EXPECT_TRUE(Names_In(folder.path()).empty());
  EXPECT_EQ(record.FileTypeTag, "DUE");
}

TEST(ModelExtract, What_Cannot_Be_Derived_Leaves_An_Older_Export_Whole) {
  const Scratch_Folder folder;
  Write_Text(folder / "site.DUE", "older");
  ProjectRecord record = Hopper_Example();
  record.NumSolids = 6;
  EXPECT_EQ(Save_Model_Extract(folder / "site.DUI", record), Failure::Subscript);
  EXPECT_EQ(Read_Text(folder / "site.DUE"), "older");
}

TEST(ModelExtract, A_Folder_That_Is_Not_There_Is_The_Failure_Of_The_Writing) {
  const Scratch_Folder folder;
  ProjectRecord record = Hopper_Example();
  EXPECT_EQ(Save_Model_Extract(folder / "gone/site.DUI", record), Failure::File_Not_Found);
  EXPECT_TRUE(Names_In(folder.path()).empty());
}

}  // namespace
}  // namespace barvon::testing

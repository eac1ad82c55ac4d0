#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/project_defaults.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

/// What a refresh makes of a record, by the rules.
void Apply_What_A_Refresh_Changes(ProjectRecord& r) {
  if (r.KEY4 >= 1 && r.KEY4 <= 6) {
    r.AnalysisType = r.KEY4 <= 2 ? 1 : r.KEY4 <= 4 ? 2 : 3;
    r.FileKind = 2;
  }
  if (r.DisposalMethod == 1 || r.DisposalMethod == 3) {
    r.KEY1 = 1;
    r.PreviousDisposalMethod = r.DisposalMethod;
  }
  if (r.SiteDensity < 0.972) r.SiteDensity = 0.972;
  if (r.SiteDensity > 1.05) r.SiteDensity = 1.05;
  if (r.KEY2 < 0) r.KEY2 = 0;
  if (r.KEY2 == 1 || r.KEY2 == 2) {
    r.KEY2 = 2;
    r.SolidNames[5].clear();
    r.TracerConcentration = r.BackgroundConcentration = r.CriterionConcentration = 0;
    r.SedimentConcentration = r.ZidTop = r.ZidLeft = r.ZidBottom = r.ZidRight = 0;
  }
}

class Random_Records {
 public:
  int Number(int from, int to) { return std::uniform_int_distribution(from, to)(engine_); }

  void Fill(ProjectRecord& r) {
    for (const Slot_Row& row : Real_Slot_Rows()) {
      for (int i = 1; i <= row.count; ++i) row.set(r, i, Number(-40, 4000) / 16.0);
    }
    for (const Slot_Row& row : Int_Slot_Rows()) {
      for (int i = 1; i <= row.count; ++i) row.set(r, i, Number(-1, 3));
    }
    r.KEY2 = static_cast<std::int16_t>(Number(-1, 3));
    r.KEY3 = static_cast<std::int16_t>(Number(-1, 8));
    r.KEY4 = static_cast<std::int16_t>(Number(-1, 8));
    r.DisposalMethod = static_cast<std::int16_t>(Number(0, 4));
    r.AnalysisType = static_cast<std::int16_t>(Number(-1, 4));
    r.VelocityProfileType = Number(0, 13) / 2.0;
    r.SiteDensity = Number(900, 1100) / 1000.0;
    r.ConstantDepthFlag = static_cast<std::int16_t>(Number(0, 1));
    r.ProjectTitle = std::string(static_cast<std::size_t>(Number(0, 80)), 't') + "\n";
    for (std::string& name : r.SolidNames) name = "solid" + std::to_string(Number(0, 99));
  }

 private:
  std::mt19937 engine_{20260113};
};

TEST(MainRefresh, A_Random_Record_Is_The_Same_But_For_What_A_Refresh_Changes) {
  Main_Bench bench;
  Modal_Replies no_question({});
  Random_Records random;
  auto expected = std::make_unique<ProjectRecord>();
  for (int round = 0; round < 300; ++round) {
    random.Fill(Project());
    *expected = Project();
    Apply_What_A_Refresh_Changes(*expected);
    Port().board.display_data();
    ASSERT_EQ(Differing_Fields(Project(), *expected), std::vector<std::string>{}) << round;
    bench.controls().SSPanel3(0)->click();
    Port().board.display_data();
    ASSERT_EQ(Differing_Fields(Project(), *expected), std::vector<std::string>{}) << round;
  }
}

TEST(MainRefresh, A_Random_Project_Loaded_Refreshed_And_Saved_Again_Is_The_Same_File) {
  Main_Bench bench;
  Modal_Replies no_boxes({});
  Random_Records random;
  const std::string first = bench.folder / "first.DUI";
  const std::string second = bench.folder / "second.DUI";
  for (int round = 0; round < 8; ++round) {
    random.Fill(Project());
    Project().BulkDensity = 0;  // from another one a load computes the water density
    ASSERT_TRUE(Save_File(first, 2, Project()));
    ASSERT_TRUE(Open_Project(first, Project())) << round;
    Port().board.display_data();
    bench.controls().SSPanel3(0)->click();
    ASSERT_TRUE(Save_File(second, 2, Project())) << round;
    // Not EXPECT_EQ: a difference would print a quarter of a megabyte.
    ASSERT_TRUE(Read_Text(first) == Read_Text(second)) << round;
  }
}

TEST(MainRefresh, Every_Sample_Is_The_Same_But_For_What_A_Refresh_Changes) {
  Main_Bench bench;
  Modal_Replies no_question({});
  auto expected = std::make_unique<ProjectRecord>();
  int samples = 0;
  for (const auto& entry : std::filesystem::directory_iterator(BARVON_SAMPLES)) {
    if (entry.path().extension() != ".DUI") continue;
    ++samples;
    ASSERT_TRUE(Open_Project(entry.path().string(), Project()));
    *expected = Project();
    Apply_What_A_Refresh_Changes(*expected);
    Port().board.display_data();
    bench.controls().SSPanel3(0)->click();
    Port().board.display_data();
    EXPECT_EQ(Differing_Fields(Project(), *expected), std::vector<std::string>{}) << entry.path();
  }
  EXPECT_EQ(samples, 8);
}

TEST(MainRefresh, A_Barge_Project_Opened_While_The_Hopper_Is_Shown_Stays_Its_Own) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  bench.controls().SSOption2(0)->click();
  Project().KEY4 = 4;
  Project().KEY3 = 3;
  Project().DisposalMethod = 3;
  Project().VelocityProfileType = 5;
  Port().board.display_data();
  EXPECT_EQ(Project().KEY4, 4);
  EXPECT_EQ(Project().KEY3, 3);
  EXPECT_EQ(Project().DisposalMethod, 3);
  EXPECT_EQ(Project().VelocityProfileType, 5);
  EXPECT_TRUE(bench.controls().SSOption4(2)->isChecked());
}

TEST(MainRefresh, KEY2_Of_1_Comes_Up_As_Descent_And_Collapse_Without_A_Contaminant) {
  Main_Bench bench;
  Project().KEY2 = 1;
  Project().TracerConcentration = 7;
  bench.controls().SSPanel3(0)->click();
  EXPECT_EQ(Project().KEY2, 2);
  EXPECT_EQ(Project().TracerConcentration, 0);
  EXPECT_TRUE(bench.controls().SSOption3(0)->isChecked());
  Project().KEY2 = -1;
  bench.controls().SSPanel3(0)->click();
  EXPECT_EQ(Project().KEY2, 0);
  EXPECT_TRUE(bench.controls().SSOption3(1)->isChecked());
}

TEST(MainRefresh, A_File_With_KEY2_Of_1_Comes_Up_As_Descent_And_Collapse_And_Is_Saved_As_2) {
  Main_Bench bench;
  Modal_Replies no_boxes({});
  const std::string file = bench.folder / "descent.DUI";
  Set_Project_Defaults(Project());
  Project().KEY4 = 3;
  Project().KEY2 = 1;
  Project().TracerConcentration = 7;
  Project().ZidRight = 9;
  Pack_Slots(Project());
  Write_Text(file, Save_Project(file, Project()));

  ASSERT_TRUE(Open_Project(file, Project()));
  EXPECT_EQ(Project().KEY2, 1);
  EXPECT_EQ(Project().TracerConcentration, 7);
  Port().board.display_data();
  EXPECT_TRUE(bench.controls().SSOption3(0)->isChecked());
  EXPECT_EQ(Project().TracerConcentration, 0);
  EXPECT_EQ(Project().ZidRight, 0);
  ASSERT_TRUE(Save_File(file, 2, Project()));
  ASSERT_TRUE(Open_Project(file, Project()));
  EXPECT_EQ(Project().KEY2, 2);
}

TEST(MainRefresh, A_Water_Density_Beyond_Its_Limits_Is_Stored_At_The_Limit_By_The_Next_Save) {
  Main_Bench bench;
  Modal_Replies no_boxes({});
  const std::string file = bench.folder / "dense.DUI";
  const std::pair<double, double> densities[] = {{1.2, 1.05}, {0.9, 0.972}};
  for (const auto& [stored, held] : densities) {
    Set_Project_Defaults(Project());
    Project().NumSolids = 0;  // with a solid the load itself holds the density to its limits
    Project().SiteDensity = stored;
    Pack_Slots(Project());
    Write_Text(file, Save_Project(file, Project()));
    ASSERT_TRUE(Open_Project(file, Project()));
    EXPECT_EQ(Project().SiteDensity, stored);
    Port().board.display_data();
    EXPECT_EQ(Project().SiteDensity, held);
    ASSERT_TRUE(Save_File(file, 2, Project()));
    ASSERT_TRUE(Open_Project(file, Project()));
    EXPECT_EQ(Project().SiteDensity, held);
  }
}

TEST(MainRefresh, KEY4_And_DisposalMethod_Each_Show_In_Their_Own_Group) {
  Main_Bench bench;
  const int type_of[] = {-1, 0, 0, 1, 1, 2, 2, -1};
  const int method_of[] = {-1, 0, -1, 1, -1};
  for (std::int16_t key4 = 0; key4 <= 7; ++key4) {
    for (std::int16_t method = 0; method <= 4; ++method) {
      Project().KEY4 = key4;
      Project().DisposalMethod = method;
      Port().board.display_data();
      for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(bench.controls().SSOption1(i)->isChecked(), i == type_of[key4]) << key4;
      }
      for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(bench.controls().SSOption2(i)->isChecked(), i == method_of[method]) << method;
      }
    }
  }
}

TEST(MainRefresh, A_Refresh_In_The_Dilution_Mode_Does_Not_Leave_It) {
  Main_Bench bench;
  bench.controls().SSOption1(1)->click();
  bench.controls().SSRibbon2(3)->click();
  bench.Action("mnuEditItem(0)")->trigger();
  bench.controls().SSPanel3(0)->click();
  EXPECT_EQ(Project().KEY4, 7);
  EXPECT_EQ(Project().FileKind, 1);
  EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
  EXPECT_FALSE(bench.Action("mnuEditItem(1)")->isEnabled());
}

TEST(MainRefresh, A_KEY2_Without_A_Meaning_Shows_No_Simulation_Type_And_Stays) {
  Main_Bench bench;
  Project().KEY2 = 3;
  Port().board.display_data();
  EXPECT_EQ(Project().KEY2, 3);
  for (QRadioButton* option : bench.controls().SSOption3) EXPECT_FALSE(option->isChecked());
}

}  // namespace
}  // namespace barvon

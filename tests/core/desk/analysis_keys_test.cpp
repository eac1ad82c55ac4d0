#include "core/desk/analysis_keys.h"

#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class AnalysisKeys : public Recorded_Workspace {
 protected:
  void Give_A_Contaminant() {
    record_.TracerName() = "Copper";
    record_.TracerConcentration = 1;
    record_.BackgroundConcentration = 2;
    record_.CriterionConcentration = 3;
    record_.SedimentConcentration = 4;
    record_.ZidTop = record_.ZidLeft = record_.ZidBottom = record_.ZidRight = 5;
    record_.ToxicityDilution = 6;
    record_.ZCRIT = 7;
  }
  bool Has_The_Contaminant() const {
    return record_.TracerName() == "Copper" && record_.TracerConcentration == 1 &&
           record_.BackgroundConcentration == 2 && record_.CriterionConcentration == 3 &&
           record_.SedimentConcentration == 4 && record_.ZidTop == 5 && record_.ZidLeft == 5 &&
           record_.ZidBottom == 5 && record_.ZidRight == 5;
  }
};

TEST_F(AnalysisKeys, A_Refresh_Rebuilds_KEY4_Only_While_The_Legacy_Flag_Is_On) {
  record_.KEY3 = 3;
  record_.DisposalMethod = 3;
  record_.KEY4 = 0;
  Refresh_Record(record_);
  EXPECT_EQ(record_.KEY4, 0);
  record_.LegacyKeyRebuild = kTrue;
  Refresh_Record(record_);
  EXPECT_EQ(record_.KEY4, 4);
  EXPECT_EQ(record_.AnalysisType, 2);
  record_.DisposalMethod = 2;
  record_.KEY4 = 1;
  Refresh_Record(record_);
  EXPECT_EQ(record_.KEY4, 1);
}

TEST_F(AnalysisKeys, A_KEY4_That_Chooses_A_Type_Sets_It_And_Makes_A_Model_Input_Project) {
  record_.FileKind = 1;
  record_.KEY4 = 6;
  Refresh_Record(record_);
  EXPECT_EQ(record_.AnalysisType, 3);
  EXPECT_EQ(record_.FileKind, 2);
  EXPECT_EQ(record_.KEY4, 6);
}

TEST_F(AnalysisKeys, A_KEY4_Of_0_Or_7_Leaves_Type_And_Kind) {
  for (const std::int16_t key4 : {0, 7}) {
    record_.AnalysisType = 2;
    record_.FileKind = 1;
    record_.KEY4 = key4;
    Refresh_Record(record_);
    EXPECT_EQ(record_.AnalysisType, 2);
    EXPECT_EQ(record_.FileKind, 1);
  }
}

TEST_F(AnalysisKeys, Hopper_And_Barge_Set_KEY1_And_Other_Methods_Leave_It) {
  for (const std::int16_t method : {1, 3}) {
    record_.KEY1 = 0;
    record_.PreviousDisposalMethod = 0;
    record_.DisposalMethod = method;
    Refresh_Record(record_);
    EXPECT_EQ(record_.KEY1, 1);
    EXPECT_EQ(record_.PreviousDisposalMethod, method);
  }
  record_.KEY1 = 0;
  record_.DisposalMethod = 2;
  Refresh_Record(record_);
  EXPECT_EQ(record_.KEY1, 0);
  EXPECT_EQ(record_.PreviousDisposalMethod, 3);
  EXPECT_EQ(record_.DisposalMethod, 2);
}

TEST_F(AnalysisKeys, A_Site_Density_Of_1_2_Is_Silently_Held_At_1_05) {
  record_.SiteDensity = 1.2;
  Refresh_Record(record_);
  EXPECT_EQ(record_.SiteDensity, 1.05);
  record_.SiteDensity = 0.5;
  Refresh_Record(record_);
  EXPECT_EQ(record_.SiteDensity, 0.972);
}

TEST_F(AnalysisKeys, KEY2_1_Comes_Up_As_Descent_And_Collapse_And_Clears_The_Contaminant) {
  Give_A_Contaminant();
  record_.KEY2 = 1;
  record_.KEY3 = 4;
  Refresh_Record(record_);
  EXPECT_EQ(record_.KEY2, 2);
  EXPECT_EQ(record_.KEY3, 4);
  EXPECT_EQ(record_.TracerName(), "");
  EXPECT_EQ(record_.TracerConcentration, 0);
  EXPECT_EQ(record_.BackgroundConcentration, 0);
  EXPECT_EQ(record_.CriterionConcentration, 0);
  EXPECT_EQ(record_.SedimentConcentration, 0);
  EXPECT_EQ(record_.ZidTop + record_.ZidLeft + record_.ZidBottom + record_.ZidRight, 0);
  EXPECT_EQ(record_.ToxicityDilution, 6);
  EXPECT_EQ(record_.ZCRIT, 7);
}

TEST_F(AnalysisKeys, A_Negative_KEY2_Becomes_0_And_Keeps_The_Contaminant) {
  Give_A_Contaminant();
  record_.KEY2 = -3;
  Refresh_Record(record_);
  EXPECT_EQ(record_.KEY2, 0);
  EXPECT_TRUE(Has_The_Contaminant());
}

TEST_F(AnalysisKeys, Showing_A_Project_Refreshes_The_Record_First) {
  record_.KEY2 = 1;
  Show_Project(record_);
  EXPECT_EQ(record_.KEY2, 2);
  EXPECT_EQ(log_, std::vector<std::string>{"display"});
}

}  // namespace
}  // namespace barvon

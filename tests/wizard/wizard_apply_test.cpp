#include "wizard/wizard_apply.h"

#include <gtest/gtest.h>

#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/velocity_types.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

class WizardApply : public Recorded_Workspace {
 protected:
  WizardApply() {
    Set_Project_Defaults(record_);
    record_.DataSaved = kTrue;
    record_.WizardActive = kTrue;
    entry.texts("Text1") = "River mouth";
    entry.texts("Text7", kMaxDuration) = "3600";
    entry.texts("Text7", kWaterDepth) = "60";
    log_.clear();
  }
  void Apply(const Accepted_Data& accepted = {}) { ApplyWizardToProject(entry, accepted, record_); }
  Wizard_Entry entry;
};

struct Key_Row {
  int analysis, evaluation;
  std::int16_t key3;
};

TEST_F(WizardApply, KEY3_Follows_Type_And_Evaluation) {
  for (const Key_Row& row : {Key_Row{0, 0, 0},
                             {0, 1, 1},
                             {1, 0, 4},
                             {1, 1, 2},
                             {1, 2, 3},
                             {2, 0, 7},
                             {2, 1, 5},
                             {2, 2, 6},
                             {0, 2, 0}}) {
    for (const int simulation : {0, 1}) {
      entry.analysis = row.analysis;
      entry.evaluation = row.evaluation;
      entry.simulation = simulation;
      Apply();
      EXPECT_EQ(record_.AnalysisType, row.analysis + 1);
      EXPECT_EQ(record_.KEY3, row.key3) << row.analysis << " " << row.evaluation;
      EXPECT_EQ(record_.KEY2, simulation == 0 ? 2 : 0);
    }
  }
}

TEST_F(WizardApply, All_Six_Crossings_Give_Their_KEY4) {
  std::int16_t key4 = 1;
  for (const int analysis : {0, 1, 2}) {
    for (const int method : {0, 1}) {
      entry.analysis = analysis;
      entry.method = method;
      Apply();
      EXPECT_EQ(record_.KEY4, key4++);
      EXPECT_EQ(record_.DisposalMethod, method == 0 ? 1 : 3);
      EXPECT_EQ(record_.KEY1, 1);
      EXPECT_EQ(record_.FileKind, kProjectKind);
    }
  }
}

TEST_F(WizardApply, The_Velocity_Type_Follows_The_Option_And_A_Logarithm_Stays) {
  const std::pair<int, double> rows[] = {{0, 1}, {1, 3}, {2, 4}, {3, 5}};
  for (const auto& [option, type] : rows) {
    record_.VelocityProfileType = option == 0 ? 4 : 1;
    entry.velocity = option;
    Apply();
    EXPECT_EQ(record_.VelocityProfileType, type);
  }
  record_.VelocityProfileType = kLogarithmicVelocity;
  entry.velocity = 0;
  Apply();
  EXPECT_EQ(record_.VelocityProfileType, kLogarithmicVelocity);
}

TEST_F(WizardApply, What_A_Screen_Accepted_Is_Not_Overwritten) {
  record_.DEPC0 = 71.5;
  record_.SimulationDuration = 7200;
  record_.VelocityProfileType = kUnsteadyVelocity;
  Apply({.depth = true, .duration = true, .velocity = true});
  EXPECT_EQ(record_.DEPC0, 71.5);
  EXPECT_EQ(record_.SimulationDuration, 7200);
  EXPECT_EQ(record_.VelocityProfileType, kUnsteadyVelocity);
  Apply();
  EXPECT_EQ(record_.DEPC0, 60);
  EXPECT_EQ(record_.SimulationDuration, 3600);
  EXPECT_EQ(record_.VelocityProfileType, kSingleVelocity);
}

TEST_F(WizardApply, The_Depth_Is_Written_Above_0_And_For_A_Constant_Depth_Only) {
  record_.DEPC0 = 20;
  for (const char* depth : {"0", "", "-5", "deep"}) {
    entry.texts("Text7", kWaterDepth) = depth;
    Apply();
    EXPECT_EQ(record_.DEPC0, 20) << depth;
  }
  entry.texts("Text7", kWaterDepth) = "60";
  record_.ConstantDepthFlag = 0;
  record_.DEPC0 = 0;
  Apply();
  EXPECT_EQ(record_.DEPC0, 0);
}

TEST_F(WizardApply, Title_And_Flags_Are_Set_And_The_Window_Shows_The_Project) {
  Apply();
  EXPECT_EQ(record_.ProjectTitle, "River mouth");
  EXPECT_EQ(record_.WizardAccepted, kTrue);
  EXPECT_EQ(record_.WizardActive, kFalse);
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(log_, std::vector<std::string>{"display"});
}

TEST_F(WizardApply, A_Title_That_Was_Not_Touched_Stays_Even_If_It_Is_Longer_Than_The_Field) {
  const std::string title(80, 'x');
  record_.ProjectTitle = title;
  entry.texts("Text1") = title.substr(0, 60);
  entry.texts.Set_Filled({"Text1"}, title.substr(0, 60));
  Apply();
  EXPECT_EQ(record_.ProjectTitle, title);
  entry.texts("Text1") = "";
  Apply();
  EXPECT_EQ(record_.ProjectTitle, "");
}

TEST_F(WizardApply, Two_Points_Over_Varying_Depths_Are_Asked_About) {
  record_.VelocityProfileType = kTwoPointVelocity;
  EXPECT_FALSE(Ask_About_Two_Points(record_)) << "constant depth";
  record_.ConstantDepthFlag = 0;
  for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel}) {
    Scripted_Messages messages({answer});
    EXPECT_EQ(Ask_About_Two_Points(record_), answer == Answer::Yes);
    EXPECT_EQ(messages.shown.at(0).text,
              "To Use Two-Point Velocity Profile Variable Depth Must Be Disabled. Do You Wish To "
              "Disable Variable Depth Specification Now?");
  }
  record_.VelocityProfileType = kSingleVelocity;
  EXPECT_FALSE(Ask_About_Two_Points(record_));
}

}  // namespace
}  // namespace barvon::testing

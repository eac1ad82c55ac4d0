#include "core/desk/reset_vars.h"

#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using Lines = std::vector<std::string>;

class ResetVars : public Recorded_Workspace {
 protected:
  ResetVars() {
    record_.ProjectFileName = "/data/site.dui";
    record_.BaseFileName = "/data/site";
    record_.ProjectTitle = "Former";
    record_.MMAX0 = 96;
    record_.DataSaved = kTrue;
    record_.ScreenDataSupplied.fill(kTrue);
    record_.WizardActive = record_.WizardAccepted = kTrue;
    record_.WizardHelpOn = record_.AlwaysSaveBeforeRun = kTrue;
    record_.ShowMode = 1;
  }
};

TEST_F(ResetVars, The_Workspace_Hears_Of_A_New_Project_In_Order) {
  Scripted_Messages messages;
  EXPECT_TRUE(Reset_Vars(record_));
  EXPECT_EQ(log_, (Lines{"clear text checks", "close dilution", "caption BARVON - UNTITLED.DUI",
                         "new project"}));
}

TEST_F(ResetVars, The_Record_Is_That_Of_A_New_Project) {
  Scripted_Messages messages;
  EXPECT_TRUE(Reset_Vars(record_));
  EXPECT_EQ(record_.ProjectFileName, "");
  EXPECT_EQ(record_.ProjectTitle, "");
  EXPECT_EQ(record_.MMAX0, 32);
  EXPECT_EQ(record_.SiteDensity, 1.0);
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(record_.OldGridFile, 99);
  for (int i = 1; i <= 8; ++i) EXPECT_EQ(record_.ScreenDataSupplied.at(i), kFalse);
}

TEST_F(ResetVars, The_Wizards_State_Is_Cleared_And_The_Users_Options_Stay) {
  Scripted_Messages messages;
  EXPECT_TRUE(Reset_Vars(record_));
  EXPECT_EQ(record_.WizardActive, kFalse);
  EXPECT_EQ(record_.WizardAccepted, kFalse);
  EXPECT_EQ(record_.WizardHelpOn, kTrue);
  EXPECT_EQ(record_.AlwaysSaveBeforeRun, kTrue);
  EXPECT_EQ(record_.ShowMode, 1);
}

TEST_F(ResetVars, Nothing_Of_The_Former_Project_Names_Outputs_Or_Is_Told) {
  Scripted_Messages messages;
  EXPECT_TRUE(Reset_Vars(record_));
  EXPECT_EQ(record_.BaseFileName, "");
  ASSERT_FALSE(notes_.empty());
  EXPECT_EQ(notes_.back(), "");
}

TEST_F(ResetVars, Cancel_About_Changed_Text_Resets_Nothing) {
  Scripted_Messages messages({Answer::Cancel});
  text_has_changed_ = true;
  EXPECT_FALSE(Reset_Vars(record_));
  EXPECT_EQ(record_.ProjectTitle, "Former");
  EXPECT_EQ(record_.MMAX0, 96);
  EXPECT_EQ(record_.WizardActive, kTrue);
  EXPECT_TRUE(log_.empty());
}

TEST_F(ResetVars, No_About_Changed_Text_Resets) {
  Scripted_Messages messages({Answer::No});
  text_has_changed_ = true;
  EXPECT_TRUE(Reset_Vars(record_));
  EXPECT_EQ(record_.ProjectTitle, "");
}

}  // namespace
}  // namespace barvon

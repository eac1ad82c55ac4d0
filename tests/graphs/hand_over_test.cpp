#include "graphs/hand_over.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/desk/settings_keys.h"
#include "platform/files/app_folder.h"
#include "run/view_results.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

class HandOver : public ::testing::Test {
 protected:
  void Write_Settings(const std::string& bytes) const { Write_Text(folder / "BARVON.INI", bytes); }
  Hand_Over Read() const { return Read_Hand_Over(folder.path()); }
  std::string Given(const std::string& file) const {
    Write_Settings("[Graph File]\r\nGraphFile=" + file + "\r\n");
    return Read().file;
  }

  Scratch_Folder folder;
};

TEST_F(HandOver, Names_Of_Sections_And_Keys_Are_Those_That_The_Main_Program_Writes) {
  EXPECT_STREQ(kHandOverFile, kSettingsFile);
  EXPECT_STREQ(kGraphFileSectionName, kGraphFileSection);
  EXPECT_STREQ(kGraphFileKeyName, kGraphFileKey);
  EXPECT_STREQ(kSimTypeSectionName, kSimulationTypeSection);
  EXPECT_STREQ(kSimTypeKeyName, kSimTypeKey);
  EXPECT_EQ(kGraphViews, kGraphKinds);
}

TEST_F(HandOver, Each_Type_Is_A_View) {
  for (int view = 0; view < 4; ++view) {
    Write_Settings("[Graph File]\r\nGraphFile=/bay/site.DUI\r\n[Simulation Type]\r\nSimType=Type " +
                   std::to_string(view) + "\r\n");
    EXPECT_EQ(Read().view, view);
    EXPECT_EQ(Read().file, "/bay/site.DUI");
  }
}

TEST_F(HandOver, What_Is_No_Type_Is_The_Overview) {
  for (const char* type : {"Type 4", "Type -1", "2", "Type", "", "Type 2x", "Type  2"}) {
    Write_Settings(std::string("[Simulation Type]\r\nSimType=") + type + "\r\n");
    EXPECT_EQ(Read().view, kOverview) << type;
  }
  Write_Settings("[simulation type]\nsimtype = type 3\n");
  EXPECT_EQ(Read().view, kDeposit);
}

TEST_F(HandOver, Without_Settings_There_Is_None) {
  EXPECT_EQ(Read().file, "");
  EXPECT_EQ(Read().view, kOverview);
  Write_Settings("[Recent Files]\r\nRecentFile1=/bay/site.DUI\r\n");
  EXPECT_EQ(Read().file, "");
}

TEST_F(HandOver, Names_With_Blanks_Quotes_And_Semicolons_Come_As_They_Are) {
  EXPECT_EQ(Given("/the bay/ two  blanks.DUI"), "/the bay/ two  blanks.DUI");
  EXPECT_EQ(Given("/bay; old/a;b.DUI"), "/bay; old/a;b.DUI");
  EXPECT_EQ(Given("/\"bay\"/it's.DUI"), "/\"bay\"/it's.DUI");
  EXPECT_EQ(Given("/a=b/[c].DUI"), "/a=b/[c].DUI");
  EXPECT_EQ(Given("\"/quoted/site.DUI\""), "/quoted/site.DUI");
}

TEST_F(HandOver, Letters_Beyond_ASCII_Come_From_Windows_1252_And_From_UTF8) {
  EXPECT_EQ(Given("/K\xFC"
                  "ste/site.DUI"),
            "/K\xC3\xBCste/site.DUI");
  EXPECT_EQ(Given("/K\xC3\xBCste/site.DUI"), "/K\xC3\xBCste/site.DUI");
  EXPECT_EQ(Given("/\xE6\xB9\xBE/site.DUI"), "/\xE6\xB9\xBE/site.DUI");
}

TEST_F(HandOver, A_Relative_Name_Is_One_Of_The_Application_Directory) {
  EXPECT_EQ(Given("bay/site.DUI"), folder / "bay/site.DUI");
}

TEST_F(HandOver, What_The_Main_Program_Writes_Is_Read_Back) {
  const std::string former = Application_Folder();
  Set_Application_Folder(folder.path());
  for (const char* path : {"/b a/\xC3\xA4;'x'.DUI", "/\xE6\xB9\xBE/\"q\".dui"}) {
    EXPECT_TRUE(Write_Graph_File(path));
    EXPECT_EQ(Read().file, path);
  }
  Set_Application_Folder(former);
}

TEST_F(HandOver, A_Name_Leads_To_Results_By_Its_Project_Or_By_What_A_Run_Has_Left) {
  EXPECT_FALSE(Leads_To_Results(""));
  EXPECT_FALSE(Leads_To_Results(folder / "site.DUI"));
  EXPECT_FALSE(Leads_To_Results(folder.path()));
  Write_Text(folder / "site.DUI", "project");
  EXPECT_TRUE(Leads_To_Results(folder / "site.DUI"));
  EXPECT_TRUE(Leads_To_Results(folder / "SITE.dui"));
  // The dilution calculator hands over its own file; the outputs are beside it all the same.
  EXPECT_FALSE(Leads_To_Results(folder / "bay.DUD"));
  Write_Text(folder / "BAY.DUT", "series");
  EXPECT_TRUE(Leads_To_Results(folder / "bay.DUD"));
  std::filesystem::create_directory(folder / "folder.DUI");
  EXPECT_FALSE(Leads_To_Results(folder / "folder.DUI"));
}

}  // namespace
}  // namespace barvon::testing

#include "core/desk/file_dialogs.h"

#include "core/keys.h"
#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class FileDialogs : public Recorded_Workspace {
 protected:
  static void Expect_Filter(const File_Filter& filter, const char* name, const char* pattern) {
    EXPECT_EQ(filter.name, name);
    EXPECT_EQ(filter.pattern, pattern);
  }
};

TEST_F(FileDialogs, The_Open_Dialog_Offers_Projects_And_Outputs) {
  chosen_ = "/data/a.dui";
  for (const double kind : {0.0, 2.0, 3.0}) {
    EXPECT_EQ(Ask_File_To_Open(kind), "/data/a.dui");
    ASSERT_EQ(open_asked_.back().filters.size(), 2u);
    Expect_Filter(open_asked_.back().filters[0], "BARVON Data Files (*.DUI)", "*.DUI");
    Expect_Filter(open_asked_.back().filters[1], "BARVON Output FIles (*.DUO)", "*.DUO");
  }
}

TEST_F(FileDialogs, The_Open_Dialog_Of_Kind_1_Offers_Dilution_Files) {
  EXPECT_EQ(Ask_File_To_Open(1), std::nullopt);
  ASSERT_EQ(open_asked_.at(0).filters.size(), 1u);
  Expect_Filter(open_asked_[0].filters[0], "Dilution Files (*.DUD)", "*.DUD");
}

TEST_F(FileDialogs, The_Save_Dialog_Offers_The_Name_And_One_Filter_By_Kind) {
  chosen_ = "/data/b.DUI";
  EXPECT_EQ(File_SaveAs_Dialog("/data/a.DUI", kProjectKind), "/data/b.DUI");
  EXPECT_EQ(File_SaveAs_Dialog("/data/a.DUD", kDilutionKind), "/data/b.DUI");
  ASSERT_EQ(save_asked_.size(), 2u);
  EXPECT_EQ(save_asked_[0].name, "/data/a.DUI");
  ASSERT_EQ(save_asked_[0].filters.size(), 1u);
  Expect_Filter(save_asked_[0].filters[0], "BARVON Data File (*.DUI)", "*.DUI");
  EXPECT_EQ(save_asked_[1].name, "/data/a.DUD");
  ASSERT_EQ(save_asked_[1].filters.size(), 1u);
  Expect_Filter(save_asked_[1].filters[0], "Dilution File(*.DUD)", "*.DUD");
}

TEST_F(FileDialogs, A_Dilution_File_Is_Never_Offered_The_Name_Of_The_Project) {
  File_SaveAs_Dialog("/data/site.DUI", kDilutionKind);
  EXPECT_EQ(save_asked_.at(0).name, "/data/site.DUD");
  File_SaveAs_Dialog("/data/site", kDilutionKind);
  EXPECT_EQ(save_asked_.at(1).name, "/data/site.DUD");
  File_SaveAs_Dialog("", kDilutionKind);
  EXPECT_EQ(save_asked_.at(2).name, "");
}

TEST_F(FileDialogs, The_Dilution_File_Beside_The_Project_Is_Offered_When_It_Is_There) {
  Ask_File_To_Open(kDilutionKind, folder_ / "site.DUI");
  EXPECT_EQ(open_asked_.at(0).name, folder_.path());
  Write_Text(folder_ / "site.dud", "");
  Ask_File_To_Open(kDilutionKind, folder_ / "site.DUI");
  EXPECT_EQ(open_asked_.at(1).name, folder_ / "site.dud");
}

TEST_F(FileDialogs, Cancel_Gives_Nothing) {
  EXPECT_EQ(File_SaveAs_Dialog("/data/a.DUI", kProjectKind), std::nullopt);
  chosen_ = "";
  EXPECT_EQ(File_SaveAs_Dialog("/data/a.DUI", kProjectKind), std::nullopt);
}

TEST_F(FileDialogs, The_Dialog_Knows_Which_File_A_Chosen_Name_Stands_For) {
  File_SaveAs_Dialog("", kProjectKind);
  EXPECT_EQ(save_asked_.at(0).complete("/data/site"), "/data/site.DUI");
  File_SaveAs_Dialog("", kDilutionKind);
  EXPECT_EQ(save_asked_.at(1).complete("/data/site"), "/data/site.DUD");
}

TEST_F(FileDialogs, A_Name_Such_As_SITE_A_Gets_An_Extension) {
  EXPECT_EQ(With_Default_Extension("/data/SITE.A", kProjectKind), "/data/SITE.A.DUI");
  EXPECT_EQ(With_Default_Extension("/data/SITE.A", kDilutionKind), "/data/SITE.A.DUD");
  EXPECT_EQ(With_Default_Extension("/data/SITE.text", kProjectKind), "/data/SITE.text.DUI");
  EXPECT_EQ(With_Default_Extension("SITE", kProjectKind), "SITE.DUI");
  EXPECT_EQ(With_Default_Extension("a", kProjectKind), "a.DUI");
}

TEST_F(FileDialogs, A_Dot_At_The_Fourth_Place_From_The_End_Is_An_Extension) {
  EXPECT_EQ(With_Default_Extension("/data/site.dui", kProjectKind), "/data/site.dui");
  EXPECT_EQ(With_Default_Extension("/data/site.txt", kProjectKind), "/data/site.txt");
  EXPECT_EQ(With_Default_Extension("/data/.dui", kProjectKind), "/data/.dui");
  // Three characters of two bytes each.
  EXPECT_EQ(With_Default_Extension("a.\xC3\xA4\xC3\xB6\xC3\xBC", kProjectKind),
            "a.\xC3\xA4\xC3\xB6\xC3\xBC");
}

TEST_F(FileDialogs, A_Dot_In_The_Folder_Is_No_Extension) {
  EXPECT_EQ(With_Default_Extension("/v1.2/a", kProjectKind), "/v1.2/a.DUI");
}

TEST_F(FileDialogs, A_Project_With_A_Name_Is_Saved_Under_It_Without_A_Question) {
  record_.ProjectFileName = "/data/a.txt";
  EXPECT_EQ(Ask_Name_To_Save(record_), "/data/a.txt");
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(FileDialogs, A_Project_Without_A_Name_Asks_For_One) {
  chosen_ = "/data/new";
  EXPECT_EQ(Ask_Name_To_Save(record_), "/data/new.DUI");
  ASSERT_EQ(save_asked_.size(), 1u);
  EXPECT_EQ(save_asked_[0].name, "");
  EXPECT_EQ(record_.ProjectFileName, "");
}

TEST_F(FileDialogs, A_Project_Does_Not_Replace_The_Dilution_File_Whose_Name_It_Shares) {
  record_.ProjectFileName = "/data/a.dud";
  EXPECT_EQ(Ask_Name_To_Save(record_), std::nullopt);
  ASSERT_EQ(save_asked_.size(), 1u);
  EXPECT_EQ(save_asked_[0].name, "/data/a.DUI");
}

}  // namespace
}  // namespace barvon

#include "database/index_files.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

class IndexFiles : public ::testing::Test {
 protected:
  Scratch_Folder folder;
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
};

TEST_F(IndexFiles, Sites_And_Materials_Are_The_Second_Of_Three_Lines) {
  const std::string text = "100\r\nNorth Reach\r\n\r\n9999\r\n  South, 2 \r\n\r\n";
  Write_Text(folder / "dspsites.dat", text);
  Write_Text(folder / "sites.dat", text);
  EXPECT_EQ(Load_Site(folder.path(), *record).names, (Names{"North Reach", "  South, 2 "}));
  EXPECT_EQ(Load_Material(folder.path(), *record).names, (Names{"North Reach", "  South, 2 "}));
}

TEST_F(IndexFiles, Vessels_Have_Two_Lines_And_End_With_An_Empty_Code) {
  Write_Text(folder / "vessels.dat", "100\nAuk\n100\nBittern\n\nCurlew\n300\nDipper\n");
  EXPECT_EQ(Load_Disposal(folder.path(), *record).names, (Names{"Auk", "Bittern"}));
}

TEST_F(IndexFiles, A_Name_On_A_Last_Line_Without_An_End_Counts) {
  Write_Text(folder / "dspsites.dat", "100\r\nNorth\r\n\r\n200\r\nSouth");
  Write_Text(folder / "vessels.dat", "100\r\nAuk");
  EXPECT_EQ(Load_Site(folder.path(), *record).names, (Names{"North", "South"}));
  EXPECT_EQ(Load_Disposal(folder.path(), *record).names, Names{"Auk"});
}

TEST_F(IndexFiles, A_Code_Without_A_Name_Is_No_Entry) {
  Write_Text(folder / "sites.dat", "100\nNorth\n\n200\n");
  EXPECT_EQ(Load_Material(folder.path(), *record).names, Names{"North"});
}

TEST_F(IndexFiles, Names_Are_Of_The_Files_Encoding) {
  Write_Text(folder / "sites.dat",
             "100\nR\xe9"
             "duit\n\n");
  EXPECT_EQ(Load_Material(folder.path(), *record).names, Names{"R\xc3\xa9"
                                                               "duit"});
}

TEST_F(IndexFiles, A_File_In_Other_Letters_Is_Found) {
  Write_Text(folder / "VESSELS.DAT", "100\nAuk\n");
  EXPECT_EQ(Load_Disposal(folder.path(), *record).names, Names{"Auk"});
}

TEST_F(IndexFiles, A_Missing_File_Leaves_Its_List_Empty_And_Is_Named) {
  EXPECT_EQ(Load_Site(folder.path(), *record).missing_file, "dspsites.dat");
  EXPECT_EQ(Load_Material(folder.path(), *record).missing_file, "sites.dat");
  const List_Contents vessels = Load_Disposal(folder.path(), *record);
  EXPECT_EQ(vessels.missing_file, "vessels.dat");
  EXPECT_EQ(vessels.names, Names{});
  EXPECT_EQ(vessels.place, -1);
  EXPECT_EQ(Load_Velocity(*record).missing_file, "");
}

TEST_F(IndexFiles, The_Months_Are_No_File) {
  const List_Contents months = Load_Velocity(*record);
  ASSERT_EQ(months.names.size(), 12U);
  EXPECT_EQ(months.names.front(), "January");
  EXPECT_EQ(months.names[4], "May");
  EXPECT_EQ(months.names.back(), "December");
  EXPECT_EQ(months.place, -1);
  record->SelectedMonth = 12;
  EXPECT_EQ(Load_Velocity(*record).place, 11);
}

TEST_F(IndexFiles, A_List_Comes_Up_On_The_Place_That_Was_Chosen_Last) {
  Write_Text(folder / "dspsites.dat", "1\na\n\n1\nb\n\n");
  record->SelectedSiteCode = 200;
  EXPECT_EQ(Load_Site(folder.path(), *record).place, 1);
  for (const double code : {0., 300., -100., 150., 1e300}) {
    record->SelectedSiteCode = code;
    EXPECT_EQ(Load_Site(folder.path(), *record).place, -1) << code;
  }
}

TEST_F(IndexFiles, Loading_Clears_The_Found_Flag_Of_The_Category) {
  record->SiteFound = record->MaterialFound = record->VesselFound = kTrue;
  Load_Site(folder.path(), *record);
  EXPECT_EQ(record->SiteFound, kFalse);
  EXPECT_EQ(record->MaterialFound, kTrue);
  Load_Material(folder.path(), *record);
  EXPECT_EQ(record->MaterialFound, kFalse);
  EXPECT_EQ(record->VesselFound, kTrue);
  Load_Disposal(folder.path(), *record);
  EXPECT_EQ(record->VesselFound, kFalse);
}

TEST(DatabaseCodes, A_Code_Is_The_Place_Times_A_Hundred) {
  EXPECT_EQ(Code_Of_Place(0), 100);
  EXPECT_EQ(Code_Of_Place(1), 200);
  EXPECT_EQ(Code_Of_Place(-1), 0);
  EXPECT_EQ(Place_Of_Code(9900), 98);
  EXPECT_EQ(Place_Of_Code(10000), -1);
}

}  // namespace
}  // namespace barvon::testing

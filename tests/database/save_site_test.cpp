#include "database/save_site.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <memory>

#include "core/project_defaults.h"
#include "database/index_files.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

class SaveSite : public ::testing::Test {
 protected:
  SaveSite() {
    Set_Project_Defaults(*record);
    record->NMAX0 = 32;
    record->MMAX0 = 36;
    record->DZ0 = 100;
    record->DX0 = 250.5;
    record->DEPC0 = 42;
    record->RHDA0 = 0.005;
    record->SLOPEX0 = -0.25;
    record->SLOPEZ0 = 1.5;
    record->NROA0 = 2;
    record->DensityDepths[2] = 42;
    record->Densities[1] = 1.0012;
    record->Densities[2] = 1.0035;
    record->DEPTHI = 42;
  }

  const std::string data_ =
      " 200  2 \r\n 32  36 \r\n 100  250.5 \r\n 42 \r\n 0.005 \r\n\r\n-0.25  1.5 \r\n\r\n"
      " 0  1.0012 \r\n 42  1.0035 \r\n 42 \r\n";
  Scratch_Folder folder;
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
};

TEST_F(SaveSite, Both_Files_Byte_By_Byte) {
  Write_Text(folder / "dspsites.dat", "100\r\nNorth\r\n\r\n");
  Write_Text(folder / "dispdb.dat", "what stood there\r\n\r\n");
  const Site_Saved saved = Save_Site(folder.path(), 1, "South R\xc3\xa9", *record);
  EXPECT_EQ(saved.error, 0);
  EXPECT_EQ(Read_Text(folder / "dspsites.dat"), "100\r\nNorth\r\n\r\n 200 \r\nSouth R\xe9\r\n\r\n");
  EXPECT_EQ(Read_Text(folder / "dispdb.dat"), "what stood there\r\n\r\n" + data_);
}

TEST_F(SaveSite, A_Last_Line_Without_An_End_Gets_One_First) {
  Write_Text(folder / "dspsites.dat", "100\r\nNorth");
  Write_Text(folder / "dispdb.dat", "x");
  EXPECT_EQ(Save_Site(folder.path(), 1, "South", *record).error, 0);
  EXPECT_EQ(Read_Text(folder / "dspsites.dat"), "100\r\nNorth\r\n\r\n 200 \r\nSouth\r\n\r\n");
  EXPECT_EQ(*Site_Names(folder.path()), (std::vector<std::string>{"North", "South"}));
  EXPECT_EQ(Read_Text(folder / "dispdb.dat"), "x\r\n" + data_);
}

TEST_F(SaveSite, An_Empty_Line_Too_Many_Goes) {
  for (const char* end : {"\r\n", " \r\n", "\n", "  "}) {
    Write_Text(folder / "dspsites.dat", std::string("100\r\nNorth\r\n\r\n") + end);
    EXPECT_EQ(Save_Site(folder.path(), 1, "South", *record).error, 0);
    EXPECT_EQ(Read_Text(folder / "dspsites.dat"), "100\r\nNorth\r\n\r\n 200 \r\nSouth\r\n\r\n");
    EXPECT_EQ(*Site_Names(folder.path()), (std::vector<std::string>{"North", "South"}));
  }
}

TEST_F(SaveSite, A_List_That_Is_Out_Of_Step_Is_Left) {
  Write_Text(folder / "dispdb.dat", "x");
  for (const char* list : {"100\r\nNorth\r\n\r\n200\r\n", "100\r\nNorth\r\n\r\n2\r\nSouth"}) {
    Write_Text(folder / "dspsites.dat", list);
    const Site_Saved saved = Save_Site(folder.path(), 1, "South", *record);
    EXPECT_TRUE(saved.out_of_step);
    EXPECT_EQ(saved.file, "dspsites.dat");
    EXPECT_EQ(Read_Text(folder / "dspsites.dat"), list);
    EXPECT_EQ(Read_Text(folder / "dispdb.dat"), "x");
  }
}

TEST_F(SaveSite, Missing_Files_Are_Made) {
  EXPECT_EQ(Save_Site(folder.path(), 0, "First", *record).error, 0);
  EXPECT_EQ(Read_Text(folder / "dspsites.dat"), " 100 \r\nFirst\r\n\r\n");
  EXPECT_EQ(*Site_Names(folder.path()), std::vector<std::string>{"First"});
}

TEST_F(SaveSite, A_File_That_Fails_Is_Named_And_Neither_Is_Written) {
  Write_Text(folder / "dspsites.dat", "100\r\nNorth\r\n\r\n");
  std::filesystem::create_directory(folder / "dispdb.dat");
  Site_Saved saved = Save_Site(folder.path(), 1, "South", *record);
  EXPECT_NE(saved.error, 0);
  EXPECT_EQ(saved.file, "dispdb.dat");
  EXPECT_EQ(Read_Text(folder / "dspsites.dat"), "100\r\nNorth\r\n\r\n");
  std::filesystem::remove(folder / "dispdb.dat");
  std::filesystem::remove(folder / "dspsites.dat");
  std::filesystem::create_directory(folder / "dspsites.dat");
  saved = Save_Site(folder.path(), 1, "South", *record);
  EXPECT_EQ(saved.file, "dspsites.dat");
  EXPECT_FALSE(Exists(folder / "dispdb.dat"));
}

TEST_F(SaveSite, A_Site_Without_Points_Has_No_Line_For_Them) {
  record->NROA0 = 0;
  const std::string lines = Site_Data_Lines(9900, *record);
  EXPECT_TRUE(lines.starts_with(" 9900  0 \r\n"));
  EXPECT_TRUE(lines.ends_with("-0.25  1.5 \r\n\r\n 42 \r\n"));
}

}  // namespace
}  // namespace barvon::testing

#include <filesystem>

#include "database/database_data.h"
#include "database/database_files.h"
#include "platform/files/app_folder.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

using Lines = std::vector<std::string>;

/// A database that came with the program, and a user without one.
class DeliveredDatabase : public Recorded_Workspace {
 protected:
  DeliveredDatabase() {
    Write_Small_Database(folder_);
    Set_Delivered_Folder(folder_.path());
    Set_Application_Folder(user_.path());
  }
  ~DeliveredDatabase() override { Set_Delivered_Folder(""); }

  Scratch_Folder user_;
};

TEST_F(DeliveredDatabase, Is_Copied_For_The_User_When_The_Lists_Are_Shown) {
  Scripted_Messages no_boxes;
  EXPECT_EQ(Load_Lists(record_)[kSites].names, (Lines{"North", "South"}));
  EXPECT_EQ(Names_In(user_.path()), (Lines{"dispdb.dat", "dspsites.dat", "matdb.dat", "sites.dat",
                                           "veldb.dat", "vesdb.dat", "vessels.dat"}));
  record_.SelectedSiteCode = 100;
  EXPECT_TRUE(Assign_Site(record_));
  EXPECT_EQ(record_.DEPC0, 10);
}

TEST_F(DeliveredDatabase, What_The_User_Has_Changed_Stays) {
  Scripted_Messages no_boxes;
  Take_Delivered_Database();
  std::filesystem::remove(user_ / "dspsites.dat");
  Write_Text(user_ / "DSPSITES.DAT", "1\r\nMine\r\n\r\n");
  EXPECT_EQ(Load_Lists(record_)[kSites].names, Lines{"Mine"});
  EXPECT_EQ(Names_In(user_.path()).size(), 7U);
}

TEST_F(DeliveredDatabase, What_Was_Deleted_Comes_Back_Beside_Files_That_Are_As_Delivered) {
  Scripted_Messages no_boxes;
  Take_Delivered_Database();
  std::filesystem::remove(user_ / "vessels.dat");
  std::filesystem::remove(user_ / "vesdb.dat");
  EXPECT_EQ(Load_Lists(record_)[kVessels].names, (Lines{"Auk", "Bittern"}));
  EXPECT_EQ(Names_In(user_.path()).size(), 7U);
}

TEST_F(DeliveredDatabase, Another_One_Is_Not_Filled_Up_And_That_Is_Told) {
  Take_Delivered_Database();
  for (const char* name : {"dispdb.dat", "veldb.dat", "vessels.dat"}) {
    std::filesystem::remove(user_ / name);
  }
  // A newer version of the program puts another site first.
  Write_Text(folder_ / "dspsites.dat", "100\r\nNew\r\n\r\n" + Read_Text(folder_ / "dspsites.dat"));
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  const Database_Lists lists = Load_Lists(record_);
  EXPECT_EQ(lists[kSites].names, (Lines{"North", "South"}));
  EXPECT_TRUE(lists[kVessels].names.empty());
  EXPECT_EQ(Names_In(user_.path()), (Lines{"dspsites.dat", "matdb.dat", "sites.dat", "vesdb.dat"}));
  ASSERT_EQ(messages.shown.size(), 1U) << "also of the list that can't be read";
  EXPECT_EQ(messages.shown[0].text,
            "These files are missing in your copy of the database in " + user_.path() +
                ":\nvessels.dat\ndispdb.dat\nveldb.dat\n\nThe ones that came with the program are "
                "not put beside yours, since lists and data of two databases give wrong numbers.  "
                "Put yours back, or delete what is left of it to get all seven.");
  record_.SelectedSiteCode = 100;
  EXPECT_FALSE(Assign_Site(record_));
}

TEST_F(DeliveredDatabase, Is_Copied_Whole_Or_Not_At_All) {
  std::filesystem::remove(folder_ / "vesdb.dat");
  // A regular file whose first byte can't be read, the last of the seven.
  std::filesystem::create_symlink("/proc/self/mem", folder_ / "vesdb.dat");
  Scripted_Messages messages({Answer::Ok});
  EXPECT_TRUE(Load_Lists(record_)[kSites].names.empty());
  EXPECT_EQ(Names_In(user_.path()), Lines{});
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_TRUE(messages.shown[0].text.starts_with("Can't copy the file of the database " +
                                                 (folder_ / "vesdb.dat") + " to " + user_.path()));
}

TEST_F(DeliveredDatabase, A_Name_That_Can_Not_Be_Taken_Takes_The_Others_Back) {
  Write_Text(folder_ / "dspsites.dat", "the one");
  Write_Text(folder_ / "sites.dat", "the other");
  // A folder that an existing file can't be told from by its name is no file to copy over.
  std::filesystem::create_directory(user_ / "sites.dat");
  const Copies_Made made = Copy_Together({"dspsites.dat", "sites.dat"});
  EXPECT_NE(made.error, 0);
  EXPECT_EQ(made.failed, "sites.dat");
  EXPECT_EQ(Names_In(user_.path()), Lines{"sites.dat"});
}

TEST_F(DeliveredDatabase, Nothing_Is_Written_Through_A_Link_To_Nowhere) {
  const Scratch_Folder away;
  std::filesystem::create_symlink(away / "sites.dat", user_ / "sites.dat");
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Take_Delivered_Database());
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "Can't copy the file of the database " +
                                        (folder_ / "sites.dat") + " to " + user_.path() +
                                        ": File exists");
  EXPECT_EQ(Names_In(away.path()), Lines{});
  EXPECT_EQ(Names_In(user_.path()), Lines{"sites.dat"});
  EXPECT_TRUE(std::filesystem::is_symlink(user_ / "sites.dat"));
}

TEST_F(DeliveredDatabase, What_Can_Not_Be_Copied_Is_Told_Once) {
  Set_Application_Folder(user_ / "gone");
  Scripted_Messages messages({Answer::Ok});
  Take_Delivered_Database();
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "Can't copy the file of the database " +
                                        (folder_ / "dspsites.dat") + " to " + (user_ / "gone") +
                                        ": No such file or directory");
}

}  // namespace
}  // namespace barvon::testing

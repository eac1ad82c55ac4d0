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

TEST_F(DeliveredDatabase, What_The_User_Has_Changed_Stays_And_What_Was_Deleted_Comes_Back) {
  Scripted_Messages no_boxes;
  Write_Text(user_ / "DSPSITES.DAT", "1\r\nMine\r\n\r\n");
  EXPECT_EQ(Load_Lists(record_)[kSites].names, Lines{"Mine"});
  EXPECT_EQ(Read_Text(user_ / "vessels.dat"), Read_Text(folder_ / "vessels.dat"));
  std::filesystem::remove(user_ / "vessels.dat");
  EXPECT_EQ(Load_Lists(record_)[kVessels].names, (Lines{"Auk", "Bittern"}));
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

#include "platform/files/app_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "platform/files/user_folder.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

/// An ordinary user for a while, also where the tests are root's, who may write anywhere.
class Ordinary_User {
 public:
  Ordinary_User() : root_(::geteuid() == 0) {
    if (root_) {
      EXPECT_EQ(::seteuid(kNobody), 0);
    }
  }
  ~Ordinary_User() {
    if (root_) {
      EXPECT_EQ(::seteuid(0), 0);
    }
  }
  Ordinary_User(const Ordinary_User&) = delete;
  Ordinary_User& operator=(const Ordinary_User&) = delete;

 private:
  bool root_;
};

/// A program's folder and a user's, which the tests take for this program's.
class AppFolder : public ::testing::Test {
 protected:
  AppFolder() {
    for (const std::string& folder : {program_, data_}) fs::create_directory(folder);
    fs::permissions(scratch_.path(), fs::perms::all);
    fs::permissions(data_, fs::perms::all);
    setenv("XDG_DATA_HOME", data_.c_str(), 1);
  }
  ~AppFolder() override {
    fs::permissions(program_, fs::perms::owner_all);
    Set_Application_Folder(former_);
    Set_Delivered_Folder("");
  }
  void Lock_Program() const {
    fs::permissions(program_, fs::perms::owner_read | fs::perms::owner_exec |
                                  fs::perms::others_read | fs::perms::others_exec);
  }

  Scratch_Folder scratch_;
  const std::string program_ = scratch_ / "program";
  const std::string data_ = scratch_ / "data";
  const std::string user_ = data_ + "/barvon";
  const std::string former_ = Application_Folder();
};

TEST_F(AppFolder, What_Is_Written_Stands_Beside_A_Program_Whose_Folder_Can_Be_Written) {
  EXPECT_EQ(Folder_For_Own_Files(program_), program_);
  EXPECT_FALSE(Exists(user_));
  Take_Program_Folder(program_);
  EXPECT_EQ(Application_Folder(), program_);
  EXPECT_EQ(Delivered_Folder(), program_);
}

TEST_F(AppFolder, It_Stands_In_The_Users_Folder_Where_The_Programs_Can_Not_Be_Written) {
  Lock_Program();
  const Ordinary_User user;
  Take_Program_Folder(program_);
  EXPECT_EQ(Application_Folder(), user_);
  EXPECT_EQ(Delivered_Folder(), program_);
  EXPECT_TRUE(Exists(user_));
}

TEST_F(AppFolder, A_Folder_For_All_Users_Is_Not_Written_To_By_Root_Either) {
  EXPECT_EQ(Folder_For_Own_Files("/usr/lib/barvon"), user_);
  EXPECT_EQ(Folder_For_Own_Files("/usr/local/lib/barvon"), user_);
}

TEST_F(AppFolder, Without_A_Users_Folder_It_Is_The_Programs_All_The_Same) {
  Lock_Program();
  unsetenv("XDG_DATA_HOME");
  unsetenv("HOME");
  const Ordinary_User user;
  EXPECT_EQ(Folder_For_Own_Files(program_), program_);
}

TEST_F(AppFolder, What_Came_With_The_Program_Is_Beside_It_Unless_It_Is_Told) {
  Set_Application_Folder(program_);
  EXPECT_EQ(Delivered_Folder(), program_);
  Set_Delivered_Folder(data_);
  EXPECT_EQ(Application_Folder(), program_);
  EXPECT_EQ(Delivered_Folder(), data_);
}

TEST_F(AppFolder, A_File_Of_The_Users_Own_Comes_Before_The_Delivered_One) {
  Set_Application_Folder(data_);
  Set_Delivered_Folder(program_);
  EXPECT_EQ(Own_Or_Delivered("tips.txt"), program_ + "/tips.txt") << "that there is none is told";
  Write_Text(program_ + "/tips.txt", "theirs");
  EXPECT_EQ(Own_Or_Delivered("tips.txt"), program_ + "/tips.txt");
  Write_Text(data_ + "/tips.txt", "mine");
  EXPECT_EQ(Own_Or_Delivered("tips.txt"), data_ + "/tips.txt");
}

TEST_F(AppFolder, A_Delivered_File_Is_Copied_Once_And_A_Changed_Copy_Stays) {
  Set_Application_Folder(data_);
  Set_Delivered_Folder(program_);
  EXPECT_EQ(Copy_If_Not_Own("matdb.dat"), 0);
  EXPECT_EQ(Names_In(data_), std::vector<std::string>{}) << "none was delivered";
  Write_Text(program_ + "/MatDb.dat", "as delivered");
  EXPECT_EQ(Copy_If_Not_Own("matdb.dat"), 0);
  EXPECT_EQ(Read_Text(data_ + "/matdb.dat"), "as delivered");
  Write_Text(program_ + "/MatDb.dat", "a newer one");
  EXPECT_EQ(Copy_If_Not_Own("MATDB.DAT"), 0);
  EXPECT_EQ(Names_In(data_), std::vector<std::string>{"matdb.dat"});
  EXPECT_EQ(Read_Text(data_ + "/matdb.dat"), "as delivered");
}

TEST_F(AppFolder, A_File_That_Can_Not_Be_Copied_Is_Told_And_Leaves_Nothing) {
  Write_Text(program_ + "/matdb.dat", "as delivered");
  Set_Delivered_Folder(program_);
  Set_Application_Folder(scratch_ / "gone");
  EXPECT_EQ(Copy_If_Not_Own("matdb.dat"), ENOENT);
  EXPECT_FALSE(Exists(scratch_ / "gone"));
}

}  // namespace
}  // namespace barvon::testing

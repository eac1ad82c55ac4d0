#include "platform/files/foreign_files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/plain_support.h"

namespace barvon {
namespace {

using testing::Scratch_Folder;

constexpr uid_t kUser = 1000, kNeighbour = 1001, kStranger = 1002;
constexpr mode_t kOpenToAll = 0777, kSticky = 01777, kOfAGroup = 0775;

TEST(ForeignFiles, A_Strangers_Entry_Is_One_In_A_Folder_That_Everybody_Can_Write) {
  for (const mode_t mode : {kOpenToAll, kSticky}) {
    EXPECT_TRUE(Is_A_Strangers({kStranger, kUser, mode}, kUser));
    EXPECT_TRUE(Is_A_Strangers({kStranger, kNeighbour, mode}, kUser));
    EXPECT_TRUE(Is_A_Strangers({kStranger, 0, mode}, kUser));
    EXPECT_FALSE(Is_A_Strangers({kUser, kNeighbour, mode}, kUser)) << "it is this user's";
    EXPECT_FALSE(Is_A_Strangers({0, kNeighbour, mode}, kUser)) << "it is root's";
    EXPECT_FALSE(Is_A_Strangers({kNeighbour, kNeighbour, mode}, kUser)) << "the folder's owner's";
  }
  EXPECT_FALSE(Is_A_Strangers({kStranger, kUser, kOfAGroup}, kUser)) << "the owner let him in";
}

TEST(ForeignFiles, What_This_User_Puts_Somewhere_Is_No_Strangers_And_What_Is_Not_There_Neither) {
  const Scratch_Folder folder;
  std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
  std::filesystem::create_symlink("nowhere", folder / "link");
  EXPECT_FALSE(Is_Put_By_A_Stranger(folder / "link"));
  EXPECT_FALSE(Is_Put_By_A_Stranger(folder / "nothing"));
}

}  // namespace
}  // namespace barvon

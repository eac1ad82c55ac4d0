#include "platform/files/paths.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

TEST(Paths, Dots_Are_Taken_Out) {
  const Scratch_Folder folder;
  fs::create_directories(folder / "bay/deep");
  EXPECT_EQ(Without_Dots(folder / "bay/../site.DUI"), folder / "site.DUI");
  EXPECT_EQ(Without_Dots(folder / "./bay//deep/../../site.DUI"), folder / "site.DUI");
  EXPECT_EQ(Without_Dots(folder / "bay/deep/.."), folder / "bay");
  EXPECT_EQ(Without_Dots(folder / "bay/."), folder / "bay");
  EXPECT_EQ(Without_Dots(folder / "bay/../"), folder.path() + "/");
  EXPECT_EQ(Without_Dots(folder / "..."), folder / "...");
  EXPECT_EQ(Without_Dots("/.."), "/");
  EXPECT_EQ(Without_Dots("/../../usr"), "/usr");
}

TEST(Paths, What_Is_Not_There_Or_Not_From_The_Root_Keeps_Its_Dots) {
  const Scratch_Folder folder;
  Write_Text(folder / "file", "");
  for (const std::string& path : {folder / "none/../site.DUI", folder / "file/../site.DUI",
                                  std::string("../site.DUI"), std::string()}) {
    EXPECT_EQ(Without_Dots(path), path);
  }
}

TEST(Paths, A_Link_Is_Followed_Only_Where_Dots_Lead_Back_From_It) {
  const Scratch_Folder folder;
  const std::string real = fs::canonical(folder.path()).string();
  fs::create_directories(folder / "far/bay/deep");
  fs::create_directory_symlink("far/bay", folder / "link");
  EXPECT_EQ(Without_Dots(folder / "link/./site.DUI"), folder / "link/site.DUI");
  EXPECT_EQ(Without_Dots(folder / "link/deep/../site.DUI"), folder / "link/site.DUI");
  EXPECT_EQ(Without_Dots(folder / "link/../site.DUI"), real + "/far/site.DUI");
  fs::create_directory_symlink("nowhere", folder / "broken");
  EXPECT_EQ(Without_Dots(folder / "broken/../site.DUI"), folder / "broken/../site.DUI");
}

}  // namespace
}  // namespace barvon

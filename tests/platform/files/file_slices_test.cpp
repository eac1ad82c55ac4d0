#include "platform/files/file_slices.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

TEST(FileSlices, Give_The_File_Piece_By_Piece) {
  const Scratch_Folder folder;
  Write_Text(folder / "a.duo", "0123456789");
  File_Slices slices;
  ASSERT_EQ(slices.Open(folder / "a.duo"), 0);
  EXPECT_EQ(slices.size(), 10U);
  std::string slice, all;
  while (!slices.At_End()) {
    ASSERT_EQ(slices.Read(4, slice), 0);
    all += slice + "|";
  }
  EXPECT_EQ(all, "0123|4567|89|");
  EXPECT_EQ(slices.Read(4, slice), 0);
  EXPECT_EQ(slice, "");
}

TEST(FileSlices, A_File_That_Is_Replaced_Is_Read_On_As_It_Was) {
  const Scratch_Folder folder;
  Write_Text(folder / "a.duo", "0123456789");
  File_Slices slices;
  ASSERT_EQ(slices.Open(folder / "a.duo"), 0);
  std::string slice;
  slices.Read(4, slice);
  Write_Text(folder / "b.duo", "other");
  std::filesystem::rename(folder / "b.duo", folder / "a.duo");
  EXPECT_EQ(slices.Read(100, slice), 0);
  EXPECT_EQ(slice, "456789");
}

TEST(FileSlices, A_File_That_Is_Cut_Short_Ends_There_And_One_That_Grows_Does_Not_Run_On) {
  const Scratch_Folder folder;
  Write_Text(folder / "a.duo", "0123456789");
  File_Slices slices;
  ASSERT_EQ(slices.Open(folder / "a.duo"), 0);
  std::filesystem::resize_file(folder / "a.duo", 3);
  std::string slice;
  EXPECT_EQ(slices.Read(5, slice), 0);
  EXPECT_EQ(slice, "012");
  EXPECT_TRUE(slices.At_End());
  ASSERT_EQ(slices.Open(folder / "a.duo"), 0);
  Write_Text(folder / "a.duo", "0123456789");
  EXPECT_EQ(slices.Read(100, slice), 0);
  EXPECT_EQ(slice, "012");
}

TEST(FileSlices, What_Is_No_Regular_File_Is_Refused_At_Once) {
  const Scratch_Folder folder;
  File_Slices slices;
  EXPECT_EQ(slices.Open(folder / "none"), ENOENT);
  EXPECT_EQ(slices.Open(folder.path()), EISDIR);
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(slices.Open(folder / "pipe"), ENOTSUP);
  EXPECT_TRUE(slices.At_End());
}

}  // namespace
}  // namespace barvon

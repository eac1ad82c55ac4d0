#include "platform/files/file_trace.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

TEST(FileTrace, Stays_While_Nobody_Writes_The_File) {
  Scratch_Folder folder;
  Write_Text(folder / "a", "text");
  fs::create_symlink(folder / "a", folder / "link");
  const auto before = Trace_Of(folder / "a");
  ASSERT_TRUE(before);
  EXPECT_EQ(before->size, 4U);
  EXPECT_EQ(Trace_Of(folder / "a"), before);
  EXPECT_EQ(Trace_Of(folder / "link"), before);
}

TEST(FileTrace, Tells_Another_Size_Another_Time_And_Another_File_Under_The_Name) {
  Scratch_Folder folder;
  Write_Text(folder / "a", "text");
  const fs::file_time_type time = fs::last_write_time(folder / "a");
  const auto before = Trace_Of(folder / "a");
  fs::last_write_time(folder / "a", time + std::chrono::seconds(1));
  EXPECT_NE(Trace_Of(folder / "a"), before);
  fs::last_write_time(folder / "a", time);
  EXPECT_EQ(Trace_Of(folder / "a"), before);
  Write_Text(folder / "a", "longer");
  fs::last_write_time(folder / "a", time);
  EXPECT_NE(Trace_Of(folder / "a"), before);
  Write_Text(folder / "b", "text");
  fs::last_write_time(folder / "b", time);
  fs::rename(folder / "b", folder / "a");
  EXPECT_NE(Trace_Of(folder / "a"), before);
}

TEST(FileTrace, There_Is_None_Of_A_File_That_Is_Not_There) {
  Scratch_Folder folder;
  EXPECT_FALSE(Trace_Of(folder / "none"));
}

}  // namespace
}  // namespace barvon

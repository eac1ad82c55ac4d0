#include "platform/files/local_files.h"

#include <gtest/gtest.h>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

TEST(LocalFiles, What_The_System_Makes_Up_And_What_Is_Not_There_Is_None) {
  const Scratch_Folder folder;
  EXPECT_FALSE(Is_On_Local_Files("/proc"));
  EXPECT_FALSE(Is_On_Local_Files("/proc/self/status"));
  EXPECT_FALSE(Is_On_Local_Files(folder / "none"));
  EXPECT_FALSE(Is_On_Local_Files(-1));
}

}  // namespace
}  // namespace barvon

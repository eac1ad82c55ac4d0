#include "platform/process/search_path.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "run/child_support.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using testing::Changed_Variable;

std::string Kept(const std::string& path) {
  const Changed_Variable changed("PATH", path);
  Keep_Lasting_Search_Path();
  const char* kept = std::getenv("PATH");
  return kept == nullptr ? "none" : kept;
}

TEST(SearchPath, Of_This_Process_Keeps_The_Folders_That_Are_Paths_From_The_Root) {
  EXPECT_EQ(Kept("/usr/local/bin:/usr/bin:/bin"), "/usr/local/bin:/usr/bin:/bin");
  EXPECT_EQ(Kept(".:/usr/bin:/bin"), "/usr/bin:/bin");
  EXPECT_EQ(Kept(":/usr/bin::bin:./x:../y:/bin:"), "/usr/bin:/bin");
}

TEST(SearchPath, Of_This_Process_Is_The_Systems_Own_Where_Nothing_Is_Left) {
  for (const char* path : {"", ".", ":", "bin:.."}) EXPECT_EQ(Kept(path), "none") << path;
}

TEST(SearchPath, Of_Every_Program_Is_Made_So_Before_Anything_Else) {
  for (const char* program : {"main.cpp", "batch_main.cpp", "graphs/main.cpp"}) {
    const std::string source = testing::Read_Text(std::string(BARVON_SOURCE "/src/") + program);
    const std::size_t begin = source.find("{\n", source.find("int main("));
    ASSERT_NE(begin, source.npos);
    EXPECT_EQ(source.find("barvon::Keep_Lasting_Search_Path();", begin), begin + 4) << program;
  }
}

}  // namespace
}  // namespace barvon

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "layout/include_graph.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const std::string kCheck = std::string("rc::") + "check(";  // this line is none

/// Whether the line throws away whether a property holds: the test would pass without it.
bool Drops_The_Answer(const std::string& line) {
  const auto check = line.find(kCheck);
  if (check == std::string::npos) return false;
  const std::string before = line.substr(0, check);
  return !before.ends_with("EXPECT_TRUE(") && !before.ends_with("ASSERT_TRUE(");
}

TEST(PropertyChecks, A_Property_That_Does_Not_Hold_Fails_Its_Test) {
  const std::string tests = std::string(BARVON_SOURCE) + "/tests";
  int properties = 0;
  for (const auto& [file, includes] : Read_Includes(tests)) {
    std::istringstream lines(Read_Text(tests + "/" + file));
    for (std::string line; std::getline(lines, line);) {
      EXPECT_FALSE(Drops_The_Answer(line)) << file << ": " << line;
      if (line.find("EXPECT_TRUE(rc::") != std::string::npos) ++properties;
    }
  }
  EXPECT_GT(properties, 5);
  EXPECT_TRUE(Drops_The_Answer("  " + kCheck + "[] {"));
}

}  // namespace
}  // namespace barvon::testing

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace companion {
namespace {

namespace fs = std::filesystem;

std::string Text_Of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Files of a folder with one of the endings, in the order of their names.
std::set<fs::path> Files_In(const char* folder, const std::set<std::string>& endings) {
  std::set<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(BARVON_SOURCE) / folder))
    if (endings.count(entry.path().extension().string()) == 1) files.insert(entry.path());
  return files;
}

const std::string& Document() {
  static const std::string text = Text_Of(BARVON_SOURCE "/docs/companion-solver.md");
  return text;
}

// The figures come with tests/solver/verification_table.sh; here is told that it has to run.
TEST(Solver_Document, Has_Every_Verification_Case) {
  const std::regex told("\\bVerified\\(\\s*\"([^\"]*)\"");
  int cases = 0;
  for (const fs::path& file : Files_In("tests/solver", {".cpp"})) {
    const std::string text = Text_Of(file);
    for (std::sregex_iterator at(text.begin(), text.end(), told), end; at != end; ++at) {
      ++cases;
      EXPECT_NE(Document().find("\n| " + (*at)[1].str()), std::string::npos)
          << (*at)[1] << ": run tests/solver/verification_table.sh";
    }
  }
  EXPECT_GE(cases, 30);
}

TEST(Solver_Document, Has_Every_Constant_With_Its_Value) {
  const std::regex constant(
      "inline constexpr (?:double|int|std::size_t) (k\\w+) = ([^;]*); *// ([^\n]*)\n");
  int constants = 0;
  for (const fs::path& file : Files_In("solver", {".h"})) {
    const std::string text = Text_Of(file);
    for (std::sregex_iterator at(text.begin(), text.end(), constant), end; at != end; ++at) {
      ++constants;
      const std::string row = "| `" + (*at)[1].str() + "` | " + (*at)[2].str() + " | " +
                              (*at)[3].str() + " | `solver/" + file.filename().string() + "` |";
      EXPECT_NE(Document().find(row), std::string::npos)
          << row << ": run tests/solver/verification_table.sh";
    }
  }
  EXPECT_GE(constants, 50);
}

TEST(Solver_Document, Names_Every_Coefficient_Of_The_Input) {
  for (const char* name : {"ALPHA0", "BETA", "CM", "CD", "GAMA", "CDRAG", "CFRIC", "CD3", "CD4",
                           "ALPHAC", "FRICTN", "ALAMDA", "AKY0", "CSTRIP"})
    EXPECT_NE(Document().find("\n| `" + std::string(name) + "` | "), std::string::npos) << name;
}

}  // namespace
}  // namespace companion

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

struct Constant {
  std::string name, value, meaning, header;
};

/// Those of the headers that have a meaning behind them.
std::vector<Constant> Constants() {
  const std::regex told(
      "inline constexpr (?:double|int|std::size_t) (k\\w+) = ([^;]*); *// ([^\n]*)\n");
  std::vector<Constant> constants;
  for (const fs::path& file : Files_In("solver", {".h"})) {
    const std::string text = Text_Of(file);
    for (std::sregex_iterator at(text.begin(), text.end(), told), end; at != end; ++at)
      constants.push_back({(*at)[1], (*at)[2], (*at)[3], file.filename().string()});
  }
  return constants;
}

TEST(Solver_Document, Has_Every_Constant_With_Its_Value) {
  for (const Constant& constant : Constants()) {
    const std::string row = "| `" + constant.name + "` | " + constant.value + " | " +
                            constant.meaning + " | `solver/" + constant.header + "` |";
    EXPECT_NE(Document().find(row), std::string::npos)
        << row << ": run tests/solver/verification_table.sh";
  }
  EXPECT_GE(Constants().size(), 50U);
}

// What bounds the input, and how outputs are written, is no assumption of the model.
TEST(Solver_Document, The_Listing_Tells_Every_Constant_Of_The_Model_Once) {
  std::string sources;
  for (const fs::path& file : Files_In("solver", {".cpp"})) sources += Text_Of(file);
  for (const Constant& constant : Constants()) {
    const std::set<std::string> no_assumptions = {"refusals.h", "number_text.h", "listing.h"};
    if (no_assumptions.count(constant.header) == 1) continue;
    const std::regex told("Constant_Line\\(\\s*\"[^\"]*\",\\s*(?:static_cast<double>\\()?" +
                          constant.name + "\\b");
    const auto count = std::distance(std::sregex_iterator(sources.begin(), sources.end(), told),
                                     std::sregex_iterator());
    EXPECT_EQ(count, 1) << constant.name << " of " << constant.header;
  }
}

TEST(Solver_Document, Names_Every_Coefficient_Of_The_Input) {
  for (const char* name : {"ALPHA0", "BETA", "CM", "CD", "GAMA", "CDRAG", "CFRIC", "CD3", "CD4",
                           "ALPHAC", "FRICTN", "ALAMDA", "AKY0", "CSTRIP"})
    EXPECT_NE(Document().find("\n| `" + std::string(name) + "` | "), std::string::npos) << name;
}

}  // namespace
}  // namespace companion

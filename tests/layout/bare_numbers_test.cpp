#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "layout/include_graph.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const std::string kSource = std::string(BARVON_SOURCE) + "/src";

/// The homes of the numbers. The others ask them, or use their names.
const std::set<std::string> kHomes = {"core/keys", "core/velocity_types"};

// The fields whose numbers have a meaning, also as the parameters that pass them on.
constexpr const char* kNames[] = {"DisposalMethod",
                                  "PreviousDisposalMethod",
                                  "disposal_method",
                                  "AnalysisType",
                                  "analysis_type",
                                  "KEY2",
                                  "KEY3",
                                  "KEY4",
                                  "key2",
                                  "key3",
                                  "key4",
                                  "FileKind",
                                  "file_kind",
                                  "VelocityProfileType",
                                  "velocity_profile_type"};

bool Names_A_Field(const std::string& code) {
  return std::ranges::any_of(
      kNames, [&](const char* name) { return code.find(name) != std::string::npos; });
}

std::string Any_Field() {
  std::string names;
  for (const char* name : kNames) names.append(names.empty() ? "" : "|").append(name);
  return "\\b(?:" + names + ")\\b";
}

const std::string kField = Any_Field();
const std::string kNumber = R"([-+]?\d[\d.]*)";

const std::regex kCompared(kField + R"(\s*(?:==|!=|<=|>=|<|>)\s*)" + kNumber);
const std::regex kComparedTheOtherWay(R"((?:^|[^\w.]))" + kNumber + R"(\s*(?:==|!=|<=|>=|<|>)\s*)" +
                                      R"((?:\w+(?:\.|->))*)" + kField);
const std::regex kAssigned(kField + R"(\s*=\s*(?:[\w.>-]+\s*=\s*)*)" + kNumber + R"(\s*[;,)}?])");
const std::regex kSign(kField + R"(\s*(?:<|>=)\s*0\s*[;&|)?])");
const std::regex kEmptyMember(R"(^\s*(?:double|int|std::int16_t) )" + kField + R"(\s*=\s*0;)");
const std::regex kSwitch(R"(^(\s*)switch \(.*)" + kField + R"(\)\s*\{)");
const std::regex kBareCase(R"(^\s*case )" + kNumber + ":");

/// The lines that write a bare number for a choice. What a struct is emptied with and the sign of a
/// number are no choices.
std::vector<std::string> Bare_Numbers(const std::string& text) {
  std::vector<std::string> found;
  std::string end_of_switch;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::string code = line.substr(0, line.find("//"));
    if (end_of_switch.empty() && !Names_A_Field(code)) continue;
    std::smatch match;
    if (std::regex_search(code, match, kSwitch)) end_of_switch = match[1].str() + "}";
    if (code.starts_with(end_of_switch)) end_of_switch.clear();
    const bool bare_case = !end_of_switch.empty() && std::regex_search(code, kBareCase);
    const bool compared = std::regex_search(std::regex_replace(code, kSign, ""), kCompared) ||
                          std::regex_search(code, kComparedTheOtherWay);
    const bool assigned =
        std::regex_search(code, kAssigned) && !std::regex_search(code, kEmptyMember);
    if (bare_case || compared || assigned) found.push_back(line);
  }
  return found;
}

TEST(BareNumbers, A_Choice_Is_Written_By_Its_Name_Outside_Its_Home) {
  const Include_Graph graph = Read_Includes(kSource);
  ASSERT_GT(graph.size(), 100u);
  for (const auto& [file, includes] : graph) {
    if (kHomes.contains(Unit_Of(file))) continue;
    for (const std::string& line : Bare_Numbers(Read_Text(kSource + "/" + file))) {
      ADD_FAILURE() << file << ": " << line;
    }
  }
  const std::string samples = std::string(BARVON_SOURCE) + "/samples";
  for (const auto& [file, includes] : Read_Includes(samples)) {
    for (const std::string& line : Bare_Numbers(Read_Text(samples + "/" + file))) {
      ADD_FAILURE() << "samples/" << file << ": " << line;
    }
  }
}

/// The names that a text gives to numbers.
std::set<std::string> Named_Numbers(const std::string& text) {
  static const std::regex kNamed(R"(\b(k[A-Z]\w*)\s*=\s*)" + kNumber);
  std::set<std::string> names;
  for (std::sregex_iterator at(text.begin(), text.end(), kNamed), end; at != end; ++at) {
    names.insert((*at)[1]);
  }
  return names;
}

TEST(BareNumbers, No_File_Names_A_Choice_A_Second_Time) {
  std::set<std::string> at_home;
  for (const std::string& home : kHomes) {
    at_home.merge(Named_Numbers(Read_Text(kSource + "/" + home + ".h")));
  }
  EXPECT_TRUE(at_home.contains("kHopper") && at_home.contains("kTwoPointVelocity"));
  for (const auto& [file, includes] : Read_Includes(kSource)) {
    if (kHomes.contains(Unit_Of(file))) continue;
    for (const std::string& name : Named_Numbers(Read_Text(kSource + "/" + file))) {
      EXPECT_FALSE(at_home.contains(name)) << file << ": " << name;
    }
  }
  EXPECT_EQ(Named_Numbers("constexpr std::int16_t kHopper = 1, kBarge = 3;\nif (kWide == 2)"),
            (std::set<std::string>{"kHopper", "kBarge"}));
}

// The rule itself, on lines made up for the purpose.
TEST(BareNumbers, A_Bare_Number_Is_Found_However_It_Is_Written) {
  for (const char* line : {
           "  if (record.DisposalMethod == 1) return;",
           "  return record.KEY3 >= 2 && record.KEY3 <= 4;",
           "  record.KEY2 = 2;",
           "  record.KEY1 = record.KEY2 = record.KEY3 = 0;",
           "  record.FileKind = 2.0;",
           "  if (disposal_method != 3) {",
           "  if (2 == record.AnalysisType && wide) {",
           "  record->VelocityProfileType = -1;",
           "  if (record.KEY2 < 0) record.KEY2 = 0;",
           "  return key4 > 6 ? 1 : 0;",
           "  record.DisposalMethod = record.PreviousDisposalMethod = 1;",
       }) {
    EXPECT_EQ(Bare_Numbers(line), std::vector<std::string>{line});
  }
  EXPECT_EQ(Bare_Numbers("  switch (record.KEY3) {\n    case 4:\n      break;\n  }\n  case 5:\n"),
            std::vector<std::string>{"    case 4:"});
}

TEST(BareNumbers, Names_Signs_Empty_Members_And_Remarks_Are_None) {
  for (const char* line : {
           "  if (record.DisposalMethod == kHopper) return;",
           "  if (record.KEY2 < 0) record.KEY2 = kDiffusion;",
           "  if (record.AnalysisType >= 0) return true;",
           "  double VelocityProfileType = 0;",
           "  std::int16_t KEY3 = 0;  // evaluation, 0 to 7",
           "  BARVON_SLOT(16, KEY3),",
           "  record.DX0 = 2;  // not KEY3 == 4",
           "  const int row = KEY3_Row + 1;",
       }) {
    EXPECT_EQ(Bare_Numbers(line), std::vector<std::string>{}) << line;
  }
}

}  // namespace
}  // namespace barvon::testing

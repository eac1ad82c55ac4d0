#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "core/desk/screen_table.h"
#include "help/help_text.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

const std::string kHelpFolder = Help_Folder();

/// All matches of the pattern's first group.
std::vector<std::string> All(const std::string& text, const std::string& pattern) {
  const std::regex wanted(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at) {
    found.push_back((*at)[1]);
  }
  return found;
}

/// The project file as the build made it: contents, index, list of files.
std::string Project_File() { return Read_Text(BARVON_HELP_PROJECT); }

/// "page.html#place" leads to a page and, if it names one, a place on it.
bool Leads_Somewhere(const std::string& target, const std::string& from) {
  const auto mark = target.find('#');
  std::string page = target.substr(0, mark);
  if (page.empty()) page = from;
  if (!Exists(kHelpFolder + page)) return false;
  if (mark == std::string::npos) return true;
  const std::string place = "name=\"" + target.substr(mark + 1) + "\"";
  return Read_Text(kHelpFolder + page).find(place) != std::string::npos;
}

TEST(HelpPages, Every_Topic_Has_A_Keyword_And_Its_Page) {
  const std::string project = Project_File();
  EXPECT_EQ(Help_Topics().size(), 18u);
  for (const int topic : Help_Topics()) {
    const auto refs = All(project, " id=\"" + std::to_string(topic) + "\"\\s+ref=\"([^\"]*)\"");
    ASSERT_EQ(refs.size(), 1u) << topic;
    EXPECT_TRUE(Exists(kHelpFolder + refs[0])) << refs[0];
  }
}

TEST(HelpPages, Contents_Have_Their_Keyword) {
  EXPECT_EQ(All(Project_File(), " id=\"contents\"\\s+ref=\"([^\"]*)\""),
            std::vector<std::string>{"contents.html"});
}

TEST(HelpPages, Every_Reference_Of_The_Project_File_Resolves) {
  const auto refs = All(Project_File(), " ref=\"([^\"]*)\"");
  EXPECT_GT(refs.size(), 300u);
  for (const std::string& ref : refs) EXPECT_TRUE(Leads_Somewhere(ref, "")) << ref;
}

TEST(HelpPages, Every_Page_Is_In_The_File_And_In_The_Contents) {
  const std::string project = Project_File();
  for (const std::string& page : Help_Pages()) {
    EXPECT_NE(project.find("<file>" + page + "</file>"), std::string::npos) << page;
    EXPECT_EQ(All(project, "<section title=\"[^\"]*\" (ref=\"" + page + "\")").size(), 1u) << page;
  }
  for (const std::string& file : All(project, "<file>([^<]*)</file>")) {
    EXPECT_TRUE(Exists(kHelpFolder + file)) << file;
  }
}

TEST(HelpPages, Every_Link_Resolves_And_None_Leaves_The_Help) {
  for (const std::string& page : Help_Pages()) {
    for (const std::string& link :
         All(Read_Text(kHelpFolder + page), "(?:href|src)=\"([^\"]*)\"")) {
      EXPECT_TRUE(Leads_Somewhere(link, page)) << page << " -> " << link;
    }
  }
}

TEST(HelpPages, Names_Of_Places_Are_Unique_On_A_Page) {
  for (const std::string& page : Help_Pages()) {
    const auto names = All(Read_Text(kHelpFolder + page), "<a name=\"([^\"]*)\"");
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size()) << page;
  }
}

TEST(HelpPages, Every_Page_Has_A_Title_And_A_Worked_Example_If_It_Is_A_Screens) {
  const std::string project = Project_File();
  for (const std::string& page : Help_Pages()) {
    const std::string text = Read_Text(kHelpFolder + page);
    EXPECT_EQ(All(text, "<title>([^<]+)</title>").size(), 1u) << page;
    EXPECT_EQ(All(text, "<h1[^>]*>([^<]+)</h1>").size(), 1u) << page;
  }
  for (const int topic : Help_Topics()) {
    const auto refs = All(project, " id=\"" + std::to_string(topic) + "\"\\s+ref=\"([^\"]*)\"");
    for (const std::string& page : refs) {
      EXPECT_NE(Read_Text(kHelpFolder + page).find("class=\"example\""), std::string::npos) << page;
    }
  }
}

TEST(HelpPages, No_Title_Shows_The_Name_That_A_Screen_Has_Inside) {
  for (const std::string& page : Help_Pages()) {
    const std::string text = Read_Text(kHelpFolder + page);
    for (const char* pattern : {"<title>([^<]+)</title>", "<h1[^>]*>([^<]+)</h1>"}) {
      for (const std::string& title : All(text, pattern)) {
        for (const Screen_Row& screen : kScreens) {
          EXPECT_EQ(title.find("(" + std::string(screen.name) + ")"), std::string::npos) << title;
        }
        EXPECT_FALSE(std::regex_search(title, std::regex("\\bfrm|_"))) << title;
      }
    }
  }
}

/// Pieces of the messages that the rules put together: the texts in a rule's source that hold a
/// blank.
std::vector<std::string> Message_Texts(const std::string& source) {
  std::vector<std::string> texts;
  for (const std::string& text : All(source, "\"([^\"\n]*)\"")) {
    if (text.find(' ') != std::string::npos) texts.push_back(text);
  }
  return texts;
}

/// Those of every file of rules.
std::vector<std::string> Texts_Of_The_Rules() {
  std::vector<std::string> all;
  int files = 0;
  for (const std::string& name : Names_In(BARVON_SOURCE "/src/checks")) {
    if (!name.ends_with("_rules.cpp")) continue;
    const auto texts = Message_Texts(Read_Text(BARVON_SOURCE "/src/checks/" + name));
    EXPECT_FALSE(texts.empty()) << name;
    all.insert(all.end(), texts.begin(), texts.end());
    ++files;
  }
  EXPECT_GE(files, 4);
  EXPECT_GE(all.size(), 20U);
  return all;
}

TEST(HelpPages, Every_Message_Of_The_Rules_Stands_On_The_Page_Of_Rules) {
  const std::string page = Readable_Page("rules.html");
  for (const std::string& text : Texts_Of_The_Rules()) {
    EXPECT_NE(page.find(text), std::string::npos) << text;
  }
}

TEST(HelpPages, Every_Message_Of_The_Rules_Is_In_The_Index) {
  std::string index;
  for (const std::string& name : All(Project_File(), "<keyword name=\"([^\"]*)\"")) {
    index += name + "\n";
  }
  for (const std::string& text : Texts_Of_The_Rules()) {
    EXPECT_NE(index.find(text), std::string::npos) << text;
  }
}

TEST(HelpPages, Every_Named_Topic_Is_Among_Those_That_Have_A_Page) {
  const std::string header = Read_Text(BARVON_SOURCE "/src/core/desk/help_topics.h");
  const auto named = All(header, "constexpr int k\\w+ = ([0-9]+);\n");
  EXPECT_GE(named.size(), 17U);
  std::set<int> topics;
  for (const std::string& topic : named) topics.insert(std::stoi(topic));
  topics.erase(kWizardPages);
  const std::vector<int> shown = Help_Topics();
  EXPECT_EQ(topics, std::set<int>(shown.begin(), shown.end()));
}

// The help speaks of the program, never of how it came about.
TEST(HelpPages, No_Page_Tells_Where_Things_Were_Laid_Down) {
  const std::regex telling(
      "specification|requirement|\\bPart [0-9]|\\bthe issue\\b|\\bissue #|source code|\\btest "
      "suite|"
      "implement|/work/|/root/|\\bagent|\\bhelper",
      std::regex::icase);
  std::vector<std::string> names = Help_Pages();
  names.push_back("barvon.qhp.in");
  for (const std::string& name : names) {
    // A message of the program has this word.
    const std::string text = Replaced(Replaced(Read_Text(kHelpFolder + name), "\n", " "),
                                      "Disable Variable Depth Specification Now?", "");
    std::smatch match;
    EXPECT_FALSE(std::regex_search(text, match, telling)) << name << ": " << match.str();
  }
}

}  // namespace
}  // namespace barvon

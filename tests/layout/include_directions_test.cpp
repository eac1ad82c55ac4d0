#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "layout/include_graph.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const std::string kSource = std::string(BARVON_SOURCE) + "/src";

/// What the files of a room may include beside their own room's. An entry is a room, a folder with
/// all the rooms in it (the toolkit's apart), or one unit: a file without its extension.
struct Room_Rule {
  std::set<std::string> plain;   // for every file
  std::set<std::string> screen;  // for those that need the toolkit, on top
};

const std::map<std::string, Room_Rule>& Table() {
  // Lists of shapes are made without the toolkit, so that a report without a window shows the same
  // pictures: plain files of the screens' rooms, the report's and the console's may know them.
  static const std::set<std::string> kScreens = {"platform/qt", "pictures"};
  static const std::set<std::string> kPlain = {"core", "platform", "pictures/shapes",
                                               "pictures/drawings"};
  static const std::map<std::string, Room_Rule> table = {
      {"platform/fields", {{}, {}}},
      {"platform/files", {{"platform/text"}, {}}},
      {"platform/process", {{"platform/files"}, {}}},
      {"platform/table", {{"platform/text"}, {}}},
      {"platform/text", {{}, {}}},
      {"platform/ask", {{}, {}}},
      {"platform/qt", {{"platform"}, {}}},
      {"pictures", {{"pictures/shapes", "pictures/drawings", "platform/text"}, {"platform/qt"}}},
      {"pictures/shapes", {{"platform/text"}, {}}},
      {"pictures/drawings", {{"pictures/shapes", "platform/text"}, {}}},
      {"results", {{"platform"}, {}}},
      {"results/drawings", {{"results", "pictures/shapes", "platform"}, {}}},
      {"graphs", {{"results", "platform", "pictures/shapes"}, {"platform/qt", "pictures"}}},
      {"core", {{"platform"}, {}}},
      {"core/project_file", {{"core/floor", "platform"}, {}}},
      {"core/model_input", {{"core/floor", "platform"}, {}}},
      {"core/desk", {{"core", "platform"}, {}}},
      {"checks", {{"core", "platform"}, {"platform/qt"}}},
      {"run", {{"checks", "core", "platform"}, {}}},
      {"params", {kPlain, kScreens}},
      {"material", {kPlain, kScreens}},
      {"dilution", {kPlain, kScreens}},
      {"database", {kPlain, kScreens}},
      {"wizard", {kPlain, kScreens}},
      {"site",
       {{"core", "platform", "pictures/shapes", "pictures/drawings", "material/amden"}, kScreens}},
      {"report",
       {{"core", "platform", "pictures/shapes", "pictures/drawings", "checks/check_data",
         "checks/error_entries", "checks/remarks", "site", "material", "params", "results"},
        {"platform/qt", "pictures"}}},
      {"recovery", {{"core", "platform", "report/project_differences"}, {"platform/qt"}}},
      {"workspace",
       {{"core", "platform", "pictures/shapes", "pictures/drawings", "run", "checks/check_data",
         "checks/error_entries"},
        {"platform/qt"}}},
      {"batch",
       {{"core", "platform", "pictures/shapes", "pictures/drawings", "checks", "run", "report",
         "database/database_check", "database/database_finding"},
        {}}},
      {"batch_main.cpp", {{"batch", "core", "platform", "checks", "run"}, {}}},
  };
  return table;
}

/// The room that holds the rule for a file's room: the toolkit's rooms share one.
std::string Ruled_By(const std::string& room) {
  return room.starts_with("platform/qt/") ? "platform/qt" : room;
}

/// Whether an entry of the table names the file. "core/floor" are the files of core/ itself.
bool Names(const std::string& entry, const std::string& included) {
  if (entry == Unit_Of(included)) return true;
  const std::string room = Ruled_By(Room_Of(included));
  if (entry == "core/floor") return room == "core";
  if (room == "platform/qt") return entry == room;
  return room == entry || room.starts_with(entry + "/");
}

/// The entry of the program, and the list of its screens, know everything.
bool Is_On_Top(const std::string& file) {
  return file == "main.cpp" || Unit_Of(file) == "program_screens";
}

bool May_Include(const std::string& file, const std::string& included, bool needs_toolkit) {
  const std::string room = Ruled_By(Room_Of(file));
  if (room == Ruled_By(Room_Of(included)) || Is_On_Top(room)) return true;
  const auto rule = Table().find(room);
  if (rule == Table().end()) return false;
  // A room of a folder is above the folder's floor, never below it.
  if (room == "core" && Room_Of(included).starts_with("core/")) return false;
  const auto names = [&](const std::string& entry) { return Names(entry, included); };
  return std::ranges::any_of(rule->second.plain, names) ||
         (needs_toolkit && std::ranges::any_of(rule->second.screen, names));
}

// The source files that a folder's build file gives to a library.
std::set<std::string> Sources_Of(const std::string& library) {
  std::set<std::string> sources;
  for (const auto& [room, rule] : Table()) {
    const std::string path = room.substr(0, room.find('/'));
    if (!Exists(kSource + "/" + path + "/CMakeLists.txt")) continue;
    const std::string text = Read_Text(kSource + "/" + path + "/CMakeLists.txt");
    const std::regex list(R"((?:target_sources|add_library)\()" + library +
                          R"( (?:PRIVATE|STATIC)([^)]*)\))");
    const std::regex name(R"(\S+\.cpp)");
    for (std::sregex_iterator at(text.begin(), text.end(), list), end; at != end; ++at) {
      const std::string names = (*at)[1];
      for (std::sregex_iterator n(names.begin(), names.end(), name); n != end; ++n) {
        sources.insert(path + "/" + n->str());
      }
    }
  }
  return sources;
}

TEST(IncludeDirections, Every_File_Includes_Only_What_Its_Room_May_Know) {
  const Include_Graph graph = Read_Includes(kSource);
  const std::set<std::string> toolkit = Toolkit_Files(kSource, graph);
  ASSERT_GT(graph.size(), 100u);
  for (const auto& [file, includes] : graph) {
    for (const std::string& included : includes) {
      EXPECT_TRUE(May_Include(file, included, toolkit.contains(file)))
          << file << " includes " << included;
    }
  }
}

TEST(IncludeDirections, Every_Include_From_The_House_Names_A_File_By_Its_Path_In_The_House) {
  const Include_Graph graph = Read_Includes(kSource);
  for (const auto& [file, includes] : graph) {
    for (const std::string& included : includes) {
      EXPECT_TRUE(graph.contains(included)) << file << " includes " << included;
    }
  }
}

TEST(IncludeDirections, No_Units_Include_Each_Other_Nor_In_A_Longer_Ring) {
  EXPECT_EQ(Find_Ring(Units_Of(Read_Includes(kSource))), std::vector<std::string>{});
}

TEST(IncludeDirections, No_Plain_File_Knows_The_Toolkit) {
  const std::set<std::string> toolkit = Toolkit_Files(kSource, Read_Includes(kSource));
  EXPECT_TRUE(toolkit.contains("main.cpp"));
  for (const char* library : {"barvon_plain", "barvon_batch"}) {
    const std::set<std::string> plain = Sources_Of(library);
    ASSERT_GT(plain.size(), 5u);
    for (const std::string& file : plain) EXPECT_FALSE(toolkit.contains(file)) << file;
  }
  for (const std::string& file : toolkit) {
    EXPECT_NE(Room_Of(file), "pictures/shapes") << file;
    EXPECT_NE(Room_Of(file), "pictures/drawings") << file;
    const std::string folder = file.substr(0, file.find('/'));
    const bool toolkit_room = file.starts_with("platform/qt/");
    EXPECT_TRUE(toolkit_room || (folder != "platform" && folder != "core")) << file;
    EXPECT_TRUE(folder != "run" && folder != "batch") << file;
  }
}

TEST(IncludeDirections, Nothing_Includes_The_Programs_Entries) {
  for (const auto& [file, includes] : Read_Includes(kSource)) {
    for (const char* entry : {"main.cpp", "batch_main.cpp", "graphs/main.cpp"}) {
      EXPECT_FALSE(includes.contains(entry)) << file;
    }
    EXPECT_TRUE(Is_On_Top(file) || !includes.contains("program_screens.h")) << file;
  }
}

TEST(IncludeDirections, Every_Source_File_Is_Built) {
  std::set<std::string> built = {"main.cpp", "program_screens.cpp", "batch_main.cpp",
                                 "graphs/main.cpp"};
  for (const char* library : {"barvon_plain", "barvon_screens", "barvon_batch", "barvon_graphs"}) {
    built.merge(Sources_Of(library));
  }
  for (const auto& [file, includes] : Read_Includes(kSource)) {
    if (!file.ends_with(".cpp")) continue;
    EXPECT_TRUE(built.contains(file)) << file;
  }
}

TEST(IncludeDirections, Only_The_Console_Program_Knows_Its_Libraries) {
  const std::regex library(R"(#include <(CLI/|nlohmann/))");
  for (const auto& [file, includes] : Read_Includes(kSource)) {
    if (Room_Of(file) == "batch") continue;
    EXPECT_FALSE(std::regex_search(Read_Text(kSource + "/" + file), library)) << file;
  }
}

TEST(IncludeDirections, Only_Pictures_Know_The_Plotting_Library) {
  const std::regex library("#include <qcustomplot");
  bool found = false;
  for (const auto& [file, includes] : Read_Includes(kSource)) {
    if (!std::regex_search(Read_Text(kSource + "/" + file), library)) continue;
    found = true;
    EXPECT_EQ(Room_Of(file), "pictures") << file;
  }
  EXPECT_TRUE(found);
}

// The rules themselves, on a house made up for the purpose.
TEST(IncludeDirections, A_Ring_Is_Found_However_Long) {
  const Include_Graph ring = {{"a.h", {"b.h"}}, {"b.h", {"c.h"}}, {"c.h", {"a.h"}}, {"d.h", {}}};
  EXPECT_EQ(Find_Ring(ring), (std::vector<std::string>{"a.h", "b.h", "c.h"}));
  EXPECT_EQ(Find_Ring({{"a.h", {"a.h"}}}), std::vector<std::string>{"a.h"});
  EXPECT_TRUE(Find_Ring({{"a.h", {"c.h"}}, {"b.h", {"c.h"}}, {"c.h", {}}}).empty());
}

TEST(IncludeDirections, A_Header_And_Its_Source_Are_One_Unit) {
  const Include_Graph files = {
      {"a.h", {}}, {"a.cpp", {"a.h", "b.h"}}, {"b.h", {}}, {"b.cpp", {"a.h", "b.h"}}};
  EXPECT_TRUE(Find_Ring(files).empty());
  const Include_Graph units = Units_Of(files);
  EXPECT_EQ(units, (Include_Graph{{"a", {"b"}}, {"b", {"a"}}}));
  EXPECT_EQ(Find_Ring(units), (std::vector<std::string>{"a", "b"}));
}

TEST(IncludeDirections, Upward_And_Sideways_Includes_Are_Not_Allowed) {
  EXPECT_TRUE(May_Include("core/a.cpp", "platform/files/b.h", false));
  EXPECT_FALSE(May_Include("platform/files/b.h", "core/a.h", false));
  EXPECT_FALSE(May_Include("platform/files/a.h", "platform/process/b.h", false));
  EXPECT_TRUE(May_Include("platform/process/a.h", "platform/files/b.h", false));
  EXPECT_FALSE(May_Include("platform/files/a.h", "platform/qt/help/b.h", true));
  EXPECT_TRUE(May_Include("platform/qt/help/a.cpp", "platform/qt/b.h", true));
  EXPECT_TRUE(May_Include("platform/qt/a.cpp", "platform/qt/help/b.h", true));
  EXPECT_TRUE(May_Include("platform/qt/help/a.cpp", "platform/ask/b.h", true));
  EXPECT_FALSE(May_Include("core/a.cpp", "platform/qt/help/b.h", true));
  EXPECT_FALSE(May_Include("core/a.cpp", "run/b.h", false));
  EXPECT_FALSE(May_Include("run/a.cpp", "workspace/b.h", false));
  EXPECT_FALSE(May_Include("site/a.cpp", "material/barge_data.h", false));
  EXPECT_TRUE(May_Include("site/a.cpp", "material/amden.h", false));
  EXPECT_FALSE(May_Include("workspace/a.cpp", "checks/site_rules.h", false));
  EXPECT_TRUE(May_Include("workspace/a.cpp", "checks/check_data.h", false));
  EXPECT_FALSE(May_Include("checks/a.cpp", "platform/qt/b.h", false));
  EXPECT_TRUE(May_Include("checks/frm.cpp", "platform/qt/fields/b.h", true));
  EXPECT_TRUE(May_Include("site/frm.cpp", "pictures/b.h", true));
  EXPECT_FALSE(May_Include("site/a.cpp", "pictures/b.h", false));
  EXPECT_FALSE(May_Include("pictures/a.cpp", "core/b.h", true));
  EXPECT_TRUE(May_Include("report/a.cpp", "params/simulation_data.h", false));
  EXPECT_FALSE(May_Include("report/a.cpp", "workspace/b.h", false));
  EXPECT_FALSE(May_Include("params/a.cpp", "report/b.h", false));
  EXPECT_TRUE(May_Include("batch/a.cpp", "report/project_report.h", false));
}

TEST(IncludeDirections, Plain_Files_Know_The_Plain_Part_Of_Pictures_And_No_More) {
  for (const char* file :
       {"params/site_plan.cpp", "site/a.cpp", "batch/a.cpp", "workspace/a.cpp"}) {
    EXPECT_TRUE(May_Include(file, "pictures/shapes/plan.h", false)) << file;
    EXPECT_TRUE(May_Include(file, "pictures/drawings/density_drawing.h", false)) << file;
    EXPECT_FALSE(May_Include(file, "pictures/plan_picture.h", false)) << file;
  }
  EXPECT_FALSE(May_Include("core/a.cpp", "pictures/shapes/plan.h", false));
  EXPECT_FALSE(May_Include("checks/a.cpp", "pictures/shapes/plan.h", false));
  EXPECT_FALSE(May_Include("platform/qt/a.cpp", "pictures/shapes/plan.h", true));
  EXPECT_FALSE(May_Include("pictures/shapes/a.cpp", "pictures/drawings/b.h", false));
  EXPECT_FALSE(May_Include("pictures/shapes/a.cpp", "pictures/b.h", true));
  EXPECT_FALSE(May_Include("pictures/drawings/a.cpp", "pictures/b.h", true));
  EXPECT_FALSE(May_Include("pictures/drawings/a.cpp", "platform/files/b.h", false));
  EXPECT_TRUE(May_Include("pictures/a.cpp", "pictures/drawings/b.h", true));
}

TEST(IncludeDirections, The_Project_File_And_The_Model_Input_Know_Nothing_Of_Each_Other) {
  EXPECT_FALSE(May_Include("core/project_file/a.cpp", "core/model_input/b.h", false));
  EXPECT_FALSE(May_Include("core/model_input/a.cpp", "core/project_file/b.h", false));
  EXPECT_FALSE(May_Include("core/project_file/a.cpp", "core/desk/b.h", false));
  EXPECT_FALSE(May_Include("core/a.cpp", "core/project_file/b.h", false));
  EXPECT_FALSE(May_Include("core/a.cpp", "core/desk/b.h", false));
  EXPECT_TRUE(May_Include("core/project_file/a.cpp", "core/b.h", false));
  EXPECT_TRUE(May_Include("core/desk/a.cpp", "core/model_input/b.h", false));
  EXPECT_TRUE(May_Include("workspace/a.cpp", "core/project_file/b.h", false));
}

}  // namespace
}  // namespace barvon::testing

#include "core/desk/screen_table.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

namespace barvon {
namespace {

TEST(ScreenTable, Every_Screen_Is_In_It_Once) {
  std::set<std::string> names;
  for (const Screen_Row& row : kScreens) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_EQ(Find_Screen(row.name), &row);
  }
  EXPECT_EQ(Find_Screen("frmProgress_Bar"), nullptr);
  EXPECT_EQ(Find_Screen(""), nullptr);
}

TEST(ScreenTable, Help_Opens_The_Screens_Own_Topic) {
  const std::pair<const char*, int> topics[] = {
      {"frmDescription", 2460}, {"frmVelocity", 2470},  {"frmSimulation", 3000},
      {"frmMatHopper", 2490},   {"frmOperation", 2500}, {"frmCoefficients", 2510},
      {"frmGridDescrip", 2530}, {"frmMdlkyn", 2540},    {"frmMatBarge", 2550},
      {"frmDensity", 3030},     {"DataBase", 2590},     {"frmDilute2", 2590},
      {"frmErrorList", 2650},   {"Data_Wiz", 0}};
  for (const auto& [name, topic] : topics) EXPECT_EQ(Find_Screen(name)->topic, topic) << name;
}

TEST(ScreenTable, What_Ok_Does_Beyond_The_Fields_Of_Each_Screen) {
  struct Told {
    const char* name;
    int line, supplied, mark;  // -1: none
  };
  const Told all[] = {{"frmDescription", 1, 2, 1},   {"frmGridDescrip", -1, 3, -1},
                      {"frmVelocity", 2, 4, 2},      {"frmMatHopper", 3, 7, 4},
                      {"frmMatBarge", 3, 7, 4},      {"frmOperation", 4, 9, 5},
                      {"frmCoefficients", 5, 10, 6}, {"frmDensity", -1, 8, -1},
                      {"frmSimulation", 0, 6, -1},   {"frmMdlkyn", 0, 5, 3}};
  std::set<std::string> accepting;
  for (const Told& told : all) {
    const Screen_Row& row = *Find_Screen(told.name);
    EXPECT_EQ(row.status_line.value_or(-1), told.line) << told.name;
    EXPECT_EQ(row.supplied.value_or(-1), told.supplied) << told.name;
    EXPECT_EQ((row.edit_mark ? static_cast<int>(*row.edit_mark) : -1), told.mark) << told.name;
    accepting.insert(told.name);
  }
  for (const Screen_Row& row : kScreens) {
    const bool tells = row.status_line || row.supplied || row.edit_mark;
    EXPECT_EQ(tells, accepting.contains(row.name)) << row.name;
  }
}

TEST(ScreenTable, The_Two_Material_Screens_Share_An_Entry_By_The_Vessel) {
  const auto record = std::make_unique<ProjectRecord>();
  const bool hopper[] = {false, true, true, false, false};
  const bool barge[] = {false, false, false, true, false};
  for (std::int16_t method = 0; method <= 4; ++method) {
    record->DisposalMethod = method;
    EXPECT_EQ(Serves_Vessel(*Find_Screen("frmMatHopper"), *record), hopper[method]) << method;
    EXPECT_EQ(Serves_Vessel(*Find_Screen("frmMatBarge"), *record), barge[method]) << method;
    EXPECT_TRUE(Serves_Vessel(*Find_Screen("frmOperation"), *record)) << method;
  }
}

TEST(ScreenTable, Topics_Are_Those_Of_The_Screens_And_Of_The_Wizards_Steps) {
  EXPECT_EQ(Help_Topics(),
            (std::vector<int>{420, 800, 2450, 2460, 2470, 2490, 2500, 2510, 2530, 2540, 2550, 2590,
                              2650, 2660, 2720, 2730, 3000, 3030}));
}

}  // namespace
}  // namespace barvon

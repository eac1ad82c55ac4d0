#include "workspace/menu_tree.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <set>
#include <stdexcept>
#include <tuple>

namespace barvon {
namespace {

const Menu& Menu_Named(const std::string& name) {
  for (const Menu& menu : Menu_Tree()) {
    if (menu.name == name) return menu;
  }
  throw std::runtime_error("no menu " + name);
}

const Menu_Item& Item_At(const std::string& menu, int index) {
  for (const Menu_Item& item : Menu_Named(menu).items) {
    if (item.index == index) return item;
  }
  throw std::runtime_error("no item in " + menu);
}

TEST(MenuTree, Holds_The_Menus_From_Left_To_Right) {
  std::vector<std::string> captions;
  for (const Menu& menu : Menu_Tree()) captions.push_back(menu.caption);
  EXPECT_EQ(captions, (std::vector<std::string>{"&File", "&Edit", "Ru&n", "&View", "&Graphics",
                                                "Options", "&Tools", "&Window", "&Help"}));
}

/// The item as one line: its index, its caption or "-", then what is not usual about it at start.
std::string Line_Of(const Menu_Item& item) {
  std::string line = std::to_string(item.index) + " ";
  line += *item.caption == '\0' ? "-" : item.caption;
  if (!item.enabled) line += ", disabled";
  if (!item.visible) line += ", hidden";
  if (item.has_mark) line += item.marked ? ", marked" : ", unmarked";
  if (*item.hint != '\0') line += " | " + std::string(item.hint);
  return line;
}

std::vector<std::string> Lines_Of(const std::string& menu) {
  std::vector<std::string> lines;
  for (const Menu_Item& item : Menu_Named(menu).items) lines.push_back(Line_Of(item));
  return lines;
}

TEST(MenuTree, Every_Item_Has_Its_Caption_Its_State_At_Start_And_Its_Description) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(Lines_Of("mnuFile"),
            (Lines{"0 &New | Create New File", "1 &Open | Open Existing File",
                   "2 &Close, disabled | Close Active File", "3 -",
                   "4 &Save, disabled | Save Existing File", "5 Save &As, disabled | Save New File",
                   "6 -", "7 &Print, disabled | Print Active File",
                   "8 P&rint Setup | Change the Printer Setup", "9 -", "10 E&xit"}));
  EXPECT_EQ(
      Lines_Of("mnuEdit"),
      (Lines{"0 &Evaluation Selection and Title, disabled | Edit Title and Site Description",
             "1 &Site Description, disabled", "2 &Velocity Profile, disabled",
             "3 &Input, Execution and Output Keys, disabled", "4 &Material Description, disabled",
             "5 &Disposal Operation Data, disabled", "6 &Coefficients (Default Values), disabled",
             "7 -", "8 &Error Check, disabled | Checks for Errors in the Input Data", "9 -, hidden",
             "10 Time/Date, disabled, hidden", "11 &Font, disabled, hidden"}));
  EXPECT_EQ(Lines_Of("mnuRun"), Lines{});
  EXPECT_EQ(Lines_Of("mnuView"),
            (Lines{"1 &Output File", "2 -", "3 &Toolbar, marked | Display or Hide the Toolbar",
                   "4 &Status Bar, marked | Display or Hide the Status Bar", "5 -",
                   "6 Multiple &Input Windows, unmarked | Allows or Disallows Multiple Input "
                   "Windows to be Shown"}));
  EXPECT_EQ(Lines_Of("mnuGraphics"), (Lines{"0 Execute Graphics", "1 Max Conc. vs Time",
                                            "2 Concentration Contours", "3 Deposition Thickness"}));
  EXPECT_EQ(Lines_Of("mnuOptions"),
            (Lines{"0 Data Wizard Help On, marked", "1 Always Save Before Simulation?, marked"}));
  EXPECT_EQ(Lines_Of("mnuWindow"),
            (Lines{"0 &Cascade", "1 Tile &Horizontal", "2 Tile &Vertical", "3 &Arrange Icons"}));
  EXPECT_EQ(Lines_Of("mnuHelp"), (Lines{"0 &Contents | Index of Help Topics",
                                        "1 &Search For Help On", "2 -", "3 &About"}));
}

TEST(MenuTree, Menus_Have_Their_Descriptions_And_Arrays) {
  const std::tuple<const char*, const char*, const char*> menus[] = {
      {"mnuFile", "mnuFileItem", "File Manipulation Tools"},
      {"mnuEdit", "mnuEditItem", "Edit Input Data"},
      {"mnuView", "mnuViewItem", "Edit Environment View"},
      {"mnuGraphics", "mnuGraph", ""},
      {"mnuOptions", "mnuOptionItem", ""},
      {"mnuWindow", "mnuWItem", ""},
      {"mnuHelp", "mnuHelpItem", "Topic Help Menu"}};
  for (const auto& [name, array, hint] : menus) {
    EXPECT_STREQ(Menu_Named(name).array, array);
    EXPECT_STREQ(Menu_Named(name).hint, hint);
  }
}

TEST(MenuTree, Run_Is_Closed_And_Window_Is_Hidden_At_Start) {
  for (const Menu& menu : Menu_Tree()) {
    EXPECT_EQ(menu.enabled, std::string(menu.name) != "mnuRun") << menu.name;
    const std::string name = menu.name;
    EXPECT_EQ(menu.visible, name != "mnuWindow" && name != "mnuTools") << name;
  }
}

TEST(MenuTree, Gate_By_Mode) {
  EXPECT_FALSE(Is_Available(Gate::Any, Menu_Mode::Closed));
  EXPECT_TRUE(Is_Available(Gate::Any, Menu_Mode::Project));
  EXPECT_TRUE(Is_Available(Gate::Any, Menu_Mode::Dilution));
  EXPECT_FALSE(Is_Available(Gate::Project, Menu_Mode::Closed));
  EXPECT_TRUE(Is_Available(Gate::Project, Menu_Mode::Project));
  EXPECT_FALSE(Is_Available(Gate::Project, Menu_Mode::Dilution));
}

TEST(MenuTree, What_Stands_Behind_Which_Gate) {
  for (const int index : {2, 4, 5, 7}) EXPECT_EQ(Item_At("mnuFile", index).gate, Gate::Any);
  for (const int index : {0, 1, 8, 10}) EXPECT_EQ(Item_At("mnuFile", index).gate, Gate::None);
  EXPECT_EQ(Item_At("mnuEdit", 0).gate, Gate::Any);
  for (const int index : {1, 2, 3, 4, 5, 6, 8}) {
    EXPECT_EQ(Item_At("mnuEdit", index).gate, Gate::Project) << index;
  }
  EXPECT_EQ(Menu_Named("mnuRun").gate, Gate::Project);
  EXPECT_EQ(Item_At("mnuView", 1).gate, Gate::Project);
  EXPECT_EQ(Item_At("mnuView", 3).gate, Gate::None);
}

TEST(MenuTree, Tools_Are_Hidden_Until_Their_Screens_Stand) {
  EXPECT_FALSE(Menu_Named("mnuTools").visible);
  const char* screens[] = {
      "frmOpen", "DataBase",       "Write_Dilute_Report", "Graphic_Data_Entry", "frmNotePad",
      "frmTip",  "Open_Text_File", "Project_Report",      "frmDatabaseCheck"};
  ASSERT_EQ(Menu_Named("mnuTools").items.size(), std::size(screens));
  for (int i = 0; i < static_cast<int>(std::size(screens)); ++i) {
    ASSERT_NE(Tool_Screen(i), nullptr);
    EXPECT_STREQ(Tool_Screen(i)->name, screens[i]);
    EXPECT_FALSE(Item_At("mnuTools", i).visible) << i;
  }
  EXPECT_EQ(Tool_Screen(9), nullptr);
  EXPECT_EQ(Tool_Screen(-1), nullptr);
}

TEST(MenuTree, Only_The_Two_Entries_With_E_Of_The_Edit_Menu_Share_A_Letter) {
  std::vector<std::string> shared;
  for (const Menu& menu : Menu_Tree()) {
    std::set<char> taken;
    for (const Menu_Item& item : menu.items) {
      const char* mark = std::strchr(item.caption, '&');
      if (mark == nullptr) continue;
      const char letter = static_cast<char>(std::toupper(mark[1]));
      if (!taken.insert(letter).second) shared.push_back(menu.name + std::string(1, letter));
    }
  }
  EXPECT_EQ(shared, std::vector<std::string>{"mnuEditE"});
}

TEST(MenuTree, An_Ampersand_In_A_Recent_Path_Shows_As_It_Is) {
  EXPECT_EQ(Recent_Caption(1, "/data/A&B/x.DUI"), "&1: /data/A&&B/x.DUI");
  EXPECT_EQ(Recent_Caption(4, ""), "&4: ");
}

}  // namespace
}  // namespace barvon

#include "workspace/menu_tree.h"

#include <gtest/gtest.h>

#include <set>

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

TEST(MenuTree, Separators_Of_The_File_Menu_Are_3_6_And_9) {
  std::set<int> separators;
  for (const Menu_Item& item : Menu_Named("mnuFile").items) {
    if (*item.caption == '\0') separators.insert(item.index);
  }
  EXPECT_EQ(separators, (std::set<int>{3, 6, 9}));
}

TEST(MenuTree, At_Start_Only_What_Needs_No_Project_Is_Available) {
  for (const int index : {0, 1, 8, 10}) EXPECT_TRUE(Item_At("mnuFile", index).enabled) << index;
  for (const int index : {2, 4, 5, 7}) EXPECT_FALSE(Item_At("mnuFile", index).enabled) << index;
  for (const int index : {0, 1, 2, 3, 4, 5, 6, 8}) {
    EXPECT_FALSE(Item_At("mnuEdit", index).enabled) << index;
  }
  EXPECT_FALSE(Menu_Named("mnuRun").enabled);
  EXPECT_TRUE(Item_At("mnuView", 1).enabled);
  EXPECT_FALSE(Menu_Named("mnuWindow").visible);
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
  const char* screens[] = {"frmOpen",    "DataBase", "Write_Dilute_Report", "Graphic_Data_Entry",
                           "frmNotePad", "frmTip"};
  ASSERT_EQ(Menu_Named("mnuTools").items.size(), 6u);
  for (int i = 0; i < 6; ++i) {
    EXPECT_STREQ(Tool_Screen(i), screens[i]);
    EXPECT_FALSE(Item_At("mnuTools", i).visible) << i;
  }
  EXPECT_EQ(Tool_Screen(6), nullptr);
  EXPECT_EQ(Tool_Screen(-1), nullptr);
}

TEST(MenuTree, An_Ampersand_In_A_Recent_Path_Shows_As_It_Is) {
  EXPECT_EQ(Recent_Caption(1, "/data/A&B/x.DUI"), "&1: /data/A&&B/x.DUI");
  EXPECT_EQ(Recent_Caption(4, ""), "&4: ");
}

}  // namespace
}  // namespace barvon

#include "core/desk/settings_keys.h"

#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class SettingsKeys : public Recorded_Workspace {};

TEST_F(SettingsKeys, The_Settings_Stand_In_The_Application_Folder) {
  EXPECT_EQ(Settings_Path(), folder_ / "BARVON.INI");
}

TEST_F(SettingsKeys, An_Existing_File_Is_Found_In_Any_Case) {
  Write_Text(folder_ / "Barvon.ini", "");
  EXPECT_EQ(Settings_Path(), folder_ / "Barvon.ini");
}

TEST_F(SettingsKeys, The_Graphics_Program_Finds_The_Project_Under_GraphFile) {
  EXPECT_TRUE(Write_Graph_File("/data/a.dui"));
  EXPECT_TRUE(Write_Graph_File("/data/b.dui"));
  EXPECT_EQ(Settings(), "[Graph File]\r\nGraphFile=/data/b.dui\r\n");
}

}  // namespace
}  // namespace barvon

#include "core/desk/settings_keys.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/desk/recent_files.h"
#include "platform/files/app_folder.h"
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

TEST_F(SettingsKeys, Those_Of_A_Command_Are_Read_At_Once_And_Written_At_Its_End) {
  {
    const Settings_Of_Command settings;
    EXPECT_TRUE(Write_Setting("A", "k", "1"));
    {
      const Settings_Of_Command part;
      EXPECT_TRUE(Write_Setting("B", "m", "2"));
    }
    EXPECT_TRUE(Write_Setting("a", "K", "3"));
    EXPECT_EQ(Read_Setting("A", "k", "none"), "3");
    EXPECT_EQ(Read_Setting("B", "m", "none"), "2");
    EXPECT_FALSE(Exists(Settings_Path()));
  }
  EXPECT_EQ(Settings(), "[a]\r\nK=3\r\n[B]\r\nm=2\r\n");
}

TEST_F(SettingsKeys, A_Setting_That_Can_Not_Stand_There_Keeps_None_Of_Its_Command_From_The_File) {
  Settings_Of_Command settings;
  EXPECT_FALSE(Write_Setting("A", "k", "two\nlines"));
  EXPECT_TRUE(Write_Setting("A", "m", "2"));
  EXPECT_TRUE(settings.Write());
  EXPECT_EQ(Settings(), "[A]\r\nm=2\r\n");
  EXPECT_TRUE(Write_Setting("A", "m", "3"));
  EXPECT_EQ(Settings(), "[A]\r\nm=3\r\n");
}

/// A folder of the settings' name can't be written by anyone.
class SettingsThatCanNotBeWritten : public SettingsKeys {
 protected:
  SettingsThatCanNotBeWritten() { std::filesystem::create_directory(path_); }
  std::string path_ = folder_ / "BARVON.INI";
};

TEST_F(SettingsThatCanNotBeWritten, Are_Told_Once_With_Their_File) {
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Write_Setting("A", "k", "1"));
  EXPECT_FALSE(Write_Graph_File("/data/a.dui"));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "Can't write the settings to " + path_ +
                ": Path not usable.\n\nRecent files and options are kept until BARVON is closed.  "
                "As soon as the file can be written they go there.");
  EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
}

TEST_F(SettingsThatCanNotBeWritten, Are_Kept_And_Go_To_The_File_With_The_Next_One_That_Can) {
  Scripted_Messages messages({Answer::Ok});
  Write_Setting("A", "k", "1");
  Write_Setting("A", "k", "2");
  Write_Setting("A", "other", "3");
  EXPECT_EQ(Read_Setting("A", "k", "none"), "2");
  EXPECT_EQ(Read_Setting("A", "missing", "none"), "none");
  std::filesystem::remove(path_);
  EXPECT_TRUE(Write_Setting("A", "other", "4"));
  EXPECT_EQ(Settings(), "[A]\r\nother=4\r\nk=2\r\n");
  EXPECT_EQ(Read_Setting("A", "k", "none"), "2");
}

TEST_F(SettingsThatCanNotBeWritten, Are_Told_Once_And_Kept_For_A_Whole_Command) {
  Scripted_Messages messages({Answer::Ok});
  Write_Setting("A", "early", "0");
  {
    Settings_Of_Command settings;
    Write_Setting("A", "k", "1");
    Write_Setting("A", "m", "2");
    EXPECT_FALSE(settings.Write());
  }
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Read_Setting("A", "k", "none"), "1");
  std::filesystem::remove(path_);
  EXPECT_TRUE(Write_Setting("A", "last", "3"));
  EXPECT_EQ(Settings(), "[A]\r\nlast=3\r\nearly=0\r\nk=1\r\nm=2\r\n");
}

TEST_F(SettingsThatCanNotBeWritten, Are_Found_In_Any_Case) {
  Scripted_Messages messages({Answer::Ok});
  Write_Setting("A", "Listsize", "1");
  EXPECT_EQ(Read_Setting("a", "ListSize", "none"), "1");
}

TEST_F(SettingsThatCanNotBeWritten, Still_Show_A_File_Among_The_Recent_Ones) {
  Scripted_Messages messages({Answer::Ok});
  WriteRecentFiles("/data/a.dui");
  WriteRecentFiles("/data/b.dui");
  GetRecentFiles();
  EXPECT_EQ(Recent_Menu()[1], "/data/b.dui");
  EXPECT_EQ(Recent_Menu()[2], "/data/a.dui");
  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(SettingsKeys, What_Could_Not_Be_Read_Is_Not_Written_Over_When_The_Disk_Has_Recovered) {
  Scripted_Messages messages({Answer::Ok});
  const std::string path = folder_ / "BARVON.INI";
  // A regular file whose first byte can't be read.
  std::filesystem::create_symlink("/proc/self/mem", path);
  EXPECT_EQ(Read_Setting("A", "Listsize", "0"), "0");
  std::filesystem::remove(path);
  Write_Text(path, "[A]\r\nListsize=8\r\n");
  EXPECT_FALSE(Write_Setting("A", "Listsize", "1"));
  EXPECT_FALSE(Write_Setting("A", "other", "2"));
  EXPECT_EQ(Settings(), "[A]\r\nListsize=8\r\n");
  EXPECT_EQ(Read_Setting("A", "Listsize", "0"), "1") << "kept as long as the program runs";
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "Can't read the settings in " + path +
                ": Device fault.\n\nThe file stays as it is.  Recent files and options are kept "
                "until BARVON is closed.");
}

/// A program that could be written once, and a user's folder without settings.
class SettingsLeft : public SettingsKeys {
 protected:
  SettingsLeft() { Set_Delivered_Folder(program_.path()); }
  ~SettingsLeft() override { Set_Delivered_Folder(""); }

  Scratch_Folder program_;
  const std::string left_ = program_ / "BARVON.INI";
};

TEST_F(SettingsLeft, Are_Taken_Over_By_A_User_Without_Any) {
  Scripted_Messages no_boxes;
  Write_Text(left_, "[A]\r\nk=theirs\r\n");
  Take_Delivered_Settings();
  Tell_Settings_Left();
  EXPECT_EQ(Read_Setting("A", "k", "none"), "theirs");
  EXPECT_TRUE(Write_Setting("A", "k", "mine"));
  Take_Delivered_Settings();
  EXPECT_EQ(Settings(), "[A]\r\nk=mine\r\n");
}

TEST_F(SettingsLeft, That_Can_Not_Be_Read_Are_Told_Once_And_Taken_Over_Later) {
  Scripted_Messages messages({Answer::Ok});
  // A regular file whose first byte can't be read.
  std::filesystem::create_symlink("/proc/self/mem", left_);
  Take_Delivered_Settings();
  EXPECT_TRUE(messages.shown.empty()) << "before there is a window";
  Tell_Settings_Left();
  EXPECT_FALSE(Write_Setting("A", "k", "mine"));
  EXPECT_EQ(Read_Setting("A", "k", "none"), "mine");
  EXPECT_FALSE(Exists(folder_ / "BARVON.INI")) << "or the next start would leave theirs";
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "Can't take over the settings in " + left_ + " to " + (folder_ / "BARVON.INI") +
                ": Device fault.\n\nThe next start of BARVON tries again.  Recent files and "
                "options are kept until BARVON is closed.");
  std::filesystem::remove(left_);
  Write_Text(left_, "[A]\r\nk=theirs\r\n");
  Take_Delivered_Settings();
  EXPECT_EQ(Settings(), "[A]\r\nk=theirs\r\n");
}

TEST_F(SettingsLeft, That_Can_Not_Be_Copied_Are_Told_With_The_First_Value_At_The_Latest) {
  Scripted_Messages messages({Answer::Ok});
  Write_Text(left_, "[A]\r\nk=theirs\r\n");
  Set_Application_Folder(folder_ / "gone");
  Take_Delivered_Settings();
  EXPECT_FALSE(Write_Setting("A", "k", "mine"));
  Tell_Settings_Left();
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_TRUE(messages.shown[0].text.starts_with("Can't take over the settings in " + left_));
}

TEST_F(SettingsKeys, A_Text_That_Can_Not_Stand_There_Is_No_Fault_Of_The_File) {
  Scripted_Messages messages;
  EXPECT_FALSE(Write_Setting("A", "k", "two\nlines"));
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(Read_Setting("A", "k", "none"), "none");
}

}  // namespace
}  // namespace barvon

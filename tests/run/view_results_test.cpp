#include "run/view_results.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/profile_settings.h"
#include "platform/process/document_opener.h"
#include "run/child_support.h"
#include "run/create_process.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class ViewResults : public ::testing::Test {
 protected:
  ViewResults() {
    std::filesystem::create_directory(bench.folder / "bay");
    record.BaseFileName = bench.folder / "bay/site";
    record.ProjectFileName = record.BaseFileName + ".DUI";
    former_ = Set_Document_Opener([this](const std::string& path) {
      opened.push_back(path);
      return opens;
    });
  }
  ~ViewResults() override { Set_Document_Opener(former_); }

  void Save_Project() { Write_Text(record.ProjectFileName, "project"); }
  std::string Setting(const char* section, const char* key) {
    return Read_Profile_String(bench / "BARVON.INI", section, key, "none");
  }
  static void Expect_Box(const Scripted_Messages& messages, const std::string& text,
                         const char* title, Icon icon) {
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0].text, text);
    EXPECT_EQ(messages.shown[0].title, title);
    EXPECT_EQ(messages.shown[0].icon, icon);
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
  }

  Solver_Bench bench;
  const std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
  std::vector<std::string> opened;
  bool opens = true;

 private:
  Document_Opener former_;
};

TEST_F(ViewResults, Graphics_Of_A_Project_Without_A_File_Are_Refused) {
  Scripted_Messages messages({Answer::Ok});
  Graph_Command(record, 0);
  Expect_Box(messages, "Please Specify a File Before Running Model", "BARVON Error",
             Icon::Critical);
  EXPECT_FALSE(Exists(bench / "BARVON.INI"));
}

TEST_F(ViewResults, Each_Entry_Hands_Over_The_Project_And_Its_Type) {
  Save_Project();
  bench.Install("kv_graph.exe", "write:seen.txt=x\n");
  for (int kind = 0; kind < kGraphKinds; ++kind) {
    Scripted_Messages messages;
    Graph_Command(record, kind);
    EXPECT_EQ(Setting("Graph File", "GraphFile"), record.ProjectFileName);
    EXPECT_EQ(Setting("Simulation Type", "SimType"), "Type " + std::to_string(kind));
  }
  EXPECT_TRUE(Exists(bench / "seen.txt"));
}

TEST_F(ViewResults, A_Viewer_Is_Not_Shown_As_A_Run) {
  Save_Project();
  bench.Install_Viewer();
  Watched_Programs watched;
  Graph_Command(record, 0);
  EXPECT_FALSE(Run_Is_Under_Way());
  Write_Text(bench / "close", "");
  EXPECT_TRUE(Comes_True([&] { return watched.Open() == 0; }));
  EXPECT_TRUE(bench.states.empty());
  EXPECT_TRUE(bench.notes.empty());
}

TEST_F(ViewResults, The_Same_Viewer_May_Be_Open_Twice) {
  Save_Project();
  bench.Install_Viewer();
  Watched_Programs watched;
  Graph_Command(record, 0);
  Graph_Command(record, 1);
  EXPECT_EQ(bench.Viewers(2).size(), 2u);
  EXPECT_EQ(watched.Open(), 2u);
  EXPECT_TRUE(bench.notes.empty());
  Write_Text(bench / "close", "");
  EXPECT_TRUE(Comes_True([&] { return watched.Open() == 0; }));
}

TEST_F(ViewResults, A_Dos_Graphics_Program_Is_Started_With_A_Window_To_Be_Seen) {
  Save_Project();
  Write_Text(bench / "kv_graph.exe", "MZ program");
  std::filesystem::create_directory(bench.folder / "bin");
  Write_Text(bench.folder / "bin/dosbox", "#!/bin/sh\necho ${SDL_VIDEODRIVER-a window} > seen\n");
  std::filesystem::permissions(bench.folder / "bin/dosbox", std::filesystem::perms::owner_all);
  const Changed_Variable path("PATH", bench.folder / "bin");
  ::unsetenv("SDL_VIDEODRIVER");
  Graph_Command(record, 0);
  EXPECT_EQ(Read_Text(bench / "seen"), "a window\n");
}

TEST_F(ViewResults, What_Stops_A_Run_Leaves_Viewers_Open) {
  Save_Project();
  bench.Install_Viewer();
  Watched_Programs watched;
  Graph_Command(record, 0);
  const pid_t viewer = bench.Viewers(1).at(0);
  Stop_Run();
  Stop_Run_And_Wait();
  EXPECT_EQ(watched.Open(), 1u);
  EXPECT_TRUE(Is_Alive(viewer));
  Write_Text(bench / "close", "");
  EXPECT_TRUE(Comes_True([&] { return watched.Open() == 0; }));
}

TEST_F(ViewResults, A_Viewer_Outlives_The_Program_That_Opened_It) {
  Save_Project();
  bench.Install_Viewer();
  EXPECT_EXIT(
      {
        Watched_Programs watched;
        Stop_Run_At_Exit();
        Graph_Command(record, 0);
        bench.Viewers(1);
        std::exit(7);
      },
      ::testing::ExitedWithCode(7), "");
  EXPECT_TRUE(Is_Alive(bench.Viewers(1).at(0)));
  Write_Text(bench / "close", "");
  EXPECT_TRUE(Comes_True([this] { return Exists(bench / "closed"); }));
}

TEST_F(ViewResults, A_Native_Program_Of_The_Name_Without_Extension_Is_Found) {
  Save_Project();
  bench.Install("kv_graph", "write:seen.txt=x\n");
  Scripted_Messages messages;
  Graph_Command(record, 0);
  EXPECT_TRUE(Exists(bench / "seen.txt"));
}

TEST_F(ViewResults, The_Application_Directory_Is_Where_It_Starts_From_Wherever_The_User_Stands) {
  Save_Project();
  bench.Install("kv_graph.exe", "write:seen.txt=x\n");
  std::filesystem::current_path(bench.folder / "bay");
  Scripted_Messages messages;
  Graph_Command(record, 0);
  EXPECT_TRUE(Exists(bench / "seen.txt"));
}

TEST_F(ViewResults, A_Graphics_Program_That_Came_With_The_Program_Works_In_The_Users_Folder) {
  Save_Project();
  bench.Install("kv_graph", "write:seen.txt=x\n");
  std::filesystem::create_directory(bench.folder / "program");
  std::filesystem::rename(bench / "kv_graph", bench.folder / "program/kv_graph");
  Set_Delivered_Folder(bench.folder / "program");
  EXPECT_TRUE(Graphics_Program_Exists());
  Scripted_Messages messages;
  Graph_Command(record, 0);
  Set_Delivered_Folder("");
  EXPECT_TRUE(Exists(bench / "seen.txt"));
}

TEST_F(ViewResults, A_Missing_Graphics_Program_Is_Told_With_Its_Path_After_The_Hand_Over) {
  Save_Project();
  Scripted_Messages messages({Answer::Ok});
  Graph_Command(record, 2);
  Expect_Box(messages, "File: " + (bench / "kv_graph.exe") + " Not Found", "BARVON", Icon::Warning);
  EXPECT_EQ(Setting("Simulation Type", "SimType"), "Type 2");
}

TEST_F(ViewResults, A_Missing_Application_Directory_Is_Told_With_Its_Path) {
  Save_Project();
  const std::string folder = Application_Folder();
  Set_Application_Folder(bench.folder / "gone");
  Scripted_Messages messages({Answer::Ok});
  Graph_Command(record, 0);
  Expect_Box(messages, "Path: " + (bench.folder / "gone") + " Not Found", "BARVON", Icon::Warning);
  Set_Application_Folder(folder);
}

TEST_F(ViewResults, A_Graphics_Program_That_Fails_Is_Not_Passed_Over_In_Silence) {
  Save_Project();
  bench.Install("kv_graph", "error:no such library\nexit:3\n");
  Scripted_Messages messages;
  Graph_Command(record, 0);
  ASSERT_EQ(bench.notes.size(), 1u);
  EXPECT_EQ(bench.notes[0].text, (bench / "kv_graph") + " ended with code 3.");
  EXPECT_EQ(bench.notes[0].details, "no such library\n");
}

TEST_F(ViewResults, A_Graphics_Program_That_A_Signal_Ends_Is_Told) {
  Save_Project();
  bench.Install("kv_graph", "error:out of bounds\nsignal:11\n");
  Scripted_Messages messages;
  Graph_Command(record, 0);
  ASSERT_EQ(bench.notes.size(), 1u);
  EXPECT_EQ(bench.notes[0].text, (bench / "kv_graph") + " was ended by signal 11.");
  EXPECT_EQ(bench.notes[0].details, "out of bounds\n");
}

TEST_F(ViewResults, Where_The_Settings_Can_Not_Be_Written_No_Other_Project_Is_Shown) {
  Save_Project();
  std::filesystem::create_directory(bench / "BARVON.INI");
  bench.Install("kv_graph", "write:seen.txt=x\n");
  Scripted_Messages messages({Answer::Ok});
  Graph_Command(record, 0);
  EXPECT_TRUE(messages.shown.at(0).text.starts_with("Can't write the settings to "))
      << messages.shown.at(0).text;
  ASSERT_EQ(bench.notes.size(), 1u);
  EXPECT_EQ(bench.notes[0].text,
            "The settings could not be written, so the graphics program would show another "
            "project; it was not started.");
  EXPECT_FALSE(Exists(bench / "seen.txt"));
}

TEST_F(ViewResults, A_Graphics_Program_That_Can_Not_Be_Started_Is_Told) {
  Save_Project();
  Write_Text(bench / "kv_graph.exe", "#!/bin/sh\n");  // not executable
  Scripted_Messages messages;
  Graph_Command(record, 0);
  ASSERT_EQ(bench.notes.size(), 1u);
  EXPECT_EQ(bench.notes[0].text.rfind("The graphics program was not started: ", 0), 0u);
  EXPECT_NE(bench.notes[0].text.find((bench / "kv_graph.exe") + " is not executable"),
            std::string::npos);
}

TEST_F(ViewResults, Blanks_In_The_Path_Reach_Graphics_And_Editor_As_They_Are) {
  std::filesystem::create_directory(bench.folder / "north bay");
  record.BaseFileName = bench.folder / "north bay/site one";
  record.ProjectFileName = record.BaseFileName + ".DUI";
  Save_Project();
  Write_Text(record.BaseFileName + ".duo", "output");
  bench.Install("kv_graph", "write:seen.txt=x\n");
  Scripted_Messages messages;
  Graph_Command(record, 1);
  EXPECT_EQ(Setting("Graph File", "GraphFile"), bench.folder / "north bay/site one.DUI");
  EXPECT_TRUE(Exists(bench / "seen.txt"));
  View_Output_Command(record);
  EXPECT_EQ(opened, std::vector<std::string>{bench.folder / "north bay/site one.duo"});
}

TEST_F(ViewResults, Output_Of_No_Project_Is_Refused) {
  for (const char* name : {"", "UNTITLED.DUI"}) {
    record.ProjectFileName = name;
    Scripted_Messages messages({Answer::Ok});
    View_Output_Command(record);
    Expect_Box(messages, "No File Specified", "BARVON", Icon::Critical);
  }
  EXPECT_TRUE(opened.empty());
}

TEST_F(ViewResults, Output_That_Was_Never_Produced_Is_Told_As_Missing) {
  Scripted_Messages messages({Answer::Ok});
  View_Output_Command(record);
  Expect_Box(messages, "File " + record.BaseFileName + ".duo Not Found.", "BARVON", Icon::Warning);
  EXPECT_TRUE(opened.empty());
}

TEST_F(ViewResults, Output_Is_Opened_Whatever_The_Case_Of_Its_Name) {
  Write_Text(bench.folder / "bay/SITE.DUO", "output");
  Scripted_Messages messages;
  View_Output_Command(record);
  EXPECT_EQ(opened, std::vector<std::string>{bench.folder / "bay/SITE.DUO"});
  EXPECT_TRUE(bench.notes.empty());
}

TEST_F(ViewResults, Output_That_Nothing_Can_Show_Is_Told) {
  Write_Text(record.BaseFileName + ".duo", "output");
  opens = false;
  Scripted_Messages messages;
  View_Output_Command(record);
  ASSERT_EQ(bench.notes.size(), 1u);
  EXPECT_EQ(bench.notes[0].text, record.BaseFileName + ".duo could not be shown.");
}

TEST_F(ViewResults, The_Graphics_Program_Is_Looked_For_In_The_Current_Directory) {
  std::filesystem::current_path(bench.folder.path());
  EXPECT_FALSE(Graphics_Program_Exists());
  Write_Text(bench.folder / "KV_Graph.Exe", "x");
  EXPECT_TRUE(Graphics_Program_Exists());
}

}  // namespace
}  // namespace barvon

#include "run/planted_files.h"

#include <filesystem>

#include "core/desk/project_hold.h"
#include "core/desk/save_file.h"
#include "core/keys.h"
#include "platform/process/search_path.h"
#include "platform/process/viewer_program.h"
#include "run/solver_command.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

/// Names that a run uses in the application directory, as solvers and this program spell them.
constexpr std::array kRunNames = {"Tmpfile.Due", "TMPFILE.DUE", "Tmpfile.log", "tmpfile.duo",
                                  "TMPFILE.DUO", "tmpfile.dup", "tmpfile.dut", "tmpfile.duc",
                                  "Tmpfile.old", "Tmpfile.Add", "tmpfile.add", "KOLBREE.TMP",
                                  "kolbree.tmp", "Tmpfile.run"};

TEST_F(PlantedFiles, Under_The_Names_Of_A_Run_They_Lead_Nowhere) {
  for (const char* current : {"app", "bay"}) {
    for (const Plant plant : kPlants) {
      for (const char* name : kRunNames) {
        SCOPED_TRACE(std::string(current) + ", " + name + ", " +
                     std::to_string(static_cast<int>(plant)));
        fs::current_path(bench.folder / current);
        Put(plant, bench / name);
        // A folder under the name of an input costs the run, in words.
        const Scripted_Messages messages({Answer::Ok});
        const Run_Report report = Run_Model(record);
        Expect_No_Harm(plant, bench / name);
        EXPECT_NE(report.text, "");
        if (plant != Plant::Folder) {
          EXPECT_TRUE(report.Succeeded()) << report.text;
        }
        fs::remove_all(bench / name);
      }
    }
  }
}

TEST_F(PlantedFiles, Under_The_Names_Of_The_Project_They_Are_Replaced_Or_Told) {
  // The user's own links are left out: that a link stays one, and its target is written, is wanted.
  for (const Plant plant : {Plant::Second_Name, Plant::Pipe, Plant::Folder}) {
    for (const char* extension : {".duo", ".dup", ".dut", ".duc"}) {
      Put(plant, base + extension);
      const Run_Report report = Run();
      Expect_No_Harm(plant, base + extension);
      EXPECT_EQ(report.Succeeded(), plant == Plant::Second_Name) << report.text;
      fs::remove_all(base + extension);
    }
    for (const char* extension : {".DUI", ".DUE"}) {
      Put(plant, base + extension);
      const Scripted_Messages messages({Answer::Ok});
      bench.notes.clear();
      Release_Project();  // that the file of the open one is gone would be told
      const bool saved = Save_File(base + ".DUI", kProjectKind, record);
      const bool told = !messages.shown.empty() || !bench.notes.empty();
      Expect_No_Harm(plant, base + extension);
      EXPECT_EQ(saved, plant == Plant::Second_Name || extension == std::string(".DUE"));
      EXPECT_EQ(told, plant != Plant::Second_Name);
      fs::remove_all(base + extension);
    }
    Write_Text(base + ".DUI", "as saved");
    Put(plant, bench / "BARVON.INI");
    {
      const Scripted_Messages messages({Answer::Ok, Answer::Ok});
      Run_Model(record);
    }
    Expect_No_Harm(plant, bench / "BARVON.INI");
    fs::remove_all(bench / "BARVON.INI");
  }
}

TEST_F(PlantedFiles, The_Users_Own_Links_Are_Written_Through) {
  fs::create_directory(bench.folder / "large disk");
  fs::create_symlink(bench.folder / "large disk/site.duo", base + ".duo");
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(Read_Text(bench.folder / "large disk/site.duo"), "o");
  EXPECT_TRUE(fs::is_symlink(base + ".duo"));
}

TEST_F(StrangersFiles, Links_In_A_Folder_That_All_Can_Write_Are_Not_Written_Through) {
  for (const mode_t mode : {kOpenToAll, kSticky}) {
    for (const Plant plant : {Plant::Link, Plant::Dangling_Link}) {
      Open_To_All(bench.folder / "bay", mode);
      Open_To_All(bench.app(), mode);
      for (const std::string& path :
           {base + ".duo", base + ".dup", base + ".dut", base + ".duc", bench / "BARVON.INI"}) {
        Put(plant, path);
        Give_Away(path);
        const bool settings = path == bench / "BARVON.INI";
        const Scripted_Messages messages({Answer::Ok});
        EXPECT_EQ(Run_Model(record).Succeeded(), settings);
        Expect_No_Harm(plant, path);
        fs::remove(path);
      }
      for (const char* extension : {".DUI", ".DUE"}) {
        Put(plant, base + extension);
        Give_Away(base + extension);
        const Scripted_Messages messages({Answer::Ok});
        bench.notes.clear();
        Save_File(base + ".DUI", kProjectKind, record);
        Expect_No_Harm(plant, base + extension);
        EXPECT_EQ(messages.shown.size() + bench.notes.size(), 1u);
        fs::remove(base + extension);
      }
      // A window that has not saved it is not asked about what another hand writes.
      Release_Project();
      Write_Text(base + ".DUI", "as saved");
    }
  }
}

TEST_F(StrangersFiles, Programs_In_A_Folder_That_All_Can_Write_Are_Not_Started_And_It_Is_Told) {
  for (const mode_t mode : {kOpenToAll, kSticky}) {
    Open_To_All(bench.app(), mode);
    Give_Away(bench / "merak32");
    const Run_Report report = Run();
    EXPECT_EQ(report.stage, Run_Stage::Not_Started);
    EXPECT_NE(report.text.find("; " + (bench / "merak32") +
                               " belongs to another user, in a folder that everybody can write."),
              std::string::npos);
    // One of this user's is passed over for no stranger's.
    ASSERT_EQ(::lchown((bench / "merak32").c_str(), 0, 0), 0);
    fs::copy_file(BARVON_TEST_CHILD, bench / "dos4gw");
    Give_Away(bench / "dos4gw");
    EXPECT_EQ(Run().outcome.program, bench / "merak32");
    fs::remove(bench / "dos4gw");
    // In a folder that its owner alone can write, all is as he wants it.
    Open_To_All(bench.app(), 0755);
    Give_Away(bench / "merak32");
    EXPECT_TRUE(Run().Succeeded());
  }
}

TEST_F(StrangersFiles, A_Link_To_A_Strangers_Program_Is_One_Itself) {
  fs::create_directory(bench.folder / "common");
  fs::rename(bench / "merak32", bench.folder / "common/merak32");
  Open_To_All(bench.folder / "common", kSticky);
  Give_Away(bench.folder / "common/merak32");
  fs::create_symlink(bench.folder / "common/merak32", bench / "merak32");
  EXPECT_EQ(Run().stage, Run_Stage::Not_Started);
}

TEST_F(PlantedFiles, A_Search_Path_Does_Not_Lead_To_The_Current_Folder) {
  const std::string started = bench.folder / "started", real = bench.folder / "bin";
  fs::create_directory(real);
  for (const char* name : {"dos4gw", "DOS4GW", "dosbox", "sh", "true", "xdg-open", "merak32"}) {
    Write_Text(bench.folder / "bay/" + name, "#!/bin/sh\n: > '" + started + "'\n");
    fs::permissions(bench.folder / "bay/" + name, fs::perms::owner_all);
  }
  for (const std::string& path : {".:" + real, ":" + real, real + ":", real + "::", "./:" + real,
                                  "../bay:" + real, std::string(), std::string(".")}) {
    const Changed_Variable changed("PATH", path);
    fs::current_path(bench.folder / "bay");
    EXPECT_EQ(Search_Folders().empty(), path.size() < 2);
    EXPECT_FALSE(Find_Program("xdg-open"));
    EXPECT_EQ(Find_Solver_Command("DOS4GW MERAK32.EXE", bench.app()).command,
              std::vector<std::string>{bench / "merak32"});
    EXPECT_TRUE(Run().Succeeded());
  }
  EXPECT_FALSE(Exists(started));
}

TEST_F(PlantedFiles, A_Started_Program_Gets_A_Search_Path_Of_Lasting_Folders) {
  const Changed_Variable changed("PATH", ".:/usr/bin::rel:/bin:");
  fs::remove(bench / "test_child.steps");
  Write_Text(bench / "test_child.steps", "value:PATH\n");
  EXPECT_EQ(Run().outcome.last_output, "/usr/bin:/bin\n");
}

}  // namespace
}  // namespace barvon

#include "run/solver_command.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "run/child_support.h"
#include "run/solver_table.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

using Command = std::vector<std::string>;

constexpr char kSolver[] = "DOS4GW MERAK32.EXE";

struct SolverCommand : ::testing::Test {
  SolverCommand() : path("PATH", "relative::" + (folder / "one") + ":" + (folder / "two")) {
    for (const char* name : {"app", "one", "two"}) fs::create_directory(folder / name);
  }
  void Script(const std::string& name) {
    Write_Text(folder / name, "#!/bin/true\n");
    fs::permissions(folder / name, fs::perms::owner_all);
  }
  Solver_Command Find(const std::string& line) { return Find_Solver_Command(line, folder / "app"); }
  std::string Problem(const std::string& line) {
    const Solver_Command found = Find(line);
    EXPECT_TRUE(found.command.empty());
    return found.problem;
  }

  Scratch_Folder folder;
  Changed_Variable path;
};

TEST_F(SolverCommand, The_Launcher_In_The_Application_Directory_Comes_First) {
  Script("app/dos4gw");
  Script("app/MERAK32.EXE");
  Script("one/DOS4GW");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/dos4gw", "MERAK32.EXE"}));
}

TEST_F(SolverCommand, The_Launcher_On_The_Search_Path_Comes_Second) {
  Script("app/MERAK32.EXE");
  Script("two/Dos4Gw");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "two/Dos4Gw", "MERAK32.EXE"}));
  Script("one/dos4gw");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "one/dos4gw", "MERAK32.EXE"}));
  EXPECT_TRUE(Find(kSolver).problem.empty());
}

TEST_F(SolverCommand, The_Program_That_The_Launcher_Names_Comes_Third) {
  Script("app/Merak32");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/Merak32"}));
  Script("app/Merak32.exe");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/Merak32.exe"}));
  Script("app/MERAK32.EXE");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/MERAK32.EXE"}));
}

TEST_F(SolverCommand, The_Program_Is_Not_Looked_For_On_The_Search_Path) {
  Script("one/merak32");
  EXPECT_EQ(Problem(kSolver), "DOS4GW was found neither in " + (folder / "app") +
                                  " nor on the search path, and no MERAK32.EXE or MERAK32 in " +
                                  (folder / "app") + " can be run here");
}

TEST_F(SolverCommand, Further_Arguments_Go_Along) {
  Script("app/merak32");
  EXPECT_EQ(Find("DOS4GW MERAK32.EXE  fast").command, (Command{folder / "app/merak32", "fast"}));
}

TEST_F(SolverCommand, A_Command_Of_One_Word_Is_Its_Own_Program) {
  Script("app/tolin");
  EXPECT_EQ(Find("TOLIN.EXE").command, (Command{folder / "app/tolin"}));
  Script("one/Tolin.Exe");
  EXPECT_EQ(Find("TOLIN.EXE").command, (Command{folder / "one/Tolin.Exe"}));
  EXPECT_EQ(Problem("other.exe"),
            "other.exe was found neither in " + (folder / "app") + " nor on the search path");
  EXPECT_EQ(Problem("  "), "no program is named");
}

TEST_F(SolverCommand, A_Compiled_Program_Is_Executed_Here) {
  fs::copy_file(BARVON_TEST_CHILD, folder / "app/merak32");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/merak32"}));
}

TEST_F(SolverCommand, A_Link_To_A_Program_Is_A_Program_And_A_Folder_Is_None) {
  fs::create_directory(folder / "app/DOS4GW");
  fs::create_symlink(BARVON_TEST_CHILD, folder / "app/merak32");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/merak32"}));
}

TEST_F(SolverCommand, What_Can_Not_Be_Executed_Is_Passed_Over_And_Told) {
  Write_Text(folder / "app/merak32", "#!/bin/true\n");
  fs::permissions(folder / "app/merak32", fs::perms::owner_read);
  EXPECT_NE(Problem(kSolver).find("; " + (folder / "app/merak32") + " is not executable"),
            std::string::npos);
  Write_Text(folder / "app/MERAK32.EXE", "text");
  fs::permissions(folder / "app/MERAK32.EXE", fs::perms::owner_all);
  EXPECT_NE(
      Problem(kSolver).find("; " + (folder / "app/MERAK32.EXE") + " is no program of this system"),
      std::string::npos);
  Script("app/merak32.exe");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/merak32.exe"}));
}

TEST_F(SolverCommand, A_Link_To_Nowhere_Is_Told_As_That) {
  fs::create_symlink(folder / "gone", folder / "app/merak32");
  EXPECT_NE(
      Problem(kSolver).find("; " + (folder / "app/merak32") + " is a link that leads nowhere"),
      std::string::npos);
}

TEST_F(SolverCommand, A_Native_Program_Is_Preferred_To_A_Dos_Program) {
  Write_Text(folder / "app/MERAK32.EXE", "MZ\x90");
  Script("app/merak32");
  Script("one/dosbox");
  EXPECT_EQ(Find(kSolver).command, (Command{folder / "app/merak32"}));
}

TEST_F(SolverCommand, A_Dos_Program_Goes_Through_Dosbox_Without_A_Window) {
  Write_Text(folder / "app/merak32.exe", "MZ\x90");
  Script("two/dosbox");
  const Solver_Command found = Find(kSolver);
  EXPECT_EQ(found.command, (Command{folder / "two/dosbox", "-noautoexec", "-c", "mount c .", "-c",
                                    "c:", "-c", "MERAK32.EXE", "-c", "exit"}));
  EXPECT_EQ(found.environment, (Command{"SDL_VIDEODRIVER=dummy", "SDL_AUDIODRIVER=dummy"}));
}

TEST_F(SolverCommand, A_Dos_Launcher_Beside_A_Dos_Program_Starts_It_In_Dosbox) {
  Write_Text(folder / "app/MERAK32.EXE", "MZ\x90");
  Write_Text(folder / "app/dos4gw.exe", "MZ\x90");
  Script("two/dosbox");
  EXPECT_EQ(Find(kSolver).command.at(7), "DOS4GW MERAK32.EXE");
}

TEST_F(SolverCommand, A_Dos_Program_Without_Dosbox_Can_Not_Be_Run) {
  Write_Text(folder / "app/MERAK32.EXE", "MZ\x90");
  EXPECT_EQ(Problem(kSolver), "MERAK32.EXE in " + (folder / "app") +
                                  " is a DOS program, and dosbox was not found on the search path");
}

/// The user's folder is "app"; what came with the program is in "program".
struct DeliveredSolver : SolverCommand {
  DeliveredSolver() { fs::create_directory(folder / "program"); }
  Solver_Command Find_Delivered(const std::string& line = kSolver) {
    return Find_Solver_Command(line, folder / "app", folder / "program");
  }
};

TEST_F(DeliveredSolver, Is_Found_Where_The_User_Has_None) {
  Script("program/merak32");
  EXPECT_EQ(Solver_Folder(kSolver, folder / "app", folder / "program"), folder / "program");
  EXPECT_EQ(Find_Delivered().command, (Command{folder / "program/merak32"}));
}

TEST_F(DeliveredSolver, The_Users_Comes_Before_It) {
  Script("program/MERAK32.EXE");
  Script("app/merak32");
  EXPECT_EQ(Solver_Folder(kSolver, folder / "app", folder / "program"), folder / "app");
  EXPECT_EQ(Find_Delivered().command, (Command{folder / "app/merak32"}));
}

TEST_F(DeliveredSolver, Does_Not_Stand_In_For_One_Of_The_Users_That_Can_Not_Be_Run) {
  Script("program/merak32");
  for (const char* name : {"merak32", "Merak32.exe", "dos4gw", "DOS4GW.EXE"}) {
    Write_Text(folder / "app/" + name, "MZ\x90");
    EXPECT_EQ(Find_Delivered().command, Command{}) << name;
    fs::remove(folder / "app/" + name);
  }
}

TEST_F(DeliveredSolver, A_Launcher_Is_Told_Its_Full_Path) {
  Script("program/merak32.exe");
  Script("one/DOS4GW");
  EXPECT_EQ(Find_Delivered().command,
            (Command{folder / "one/DOS4GW", folder / "program/merak32.exe"}));
}

TEST_F(DeliveredSolver, A_Dos_Program_Has_To_Be_The_Users) {
  Write_Text(folder / "program/MERAK32.EXE", "MZ\x90");
  Script("two/dosbox");
  const Solver_Command found = Find_Delivered();
  EXPECT_EQ(found.command, Command{});
  EXPECT_EQ(found.problem, "the solver in " + (folder / "program") +
                               " is a DOS program, which can be run in " + (folder / "app") +
                               " only; please copy it there");
}

TEST_F(DeliveredSolver, Where_There_Is_None_The_Place_Of_The_Users_Is_Told) {
  EXPECT_EQ(Find_Delivered().problem,
            "DOS4GW was found neither in " + (folder / "program") +
                " nor on the search path, and no MERAK32.EXE or MERAK32 in " +
                (folder / "program") + " can be run here; a solver of your own goes into " +
                (folder / "app"));
  EXPECT_EQ(Find_Delivered("").problem.rfind("no program is named", 0), 0U);
}

/// With the companion beside the program.
struct CompanionSolver : DeliveredSolver {
  CompanionSolver() { Script("program/barvon-solver"); }
  Solver_Command Find(Solver_Choice choice = Solver_Choice::External_First) {
    return Find_Solver(kSolver, choice, folder / "app", folder / "program");
  }
  Solver_Choice Chosen() { return Chosen_Solver(kSolver, folder / "app", folder / "program"); }
};

TEST_F(CompanionSolver, Runs_Where_Nobody_Has_Put_Another_One_And_Is_Named) {
  EXPECT_EQ(Chosen(), Solver_Choice::Companion);
  EXPECT_EQ(Find().command, (Command{folder / "program/barvon-solver"}));
  EXPECT_EQ(Find().name, "companion solver 1.0");
  EXPECT_EQ(Find().problem, "");
}

TEST_F(CompanionSolver, Comes_Behind_A_Solver_In_Either_Folder) {
  for (const char* folder_of_it : {"app", "program"}) {
    for (const char* name : {"merak32", "MERAK32.EXE"}) {
      const std::string solver = std::string(folder_of_it) + "/" + name;
      Script(solver);
      EXPECT_EQ(Chosen(), Solver_Choice::External) << solver;
      EXPECT_EQ(Find().command, (Command{folder / solver}));
      EXPECT_EQ(Find().name, "");
      fs::remove(folder / solver);
    }
  }
}

TEST_F(CompanionSolver, Comes_Behind_A_Launcher_With_Its_Program) {
  Script("one/dos4gw");
  EXPECT_EQ(Find().command, (Command{folder / "program/barvon-solver"}));
  Write_Text(folder / "app/MERAK32.EXE", "MZ\x90");
  EXPECT_EQ(Find().command, (Command{folder / "one/dos4gw", "MERAK32.EXE"}));
}

TEST_F(CompanionSolver, Does_Not_Stand_In_For_One_Of_The_Users_That_Can_Not_Be_Run) {
  for (const char* name : {"merak32", "Merak32.exe"}) {
    Write_Text(folder / "app/" + name, "MZ\x90");
    EXPECT_EQ(Find().command, Command{}) << name;
    EXPECT_NE(Find().problem, "");
    EXPECT_EQ(Find(Solver_Choice::Companion).command, (Command{folder / "program/barvon-solver"}));
    fs::remove(folder / "app/" + name);
  }
}

TEST_F(CompanionSolver, Runs_Where_A_Launcher_Stands_Alone) {
  for (const char* launcher : {"app/dos4gw", "app/DOS4GW.EXE", "program/DOS4GW"}) {
    Script(launcher);
    EXPECT_EQ(Chosen(), Solver_Choice::Companion) << launcher;
    EXPECT_EQ(Find().command, (Command{folder / "program/barvon-solver"}));
    fs::remove(folder / launcher);
  }
}

TEST_F(CompanionSolver, Is_The_Programs_Own_And_Looked_For_Nowhere_Else) {
  fs::remove(folder / "program/barvon-solver");
  Script("app/barvon-solver");
  Script("one/barvon-solver");
  EXPECT_EQ(Chosen(), Solver_Choice::External);
  EXPECT_EQ(Find().problem,
            Find_Delivered().problem + "; nor is barvon-solver in " + (folder / "program"));
  EXPECT_EQ(Find(Solver_Choice::Companion).command, Command{});
  EXPECT_EQ(Find(Solver_Choice::Companion).problem,
            "the companion solver, barvon-solver, can't be run in " + (folder / "program"));
}

TEST_F(CompanionSolver, That_Can_Not_Be_Run_Is_Told) {
  fs::permissions(folder / "program/barvon-solver", fs::perms::owner_read);
  EXPECT_EQ(Find().command, Command{});
  EXPECT_EQ(Find().problem, "the companion solver, barvon-solver, can't be run in " +
                                (folder / "program") + "; " + (folder / "program/barvon-solver") +
                                " is not executable");
}

TEST_F(CompanionSolver, Either_One_Can_Be_Asked_For) {
  Script("app/merak32");
  EXPECT_EQ(Find(Solver_Choice::External).command, (Command{folder / "app/merak32"}));
  EXPECT_EQ(Find(Solver_Choice::Companion).command, (Command{folder / "program/barvon-solver"}));
  fs::remove(folder / "app/merak32");
  EXPECT_EQ(Find(Solver_Choice::External).problem, Find_Delivered().problem);
}

TEST(SolverTable, Hopper_And_Barge_Have_A_Solver_That_Is_Started) {
  for (const int method : {1, 3}) {
    EXPECT_EQ(Solver_For(method).command_line, "DOS4GW MERAK32.EXE");
    EXPECT_TRUE(Solver_For(method).started);
  }
}

TEST(SolverTable, Continuous_And_The_Fourth_Method_Are_Chosen_But_Not_Started) {
  EXPECT_EQ(Solver_For(2).command_line, "TOLIN.EXE");
  EXPECT_EQ(Solver_For(4).command_line, "MERAK4.EXE");
  for (const int method : {0, 2, 4, 5, -1}) EXPECT_FALSE(Solver_For(method).started);
  EXPECT_EQ(Solver_For(0).command_line, "");
}

}  // namespace
}  // namespace barvon

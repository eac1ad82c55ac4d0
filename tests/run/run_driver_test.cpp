#include "run/run_driver.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "core/desk/file_dialogs.h"
#include "core/desk/save_file.h"
#include "core/keys.h"
#include "run/run_driver_fixture.h"
#include "support/disk_calls.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

TEST_F(RunDriver, A_Run_Keeps_Its_Outputs_Under_The_Projects_Name) {
  Install(std::string("print:done\n") + kWritesAll);
  record.OutputsCopied = kTrue;
  const Run_Report report = Run();
  EXPECT_EQ(report.stage, Run_Stage::Ended);
  EXPECT_TRUE(report.Succeeded());
  EXPECT_EQ(report.outcome.program, bench / "merak32");
  EXPECT_EQ(report.kept,
            (std::vector<std::string>{base + ".duo", base + ".dup", base + ".dut", base + ".duc"}));
  EXPECT_EQ(Kept(".duo") + Kept(".dup") + Kept(".dut") + Kept(".duc"), "optc");
  EXPECT_EQ(record.FileTypeTag, "DUE");
  EXPECT_EQ(record.OutputsCopied, kFalse);
  EXPECT_EQ(bench.notes.size(), 1u);
  EXPECT_EQ(Note(), report.text);
  EXPECT_EQ(Note().substr(0, Note().find(" after")), (bench / "merak32") + " ended with code 0");
  EXPECT_EQ(bench.notes.at(0).details, "");
}

TEST_F(RunDriver, The_Graphics_Program_Is_Told_The_Project) {
  Install(kWritesAll);
  Run();
  EXPECT_EQ(Graph_File(), base + ".DUI");
}

TEST_F(RunDriver, The_Solver_Finds_Model_Input_And_Marker) {
  Install("copy:Tmpfile.Due=seen.due\ncopy:KOLBREE.TMP=seen.tmp\n");
  Run();
  // 6 + 1 + 1 + 1 + 28 + 1 characters, 37 + 1, the scratch name in 8, and 1 + 27 + 1.
  const std::string blanks27(27, ' ');
  const std::string marker = "DUE   , ," + std::string(28, ' ') + "," + std::string(37, ' ') +
                             ",TmpFile ," + blanks27 + ",\r\n";
  EXPECT_EQ(marker.size(), 113u + 2u);
  EXPECT_EQ(Read_Text(bench / "seen.tmp"), marker);
  EXPECT_TRUE(Exists(bench / "seen.due"));
}

TEST_F(RunDriver, The_Companion_Runs_Where_There_Is_No_Other_Solver_And_Is_Named) {
  bench.Install("barvon-solver", std::string("note:note\n") + kWritesAll);
  const Run_Report report = Run();
  EXPECT_TRUE(report.Succeeded());
  EXPECT_EQ(report.outcome.program, bench / "barvon-solver");
  EXPECT_EQ(Note().substr(0, Note().find(" after")), "companion solver 1.0 ended with code 0");
  EXPECT_EQ(bench.states,
            (std::vector<std::string>{"on companion solver 1.0", "off companion solver 1.0"}));
  EXPECT_EQ(Read_Text(bench / "note").find("argument"), std::string::npos);
  EXPECT_EQ(Kept(".duo"), "o");
}

TEST_F(RunDriver, A_Solver_Of_The_Users_Comes_Before_The_Companion) {
  bench.Install("barvon-solver", kWritesAll);
  Write_Text(bench / "merak32", "no program");
  EXPECT_EQ(Run().stage, Run_Stage::Not_Started);
  EXPECT_TRUE(bench.states.empty());
  fs::remove(bench / "merak32");
  Install(kWritesAll);
  EXPECT_EQ(Run().outcome.name, bench / "merak32");
}

TEST_F(RunDriver, What_The_Model_Input_Can_Not_Carry_Stands_Beside_It) {
  record.KEY3 = 4;
  record.NumOutputDepths = 1;
  record.CriterionConcentration = 0.05;
  Install("copy:Tmpfile.Add=seen.add\n");
  Run({Answer::No});
  EXPECT_EQ(Read_Text(bench / "seen.add"), "BARVON additions: 1\r\nCriterion: 0.05\r\n");
}

TEST_F(RunDriver, Additions_Of_Another_Project_Are_Gone_Wherever_The_User_Stands) {
  fs::current_path("/");
  Write_Text(bench / "Tmpfile.Add", "old");
  Write_Text(bench / "TMPFILE.ADD", "old");
  Install("copy:Tmpfile.Add=seen1\ncopy:TMPFILE.ADD=seen2\n");
  Run();
  EXPECT_EQ(Read_Text(bench / "seen1") + Read_Text(bench / "seen2"), "");
  EXPECT_FALSE(Exists(bench / "Tmpfile.Add"));
}

TEST_F(RunDriver, The_Model_Input_Is_That_Of_The_Record) {
  Install("copy:Tmpfile.Due=seen.due\n");
  Run();
  EXPECT_EQ(Read_Text(bench / "seen.due").substr(0, 17), "    DUE       3\r\n");
}

TEST_F(RunDriver, A_Save_Behind_A_Run_Gives_The_Same_File_And_The_Project_Stays_Tidal) {
  record.VelocityProfileType = 5;
  record.TidalAvgVelX = 0.5F;
  record.AvgVelocityX = 7;
  record.DZ0 = 0;
  record.DEPC0 = 60;
  Install(kWritesAll);
  const Scripted_Messages no_boxes;
  ASSERT_TRUE(Save_File(base + ".DUI", kProjectKind, record));
  const std::string saved = Read_Text(base + ".DUI");
  Run({Answer::No});
  EXPECT_EQ(record.VelocityProfileType, 5);
  EXPECT_EQ(record.AvgVelocityX, 7);
  ASSERT_TRUE(Save_File(base + ".DUI", kProjectKind, record));
  EXPECT_TRUE(Read_Text(base + ".DUI") == saved);
}

TEST_F(RunDriver, A_Solver_That_Names_Its_Outputs_In_Capitals_Is_Understood) {
  Install("write:TMPFILE.DUO=o\nwrite:TMPFILE.DUP=p\nwrite:TMPFILE.DUT=t\nwrite:TMPFILE.DUC=c\n");
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(Kept(".duo") + Kept(".dup") + Kept(".dut") + Kept(".duc"), "optc");
}

TEST_F(RunDriver, A_Solver_That_Fails_Is_No_Success_And_Its_Outputs_Are_Kept_All_The_Same) {
  Install(std::string(kWritesAll) + "print:bad layer\nexit:3\n");
  const Run_Report report = Run();
  EXPECT_EQ(report.stage, Run_Stage::Ended);
  EXPECT_FALSE(report.Succeeded());
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(Kept(".duo"), "o");
  EXPECT_NE(Note().find("ended with code 3 after"), std::string::npos);
  EXPECT_EQ(bench.notes.at(0).details, "bad layer\n");
}

TEST_F(RunDriver, Remarks_Do_Not_Stop_A_Run_And_Are_Told_With_Its_End) {
  record.LayerVolume[1] = 4000.0 / 3;
  Install(std::string(kWritesAll) + "print:bad layer\nexit:3\n");
  const Run_Report report = Run();
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(report.stage, Run_Stage::Ended);
  EXPECT_EQ(Note(), "1 remark. " + report.text);
  ASSERT_EQ(report.remarks.size(), 1u);
  EXPECT_NE(report.remarks[0].find("LayerVolume(1) is 1333.33333333333"), std::string::npos);
  EXPECT_EQ(bench.notes.back().details, report.remarks[0] + "\n\nbad layer\n");
  record.LayerVolume[1] = 1000;
  const Run_Report next = Run();
  EXPECT_TRUE(next.remarks.empty());
  EXPECT_EQ(Note(), next.text);
}

TEST_F(RunDriver, A_Solver_That_Dies_By_A_Signal_Is_No_Success) {
  Install("signal:11\n");
  EXPECT_FALSE(Run().Succeeded());
  EXPECT_NE(Note().find("was ended by signal 11 (SEGV) after"), std::string::npos);
  EXPECT_NE(Note().find("0 of 4 outputs kept"), std::string::npos);
}

TEST_F(RunDriver, A_Solver_That_Is_Missing_Shows_No_Box_And_Leaves_Older_Outputs) {
  Write_Text(base + ".duo", "older");
  const Run_Report report = Run();
  EXPECT_EQ(report.stage, Run_Stage::Not_Started);
  EXPECT_FALSE(report.Succeeded());
  EXPECT_TRUE(shown.empty());
  EXPECT_TRUE(report.kept.empty());
  EXPECT_EQ(Kept(".duo"), "older");
  EXPECT_EQ(Note().substr(0, 33), "Not run: DOS4GW was found neither");
  EXPECT_TRUE(Exists(bench / "Tmpfile.Due"));
}

TEST_F(RunDriver, A_Missing_Solver_Does_Not_File_Another_Runs_Outputs_Under_This_Project) {
  fs::current_path("/");
  Write_Text(bench / "tmpfile.duo", "another project's");
  Write_Text(base + ".duo", "older");
  EXPECT_EQ(Run().stage, Run_Stage::Not_Started);
  EXPECT_EQ(Kept(".duo"), "older");
}

TEST_F(RunDriver, Missing_Outputs_Are_Skipped) {
  Write_Text(base + ".dut", "older");
  Install("write:tmpfile.duo=o\nwrite:tmpfile.duc=c\n");
  const Run_Report report = Run();
  EXPECT_FALSE(report.Succeeded());
  EXPECT_EQ(report.kept, (std::vector<std::string>{base + ".duo", base + ".duc"}));
  EXPECT_EQ(report.not_written, (std::vector<std::string>{".dup", ".dut"}));
  EXPECT_EQ(Kept(".duo"), "o");
  EXPECT_EQ(Kept(".dut"), "older");
  EXPECT_FALSE(Exists(base + ".dup"));
  EXPECT_NE(Note().find("not written by this run: .dup, .dut;"), std::string::npos);
}

TEST_F(RunDriver, A_Copy_That_Fails_Is_Passed_Over) {
  Install(kWritesAll);
  fs::create_directory(base + ".duo");
  EXPECT_FALSE(Run().Succeeded());
  EXPECT_EQ(Kept(".duc"), "c");
  EXPECT_NE(Note().find("could not be kept: .duo (Is a directory)"), std::string::npos);
}

TEST_F(RunDriver, Outputs_Go_To_The_Project_That_Was_Run) {
  Install(std::string("await:go\n") + kWritesAll);
  bench.While_Waiting([this] {
    record.BaseFileName = bench.folder / "bay/other";
    record.ProjectFileName = bench.folder / "bay/other.DUI";
    Write_Text(bench / "go", "");
  });
  Run();
  EXPECT_EQ(Kept(".duo"), "o");
  EXPECT_FALSE(Exists(bench.folder / "bay/other.duo"));
}

// ---- Scratch files

TEST_F(RunDriver, Old_Scratch_Files_Are_Gone_Before_The_Solver_Starts) {
  for (const char* name : {"Tmpfile.old", "TMPFILE.DUT", "tmpfile.duo"}) {
    Write_Text(bench / name, "old");
  }
  Write_Text(bench / "other.duo", "stays");
  Install("copy:Tmpfile.old=seen1\ncopy:TMPFILE.DUT=seen2\ncopy:tmpfile.duo=seen3\n");
  EXPECT_TRUE(Run().kept.empty());
  for (const char* name : {"seen1", "seen2", "seen3"}) EXPECT_EQ(Read_Text(bench / name), "");
  EXPECT_FALSE(Exists(bench / "Tmpfile.old"));
  EXPECT_TRUE(Exists(bench / "other.duo"));
}

TEST_F(RunDriver, A_Project_That_Bears_The_Scratch_Name_Survives_Its_Run) {
  for (const char* name : {"Tmpfile.DUI", "tmpfile.dui"}) {
    const std::string project = bench / name;
    Write_Text(project, "as saved");
    Write_Text(bench / "Tmpfile.old", "old");
    record.BaseFileName = bench / "Tmpfile";
    record.ProjectFileName = bench / "Tmpfile.DUI";
    EXPECT_EQ(Run().stage, Run_Stage::Not_Started);
    EXPECT_EQ(Read_Text(project), "as saved");
    EXPECT_FALSE(Exists(bench / "Tmpfile.old"));
    fs::remove(project);
  }
}

TEST_F(RunDriver, What_A_Project_Is_Opened_By_And_Leads_To_Survives_Its_Run) {
  Write_Text(bench / "Tmpfile.DUI", "as saved");
  fs::create_directory_symlink(bench.app(), bench.folder / "other");
  fs::remove(base + ".DUI");
  fs::create_symlink(bench.folder / "other/Tmpfile.DUI", base + ".DUI");
  Run();
  EXPECT_EQ(Read_Text(base + ".DUI"), "as saved");
  record.ProjectFileName = bench / "Tmpfile.DUI";
  record.BaseFileName = bench / "Tmpfile";
  fs::rename(bench / "Tmpfile.DUI", bench.folder / "bay/real.DUI");
  fs::create_symlink(bench.folder / "bay/real.DUI", bench / "Tmpfile.DUI");
  fs::create_symlink(bench.folder / "bay/real.DUI", bench / "tmpfile.duo");
  Run();
  EXPECT_EQ(Read_Text(bench / "Tmpfile.DUI"), "as saved");
  EXPECT_FALSE(fs::is_symlink(bench / "tmpfile.duo"));
}

/// When a process was started: the 22nd field of what the system tells of it, the 20th behind its
/// name.
std::string Start_Of(pid_t process) {
  const std::string told = Read_Text("/proc/" + std::to_string(process) + "/stat");
  std::istringstream fields(told.substr(told.rfind(')') + 1));
  std::string field;
  for (int i = 0; i < 20; ++i) fields >> field;
  return field;
}

/// A process in the folder that a program started, which the mark names; it does nothing.
pid_t Left_Solver(const std::string& folder, pid_t starter, const std::string& start) {
  const std::string mark = "BARVON_CHILD=" + std::to_string(starter) + "." + start + ".1.1";
  const pid_t process = ::fork();
  if (process != 0) return process;
  const char* const command[] = {"/bin/sleep", "600", nullptr};
  const char* const environment[] = {mark.c_str(), nullptr};
  if (::chdir(folder.c_str()) == 0) {
    ::execve(command[0], const_cast<char* const*>(command), const_cast<char* const*>(environment));
  }
  ::_exit(1);
}

/// Until a process has become what it is to be, it has not its mark yet: the system tells the
/// program's name a moment before its environment.
bool Has_Its_Mark(pid_t process) {
  return Read_Text("/proc/" + std::to_string(process) + "/environ").starts_with("BARVON_CHILD=");
}

/// Takes a process away that is still there only when the test has failed.
void End(pid_t process) {
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
}

/// The number of a process that is no more.
pid_t Ended_Process() {
  const pid_t process = ::fork();
  if (process == 0) ::_exit(0);
  ::waitpid(process, nullptr, 0);
  return process;
}

TEST_F(RunDriver, A_Mark_That_Has_Become_A_Link_To_Nowhere_Is_A_Mark) {
  Install(kWritesAll);
  fs::create_symlink("nowhere", std::string(bench / "Tmpfile.run"));
  const std::string application = fs::path(bench / "merak32").parent_path();
  const pid_t stray = Left_Solver(application, Ended_Process(), "1");
  ASSERT_TRUE(Comes_True([&] { return Has_Its_Mark(stray); }));
  EXPECT_EQ(Run().stage, Run_Stage::Ended);
  EXPECT_TRUE(Comes_True([&] { return !Is_Alive(stray); }));
  End(stray);
}

TEST_F(RunDriver, What_A_Killed_Programs_Solver_Left_Running_Is_Ended_Before_The_Next_Run) {
  Install(kWritesAll);
  Write_Text(bench / "Tmpfile.run", "");  // of the run that was killed
  const std::string application = fs::path(bench / "merak32").parent_path();
  const pid_t stray = Left_Solver(application, Ended_Process(), "1");
  // Its starter's number has passed to another process since.
  const pid_t older = Left_Solver(application, ::getppid(), "1");
  const pid_t others = Left_Solver(application, ::getppid(), Start_Of(::getppid()));
  ASSERT_TRUE(Comes_True(
      [&] { return Has_Its_Mark(stray) && Has_Its_Mark(older) && Has_Its_Mark(others); }));
  EXPECT_EQ(Run().stage, Run_Stage::Ended);
  for (const pid_t ended : {stray, older}) {
    EXPECT_TRUE(Comes_True([&] { return !Is_Alive(ended); }));
    End(ended);
  }
  EXPECT_TRUE(Is_Alive(others)) << "its starter lives";
  EXPECT_FALSE(Exists(bench / "Tmpfile.run"));
  End(others);
}

TEST_F(RunDriver, Scratch_Files_Are_Deleted_In_The_Current_Directory_Only) {
  fs::create_directory(bench.folder / "here");
  fs::current_path(bench.folder / "here");
  Write_Text(bench.folder / "here/TMPFILE.DUC", "old");
  Write_Text(bench / "tmpfile.duo", "of an earlier run");
  Install("write:tmpfile.dup=p\n");
  const Run_Report report = Run();
  EXPECT_FALSE(Exists(bench.folder / "here/TMPFILE.DUC"));
  EXPECT_EQ(Read_Text(bench / "tmpfile.duo"), "of an earlier run");
  EXPECT_EQ(report.kept, (std::vector<std::string>{base + ".duo", base + ".dup"}));
  EXPECT_EQ(report.not_written, (std::vector<std::string>{".duo", ".dut", ".duc"}));
  EXPECT_EQ(report.earlier, std::vector<std::string>{".duo"});
  EXPECT_FALSE(report.Succeeded());
  EXPECT_EQ(fs::current_path(), bench.app());
}

TEST_F(RunDriver, Links_Among_The_Scratch_Files_Are_Removed_And_Folders_Left) {
  Write_Text(bench / "precious", "kept");
  fs::create_symlink(bench / "precious", bench / "Tmpfile.lnk");
  fs::create_directory(bench / "tmpfile.dir");
  Install("");
  Run();
  EXPECT_FALSE(Exists(bench / "Tmpfile.lnk"));
  EXPECT_EQ(Read_Text(bench / "precious"), "kept");
  EXPECT_TRUE(Exists(bench / "tmpfile.dir"));
}

TEST_F(RunDriver, Links_Planted_Under_The_Solvers_Files_Are_Not_Followed) {
  fs::current_path("/");
  Write_Text(bench / "precious", "kept");
  for (const char* name :
       {"Tmpfile.Due", "KOLBREE.TMP", "kolbree.tmp", "TMPFILE.DUE", "Tmpfile.log"}) {
    fs::create_symlink(bench / "precious", bench / name);
  }
  Install("print:text\ncopy:KOLBREE.TMP=seen\n");
  EXPECT_EQ(Run().stage, Run_Stage::Ended);
  EXPECT_EQ(Read_Text(bench / "precious"), "kept");
  EXPECT_EQ(Read_Text(bench / "seen").substr(0, 6), "DUE   ");
  EXPECT_FALSE(fs::is_symlink(bench / "Tmpfile.Due"));
  EXPECT_FALSE(fs::is_symlink(bench / "KOLBREE.TMP"));
  EXPECT_FALSE(Exists(bench / "kolbree.tmp"));
  EXPECT_FALSE(Exists(bench / "TMPFILE.DUE"));
}

TEST_F(RunDriver, A_Model_Input_That_Can_Not_Be_Written_Starts_Nothing) {
  fs::create_directory(bench / "Tmpfile.Due");
  Install(kWritesAll);
  const Run_Report report = Run({Answer::Ok});
  EXPECT_EQ(report.stage, Run_Stage::Input_Failed);
  Expect_One_Box("Could not Excecute Preprocessor!", "BARVON", Icon::None);
  EXPECT_TRUE(bench.states.empty());
  EXPECT_FALSE(Exists(bench / "tmpfile.duo"));
  EXPECT_EQ(Note(), "Not run: Tmpfile.Due could not be written into " + Application_Folder() +
                        " (Path not usable).");
  EXPECT_TRUE(Exists(bench / "KOLBREE.TMP"));
  EXPECT_FALSE(Exists(bench / "BARVON.INI"));
}

TEST_F(RunDriver, Additions_That_Can_Not_Be_Written_Start_Nothing) {
  fs::create_directory(bench / "Tmpfile.Add");
  record.VelocityProfileType = 5;
  Install(kWritesAll);
  EXPECT_EQ(Run({Answer::No, Answer::Ok}).stage, Run_Stage::Input_Failed);
  EXPECT_EQ(Note(), "Not run: Tmpfile.Add could not be written into " + Application_Folder() +
                        " (Path not usable).");
  EXPECT_TRUE(bench.states.empty());
}

TEST_F(RunDriver, A_Marker_That_Can_Not_Be_Written_Starts_Nothing) {
  fs::create_directory(bench / "KOLBREE.TMP");
  Install(kWritesAll);
  EXPECT_EQ(Run({Answer::Ok}).stage, Run_Stage::Input_Failed);
  EXPECT_EQ(Note(), "Not run: KOLBREE.TMP could not be written into " + Application_Folder() +
                        " (Path not usable).");
  EXPECT_TRUE(bench.states.empty());
}

TEST_F(RunDriver, A_Zero_Spacing_Starts_Nothing_And_Leaves_No_Half_Of_A_Model_Input) {
  fs::current_path("/");
  Write_Text(bench / "TMPFILE.DUE", "of an earlier run");
  Install(kWritesAll);
  record.DX0 = record.DZ0 = 0;
  // The site now lies outside the grid; the user runs it all the same.
  const Run_Report report = Run({Answer::No, Answer::Ok});
  EXPECT_EQ(report.stage, Run_Stage::Input_Failed);
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[1].text, "Could not Excecute Preprocessor!");
  EXPECT_TRUE(bench.states.empty());
  EXPECT_FALSE(Exists(bench / "Tmpfile.Due"));
  EXPECT_FALSE(Exists(bench / "TMPFILE.DUE"));
  EXPECT_EQ(Note(), "Not run: the model input could not be written (Division by zero).");
}

TEST_F(RunDriver, Continuous_Discharge_Writes_Its_Input_And_Has_No_Model) {
  Install(kWritesAll);
  for (const std::int16_t method : {2, 4}) {
    fs::remove(bench / "KOLBREE.TMP");
    record.DisposalMethod = method;
    EXPECT_EQ(Run({Answer::Ok}).stage, Run_Stage::No_Model);
    Expect_One_Box("No Model is currently available for this discharge case.", "BARVON",
                   Icon::None);
    EXPECT_TRUE(Exists(bench / "Tmpfile.Due"));
    EXPECT_TRUE(Exists(bench / "KOLBREE.TMP"));
    EXPECT_TRUE(bench.states.empty());
    EXPECT_FALSE(Exists(bench / "BARVON.INI"));
    EXPECT_EQ(Note(), "Not run: no model is available for this discharge case.");
  }
}

TEST_F(RunDriver, The_Hopper_Is_Run_Too) {
  record.DisposalMethod = 1;
  record.BINL = record.BINW = 50;
  record.NOPENS = record.NBINS = 1;
  Install(kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
}

/// The launcher is looked for in a folder of the search path that the test fills.
struct RunAndTheDisk : RunDriver {
  RunAndTheDisk() : path("PATH", bench.folder / "bin") {
    std::filesystem::create_directory(bench.folder / "bin");
    Install(kWritesAll);
  }
  Changed_Variable path;
};

TEST_F(RunAndTheDisk, Each_Output_Is_Waited_For_Their_Folder_Once_And_The_Settings) {
  const Disk_Calls calls;
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(calls.Waits(), 4 + 1 + 2);
}

TEST_F(RunAndTheDisk, An_Application_Folder_That_Is_Soon_Removed_Is_Not_Waited_For) {
  Set_Passing_Folder(bench.app());
  const Disk_Calls calls;
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(calls.Waits(), 4 + 1);
  Set_Passing_Folder({});
}

TEST_F(RunAndTheDisk, What_Is_Asked_Does_Not_Depend_On_How_Many_Other_Files_There_Are) {
  const auto questions_of_a_run = [this] {
    const Disk_Calls calls;
    EXPECT_TRUE(Run().Succeeded());
    return calls.Questions();
  };
  EXPECT_TRUE(Run().Succeeded());  // leaves the outputs that the others find
  const int with_few = questions_of_a_run();
  for (const std::string& folder :
       {bench.folder / "bin", bench.app(), std::string(bench.folder / "bay")}) {
    for (int i = 0; i < 100; ++i) Write_Text(folder + "/other" + std::to_string(i), "");
  }
  EXPECT_EQ(questions_of_a_run(), with_few);
  EXPECT_LT(with_few, 150);
}

}  // namespace
}  // namespace barvon

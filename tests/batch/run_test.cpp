#include <signal.h>

#include <filesystem>

#include "batch/batch_fixture.h"
#include "run/solver_command.h"

namespace barvon::testing {
namespace {

using BatchRun = BatchProgram;
using Lines = std::vector<std::string>;

// Gone, or only waiting for whoever inherited it to notice.
bool Is_Gone(pid_t process) {
  const std::string stat = Read_Text("/proc/" + std::to_string(process) + "/stat");
  const auto name_end = stat.rfind(')');
  return name_end == std::string::npos || stat[name_end + 2] == 'Z';
}

pid_t Number_In(const std::string& path) { return std::stoi(Read_Text(path)); }

/// A copy of the program in a folder of its own, with a script as the companion beside it.
struct BatchCompanion : BatchProgram {
  BatchCompanion() {
    std::filesystem::create_directory(Path("program"));
    std::filesystem::copy_file(BARVON_RUN_PROGRAM, Path("program/barvon-run"));
    Put_Program("barvon-solver", "the companion's");
    Put_Sample(kHopper, "site.DUI");
  }
  void Put_Program(const std::string& name, const std::string& output) {
    const std::string path = Path("program/" + name);
    Write_Text(path, "#!/bin/sh\nfor e in duo dup dut duc; do echo \"" + output +
                         "\" > tmpfile.$e; done\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  }
  Program_Result Run_Site(std::vector<std::string> options) {
    Program_Start start = Start_Of({"run", "site.DUI"});
    start.command[0] = Path("program/barvon-run");
    start.command.insert(start.command.end(), options.begin(), options.end());
    const Program_Result result = Run_Program(start);
    EXPECT_EQ(Left_Behind(), Lines{});
    return result;
  }
  std::string Ran(const std::vector<std::string>& options) {
    const Program_Result result = Run_Site(options);
    EXPECT_EQ(result.code, 0) << result.err;
    const std::string line = Printed_Lines(result.out).at(0);
    EXPECT_TRUE(line.starts_with("site.DUI\tran\t")) << line;
    return line.substr(13, line.find(" ended with code 0") - 13);
  }
};

TEST_F(BatchCompanion, Is_The_Solver_By_Default_And_Named) {
  EXPECT_EQ(Ran({}), "companion solver 1.0");
  EXPECT_EQ(Read_Text(Path("site.duo")), "the companion's\n");
  EXPECT_EQ(Names_In(Path("program")), (Lines{"barvon-run", "barvon-solver"}));
}

TEST_F(BatchCompanion, Comes_Behind_An_External_Solver_Beside_The_Program) {
  Put_Program("merak32", "the other's");
  EXPECT_EQ(Ran({}), Path("program/merak32"));
  EXPECT_EQ(Ran({"--solver", "external"}), Path("program/merak32"));
  EXPECT_EQ(Read_Text(Path("site.duo")), "the other's\n");
  EXPECT_EQ(Ran({"--solver", "companion"}), "companion solver 1.0");
  EXPECT_EQ(Read_Text(Path("site.duo")), "the companion's\n");
}

TEST_F(BatchCompanion, Does_Not_Stand_In_For_An_External_Solver_That_Is_Asked_For) {
  std::filesystem::create_directory(Path("solvers"));
  for (const std::vector<std::string>& options :
       {Lines{"--solver-dir", "solvers"}, Lines{"--solver", "external"},
        Lines{"--solver", "external", "--solver-dir", "solvers"}}) {
    const Program_Result result = Run_Site(options);
    EXPECT_EQ(result.code, 2);
    const std::string folder = Path(options.back() == "solvers" ? "solvers" : "program");
    EXPECT_TRUE(result.err.starts_with("site.DUI: Not run: DOS4GW was found neither in " + folder))
        << result.err;
    EXPECT_FALSE(Exists(Path("site.duo")));
  }
}

TEST_F(BatchCompanion, That_Is_Missing_Is_Told_Where_It_Is_Asked_For) {
  std::filesystem::remove(Path("program/barvon-solver"));
  const Program_Result result = Run_Site({"--solver", "companion"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "site.DUI: Not run: the companion solver, barvon-solver, can't be run in " +
                            Path("program") + ".\n");
}

TEST_F(BatchCompanion, That_Is_Missing_Is_Told_Once_Where_No_Other_One_Is) {
  std::filesystem::remove(Path("program/barvon-solver"));
  Put_Sample(kBarge, "second.DUI");
  for (const Lines& options : {Lines{"second.DUI"}, Lines{"second.DUI", "--jobs", "2"}}) {
    const Lines told = Printed_Lines(Run_Site(options).err);
    ASSERT_EQ(told.size(), 3u) << options.size();
    EXPECT_EQ(told[0], "barvon-run: warning: the companion solver, barvon-solver, is missing in " +
                           Path("program"));
    EXPECT_TRUE(told[1].starts_with("site.DUI: Not run: DOS4GW was found neither in "));
    EXPECT_TRUE(told[2].starts_with("second.DUI: Not run: DOS4GW was found neither in "));
  }
  Put_Program("merak32", "the other's");
  EXPECT_EQ(Run_Site({}).err, "");
}

TEST_F(BatchCompanion, Runs_In_Jobs_Too) {
  Put_Sample(kBarge, "second.DUI");
  const Program_Result result = Run_Site({"second.DUI", "--jobs", "2"});
  EXPECT_EQ(result.code, 0) << result.err;
  const Lines lines = Printed_Lines(result.out);
  ASSERT_EQ(lines.size(), 10u) << result.out;
  for (const std::size_t line : {0u, 5u}) {
    EXPECT_NE(lines[line].find("\tran\tcompanion solver 1.0 ended with code 0"), std::string::npos);
  }
}

TEST_F(BatchRun, The_Companion_That_Was_Built_Is_Of_The_Version_That_Is_Told) {
  Put_Sample("Section_404_Sediment.DUI", "site.DUI");
  const Program_Result result = Batch({"run", "--solver", "companion", "site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_TRUE(result.out.starts_with(std::string("site.DUI\tran\t") + kCompanionName + " ended"));
  const std::string label = std::string("COMPANION SOLVER ") + BARVON_COMPANION_VERSION + " - ";
  for (const char* output : {"site.duo", "site.dup", "site.dut", "site.duc"}) {
    EXPECT_TRUE(Read_Text(Path(output)).starts_with(label)) << output;
  }
  EXPECT_EQ(Left_Behind(), Lines{});
}

TEST_F(BatchRun, The_Additions_To_The_Model_Input_Stand_In_The_Runs_Own_Folder) {
  Put_Sample("Tidal_Estuary.DUI", "site.DUI");
  Put_Solver("cp Tmpfile.Add " + Path("seen") + "\n" + kAllOutputsScript);
  Write_Text(Path("Tmpfile.Add"), "the caller's");
  Write_Text(Path("solvers/Tmpfile.Add"), "the solvers'");
  ASSERT_EQ(Batch({"run", "--solver-dir", "solvers", "site.DUI"}).code, 0);
  EXPECT_EQ(Read_Text(Path("Tmpfile.Add")), "the caller's");
  EXPECT_EQ(Read_Text(Path("solvers/Tmpfile.Add")), "the solvers'");
  EXPECT_TRUE(Read_Text(Path("seen")).starts_with("BARVON additions: 1\r\nTideStart: "));
}

TEST_F(BatchRun, Says_What_Ran_And_What_Was_Kept) {
  Put_Sample(kHopper, "site.DUI");
  const std::string solvers = Put_Solver(kAllOutputsScript);
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  const Lines lines = Printed_Lines(result.out);
  ASSERT_EQ(lines.size(), 5u) << result.out;
  EXPECT_TRUE(lines[0].starts_with("site.DUI\tran\t" + solvers + "/merak32 ended with code 0"))
      << lines[0];
  EXPECT_EQ(lines[1], "site.DUI\tkept\t" + Path("site.duo"));
  EXPECT_EQ(lines[4], "site.DUI\tkept\t" + Path("site.duc"));
}

TEST_F(BatchRun, Runs_Without_Touching_The_Callers_Or_The_Solvers_Folder) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver(std::string("LC_ALL=C ls > listing.txt; cp listing.txt ") + Path("seen") + "\n" +
             kAllOutputsScript);
  for (const char* name : {"Tmpfile.Due", "tmpfile.duo", "KOLBREE.TMP", "BARVON.INI"}) {
    Write_Text(Path(name), "the caller's");
    Write_Text(Path(std::string("solvers/") + name), "the solvers'");
  }
  Write_Text(Path("solvers/table.dat"), "read by the solver");
  const Lines before = Names_In(Path("solvers"));
  ASSERT_EQ(Batch({"run", "--solver-dir", "solvers", "site.DUI"}).code, 0);
  for (const char* name : {"Tmpfile.Due", "tmpfile.duo", "KOLBREE.TMP", "BARVON.INI"}) {
    EXPECT_EQ(Read_Text(Path(name)), "the caller's") << name;
    EXPECT_EQ(Read_Text(Path(std::string("solvers/") + name)), "the solvers'") << name;
  }
  EXPECT_EQ(Names_In(Path("solvers")), before);
  // What the solver saw: its own files, and those of this run only.
  EXPECT_EQ(
      Printed_Lines(Read_Text(Path("seen"))),
      (Lines{"KOLBREE.TMP", "Tmpfile.Due", "Tmpfile.run", "listing.txt", "merak32", "table.dat"}));
}

TEST_F(BatchRun, A_Solver_Finds_The_Subfolders_Of_Its_Folder) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver(std::string("cat tables/deep/one.dat linked/two.dat > ") + Path("seen") +
             "\necho mine > tables/deep/made\n" + kAllOutputsScript);
  std::filesystem::create_directories(Path("solvers/tables/deep"));
  Write_Text(Path("solvers/tables/deep/one.dat"), "one\n");
  Write_Text(Path("solvers/tables/Tmpfile.dat"), "no run makes this\n");
  std::filesystem::create_directory(Path("elsewhere"));
  Write_Text(Path("elsewhere/two.dat"), "two\n");
  std::filesystem::create_directory_symlink(Path("elsewhere"), Path("solvers/linked"));
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(Read_Text(Path("seen")), "one\ntwo\n");
  EXPECT_EQ(Names_In(Path("solvers/tables/deep")), Lines{"one.dat"});
  EXPECT_EQ(Names_In(Path("elsewhere")), Lines{"two.dat"});
  EXPECT_EQ(Left_Behind(), Lines{});
}

TEST_F(BatchRun, Scratch_Folders_In_The_Solvers_Own_Folder_Are_Not_Handed_Over) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver(std::string("ls tmp > ") + Path("seen") + "\n" + kAllOutputsScript);
  std::filesystem::create_directory(Path("solvers/tmp"));
  Write_Text(Path("solvers/tmp/table.dat"), "x");
  Program_Start start = Start_Of({"run", "--solver-dir", "solvers", "site.DUI"});
  start.environment = {"TMPDIR=" + Path("solvers/tmp")};
  const Program_Result result = Run_Program(start);
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(Read_Text(Path("seen")), "table.dat\n");
  EXPECT_EQ(Names_In(Path("solvers/tmp")), Lines{"table.dat"});
}

TEST_F(BatchRun, A_Solver_That_Fails_Could_Not_Be_Done_And_Its_Last_Lines_Are_Told) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver("echo reading; echo 'grid too coarse' >&2; exit 3\n");
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.out, "");
  const Lines lines = Printed_Lines(result.err);
  ASSERT_EQ(lines.size(), 3u) << result.err;
  EXPECT_NE(lines[0].find("ended with code 3"), std::string::npos) << lines[0];
  EXPECT_EQ(lines[1], "site.DUI: the solver said: reading");
  EXPECT_EQ(lines[2], "site.DUI: the solver said: grid too coarse");
}

TEST_F(BatchRun, A_Solver_That_Writes_Some_Outputs_Only_Is_No_Success_And_They_Are_Kept) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver("echo 1 > tmpfile.duo; echo 2 > TMPFILE.DUT\n");
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(Printed_Lines(result.out),
            (Lines{"site.DUI\tkept\t" + Path("site.duo"), "site.DUI\tkept\t" + Path("site.dut")}));
  EXPECT_NE(result.err.find("not written by this run"), std::string::npos) << result.err;
}

TEST_F(BatchRun, A_Missing_Solver_Is_Told) {
  Put_Sample(kHopper, "site.DUI");
  std::filesystem::create_directory(Path("solvers"));
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_TRUE(result.err.starts_with("site.DUI: Not run: DOS4GW was found neither in " +
                                     Path("solvers") + " nor on the search path"))
      << result.err;
  EXPECT_EQ(result.err.find("barvon-run-"), std::string::npos) << result.err;
  EXPECT_EQ(Printed_Lines(result.err).size(), 1u);
  EXPECT_EQ(Left_Behind(), Lines{});
}

TEST_F(BatchRun, A_Solver_That_Is_A_Link_To_Nowhere_Is_Told_As_That) {
  Put_Sample(kHopper, "site.DUI");
  std::filesystem::create_directory(Path("solvers"));
  std::filesystem::create_symlink(Path("gone"), Path("solvers/merak32"));
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_NE(result.err.find("; " + Path("solvers/merak32") + " is a link that leads nowhere."),
            std::string::npos)
      << result.err;
}

TEST_F(BatchRun, Nothing_Is_Written_Through_A_Link_To_Nowhere_Of_The_Solvers_Folder) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver("echo x > table.dat; for e in duo dup dut duc; do echo 1 > tmpfile.$e; done\n");
  std::filesystem::create_symlink(Path("gone"), Path("solvers/table.dat"));
  EXPECT_EQ(Batch({"run", "--solver-dir", "solvers", "site.DUI"}).code, 0);
  EXPECT_FALSE(Exists(Path("gone")));
}

TEST_F(BatchRun, A_Missing_Solver_Folder_Is_Told_Once) {
  Put_Sample(kHopper, "a.DUI");
  Put_Sample(kHopper, "b.DUI");
  const Program_Result result = Batch({"run", "--solver-dir", "nowhere", "a.DUI", "b.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "nowhere: no such folder for --solver-dir\n");
}

TEST_F(BatchRun, A_Folder_For_Scratch_Folders_That_Is_None_Is_Told) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver(kAllOutputsScript);
  Program_Start start = Start_Of({"run", "--solver-dir", "solvers", "site.DUI"});
  start.environment.push_back("TMPDIR=" + Path("nowhere"));
  const Program_Result result = Run_Program(start);
  EXPECT_EQ(result.code, 2);
  EXPECT_TRUE(result.err.starts_with("site.DUI: no scratch folder " + Path("nowhere/barvon-run-")))
      << result.err;
  EXPECT_TRUE(result.err.ends_with(": No such file or directory\n")) << result.err;
}

TEST_F(BatchRun, A_Project_With_Findings_Is_Not_Run_And_They_Are_Listed) {
  Put_Faulty("site.DUI");
  const Program_Result result = Batch({"run", "site.DUI"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "site.DUI\tRoughness Height Outside Bounds\tfrmDescription!Text1(5)\n");
  EXPECT_FALSE(Exists(Path("site.duo")));
}

TEST_F(BatchRun, A_Project_With_Findings_Is_Run_On_Request) {
  Put_Faulty("site.DUI");
  Put_Solver(kAllOutputsScript);
  const Program_Result result =
      Batch({"run", "--despite-errors", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_TRUE(Exists(Path("site.duc")));
}

TEST_F(BatchRun, A_Continuous_Project_Has_No_Solver) {
  Put_Sample("Pipeline_Continuous.DUI", "pipe.DUI");
  const Program_Result result = Batch({"run", "pipe.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "pipe.DUI: Not run: no model is available for this discharge case.\n");
}

TEST_F(BatchRun, What_Can_Be_Done_Is_Done_And_The_Code_Is_The_Worst) {
  Put_Sample(kHopper, "site.DUI");
  Put_Faulty("faulty.DUI");
  Put_Solver(kAllOutputsScript);
  EXPECT_EQ(Batch({"run", "--solver-dir", "solvers", "faulty.DUI", "site.DUI"}).code, 1);
  EXPECT_TRUE(Exists(Path("site.duo")));
  EXPECT_EQ(Batch({"run", "--solver-dir", "solvers", "no.DUI", "faulty.DUI", "site.DUI"}).code, 2);
}

TEST_F(BatchRun, The_Projects_File_Stays_As_It_Was) {
  Put_Sample("Tidal_Estuary.DUI", "site.DUI");
  const std::string before = Read_Text(Path("site.DUI"));
  Put_Solver(kAllOutputsScript);
  ASSERT_EQ(Batch({"run", "--solver-dir", "solvers", "site.DUI"}).code, 0);
  EXPECT_TRUE(Read_Text(Path("site.DUI")) == before);
}

TEST_F(BatchRun, Two_Jobs_Run_At_The_Same_Time_And_Speak_In_The_Order_Of_The_Files) {
  Put_Sample(kHopper, "first.DUI");
  Put_Sample(kBarge, "second.DUI");
  // Each solver waits until the other has started, the hopper's one longer.
  // Each solver waits until the other has started, the hopper's one until the other has ended.
  const std::string wait = "for i in $(seq 1500); do [ ";
  Put_Solver("touch " + Path("started-") + "$$\n" + wait + "$(ls -d " + Path("started-") +
             "* | wc -l) -ge 2 ] && break; sleep 0.02; done\n"
             "case \"$(sed -n 2p Tmpfile.Due)\" in *HOPPER*) " +
             wait + "-e " + Path("second.duc") + " ] && break; sleep 0.02; done; [ -e " +
             Path("second.duc") + " ] || exit 1;; esac\n" + kAllOutputsScript);
  const Program_Result result =
      Batch({"run", "--jobs", "2", "--solver-dir", "solvers", "first.DUI", "second.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  const Lines lines = Printed_Lines(result.out);
  ASSERT_EQ(lines.size(), 10u) << result.out;
  EXPECT_TRUE(lines[0].starts_with("first.DUI\tran\t"));
  EXPECT_TRUE(lines[5].starts_with("second.DUI\tran\t"));
  EXPECT_NE(Read_Text(Path("first.duo")).find("HOPPER"), std::string::npos);
  EXPECT_NE(Read_Text(Path("second.duo")).find("BARGE"), std::string::npos);
  EXPECT_EQ(Left_Behind(), Lines{});
}

TEST_F(BatchRun, Jobs_Relay_What_Each_Says_And_The_Worst_Code) {
  Put_Sample(kHopper, "a.DUI");
  Put_Faulty("b.DUI");
  Put_Sample("Pipeline_Continuous.DUI", "d.DUI");
  Put_Solver(kAllOutputsScript);
  const Program_Result result =
      Batch({"run", "--jobs", "3", "--solver-dir", "solvers", "a.DUI", "b.DUI", "c.DUI", "d.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(Printed_Lines(result.out).size(), 6u) << result.out;
  EXPECT_EQ(Printed_Lines(result.err),
            (Lines{"c.DUI: can't be read: No such file or directory",
                   "d.DUI: Not run: no model is available for this discharge case."}));
}

TEST_F(BatchRun, A_Job_That_A_Signal_Ends_Is_Told_And_The_Others_Go_On) {
  Put_Sample(kHopper, "a.DUI");
  Put_Sample(kBarge, "b.DUI");
  Put_Solver("case \"$(sed -n 2p Tmpfile.Due)\" in *HOPPER*) kill -9 $PPID; exit;; esac\n" +
             std::string(kAllOutputsScript));
  const Program_Result result =
      Batch({"run", "--jobs", "2", "--solver-dir", "solvers", "a.DUI", "b.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "a.DUI: its run was ended by signal 9\n");
  EXPECT_TRUE(result.out.starts_with("b.DUI\tran\t")) << result.out;
  Batch({"check", "b.DUI"});  // takes what the killed one has left
  EXPECT_EQ(Left_Behind(), Lines{});
}

TEST_F(BatchRun, The_Same_Project_Twice_Is_Run_Once) {
  Put_Sample(kHopper, "sub/site.DUI");
  std::filesystem::create_directory_symlink(Path("sub"), Path("link"));
  Put_Solver(std::string("echo run >> ") + Path("runs") + "\n" + kAllOutputsScript);
  const Program_Result result = Batch({"run", "--jobs", "2", "--solver-dir", "solvers",
                                       "sub/site.DUI", "link/site.DUI", "./sub/../sub/SITE.dui"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(Read_Text(Path("runs")), "run\n");
  EXPECT_EQ(Printed_Lines(result.err),
            (Lines{"link/site.DUI: warning: given more than once; it is run once",
                   "./sub/../sub/SITE.dui: warning: given more than once; it is run once"}));
}

TEST_F(BatchRun, Two_Projects_Whose_Outputs_Bear_One_Name_Are_Not_Both_Run) {
  Put_Sample(kHopper, "site.DUI");
  Put_Sample(kBarge, "SITE.DUI");
  Put_Solver(kAllOutputsScript);
  const Program_Result result =
      Batch({"run", "--jobs", "2", "--solver-dir", "solvers", "site.DUI", "SITE.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "SITE.DUI: not run: its outputs would overwrite those of site.DUI\n");
  EXPECT_NE(Read_Text(Path("site.duo")).find("HOPPER"), std::string::npos);
}

// A solver that starts a process of its own and stays, until somebody ends both.
std::string Stays(const std::string& folder) {
  return "sleep 600 &\necho $! > " + folder + "/child-$$\nmv " + folder + "/child-$$ " + folder +
         "/ready-$$\nwait\n";
}

class BatchInterrupt : public BatchProgram, public ::testing::WithParamInterface<int> {
 protected:
  // Sends the signal once as many solvers are at work as told.
  Program_Result Interrupted(const std::vector<std::string>& arguments, std::size_t solvers) {
    bool sent = false;
    return Run_Program(Start_Of(arguments), [&](pid_t process) {
      if (sent || Ready().size() < solvers) return;
      sent = true;
      kill(process, GetParam());
    });
  }
  Lines Ready() const {
    Lines names;
    for (const std::string& name : Names_In(folder_.path())) {
      if (name.starts_with("ready-")) names.push_back(name);
    }
    return names;
  }
  void Expect_All_Gone() {
    for (const std::string& name : Ready()) {
      EXPECT_TRUE(Is_Gone(std::stoi(name.substr(6)))) << name;
      EXPECT_TRUE(Is_Gone(Number_In(Path(name)))) << name;
    }
    EXPECT_EQ(Left_Behind(), Lines{});
  }
};

TEST_P(BatchInterrupt, Stops_The_Solver_And_What_It_Started_And_Cleans_Up) {
  Put_Sample(kHopper, "a.DUI");
  Put_Sample(kHopper, "b.DUI");
  Put_Solver(Stays(folder_.path()));
  const Program_Result result =
      Interrupted({"run", "--solver-dir", "solvers", "a.DUI", "b.DUI"}, 1);
  EXPECT_EQ(result.signal, GetParam());
  EXPECT_NE(result.err.find("a.DUI: "), std::string::npos);
  EXPECT_NE(result.err.find("was stopped"), std::string::npos) << result.err;
  EXPECT_EQ(Ready().size(), 1u);  // the second was never started
  Expect_All_Gone();
}

TEST_P(BatchInterrupt, Stops_Every_Job) {
  for (const char* name : {"a.DUI", "b.DUI", "c.DUI"}) Put_Sample(kHopper, name);
  Put_Solver(Stays(folder_.path()));
  const Program_Result result =
      Interrupted({"run", "--jobs", "2", "--solver-dir", "solvers", "a.DUI", "b.DUI", "c.DUI"}, 2);
  EXPECT_EQ(result.signal, GetParam());
  EXPECT_EQ(Ready().size(), 2u);
  Expect_All_Gone();
}

TEST_P(BatchInterrupt, Ends_A_Check_Of_Many_Projects_Between_Two_Of_Them) {
  constexpr std::size_t kFiles = 4000;
  Put_Faulty("site.DUI");
  std::vector<std::string> arguments(kFiles, "site.DUI");
  arguments.insert(arguments.begin(), "check");
  Program_Start start = Start_Of(arguments);
  start.out_path = Path("said");
  const Program_Result result = Run_Program(start, [this](pid_t process) {
    if (!Read_Text(Path("said")).empty()) kill(process, GetParam());
  });
  EXPECT_EQ(result.signal, GetParam());
  EXPECT_LT(Printed_Lines(Read_Text(Path("said"))).size(), kFiles);
}

TEST_P(BatchInterrupt, Ends_An_Export_Of_Many_Projects_Between_Two_Of_Them) {
  constexpr std::size_t kFiles = 400;
  Put_Sample(kHopper, "site.DUI");
  std::filesystem::create_directory(Path("out"));
  std::vector<std::string> arguments{"export", "-o", "out"};
  for (std::size_t i = 0; i < kFiles; ++i) {
    arguments.push_back("site" + std::to_string(i) + ".DUI");
    std::filesystem::create_hard_link(Path("site.DUI"), Path(arguments.back()));
  }
  const Program_Result result = Run_Program(Start_Of(arguments), [this](pid_t process) {
    if (!Names_In(Path("out")).empty()) kill(process, GetParam());
  });
  EXPECT_EQ(result.signal, GetParam());
  EXPECT_LT(Names_In(Path("out")).size(), kFiles);
}

INSTANTIATE_TEST_SUITE_P(BySignal, BatchInterrupt, ::testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace
}  // namespace barvon::testing

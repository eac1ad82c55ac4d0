#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "batch/batch_fixture.h"
#include "support/process_state.h"
#include "support/proof_scale.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

constexpr char kAll[] =
    "write:tmpfile.duo=x\nwrite:tmpfile.dup=x\nwrite:tmpfile.dut=x\nwrite:tmpfile.duc=x\n";
constexpr long kAllowedMemory = 16 * 1024;  // KiB above a run of a good solver

/// barvon-run and solvers of every temper.
class BatchBadSolvers : public BatchProgram {
 protected:
  BatchBadSolvers() {
    Put_Sample(kBarge, "bay/site.DUI");
    fs::create_directory(folder_ / "solvers");
    bytes_ = Read_Text(Path("bay/site.DUI"));
  }
  void Put_Child(const std::string& steps) {
    fs::remove(folder_ / "solvers/merak32");
    fs::copy_file(BARVON_TEST_CHILD, folder_ / "solvers/merak32");
    Write_Text(folder_ / "solvers/test_child.steps", steps);
  }
  /// Runs the project. A file that the solver makes in its folder is the sign to end barvon-run.
  Program_Result Run(const std::vector<std::string>& files = {"bay/site.DUI"},
                     const std::string& sign = {}) {
    std::vector<std::string> arguments = {"run", "--solver-dir", folder_ / "solvers"};
    arguments.insert(arguments.end(), files.begin(), files.end());
    peak_ = 0;
    bool told = false;
    return Run_Program(Start_Of(arguments), [&](pid_t pid) {
      // Before it becomes barvon-run the child has the memory of the tests.
      std::error_code gone;
      const fs::path program = fs::read_symlink("/proc/" + std::to_string(pid) + "/exe", gone);
      if (program == fs::path(BARVON_RUN_PROGRAM)) {
        peak_ = std::max(peak_, Memory_Of("VmHWM", pid));
      }
      if (sign.empty() || told) return;
      for (const std::string& scratch : Left_Behind()) {
        told = told || Exists(folder_ / ("tmp/" + scratch + "/" + sign));
      }
      if (told) ::kill(pid, SIGTERM);
    });
  }
  /// What must be so however the solver behaves.
  void Hold(const std::string& words, const Program_Result& result, int code = 2) {
    EXPECT_EQ(result.code, code) << result.err;
    EXPECT_NE((result.out + result.err).find(words), std::string::npos) << result.out << result.err;
    EXPECT_EQ(Read_Text(Path("bay/site.DUI")), bytes_);
    EXPECT_TRUE(Left_Behind().empty());
    EXPECT_EQ(Processes_In(folder_.path()), 0);
    if (kMemoryTells) {
      EXPECT_LE(peak_ - usual_, kAllowedMemory);
    }
    std::cout << "memory +" << std::max(peak_ - usual_, 0L) << " KiB: " << words << "\n";
  }
  void Learn_The_Usual_Memory() {
    Put_Child(std::string("sleep:50\n") + kAll);
    EXPECT_EQ(Run().code, 0);
    usual_ = peak_;
  }

  std::string bytes_;
  long peak_ = 0, usual_ = 0;
};

TEST_F(BatchBadSolvers, All_End_In_Words_With_The_Project_Untouched_And_Nothing_Left) {
  Learn_The_Usual_Memory();
  fs::remove(folder_ / "solvers/merak32");
  Hold("DOS4GW was found neither in", Run());
  Put_Child("");
  fs::permissions(folder_ / "solvers/merak32", fs::perms::owner_read);
  Hold("merak32 is not executable", Run());
  Put_Child("");
  Hold("not written by this run: .duo, .dup, .dut, .duc", Run());
  Put_Child(std::string(kAll) + "error:bad layer\nexit:3\n");
  Hold("the solver said: bad layer", Run());
  Put_Child("write:tmpfile.duo=x\n");
  Hold("not written by this run: .dup, .dut, .duc", Run());
  Put_Child("signal:11\n");
  Hold("was ended by signal 11 (SEGV)", Run());
  Put_Child("child:one\nsession:two\norphan:three\nawait:one\nawait:two\nawait:three\n" +
            std::string(kAll));
  Hold("ended with code 0", Run(), 0);
  Put_Child(kAll);
  Hold("given more than once; it is run once", Run({"bay/site.DUI", "bay/../bay/site.DUI"}), 0);
}

TEST_F(BatchBadSolvers, That_Never_End_Are_Ended_With_The_Program) {
  Learn_The_Usual_Memory();
  Put_Child("write:up=x\nawait:never\n");
  const Program_Result stopped = Run({"bay/site.DUI"}, "up");
  EXPECT_EQ(stopped.signal, SIGTERM);
  Hold("was stopped after", stopped, -1);
  Put_Child("ignore-term\nsession:up\nawait:never\n");
  const Program_Result forced = Run({"bay/site.DUI"}, "up");
  EXPECT_EQ(forced.signal, SIGTERM);
  Hold("was stopped after", forced, -1);
}

TEST_F(BatchBadSolvers, That_Flood_Cost_No_Memory) {
  const std::string bytes = std::to_string(Proof_Scale("BARVON_PROOF_FLOOD", 8L << 20));
  Learn_The_Usual_Memory();
  Put_Child("flood:" + bytes + "\n" + kAll);
  Hold("ended with code 0", Run(), 0);
  Put_Child("big:tmpfile.duo=" + bytes + "\n");
  Hold("not written by this run: .dup, .dut, .duc", Run());
  EXPECT_EQ(std::to_string(fs::file_size(Path("bay/site.duo"))), bytes);
}

}  // namespace
}  // namespace barvon::testing

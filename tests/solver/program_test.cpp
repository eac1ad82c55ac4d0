#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>

#include "solver/input_sum.h"
#include "tests/solver/sample_inputs.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

constexpr char kMarker[] =
    "DUE   , ,                            ,                                     ,TmpFile ,"
    "                           ,\r\n";
constexpr char kLabel[] =
    "COMPANION SOLVER 1.0 - a model of its own from general fluid dynamics; not a validated code "
    "for permits.";

/// The program in a folder of its own.
class Program : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("barvon_solver_" + std::to_string(getpid()) + "_" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::create_directories(folder_);
    Put("KOLBREE.TMP", kMarker);
  }
  void TearDown() override { fs::remove_all(folder_); }

  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
  }
  std::string Get(const std::string& name) { return File_Bytes((folder_ / name).string()); }

  /// Its exit code; standard output and error go to "out" and "err".
  int Run(const std::string& arguments = "") {
    const std::string command =
        "cd '" + folder_.string() + "' && '" BARVON_SOLVER "' " + arguments + " >out 2>err";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  int Outputs() {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(folder_)) {
      if (entry.is_regular_file() &&
          entry.path().filename().string().compare(0, 8, "tmpfile.") == 0) {
        ++count;
      }
    }
    return count;
  }

  fs::path folder_;
};

TEST_F(Program, Leaves_Four_Outputs_With_The_Label_First) {
  Put("Tmpfile.Due", Sample_Bytes("Barge_Four_Layers"));
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(Get("err"), "");
  EXPECT_EQ(Get("out").find(std::string(kLabel) + "\n"), 0U);
  for (const char* name : {"tmpfile.duo", "tmpfile.dup", "tmpfile.dut", "tmpfile.duc"}) {
    EXPECT_EQ(Get(name).find(std::string(kLabel) + "\r\n"), 0U) << name;
    EXPECT_NE(Get(name).find("of \"GANNET BANK"), std::string::npos) << name;
  }
  EXPECT_EQ(Outputs(), 4);
}

TEST_F(Program, Takes_Names_In_Any_Case_And_The_Additions) {
  Put("TMPFILE.DUE", Sample_Bytes("Tidal_Estuary"));
  Put("tmpFILE.add", "BARVON additions: 1\r\nCriterion: x\r\n");
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(Get("err"), "barvon-solver: tmpFILE.add:2: \"x\" is no number for Criterion\n");
  Put("tmpFILE.add", "BARVON additions: 1\r\n");
  EXPECT_EQ(Run(), 0);
}

/// The third line of an output without its tag.
std::string Sum_In(const std::string& output) {
  const std::size_t line = output.find("\r\nINPU  ") + 8;
  return output.substr(line, output.find("\r\n", line) - line);
}

std::string Hexadecimal(std::uint64_t number) {
  std::ostringstream text;
  text << std::hex << std::setw(16) << std::setfill('0') << number;
  return text.str();
}

TEST_F(Program, Tells_In_Three_Outputs_The_Sum_Of_What_It_Has_Read) {
  const std::string due = Sample_Bytes("Barge_Four_Layers");
  const std::string added = "BARVON additions: 1\r\n";
  Put("Tmpfile.Due", due);
  ASSERT_EQ(Run(), 0);
  for (const char* name : {"tmpfile.dup", "tmpfile.dut", "tmpfile.duc"}) {
    EXPECT_EQ(Sum_In(Get(name)), Hexadecimal(Input_Sum(due, ""))) << name;
  }
  Put("tmpfile.add", added);
  ASSERT_EQ(Run(), 0);
  EXPECT_EQ(Sum_In(Get("tmpfile.dut")), Hexadecimal(Input_Sum(due + added, "")));
}

TEST_F(Program, Refuses_An_Input_In_One_Line) {
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(Get("err"), "barvon-solver: TmpFile.Due:1: there is no such file here\n");
  Put("Tmpfile.Due", With_Columns(Sample_Bytes("Barge_Four_Layers"), 10, 1, "        -5"));
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(Get("err"), "barvon-solver: Tmpfile.Due:10: DEPC0 is -5, and must be above 0\n");
  EXPECT_EQ(Get("out"), std::string(kLabel) + "\n");
  EXPECT_EQ(Outputs(), 0);
}

TEST_F(Program, Has_No_Physics_For_A_Pipeline) {
  Put("Tmpfile.Due", Sample_Bytes("Pipeline_Continuous"));
  EXPECT_EQ(Run(), 3);
  EXPECT_EQ(Outputs(), 0);
}

TEST_F(Program, Removes_What_It_Could_Not_Finish) {
  Put("Tmpfile.Due", Sample_Bytes("Barge_Four_Layers"));
  fs::create_directories(folder_ / "tmpfile.dut" / "in_the_way");
  EXPECT_EQ(Run(), 2);
  EXPECT_EQ(Get("err"), "barvon-solver: tmpfile.dut: can't be written\n");
  EXPECT_EQ(Outputs(), 0);
}

TEST_F(Program, Ends_At_A_Signal_Without_Outputs) {
  Put("Tmpfile.Due", Sample_Bytes("Variable_96_By_96"));
  const std::string command = "cd '" + folder_.string() +
                              "' && { '" BARVON_SOLVER
                              "' >out 2>err & p=$!; kill -TERM $p; wait $p; }";
  std::system(command.c_str());
  EXPECT_EQ(Outputs(), 0);
}

TEST_F(Program, Tells_Its_Version_And_Takes_Nothing_Else) {
  EXPECT_EQ(Run("--version"), 0);
  EXPECT_EQ(Get("out"), "1.0\n");
  EXPECT_EQ(Run("--help"), 1);
  EXPECT_EQ(Get("err"), "barvon-solver: takes no argument but --version\n");
}

}  // namespace
}  // namespace companion

#include "batch/batch_fixture.h"

namespace barvon::testing {
namespace {

using CommandLine = BatchProgram;

TEST_F(CommandLine, Help_Names_Every_Command_And_The_Exit_Codes) {
  const Program_Result result = Batch({"--help"});
  EXPECT_EQ(result.code, 0);
  for (const char* word :
       {"check", "export", "run", "show", "new", "database", "--version", "Exit codes"}) {
    EXPECT_NE(result.out.find(word), std::string::npos) << word;
  }
  EXPECT_EQ(result.err, "");
}

TEST_F(CommandLine, Help_Of_A_Command_Names_Its_Options) {
  const Program_Result result = Batch({"run", "--help"});
  EXPECT_EQ(result.code, 0);
  for (const char* word :
       {"--solver ", "companion", "external", "--solver-dir", "--jobs", "--despite-errors"}) {
    EXPECT_NE(result.out.find(word), std::string::npos) << word;
  }
}

TEST_F(CommandLine, Version_Is_The_Projects) {
  const Program_Result result = Batch({"--version"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, std::string("barvon-run ") + BARVON_VERSION + "\n");
}

TEST_F(CommandLine, What_Makes_No_Sense_Is_Told_In_One_Line_And_Could_Not_Be_Done) {
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"simulate", "x.DUI"},
      {"check"},
      {"check", "--jobs", "2", "x.DUI"},
      {"run", "--jobs", "0", "x.DUI"},
      {"run", "--jobs", "two", "x.DUI"},
      {"run", "--solver", "echo", "x.DUI"},
      {"run", "--solver", "", "x.DUI"},
      {"run", "--solver", "companion", "--solver-dir", "solvers", "x.DUI"},
      {"run", "--solver-dir", "", "x.DUI"},
      {"export", "--solver", "companion", "x.DUI"},
      {"show", "x.DUI", "y.DUI"},
      {"export", "x.DUI", "-o"},
  };
  for (const auto& arguments : wrong) {
    const Program_Result result = Batch(arguments);
    const std::string line = ::testing::PrintToString(arguments);
    EXPECT_EQ(result.code, 2) << line;
    EXPECT_EQ(result.out, "") << line;
    EXPECT_EQ(Printed_Lines(result.err).size(), 1u) << line << result.err;
    EXPECT_TRUE(result.err.starts_with("barvon-run: ")) << line << result.err;
  }
}

TEST_F(CommandLine, Words_That_Are_Not_Expected_Are_Told_As_They_Were_Typed) {
  EXPECT_EQ(Batch({"--solver", "companion", "run", "x.DUI"}).err,
            "barvon-run: not expected: --solver companion (see barvon-run --help)\n");
  EXPECT_EQ(Batch({"run", "x.DUI", "--fast", "--now"}).err,
            "barvon-run: not expected: --fast --now (see barvon-run --help)\n");
}

TEST_F(CommandLine, Options_That_Do_Not_Go_Together_Are_Told_Why) {
  EXPECT_EQ(Batch({"run", "--solver-dir", "", "x.DUI"}).err,
            "barvon-run: --solver-dir names no folder (see barvon-run --help)\n");
  EXPECT_EQ(Batch({"run", "--solver", "companion", "--solver-dir", "solvers", "x.DUI"}).err,
            "barvon-run: --solver companion takes no --solver-dir, which is for external solvers "
            "(see barvon-run --help)\n");
}

TEST_F(CommandLine, A_Full_Disk_Behind_Standard_Output_Is_Told) {
  Program_Start start = Start_Of({"--help"});
  start.command = {BARVON_RUN_PROGRAM, "show", "--json", "site.DUI"};
  Put_Sample(kHopper, "site.DUI");
  start.out_path = "/dev/full";
  const Program_Result result = Run_Program(start);
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "barvon-run: standard output: No space left on device\n");
}

TEST_F(CommandLine, A_Reader_That_Goes_Away_Ends_It_Without_A_Word) {
  Put_Sample(kHopper, "site.DUI");
  Program_Start start = Start_Of({});
  start.command = {"/bin/bash", "-c",
                   "\"$0\" show --json site.DUI | head -c 1; exit ${PIPESTATUS[0]}",
                   BARVON_RUN_PROGRAM};
  const Program_Result result = Run_Program(start);
  EXPECT_EQ(result.code, 128 + 13);  // SIGPIPE, as a shell tells it
  EXPECT_EQ(result.err, "");
}

}  // namespace
}  // namespace barvon::testing

#include "run/run_report.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <cerrno>

namespace barvon {
namespace {

using std::chrono::milliseconds;

Run_Report Ended_Run() {
  Run_Report report;
  report.stage = Run_Stage::Ended;
  report.outcome.started = true;
  report.outcome.program = report.outcome.name = "/app/merak32";
  report.outcome.duration = milliseconds(2340);
  return report;
}

std::vector<Kept_Output> All_Kept() {
  return {{".duo", true, "/bay/site.duo", 0},
          {".dup", true, "/bay/site.dup", 0},
          {".dut", true, "/bay/site.dut", 0},
          {".duc", true, "/bay/site.duc", 0}};
}

TEST(RunReport, A_Run_That_Wrote_And_Kept_All_Four_Outputs_Succeeded) {
  Run_Report report = Ended_Run();
  report.Add_Outputs(All_Kept());
  EXPECT_TRUE(report.Succeeded());
  EXPECT_EQ(Status_Text(report),
            "/app/merak32 ended with code 0 after 2.3 s; "
            "kept site.duo, site.dup, site.dut, site.duc in /bay.");
}

TEST(RunReport, The_Text_Calls_The_Companion_By_Its_Name) {
  Run_Report report = Ended_Run();
  report.outcome.program = "/app/barvon-solver";
  report.outcome.name = kCompanionName;
  report.Add_Outputs(All_Kept());
  EXPECT_EQ(Status_Text(report),
            "companion solver 1.0 ended with code 0 after 2.3 s; "
            "kept site.duo, site.dup, site.dut, site.duc in /bay.");
  report.stage = Run_Stage::Stopped;
  EXPECT_EQ(Status_Text(report), "companion solver 1.0 was stopped after 2.3 s; no outputs kept.");
}

TEST(RunReport, Anything_Less_Is_No_Success) {
  Run_Report report = Ended_Run();
  EXPECT_FALSE(report.Succeeded());
  report.Add_Outputs(All_Kept());
  for (const auto& spoil :
       std::vector<void (*)(Run_Report&)>{[](Run_Report& it) { it.outcome.end.exit_code = 1; },
                                          [](Run_Report& it) { it.outcome.end.signal = SIGSEGV; },
                                          [](Run_Report& it) { it.outcome.end.stopped = true; },
                                          [](Run_Report& it) { it.outcome.started = false; },
                                          [](Run_Report& it) { it.stage = Run_Stage::Not_Started; },
                                          [](Run_Report& it) { it.not_written.push_back(".duc"); },
                                          [](Run_Report& it) { it.kept.pop_back(); }}) {
    Run_Report spoilt = report;
    spoil(spoilt);
    EXPECT_FALSE(spoilt.Succeeded());
  }
}

TEST(RunReport, The_Text_Tells_What_This_Run_Did_Not_Write) {
  Run_Report report = Ended_Run();
  report.outcome.end.exit_code = 3;
  report.Add_Outputs({{".duo", true, "/bay/site.duo", 0},
                      {".dup", false, "/bay/site.dup", 0},
                      {".dut", false, "", 0},
                      {".duc", true, "", EACCES}});
  EXPECT_EQ(Status_Text(report),
            "merak32 ended with code 3 after 2.3 s; 1 of 4 outputs kept; "
            "not written by this run: .dup, .dut; kept from an earlier run: .dup; "
            "could not be kept: .duc (Permission denied); kept site.duo, site.dup in /bay; "
            "the solver was /app/merak32.");
}

TEST(RunReport, What_Is_Amiss_Comes_First_In_The_Text_Of_A_Solver_That_Ended_Well) {
  Run_Report report = Ended_Run();
  report.outcome.program = report.outcome.name = "/home/somebody/with/a/long/path/merak32";
  report.Add_Outputs({{".duo", true, "/bay/site.duo", 0},
                      {".dup", false, "", 0},
                      {".dut", false, "", 0},
                      {".duc", false, "", 0}});
  EXPECT_EQ(Status_Text(report),
            "1 of 4 outputs kept; not written by this run: .dup, .dut, .duc; "
            "merak32 ended with code 0 after 2.3 s; kept site.duo in /bay; "
            "the solver was /home/somebody/with/a/long/path/merak32.");
  Run_Report full = Ended_Run();
  full.outcome.name = kCompanionName;
  std::vector<Kept_Output> outputs = All_Kept();
  outputs[3] = {".duc", true, "", ENOSPC};
  full.Add_Outputs(outputs);
  EXPECT_EQ(Status_Text(full),
            "3 of 4 outputs kept; could not be kept: .duc (No space left on device); "
            "companion solver 1.0 ended with code 0 after 2.3 s; "
            "kept site.duo, site.dup, site.dut in /bay.");
}

TEST(RunReport, The_Text_Tells_The_Signal) {
  Run_Report report = Ended_Run();
  report.outcome.end.signal = SIGSEGV;
  report.outcome.duration = milliseconds(49);
  report.Add_Outputs({{".duo", false, "", 0}});
  EXPECT_EQ(Status_Text(report),
            "merak32 was ended by signal 11 (SEGV) after 0.0 s; 0 of 4 outputs kept; "
            "not written by this run: .duo; the solver was /app/merak32.");
}

TEST(RunReport, The_Text_Tells_Why_Nothing_Was_Run) {
  Run_Report report;
  report.outcome.problem = "no program is named";
  report.problem = "Tmpfile.Due could not be written into /app (Disk full)";
  const auto text = [&](Run_Stage stage) {
    report.stage = stage;
    return Status_Text(report);
  };
  EXPECT_EQ(text(Run_Stage::Not_Started), "Not run: no program is named.");
  EXPECT_EQ(text(Run_Stage::Input_Failed),
            "Not run: Tmpfile.Due could not be written into /app (Disk full).");
  EXPECT_EQ(text(Run_Stage::No_Model),
            "Not run: no model is available for this discharge case; "
            "Tmpfile.Due could not be written into /app (Disk full).");
  EXPECT_EQ(text(Run_Stage::Refused), "Not run: another run is under way.");
  EXPECT_EQ(text(Run_Stage::No_File), "Not run: the project has no file.");
  EXPECT_EQ(text(Run_Stage::Invalid_Type), "Not run: this type of file can't be run.");
  EXPECT_EQ(text(Run_Stage::Errors), "Not run: errors in the data are to be fixed first.");
  EXPECT_EQ(text(Run_Stage::Cancelled), "Not run: cancelled.");
  EXPECT_EQ(text(Run_Stage::Save_Failed), "Not run: the project could not be saved.");
}

TEST(RunReport, A_Code_That_Nobody_Told_Is_Said_To_Be_Unknown) {
  Run_Report report = Ended_Run();
  report.outcome.end.exit_code = -1;
  report.Add_Outputs(All_Kept());
  EXPECT_FALSE(report.Succeeded());
  EXPECT_EQ(Status_Text(report),
            "merak32 ended with a code that the system did not tell after 2.3 s; "
            "4 of 4 outputs kept; kept site.duo, site.dup, site.dut, site.duc in /bay; "
            "the solver was /app/merak32.");
}

TEST(RunReport, A_Signal_Without_A_Name_Is_Told_By_Its_Number) {
  Run_Report report = Ended_Run();
  report.outcome.end.signal = SIGRTMAX;
  EXPECT_EQ(Status_Text(report), "merak32 was ended by signal " + std::to_string(SIGRTMAX) +
                                     " after 2.3 s; 0 of 4 outputs kept; the solver was "
                                     "/app/merak32.");
}

}  // namespace
}  // namespace barvon

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/plain_support.h"
#include "support/run_program.h"

namespace barvon::testing {
namespace {

// The marker line, part by part as the solvers get it.
const std::string kMarker =
    "DUE   , ,                            ,"
    "                                     ,"
    "TmpFile ,                           ,\r\n";

using Lines = std::vector<std::string>;

// A hopper project on an 8 by 9 grid: 9 points down, 8 across, one solid, one opening of one bin.
Lines Hopper() {
  return {
      "    DUE       1",
      "                                           A LITTLE HOPPER  ",
      "    8    9    1    1    1    0    0",
      "    1    0    0    0    0    0    0",
      "    3    5    3    5",
      "         0         0         0         0",
      "    1    1    0    0",
      "    2",
      "        10      19.5",
      "        20       100       125",
      "    1    0",
      "       400       500         0         0         0         0         0",
      "     0.005",
      "    2",
      "         0        20",
      "     1.021     1.023",
      "    1",
      "       0.5      -0.2        20",
      "      3600       300        60",
      "        30        20        22        12     1.022         5        30        20",
      "     0.235         0         1       0.5",
      "      0.25         1      0.01       0.1         1       0.1      0.01",
      "     0.001     0.025     0.003",
      "         2         0       900       1.5",
      "Sand            2.65       0.2      0.07       0.8     0.025    0    0    1",
      "               1.022         0         0",
  };
}

// A barge with a variable depth on an 8 by 8 grid, a ZID, contaminant in the sediment (KEY3 7),
// a two-point velocity profile and three print times.
Lines Barge() {
  Lines lines = {
      "    DUE       3",
      "A LITTLE BARGE                                              ",
      "    8    8    2    1    0    0    0",
      "    1    0    7    0    1    1    0",
      "    3    5    3    5",
      "       100       300       100       300",
      "    3    5    3    5",
      "       100       200       100       200",
      "    0    0    3    0",
      "    1",
      "         5",
      "         0        50        50",
      "    0    0",
  };
  for (int row = 1; row <= 8; ++row) {
    lines.push_back("   30.5     31     32     33     34     35     36     37");
  }
  const Lines rest = {
      "       200       200         0         0         0         0         0",
      "     0.005",
      "    2",
      "         0        40",
      "     0.998     0.999",
      "    3",
      "        10        30       0.5       0.2        10        30       0.1         0",
      "      3600       300        30",
      "       160        40        11         4     0.999",
      "     0.235         0         1       0.5",
      "      0.25         1      0.01       0.1         1       0.1      0.01",
      "     0.001     0.025     0.003",
      "         0         0      1200       1.1",
      "Sand            2.65      0.11      0.06       0.8      0.02    0    1    1",
      "Silt            2.62       0.1     0.006       4.2     0.007    1    1    1",
      "Zinc           0.999  17.54599     0.008      31.7      0.12         0",
      "     900.0    1800.0    3600.0",
  };
  lines.insert(lines.end(), rest.begin(), rest.end());
  return lines;
}

std::string Bytes_Of(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

class EchoSolver : public ::testing::Test {
 protected:
  Program_Result Echo(const std::string& due) {
    Write_Text(folder_ / "Tmpfile.Due", due);
    return Echo();
  }
  Program_Result Echo(const Lines& due) { return Echo(Bytes_Of(due)); }
  Program_Result Echo() {
    if (!marker_.empty()) Write_Text(folder_ / "KOLBREE.TMP", marker_);
    return Run_Program({{BARVON_ECHO_SOLVER}, folder_.path(), {}, {}});
  }

  // Refused in one line that names the place, and nothing written.
  void Expect_Refusal(const Program_Result& result, const std::string& place,
                      const std::string& reason) {
    EXPECT_EQ(result.code, 1);
    ASSERT_EQ(Printed_Lines(result.err).size(), 1u) << result.err;
    EXPECT_NE(result.err.find(place + ": "), std::string::npos) << result.err;
    EXPECT_NE(result.err.find(reason), std::string::npos) << result.err;
    for (const char* name : {"tmpfile.duo", "tmpfile.dup", "tmpfile.dut", "tmpfile.duc"}) {
      EXPECT_FALSE(Exists(folder_ / name)) << name;
    }
  }

  Lines Output(const std::string& name) { return Printed_Lines(Read_Text(folder_ / name)); }

  Scratch_Folder folder_;
  std::string marker_ = kMarker;
};

bool Holds(const Lines& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST_F(EchoSolver, Says_In_The_First_Line_Of_Everything_That_It_Simulates_Nothing) {
  const Program_Result result = Echo(Hopper());
  ASSERT_EQ(result.code, 0) << result.err;
  EXPECT_NE(Printed_Lines(result.out).at(0).find("simulates nothing"), std::string::npos);
  for (const char* name : {"tmpfile.duo", "tmpfile.dup", "tmpfile.dut", "tmpfile.duc"}) {
    EXPECT_NE(Output(name).at(0).find("simulates nothing"), std::string::npos) << name;
  }
}

TEST_F(EchoSolver, Lists_Every_Value_Of_A_Hopper_With_Name_And_Unit) {
  ASSERT_EQ(Echo(Hopper()).code, 0);
  const Lines listing = Output("tmpfile.duo");
  for (const char* line : {
           "  ProjectTitle                   = A LITTLE HOPPER",
           "  NMAX0                          = 8",
           "  MMAX0                          = 9",
           "  OutputDepths[2]                = 19.5 ft",
           "  DZ0                            = 125 ft",
           "  ZBARGE                         = 500 ft",
           "  RHDA0                          = 0.005 ft",
           "  Densities[2]                   = 1.023 g/cc",
           "  AvgVelocityZ                   = -0.2 ft/s",
           "  TDIS                           = 60 s",
           "  BINW                           = 20 ft",
           "  CSTRIP                         = 0.003",
           "Opening 1",
           "  TotalVolume / NOPENS           = 900 cu yd",
           "  SolidNames[1]                  = Sand",
           "  SolidStripped[1]               = 1",
           "  TracerName                     = ",
       }) {
    EXPECT_TRUE(Holds(listing, line)) << line;
  }
}

TEST_F(EchoSolver, Restates_Grid_Times_And_Depths_Of_A_Hopper) {
  ASSERT_EQ(Echo(Hopper()).code, 0);
  const Lines grid = Output("tmpfile.dup");
  EXPECT_EQ(Lines(grid.begin() + 2, grid.end()),
            (Lines{"Grid points from the top (X), ft", "  0", "  100", "  200", "  300", "  400",
                   "  500", "  600", "  700", "  800", "Grid points from the left (Z), ft", "  0",
                   "  125", "  250", "  375", "  500", "  625", "  750", "  875"}));
}

TEST_F(EchoSolver, Restates_Quarters_When_No_Print_Times_Are_Given) {
  ASSERT_EQ(Echo(Hopper()).code, 0);
  const Lines times = Output("tmpfile.dut");
  EXPECT_EQ(Lines(times.begin() + 2, times.end()),
            (Lines{"No times of its own: a quarter of the duration each, s", "  900", "  1800",
                   "  2700", "  3600"}));
}

TEST_F(EchoSolver, Restates_A_Constant_Depth_And_The_Water) {
  ASSERT_EQ(Echo(Hopper()).code, 0);
  const Lines depths = Output("tmpfile.duc");
  EXPECT_EQ(Lines(depths.begin() + 2, depths.end()),
            (Lines{"Constant water depth, ft", "  20", "Water density (g/cc) by depth (ft)",
                   "  0           1.021", "  20          1.023",
                   "Depths of transport-diffusion output, ft", "  10", "  19.5"}));
}

TEST_F(EchoSolver, Reads_A_Barge_With_Zid_Variable_Depth_Two_Point_Profile_And_Print_Times) {
  const Program_Result result = Echo(Barge());
  ASSERT_EQ(result.code, 0) << result.err;
  const Lines listing = Output("tmpfile.duo");
  for (const char* line : {
           "  SeparationFlag                 = 1",
           "  ZidRight                       = 200 ft",
           "  DepthGrid[8][1]                = 30.5 ft",
           "  VelZ1                          = 0.1 ft/s",
           "  BargeEmptyTime                 = 30 s",
           "  FluidComputedConcentration     = 17.54599 mg/l",
           "  SedimentConcentration          = 31.7 mg/kg",
           "  ZCRIT                          = 0 mg/l",
           "  PrintTimes[3]                  = 3600.0 s",
       }) {
    EXPECT_TRUE(Holds(listing, line)) << line;
  }
  EXPECT_EQ(Output("tmpfile.dut").back(), "  3600");
  EXPECT_TRUE(Holds(Output("tmpfile.duc"),
                    " 30.5    31      32      33      34      35      36      37     "));
}

TEST_F(EchoSolver, Reads_A_Number_Wider_Than_Its_Column_That_Shifts_The_Line) {
  Lines due = Hopper();
  due[23] = "         2         0666.666666666667       1.5";
  due[5] = "0.333333333333333666.666666666667         0         0";
  const Program_Result result = Echo(due);
  ASSERT_EQ(result.code, 0) << result.err;
  const Lines listing = Output("tmpfile.duo");
  EXPECT_TRUE(Holds(listing, "  TotalVolume / NOPENS           = 666.666666666667 cu yd"));
  EXPECT_TRUE(Holds(listing, "  SiteTop                        = 0.333333333333333 ft"));
  EXPECT_TRUE(Holds(listing, "  SiteBottom                     = 666.666666666667 ft"));
}

TEST_F(EchoSolver, Reads_A_Name_Wider_Than_Its_Column) {
  Lines due = Hopper();
  due[24] = "Fine silty sand      2.65       0.2      0.07       0.8     0.025    0    0    1";
  ASSERT_EQ(Echo(due).code, 0);
  EXPECT_TRUE(Holds(Output("tmpfile.duo"), "  SolidNames[1]                  = Fine silty sand"));
}

TEST_F(EchoSolver, Refuses_A_Line_That_Could_Be_Read_In_Two_Ways) {
  Lines due = Hopper();
  due[5] = "12345678901234567890123         0         0";  // 10 and 13 digits, or 11 and 12, ...
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 6", "more than one way");
}

TEST_F(EchoSolver, Reads_Files_Without_Regard_To_The_Case_Of_Their_Names) {
  Write_Text(folder_ / "kolbree.tmp", kMarker);
  Write_Text(folder_ / "TMPFILE.DUE", Bytes_Of(Hopper()));
  marker_.clear();
  EXPECT_EQ(Echo().code, 0);
}

TEST_F(EchoSolver, Reads_Lines_That_End_In_Line_Feeds_Only) {
  std::string bytes = Bytes_Of(Hopper());
  bytes.erase(std::remove(bytes.begin(), bytes.end(), '\r'), bytes.end());
  EXPECT_EQ(Echo(bytes).code, 0);
}

TEST_F(EchoSolver, Refuses_A_Missing_Input) {
  const Program_Result result = Echo();
  EXPECT_EQ(result.code, 1);
  EXPECT_NE(result.err.find("TmpFile.Due: there is no such file here"), std::string::npos);
}

TEST_F(EchoSolver, Refuses_A_Missing_Marker) {
  marker_.clear();
  const Program_Result result = Echo(Hopper());
  EXPECT_EQ(result.code, 1);
  EXPECT_NE(result.err.find("KOLBREE.TMP: there is no such file here"), std::string::npos);
}

TEST_F(EchoSolver, Refuses_A_Marker_Of_Another_Kind) {
  marker_ = kMarker;
  marker_.replace(0, 3, "DUD");
  Expect_Refusal(Echo(Hopper()), "KOLBREE.TMP, line 1", "not one of a model input");
}

TEST_F(EchoSolver, Refuses_A_Marker_Whose_Columns_Are_Shifted) {
  marker_.insert(9, " ");
  Expect_Refusal(Echo(Hopper()), "KOLBREE.TMP, line 1", "field 3 of the marker has 28 columns");
}

TEST_F(EchoSolver, Refuses_An_Empty_Marker) {
  marker_ = "\r\n";
  Expect_Refusal(Echo(Hopper()), "KOLBREE.TMP, line 1", "six commas");
}

TEST_F(EchoSolver, Refuses_An_Empty_Input) {
  Expect_Refusal(Echo(std::string()), "Tmpfile.Due, line 1", "ends before the type tag");
}

TEST_F(EchoSolver, Refuses_A_Project_File_In_The_Inputs_Place) {
  Lines due = Hopper();
  due[0] = "   DUMP    1";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 1", "no model input");
}

TEST_F(EchoSolver, Refuses_A_Method_Without_A_Section) {
  Lines due = Hopper();
  due[0] = "    DUE       2";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 1", "neither 1 (hopper) nor 3 (barge)");
}

TEST_F(EchoSolver, Refuses_A_Text_Where_A_Number_Must_Be) {
  Lines due = Hopper();
  due[9] = "        20       1OO       125";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 10",
                 "columns 11 to 20: \"       1OO\" is no number for DX0");
}

TEST_F(EchoSolver, Refuses_A_Fraction_Where_A_Whole_Number_Must_Be) {
  Lines due = Hopper();
  due[4] = "    3  5.5    3    5";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 5", "is no whole number for SiteGridBottom");
}

TEST_F(EchoSolver, Refuses_What_Is_No_Number_At_All) {
  Lines due = Hopper();
  due[12] = "       nan";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 13", "is no number for RHDA0");
}

TEST_F(EchoSolver, Refuses_A_Title_Without_Its_Padding) {
  Lines due = Hopper();
  due[1] = "A LITTLE HOPPER";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 2", "less than 60 columns");
  due[1] = "A hopper whose title is longer than the sixty columns that are kept for it";
  EXPECT_EQ(Echo(due).code, 0);
}

TEST_F(EchoSolver, Refuses_A_Line_That_Is_Too_Short) {
  Lines due = Hopper();
  due[15] = "     1.021";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 16", "10 columns where 20 are expected");
}

TEST_F(EchoSolver, Refuses_A_Line_That_Goes_On) {
  Lines due = Hopper();
  due[7] = "    2    9";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 8", "NumOutputDepths");
}

TEST_F(EchoSolver, Refuses_Every_Input_That_Ends_Early) {
  for (const Lines& whole : {Hopper(), Barge()}) {
    for (std::size_t count = 0; count < whole.size(); ++count) {
      const Lines part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(count));
      Expect_Refusal(Echo(part), "Tmpfile.Due, line " + std::to_string(count + 1),
                     "the input ends before");
    }
  }
}

TEST_F(EchoSolver, Refuses_An_Input_That_Goes_On) {
  Lines due = Hopper();
  due.emplace_back("     900.0");
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 27", "goes on where it should have ended");
}

TEST_F(EchoSolver, Refuses_Counts_Beyond_The_Solvers_Arrays) {
  const auto with = [](std::size_t line, const std::string& text) {
    Lines due = Hopper();
    due[line] = text;
    return due;
  };
  Expect_Refusal(Echo(with(2, "   97    9    1    1    1    0    0")), "line 3", "NMAX0");
  Expect_Refusal(Echo(with(2, "    8    7    1    1    1    0    0")), "line 3", "MMAX0");
  Expect_Refusal(Echo(with(2, "    8    9    5    1    1    0    0")), "line 3", "NumSolids");
  Expect_Refusal(Echo(with(2, "    8    9    1    7    1    0    0")), "line 3", "NOPENS");
  Expect_Refusal(Echo(with(3, "    1    0    8    0    0    0    0")), "line 4", "KEY3");
  Expect_Refusal(Echo(with(6, "    1    1   13    0")), "line 7", "NumPrintTimes");
  Expect_Refusal(Echo(with(7, "    6")), "line 8", "NumOutputDepths");
  Expect_Refusal(Echo(with(13, "    6")), "line 14", "NROA0");
  Expect_Refusal(Echo(with(16, "    6")), "line 17", "VelocityProfileType");
}

TEST_F(EchoSolver, Refuses_A_Grid_With_A_Row_Missing) {
  Lines due = Barge();
  due.erase(due.begin() + 13);
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 21", "is no number for DepthGrid[8][1]");
}

TEST_F(EchoSolver, Refuses_A_Print_Time_Without_Its_Decimal) {
  Lines due = Barge();
  due.back() = "     900.0    1800.0      3600";
  Expect_Refusal(Echo(due), "Tmpfile.Due, line 38", "PrintTimes[3]");
}

TEST_F(EchoSolver, Says_When_Its_Outputs_Can_Not_Be_Written) {
  Write_Text(folder_ / "keep", "");
  ASSERT_EQ(Run_Program({{"/bin/mkdir", folder_ / "tmpfile.duo"}, "", {}, {}}).code, 0);
  const Program_Result result = Echo(Hopper());
  EXPECT_EQ(result.code, 2);
  EXPECT_NE(result.err.find("tmpfile.duo: can't be written"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace barvon::testing

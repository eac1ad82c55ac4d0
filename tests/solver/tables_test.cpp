#include "solver/tables.h"

#include <gtest/gtest.h>

#include <string>

#include "solver/input_sum.h"
#include "tests/solver/solver_case.h"

namespace companion {
namespace {

/// A table from its third line on: the first two are held elsewhere.
std::string Behind_Head(const std::string& table) {
  return table.substr(table.find("\r\n", table.find("\r\n") + 2) + 2);
}

std::string Series_Of(const Model_Input& input, const Outcome& outcome) {
  return Behind_Head(Series_Table(input, {}, outcome));
}

std::string Maps_Of(const Model_Input& input) { return Behind_Head(Map_Table(input, {})); }

Model_Input Compared_Case() {
  Model_Input input = Solver_Case();
  Give_Tracer(input, 100);
  input.evaluation = Evaluation::Criterion;
  input.sum = 0x0123456789abcdefU;
  return input;
}

constexpr char kSum[] = "INPU  0123456789abcdef\r\n";
constexpr char kSpecies[] = "SPEC     1  SILT      mg/l\r\nSPEC     2  TRACER    mg/l\r\n";

// The sums of the letters are those of the draft's own list.
TEST(Tables, The_Sum_Of_An_Input_Is_Of_Its_Bytes_And_Then_Of_The_Additions) {
  EXPECT_EQ(Input_Sum("", ""), 0xcbf29ce484222325U);
  EXPECT_EQ(Input_Sum("a", ""), 0xaf63dc4c8601ec8cU);
  EXPECT_EQ(Input_Sum("foobar", ""), 0x85944171f73967e8U);
  EXPECT_EQ(Input_Sum("foo", "bar"), 0x85944171f73967e8U);
}

TEST(Tables, Each_Output_That_Programs_Read_Tells_Of_Which_Input_It_Is) {
  const Model_Input input = Compared_Case();
  EXPECT_EQ(Behind_Head(Phase_Table(input, {})), kSum);
  EXPECT_EQ(Series_Of(input, {}).substr(0, 24), kSum);
  EXPECT_EQ(Maps_Of(input).substr(0, 24), kSum);
}

// The sum of "foobar" is that of the draft's own list.
TEST(Tables, A_Sealed_Table_Tells_The_Sum_Of_What_Is_Behind_Its_Head) {
  EXPECT_EQ(Sealed("label\r\ntitle\r\nINPU\r\nfoobar"),
            "label\r\ntitle\r\nINPU\r\nBODY  85944171f73967e8\r\nfoobar");
}

TEST(Tables, A_Limit_That_Was_Exceeded_Has_Its_Times_And_Its_Verdict) {
  Outcome outcome;
  Comparison criterion;
  criterion.of = "criterion outside the disposal site";
  criterion.value = 0.5;
  criterion.area = Area::Outside;
  criterion.ever = true;
  criterion.first = 600;
  criterion.last = 1200;
  criterion.worst = {true, 0.75, 900, 2100, 1900, 30};
  outcome.comparisons = {criterion};
  EXPECT_EQ(Series_Of(Compared_Case(), outcome),
            std::string(kSum) + kSpecies +
                "LIMI     2    1  5.000000e-01  0.000000e+00    1  6.000000e+02  1.200000e+03"
                "  7.500000e-01  9.000000e+02  criterion outside the disposal site\r\n"
                "VERD criterion outside the disposal site, 0.5 mg/l:\r\n"
                "VERD   exceeded from 600 s to 1200 s, worst 0.75 mg/l at (2100, 1900)\r\n");
}

TEST(Tables, A_Limit_That_Held_Has_The_Largest_Value_Looked_At) {
  Outcome outcome;
  Comparison anywhere;
  anywhere.of = "criterion anywhere, from 14400 s on";
  anywhere.value = 0.5;
  anywhere.area = Area::Anywhere;
  anywhere.from = 14400;
  anywhere.worst = {true, 0.25, 15000, 2100, 1900, 30};
  outcome.comparisons = {anywhere};
  EXPECT_EQ(Series_Of(Compared_Case(), outcome),
            std::string(kSum) + kSpecies +
                "LIMI     2    3  5.000000e-01  1.440000e+04    0  0.000000e+00  0.000000e+00"
                "  2.500000e-01  1.500000e+04  criterion anywhere, from 14400 s on\r\n"
                "VERD criterion anywhere, from 14400 s on, 0.5 mg/l:\r\n"
                "VERD   not exceeded at the times looked at\r\n"
                "VERD   (largest 0.25 mg/l at 15000 s)\r\n");
}

TEST(Tables, A_Background_Above_The_Limit_Exceeds_It_All_The_Time) {
  Outcome outcome;
  Comparison zid;
  zid.of = "standard outside the zone of initial dilution (ZID)";
  zid.value = 0.5;
  zid.area = Area::Outside_Zid;
  zid.background = 2;
  outcome.comparisons = {zid};
  EXPECT_EQ(Series_Of(Compared_Case(), outcome),
            std::string(kSum) + kSpecies +
                "LIMI     2    2  5.000000e-01  0.000000e+00    1  0.000000e+00  3.600000e+03"
                "  2.000000e+00  0.000000e+00  standard outside the zone of initial dilution "
                "(ZID)\r\n"
                "VERD standard outside the zone of initial dilution (ZID), 0.5 mg/l:\r\n"
                "VERD   exceeded everywhere and always: the background alone is 2 mg/l\r\n");
}

TEST(Tables, Without_A_Limit_The_Verdict_Says_Why) {
  EXPECT_EQ(Series_Of(Compared_Case(), {}),
            std::string(kSum) + kSpecies + "VERD None: the notes say why.\r\n");
  Model_Input input = Compared_Case();
  input.evaluation = Evaluation::Tracer;
  EXPECT_EQ(Series_Of(input, {}),
            std::string(kSum) + kSpecies + "VERD None: nothing is compared in this run.\r\n");
}

TEST(Tables, A_Zone_That_Was_Computed_Is_Told_In_Place_Of_A_Verdict) {
  Outcome outcome;
  outcome.zone_computed = true;
  outcome.zone = {true, false, 3, 5, 7, 8};
  Model_Input input = Compared_Case();
  input.evaluation = Evaluation::Zone_Criterion;
  input.batches[0].fluid.criterion = 0.5;
  const std::string series = Series_Of(input, outcome);
  EXPECT_NE(series.find("VERD None: what is asked for is a zone, below.\r\n"
                        "VERD Mixing zone" +
                        std::string(44, ' ') + "points 3 to 5 along X, 7 to 8 along Z\r\n"),
            std::string::npos)
      << series;
  EXPECT_EQ(series.find("\r\nVERD \r\n"), std::string::npos);
}

// Points from 1: the 11th and the 16th are 1000 and 1500 ft from the corner.
TEST(Tables, The_Site_And_The_Zone_Go_With_The_Maps_By_Their_Corner_Points) {
  Model_Input input = Compared_Case();
  input.evaluation = Evaluation::Zone_Criterion;
  input.site = {11, 16, 21, 31, 1000, 1500, 2000, 3000};
  input.zid = {12, 12, 22, 23, 1100, 1100, 2100, 2200};
  const std::string grid = "GRID    41   41  1.000000e+02  1.000000e+02\r\n";
  const std::string zone = "ZONE   1.000000e+03  1.500000e+03  2.000000e+03  3.000000e+03\r\n";
  const std::string point = "POIN   2.000000e+03  2.000000e+03\r\n";
  EXPECT_EQ(Maps_Of(input), kSum + grid + zone + point);
  input.zid_asked = true;
  EXPECT_EQ(Maps_Of(input),
            kSum + grid + zone +
                "ZIDR   1.100000e+03  1.100000e+03  2.100000e+03  2.200000e+03\r\n" + point);
  input.zid_asked = false;
  input.evaluation = Evaluation::Criterion;
  EXPECT_EQ(Maps_Of(input), kSum + grid + "SITE" + zone.substr(4) + point);
  input.site = {};
  EXPECT_EQ(Maps_Of(input), kSum + grid + point);
}

TEST(Tables, A_Site_That_Ends_Before_It_Begins_Holds_No_Point_And_Has_No_Line) {
  Model_Input input = Compared_Case();
  input.site = {16, 11, 21, 31, 1500, 1000, 2000, 3000};
  EXPECT_EQ(Maps_Of(input).find("SITE"), std::string::npos);
}

}  // namespace
}  // namespace companion

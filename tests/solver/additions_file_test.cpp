#include "solver/additions_file.h"

#include <gtest/gtest.h>

#include <string>

#include "solver/due_fields.h"
#include "solver/refusals.h"
#include "tests/solver/sample_inputs.h"
#include "tests/solver/solver_case.h"

namespace companion {
namespace {

constexpr char kHead[] = "BARVON additions: 1\r\n";

std::string Refused(const std::string& bytes, const Model_Input& input = Solver_Case()) {
  try {
    Check_Values("Tmpfile.Add", Read_Additions("Tmpfile.Add", bytes, input));
  } catch (const Refusal& refusal) {
    return std::to_string(refusal.line_) + ": " + refusal.reason_;
  }
  return "";
}

std::string Values(int count, const std::string& value) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " " + value;
  return text + "\r\n";
}

TEST(AdditionsFile, Holds_The_Limits) {
  const Additions read = Read_Additions(
      "x", std::string(kHead) + "Criterion: 0.05\r\nZidStandard: 0.4\r\n", Solver_Case());
  EXPECT_TRUE(read.present);
  EXPECT_EQ(read.criterion, 0.05);
  EXPECT_EQ(read.zid_standard, 0.4);
  EXPECT_FALSE(read.tide);
  EXPECT_TRUE(read.depths.empty());
}

TEST(AdditionsFile, Counts_The_Tide_In_Seconds_Of_The_Run) {
  const Additions read =
      Read_Additions("x",
                     std::string(kHead) + "TideStart: 1.5\r\nTideX:" + Values(26, "0.5") +
                         "TideZ:" + Values(26, "-0.25"),
                     Solver_Case());
  ASSERT_TRUE(read.tide);
  ASSERT_EQ(read.tide->times.size(), 26U);
  EXPECT_EQ(read.tide->times[0], -5400);  // the pattern's start, an hour and a half before the run
  EXPECT_EQ(read.tide->times[3], 0);
  EXPECT_EQ(read.tide->times[25], 39600);  // 12.5 h less 1.5 h
  EXPECT_EQ(read.tide->x[25], 0.5);
  EXPECT_EQ(read.tide->z[0], -0.25);
}

TEST(AdditionsFile, Holds_Depths_From_The_Top) {
  Model_Input input = Solver_Case();
  input.constant_depth = false;
  input.points_x = 2;
  input.points_z = 3;
  const Additions read =
      Read_Additions("x", std::string(kHead) + "DepthRow: 1 2 3\r\nDepthRow: 4 5 6\r\n", input);
  EXPECT_EQ(read.depths, (std::vector<std::vector<double>>{{1, 2, 3}, {4, 5, 6}}));
}

TEST(AdditionsFile, Refuses_In_Words_With_The_Line) {
  EXPECT_EQ(Refused(""), "1: the first line is not \"BARVON additions: 1\"");
  EXPECT_EQ(Refused("BARVON additions: 2\r\n"),
            "1: these additions are of version 2, this solver knows version 1");
  EXPECT_EQ(Refused(std::string(kHead) + "Salinity: 3\r\n"),
            "2: nothing goes by the name \"Salinity\"");
  EXPECT_EQ(Refused(std::string(kHead) + "Criterion 3\r\n"), "2: there is no colon behind a name");
  EXPECT_EQ(Refused(std::string(kHead) + "Criterion: x\r\n"),
            "2: \"x\" is no number for Criterion");
  EXPECT_EQ(Refused(std::string(kHead) + "Criterion: 1 2\r\n"), "2: Criterion has 2 values, not 1");
  EXPECT_EQ(Refused(std::string(kHead) + "Criterion: 1\r\nCriterion: 1\r\n"),
            "3: Criterion stands here a second time");
  EXPECT_EQ(Refused(std::string(kHead) + "Criterion: -1\r\n"), "2: Criterion is below 0");
  EXPECT_EQ(Refused(std::string(kHead) + "Criterion: 1E+999\r\n"),
            "2: 1E+999 is larger than any number");
  EXPECT_EQ(Refused(std::string(kHead) + "TideStart: 1\r\n"),
            "2: of TideStart, TideX and TideZ one is missing");
  EXPECT_EQ(Refused(std::string(kHead) + "DepthRow:" + Values(41, "10")),
            "2: a depth grid, where the model input has a constant depth");
  Model_Input grid = Solver_Case();
  grid.constant_depth = false;
  EXPECT_EQ(Refused(std::string(kHead) + "DepthRow:" + Values(41, "10"), grid),
            "2: the depth grid has 1 rows, not 41");
  EXPECT_EQ(Refused(std::string(kHead) + "TideStart: 0\r\nTideX:" + Values(26, "500") +
                    "TideZ:" + Values(26, "0")),
            "1: a tidal velocity of 500 ft/s is too large");
}

}  // namespace
}  // namespace companion

#include "batch/batch_fixture.h"

namespace barvon::testing {
namespace {

using BatchRemarks = BatchProgram;
using Lines = std::vector<std::string>;

/// Three solids and the fluid lie between the openings' own lines.
Lines Three_Remarks() {
  Lines lines;
  for (const char* line : {"24", "29", "34"}) {
    lines.push_back(std::string("site.DUI\tremark\tLine ") + line +
                    " of the model input: TotalVolume / NOPENS is 1333.33333333333, wider than its "
                    "10 columns, and moves the rest of the line");
  }
  return lines;
}

TEST_F(BatchRemarks, Check_Says_Them_Behind_The_Findings_And_They_Are_None) {
  Put_Remarkable("site.DUI");
  const Program_Result result = Batch({"check", "site.DUI"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(Printed_Lines(result.out), Three_Remarks());
  EXPECT_EQ(result.err, "");
}

TEST_F(BatchRemarks, Export_Says_Them_And_Writes) {
  Put_Remarkable("site.DUI");
  const Program_Result result = Batch({"export", "site.DUI"});
  EXPECT_EQ(result.code, 0);
  Lines expected = Three_Remarks();
  expected.push_back("site.DUI\twritten\t" + Path("site.DUE"));
  EXPECT_EQ(Printed_Lines(result.out), expected);
  const std::string written = Read_Text(Path("site.DUE"));
  EXPECT_NE(written.find("1333.33333333333"), std::string::npos);
}

TEST_F(BatchRemarks, Run_Says_Them_And_Runs) {
  Put_Remarkable("site.DUI");
  Put_Solver(kAllOutputsScript);
  const Program_Result result = Batch({"run", "--solver-dir", "solvers", "site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  Lines lines = Printed_Lines(result.out);
  ASSERT_EQ(lines.size(), 8u) << result.out;
  EXPECT_TRUE(lines[3].starts_with("site.DUI\tran\t")) << lines[3];
  lines.resize(3);
  EXPECT_EQ(lines, Three_Remarks());
}

}  // namespace
}  // namespace barvon::testing

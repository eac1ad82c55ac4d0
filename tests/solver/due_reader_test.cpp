#include "solver/due_reader.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "solver/due_fields.h"
#include "solver/marker.h"
#include "tests/solver/sample_inputs.h"

namespace companion {
namespace {

/// The refusal's "line: reason"; empty when there is none.
std::string Refused(const std::function<void()>& act) {
  try {
    act();
  } catch (const Refusal& refusal) {
    return std::to_string(refusal.line_) + ": " + refusal.reason_;
  }
  return "";
}

std::string Read_Refusal(const std::string& bytes) {
  return Refused([&] { Read_Model_Input("Tmpfile.Due", bytes); });
}

int Line_Of(const Model_Input& input, const std::string& name) {
  for (const Entry& entry : input.entries) {
    if (entry.name == name) return entry.line;
  }
  return 0;
}

TEST(DueReader, Fills_A_Barge_With_Layers) {
  const Model_Input input = Sample_Input("Barge_Four_Layers");
  EXPECT_TRUE(input.barge);
  EXPECT_EQ(input.title, "GANNET BANK - SPLIT-HULL BARGE, SEPARATED IN FOUR LAYERS");
  EXPECT_EQ(input.points_x, 32);
  EXPECT_EQ(input.points_z, 48);
  EXPECT_EQ(input.evaluation, Evaluation::Tracer);
  EXPECT_FALSE(input.site.Given());
  EXPECT_TRUE(input.print_descent);
  EXPECT_EQ(input.output_depths, (std::vector<double>{20, 80}));
  EXPECT_EQ(input.depth, 85);
  EXPECT_EQ(input.vessel_z, 1400);
  EXPECT_EQ(input.profile_densities, (std::vector<double>{1.021, 1.0222, 1.0241, 1.0244}));
  EXPECT_EQ(input.mean_x, 0.3);
  EXPECT_EQ(input.duration, 3600);
  EXPECT_EQ(input.emptying, 30);
  EXPECT_EQ(input.draft_empty, 5.5);
  EXPECT_EQ(input.coefficients.ALAMDA, 0.001);
  ASSERT_EQ(input.batches.size(), 4U);
  const Solid& clay = input.batches[3].solids[2];
  EXPECT_EQ(clay.name, "Clay");
  EXPECT_EQ(clay.fraction, 0.1);
  EXPECT_EQ(clay.void_ratio, 7.5);
  EXPECT_TRUE(clay.cohesive);
  EXPECT_EQ(input.batches[1].fluid.concentration, 100);
  EXPECT_EQ(input.batches[1].moisture, 1.1);
  EXPECT_EQ(input.Species(), 4U);
}

TEST(DueReader, Fills_Zones_And_Their_Limits) {
  const Model_Input zid = Sample_Input("Section_404_Zid");
  EXPECT_EQ(zid.evaluation, Evaluation::Zone_Criterion);
  EXPECT_TRUE(zid.zid_asked);
  EXPECT_TRUE(zid.site.Given());
  EXPECT_TRUE(zid.zid.Given());
  EXPECT_EQ(zid.batches[0].fluid.criterion, 2.2);
  const Model_Input sediment = Sample_Input("Section_404_Sediment");
  EXPECT_EQ(sediment.evaluation, Evaluation::Zone_Sediment);
  EXPECT_EQ(sediment.site.top, 8);
  EXPECT_EQ(sediment.site.x_bottom, 2000);
  EXPECT_EQ(sediment.batches[0].fluid.background, 0.008);
}

TEST(DueReader, Fills_Grids_Row_By_Row) {
  const Model_Input input = Sample_Input("Variable_96_By_96");
  ASSERT_FALSE(input.constant_depth);
  ASSERT_EQ(input.depths.size(), 96U);
  ASSERT_EQ(input.depths[0].size(), 96U);
  EXPECT_EQ(input.velocity_type, 4);
  EXPECT_EQ(input.field_x.size(), 96U);
  EXPECT_EQ(input.field_z[95].size(), 96U);
}

TEST(DueReader, Fills_The_Tide_And_The_Two_Points) {
  EXPECT_EQ(Sample_Input("Tidal_Estuary").velocity_type, 5);
  const Model_Input input = Sample_Input("Section_103_Water_Quality");
  EXPECT_EQ(input.velocity_type, 3);
  EXPECT_EQ(input.two_point, (std::array<double, 8>{20, 100, 0.35, 0.15, 20, 100, 0.25, 0.1}));
}

TEST(DueReader, Knows_The_Line_Of_Every_Value) {
  const Model_Input input = Sample_Input("Barge_Four_Layers");
  EXPECT_EQ(Line_Of(input, "DisposalMethod"), 1);
  EXPECT_EQ(Line_Of(input, "ProjectTitle"), 2);
  EXPECT_EQ(Line_Of(input, "KEY3"), 4);
}

TEST(DueReader, Keeps_The_Defaults_Where_No_Coefficients_Stand) {
  std::string bytes = Sample_Bytes("Barge_Four_Layers");
  const Model_Input given = Read_Model_Input("x", bytes);
  const int first = Line_Of(given, "ALPHA0");
  bytes = With_Columns(bytes, 4, 1, "    0");
  std::size_t at = 0;
  for (int i = 1; i < first; ++i) at = bytes.find('\n', at) + 1;
  std::size_t end = at;
  for (int i = 0; i < 3; ++i) end = bytes.find('\n', end) + 1;
  bytes.erase(at, end - at);
  const Model_Input input = Read_Model_Input("x", bytes);
  EXPECT_EQ(input.key1, 0);
  EXPECT_EQ(input.coefficients.ALPHA0, 0.235);
  EXPECT_EQ(input.coefficients.ALPHAC, 0.1);
  EXPECT_EQ(input.batches.size(), 4U);
}

TEST(DueReader, Refuses_With_The_Line) {
  const std::string bytes = Sample_Bytes("Barge_Four_Layers");
  EXPECT_EQ(Read_Refusal(""), "1: the input ends before the type tag");
  EXPECT_EQ(Read_Refusal(With_Columns(bytes, 1, 15, "4")),
            "1: DisposalMethod is neither 1 (hopper) nor 3 (barge)");
  EXPECT_EQ(Read_Refusal(With_Columns(bytes, 3, 1, "    7")), "3: NMAX0 is not one of 8 to 96");
  EXPECT_EQ(Read_Refusal(With_Columns(bytes, 4, 1, "    x")),
            "4: columns 1 to 5: \"    x\" is no whole number for KEY1");
  EXPECT_EQ(Read_Refusal(bytes + "x\r\n").substr(3),
            " the input goes on where it should have ended");
}

TEST(DueReader, Refuses_A_Number_That_No_Machine_Holds) {
  const std::string bytes = Sample_Bytes("Barge_Four_Layers");
  const Model_Input input = Read_Model_Input("x", bytes);
  const int line = Line_Of(input, "DEPC0");
  EXPECT_EQ(Read_Refusal(With_Columns(bytes, line, 1, "    9E+999")),
            std::to_string(line) + ": 9E+999 is larger than any number");
  EXPECT_EQ(Read_Model_Input("x", With_Columns(bytes, line, 1, "    9E-999")).depth, 0);
}

TEST(DueReader, Tells_A_Pipeline_From_A_Fault) {
  EXPECT_THROW(Read_Model_Input("x", Sample_Bytes("Pipeline_Continuous")), No_Physics);
  EXPECT_THROW(Read_Model_Input("x", "    DUE       5\r\n"), Refusal);
}

TEST(Marker, Names_The_Model_Input) {
  const std::string marker =
      "DUE   , ,                            ,                                     ,TmpFile ,"
      "                           ,";
  EXPECT_EQ(Read_Marker("KOLBREE.TMP", marker), "TmpFile.Due");
  EXPECT_EQ(Refused([] { Read_Marker("KOLBREE.TMP", ""); }), "1: the marker line is missing");
  EXPECT_EQ(Refused([] { Read_Marker("KOLBREE.TMP", "DUE\r\n"); }), "1: the marker has six commas");
  const auto changed = [&](std::size_t at, std::size_t count, const std::string& text) {
    std::string other = marker;
    other.replace(at, count, text);
    return Refused([&] { Read_Marker("KOLBREE.TMP", other); });
  };
  EXPECT_EQ(changed(0, 3, "DUI"), "1: the marker is not one of a model input");
  EXPECT_EQ(changed(6, 0, " "), "1: field 1 of the marker has 6 columns");
  EXPECT_EQ(changed(marker.size() - 1, 0, " "), "1: field 6 of the marker has 27 columns");
  const std::size_t name = marker.find("TmpFile ");
  EXPECT_EQ(changed(name, 8, "        "), "1: the marker names no scratch file");
  EXPECT_EQ(changed(name, 8, "../other"), "1: the marker names no scratch file");
}

}  // namespace
}  // namespace companion

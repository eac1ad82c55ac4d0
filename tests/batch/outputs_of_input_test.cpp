#include <filesystem>
#include <functional>

#include "batch/batch_fixture.h"
#include "core/desk/input_sum.h"
#include "core/desk/load_record.h"
#include "core/model_input/additions.h"
#include "core/model_input/model_input.h"
#include "results/result_reader.h"

namespace barvon::testing {
namespace {

/// Real runs of the companion solver, and what their outputs tell of their input.
struct OutputsOfInput : BatchProgram, ::testing::WithParamInterface<const char*> {
  void Run_Sample(const std::string& sample) {
    Put_Sample(sample + ".DUI", "site.DUI");
    const Program_Result result = Batch({"run", "--solver", "companion", "site.DUI"});
    ASSERT_EQ(result.code, 0) << result.err;
  }
  std::unique_ptr<ProjectRecord> Loaded() { return Load_Record(Path("site.DUI")).record; }
  std::optional<std::uint64_t> Sum_Of_Outputs() {
    const Results_Or_Problem read = Read_Results(Path("site.DUI"));
    if (const auto* problem = std::get_if<Result_Problem>(&read)) {
      ADD_FAILURE() << problem->Words();
      return std::nullopt;
    }
    return std::get<Results>(read).input_sum;
  }
};

TEST_P(OutputsOfInput, The_Sum_In_The_Outputs_Is_That_Of_The_Project_That_Was_Run) {
  Run_Sample(GetParam());
  const std::optional<std::uint64_t> sum = Sum_Of_Outputs();
  ASSERT_TRUE(sum);
  const auto record = Loaded();
  EXPECT_EQ(Input_Sum(*record), sum);
  // Making the model input derives values and leaves them in the record.
  std::string text;
  ASSERT_EQ(Make_Model_Input(*record, text), Failure::None);
  EXPECT_EQ(Input_Sum(*record), sum);
  record->DEPC0 += 1;
  EXPECT_NE(Input_Sum(*record), sum);
}

TEST_F(BatchProgram, A_Report_Shows_The_Results_Until_The_Project_Is_Changed) {
  Put_Sample("Section_404_Sediment.DUI", "site.DUI");
  ASSERT_EQ(Batch({"run", "--solver", "companion", "site.DUI"}).code, 0);
  ASSERT_EQ(Batch({"report", "site.DUI"}).code, 0);
  const std::string page = Read_Text(Path("site.html"));
  EXPECT_NE(page.find("<h2>Results of the Run</h2>"), std::string::npos);
  EXPECT_NE(page.find("<figcaption>Deposit of all solids, "), std::string::npos);
  EXPECT_EQ(page.find("<p class=\"warning\">"), std::string::npos);
  std::filesystem::remove(Path("site.DUI"));
  Put_Sample("Section_404_Zid.DUI", "site.DUI");
  ASSERT_EQ(Batch({"report", "site.DUI"}).code, 0);
  const std::string changed = Read_Text(Path("site.html"));
  EXPECT_NE(changed.find("<p class=\"warning\">The project was changed"), std::string::npos);
  EXPECT_EQ(changed.find("<figcaption>Deposit"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Samples, OutputsOfInput,
                         ::testing::Values("Barge_Four_Layers", "Hopper_Six_Openings",
                                           "Section_103_Water_Quality", "Section_404_Sediment",
                                           "Section_404_Zid", "Tidal_Estuary", "Variable_96_By_96"),
                         [](const auto& of) { return std::string(of.param); });

TEST(InputSum, Any_Value_Of_The_Model_Input_Or_Of_The_Additions_Changes_It) {
  const auto record = Load_Record(std::string(BARVON_SAMPLES) + "/Section_404_Zid.DUI").record;
  const std::optional<std::uint64_t> sum = Input_Sum(*record);
  ASSERT_TRUE(sum);
  const std::vector<std::function<void(ProjectRecord&)>> changes = {
      [](ProjectRecord& to) { to.ProjectTitle += "X"; },
      [](ProjectRecord& to) { to.DX0 += 1; },
      [](ProjectRecord& to) { to.XBARGE += 1; },
      [](ProjectRecord& to) { to.SolidVolFraction[1] += 0.01; },
      [](ProjectRecord& to) { to.SimulationDuration += to.LongTermTimeStep; },
      [](ProjectRecord& to) { to.ALPHA0 += 0.01; },
      [](ProjectRecord& to) { to.CriterionConcentration += 0.1; },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const auto changed = std::make_unique<ProjectRecord>(*record);
    changes[i](*changed);
    EXPECT_NE(Input_Sum(*changed), sum) << i;
    EXPECT_TRUE(Input_Sum(*changed)) << i;
  }
  const auto shown = std::make_unique<ProjectRecord>(*record);
  shown->ShowMode = 1;
  shown->ProjectFileName = "elsewhere.DUI";
  EXPECT_EQ(Input_Sum(*shown), sum);
}

TEST(InputSum, What_Only_The_Additions_Carry_Changes_It) {
  const auto record = Load_Record(std::string(BARVON_SAMPLES) + "/Tidal_Estuary.DUI").record;
  std::string additions;
  ASSERT_EQ(Write_Additions(*record, additions), Failure::None);
  ASSERT_NE(additions, "");
  const std::optional<std::uint64_t> sum = Input_Sum(*record);
  record->TidalVelX[3] += 0.125F;
  EXPECT_NE(Input_Sum(*record), sum);
}

TEST(InputSum, There_Is_None_Where_No_Model_Input_Can_Be_Made) {
  const auto record = Load_Record(std::string(BARVON_SAMPLES) + "/Section_404_Zid.DUI").record;
  record->DX0 = record->DZ0 = 0;
  EXPECT_EQ(Input_Sum(*record), std::nullopt);
}

}  // namespace
}  // namespace barvon::testing

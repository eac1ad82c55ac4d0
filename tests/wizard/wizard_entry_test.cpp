#include "wizard/wizard_entry.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/velocity_types.h"
#include "core/wizard_answers.h"

namespace barvon::testing {
namespace {

class WizardEntry : public ::testing::Test {
 protected:
  WizardEntry() { Set_Project_Defaults(record); }
  ~WizardEntry() override { Take_Back_Answers(); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner_;
};

TEST_F(WizardEntry, A_Fresh_Project_Opens_On_The_First_Options_Whatever_Its_Keys_Say) {
  record.AnalysisType = kNavigableWaters;
  record.DisposalMethod = kBarge;
  record.KEY3 = kNavigableToxicity;
  record.ProjectTitle = "River mouth";
  record.SimulationDuration = 777;
  const Wizard_Entry entry = Opening_Entry(record);
  EXPECT_EQ(entry.analysis, 0);
  EXPECT_EQ(entry.method, 0);
  EXPECT_EQ(entry.simulation, 0);
  EXPECT_EQ(entry.evaluation, 0);
  EXPECT_EQ(entry.texts("Text1"), "River mouth");
  EXPECT_EQ(entry.texts.Find({"Text7", kMaxDuration}), nullptr);
}

TEST_F(WizardEntry, The_Velocity_Option_Follows_The_Type_From_The_Start) {
  const std::pair<double, int> rows[] = {{1, 0}, {2, 0}, {3, 1}, {4, 2}, {5, 3}, {0, 0}, {9, 0}};
  for (const auto& [type, option] : rows) {
    record.VelocityProfileType = type;
    for (const Flag accepted : {kFalse, kTrue}) {
      record.WizardAccepted = accepted;
      EXPECT_EQ(Opening_Entry(record).velocity, option) << type;
    }
  }
}

struct Restored_Row {
  std::int16_t type, key3;
  int analysis, evaluation;
};

TEST_F(WizardEntry, An_Accepted_Project_Opens_On_Its_Own_Choices) {
  record.WizardAccepted = kTrue;
  record.KEY2 = kDiffusion;
  const Restored_Row rows[] = {{1, 0, 0, 0},
                               {1, 1, 0, 1},
                               {2, 4, 1, 0},
                               {2, 2, 1, 1},
                               {2, 3, 1, 2},
                               {3, 7, 2, 0},
                               {3, 5, 2, 1},
                               {3, 6, 2, 2},
                               {0, 0, 0, 0},
                               {7, 1, 0, 1},
                               // The third option is hidden for open water: the first counts.
                               {1, 3, 0, 0},
                               // KEY3 of no evaluation.
                               {2, 9, 1, 0},
                               {2, -1, 1, 0}};
  for (const Restored_Row& row : rows) {
    record.AnalysisType = row.type;
    record.KEY3 = row.key3;
    const Wizard_Entry entry = Opening_Entry(record);
    EXPECT_EQ(entry.analysis, row.analysis) << row.type << " " << row.key3;
    EXPECT_EQ(entry.evaluation, row.evaluation) << row.type << " " << row.key3;
    EXPECT_EQ(entry.simulation, 1);
  }
}

TEST_F(WizardEntry, Any_Method_But_The_Hopper_Is_The_Barge_And_Any_KEY2_But_0_No_Diffusion) {
  record.WizardAccepted = kTrue;
  for (const std::int16_t method : {0, 1, 2, 3}) {
    record.DisposalMethod = method;
    EXPECT_EQ(Opening_Entry(record).method, method == 1 ? 0 : 1) << method;
  }
  for (const std::int16_t key2 : {-1, 0, 1, 2}) {
    record.KEY2 = key2;
    EXPECT_EQ(Opening_Entry(record).simulation, key2 == 0 ? 1 : 0) << key2;
  }
}

TEST_F(WizardEntry, An_Accepted_Project_Shows_Its_Duration_And_Keeps_What_The_Field_Rounds) {
  record.WizardAccepted = kTrue;
  record.SimulationDuration = 5000.4;
  Wizard_Entry entry = Opening_Entry(record);
  EXPECT_EQ(entry.texts("Text7", kMaxDuration), "5000");
  entry.texts.Set_Filled({"Text7", kMaxDuration}, "5000");
  EXPECT_EQ(Duration_Of(entry, record), 5000.4);
  entry.texts("Text7", kMaxDuration) = "5001";
  EXPECT_EQ(Duration_Of(entry, record), 5001);
}

TEST_F(WizardEntry, A_Default_Duration_Goes_Over_Nothing_And_Over_Another_Default_Alone) {
  EXPECT_EQ(Default_Duration(0, ""), "2400");
  EXPECT_EQ(Default_Duration(1, " "), "14400");
  EXPECT_EQ(Default_Duration(2, "14400"), "3600");
  EXPECT_EQ(Default_Duration(0, "3600"), "2400");
  EXPECT_EQ(Default_Duration(1, "2400.0"), "14400");
  EXPECT_EQ(Default_Duration(1, "2401"), std::nullopt);
  EXPECT_EQ(Default_Duration(2, "0"), std::nullopt) << "somebody typed it";
}

TEST_F(WizardEntry, A_Hidden_Evaluation_Is_Never_The_Chosen_One) {
  Wizard_Entry entry;
  entry.evaluation = 2;
  entry.analysis = 2;
  EXPECT_EQ(Offered_Evaluation(entry), 2);
  entry.analysis = 0;
  EXPECT_EQ(Offered_Evaluation(entry), 0);
  entry.evaluation = 1;
  EXPECT_EQ(Offered_Evaluation(entry), 1);
}

TEST_F(WizardEntry, The_Temperatures_Mark_Says_That_It_Is_Read_As_Celsius) {
  for (const Field_Face& face : Wizard_Faces(record)) {
    if (face.control != Control_Name{"Text7", kWaterTemperature}) continue;
    EXPECT_EQ(face.label, "Average Water Temperature (deg F)");
    EXPECT_EQ(face.note("18"), "reads as 18 degrees Celsius");
    EXPECT_EQ(face.note("64,5"), "reads as 64 degrees Celsius");
    EXPECT_EQ(face.note(""), "reads as 0 degrees Celsius");
    return;
  }
  FAIL() << "no temperature";
}

TEST_F(WizardEntry, The_Answers_Are_What_The_Pages_Hold) {
  Wizard_Entry entry;
  entry.texts("Text7", kMaxDuration) = "3600";
  entry.texts("Text7", kWaterDepth) = "60.5";
  entry.texts("Text7", kWaterTemperature) = "18";
  entry.texts("Text7", kWaterSalinity) = "30";
  entry.method = 1;
  entry.velocity = 3;
  entry.analysis = 2;
  Tell_Answers(entry, record);
  const Wizard_Answers& answers = Answers_Of_Wizard();
  EXPECT_EQ(answers.max_duration, "3600");
  EXPECT_EQ(answers.water_depth, "60.5");
  EXPECT_EQ(answers.water_temperature, "18");
  EXPECT_EQ(answers.water_salinity, "30");
  EXPECT_EQ(answers.method_option, 1);
  EXPECT_EQ(answers.velocity_option, 3);
  EXPECT_EQ(answers.analysis_option, 2);
  Take_Back_Answers();
  EXPECT_EQ(answers.water_depth, "");
  EXPECT_EQ(answers.velocity_option, -1);
}

}  // namespace
}  // namespace barvon::testing

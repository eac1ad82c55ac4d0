#include "workspace/option_logic.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/plain_support.h"

namespace barvon {
namespace {

TEST(OptionLogic, KEY4_Crosses_Type_And_Method) {
  EXPECT_EQ(KEY4_Value(0, 0), 1);
  EXPECT_EQ(KEY4_Value(0, 1), 2);
  EXPECT_EQ(KEY4_Value(1, 0), 3);
  EXPECT_EQ(KEY4_Value(1, 1), 4);
  EXPECT_EQ(KEY4_Value(2, 0), 5);
  EXPECT_EQ(KEY4_Value(2, 1), 6);
}

TEST(OptionLogic, KEY4_Keeps_Its_Value_Without_A_Choice_In_Either_Group) {
  EXPECT_FALSE(KEY4_Value(-1, 0).has_value());
  EXPECT_FALSE(KEY4_Value(2, -1).has_value());
  auto record = std::make_unique<ProjectRecord>();
  record->KEY4 = 7;
  Choose_Disposal_Method(-1, 1, *record);
  EXPECT_EQ(record->KEY4, 7);
}

TEST(OptionLogic, A_Type_Of_Analysis_Makes_The_File_A_Project) {
  auto record = std::make_unique<ProjectRecord>();
  record->FileKind = 1;
  Choose_Analysis_Type(1, 1, *record);
  EXPECT_EQ(record->AnalysisType, 2);
  EXPECT_EQ(record->KEY4, 4);
  EXPECT_EQ(record->FileKind, 2);
  EXPECT_EQ(record->DisposalMethod, 0);
}

TEST(OptionLogic, A_Method_Sets_KEY1_And_Is_Remembered) {
  auto record = std::make_unique<ProjectRecord>();
  Choose_Disposal_Method(2, 1, *record);
  EXPECT_EQ(record->DisposalMethod, 3);
  EXPECT_EQ(record->PreviousDisposalMethod, 3);
  EXPECT_EQ(record->KEY1, 1);
  EXPECT_EQ(record->KEY4, 6);
  Choose_Disposal_Method(2, 0, *record);
  EXPECT_EQ(record->DisposalMethod, 1);
  EXPECT_EQ(record->PreviousDisposalMethod, 1);
  EXPECT_EQ(record->KEY4, 5);
}

TEST(OptionLogic, KEY4_0_And_7_Choose_No_Type) {
  const int shown[] = {-1, 0, 0, 1, 1, 2, 2, -1};
  for (std::int16_t key4 = 0; key4 <= 7; ++key4) EXPECT_EQ(Type_Option(key4), shown[key4]);
  EXPECT_EQ(Type_Option(-1), -1);
}

TEST(OptionLogic, A_Continuous_Discharge_Is_No_Option) {
  EXPECT_EQ(Method_Option(1), 0);
  EXPECT_EQ(Method_Option(2), -1);
  EXPECT_EQ(Method_Option(3), 1);
  EXPECT_EQ(Method_Option(4), -1);
}

TEST(OptionLogic, A_Negative_Analysis_Type_Must_Be_Selected_First) {
  auto record = std::make_unique<ProjectRecord>();
  record->AnalysisType = 0;
  EXPECT_TRUE(Check_Eval(*record));
  record->AnalysisType = -1;
  testing::Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Check_Eval(*record));
  EXPECT_EQ(messages.shown.at(0).text, "Evaluation Type Must Be Selected");
  EXPECT_EQ(messages.shown.at(0).title, "BARVON Warning");
  EXPECT_EQ(messages.shown.at(0).icon, Icon::Warning);
}

TEST(OptionLogic, KEY3_By_Type_And_Evaluation) {
  const int key3[3][3] = {{0, 1, 1}, {4, 2, 3}, {7, 5, 6}};
  for (std::int16_t type = 1; type <= 3; ++type) {
    for (int option = 0; option < 3; ++option) {
      EXPECT_EQ(KEY3_Value(1, option, type), key3[type - 1][option]) << type << option;
      EXPECT_EQ(KEY3_Value(0, option, type), 0);
    }
  }
}

TEST(OptionLogic, Without_An_Evaluation_The_Last_One_Counts) {
  EXPECT_EQ(KEY3_Value(1, -1, 1), 1);
  EXPECT_EQ(KEY3_Value(1, -1, 2), 3);
  EXPECT_EQ(KEY3_Value(-1, -1, 3), 6);
}

TEST(OptionLogic, A_Type_Without_Evaluations_Leaves_KEY3) {
  for (const std::int16_t type : {-1, 0, 4}) {
    EXPECT_FALSE(KEY3_Value(1, 0, type).has_value());
    EXPECT_EQ(KEY3_Value(0, 0, type), 0);
  }
}

TEST(OptionLogic, A_Simulation_Without_Diffusion_Has_No_Contaminant) {
  auto record = std::make_unique<ProjectRecord>();
  record->TracerConcentration = 5;
  Choose_Simulation_Type(1, *record);
  EXPECT_EQ(record->KEY2, 0);
  EXPECT_EQ(record->TracerConcentration, 5);
  Choose_Simulation_Type(0, *record);
  EXPECT_EQ(record->KEY2, 2);
  EXPECT_EQ(record->TracerConcentration, 0);
  EXPECT_EQ(Simulation_Option(0), 1);
  EXPECT_EQ(Simulation_Option(2), 0);
  EXPECT_EQ(Simulation_Option(5), -1);
}

TEST(OptionLogic, Velocity_Options_Both_Ways) {
  auto record = std::make_unique<ProjectRecord>();
  const double types[] = {1, 3, 4, 5};
  for (int option = 0; option < 4; ++option) {
    Choose_Velocity(option, false, *record);
    EXPECT_EQ(record->VelocityProfileType, types[option]);
    EXPECT_EQ(Velocity_Choice_Of(types[option]).option, option);
    EXPECT_FALSE(Velocity_Choice_Of(types[option]).logarithmic);
    Choose_Velocity(option, true, *record);
    EXPECT_EQ(record->VelocityProfileType, option == 0 ? 2 : types[option]);
  }
  EXPECT_EQ(Velocity_Choice_Of(2).option, 0);
  EXPECT_TRUE(Velocity_Choice_Of(2).logarithmic);
  for (const double type : {0.0, 6.0, 1.5, -1.0}) {
    EXPECT_EQ(Velocity_Choice_Of(type).option, -1) << type;
  }
}

TEST(OptionLogic, KEY3_Follows_A_Choice_Once_And_By_The_Evaluation_That_It_Shows) {
  const auto record = std::make_unique<ProjectRecord>();
  record->AnalysisType = 2;
  record->KEY2 = 0;
  record->KEY3 = 5;  // water quality in the tiers of another type
  KEY3_Follower key3;
  key3.Follow(*record);
  EXPECT_EQ(record->KEY3, 5);
  key3.Choice_Made();
  key3.Follow(*record);
  EXPECT_EQ(record->KEY3, 2);
  record->KEY3 = 5;
  key3.Follow(*record);
  EXPECT_EQ(record->KEY3, 5);
}

TEST(OptionLogic, KEY3_Waits_For_Diffusion_Before_It_Follows) {
  const auto record = std::make_unique<ProjectRecord>();
  record->AnalysisType = 3;
  record->KEY2 = 2;
  record->KEY3 = 0;
  KEY3_Follower key3;
  key3.Choice_Made();
  key3.Follow(*record);
  EXPECT_EQ(record->KEY3, 0);
  record->KEY2 = 0;
  key3.Follow(*record);
  EXPECT_EQ(record->KEY3, 7);
}

TEST(OptionLogic, A_Choice_That_Is_Forgotten_Leaves_KEY3) {
  const auto record = std::make_unique<ProjectRecord>();
  record->AnalysisType = 2;
  record->KEY2 = 0;
  record->KEY3 = 5;
  KEY3_Follower key3;
  key3.Choice_Made();
  key3.Forget();
  key3.Follow(*record);
  EXPECT_EQ(record->KEY3, 5);
}

TEST(OptionLogic, KEY3_Keeps_Its_Value_For_A_Type_Without_Evaluations) {
  const auto record = std::make_unique<ProjectRecord>();
  record->AnalysisType = 0;
  record->KEY3 = 4;
  Follow_KEY3(1, 0, *record);
  EXPECT_EQ(record->KEY3, 4);
  Follow_KEY3(0, 0, *record);
  EXPECT_EQ(record->KEY3, 0);
}

}  // namespace
}  // namespace barvon

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

}  // namespace
}  // namespace barvon

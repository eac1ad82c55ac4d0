#include "site/velocity_questions.h"

#include <gtest/gtest.h>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// An unsteady profile of those hours.
Velocity_Entry Unsteady(const std::string& start, const std::string& duration) {
  Velocity_Entry entry;
  entry.Text3 = {start, "0", duration, "", ""};
  return entry;
}

/// The message that holds the entry back, "" when none does.
std::string Refusal(const Velocity_Entry& entry) {
  Scripted_Messages messages({Answer::Ok});
  const bool passed = Check_Velocity(entry, kUnsteadyVelocity);
  EXPECT_EQ(messages.shown.size(), passed ? 0U : 1U);
  if (passed || messages.shown.empty()) return "";
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
  EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
  return messages.shown[0].text;
}

constexpr char kTooLate[] =
    "Starting Time Exceeds Unsteady Velocity Pattern Duration (12.5 Hrs).  Please Correct.";
constexpr char kNoDuration[] = "Please Provide a Simulation Duration Greater Than Zero.";

TEST(VelocityQuestions, A_Start_In_Hours_Is_Held_Against_The_Seconds_Of_The_Pattern) {
  EXPECT_EQ(Refusal(Unsteady("13", "1")), "");
  EXPECT_EQ(Refusal(Unsteady("45000", "1")), "");
  EXPECT_EQ(Refusal(Unsteady("45000.1", "1")), kTooLate);
  EXPECT_EQ(Refusal(Unsteady("-5", "1")), "");
}

TEST(VelocityQuestions, A_Duration_Of_0_Is_Refused) {
  for (const char* none : {"0", "", "none", "0.00", "-0"}) {
    EXPECT_EQ(Refusal(Unsteady("1", none)), kNoDuration) << none;
  }
  EXPECT_EQ(Refusal(Unsteady("1", "-1")), "") << "only 0 is";
}

TEST(VelocityQuestions, A_Duration_That_32_Bits_Cannot_Tell_From_0_Is_Refused) {
  EXPECT_EQ(Refusal(Unsteady("1", "1e-60")), kNoDuration);
}

TEST(VelocityQuestions, The_Start_Is_Checked_First) {
  EXPECT_EQ(Refusal(Unsteady("50000", "0")), kTooLate);
}

TEST(VelocityQuestions, What_32_Bits_Cannot_Hold_Is_Refused_By_Its_Name) {
  EXPECT_EQ(Refusal(Unsteady("-1e39", "1")),
            "Start Time Within Velocity Profile is Too Large a Number.  Please Correct.");
  EXPECT_EQ(Refusal(Unsteady("0", "1e39")),
            "Simulation Duration is Too Large a Number.  Please Correct.");
  Velocity_Entry entry = Unsteady("0", "1");
  entry.Text3[1] = "1e39";
  EXPECT_EQ(Refusal(entry),
            "Depth Where Velocity Profile is Applied is Too Large a Number.  Please Correct.");
  entry = Unsteady("0", "1");
  entry.F1Book3[26][2] = -1e39;
  EXPECT_EQ(Refusal(entry), "Z-Velocity of Point 26 is Too Large a Number.  Please Correct.");
}

// Between 3e38 at 0 h and 0 at 0.5 h the slope is beyond 32 bits.
TEST(VelocityQuestions, An_Average_Beyond_32_Bits_Is_Refused) {
  Velocity_Entry entry = Unsteady("0.25", "1");
  entry.F1Book3[1][2] = 3e38;
  EXPECT_EQ(Refusal(entry), "Average Z-Velocity is Too Large a Number.  Please Correct.");
}

TEST(VelocityQuestions, Other_Types_Pass_Unasked) {
  const Scripted_Messages messages;
  for (const double type : {0, 1, 2, 3, 4}) {
    EXPECT_TRUE(Check_Velocity(Unsteady("50000", "0"), type));
  }
}

TEST(VelocityQuestions, A_Tick_Without_A_Constant_Names_The_Direction) {
  const Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Tell_Constant_Missing(kAlongX);
  Tell_Constant_Missing(kAlongZ);
  EXPECT_EQ(messages.shown.at(0).text, "Specify Velocity In The X-Direction");
  EXPECT_EQ(messages.shown.at(1).text, "Specify Velocity In The Z-Direction");
  for (const Message& message : messages.shown) {
    EXPECT_EQ(message.icon, Icon::None);
    EXPECT_EQ(message.buttons, Buttons::Ok);
    EXPECT_EQ(message.title, "BARVON");
  }
}

TEST(VelocityQuestions, Overwriting_Is_Asked_With_Yes_And_No) {
  const Scripted_Messages messages({Answer::Yes, Answer::No});
  EXPECT_TRUE(Ask_To_Overwrite());
  EXPECT_FALSE(Ask_To_Overwrite());
  EXPECT_EQ(messages.shown.at(0).text, "Do you Want to Overwrite Existing Data?");
  EXPECT_EQ(messages.shown.at(0).title, "BARVON");
  EXPECT_EQ(messages.shown.at(0).buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown.at(0).icon, Icon::Question);
}

TEST(VelocityQuestions, A_Missing_Duration_Is_Told_With_The_Information_Icon) {
  const Scripted_Messages messages({Answer::Ok});
  Tell_Duration_Missing();
  EXPECT_EQ(messages.shown.at(0).text, "Please Provide a Value for Simulation Duration.");
  EXPECT_EQ(messages.shown.at(0).icon, Icon::Information);
  EXPECT_EQ(messages.shown.at(0).buttons, Buttons::Ok);
}

TEST(VelocityQuestions, A_Grid_Beyond_The_Fields_Is_Told) {
  const Scripted_Messages messages({Answer::Ok});
  const auto record = std::make_unique<ProjectRecord>();
  record->MMAX0 = record->NMAX0 = 96;
  Tell_Grid_Beyond_Fields(*record);
  EXPECT_TRUE(messages.shown.empty());
  record->NMAX0 = 97;
  Tell_Grid_Beyond_Fields(*record);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "The Grid of 96 x 97 Points Exceeds the Maximum of 96 x 96.  Only the Points Within It "
            "Are Shown.");
}

}  // namespace
}  // namespace barvon::testing

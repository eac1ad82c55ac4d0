#include "workspace/quit_rules.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

constexpr char kTitled[] = "BARVON - /data/site.dui";
constexpr char kUntitled[] = "BARVON - UNTITLED.DUI";
constexpr char kSavePrompt[] = "Do You Wish To Save the Current File Before Quitting?";

TEST(QuitRules, Wish_To_Quit_Asks_Under_The_Programs_Executable_Name) {
  Scripted_Messages messages({Answer::Yes, Answer::No});
  EXPECT_TRUE(Wish_To_Quit());
  EXPECT_FALSE(Wish_To_Quit());
  ASSERT_EQ(messages.shown.size(), 2u);
  EXPECT_EQ(messages.shown[0].text, "Do You Wish to Quit?");
  EXPECT_EQ(messages.shown[0].title, "plain_tests");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown[0].icon, Icon::Question);
}

TEST(QuitRules, The_Save_Prompt_Has_Its_Wording_And_Buttons) {
  Scripted_Messages messages({Answer::Yes});
  EXPECT_EQ(Ask_On_Close(kTitled, kFalse), Close_Action::Save_And_Close);
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text, kSavePrompt);
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
}

TEST(QuitRules, No_At_The_Save_Prompt_Leaves_The_Program_Running) {
  Scripted_Messages messages({Answer::No});
  EXPECT_EQ(Ask_On_Close(kTitled, kFalse), Close_Action::Stay);
}

TEST(QuitRules, Cancel_At_The_Save_Prompt_Ends_Without_Saving) {
  Scripted_Messages messages({Answer::Cancel});
  EXPECT_EQ(Ask_On_Close(kTitled, kFalse), Close_Action::End_At_Once);
}

TEST(QuitRules, An_Untitled_Project_Asks_Only_Whether_To_Quit_Even_If_Data_Were_Entered) {
  Scripted_Messages messages({Answer::Yes, Answer::No});
  EXPECT_EQ(Ask_On_Close(kUntitled, kFalse), Close_Action::End_At_Once);
  EXPECT_EQ(Ask_On_Close(kUntitled, kFalse), Close_Action::Stay);
  EXPECT_EQ(messages.shown.at(0).text, "Do You Wish to Quit?");
  EXPECT_EQ(messages.shown.at(1).text, "Do You Wish to Quit?");
}

TEST(QuitRules, A_Saved_Project_Asks_Only_Whether_To_Quit) {
  Scripted_Messages messages({Answer::Yes, Answer::No});
  EXPECT_EQ(Ask_On_Close(kTitled, kTrue), Close_Action::End_At_Once);
  EXPECT_EQ(Ask_On_Close(kTitled, kTrue), Close_Action::Stay);
  EXPECT_EQ(messages.shown.at(0).text, "Do You Wish to Quit?");
}

TEST(QuitRules, Only_Exactly_The_Untitled_Caption_Is_Untitled) {
  Scripted_Messages messages({Answer::No});
  EXPECT_EQ(Ask_On_Close("BARVON - untitled.dui", kFalse), Close_Action::Stay);
  EXPECT_EQ(messages.shown.at(0).text, kSavePrompt);
}

TEST(QuitRules, Exit_Asks_Without_An_Icon_And_Any_Answer_But_No_Ends) {
  Scripted_Messages messages({Answer::Yes, Answer::No, Answer::Ok});
  EXPECT_TRUE(Ask_On_Exit());
  EXPECT_FALSE(Ask_On_Exit());
  EXPECT_TRUE(Ask_On_Exit());
  EXPECT_EQ(messages.shown.at(0).text, "Are You Sure You Want to Quit?");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
}

TEST(QuitRules, Closing_The_Exit_Box_Without_A_Choice_Stays) {
  const Message_Presenter former =
      Set_Message_Presenter([](const Message& message) { return Answer_On_Close(message); });
  EXPECT_FALSE(Ask_On_Exit());
  Set_Message_Presenter(former);
}

TEST(QuitRules, Closing_The_Save_Prompt_Without_A_Choice_Stays) {
  const Message_Presenter former =
      Set_Message_Presenter([](const Message& message) { return Answer_On_Close(message); });
  EXPECT_EQ(Ask_On_Close(kTitled, kFalse), Close_Action::Stay);
  Set_Message_Presenter(former);
}

TEST(QuitRules, The_End_Of_The_Program_Is_What_The_Window_Set) {
  int ends = 0;
  Set_Program_End([&ends] { ++ends; });
  End_Program();
  EXPECT_EQ(ends, 1);
  Set_Program_End({});
  End_Program();
  EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace barvon

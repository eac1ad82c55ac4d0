#include "platform/ask/message_box.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

void Expect_Box(const Message& shown, const Message& expected) {
  EXPECT_EQ(shown.text, expected.text);
  EXPECT_EQ(shown.title, expected.title);
  EXPECT_EQ(shown.buttons, expected.buttons);
  EXPECT_EQ(shown.icon, expected.icon);
  EXPECT_EQ(shown.on_close, expected.on_close);
}

TEST(MessageBox, Each_Kind_Has_Its_Icon_And_An_OK_Button) {
  const Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok});
  Show_Warning("a");
  Show_Critical("b");
  Show_Information("c");
  ASSERT_EQ(messages.shown.size(), 3U);
  Expect_Box(messages.shown[0], {"a", "BARVON", Buttons::Ok, Icon::Warning});
  Expect_Box(messages.shown[1], {"b", "BARVON", Buttons::Ok, Icon::Critical});
  Expect_Box(messages.shown[2], {"c", "BARVON", Buttons::Ok, Icon::Information});
}

TEST(MessageBox, Bears_Another_Title_When_Told) {
  const Scripted_Messages messages({Answer::Ok});
  Show_Critical("a", "BARVON Error");
  ASSERT_EQ(messages.shown.size(), 1U);
  Expect_Box(messages.shown[0], {"a", "BARVON Error", Buttons::Ok, Icon::Critical});
}

TEST(MessageBox, A_Question_Brings_The_Answer) {
  const Scripted_Messages messages({Answer::Yes, Answer::No});
  EXPECT_EQ(Ask("Now?", Buttons::YesNoCancel), Answer::Yes);
  EXPECT_EQ(Ask("Now?", Buttons::YesNo, Icon::Question, "Title"), Answer::No);
  ASSERT_EQ(messages.shown.size(), 2U);
  Expect_Box(messages.shown[0], {"Now?", "BARVON", Buttons::YesNoCancel, Icon::None});
  Expect_Box(messages.shown[1], {"Now?", "Title", Buttons::YesNo, Icon::Question});
}

TEST(MessageBox, A_Question_That_Nobody_Shows_Is_Closed_Without_A_Choice) {
  Message_Presenter former = Set_Message_Presenter({});
  EXPECT_EQ(Ask("Now?", Buttons::YesNoCancel), Answer::Cancel);
  EXPECT_EQ(Ask("Now?", Buttons::OkCancel), Answer::Cancel);
  EXPECT_EQ(Ask("Now?", Buttons::YesNo), Answer::No);
  Set_Message_Presenter(std::move(former));
}

}  // namespace
}  // namespace barvon::testing

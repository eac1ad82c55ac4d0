#include "core/desk/text_prompt.h"

#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class TextPrompt : public Recorded_Workspace {
 protected:
  TextPrompt() { text_has_changed_ = true; }
};

TEST_F(TextPrompt, Unchanged_Text_Asks_Nothing) {
  Scripted_Messages messages;
  text_has_changed_ = false;
  EXPECT_FALSE(Text_Changed_Prompt(record_));
}

TEST_F(TextPrompt, The_Question_Names_The_Project) {
  Scripted_Messages messages({Answer::No});
  record_.ProjectFileName = "/data/site.dui";
  EXPECT_FALSE(Text_Changed_Prompt(record_));
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "The text in /data/site.dui has changed.\n\nDo you want to save the changes?");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
}

TEST_F(TextPrompt, Without_A_Project_Name_The_Windows_Caption_Stands_In_The_Question) {
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Text_Changed_Prompt(record_));
  EXPECT_EQ(messages.shown.at(0).text,
            "The text in Untitled has changed.\n\nDo you want to save the changes?");
}

TEST_F(TextPrompt, Cancel_Stops_The_Caller) {
  Scripted_Messages messages({Answer::Cancel});
  EXPECT_TRUE(Text_Changed_Prompt(record_));
}

TEST_F(TextPrompt, Yes_Saves_The_Project_Under_Its_Name) {
  Scripted_Messages messages({Answer::Yes});
  record_.ProjectFileName = folder_ / "site.DUI";
  EXPECT_FALSE(Text_Changed_Prompt(record_));
  EXPECT_TRUE(Exists(folder_ / "site.DUI"));
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(TextPrompt, Yes_Without_A_Name_Asks_For_One) {
  Scripted_Messages messages({Answer::Yes});
  chosen_ = folder_ / "new";
  EXPECT_FALSE(Text_Changed_Prompt(record_));
  EXPECT_TRUE(Exists(folder_ / "new.DUI"));
  EXPECT_EQ(record_.ProjectFileName, folder_ / "new.DUI");
}

TEST_F(TextPrompt, Yes_And_A_Cancelled_Dialog_Or_A_Failed_Save_Stop_The_Caller) {
  Scripted_Messages messages({Answer::Yes, Answer::Yes, Answer::Ok});
  EXPECT_TRUE(Text_Changed_Prompt(record_));
  record_.ProjectFileName = "/none/site.DUI";
  EXPECT_TRUE(Text_Changed_Prompt(record_));
  EXPECT_EQ(messages.shown.at(2).text, "Can't open file: /none/site.DUI");
}

}  // namespace
}  // namespace barvon

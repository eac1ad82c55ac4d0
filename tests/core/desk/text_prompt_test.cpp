#include "core/desk/text_prompt.h"

#include "core/desk/workspace_port.h"
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
  EXPECT_FALSE(Text_Changed_Prompt());
}

TEST_F(TextPrompt, The_Question_Names_The_Text_Whatever_Project_Is_Open) {
  Scripted_Messages messages({Answer::No});
  record_.ProjectFileName = "/data/site.dui";
  Port().text.caption = [] { return std::string("/data/notes.txt"); };
  EXPECT_FALSE(Text_Changed_Prompt());
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "The text in /data/notes.txt has changed.\n\nDo you want to save the changes?");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
}

TEST_F(TextPrompt, Cancel_Stops_The_Caller) {
  Scripted_Messages messages({Answer::Cancel});
  EXPECT_TRUE(Text_Changed_Prompt());
}

TEST_F(TextPrompt, The_Text_That_The_Question_Is_About_Comes_To_The_Front_First) {
  Scripted_Messages messages({Answer::No});
  std::size_t asked_before = 1;
  Port().text.show_changed = [&] { asked_before = messages.shown.size(); };
  EXPECT_FALSE(Text_Changed_Prompt());
  EXPECT_EQ(asked_before, 0U);
}

TEST_F(TextPrompt, Yes_Saves_The_Text_And_Leaves_The_Project_Alone) {
  Scripted_Messages messages({Answer::Yes});
  int saved = 0;
  Port().text.save = [&saved] { return ++saved > 0; };
  record_.ProjectFileName = folder_ / "site.DUI";
  EXPECT_FALSE(Text_Changed_Prompt());
  EXPECT_EQ(saved, 1);
  EXPECT_FALSE(Exists(folder_ / "site.DUI"));
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(TextPrompt, Yes_And_A_Text_That_Is_Not_Saved_Stop_The_Caller) {
  Scripted_Messages messages({Answer::Yes});
  Port().text.save = [] { return false; };
  EXPECT_TRUE(Text_Changed_Prompt());
}

}  // namespace
}  // namespace barvon

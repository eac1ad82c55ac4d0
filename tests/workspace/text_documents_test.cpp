#include "workspace/text_documents.h"

#include <filesystem>
#include <optional>

#include "core/desk/file_dialogs.h"
#include "core/desk/save_file.h"
#include "core/desk/text_prompt.h"
#include "core/desk/workspace_port.h"
#include "support/recorded_workspace.h"
#include "workspace/text_commands.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using Indices = std::vector<int>;

/// A text window without a window.
struct Fake_Text : Text_Document {
  std::string Caption() const override { return file.empty() ? "Untitled" : file; }
  std::string File() const override { return file; }
  void Come_To_Front() override { ++fronts; }
  bool Changed_On_Disk() const override { return changed_on_disk; }
  std::optional<std::string> Bytes() override { return bytes; }
  void Saved_In(const std::string& path) override {
    file = path;
    Documents().Set_Dirty(index, false);
  }

  int index = 0;
  int fronts = 0;
  bool changed_on_disk = false;
  std::string file;
  std::optional<std::string> bytes = "text";
};

class TextDocuments : public Recorded_Workspace {
 protected:
  TextDocuments() {
    Documents().Reset();
    Fill_Text_Port(record_);
    for (Fake_Text* text : {&one, &two}) text->index = Documents().Open(*text);
  }
  ~TextDocuments() override { Documents().Reset(); }

  Fake_Text one, two;
};

TEST_F(TextDocuments, Are_Two_Arrays_From_One) {
  EXPECT_EQ(one.index, 1);
  EXPECT_EQ(two.index, 2);
  EXPECT_EQ(Documents().Document(2), &two);
  EXPECT_EQ(Documents().Document(0), nullptr);
  EXPECT_EQ(Documents().Document(3), nullptr);
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse);
  EXPECT_EQ(Documents().FState(1).Deleted, kFalse);
}

TEST_F(TextDocuments, There_Is_One_Element_Before_Any_Window) {
  Documents().Reset();
  EXPECT_EQ(Documents().FState(1).Deleted, kFalse);
  EXPECT_EQ(Documents().Document(1), nullptr);
  EXPECT_FALSE(Documents().Any_Open());
}

TEST_F(TextDocuments, The_Index_Of_A_Closed_Document_Is_Not_Used_Again) {
  Documents().Set_Dirty(1, true);
  Documents().Close(1);
  EXPECT_EQ(Documents().FState(1).Deleted, kTrue);
  EXPECT_EQ(Documents().Document(1), nullptr);
  Fake_Text three;
  EXPECT_EQ(Documents().Open(three), 3);
  EXPECT_EQ(Documents().Open_Ones(), (Indices{2, 3}));
  EXPECT_TRUE(Documents().Changed_Ones().empty());
}

TEST_F(TextDocuments, The_Active_One_Is_The_Last_In_Front_Until_A_Person_Turns_To_Something_Else) {
  EXPECT_EQ(Documents().Active(), 2);
  Documents().Set_Active(1);
  EXPECT_EQ(Documents().Active(), 1);
  Documents().Leave();
  EXPECT_EQ(Documents().Active(), 0);
  EXPECT_EQ(Documents().Last_In_Front(), 1);
  Documents().Close(1);
  EXPECT_EQ(Documents().Last_In_Front(), 2);
  Documents().Close(2);
  EXPECT_EQ(Documents().Last_In_Front(), 0);
}

TEST_F(TextDocuments, Whoever_Shows_Menus_Hears_Of_Every_Change) {
  int told = 0;
  Documents().When_Changed([&told] { ++told; });
  Documents().Set_Active(1);
  Documents().Leave();
  Documents().Leave();
  Documents().Close(1);
  EXPECT_EQ(told, 3);
}

TEST_F(TextDocuments, A_File_Is_Found_Under_Whatever_Name_Leads_To_It) {
  one.file = folder_ / "a.txt";
  Write_Text(one.file, "");
  std::filesystem::create_symlink(one.file, folder_ / "link.txt");
  EXPECT_EQ(Documents().Find(one.file), 1);
  EXPECT_EQ(Documents().Find(folder_ / "link.txt"), 1);
  EXPECT_EQ(Documents().Find(folder_ / "b.txt"), 0);
  EXPECT_EQ(Documents().Find(""), 0);
}

TEST_F(TextDocuments, Save_Goes_To_The_Texts_Own_File_And_To_No_Recent_One) {
  Scripted_Messages messages;
  one.file = folder_ / "a.txt";
  Documents().Set_Dirty(1, true);
  EXPECT_TRUE(Save_Text(1, record_));
  EXPECT_EQ(Read_Text(folder_ / "a.txt"), "text");
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse);
  EXPECT_EQ(Documents().FState(2).Dirty, kFalse);
  EXPECT_EQ(Listed().at(0), "");
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(TextDocuments, Save_Leaves_A_File_Alone_That_Nobody_Typed_Into_But_Brings_Back_A_Lost_One) {
  Scripted_Messages messages;
  one.file = folder_ / "a.duo";
  Write_Text(one.file, "a newer run");
  EXPECT_TRUE(Save_Text(1, record_));
  EXPECT_EQ(Read_Text(one.file), "a newer run");
  std::filesystem::remove(one.file);
  EXPECT_TRUE(Save_Text(1, record_));
  EXPECT_EQ(Read_Text(one.file), "text");
}

TEST_F(TextDocuments, Save_Without_A_File_Asks_For_Text_And_All_Files) {
  Scripted_Messages messages;
  chosen_ = folder_ / "notes";
  EXPECT_TRUE(Save_Text(1, record_));
  EXPECT_EQ(Names_In(folder_.path()), std::vector<std::string>{"notes"});
  EXPECT_EQ(one.file, folder_ / "notes");
  ASSERT_EQ(save_asked_.size(), 1U);
  ASSERT_EQ(save_asked_[0].filters.size(), 2U);
  EXPECT_EQ(save_asked_[0].filters[0].pattern, "*.txt");
  EXPECT_EQ(save_asked_[0].filters[1].pattern, "*");
  EXPECT_FALSE(save_asked_[0].complete);
  EXPECT_EQ(save_asked_[0].ending, Ending::To_Bare_Names);
}

TEST_F(TextDocuments, Save_As_Offers_The_Texts_Name_And_Refuses_The_Open_Projects) {
  Scripted_Messages messages({Answer::Ok});
  one.file = folder_ / "a.txt";
  Documents().Set_Dirty(1, true);
  record_.ProjectFileName = folder_ / "bay.DUI";
  chosen_ = record_.ProjectFileName;
  EXPECT_FALSE(Save_Text_As(1, record_));
  EXPECT_EQ(save_asked_.at(0).name, folder_ / "a.txt");
  EXPECT_FALSE(Exists(folder_ / "bay.DUI"));
  EXPECT_EQ(one.file, folder_ / "a.txt");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
}

TEST_F(TextDocuments, Save_As_Of_An_Output_Or_A_Bare_Name_Is_Offered_All_Files_First) {
  Scripted_Messages messages;
  for (const char* name : {"a.duo", "notes", "mytxt"}) {
    Ask_Text_To_Save(folder_ / name);
    EXPECT_EQ(save_asked_.back().filters.at(0).pattern, "*") << name;
  }
  for (const char* name : {"a.txt", "B.TXT"}) {
    Ask_Text_To_Save(folder_ / name);
    EXPECT_EQ(save_asked_.back().filters.at(0).pattern, "*.txt") << name;
  }
}

TEST_F(TextDocuments, Save_As_Never_Takes_The_Place_Of_Another_Open_Text) {
  Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok});
  one.file = folder_ / "a.txt";
  two.file = folder_ / "b.txt";
  Write_Text(one.file, "one");
  Write_Text(two.file, "two");
  std::filesystem::create_symlink(two.file, folder_ / "link.txt");
  Documents().Set_Dirty(1, true);
  for (const char* name : {"b.txt", "B.txt", "link.txt"}) {
    chosen_ = folder_ / name;
    EXPECT_FALSE(Save_Text_As(1, record_)) << name;
  }
  EXPECT_EQ(messages.shown.at(0).text,
            "Another window has the text of this file. Save the text under another name.");
  EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
  EXPECT_EQ(Read_Text(two.file), "two");
  EXPECT_EQ(one.file, folder_ / "a.txt");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
}

TEST_F(TextDocuments,
       Saving_Over_A_File_That_Another_Program_Has_Written_Asks_And_Return_Keeps_It) {
  Scripted_Messages messages({Answer::No, Answer::No, Answer::Yes});
  one.file = folder_ / "a.txt";
  Write_Text(one.file, "newer");
  one.changed_on_disk = true;
  Documents().Set_Dirty(1, true);
  EXPECT_FALSE(Save_Text(1, record_));
  chosen_ = folder_ / "A.TXT";
  EXPECT_FALSE(Save_Text_As(1, record_)) << "its own file, whatever the case";
  EXPECT_EQ(Read_Text(one.file), "newer");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
  EXPECT_EQ(messages.shown.at(0).text,
            "File " + one.file +
                " has changed on the disk since it was read.\nDo you want to write over it?");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown[0].on_return, Answer::No);
  EXPECT_TRUE(Save_Text(1, record_));
  EXPECT_EQ(Read_Text(one.file), "text");
  chosen_ = folder_ / "c.txt";
  EXPECT_TRUE(Save_Text_As(1, record_)) << "another file is none of the question's";
}

TEST_F(TextDocuments, Closing_Unchanged_Text_Asks_Nothing) {
  Scripted_Messages messages;
  EXPECT_TRUE(May_Close_Text(1, record_));
  EXPECT_TRUE(May_Leave_Texts(record_));
}

TEST_F(TextDocuments, Closing_Changed_Text_Asks_In_Its_Words) {
  Scripted_Messages messages({Answer::No, Answer::Cancel});
  one.file = "/data/a.txt";
  Documents().Set_Dirty(1, true);
  EXPECT_TRUE(May_Close_Text(1, record_));
  EXPECT_FALSE(May_Close_Text(1, record_));
  EXPECT_EQ(messages.shown.at(0).text,
            "The text in [/data/a.txt] has changed.\nDo you want to save the changes?");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(TextDocuments, Yes_At_Closing_Asks_For_A_Name_And_No_Name_Keeps_It_Open) {
  Scripted_Messages messages({Answer::Yes, Answer::Yes});
  one.file = folder_ / "a.txt";
  Documents().Set_Dirty(1, true);
  chosen_ = std::nullopt;
  EXPECT_FALSE(May_Close_Text(1, record_));
  EXPECT_EQ(save_asked_.at(0).name, one.file);
  chosen_ = folder_ / "b.txt";
  EXPECT_TRUE(May_Close_Text(1, record_));
  EXPECT_EQ(Read_Text(folder_ / "b.txt"), "text");
}

TEST_F(TextDocuments, Leaving_Asks_For_Each_Changed_Text_In_Front_And_Cancel_Stops) {
  Scripted_Messages messages({Answer::No, Answer::Cancel, Answer::No, Answer::No});
  Documents().Set_Dirty(1, true);
  Documents().Set_Dirty(2, true);
  EXPECT_FALSE(May_Leave_Texts(record_));
  EXPECT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(one.fronts + two.fronts, 2);
  EXPECT_EQ(Documents().Changed_Ones(), (Indices{2, 1})) << "nothing was given up";
  EXPECT_TRUE(May_Leave_Texts(record_));
}

TEST_F(TextDocuments, A_Save_That_Fails_Keeps_The_Text) {
  Scripted_Messages messages({Answer::Yes, Answer::Ok});
  Documents().Set_Dirty(1, true);
  chosen_ = "/none/a.txt";
  EXPECT_FALSE(May_Close_Text(1, record_));
  EXPECT_EQ(messages.shown.at(1).text, "Can't open file: /none/a.txt");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
}

TEST_F(TextDocuments, Reading_Again_Over_Typed_Text_Asks_And_Return_Keeps_It) {
  Scripted_Messages messages({Answer::No, Answer::Yes});
  EXPECT_TRUE(May_Read_Again(1));
  Documents().Set_Dirty(1, true);
  EXPECT_FALSE(May_Read_Again(1));
  EXPECT_TRUE(May_Read_Again(1));
  EXPECT_EQ(messages.shown.at(0).text,
            "The text in [Untitled] has changed.\nDo you want to read the file again and lose the "
            "changes?");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown[0].on_return, Answer::No);
}

TEST_F(TextDocuments, The_Projects_Prompt_Saves_The_Changed_Text_And_Not_The_Project) {
  Scripted_Messages messages({Answer::Yes});
  record_.ProjectFileName = folder_ / "bay.DUI";
  Documents().Set_Dirty(1, true);
  Documents().Set_Active(2);
  chosen_ = folder_ / "notes.txt";
  EXPECT_FALSE(Text_Changed_Prompt());
  EXPECT_EQ(one.fronts, 1);
  EXPECT_EQ(messages.shown.at(0).text,
            "The text in Untitled has changed.\n\nDo you want to save the changes?");
  EXPECT_EQ(Read_Text(folder_ / "notes.txt"), "text");
  EXPECT_EQ(one.file, folder_ / "notes.txt");
  EXPECT_EQ(two.file, "");
  EXPECT_FALSE(Exists(folder_ / "bay.DUI"));
}

}  // namespace
}  // namespace barvon

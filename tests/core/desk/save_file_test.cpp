#include "core/desk/save_file.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>

#include "core/desk/file_kinds.h"
#include "core/desk/open_file.h"
#include "core/desk/workspace_port.h"
#include "core/project_file/project_reader.h"
#include "support/project_text.h"
#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using Lines = std::vector<std::string>;

/// No file may grow beyond a size while it lives: writing on fails as on a full disk does.
class File_Size_Limit {
 public:
  explicit File_Size_Limit(rlim_t bytes) : former_signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &former_);
    const rlimit limit{bytes, former_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~File_Size_Limit() {
    setrlimit(RLIMIT_FSIZE, &former_);
    std::signal(SIGXFSZ, former_signal_);
  }

 private:
  rlimit former_{};
  void (*former_signal_)(int);
};

class SaveFile : public Recorded_Workspace {
 protected:
  SaveFile() {
    record_.BaseFileName = "/former/site";
    record_.ProjectTitle = "Saved";
  }
  /// Spacings, so that the model input can be computed.
  void Make_Computable() { record_.DX0 = record_.DZ0 = 50; }

  static void Expect_Box(const Scripted_Messages& messages, const std::string& text) {
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0].text, text);
    EXPECT_EQ(messages.shown[0].title, "BARVON");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
  }
  void Expect_Nothing_Claimed() const {
    EXPECT_EQ(record_.BaseFileName, "/former/site");
    EXPECT_EQ(record_.DataSaved, kFalse);
    EXPECT_EQ(caption_, "");
    EXPECT_EQ(Listed().at(0), "");
  }
};

TEST_F(SaveFile, A_Project_Is_Saved_With_Its_Model_Input_And_Can_Be_Opened) {
  Scripted_Messages messages;
  Make_Computable();
  const std::string path = folder_ / "site.DUI";
  EXPECT_TRUE(Save_File(path, 2, record_));
  EXPECT_TRUE(Exists(folder_ / "site.DUE"));
  EXPECT_TRUE(notes_.empty());
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_EQ(record_.BaseFileName, folder_ / "site");
  EXPECT_EQ(Listed().at(0), path);
  EXPECT_EQ(log_, (Lines{"display", "caption BARVON - " + path}));
  record_.ProjectTitle = "Changed";
  EXPECT_TRUE(Open_File(path, record_));
  EXPECT_EQ(record_.ProjectTitle, "Saved");
  EXPECT_EQ(record_.DX0, 50);
}

TEST_F(SaveFile, A_Reset_Project_Counts_As_Saved_Though_Its_Model_Input_Can_Not_Be_Computed) {
  Scripted_Messages messages;
  const std::string path = folder_ / "site.DUI";
  EXPECT_TRUE(Save_File(path, 2, record_));
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_EQ(caption_, "BARVON - " + path);
  EXPECT_EQ(Listed().at(0), path);
  EXPECT_FALSE(Exists(folder_ / "site.DUE"));
  EXPECT_EQ(notes_, Lines{"site.DUI is saved. Its model input site.DUE could not be written: "
                          "Division by zero."});
}

TEST_F(SaveFile, A_Model_Input_Never_Takes_The_Place_Of_The_Project_Itself) {
  Make_Computable();
  std::filesystem::create_symlink(folder_ / "bay.DUI", folder_ / "bay.DUE");
  for (const char* name : {"site.DUE", "cove.due", "bay.DUI"}) {
    Scripted_Messages messages;
    notes_.clear();
    EXPECT_TRUE(Save_File(folder_ / name, 2, record_));
    EXPECT_EQ(Read_Text(folder_ / name).substr(0, 7), "   DUMP") << name;
    ASSERT_EQ(notes_.size(), 1u);
    EXPECT_EQ(record_.DataSaved, kTrue);
  }
  EXPECT_EQ(notes_[0],
            "bay.DUI is saved. Its model input bay.DUE could not be written: that is where the "
            "project stands.");
}

TEST_F(SaveFile, What_Showing_A_Project_Changes_Is_In_The_File) {
  Scripted_Messages messages;
  Make_Computable();
  record_.SiteDensity = 1.2;
  record_.KEY4 = 4;
  EXPECT_TRUE(Save_File(folder_ / "site.DUI", 2, record_));
  EXPECT_EQ(record_.AnalysisType, 2);
  // SiteDensity is real slot 82: the fourth of line 6 + 13.
  const Lines lines = Lines_Of(Read_Text(folder_ / "site.DUI"));
  EXPECT_EQ(lines.at(19).substr(33, 11), "       1.05");
}

TEST_F(SaveFile, A_Path_That_Can_Not_Be_Opened_Is_Told_And_Nothing_Is_Claimed) {
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Save_File("/none/site.DUI", 2, record_));
  Expect_Box(messages, "Can't open file: /none/site.DUI");
  Expect_Nothing_Claimed();
  EXPECT_TRUE(log_.empty());
}

TEST_F(SaveFile, A_Full_Disk_Leaves_The_Old_File_Whole_And_Nothing_Is_Claimed) {
  Write_Text(folder_ / "site.DUI", "the old file");
  Scripted_Messages messages({Answer::Ok});
  {
    const File_Size_Limit limit(4096);
    EXPECT_FALSE(Save_File(folder_ / "site.DUI", 2, record_));
  }
  Expect_Box(messages, "Unable to Save File!");
  EXPECT_EQ(Read_Text(folder_ / "site.DUI"), "the old file");
  EXPECT_EQ(Names_In(folder_.path()), Lines{"site.DUI"});
  Expect_Nothing_Claimed();
}

TEST_F(SaveFile, An_Existing_File_Is_Replaced_Under_The_Case_Of_Its_Name) {
  Scripted_Messages messages;
  Make_Computable();
  Write_Text(folder_ / "SITE.dui", "old");
  EXPECT_TRUE(Save_File(folder_ / "site.DUI", 2, record_));
  EXPECT_FALSE(Exists(folder_ / "site.DUI"));
  EXPECT_EQ(Lines_Of(Read_Text(folder_ / "SITE.dui")).at(1), "   DUMP    1");
}

TEST_F(SaveFile, A_Project_That_Is_Saved_In_The_Dilution_Mode_Has_The_KEY4_Of_The_Boards) {
  Scripted_Messages messages;
  Make_Computable();
  Port().board.chosen_key4 = [] { return std::int16_t{4}; };
  record_.FileKind = 1;
  record_.KEY4 = 7;
  EXPECT_TRUE(Save_File(folder_ / "site.DUI", 2, record_));
  EXPECT_EQ(record_.KEY4, 7);
  EXPECT_EQ(record_.FileKind, 1);
  ASSERT_EQ(Load_Project("site.DUI", Read_Text(folder_ / "site.DUI"), record_).failure,
            Failure::None);
  EXPECT_EQ(record_.KEY4, 4);
}

TEST_F(SaveFile, A_KEY4_Of_7_Outside_The_Dilution_Mode_Stays) {
  Scripted_Messages messages;
  Make_Computable();
  record_.FileKind = 2;
  record_.KEY4 = 7;
  EXPECT_TRUE(Save_File(folder_ / "site.DUI", 2, record_));
  record_.KEY4 = 0;
  ASSERT_EQ(Load_Project("site.DUI", Read_Text(folder_ / "site.DUI"), record_).failure,
            Failure::None);
  EXPECT_EQ(record_.KEY4, 7);
}

TEST_F(SaveFile, A_Dilution_File_Is_Written_By_Who_Registered_For_It) {
  Scripted_Messages messages;
  File_Kind kind;
  kind.write = [](const ProjectRecord& record) { return "dilutions of " + record.ProjectTitle; };
  Register_File_Kind("DUD", kind);
  record_.DataSaved = kFalse;
  record_.BaseFileName = "/data/site";
  EXPECT_TRUE(Save_File(folder_ / "a.DUD", 1, record_));
  EXPECT_EQ(Read_Text(folder_ / "a.DUD"), "dilutions of Saved");
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(record_.BaseFileName, "/data/site");
  EXPECT_EQ(log_, Lines{"caption BARVON - " + (folder_ / "a.DUD")});
  EXPECT_EQ(Listed().at(0), folder_ / "a.DUD");
}

TEST_F(SaveFile, A_Dilution_File_With_A_Bad_Name_Has_The_Other_Message) {
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  File_Kind kind;
  kind.write = [](const ProjectRecord&) { return std::string(); };
  Register_File_Kind("DUD", kind);
  EXPECT_FALSE(Save_File("/tmp/" + std::string(300, 'x'), 1, record_));
  EXPECT_EQ(messages.shown.at(0).text, "Unable to Save File!");
  EXPECT_FALSE(Save_File("/none/a.DUD", 1, record_));
  EXPECT_EQ(messages.shown.at(1).text, "Can't open file: /none/a.DUD");
}

TEST_F(SaveFile, A_Dilution_File_That_Nobody_Writes_Is_No_Known_Type) {
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Save_File(folder_ / "a.DUD", 1, record_));
  Expect_Box(messages, "Unrecognized File Type!");
  EXPECT_TRUE(Names_In(folder_.path()).empty());
}

TEST_F(SaveFile, Any_Other_Kind_Is_Unrecognized_And_Touches_No_File) {
  Write_Text(folder_ / "site.DUI", "old");
  for (const int kind : {0, 5, -1}) {
    Scripted_Messages messages({Answer::Ok});
    EXPECT_FALSE(Save_File(folder_ / "site.DUI", kind, record_));
    Expect_Box(messages, "Unrecognized File Type!");
  }
  EXPECT_EQ(Read_Text(folder_ / "site.DUI"), "old");
  Expect_Nothing_Claimed();
}

TEST_F(SaveFile, An_Export_Stops_When_A_Tested_Section_Is_Marked_As_Empty) {
  Scripted_Messages messages;
  Make_Computable();
  for (int i = 1; i <= 5; ++i) {
    record_.SectionStatus.fill('X');
    record_.SectionStatus.at(static_cast<std::size_t>(i)) = '-';
    EXPECT_FALSE(Save_File(folder_ / "site.DUI", 3, record_)) << i;
    EXPECT_EQ(record_.FileTypeTag, "DUE");
  }
  EXPECT_TRUE(Names_In(folder_.path()).empty());
  Expect_Nothing_Claimed();
}

TEST_F(SaveFile, An_Export_Writes_Only_The_Model_Input_And_The_Sixth_Mark_Does_Not_Count) {
  Scripted_Messages messages;
  Make_Computable();
  record_.SectionStatus.fill('X');
  record_.SectionStatus[6] = '-';
  EXPECT_TRUE(Save_File(folder_ / "site.DUI", 3, record_));
  EXPECT_FALSE(Exists(folder_ / "site.DUI"));
  EXPECT_TRUE(Exists(folder_ / "site.DUE"));
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_EQ(caption_, "BARVON - " + (folder_ / "site.DUI"));
}

TEST_F(SaveFile, An_Export_Brings_The_Workspace_Up_To_Date_Before_Its_Checks) {
  Scripted_Messages messages;
  Make_Computable();
  record_.SectionStatus.fill('X');
  Port().board.display_data = [this] {
    record_.KEY3 = 2;
    record_.SectionStatus[1] = '-';
  };
  EXPECT_FALSE(Save_File(folder_ / "site.DUI", 3, record_));
  EXPECT_EQ(record_.KEY3, 2);
  EXPECT_FALSE(Exists(folder_ / "site.DUE"));
}

TEST_F(SaveFile, An_Export_That_Can_Not_Be_Computed_Is_Told) {
  Scripted_Messages messages({Answer::Ok});
  record_.SectionStatus.fill('X');
  EXPECT_FALSE(Save_File(folder_ / "site.DUI", 3, record_));
  Expect_Box(messages, "Unable to Save File!");
  Expect_Nothing_Claimed();
}

TEST_F(SaveFile, A_Text_Of_The_Viewer_Is_Written_As_It_Is_And_Is_No_Recent_File) {
  Scripted_Messages messages;
  const std::string bytes = "caf\xE9\nline 2\r\nend";
  Port().text.active = [&bytes] { return bytes; };
  std::string text_caption;
  Port().text.set_caption = [&](const std::string& caption) { text_caption = caption; };
  EXPECT_TRUE(Save_File(folder_ / "notes.txt", 4, record_));
  EXPECT_EQ(Read_Text(folder_ / "notes.txt"), bytes);
  EXPECT_EQ(text_caption, folder_ / "notes.txt");
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(caption_, "");
  EXPECT_EQ(record_.BaseFileName, "/former/site") << "no output is named from a text";
  EXPECT_EQ(Listed().at(0), "");
}

TEST_F(SaveFile, A_Text_Has_The_Name_Of_The_File_That_It_Replaces_Whatever_Its_Case) {
  Scripted_Messages messages;
  Port().text.active = [] { return std::string("text"); };
  std::string text_caption;
  Port().text.set_caption = [&](const std::string& caption) { text_caption = caption; };
  Write_Text(folder_ / "NOTES.TXT", "before");
  EXPECT_TRUE(Save_File(folder_ / "notes.txt", 4, record_));
  EXPECT_EQ(Names_In(folder_.path()), Lines{"NOTES.TXT"});
  EXPECT_EQ(Read_Text(folder_ / "NOTES.TXT"), "text");
  EXPECT_EQ(text_caption, folder_ / "NOTES.TXT");
}

TEST_F(SaveFile, A_Text_Whose_Save_Is_Called_Off_Is_Not_Written) {
  Scripted_Messages messages;
  Port().text.active = [] { return std::nullopt; };
  EXPECT_FALSE(Save_File(folder_ / "notes.txt", 4, record_));
  EXPECT_TRUE(Names_In(folder_.path()).empty());
}

TEST_F(SaveFile, A_Text_Never_Takes_The_Place_Of_The_Open_Project) {
  Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok});
  Port().text.active = [] { return std::string("text"); };
  record_.ProjectFileName = folder_ / "site.DUI";
  EXPECT_FALSE(Save_File(folder_ / "site.DUI", 4, record_)) << "before it is written at all";
  Write_Text(folder_ / "site.DUI", "project");
  std::filesystem::create_symlink(folder_ / "site.DUI", folder_ / "link.txt");
  EXPECT_FALSE(Save_File(folder_ / "SITE.dui", 4, record_)) << "case does not make another file";
  EXPECT_FALSE(Save_File(folder_ / "link.txt", 4, record_)) << "nor does a link";
  EXPECT_EQ(Read_Text(folder_ / "site.DUI"), "project");
  EXPECT_EQ(messages.shown.at(2).text,
            "The open project is in this file. Save the text under another name.");
  EXPECT_EQ(messages.shown.at(2).icon, Icon::Warning);
  Expect_Nothing_Claimed();
}

}  // namespace
}  // namespace barvon

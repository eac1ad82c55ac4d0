#include "dilution/frm_dilute2.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTabBar>
#include <QTest>
#include <filesystem>
#include <memory>

#include "core/desk/file_kinds.h"
#include "core/desk/project_hold.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "dilution/dilution_file.h"
#include "dilution/dilution_report.h"
#include "platform/ask/help_viewer.h"
#include "support/record_differences.h"
#include "support/screen_support.h"
#include "workspace/file_menu.h"

namespace barvon::testing {
namespace {

constexpr char kTakeThem[] = "Values typed since the last Compute are not taken. Take them?";

/// The calculator over the main window with an unsaved project in it, opened without blocking.
class DiluteScreen : public ::testing::Test {
 protected:
  DiluteScreen() {
    Register_Screen(kRow, Fresh_Screens<frmDilute2>(&bench.main()));
    Register_Dilution_File();
    Register_Dilute_Report();
    record.ProjectFileName = "/data/site.DUI";
    record.BaseFileName = "/data/site";
    record.ProjectTitle = "My project";
    record.DataSaved = kFalse;
    Port().board.set_caption("BARVON - /data/site.DUI");
    const auto choose = [this](const File_Request& request) {
      offered = request.name;
      return chosen;
    };
    former_dialogs_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
    std::filesystem::current_path(bench.folder.path());
  }
  ~DiluteScreen() override {
    Set_File_Dialog_Presenter(former_dialogs_);
    Register_File_Kind("DUD", {});
    Register_Screen(Row_Of_Screen("Write_Dilute_Report"), {});
    Register_Screen(kRow, {});
    Set_Project_Defaults(record);
    record.DiluteRowCount = 0;
  }

  QDialog* Screen() {
    for (auto* screen : bench.main().findChildren<QDialog*>(QStringLiteral("frmDilute2"))) {
      if (screen->isVisible()) return screen;
    }
    return nullptr;
  }
  void Open() {
    ASSERT_TRUE(Open_Screen(kRow, false));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  template <class Control>
  Control* Find(const char* name) {
    return Screen()->findChild<Control*>(QLatin1String(name));
  }
  QPushButton* Button(int index) {
    return Screen()->findChild<QPushButton*>(QStringLiteral("Command1(%1)").arg(index));
  }
  F1Book& Book(int tab) {
    return *Screen()->findChild<F1Book*>(QStringLiteral("F1Book2(%1)").arg(tab));
  }
  std::string Cell(int tab, int row, int col) { return Book(tab).table().TextRC(row, col); }
  void Go_To(int tab) {
    auto* bar = Find<QTabWidget>("SSTab1")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
  }
  void Paste(int tab, int row, int col, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    Book(tab).setFocus();
    Book(tab).table().SetActiveCell(row, col);
    QTest::keyClick(&Book(tab), Qt::Key_V, Qt::ControlModifier);
  }
  void Enter_Solids(const QString& text) {
    auto* field = Find<QLineEdit>("Text1");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
  }
  /// Copper and lead on both tabs, computed with 50 g/L.
  void Enter_Two() {
    Open();
    Enter_Solids("50");
    Paste(0, 1, 1, "Copper\t1000\t10\t2\nLead\t2000\t10\t2\n");
    Go_To(1);
    Paste(1, 1, 2, "26\n34\n");
    Go_To(0);
    Click(Button(0));
  }
  QString Hint(int tab) {
    return Screen()->findChild<QLabel*>(QStringLiteral("Label2(%1)").arg(tab))->text();
  }
  bool Is_Grey(int tab, int row) {
    return Book(tab).model()->index(row - 1, 1).data(Qt::ForegroundRole).isValid();
  }
  Bar_Picture& Bars() { return *Find<Bar_Picture>("DilutionBars"); }
  void Expect_Project_Is_Back() {
    EXPECT_EQ(record.ProjectFileName, "/data/site.DUI");
    EXPECT_EQ(record.BaseFileName, "/data/site");
    EXPECT_EQ(record.ProjectTitle, "My project");
    EXPECT_EQ(record.DataSaved, kFalse);
    EXPECT_EQ(Port().board.caption(), "BARVON - /data/site.DUI");
  }
  std::string Save_List(const std::string& name) {
    chosen = bench.folder / name;
    Click(Button(4));
    return *chosen;
  }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("frmDilute2");
  Main_Bench bench;
  ProjectRecord& record = Project();
  std::optional<std::string> chosen;
  std::string offered;

 private:
  File_Dialog_Presenter former_dialogs_;
};

TEST_F(DiluteScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Dilute");
  auto* tabs = Find<QTabWidget>("SSTab1");
  EXPECT_EQ(tabs->tabText(0), "Bulk Sediment");
  EXPECT_EQ(tabs->tabText(1), "Elutriate");
  EXPECT_EQ(Find<QLabel>("Label1")->text(),
            "Solids Concentration of the Dredged Material Being Disposed (g/L)");
  const char* captions[] = {"&Compute",        "C&lose",        "&Help",
                            "&Read From File", "&Save To File", "Cl&ear All"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Button(i)->text(), captions[i]);
  EXPECT_EQ(Find<QLineEdit>("Text1")->text(), "0");
  EXPECT_EQ(Book(0).table().Row(), 1);
  EXPECT_EQ(Book(0).table().Col(), 1);
}

TEST_F(DiluteScreen, The_Results_Are_In_Sight_On_Opening) {
  Open();
  for (const int tab : {0, 1}) {
    Go_To(tab);
    const F1Book& book = Book(tab);
    EXPECT_LE(book.columnViewportPosition(4) + book.columnWidth(4), book.viewport()->width());
  }
  EXPECT_LE(Screen()->width(), 1014) << "as wide as a small display, without the frame";
}

TEST_F(DiluteScreen, What_Is_Typed_On_Both_Tabs_Is_Computed_And_Shown) {
  Scripted_Messages messages;
  Enter_Two();
  EXPECT_EQ(Cell(0, 1, 5), "5.00");   // (50 - 10) / 8
  EXPECT_EQ(Cell(0, 2, 5), "11.25");  // (100 - 10) / 8
  EXPECT_EQ(Cell(1, 1, 5), "2.00");   // (26 - 10) / 8
  EXPECT_EQ(Cell(1, 2, 5), "3.00");
  EXPECT_EQ(record.DiluteSolidsConc, 50);
  EXPECT_EQ(Bars().Drawn().chart.bars.size(), 2U);
  EXPECT_FALSE(Is_Grey(0, 1));
}

TEST_F(DiluteScreen, Return_In_The_Solids_Computes) {
  Scripted_Messages messages;
  Enter_Two();
  Enter_Solids("100");
  EXPECT_TRUE(Is_Grey(0, 1));
  EXPECT_FALSE(Is_Grey(1, 1));
  QTest::keyClick(Find<QLineEdit>("Text1"), Qt::Key_Return);
  EXPECT_EQ(Cell(0, 1, 5), "11.25");
  EXPECT_FALSE(Is_Grey(0, 1));
}

TEST_F(DiluteScreen, Values_Typed_On_The_Second_Tab_Are_Not_Read_By_A_Compute_There) {
  Scripted_Messages messages;
  Enter_Two();
  Go_To(1);
  Type_Into_Cell(Book(1), 1, 2, "42");
  Click(Button(0));
  EXPECT_EQ(record.DiluteElutriate[1], 26);
  EXPECT_EQ(Cell(1, 1, 5), "2.00");
  EXPECT_TRUE(Is_Grey(1, 1));
  Go_To(0);
  EXPECT_EQ(record.DiluteElutriate[1], 42);
}

TEST_F(DiluteScreen, Without_Solids_Nothing_Is_Computed) {
  Open();
  Paste(0, 1, 1, "Copper\t1000\t10\t2\n");
  Scripted_Messages messages({Answer::Ok});
  Click(Button(0));
  EXPECT_EQ(messages.shown.at(0).icon, Icon::Warning);
  EXPECT_EQ(Cell(0, 1, 5), "");
  EXPECT_EQ(Cell(0, 1, 2), "1000");
}

TEST_F(DiluteScreen, A_Solids_Text_That_Nobody_Edited_Stands_For_The_Full_Value) {
  Scripted_Messages messages;
  record.DiluteSolidsConc = 392.6;
  Open();
  EXPECT_EQ(Find<QLineEdit>("Text1")->text(), "393");
  Paste(0, 1, 1, "Copper\t1000\t10\t2\n");
  Click(Button(0));
  EXPECT_EQ(record.DiluteSolidsConc, 392.6);
}

TEST_F(DiluteScreen, Results_Cannot_Be_Edited_And_Misread_Cells_Are_Marked) {
  Open();
  EXPECT_FALSE(Book(0).model()->index(0, 4).flags().testFlag(Qt::ItemIsEditable));
  Scripted_Messages messages({Answer::No});  // the comma is none of a decimal
  Paste(0, 1, 1, "Copper 2\t<0.5\tND\t1,200\n");
  EXPECT_EQ(Book(0).NumberNoteOf(1, 1), "");
  EXPECT_EQ(Book(0).NumberNoteOf(1, 2), "reads as 0");
  EXPECT_EQ(Book(0).NumberNoteOf(1, 3), "reads as 0");
  EXPECT_EQ(Book(0).NumberNoteOf(1, 4), "reads as 1");
}

TEST_F(DiluteScreen, Hints_Follow_Focus_And_Cursor) {
  Open();
  Button(1)->setFocus();
  EXPECT_EQ(Hint(0), "Press Save To File Key To Save Data To Disk and To Create Output File");
  EXPECT_EQ(Hint(1), Hint(0));
  Button(4)->setFocus();
  EXPECT_EQ(Hint(0), "Press Save To File Key To Save Data To Disk and To Create Output File");
  Book(0).setFocus();
  EXPECT_EQ(Hint(0), "Enter The Name of a Parameter");
  QTest::keyClick(&Book(0), Qt::Key_Right);
  EXPECT_EQ(Hint(0), "Enter The Concentration of the Parameter in the Bulk Sediement");
  Book(0).table().SetActiveCell(3, 5);
  const QString before = Hint(0);
  Book(0).table().SetActiveCell(3, 6);
  EXPECT_EQ(Hint(0), before);
  Go_To(1);
  Book(1).setFocus();
  QTest::keyClick(&Book(1), Qt::Key_Right);
  EXPECT_EQ(Hint(1), "Enter The Concentration of the Parameter in the Elutriate");
}

TEST_F(DiluteScreen, Help_Opens_Its_Topic) {
  Open();
  int topic = 0;
  const auto former =
      Set_Help_Presenter([&](const Help_Request& request) { topic = request.topic; });
  Click(Button(2));
  Set_Help_Presenter(former);
  EXPECT_EQ(topic, 2590);
}

TEST_F(DiluteScreen, Clear_All_Asks_And_Empties_Everything_But_The_Count) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  {
    Scripted_Messages messages({Answer::No});
    Click(Button(5));
    EXPECT_EQ(messages.shown.at(0).text,
              "Clearing All Will Erase ALL Data.  Do You Wish to Continue?");
    EXPECT_EQ(messages.shown.at(0).buttons, Buttons::YesNo);
    EXPECT_EQ(messages.shown.at(0).icon, Icon::Warning);
    EXPECT_EQ(Cell(0, 1, 1), "Copper");
  }
  Scripted_Messages messages({Answer::Yes});
  Click(Button(5));
  EXPECT_EQ(Cell(0, 1, 1) + Cell(1, 2, 5), "");
  EXPECT_EQ(Find<QLineEdit>("Text1")->text(), "");
  EXPECT_EQ(record.DiluteBulk[1], 0);
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_TRUE(Bars().Drawn().chart.bars.empty());
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
}

TEST_F(DiluteScreen, Saves_What_Was_Taken_And_Gives_The_Project_Back) {
  Scripted_Messages messages;
  Enter_Two();
  const std::string path = Save_List("list.DUD");
  EXPECT_EQ(offered, "/data/site.DUD");
  EXPECT_EQ(Read_Text(path),
            "   DUD    0\r\n" + std::string(50, ' ') +
                "My project\r\n    2             50\r\nCopper\r\n"
                "           1000             26             10              2\r\nLead\r\n"
                "           2000             34             10              2\r\n");
  EXPECT_EQ(record.ProjectFileName, path);
  EXPECT_EQ(Port().board.caption(), "BARVON - " + path);
  EXPECT_EQ(Screen()->windowTitle().toStdString(), "Dilute - " + path);
  EXPECT_EQ(record.DataSaved, kFalse);
  EXPECT_EQ(record.BaseFileName, "/data/site");
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
  Expect_Project_Is_Back();
}

TEST_F(DiluteScreen, Cancel_In_The_Save_Dialog_Empties_The_Name_Until_It_Closes) {
  Scripted_Messages messages;
  Enter_Two();
  chosen = std::nullopt;
  Click(Button(4));
  EXPECT_EQ(record.ProjectFileName, "");
  EXPECT_EQ(record.ProjectTitle, "My project");
  QTest::keyClick(Screen(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), nullptr);
  Expect_Project_Is_Back();
}

TEST_F(DiluteScreen, Cancel_In_The_Read_Dialog_Does_Nothing) {
  Scripted_Messages messages;
  Enter_Two();
  const auto before = std::make_unique<ProjectRecord>(record);
  Click(Button(3));
  EXPECT_EQ(Differing_Fields(*before, record), std::vector<std::string>{});
}

TEST_F(DiluteScreen, A_Project_Is_Neither_Replaced_Nor_Read) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  const std::string project = bench.folder / "site.dui";
  Write_Text(project, "a project");
  chosen = project;
  const auto before = std::make_unique<ProjectRecord>(record);
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Click(Button(4));
  EXPECT_EQ(messages.shown.at(0).text,
            "A Dilution File Can't Have the Extension of a Project, .DUI.  Nothing Was Saved.");
  Click(Button(3));
  EXPECT_EQ(messages.shown.at(1).text,
            "That Is a Project, Not a Dilution File.  Nothing Was Read.");
  EXPECT_EQ(Read_Text(project), "a project");
  EXPECT_EQ(Differing_Fields(*before, record), std::vector<std::string>{});
}

TEST_F(DiluteScreen, Reading_Shows_Computes_And_Tells_The_Name) {
  Scripted_Messages messages;
  Open();
  chosen = bench.folder / "other.DUD";
  Write_Text(*chosen,
             "   DUD    0\r\nOther\r\n    1          50.25\r\nZinc\r\n"
             "           1000             26             10              2\r\n");
  Click(Button(3));
  EXPECT_EQ(Screen()->windowTitle().toStdString(), "Dilute - " + *chosen);
  EXPECT_EQ(Port().board.caption(), "BARVON - " + *chosen);
  EXPECT_EQ(Find<QLineEdit>("Text1")->text(), "50.25");
  EXPECT_EQ(Cell(0, 1, 1), "Zinc");
  EXPECT_EQ(Cell(0, 1, 5), "5.03");  // (50.25 - 10) / 8 = 5.03125
  EXPECT_EQ(Cell(1, 1, 5), "2.00");
  EXPECT_EQ(Book(0).table().StyleRC(1, 1).format, "") << "a name is no number";
  EXPECT_EQ(record.ProjectTitle, "Other");
  EXPECT_EQ(record.DataSaved, kFalse);
  Click(Button(4));
  EXPECT_EQ(offered, *chosen);
  Click(Button(1));
  Expect_Project_Is_Back();
}

TEST_F(DiluteScreen, Reading_Formats_The_Numbers_Of_The_Selection) {
  Scripted_Messages messages;
  Open();
  chosen = bench.folder / "other.DUD";
  Write_Text(*chosen, "t\nt\n    1             50\n7440508\n           1000\n");
  Book(0).table().Selection("A1:B1");
  Click(Button(3));
  EXPECT_EQ(Book(0).table().ShownRC(1, 1), "7440508");
  EXPECT_EQ(Book(0).table().ShownRC(1, 2), "1000.00");
}

TEST_F(DiluteScreen, Reading_A_File_Without_Solids_Tells_It) {
  Open();
  chosen = bench.folder / "other.DUD";
  Write_Text(*chosen, "t\nt\n    1              0\nZinc\n           1000\n");
  Scripted_Messages messages({Answer::Ok});
  Click(Button(3));
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Cell(0, 1, 1), "Zinc");
  EXPECT_TRUE(Is_Grey(0, 1));
}

TEST_F(DiluteScreen, After_A_Failed_Read_Nothing_More_Runs) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  chosen = bench.folder / "bad.DUD";
  Write_Text(*chosen, "t\nt\n  501              0\n");
  const auto before = std::make_unique<ProjectRecord>(record);
  {
    Scripted_Messages messages({Answer::Ok, Answer::No});
    Click(Button(3));
    EXPECT_EQ(messages.shown.at(0).text, "Error in Data File. Some of the Data is missing.");
    EXPECT_EQ(Differing_Fields(*before, record), std::vector<std::string>{"OldGridFile"});
    EXPECT_EQ(Screen()->windowTitle(), "Dilute");
  }
  Scripted_Messages messages({Answer::Ok, Answer::Yes});
  Click(Button(3));
  EXPECT_EQ(messages.shown.at(1).text, "Initialize data and continue?");
  EXPECT_EQ(Cell(0, 1, 1) + Find<QLineEdit>("Text1")->text().toStdString(), "");
  EXPECT_EQ(record.DiluteParameterNames[1], "");
  Expect_Project_Is_Back();
}

TEST_F(DiluteScreen, Long_Names_Are_Noted_On_Saving) {
  Scripted_Messages messages;
  Open();
  Enter_Solids("50");
  Paste(0, 1, 1, "abcdefghijklmnopqrstuvwxy\t1\t1\t1\nshort\t1\t1\t1\n");
  Click(Button(0));
  std::string note;
  Port().board.show_note = [&](const Status_Note& shown) { note = shown.text; };
  Save_List("list.DUD");
  EXPECT_EQ(note, "1 name of more than 20 letters: the first 20 are read back");
}

TEST_F(DiluteScreen, Names_That_The_File_Cannot_Keep_Are_Marked_And_Noted) {
  Scripted_Messages messages;
  Open();
  Enter_Solids("50");
  Paste(0, 1, 1, QStringLiteral("\u03b1-BHC\t1\t1\t1\n"));
  EXPECT_EQ(Cell(0, 1, 1), "\xCE\xB1-BHC");
  EXPECT_EQ(Book(0).NumberNoteOf(1, 1), "has a character that the dilution file can't keep");
  Go_To(1);
  EXPECT_EQ(Book(1).NumberNoteOf(1, 1), "has a character that the dilution file can't keep");
  Go_To(0);
  Click(Button(0));
  std::string note;
  Port().board.show_note = [&](const Status_Note& shown) { note = shown.text; };
  Save_List("list.DUD");
  EXPECT_EQ(note, "1 name with letters that the file can't keep: saved as ?");
  EXPECT_EQ(Hint(0).toStdString(), note);
  Book(0).setFocus();
  Book(0).table().SetActiveCell(2, 1);
  QTest::keyClick(&Book(0), Qt::Key_F2);
  auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(editor, nullptr);
  editor->insert(QStringLiteral("\u03b2-BHC"));
  QTest::keyClick(editor, Qt::Key_Return);
  EXPECT_EQ(Cell(0, 2, 1), "\xCE\xB2-BHC");
}

TEST_F(DiluteScreen, A_Typographic_Minus_Sign_Is_A_Minus_In_Its_Tables_Too) {
  Open();
  Paste(0, 1, 1, QStringLiteral("Copper\t\u22125\t1\t1\n"));
  EXPECT_EQ(Cell(0, 1, 2), "-5");
}

// ---- What is typed and not taken

TEST_F(DiluteScreen, Nothing_Is_Asked_While_Everything_Is_Taken) {
  Scripted_Messages messages;
  Enter_Two();
  Save_List("list.DUD");
  Click(Button(3));
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
}

TEST_F(DiluteScreen, Escape_Asks_Once_And_Cancel_Stays) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Type_Into_Cell(Book(0), 1, 2, "1500");
  {
    Scripted_Messages messages({Answer::Cancel});
    QTest::keyClick(Screen(), Qt::Key_Escape);
    EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
    EXPECT_EQ(messages.shown.at(0).buttons, Buttons::YesNoCancel);
    ASSERT_NE(Screen(), nullptr);
    EXPECT_EQ(Cell(0, 1, 2), "1500");
  }
  Scripted_Messages messages({Answer::No});
  QTest::keyClick(Screen(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(record.DiluteBulk[1], 1000);
}

TEST_F(DiluteScreen, Close_Takes_What_Was_Typed_On_Yes) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Enter_Solids("60");
  Go_To(1);
  Type_Into_Cell(Book(1), 2, 2, "99");
  Scripted_Messages messages({Answer::Yes});
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(record.DiluteSolidsConc, 60);
  EXPECT_EQ(record.DiluteElutriate[2], 99);
  Open();
  EXPECT_EQ(Cell(1, 2, 2), "99");
  EXPECT_TRUE(Is_Grey(1, 2));
  EXPECT_FALSE(Is_Grey(1, 1));
  EXPECT_TRUE(Is_Grey(0, 1)) << "computed with other solids";
}

TEST_F(DiluteScreen, Save_Asks_And_Writes_What_The_Answer_Says) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Type_Into_Cell(Book(0), 1, 2, "1500");
  {
    Scripted_Messages messages({Answer::Cancel});
    Save_List("list.DUD");
    EXPECT_FALSE(Exists(bench.folder / "list.DUD"));
  }
  {
    Scripted_Messages messages({Answer::No});
    EXPECT_EQ(Read_Text(Save_List("list.DUD")).find("1500"), std::string::npos);
  }
  Scripted_Messages messages({Answer::Yes});
  EXPECT_NE(Read_Text(Save_List("list.DUD")).find("1500"), std::string::npos);
}

TEST_F(DiluteScreen, Read_Asks_Before_It_Replaces_What_Was_Typed) {
  {
    Scripted_Messages messages;
    Enter_Two();
    Save_List("list.DUD");
  }
  Type_Into_Cell(Book(0), 1, 2, "1500");
  {
    Scripted_Messages messages({Answer::Cancel});
    Click(Button(3));
    EXPECT_EQ(Cell(0, 1, 2), "1500");
  }
  Scripted_Messages messages({Answer::No});
  Click(Button(3));
  EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
  EXPECT_EQ(Cell(0, 1, 2), "1000");
}

TEST_F(DiluteScreen, What_Cannot_Be_Taken_Keeps_The_Screen_Open) {
  Open();
  Type_Into_Cell(Book(0), 1, 2, "1500");
  Scripted_Messages messages({Answer::Yes, Answer::Ok});
  Click(Button(1));
  EXPECT_EQ(messages.shown.at(1).text,
            "A Parameter's Name Is Missing.  The First Row Without a Name Ends the List.");
  ASSERT_NE(Screen(), nullptr);
  EXPECT_EQ(Cell(0, 1, 2), "1500");
}

TEST_F(DiluteScreen, Quitting_Asks_Once_And_Gives_The_Project_Back_First) {
  {
    Scripted_Messages messages;
    Enter_Two();
    Save_List("list.DUD");
  }
  Type_Into_Cell(Book(0), 1, 2, "1500");
  {
    Scripted_Messages messages({Answer::Cancel});
    bench.main().close();
    EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
    ASSERT_NE(Screen(), nullptr);
    EXPECT_EQ(bench.ended, 0);
  }
  Scripted_Messages messages({Answer::No, Answer::Cancel});
  bench.main().close();
  EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
  EXPECT_EQ(messages.shown.at(1).text, "Do You Wish To Save the Current File Before Quitting?");
  EXPECT_EQ(bench.ended, 1);
  EXPECT_EQ(Screen(), nullptr);
  Expect_Project_Is_Back();
}

TEST_F(DiluteScreen, Exit_Asks_Too) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Type_Into_Cell(Book(0), 1, 2, "1500");
  {
    Scripted_Messages messages({Answer::Yes, Answer::Cancel});
    mnuFileItem_Click(kFileExit, record);
    EXPECT_EQ(messages.shown.at(1).text, kTakeThem);
    EXPECT_EQ(bench.ended, 0);
  }
  Scripted_Messages messages({Answer::Yes, Answer::Yes});
  mnuFileItem_Click(kFileExit, record);
  EXPECT_EQ(bench.ended, 1);
  EXPECT_EQ(record.DiluteBulk[1], 1500);
}

TEST_F(DiluteScreen, Another_Project_Closes_It_And_Keeps_Its_Own_Name) {
  {
    Scripted_Messages messages;
    Enter_Two();
    Save_List("list.DUD");
  }
  Type_Into_Cell(Book(0), 1, 2, "1500");
  const std::string sample = std::string(BARVON_SAMPLES) + "/Barge_Four_Layers.DUI";
  {
    Scripted_Messages messages({Answer::No});
    Open_From_Workspace(sample, record);
    EXPECT_EQ(messages.shown.at(0).text, "Discard what was typed in Dilute - " + *chosen + "?");
    ASSERT_NE(Screen(), nullptr);
  }
  Scripted_Messages messages({Answer::Yes});
  Open_From_Workspace(sample, record);
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(record.ProjectFileName, sample);
  EXPECT_EQ(Port().board.caption(), "BARVON - " + sample);
}

TEST_F(DiluteScreen, A_Project_That_Is_Saved_Meanwhile_Keeps_The_Name_It_Was_Given) {
  Scripted_Messages messages;
  Enter_Two();
  Save_List("list.DUD");
  const std::string path = bench.folder / "other.DUI";
  EXPECT_TRUE(barvon::Save_File(path, kProjectKind, record));
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(record.ProjectFileName, path);
  EXPECT_EQ(Port().board.caption(), "BARVON - " + path);
  EXPECT_EQ(record.ProjectTitle, "My project");
  Release_Project();
}

TEST_F(DiluteScreen, A_New_Project_Is_Not_Given_The_Name_Of_The_Former) {
  Scripted_Messages messages;
  Enter_Two();
  Save_List("list.DUD");
  mnuFileItem_Click(kFileNew, record);
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(record.ProjectFileName, "");
  EXPECT_EQ(Port().board.caption(), kUntitledCaption);
}

// ---- Rows

TEST_F(DiluteScreen, Rows_Are_Inserted_Deleted_And_Moved_By_Keys) {
  Scripted_Messages messages;
  Enter_Two();
  Book(0).setFocus();
  Book(0).table().SetActiveCell(2, 1);
  QTest::keyClick(&Book(0), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Cell(0, 1, 1) + Cell(1, 1, 1) + Cell(1, 1, 2), "LeadLead34");
  EXPECT_EQ(Book(0).table().Row(), 1);
  QTest::keyClick(&Book(0), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Cell(0, 2, 1) + Cell(1, 2, 1), "LeadLead");
  EXPECT_EQ(Book(0).table().Row(), 2);
  QTest::keyClick(&Book(0), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Book(0).table().Row(), 1);
  QTest::keyClick(&Book(0), Qt::Key_Insert, Qt::AltModifier);
  EXPECT_EQ(Cell(1, 1, 1) + Cell(1, 2, 1), "Lead");
  QTest::keyClick(&Book(0), Qt::Key_Delete, Qt::AltModifier);
  EXPECT_EQ(Cell(1, 1, 1), "Lead");
  EXPECT_FALSE(Is_Grey(0, 1));
  EXPECT_EQ(Bars().Drawn().chart.bars.at(0).label, "Lead");
}

TEST_F(DiluteScreen, The_Tables_Menu_Holds_The_Commands_For_Rows) {
  Scripted_Messages messages;
  Enter_Two();
  QContextMenuEvent wish(QContextMenuEvent::Mouse, QPoint(5, 5),
                         Book(0).viewport()->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(Book(0).viewport(), &wish);
  auto* menu = Book(0).findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  QStringList last;
  for (const QAction* action : menu->actions().mid(menu->actions().size() - 4)) {
    last << action->text();
  }
  EXPECT_EQ(last.join(", "), "&Insert Rows, &Delete Rows, &Move Rows Up, Move Rows D&own");
  menu->close();
}

TEST_F(DiluteScreen, An_Inserted_First_Row_Loses_Nothing_In_Memory_Or_On_Disk) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Book(0).setFocus();
  Book(0).table().SetActiveCell(1, 1);
  QTest::keyClick(&Book(0), Qt::Key_Insert, Qt::AltModifier);
  {
    Scripted_Messages messages({Answer::Ok, Answer::No});
    Go_To(1);
    EXPECT_EQ(messages.shown.at(0).text, kNameMissing);
    const std::string saved = Read_Text(Save_List("list.DUD"));
    EXPECT_EQ(messages.shown.at(1).text, kTakeThem);
    EXPECT_NE(saved.find("\r\n    2             50\r\nCopper\r\n"), std::string::npos);
  }
  Scripted_Messages messages({Answer::Yes, Answer::Ok, Answer::No});
  Click(Button(1));
  ASSERT_NE(Screen(), nullptr);
  EXPECT_EQ(Cell(0, 3, 1), "Lead");
  Click(Button(1));
  Open();
  EXPECT_EQ(Cell(0, 1, 1) + Cell(1, 2, 1) + Cell(1, 2, 2), "CopperLead34");
}

TEST_F(DiluteScreen, Deleted_Rows_Are_Asked_For_And_Taken) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Book(0).setFocus();
  Book(0).table().SetActiveCell(1, 1);
  QTest::keyClick(&Book(0), Qt::Key_Delete, Qt::AltModifier);
  Scripted_Messages messages({Answer::Yes});
  Click(Button(1));
  EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
  EXPECT_EQ(record.DiluteRowCount, 1);
  EXPECT_EQ(record.DiluteParameterNames[1], "Lead");
  EXPECT_EQ(record.DiluteElutriate[1], 34);
}

TEST_F(DiluteScreen, Several_Rows_Are_Deleted_After_A_Question_Only) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Book(0).setFocus();
  Book(0).table().Selection("A1:A2");
  {
    Scripted_Messages messages({Answer::No});
    QTest::keyClick(&Book(0), Qt::Key_Delete, Qt::AltModifier);
    EXPECT_EQ(Cell(0, 2, 1) + Cell(1, 2, 2), "Lead34");
  }
  Scripted_Messages messages({Answer::Yes});
  QTest::keyClick(&Book(0), Qt::Key_Delete, Qt::AltModifier);
  EXPECT_EQ(Cell(0, 1, 1) + Cell(1, 1, 2), "");
}

TEST_F(DiluteScreen, The_Word_That_A_Name_Is_Missing_Undoes_Nothing) {
  {
    Scripted_Messages messages;
    Enter_Two();
  }
  Book(0).setFocus();
  Book(0).table().SetActiveCell(1, 1);
  QTest::keyClick(&Book(0), Qt::Key_Delete);
  Paste(0, 2, 1, "Zinc\t4444\t77\t33\n");
  {
    Scripted_Messages messages({Answer::Ok, Answer::Ok});
    Go_To(1);
    EXPECT_EQ(Cell(1, 2, 1) + Cell(1, 2, 3) + Cell(1, 2, 4), "Zinc7733");
    Go_To(0);
  }
  EXPECT_EQ(Cell(0, 2, 1) + Cell(0, 2, 2) + Cell(0, 2, 3), "Zinc444477");
  Scripted_Messages messages({Answer::Cancel});
  Click(Button(1));
  EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
  EXPECT_NE(Screen(), nullptr);
}

TEST_F(DiluteScreen, A_List_Whose_First_Name_Is_Empty_Is_Not_Erased_By_Opening) {
  const std::string bytes =
      "t\nt\n    2             50\n\n  1000\nZinc\n           2000             34\n";
  ASSERT_EQ(Read_Dilution_File(bytes, record), Failure::None);
  Scripted_Messages messages;
  Open();
  EXPECT_EQ(Cell(0, 1, 2) + Cell(0, 2, 1) + Cell(1, 2, 2), "1000Zinc34");
  EXPECT_EQ(record.DiluteSolidsConc, 50);
  EXPECT_EQ(record.DiluteParameterNames[2], "Zinc");
  EXPECT_EQ(Book(0).model()->index(0, 0).data(Qt::ToolTipRole).toString(),
            "A name is missing here: the list ends above");
}

TEST_F(DiluteScreen, A_Typed_Cell_Shows_What_Was_Typed) {
  Open();
  chosen = bench.folder / "other.DUD";
  Write_Text(*chosen, "t\nt\n    1             50\nZinc\n           1000\n");
  Book(0).table().Selection("A1:B2");
  Book(1).table().Selection("A1:C1");
  {
    Scripted_Messages messages({Answer::Yes});
    Click(Button(3));
    EXPECT_EQ(Book(0).table().ShownRC(1, 2), "1000.00");
    Type_Into_Cell(Book(0), 1, 3, "0.004");
    EXPECT_EQ(Book(1).table().ShownRC(1, 3), "0.004");
    Click(Button(5));
  }
  Type_Into_Cell(Book(0), 1, 2, "0.004");
  EXPECT_EQ(Book(0).model()->index(0, 1).data().toString(), "0.004");
}

TEST_F(DiluteScreen, Rows_Below_An_Empty_One_Are_Asked_For_After_A_Compute) {
  {
    Scripted_Messages messages;
    Enter_Two();
    Book(0).setFocus();
    Book(0).table().SetActiveCell(2, 1);
    QTest::keyClick(&Book(0), Qt::Key_Insert, Qt::AltModifier);
    Click(Button(0));
  }
  Scripted_Messages messages({Answer::Cancel, Answer::Yes, Answer::Ok, Answer::No});
  Save_List("list.DUD");
  EXPECT_FALSE(Exists(bench.folder / "list.DUD"));
  Click(Button(1));
  EXPECT_EQ(messages.shown.at(2).text, kNameMissing);
  ASSERT_NE(Screen(), nullptr);
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
}

TEST_F(DiluteScreen, Rows_Below_An_Empty_Name_Of_A_File_Are_Asked_For) {
  Open();
  chosen = bench.folder / "other.DUD";
  Write_Text(*chosen, "t\nt\n    3             50\nZinc\n  1000\n\n  2000\nTin\n  3000\n");
  {
    Scripted_Messages messages;
    Click(Button(3));
  }
  Scripted_Messages messages({Answer::Cancel});
  Click(Button(1));
  EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
  EXPECT_NE(Screen(), nullptr);
}

TEST_F(DiluteScreen, Rows_That_A_File_With_An_Empty_List_Leaves_Are_Asked_For) {
  {
    Scripted_Messages messages;
    Enter_Two();
    chosen = bench.folder / "empty.DUD";
    Write_Text(*chosen, "t\nt\n    0             50\n");
    Click(Button(3));
    EXPECT_EQ(Cell(0, 2, 1), "Lead");
  }
  Scripted_Messages messages({Answer::Yes});
  Click(Button(1));
  EXPECT_EQ(messages.shown.at(0).text, kTakeThem);
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_EQ(record.DiluteElutriate[2], 34);
}

TEST_F(DiluteScreen, Values_Typed_Before_Their_Name_On_Both_Tabs_Are_Taken_On_Closing) {
  Open();
  {
    Scripted_Messages messages({Answer::Ok});
    Go_To(1);
    Type_Into_Cell(Book(1), 1, 2, "55");
    Go_To(0);
  }
  Paste(0, 1, 1, "Copper\t1000\t10\t2\n");
  Scripted_Messages messages({Answer::Yes});
  Click(Button(1));
  EXPECT_EQ(Screen(), nullptr);
  EXPECT_EQ(record.DiluteBulk[1], 1000);
  EXPECT_EQ(record.DiluteElutriate[1], 55);
}

TEST_F(DiluteScreen, The_Misread_Mark_Goes_Across_With_The_Tab) {
  Open();
  {
    Scripted_Messages messages({Answer::No});
    Paste(0, 1, 1, "Copper\t<0.5\tND\t1,200\n");
  }
  Go_To(1);
  EXPECT_EQ(Book(1).NumberNoteOf(1, 3), "reads as 0");
  EXPECT_EQ(Book(1).NumberNoteOf(1, 4), "reads as 1");
  Go_To(0);
  EXPECT_EQ(Book(0).NumberNoteOf(1, 2), "reads as 0");
  EXPECT_EQ(Book(0).NumberNoteOf(1, 4), "reads as 1");
}

TEST_F(DiluteScreen, A_Change_Of_Tab_Without_A_Name_Tells_It_And_Keeps_The_Values) {
  Open();
  Type_Into_Cell(Book(0), 1, 2, "1500");
  Scripted_Messages messages({Answer::Ok});
  Go_To(1);
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Cell(0, 1, 2), "1500");
}

TEST_F(DiluteScreen, A_Paste_Beyond_Row_500_Is_Refused_Whole) {
  Open();
  Scripted_Messages messages({Answer::Ok});
  Paste(0, 500, 1, "a\t1\nb\t2\n");
  EXPECT_EQ(messages.shown.at(0).text,
            "What is to be pasted has 2 rows and 2 columns.  From the chosen cell on the table has "
            "1 row and 7 columns.  Nothing was pasted.");
  EXPECT_EQ(Cell(0, 500, 1), "");
}

// ---- The whole road

QString Rows(int count, int factor) {
  QString text;
  for (int i = 1; i <= count; ++i) {
    text += QStringLiteral("Parameter %1\t%2\t10\t2\n").arg(i).arg(i * factor);
  }
  return text;
}

class DiluteRoad : public DiluteScreen, public ::testing::WithParamInterface<int> {};

TEST_P(DiluteRoad, A_List_Is_Pasted_Computed_Saved_Reloaded_And_Reported) {
  const int count = GetParam();
  Scripted_Messages messages;
  Open();
  Enter_Solids("50");
  Paste(0, 1, 1, Rows(count, 1000));
  Go_To(1);
  Paste(1, 1, 1, Rows(count, 18));
  Go_To(0);
  Click(Button(0));
  EXPECT_EQ(record.DiluteBulkDilution[static_cast<std::size_t>(count)], (50.0 * count - 10) / 8);
  const std::string path = Save_List("list.DUD");
  const std::string bytes = Read_Text(path);
  Click(Button(1));
  Set_Dilution_Defaults(record);
  Open();
  EXPECT_EQ(Cell(0, 1, 1), "");
  Click(Button(3));
  EXPECT_EQ(record.DiluteRowCount, count);
  EXPECT_EQ(Cell(1, count, 1), "Parameter " + std::to_string(count));
  EXPECT_EQ(Cell(1, 1, 5), "1.00");  // (18 - 10) / 8
  EXPECT_EQ(Bars().Drawn().chart.bars.size(), static_cast<std::size_t>(count));
  Save_List("again.DUD");
  // The title comes back with the blanks in front of it, so it fills its columns again.
  EXPECT_EQ(Read_Text(*chosen), bytes);
  Click(Button(1));
  bench.Action("mnuToolItem(2)")->trigger();
  const std::string report = Read_Text(bench.folder / "DILUTE.OUT");
  EXPECT_EQ(std::ranges::count(report, '\n'), count + 3);
  EXPECT_NE(report.find("\r\n Parameter 1     1000          18            10            2"
                        "             5                               1"),
            std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Sizes, DiluteRoad, ::testing::Values(300, 500));

}  // namespace
}  // namespace barvon::testing

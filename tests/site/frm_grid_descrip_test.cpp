#include "site/frm_grid_descrip.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QScreen>
#include <QTest>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/field_rows.h"
#include "site/frm_description.h"
#include "site/open_site_boxes.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

/// The depth grid of a project with 12 columns and 10 rows.
class DepthScreen : public ::testing::Test {
 protected:
  DepthScreen() {
    Register_Screen(Row_Of_Screen("frmDescription"), Fresh_Screens<frmDescription>(&bench.main()));
    Register_frmGridDescrip(&bench.main());
    help_ = Set_Help_Presenter([this](const Help_Request& request) { helped.push_back(request); });
    File_Dialog_Presenter dialogs;
    dialogs.open = [this](const File_Request&) { return chosen; };
    dialogs.save = [this](const File_Request&) { return chosen; };
    dialogs_ = Set_File_Dialog_Presenter(dialogs);
    record.NMAX0 = 12;
    record.MMAX0 = 10;
    record.ConstantDepthFlag = 0;
    record.DataSaved = kTrue;
    for (int column = 1; column <= 12; ++column) {
      for (int row = 1; row <= 10; ++row) record.DepthGrid[column][row] = 20 + column + row / 10.0;
    }
  }
  ~DepthScreen() override {
    for (const char* name : {"frmGridDescrip", "frmDescription"}) {
      if (auto* screen = static_cast<Input_Screen*>(Window(name))) screen->Unload();
      Register_Screen(*Find_Screen(name), {});
    }
    Set_Help_Presenter(help_);
    Set_File_Dialog_Presenter(dialogs_);
  }

  QWidget* Window(const char* name) {
    for (auto* screen : bench.main().findChildren<QWidget*>(QLatin1String(name))) {
      if (screen->isVisible()) return screen;
    }
    return nullptr;
  }
  frmGridDescrip* Screen() { return static_cast<frmGridDescrip*>(Window("frmGridDescrip")); }
  bool Is_Open() { return Screen() != nullptr; }
  void Open() {
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmGridDescrip"), false));
    ASSERT_TRUE(Has_Keyboard(Screen()));
    *before = record;
  }
  template <class T>
  T* Child(const char* name) {
    return Screen()->findChild<T*>(QLatin1String(name));
  }
  QCheckBox* Check3D2() { return Child<QCheckBox>("Check3D2"); }
  QLineEdit* Text1() { return Child<QLineEdit>("Text1"); }
  QPushButton* Command2() { return Child<QPushButton>("Command2"); }
  F1Book* Book() { return Child<F1Book>("F1Book1"); }
  Spreadsheet_Table& Table() { return Book()->table(); }
  Depth_Map* Map() { return Child<Depth_Map>("DepthMap"); }
  /// Whether the words beside the map hold that text.
  bool Says(const char* text) {
    for (const QLabel* label : Map()->findChildren<QLabel*>()) {
      if (label->text().contains(QLatin1String(text))) return true;
    }
    return false;
  }
  QPushButton* Command1(int index) {
    return Screen()->findChild<QPushButton*>(QStringLiteral("Command1(%1)").arg(index));
  }
  void Enter(const QString& text) {
    Text1()->selectAll();
    Text1()->insert(text);
  }
  void Enter_Cell(int row, int column, const QString& text) {
    Type_Into_Cell(*Book(), row, column, text);
  }
  Names Changed() const { return Differing_Fields(*before, record); }

  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<Help_Request> helped;
  std::optional<std::string> chosen;

 private:
  Help_Presenter help_;
  File_Dialog_Presenter dialogs_;
};

TEST_F(DepthScreen, The_One_Depth_Keeps_The_Digits_That_Are_Not_Shown) {
  record.DEPTHI = 30.664;
  Open();
  EXPECT_EQ(Text1()->text(), "30.66");
  Click(Command2());
  EXPECT_EQ(Table().NumberRC(3, 7), 30.664);
  Click(Command1(0));
  EXPECT_EQ(record.DEPTHI, 30.664);
  EXPECT_EQ(record.DepthGrid[7][3], 30.664);
}

TEST_F(DepthScreen, Shows_The_Stored_Depths_Under_Its_Captions) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Variable Depth Grid");
  EXPECT_EQ(Check3D2()->text(),
            "Do you wish to initialize the depth grid to a constant non-zero value?");
  EXPECT_EQ(Text1()->accessibleName(), "Depth (ft) to be used for Initializing the Grid");
  EXPECT_EQ(Tag_Of(Text1()), "DEPTHI");
  EXPECT_EQ(Command2()->text(), "Initialize Grid");
  EXPECT_EQ(static_cast<QGroupBox*>(Book()->parentWidget())->title(),
            "Depth Grid. One Value/Gridpoint (ft)");
  EXPECT_EQ(Command1(0)->text(), "OK");
  EXPECT_EQ(Command1(1)->text(), "C&ancel");
  EXPECT_EQ(Command1(2)->text(), "&Help");
  EXPECT_FALSE(Check3D2()->isChecked());
  EXPECT_FALSE(Text1()->isEnabled());
  EXPECT_EQ(Text1()->text(), "0.00");
  EXPECT_EQ(Table().MaxCol(), 12);
  EXPECT_EQ(Table().MaxRow(), 10);
  EXPECT_EQ(Table().ColText(12), "Col 12");
  EXPECT_EQ(Table().RowText(10), "Row 10");
  EXPECT_EQ(Table().ShownRC(3, 7), "27.30");
}

TEST_F(DepthScreen, Takes_The_Size_That_Is_Typed_On_The_Open_Site_Screen) {
  record.ShowMode = 0;
  ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDescription"), false));
  auto* site = Window("frmDescription");
  site->findChild<QLineEdit*>("Text1(0)")->setText("12");
  site->findChild<QLineEdit*>("Text1(1)")->setText("20");
  Modal_Replies replies({[this](QWidget* window) {
    ASSERT_EQ(window, Screen());
    EXPECT_EQ(Table().MaxCol(), 12);
    EXPECT_EQ(Table().MaxRow(), 20);
    Click(Command1(1));
  }});
  Click(site->findChild<QPushButton*>("Command2(1)"));
}

TEST_F(DepthScreen, Stands_Over_The_Site_Screen_Whose_Cancel_Then_Restores_What_Stood_By_Then) {
  for (const std::int16_t mode : {0, 1}) {
    record.ConstantDepthFlag = 1;
    const auto define_grid = [&] {
      auto* site = static_cast<frmDescription*>(Window("frmDescription"));
      ASSERT_TRUE(Has_Keyboard(site));
      Click(site->findChild<QCheckBox*>("Check3D1(1)"));
      site->findChild<QPushButton*>("Command2(1)")->click();
      site->activateWindow();  // as the desktop does when the grid goes
      ASSERT_TRUE(Has_Keyboard(site));
      site->Command1_Click(1);
    };
    const auto look = [&](QWidget* window) {
      ASSERT_EQ(window, Screen());
      EXPECT_EQ(window->parentWidget(), Window("frmDescription")) << mode;
      Click(Command1(1));
    };
    if (mode == 0) {
      Modal_Replies replies({look});
      ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDescription"), false));
      define_grid();
    } else {
      Modal_Replies replies({[&](QWidget*) { define_grid(); }, look});
      ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDescription"), true));
    }
    EXPECT_EQ(Window("frmDescription"), nullptr);
    EXPECT_EQ(record.ConstantDepthFlag, 0) << "the box was checked when the user came back";
  }
}

TEST_F(DepthScreen, A_Size_Beyond_The_Grid_Opens_Nothing_And_Keeps_Everything) {
  ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDescription"), false));
  auto* site = Window("frmDescription");
  *before = record;
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  site->findChild<QLineEdit*>("Text1(1)")->setText("97");
  Click(site->findChild<QPushButton*>("Command2(1)"));
  EXPECT_EQ(messages.shown.at(1).text,
            "A Depth Grid Has 1 to 96 Points in the X-Direction.  Please Correct the Number of "
            "Grid Points First.");
  EXPECT_FALSE(Is_Open());
  EXPECT_TRUE(site->isVisible());
  EXPECT_EQ(site->findChild<QLineEdit*>("Text1(1)")->text(), "97");
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(DepthScreen, One_Depth_Shows_In_Every_Cell_With_The_Box_Checked) {
  record.DEPTHI = 35.5;
  Open();
  EXPECT_TRUE(Check3D2()->isChecked());
  EXPECT_TRUE(Text1()->isEnabled());
  EXPECT_EQ(Text1()->text(), "35.50");
  EXPECT_EQ(Table().ShownRC(1, 1), "35.50");
  EXPECT_EQ(Table().ShownRC(10, 12), "35.50");
}

TEST_F(DepthScreen, The_Box_Makes_Its_Depth_Available) {
  Open();
  Click(Check3D2());
  EXPECT_TRUE(Text1()->isEnabled());
  Click(Check3D2());
  EXPECT_FALSE(Text1()->isEnabled());
}

TEST_F(DepthScreen, What_Is_No_Number_Is_Told_And_The_Last_Number_Holds) {
  Open();
  Click(Check3D2());
  Enter("40");
  Modal_Replies replies({Press(QMessageBox::Ok), Press(QMessageBox::Ok)});
  Enter("40 ft");
  Enter("");
  for (const Seen_Box& box : replies.seen) {
    EXPECT_EQ(box.text, "Entry Must Be a Number");
    EXPECT_EQ(box.title, "BARVON");
    EXPECT_EQ(box.icon, QMessageBox::NoIcon);
    EXPECT_EQ(box.buttons, QMessageBox::Ok);
  }
  Click(Command2());
  EXPECT_EQ(Table().ShownRC(5, 5), "40.00");
}

TEST_F(DepthScreen, Initialize_Is_No_Edit) {
  record.DEPTHI = 35.5;
  Open();
  Enter("12");
  Click(Command2());
  EXPECT_EQ(Table().ShownRC(10, 12), "12.00");
  EXPECT_EQ(Changed(), Names{}) << "the one depth changes on OK only";
}

TEST_F(DepthScreen, Return_Behind_The_Depth_Initializes_And_Nowhere_In_The_Table_Presses_Ok) {
  Open();
  Click(Check3D2());
  Text1()->setFocus();
  Enter("12");
  QTest::keyClick(Text1(), Qt::Key_Return);
  ASSERT_TRUE(Is_Open());
  EXPECT_EQ(Table().ShownRC(10, 12), "12.00");
  Enter_Cell(10, 12, "13");
  QTest::keyClick(Book(), Qt::Key_Return);
  ASSERT_TRUE(Is_Open());
  EXPECT_EQ(record.DepthGrid[12][10], 33) << "nothing is stored yet";
  Check3D2()->setFocus();
  QTest::keyClick(Check3D2(), Qt::Key_Return);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DepthGrid[12][10], 13);
}

TEST_F(DepthScreen, Depths_That_The_Next_Opening_Would_Not_Show_Are_Told_Beside_The_Map) {
  Open();
  EXPECT_FALSE(Says("every cell"));
  Click(Check3D2());
  EXPECT_FALSE(Says("every cell")) << "0 is no depth to initialize to";
  Enter("12");
  EXPECT_TRUE(
      Says("While the box is checked, the next opening shows 12.00 ft in every cell, not "
           "these depths."));
  Click(Command2());
  EXPECT_FALSE(Says("every cell"));
  Enter_Cell(3, 3, "13");
  EXPECT_TRUE(Says("every cell"));
  EXPECT_TRUE(Says("This grid is not square"));
  Click(Check3D2());
  EXPECT_FALSE(Says("every cell"));
  EXPECT_TRUE(Says("This grid is not square"));
}

TEST_F(DepthScreen, Initialize_Without_The_Box_Does_Nothing_Without_A_Word) {
  Open();
  const Scripted_Messages none;
  Click(Check3D2());
  Enter("12");
  Click(Check3D2());
  Click(Command2());
  EXPECT_EQ(Table().ShownRC(3, 7), "27.30");
}

TEST_F(DepthScreen, An_Edit_Clears_The_One_Depth_At_Once_And_Cancel_Does_Not_Bring_It_Back) {
  record.DEPTHI = 35.5;
  Open();
  Enter_Cell(2, 2, "50");
  EXPECT_EQ(record.DEPTHI, 0);
  Click(Command1(1));
  EXPECT_EQ(Changed(), Names{"DEPTHI"});
  Open();
  EXPECT_FALSE(Check3D2()->isChecked());
  EXPECT_EQ(Table().ShownRC(2, 2), "22.20") << "the stored depth, not the edited one";
}

TEST_F(DepthScreen, Ok_Brings_The_One_Depth_Back_After_An_Edit_While_The_Box_Is_Checked) {
  record.DEPTHI = 35.5;
  Open();
  Enter_Cell(2, 2, "50");
  Click(Command1(0));
  EXPECT_EQ(record.DEPTHI, 35.5);
  EXPECT_EQ(record.DepthGrid[2][2], 50);
  EXPECT_EQ(record.DepthGrid[1][1], 35.5);
}

TEST_F(DepthScreen, A_Negative_One_Depth_Is_Shown_And_Not_Used) {
  record.DEPTHI = -5;
  Open();
  EXPECT_FALSE(Check3D2()->isChecked());
  EXPECT_FALSE(Text1()->isEnabled());
  EXPECT_EQ(Text1()->text(), "-5.00");
  EXPECT_EQ(Table().ShownRC(3, 7), "27.30");
  Click(Check3D2());
  Click(Command2());
  EXPECT_EQ(Table().ShownRC(3, 7), "27.30") << "nor does it fill the grid";
  Click(Command1(0));
  EXPECT_EQ(record.DEPTHI, -5) << "passed over without a word";
}

TEST_F(DepthScreen, Cancel_Forgets_The_Box_Its_Depth_And_The_Grid_It_Filled) {
  Open();
  Click(Check3D2());
  Enter("12");
  Click(Command2());
  Click(Command1(1));
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(DepthScreen, Clear_Cut_Paste_And_Undo_Are_Edits) {
  const std::vector<void (F1Book::*)()> commands = {&F1Book::Clear, &F1Book::Cut, &F1Book::Paste,
                                                    &F1Book::Undo};
  Open();
  double depth = 50;
  for (const auto command : commands) {
    Table().SetActiveCell(1, 1);
    Table().NumberRC(1, 1, ++depth);
    record.DEPTHI = 35.5;
    (Book()->*command)();
    EXPECT_EQ(record.DEPTHI, 0);
  }
}

TEST_F(DepthScreen, Ok_Stores_The_Table_And_Closes) {
  Open();
  Enter_Cell(10, 12, "50.25");
  Click(Command1(0));
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DepthGrid[12][10], 50.25);
  EXPECT_EQ(record.ScreenDataSupplied[3], kTrue);
  EXPECT_EQ(record.DataSaved, kFalse);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "ScreenDataSupplied", "DepthGrid"}));
}

TEST_F(DepthScreen, Ok_With_The_Box_And_0_Tells_Stores_The_Table_And_Closes) {
  Open();
  Click(Check3D2());
  Enter_Cell(1, 1, "7");
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Click(Command1(0));
  EXPECT_EQ(replies.seen.at(0).text, "Depth Cannot Be Initialized to Zero");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Critical);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DepthGrid[1][1], 7);
}

TEST_F(DepthScreen, The_Third_Command_Is_Ok_And_The_Fourth_Goes_Back_To_The_Site_Screen) {
  Open();
  Table().NumberRC(1, 1, 7);
  Screen()->Command1_Click(3);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DepthGrid[1][1], 7);
  record.ShowMode = 0;
  Open();
  Table().NumberRC(1, 1, 8);
  Screen()->Command1_Click(4);
  EXPECT_FALSE(Is_Open());
  EXPECT_NE(Window("frmDescription"), nullptr);
  EXPECT_EQ(record.DepthGrid[1][1], 7);
}

TEST_F(DepthScreen, Help_Is_The_Topic_Of_The_Depth_Grid) {
  Open();
  Click(Command1(2));
  ASSERT_EQ(helped.size(), 1u);
  EXPECT_EQ(helped[0].topic, 2530);
  EXPECT_TRUE(Is_Open());
}

TEST_F(DepthScreen, The_Focus_Brings_The_First_Cell_And_The_End_Of_Typing_Does_Not) {
  Open();
  Table().SetActiveCell(5, 5);
  Command2()->setFocus();
  QTest::keyClick(Command2(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Book());
  EXPECT_EQ(Table().Row(), 1);
  EXPECT_EQ(Table().Col(), 1);
  Enter_Cell(5, 5, "7");
  EXPECT_EQ(Table().Row(), 6);
  EXPECT_EQ(Table().Col(), 5);
}

TEST_F(DepthScreen, Depths_Are_Mapped_Live) {
  Open();
  EXPECT_EQ(Map()->Drawn().rows, 10);
  EXPECT_EQ(Map()->Drawn().columns, 12);
  EXPECT_EQ(Map()->Drawn().depths.at(2 * 12 + 6), 27.3);  // row 3, column 7
  Enter_Cell(3, 7, "44");
  EXPECT_EQ(Map()->Drawn().depths.at(2 * 12 + 6), 44);
  Book()->Undo();
  EXPECT_EQ(Map()->Drawn().depths.at(2 * 12 + 6), 27.3);
  Click(Check3D2());
  Enter("12");
  Click(Command2());
  EXPECT_TRUE(Map()->Drawn().uniform);
}

TEST_F(DepthScreen, A_Grid_That_Is_Not_Square_Says_So_Beside_Its_Map) {
  Open();
  EXPECT_TRUE(Says("This grid is not square"));
  Click(Command1(1));
  record.MMAX0 = 12;
  Open();
  EXPECT_FALSE(Says("This grid is not square"));
}

TEST_F(DepthScreen, An_Import_Is_An_Edit_That_Can_Be_Undone) {
  record.NMAX0 = 3;
  record.MMAX0 = 2;
  record.DEPTHI = 9;
  chosen = bench.folder / "depths.csv";
  Write_Text(*chosen, "1,2,3\r\n4,5,6.125\r\n");
  Open();
  Click(Child<QPushButton>("ImportGrid"));
  EXPECT_EQ(Table().NumberRC(2, 3), 6.125);
  EXPECT_EQ(Table().ShownRC(1, 2), "2.00");
  EXPECT_EQ(record.DEPTHI, 0);
  EXPECT_FALSE(Child<QCheckBox>("Check3D2")->isChecked());
  EXPECT_FALSE(Text1()->isEnabled());
  EXPECT_EQ(Map()->Drawn().depths.at(5), 6.125);
  Book()->Undo();
  EXPECT_EQ(Table().ShownRC(2, 3), "9.00");
  Book()->Redo();
  Click(Command1(0));
  EXPECT_EQ(record.DepthGrid[3][2], 6.125);
  EXPECT_EQ(record.DEPTHI, 0);
}

TEST_F(DepthScreen, A_Faulty_Import_Is_Told_With_Its_Place_And_Changes_Nothing) {
  chosen = bench.folder / "depths.csv";
  record.NMAX0 = 3;
  record.MMAX0 = 2;
  record.DEPTHI = 9;
  Open();
  for (const char* bytes : {"1,2,3\n4,deep,6\n", "1,2,3\n", "1,2\n3,4\n", ""}) {
    Write_Text(*chosen, bytes);
    Scripted_Messages messages({Answer::Ok});
    Click(Child<QPushButton>("ImportGrid"));
    ASSERT_EQ(messages.shown.size(), 1u) << bytes;
    if (std::string(bytes).find("deep") != std::string::npos) {
      EXPECT_NE(messages.shown[0].text.find("2"), std::string::npos);
    }
    EXPECT_EQ(Table().ShownRC(1, 1), "9.00");
    EXPECT_EQ(record.DEPTHI, 9);
  }
}

TEST_F(DepthScreen, What_Is_Exported_Comes_Back) {
  chosen = bench.folder / "out.csv";
  record.NMAX0 = 3;
  record.MMAX0 = 2;
  Open();
  Enter_Cell(2, 3, "6.125");
  Click(Child<QPushButton>("ExportGrid"));
  EXPECT_EQ(Read_Text(*chosen), "21.1,22.1,23.1\r\n21.2,22.2,6.125\r\n");
}

TEST_F(DepthScreen, Calling_An_Import_Or_Export_Off_Changes_Nothing) {
  record.DEPTHI = 9;
  Open();
  const Scripted_Messages none;
  Click(Child<QPushButton>("ImportGrid"));
  Click(Child<QPushButton>("ExportGrid"));
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(DepthScreen, Tab_Walks_In_Reading_Order) {
  Open();
  Click(Check3D2());
  Check3D2()->setFocus();
  const std::vector<QWidget*> order = {Check3D2(), Text1(), Command2(), Book()};
  for (std::size_t i = 1; i < order.size(); ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), order[i]) << i;
  }
  QTest::keyClick(Book(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), Map());
  const std::vector<QWidget*> buttons = {Child<QPushButton>("ImportGrid"),
                                         Child<QPushButton>("ExportGrid"), Command1(0), Command1(1),
                                         Command1(2)};
  for (QWidget* button : buttons) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), button);
  }
}

TEST_F(DepthScreen, The_Largest_Grid_Opens_As_High_As_The_Display_Allows) {
  Open();
  const int small = Screen()->height();
  Click(Command1(1));
  record.NMAX0 = record.MMAX0 = 96;
  Open();
  const int display = Screen()->screen()->availableGeometry().height();
  EXPECT_GT(Screen()->height(), small);
  EXPECT_GE(Screen()->height(), display * 92 / 100);
  EXPECT_LT(Screen()->height(), display);
  EXPECT_TRUE(Screen()->rect().contains(Command1(0)->geometry()));
  EXPECT_LE(Screen()->minimumHeight(), small) << "it can be made smaller again";
}

TEST_F(DepthScreen, The_Largest_Grid_Opens_And_Stores) {
  record.NMAX0 = record.MMAX0 = 96;
  Open();
  Enter_Cell(96, 96, "5");
  Click(Command1(0));
  EXPECT_EQ(record.DepthGrid[96][96], 5);
}

}  // namespace
}  // namespace barvon::testing

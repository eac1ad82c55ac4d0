#include "checks/frm_error_list.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QProxyStyle>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

#include "checks/check_data.h"
#include "checks/sound_project.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/help_viewer.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

struct Opened {
  std::string screen;
  bool blocking;
  std::string control;
  bool operator==(const Opened&) const = default;
};

void PrintTo(const Opened& opened, std::ostream* out) {
  *out << opened.screen << '!' << opened.control << (opened.blocking ? ", blocking" : "");
}

constexpr const char* kScreens[] = {"frmDescription", "frmOperation", "frmSimulation",
                                    "frmMdlkyn",      "frmMatHopper", "frmMatBarge"};

/// The list over a workspace, with screens that only take note of being opened.
class ErrorListScreen : public ::testing::Test {
 protected:
  ErrorListScreen() {
    workspace.setGeometry(100, 60, 900, 700);
    workspace.show();
    Register_frmErrorList(&workspace);
    for (const char* screen : kScreens) {
      Register_Screen(*Find_Screen(screen),
                      [this, screen](bool blocking, const std::string& control) {
                        opened.push_back({screen, blocking, control});
                        if (while_open) while_open();
                      });
    }
    help = Set_Help_Presenter([this](const Help_Request& request) { asked.push_back(request); });
    Project().ShowMode = 0;
    Current_Errors() = {};
  }

  ~ErrorListScreen() override {
    Set_Help_Presenter(help);
    for (const char* screen : kScreens) Register_Screen(*Find_Screen(screen), {});
    Project().ShowMode = 0;
    Current_Errors() = {};
  }

  frmErrorList& List() { return *workspace.findChild<frmErrorList*>("frmErrorList"); }
  QListWidget& List1() { return *List().findChild<QListWidget*>("List1"); }
  QListWidget& List2() { return *List().findChild<QListWidget*>("List2"); }

  void Open() {
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmErrorList"), false));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&List()));
  }

  QPoint Place_Of(int row) { return List1().visualItemRect(List1().item(row)).center(); }
  void Double_Click(QPoint place) {
    // A click goes before it, as it does under a user's hand.
    QTest::mouseClick(List1().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(List1().viewport(), Qt::LeftButton, {}, place);
  }
  void Press_Button(const char* name) {
    QTest::mouseClick(List().findChild<QPushButton*>(name), Qt::LeftButton);
  }

  QWidget workspace;
  std::vector<Opened> opened;
  std::vector<Help_Request> asked;
  std::function<void()> while_open;

 private:
  Help_Presenter help;
};

TEST_F(ErrorListScreen, Is_Made_When_It_Is_First_Asked_For_And_Stays) {
  EXPECT_EQ(workspace.findChild<frmErrorList*>(), nullptr);
  Open();
  List().close();
  const frmErrorList* const first = &List();
  Open();
  EXPECT_EQ(workspace.findChildren<frmErrorList*>().size(), 1);
  EXPECT_EQ(&List(), first);
}

TEST_F(ErrorListScreen, Shows_Its_Captions) {
  Open();
  EXPECT_EQ(List().windowTitle(), "Error List");
  EXPECT_EQ(List().findChild<QLabel*>()->text(),
            "List of Notes, Warnings && Errors.  Double Click on Error to Automatically Go To Form "
            "Where the Problem Can Be Corrected.");
  EXPECT_EQ(List().findChild<QPushButton*>("SSCommand1(0)")->text(), "&Detailed Error Description");
  EXPECT_EQ(List().findChild<QPushButton*>("SSCommand1(1)")->text(), "&Close");
}

TEST_F(ErrorListScreen, Shows_The_Messages_And_Hides_Their_References) {
  ProjectRecord record = Sound_Project();
  record.RHDA0 = 0, record.SolidVolFraction[1] = 0;
  Check_Project(record);
  Open();
  ASSERT_EQ(List1().count(), 2);
  EXPECT_EQ(List1().item(0)->text(), "Roughness Height Outside Bounds");
  EXPECT_EQ(List1().item(1)->text(), "Volumetric Fraction for Sand is Zero");
  ASSERT_EQ(List2().count(), 2);
  EXPECT_EQ(List2().item(0)->text(), "frmDescription!Text1(5)");
  EXPECT_EQ(List2().item(1)->text(), "frmMatHopper!F1Book1");
  EXPECT_TRUE(List1().isVisible());
  EXPECT_FALSE(List2().isVisible());
}

// The frame around it is not known before it is shown: a few pixels are left to it.
TEST_F(ErrorListScreen, Stands_In_The_Middle_Of_The_Workspace_Wherever_That_Is) {
  for (const QPoint corner : {QPoint(100, 60), QPoint(300, 150)}) {
    workspace.move(corner);
    Open();
    EXPECT_LE((List().geometry().center() - workspace.geometry().center()).manhattanLength(), 8);
    List().close();
  }
}

TEST_F(ErrorListScreen, A_List_Longer_Than_The_Topics_Is_Shown_In_Whole) {
  for (int i = 0; i < 300; ++i) Current_Errors().Add("entry", "frmOperation!Text1(0)", 3000);
  Open();
  EXPECT_EQ(List1().count(), 300);
  List1().setCurrentRow(19);
  Press_Button("SSCommand1(0)");
  List1().setCurrentRow(299);
  Press_Button("SSCommand1(0)");
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].topic, 3000);
  EXPECT_EQ(asked[1].topic, 0);
}

TEST_F(ErrorListScreen, F1_Is_Help_On_The_List_Itself) {
  Current_Errors().Add("entry", "frmOperation!Text1(0)", 3000);
  Open();
  ASSERT_TRUE(Has_Keyboard(&List()));
  QTest::keyClick(&List1(), Qt::Key_F1);
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].command, Help_Command::Context);
  EXPECT_EQ(asked[0].topic, 2650);
}

TEST_F(ErrorListScreen, A_Double_Click_Opens_The_Screen_Once_With_Its_Control) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Current_Errors().Add("two", "frmDescription!F1Book1");
  Current_Errors().Add("three", "frmOperation!Text1(3)");
  Current_Errors().Add("four", "frmSimulation!Text1(1)");
  Open();
  for (int row = 0; row < 4; ++row) Double_Click(Place_Of(row));
  EXPECT_EQ(opened, (std::vector<Opened>{{"frmDescription", false, "Text1(5)"},
                                         {"frmDescription", false, "F1Book1"},
                                         {"frmOperation", false, "Text1(3)"},
                                         {"frmSimulation", false, "Text1(1)"}}));
  EXPECT_TRUE(List().isVisible());
}

TEST_F(ErrorListScreen, The_Evaluation_Screen_Opens_Without_A_Control) {
  Current_Errors().Add("one", "frmMdlkyn!Text(3)");
  Open();
  Double_Click(Place_Of(0));
  EXPECT_EQ(opened, (std::vector<Opened>{{"frmMdlkyn", false, ""}}));
}

TEST_F(ErrorListScreen, A_Screen_That_Does_Not_Stand_Is_Named_In_The_Status_Area) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Register_Screen(Row_Of_Screen("frmDescription"), {});
  std::string noted;
  Port().board.show_note = [&noted](const Status_Note& note) { noted = note.text; };
  Open();
  Double_Click(Place_Of(0));
  Reset_Port();
  EXPECT_EQ(noted, "The screen frmDescription is not part of this version.");
  EXPECT_TRUE(List().isVisible());
}

TEST_F(ErrorListScreen, A_List_In_View_That_Is_Asked_For_Blocking_Blocks) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Open();
  QWidget* in_front = nullptr;
  bool visible = false;
  QTimer::singleShot(50, &List(), [&] {
    in_front = QApplication::activeModalWidget();
    visible = List().isVisible();
    Press_Button("SSCommand1(1)");
  });
  ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmErrorList"), true));
  EXPECT_EQ(in_front, &List());
  EXPECT_TRUE(visible);
  EXPECT_FALSE(List().isVisible());
}

TEST_F(ErrorListScreen, Every_Finding_Leads_To_The_Screen_And_Control_Of_Its_Reference) {
  using Change = void (*)(ProjectRecord&);
  const std::pair<Change, Opened> findings[] = {
      {[](ProjectRecord& r) { r.NMAX0 = 97; }, {"frmDescription", false, "Text1(0)"}},
      {[](ProjectRecord& r) { r.MMAX0 = 97; }, {"frmDescription", false, "Text1(1)"}},
      // A negative spacing moves the edges of the grid as well; its own finding is the first, and
      // leads to the field behind its own.
      {[](ProjectRecord& r) { r.DZ0 = -20; }, {"frmDescription", false, "Text1(3)"}},
      {[](ProjectRecord& r) { r.DX0 = -10; }, {"frmDescription", false, "Text1(4)"}},
      {[](ProjectRecord& r) { r.RHDA0 = 0.06; }, {"frmDescription", false, "Text1(5)"}},
      {[](ProjectRecord& r) { r.DEPC0 = 0; }, {"frmDescription", false, "F1Book1"}},
      {[](ProjectRecord& r) { r.Densities[2] = 0; }, {"frmDescription", false, "F1Book1"}},
      {[](ProjectRecord& r) { r.SiteTop = 601; }, {"frmMdlkyn", false, ""}},
      {[](ProjectRecord& r) { r.SiteLeft = 201; }, {"frmMdlkyn", false, ""}},
      {[](ProjectRecord& r) { r.SiteBottom = 201; }, {"frmMdlkyn", false, ""}},
      {[](ProjectRecord& r) { r.SiteRight = 601; }, {"frmMdlkyn", false, ""}},
      {[](ProjectRecord& r) { r.KEY3 = 2; }, {"frmMdlkyn", false, ""}},
      {[](ProjectRecord& r) { r.KEY3 = 5, r.SiteTop = r.SiteLeft = 10; }, {"frmMdlkyn", false, ""}},
      {[](ProjectRecord& r) { r.DEPC0 = 61; }, {"frmDescription", false, "Text1(4)"}},
      {[](ProjectRecord& r) { r.ZBARGE = -1; }, {"frmOperation", false, "Text1(0)"}},
      {[](ProjectRecord& r) { r.BINL = 0; }, {"frmOperation", false, "Text1(2)"}},
      {[](ProjectRecord& r) { r.BINW = 0; }, {"frmOperation", false, "Text1(3)"}},
      {[](ProjectRecord& r) { r.DisposalMethod = 3, r.BargeLength = 0; },
       {"frmOperation", false, "Text1(2)"}},
      {[](ProjectRecord& r) { r.DisposalMethod = 3, r.BargeWidth = 0; },
       {"frmOperation", false, "Text1(3)"}},
      {[](ProjectRecord& r) { r.SimulationDuration = 0; }, {"frmSimulation", false, "Text1(0)"}},
      {[](ProjectRecord& r) { r.LongTermTimeStep = 0; }, {"frmSimulation", false, "Text1(1)"}},
      {[](ProjectRecord& r) { r.AnalysisType = 2, r.SimulationDuration = 144001; },
       {"frmSimulation", false, "Text1(0)"}},
      {[](ProjectRecord& r) { r.AnalysisType = 3, r.SimulationDuration = 36001; },
       {"frmSimulation", false, "Text1(0)"}},
      {[](ProjectRecord& r) { r.LongTermTimeStep = 1800; }, {"frmSimulation", false, "Text1(1)"}},
  };
  Open();
  for (const auto& [change, target] : findings) {
    ProjectRecord record = Sound_Project();
    change(record);
    Check_Project(record);
    ASSERT_GE(List1().count(), 1);
    opened.clear();
    Double_Click(Place_Of(0));
    EXPECT_EQ(opened, std::vector<Opened>{target}) << List1().item(0)->text().toStdString();
  }
}

TEST_F(ErrorListScreen, Material_Findings_And_References_Without_A_Mark_Do_Nothing) {
  Current_Errors().Add("one", "frmMatHopper!F1Book1");
  Current_Errors().Add("two", "frmMatBarge!F1Book1");
  Current_Errors().Add("three", "frmDescription");
  Current_Errors().Add("four", "");
  Open();
  for (int row = 0; row < 4; ++row) Double_Click(Place_Of(row));
  EXPECT_TRUE(opened.empty());
  EXPECT_TRUE(List().isVisible());
}

TEST_F(ErrorListScreen, A_Double_Click_Below_The_Findings_Does_Nothing) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Open();
  Double_Click(List1().viewport()->rect().bottomLeft() + QPoint(5, -5));
  EXPECT_TRUE(opened.empty());
}

/// A desktop on which one click opens what lies in a list.
struct Single_Click_Style : QProxyStyle {
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ItemView_ActivateItemOnSingleClick
               ? 1
               : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

TEST_F(ErrorListScreen, One_Click_Only_Selects_Whatever_The_Desktop_Does_Elsewhere) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Single_Click_Style style;
  Open();
  List1().setStyle(&style);
  QTest::mouseClick(List1().viewport(), Qt::LeftButton, {}, Place_Of(0));
  EXPECT_TRUE(opened.empty());
  EXPECT_EQ(List1().currentRow(), 0);
  Double_Click(Place_Of(0));
  EXPECT_EQ(opened.size(), 1U);
  List1().setStyle(nullptr);
}

TEST_F(ErrorListScreen, Return_Opens_The_Selected_Finding_Without_A_Mouse) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Current_Errors().Add("two", "frmOperation!Text1(2)");
  Open();
  QTest::keyClick(&List1(), Qt::Key_Return);
  EXPECT_TRUE(opened.empty()) << "nothing is selected yet";
  List1().setCurrentRow(1);
  QTest::keyClick(&List1(), Qt::Key_Return);
  QTest::keyClick(&List1(), Qt::Key_Enter, Qt::KeypadModifier);
  const Opened second = {"frmOperation", false, "Text1(2)"};
  EXPECT_EQ(opened, (std::vector<Opened>{second, second}));
}

TEST_F(ErrorListScreen, Keys_Alone_Reach_The_First_Finding_And_The_Next) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Current_Errors().Add("two", "frmOperation!Text1(2)");
  Open();
  EXPECT_EQ(List().focusWidget(), &List1());
  QTest::keyClick(&List1(), Qt::Key_Down);
  QTest::keyClick(&List1(), Qt::Key_Return);
  QTest::keyClick(&List1(), Qt::Key_Down);
  QTest::keyClick(&List1(), Qt::Key_Return);
  EXPECT_EQ(opened, (std::vector<Opened>{{"frmDescription", false, "Text1(5)"},
                                         {"frmOperation", false, "Text1(2)"}}));
}

TEST_F(ErrorListScreen, The_Description_Opens_The_Topic_Of_The_Selected_Finding) {
  ProjectRecord record = Sound_Project();
  record.RHDA0 = 0, record.SolidVolFraction[1] = 0, record.SimulationDuration = 0;
  Check_Project(record);
  Open();
  for (int row = 0; row < 3; ++row) {
    List1().setCurrentRow(row);
    Press_Button("SSCommand1(0)");
  }
  ASSERT_EQ(asked.size(), 3U);
  EXPECT_EQ(asked[0].topic, 0) << "site rules have none";
  EXPECT_EQ(asked[1].topic, 2490);
  EXPECT_EQ(asked[2].topic, 3000);
  for (const Help_Request& request : asked) EXPECT_EQ(request.command, Help_Command::Context);
}

TEST_F(ErrorListScreen, The_Description_Of_Nothing_Selected_Says_What_To_Do) {
  Current_Errors().Add("one", "frmSimulation!Text1(0)", 3000);
  Open();
  Scripted_Messages messages({Answer::Ok});
  Press_Button("SSCommand1(0)");
  EXPECT_TRUE(asked.empty());
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "Please choose a line of the list first: by a click, or by the arrow keys while the "
            "list has the keyboard.");
  EXPECT_TRUE(List().isVisible());
}

TEST_F(ErrorListScreen, No_Line_Looks_Chosen_Until_One_Is) {
  Current_Errors().Add("one", "frmSimulation!Text1(0)", 3000);
  for (int opening = 0; opening < 2; ++opening) {
    Open();
    ASSERT_TRUE(Has_Keyboard(&List()));
    EXPECT_EQ(List().focusWidget(), &List1());
    EXPECT_FALSE(List1().currentIndex().isValid());
    EXPECT_TRUE(List1().selectedItems().isEmpty());
    QTest::keyClick(&List1(), Qt::Key_Down);
    EXPECT_EQ(List1().currentRow(), 0);
    EXPECT_EQ(List1().selectedItems().size(), 1);
    List().close();
  }
}

TEST_F(ErrorListScreen, An_Empty_List_Has_Nothing_To_Describe) {
  Open();
  EXPECT_FALSE(List().findChild<QPushButton*>("SSCommand1(0)")->isEnabled());
  ProjectRecord record = Sound_Project();
  record.RHDA0 = 0;
  Check_Project(record);
  EXPECT_TRUE(List().findChild<QPushButton*>("SSCommand1(0)")->isEnabled());
}

TEST_F(ErrorListScreen, Close_Closes_And_It_Opens_Again_With_The_Latest_Findings) {
  Current_Errors().Add("one", "frmSimulation!Text1(0)", 3000);
  Open();
  Press_Button("SSCommand1(1)");
  EXPECT_FALSE(List().isVisible());
  Current_Errors() = {};
  Current_Errors().Add("two", "frmOperation!Text1(0)");
  Current_Errors().Add("three", "frmOperation!Text1(0)");
  Open();
  ASSERT_EQ(List1().count(), 2);
  EXPECT_EQ(List1().item(0)->text(), "two");
}

TEST_F(ErrorListScreen, A_Check_Fills_The_List_That_Stands_Open_Anew) {
  ProjectRecord record = Sound_Project();
  record.RHDA0 = 0, record.SolidVolFraction[1] = 0;
  Check_Project(record);
  Open();
  record.RHDA0 = 0.005;
  Check_Project(record);
  ASSERT_EQ(List1().count(), 1);
  EXPECT_EQ(List1().item(0)->text(), "Volumetric Fraction for Sand is Zero");
  EXPECT_EQ(List2().item(0)->text(), "frmMatHopper!F1Book1");
  Check_Project(Sound_Project());
  EXPECT_EQ(List1().count(), 0);
  EXPECT_EQ(List2().count(), 0);
}

TEST_F(ErrorListScreen, Goes_With_Its_Workspace) {
  auto second = std::make_unique<QWidget>();
  Register_frmErrorList(second.get());
  second.reset();
  EXPECT_FALSE(Open_Screen(Row_Of_Screen("frmErrorList"), false));
  Check_Project(Sound_Project());
}

TEST_F(ErrorListScreen, A_Blocking_List_Stays_While_Its_Findings_Are_Mended_One_By_One) {
  Current_Errors().Add("one", "frmDescription!Text1(5)");
  Current_Errors().Add("two", "frmOperation!Text1(2)");
  Project().ShowMode = 1;
  int screens_in_front = 0;
  while_open = [&] {
    QDialog screen(&workspace);
    QTimer::singleShot(0, &screen, [&] {
      screens_in_front += QApplication::activeModalWidget() == &screen ? 1 : 0;
      screen.accept();
    });
    screen.exec();
  };
  bool stood = false;
  QTimer::singleShot(0, &workspace, [&] {
    Double_Click(Place_Of(0));
    Double_Click(Place_Of(1));
    stood = List().isVisible();
    Press_Button("SSCommand1(1)");
    List().close();
  });
  ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmErrorList"), true));
  EXPECT_TRUE(stood);
  EXPECT_EQ(screens_in_front, 2);
  EXPECT_FALSE(List().isVisible());
  EXPECT_EQ(opened, (std::vector<Opened>{{"frmDescription", true, "Text1(5)"},
                                         {"frmOperation", true, "Text1(2)"}}));
}

}  // namespace
}  // namespace barvon::testing

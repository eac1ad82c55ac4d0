#include <gtest/gtest.h>

#include <QAccessible>
#include <QDialog>
#include <QPlainTextEdit>
#include <QTest>

#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "support/screen_support.h"
#include "support/window_walk.h"

namespace barvon {
namespace {

using testing::Main_Bench;

void Expect_Nothing_Cut_Off(const QWidget& window) {
  EXPECT_EQ(testing::Listed(testing::Cut_Off_Texts(window)), "");
}

TEST(MainLayout, Nothing_Is_Cut_Off_On_The_Data_Board_With_Long_Values) {
  Main_Bench bench;
  bench.controls().SSPanel3(0)->click();
  for (const std::int16_t key4 : {1, 2, 3, 4, 5, 6}) {
    Project().KEY4 = key4;
    Project().DisposalMethod = key4 % 2 == 1 ? 1 : 3;
    Project().JBFCFlag = 1;
    Project().TotalVolume = 1234567.5;
    Project().XBARGE = 98765.5;
    Project().ConstantDepthFlag = key4 < 4 ? 0 : 1;
    Project().DEPC0 = 123.45;
    Project().DX0 = Project().DZ0 = 1234;
    Project().RHDA0 = 0.0051;
    Project().SimulationDuration = 1234567.5;
    Project().LongTermTimeStep = 1234567.5;
    Port().board.display_data();
    for (int evaluation = 0; evaluation < (key4 < 3 ? 2 : 3); ++evaluation) {
      bench.controls().SSOption4(evaluation)->click();
      QCoreApplication::processEvents();
      Expect_Nothing_Cut_Off(bench.main());
      EXPECT_EQ(testing::Listed(testing::Shortened_Texts(bench.main())), "");
    }
  }
}

TEST(MainLayout, A_Value_Beyond_Its_Frame_Is_Shortened_And_Moves_Nothing) {
  Main_Bench bench;
  bench.controls().SSPanel3(0)->click();
  QCoreApplication::processEvents();
  const QRect place = bench.Child<QGroupBox>("Frame3D10")->geometry();
  Project().TotalVolume = 1e60;
  Project().DX0 = 1e60;
  Port().board.display_data();
  QCoreApplication::processEvents();
  EXPECT_EQ(bench.Child<QGroupBox>("Frame3D10")->geometry(), place);
  EXPECT_TRUE(bench.controls().Matlabel(3)->Is_Cut());
  Expect_Nothing_Cut_Off(bench.main());
}

TEST(MainLayout, Nothing_Is_Cut_Off_While_A_Program_Runs_And_A_Long_Remark_Stands) {
  Main_Bench bench;
  Port().run.state(true, "/opt/barvon/merak32");
  Port().board.show_note({std::string(400, 'w'), "details"});
  QCoreApplication::processEvents();
  Expect_Nothing_Cut_Off(bench.main());
  EXPECT_EQ(bench.main().size(), QSize(627, 735));
}

TEST(MainLayout, Tab_Walks_In_Reading_Order) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  std::vector<QWidget*> order = {bench.controls().Title_Box,    bench.controls().SSCheck1,
                                 bench.controls().SSRibbon1(4), bench.controls().SSOption1(0),
                                 bench.controls().SSOption2(0), bench.controls().SSRibbon2(3)};
  for (const int i : {0, 8, 1, 7, 2, 4, 9, 3, 6, 5}) order.push_back(bench.controls().SSPanel3(i));
  bench.main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.main()));
  order.front()->setFocus();
  for (std::size_t i = 1; i < order.size(); ++i) {
    QTest::keyClick(bench.main().focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(bench.main().focusWidget(), order[i]) << i;
  }
}

TEST(MainLayout, Tab_Walks_The_Data_Board_In_Reading_Order) {
  Main_Bench bench;
  auto& c = bench.controls();
  c.SSOption1(1)->click();
  c.SSPanel3(0)->click();
  std::vector<QWidget*> order = {c.SSOption3(1), c.SSOption4(0), c.SSCheck2(0),  c.SSCheck2(1),
                                 c.SSCheck2(2),  c.SSPanel5(0),  c.SSPanel5(1),  c.SSPanel5(2),
                                 c.SSCheck4,     c.SSRibbon1(2), c.SSRibbon1(5), c.Option3D1(0),
                                 c.Check3D1,     c.SSRibbon1(1), c.SSRibbon1(0), c.SSCheck3,
                                 c.SSRibbon1(3)};
  for (const int i : {0, 8, 1, 7, 2, 4, 9, 3, 6, 5}) order.push_back(c.SSPanel3(i));
  bench.main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.main()));
  order.front()->setFocus();
  for (std::size_t i = 1; i < order.size(); ++i) {
    QTest::keyClick(bench.main().focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(bench.main().focusWidget(), order[i])
        << i << bench.main().focusWidget()->objectName().toStdString();
  }
}

TEST(MainLayout, Tab_Walks_On_To_The_Status_Line_And_The_Toolbar) {
  Main_Bench bench;
  Port().run.state(true, "/opt/barvon/merak32");
  bench.main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.main()));
  bench.controls().SSPanel3(5)->setFocus();
  QTest::keyClick(bench.main().focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(bench.main().focusWidget(), bench.Child<QPushButton>("StopRun"));
  for (const int tool : {1, 2, 3, 5, 6, 8, 9, 11}) {
    QTest::keyClick(bench.main().focusWidget(), Qt::Key_Tab);
    QAction* action = bench.Action(qPrintable(QString("Toolbar1(%1)").arg(tool)));
    EXPECT_EQ(bench.main().focusWidget(), bench.controls().Toolbar1->widgetForAction(action));
  }
  QTest::keyClick(bench.main().focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(bench.main().focusWidget(), bench.controls().Title_Box);
}

TEST(MainLayout, The_Title_Has_The_Focus_First_And_A_Click_On_The_Toolbar_Leaves_It_There) {
  Main_Bench bench;
  bench.main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.main()));
  EXPECT_EQ(bench.main().focusWidget(), bench.controls().Title_Box);
  QWidget* check = bench.controls().Toolbar1->widgetForAction(bench.Action("Toolbar1(9)"));
  QTest::mouseClick(check, Qt::LeftButton);
  EXPECT_EQ(bench.main().focusWidget(), bench.controls().Title_Box);
}

QString Read_Out(QWidget* control) {
  return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
}

TEST(MainLayout, A_Category_Is_Read_Out_With_Its_State) {
  Main_Bench bench;
  auto& c = bench.controls();
  EXPECT_EQ(Read_Out(c.Text2(0)), "Program Options: Data Not Entered");
  EXPECT_EQ(Read_Out(c.Text2(5)), "Coefficients: Default Coefficients Used");
  Port().board.set_status_line(3, kDataSupplied, Status_Colour::Blue);
  EXPECT_EQ(Read_Out(c.Text2(3)), "Material Description: Data Supplied");
}

TEST(MainLayout, A_Remark_Is_Read_Out_Whole) {
  Main_Bench bench;
  const std::string remark = "remark " + std::string(400, 'w');
  Port().board.show_note({remark, ""});
  EXPECT_EQ(Read_Out(bench.Child<QLabel>("StatusNote")).toStdString(), remark);
}

TEST(MainLayout, A_Remark_That_Is_Cut_Can_Be_Read_In_Whole_Without_A_Mouse) {
  Main_Bench bench;
  Port().board.show_note({std::string(400, 'w'), ""});
  EXPECT_TRUE(bench.Child<QPushButton>("StatusDetails")->isVisible());
  Port().board.show_note({"short", ""});
  EXPECT_FALSE(bench.Child<QPushButton>("StatusDetails")->isVisible());
}

TEST(MainLayout, A_Long_Remark_Is_Shortened_And_Its_Details_Are_At_Hand) {
  Main_Bench bench;
  Port().board.show_note({"short", ""});
  QCoreApplication::processEvents();
  auto* note = dynamic_cast<Elided_Label*>(bench.Child<QLabel>("StatusNote"));
  ASSERT_NE(note, nullptr);
  EXPECT_FALSE(note->Is_Cut());
  EXPECT_FALSE(bench.Child<QPushButton>("StatusDetails")->isVisible());
  Port().board.show_note({std::string(400, 'w'), "last line\nof the program"});
  QCoreApplication::processEvents();
  EXPECT_TRUE(note->Is_Cut());
  EXPECT_EQ(note->text().size(), 400);
  ASSERT_TRUE(bench.Child<QPushButton>("StatusDetails")->isVisible());
  bench.Child<QPushButton>("StatusDetails")->click();
  auto* dialog = bench.Child<QDialog>("StatusDetailsDialog");
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->findChild<QPlainTextEdit*>("Text1")->toPlainText(),
            "last line\nof the program");
  dialog->close();
}

}  // namespace
}  // namespace barvon

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialog>
#include <QPlainTextEdit>
#include <QTest>

#include "core/project_record.h"
#include "core/workspace_port.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using testing::Main_Bench;

/// Every text in view has the room that it asks for, inside its window.
void Expect_Nothing_Cut_Off(const QWidget& window) {
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    if (!control->isVisible() || dynamic_cast<const Elided_Label*>(control) != nullptr) continue;
    const std::string name = control->objectName().toStdString();
    const auto* label = qobject_cast<const QLabel*>(control);
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const auto* frame = qobject_cast<const QGroupBox*>(control);
    if (label != nullptr && label->wordWrap()) {
      EXPECT_GE(control->height(), label->heightForWidth(control->width())) << name;
    } else if (label != nullptr || (button != nullptr && !button->text().isEmpty())) {
      EXPECT_GE(control->width(), control->sizeHint().width()) << name;
      EXPECT_GE(control->height(), control->sizeHint().height()) << name;
    }
    if (frame != nullptr) {
      EXPECT_GE(control->width(), control->minimumSizeHint().width()) << name;
      EXPECT_GE(control->height(), control->minimumSizeHint().height()) << name;
    }
    if (label == nullptr && button == nullptr && frame == nullptr) continue;
    const QRect place(control->mapTo(&window, QPoint(0, 0)), control->size());
    EXPECT_TRUE(window.rect().contains(place)) << name;
  }
}

TEST(MainLayout, Nothing_Is_Cut_Off_On_The_Main_Menu_Board) {
  Main_Bench bench;
  Expect_Nothing_Cut_Off(bench.main());
}

TEST(MainLayout, Nothing_Is_Cut_Off_On_The_Data_Board_With_Long_Values) {
  Main_Bench bench;
  bench.controls().SSPanel3(0)->click();
  for (const std::int16_t key4 : {1, 2, 3, 4, 5, 6}) {
    Project().KEY4 = key4;
    Project().DisposalMethod = key4 % 2 == 1 ? 1 : 3;
    Project().JBFCFlag = 1;
    Project().TotalVolume = 123456;
    Project().XBARGE = 98765.5;
    Project().ConstantDepthFlag = key4 < 4 ? 0 : 1;
    Project().DEPC0 = 123.45;
    Project().DX0 = Project().DZ0 = 1234;
    Project().RHDA0 = 0.0051;
    Project().SimulationDuration = 123456.5;
    Port().display_data();
    for (int evaluation = 0; evaluation < (key4 < 3 ? 2 : 3); ++evaluation) {
      bench.controls().SSOption4(evaluation)->click();
      QCoreApplication::processEvents();
      Expect_Nothing_Cut_Off(bench.main());
      for (const QLabel* label : bench.controls().Frame3D2->findChildren<QLabel*>()) {
        const auto* line = dynamic_cast<const Elided_Label*>(label);
        EXPECT_TRUE(line == nullptr || !line->Is_Cut()) << label->text().toStdString();
      }
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
  Port().display_data();
  QCoreApplication::processEvents();
  EXPECT_EQ(bench.Child<QGroupBox>("Frame3D10")->geometry(), place);
  EXPECT_TRUE(bench.controls().Matlabel(3)->Is_Cut());
  Expect_Nothing_Cut_Off(bench.main());
}

TEST(MainLayout, Nothing_Is_Cut_Off_While_A_Program_Runs_And_A_Long_Remark_Stands) {
  Main_Bench bench;
  Port().run_state(true, "/opt/barvon/merak32");
  Port().show_note({std::string(400, 'w'), "details"});
  QCoreApplication::processEvents();
  Expect_Nothing_Cut_Off(bench.main());
  EXPECT_EQ(bench.main().size(), QSize(627, 735));
}

TEST(MainLayout, Tab_Walks_In_Reading_Order) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  std::vector<QWidget*> order = {bench.controls().Title_Box, bench.controls().SSRibbon1(4),
                                 bench.controls().SSOption1(0), bench.controls().SSOption2(0),
                                 bench.controls().SSRibbon2(3)};
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
  std::vector<QWidget*> order = {c.SSOption3(1), c.SSOption4(0), c.SSPanel5(0),  c.SSPanel5(1),
                                 c.SSPanel5(2),  c.SSCheck4,     c.SSRibbon1(2), c.SSRibbon1(5),
                                 c.Option3D1(0), c.Check3D1,     c.SSRibbon1(1), c.SSRibbon1(0),
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

TEST(MainLayout, Every_Control_That_Takes_The_Focus_Has_A_Name_To_Be_Read_Out) {
  Main_Bench bench;
  for (const QWidget* control : bench.main().findChildren<QWidget*>()) {
    if ((control->focusPolicy() & Qt::TabFocus) == 0) continue;
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const bool named =
        !control->accessibleName().isEmpty() || (button && !button->text().isEmpty());
    EXPECT_TRUE(named) << control->objectName().toStdString();
  }
  const auto* label = bench.Child<QLabel>("Label1");
  EXPECT_EQ(label->buddy(), bench.controls().Title_Box);
}

TEST(MainLayout, A_Remark_That_Is_Cut_Can_Be_Read_In_Whole_Without_A_Mouse) {
  Main_Bench bench;
  Port().show_note({std::string(400, 'w'), ""});
  EXPECT_TRUE(bench.Child<QPushButton>("StatusDetails")->isVisible());
  Port().show_note({"short", ""});
  EXPECT_FALSE(bench.Child<QPushButton>("StatusDetails")->isVisible());
}

TEST(MainLayout, A_Long_Remark_Is_Shortened_And_Its_Details_Are_At_Hand) {
  Main_Bench bench;
  Port().show_note({"short", ""});
  QCoreApplication::processEvents();
  auto* note = dynamic_cast<Elided_Label*>(bench.Child<QLabel>("StatusNote"));
  ASSERT_NE(note, nullptr);
  EXPECT_FALSE(note->Is_Cut());
  EXPECT_FALSE(bench.Child<QPushButton>("StatusDetails")->isVisible());
  Port().show_note({std::string(400, 'w'), "last line\nof the program"});
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

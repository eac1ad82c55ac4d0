#include <gtest/gtest.h>

#include <QTest>

#include "core/desk/help_topics.h"
#include "core/project_record.h"
#include "platform/ask/help_viewer.h"
#include "support/screen_support.h"
#include "workspace/main_boards.h"

namespace barvon {
namespace {

using testing::Has_Keyboard;
using testing::Main_Bench;

/// The main window with help that only writes down what it is asked for.
class MainHelp : public ::testing::Test {
 protected:
  using Asked = std::vector<std::pair<Help_Command, int>>;

  MainHelp() {
    former_ = Set_Help_Presenter([this](const Help_Request& request) {
      asked.emplace_back(request.command, request.topic);
    });
    c.SSOption1(1)->click();
    asked.clear();
  }
  ~MainHelp() override { Set_Help_Presenter(former_); }

  /// What the Help button asks for while the control has the focus.
  Asked Help_On(QWidget* control) {
    asked.clear();
    control->setFocus();
    QTest::mouseClick(c.SSPanel3(6), Qt::LeftButton);
    EXPECT_EQ(bench.main().focusWidget(), control);
    return asked;
  }

  Asked F1_On(QWidget* control) {
    asked.clear();
    control->setFocus();
    QTest::keyClick(control, Qt::Key_F1);
    return asked;
  }

  static Asked Page(int topic) { return {{Help_Command::Context, topic}}; }
  static Asked Contents() { return {{Help_Command::Index, 0}}; }

  Main_Bench bench;
  Main_Controls& c = bench.controls();
  Asked asked;

 private:
  Help_Presenter former_;
};

TEST_F(MainHelp, Without_A_Topic_Of_The_Active_Control_Help_Begins_With_Its_Contents) {
  EXPECT_EQ(Help_On(c.Title_Box), Contents());
  EXPECT_EQ(Help_On(c.SSPanel3(1)), Contents());
  EXPECT_EQ(Project().HelpContextToShow, 0);
}

TEST_F(MainHelp, The_Button_Asks_For_The_Topic_Of_The_Active_Control) {
  EXPECT_EQ(Help_On(c.SSRibbon1(4)), Page(2590));
  EXPECT_EQ(Help_On(c.SSRibbon2(3)), Page(2590));
  EXPECT_EQ(Help_On(c.SSOption1(1)), Page(help_topic::kMainWindow));
  EXPECT_EQ(Help_On(c.SSOption2(0)), Page(help_topic::kMainWindow));
  Show_Data_Board(c);
  const std::pair<QWidget*, int> topics[] = {
      {c.SSRibbon1(0), 2460}, {c.SSRibbon1(1), 2470}, {c.SSRibbon1(2), 2490},
      {c.SSRibbon1(3), 2500}, {c.SSRibbon1(5), 3030}, {c.SSPanel5(0), 2510},
      {c.SSPanel5(1), 2540},  {c.SSPanel5(2), 3000},  {c.SSOption4(0), 2540},
      {c.Option3D1(0), 2470}, {c.Check3D1, 2470},     {c.SSCheck4, 2490},
      {c.SSCheck2(0), 3000},  {c.SSCheck3, 2500},     {c.SSOption3(1), help_topic::kMainWindow}};
  for (const auto& [control, topic] : topics) {
    EXPECT_EQ(Help_On(control), Page(topic)) << control->objectName().toStdString();
    EXPECT_EQ(Project().HelpContextToShow, topic);
  }
}

TEST_F(MainHelp, Help_On_The_Material_Is_That_Of_The_Vessel) {
  c.SSOption2(1)->click();
  Show_Data_Board(c);
  EXPECT_EQ(Help_On(c.SSRibbon1(2)), Page(2550));
  EXPECT_EQ(Help_On(c.SSCheck4), Page(2550));
}

TEST_F(MainHelp, A_Mouse_Over_The_Button_Takes_The_Topic_Before_The_Click) {
  Show_Data_Board(c);
  c.SSRibbon1(0)->setFocus();
  QTest::mouseMove(c.SSPanel3(6));
  EXPECT_EQ(Project().HelpContextToShow, 2460);
  EXPECT_TRUE(asked.empty());
}

TEST_F(MainHelp, F1_Is_Help_On_The_Control_That_Has_The_Keyboard) {
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  EXPECT_EQ(F1_On(c.Title_Box), Contents());
  Show_Data_Board(c);
  EXPECT_EQ(F1_On(c.SSRibbon1(1)), Page(2470));
  EXPECT_EQ(F1_On(c.SSPanel3(0)), Contents());
}

TEST_F(MainHelp, The_Menu_And_The_Toolbar_Open_The_Finder_And_The_Index) {
  bench.Action("mnuHelpItem(0)")->trigger();
  bench.Action("Toolbar1(11)")->trigger();
  bench.Action("mnuHelpItem(1)")->trigger();
  EXPECT_EQ(
      asked,
      (Asked{{Help_Command::Finder, 0}, {Help_Command::Finder, 0}, {Help_Command::PartialKey, 0}}));
}

}  // namespace
}  // namespace barvon

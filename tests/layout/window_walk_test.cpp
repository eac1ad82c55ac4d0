#include "support/window_walk.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

#include "platform/qt/elided_label.h"

namespace barvon::testing {
namespace {

/// A window whose faults are made on purpose: what looks for faults must find each of them.
class WindowWalk : public ::testing::Test {
 protected:
  WindowWalk() { window.resize(500, 400); }

  template <class T>
  T* Put(T* control, int x, int y) {
    control->setParent(&window);
    control->move(x, y);
    control->resize(control->sizeHint());
    return control;
  }
  void Show() {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  QMainWindow window;
};

TEST_F(WindowWalk, A_Sound_Window_Gives_No_Complaint) {
  auto* label = Put(new QLabel("&Name"), 10, 40);
  auto* field = Put(new QLineEdit, 100, 40);
  label->setBuddy(field);
  Put(new QPushButton("&Go on"), 10, 100);
  Put(new QRadioButton("one"), 10, 150);
  Put(new QRadioButton("two"), 10, 200);
  Show();
  EXPECT_EQ(Listed(Cut_Off_Texts(window)), "");
  EXPECT_EQ(Listed(Shortened_Texts(window)), "");
  EXPECT_EQ(Listed(Clashing_Keys(window)), "");
  EXPECT_EQ(Listed(Unreached_Controls(window)), "");
  EXPECT_EQ(Listed(Unnamed_Controls(window)), "");
}

TEST_F(WindowWalk, Options_In_Several_Frames_Are_One_Group_When_They_Are_Told_To_Be) {
  auto* group = new QButtonGroup(&window);
  for (const int x : {10, 200}) {
    auto* frame = Put(new QFrame, x, 40);
    auto* option = new QRadioButton("an option", frame);
    group->addButton(option);
    frame->resize(option->sizeHint());
  }
  group->buttons().first()->setChecked(true);
  Show();
  EXPECT_EQ(Listed(Unreached_Controls(window)), "");
}

TEST_F(WindowWalk, Finds_A_Text_Without_Its_Room) {
  auto* label = Put(new QLabel("a text of some length"), 10, 40);
  auto* button = Put(new QPushButton("a button of some length"), 10, 80);
  auto* box = Put(new QCheckBox("a box"), 10, 120);
  auto* words = Put(new QLabel("several words that need more than one line"), 10, 160);
  words->setWordWrap(true);
  auto* frame = Put(new QGroupBox("a frame with a title"), 10, 300);
  Show();
  label->resize(label->width() - 1, label->height());
  button->resize(button->width() - 1, button->height());
  box->resize(box->width(), box->height() - 1);
  words->resize(100, words->fontMetrics().height());
  frame->resize(frame->minimumSizeHint().width() - 1, 60);
  EXPECT_EQ(Cut_Off_Texts(window).size(), 5U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_What_Reaches_Out_Of_Its_Place) {
  Put(new QLabel("beyond the edge"), 480, 40);
  Show();
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_What_Reaches_Out_Of_What_Scrolls) {
  const auto scrolled = [](int left) {
    auto* held = new QWidget;
    held->setFixedSize(300, 300);
    auto* label = new QLabel("in an area", held);
    label->move(left, 200);
    auto* area = new QScrollArea;
    area->setWidget(held);
    return area;
  };
  Put(scrolled(10), 10, 40)->resize(150, 150);    // to be had by scrolling
  Put(scrolled(280), 200, 40)->resize(150, 150);  // beyond what the area holds
  Show();
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_What_Is_Not_To_Be_Had_By_Scrolling) {
  auto* held = new QWidget;
  held->setFixedSize(900, 900);
  (new QLabel("never seen", held))->move(10, 10);
  auto* area = new QScrollArea;
  area->setWidget(held);
  Put(area, 10, 40)->resize(150, 150);
  Show();
  area->horizontalScrollBar()->setRange(0, 0);
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_What_Lies_On_Another) {
  Put(new QLabel("below"), 10, 40);
  Put(new QLabel("above"), 12, 42);
  Show();
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_A_Bar_That_Hides_Commands) {
  auto* tools = window.addToolBar("tools");
  for (int i = 0; i < 40; ++i) tools->addAction(QString("command %1").arg(i));
  Show();
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_A_Tab_Out_Of_View) {
  auto* tabs = Put(new QTabBar, 10, 40);
  for (int i = 0; i < 20; ++i) tabs->addTab(QString("a tab named %1").arg(i));
  tabs->resize(300, tabs->sizeHint().height());
  Show();
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_A_Column_Without_Its_Room) {
  auto* tree = Put(new QTreeWidget, 10, 40);
  tree->setColumnCount(2);
  tree->addTopLevelItem(new QTreeWidgetItem({"a", "a text of some length"}));
  tree->header()->setStretchLastSection(false);
  tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  Show();
  EXPECT_EQ(Listed(Cut_Off_Texts(window)), "");
  tree->header()->setSectionResizeMode(QHeaderView::Fixed);
  tree->setColumnWidth(1, 60);
  EXPECT_EQ(Cut_Off_Texts(window).size(), 1U) << Listed(Cut_Off_Texts(window));
}

TEST_F(WindowWalk, Finds_A_Shortened_Line) {
  auto* line = Put(new Elided_Label, 10, 40);
  line->setText("a line of some length");
  line->resize(20, 20);
  Show();
  EXPECT_EQ(Shortened_Texts(window).size(), 1U);
}

TEST_F(WindowWalk, Finds_A_Letter_With_Two_Meanings) {
  window.menuBar()->addMenu("&File");
  window.menuBar()->addMenu("&Window")->menuAction()->setVisible(false);
  Put(new QPushButton("&Fetch"), 10, 40);
  Put(new QPushButton("&Wizard"), 10, 80);
  auto* label = Put(new QLabel("&Name"), 10, 120);
  label->setBuddy(Put(new QLineEdit, 100, 120));
  Put(new QPushButton("&Next"), 10, 160);
  auto* action = new QAction("print", &window);
  action->setShortcut(QKeySequence::Print);
  window.addAction(action);
  new QShortcut(QKeySequence::Print, &window);
  Show();
  EXPECT_EQ(Clashing_Keys(window).size(), 4U) << Listed(Clashing_Keys(window));
}

TEST_F(WindowWalk, A_Letter_That_A_Caption_Shows_But_Gave_Up_Does_Not_Clash) {
  window.menuBar()->addMenu("&Help");
  Put(new QPushButton("&Help"), 10, 40)->setShortcut({});
  Show();
  EXPECT_EQ(Listed(Clashing_Keys(window)), "");
}

TEST_F(WindowWalk, A_Key_Of_Another_Window_Does_Not_Clash) {
  QWidget dialog(&window, Qt::Dialog);
  new QShortcut(QKeySequence::HelpContents, &dialog);
  new QShortcut(QKeySequence::HelpContents, &window);
  Show();
  EXPECT_EQ(Listed(Clashing_Keys(window)), "");
}

TEST_F(WindowWalk, Finds_What_Tab_Does_Not_Reach) {
  Put(new QLineEdit, 10, 40);
  Put(new QPushButton("left out"), 10, 80)->setFocusPolicy(Qt::ClickFocus);
  Put(new QPushButton("grey"), 10, 120)->setEnabled(false);
  Show();
  EXPECT_EQ(Unreached_Controls(window).size(), 1U) << Listed(Unreached_Controls(window));
}

TEST_F(WindowWalk, Finds_What_Is_Told_As_Something_Else) {
  Put(new QWidget, 10, 10)->setFocusPolicy(Qt::TabFocus);
  for (const int y : {40, 80}) Put(new QLineEdit, 10, y)->setAccessibleName("Depth");
  Put(new QPushButton("sound"), 10, 120);
  Show();
  EXPECT_EQ(Misread_Controls(window).size(), 2U) << Listed(Misread_Controls(window));
}

TEST_F(WindowWalk, Finds_A_Control_Without_A_Name) {
  Put(new QLineEdit, 10, 40);
  Put(new QPushButton, 10, 80);
  Put(new QLineEdit, 10, 120)->setAccessibleName("Depth");
  Show();
  EXPECT_EQ(Unnamed_Controls(window).size(), 2U) << Listed(Unnamed_Controls(window));
}

}  // namespace
}  // namespace barvon::testing

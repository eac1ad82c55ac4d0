#include "platform/qt/tab_pages.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <vector>

#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// Three pages with a field each, and what they told.
class TabPages : public ::testing::Test {
 protected:
  TabPages() {
    for (const char* title : {"First", "Second", "Third"}) {
      tabs.addTab(new QLineEdit(&window), QLatin1String(title));
    }
    tabs.resize(400, 200);
    window.resize(400, 200);
    QObject::connect(&tabs, &Tab_Pages::Left, &window, [this](int page) {
      left.push_back(page);
      in_front_then = tabs.currentIndex();
    });
    window.show();
    EXPECT_TRUE(Has_Keyboard(&window));
  }

  void Click_Tab(int page) {
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(page).center());
  }

  QWidget window;
  Tab_Pages tabs{&window};
  std::vector<int> left;
  int in_front_then = -1;
};

TEST_F(TabPages, Nothing_Is_Left_While_The_First_Page_Comes_Up) { EXPECT_TRUE(left.empty()); }

TEST_F(TabPages, A_Click_Tells_The_Page_That_Was_In_Front_When_The_Other_Is_There) {
  Click_Tab(2);
  EXPECT_EQ(left, std::vector<int>{0});
  EXPECT_EQ(in_front_then, 2);
  Click_Tab(1);
  EXPECT_EQ(left, (std::vector<int>{0, 2}));
  EXPECT_EQ(in_front_then, 1);
}

TEST_F(TabPages, A_Click_On_The_Tab_In_Front_Leaves_Nothing) {
  Click_Tab(0);
  EXPECT_TRUE(left.empty());
}

TEST_F(TabPages, Keys_Leave_A_Page_As_Well) {
  tabs.tabBar()->setFocus();
  QTest::keyClick(tabs.tabBar(), Qt::Key_Right);
  EXPECT_EQ(left, std::vector<int>{0});
  tabs.currentWidget()->setFocus();
  QTest::keyClick(tabs.currentWidget(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(left, (std::vector<int>{0, 1}));
}

TEST_F(TabPages, A_Disabled_Page_Is_Neither_Clicked_Nor_Reached_By_Keys) {
  tabs.setTabEnabled(1, false);
  Click_Tab(1);
  EXPECT_TRUE(left.empty());
  EXPECT_EQ(tabs.currentIndex(), 0);
  tabs.tabBar()->setFocus();
  QTest::keyClick(tabs.tabBar(), Qt::Key_Right);
  EXPECT_EQ(tabs.currentIndex(), 2);
  EXPECT_EQ(left, std::vector<int>{0});
  tabs.setTabEnabled(1, true);
  Click_Tab(1);
  EXPECT_EQ(left, (std::vector<int>{0, 2}));
}

TEST_F(TabPages, A_Page_That_Is_Disabled_In_Front_Gives_Way_And_Is_Told) {
  Click_Tab(1);
  tabs.setTabEnabled(1, false);
  EXPECT_NE(tabs.currentIndex(), 1);
  EXPECT_EQ(left, (std::vector<int>{0, 1}));
}

TEST_F(TabPages, What_Leads_To_A_Field_Of_Another_Page_Leaves_The_One_In_Front) {
  tabs.setCurrentIndex(2);
  EXPECT_EQ(left, std::vector<int>{0});
}

TEST_F(TabPages, A_Screen_That_Fills_Itself_Starts_At_A_Page_Mutely) {
  tabs.Start_At(2);
  EXPECT_EQ(tabs.currentIndex(), 2);
  EXPECT_TRUE(left.empty());
  Click_Tab(0);
  EXPECT_EQ(left, std::vector<int>{2}) << "afterwards it is told as ever";
}

}  // namespace
}  // namespace barvon::testing

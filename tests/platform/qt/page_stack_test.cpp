#include "platform/qt/page_stack.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace barvon::testing {
namespace {

/// Three pages whose buttons a person presses.
class PageStack : public ::testing::Test {
 protected:
  PageStack() {
    for (const char* text : {"first", "second", "third"}) {
      pages.addWidget(new QLabel(QLatin1String(text), &window));
    }
    QObject::connect(&back, &QPushButton::clicked, &pages, &Page_Stack::Go_Back);
    QObject::connect(&next, &QPushButton::clicked, &pages, &Page_Stack::Go_On);
    pages.Set_Buttons({&back, &next, &finished});
    window.show();
  }

  void Press(QPushButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
  void Expect_Enabled(bool is_back, bool is_next, bool is_finished) {
    EXPECT_EQ(back.isEnabled(), is_back);
    EXPECT_EQ(next.isEnabled(), is_next);
    EXPECT_EQ(finished.isEnabled(), is_finished);
  }

  QWidget window;
  Page_Stack pages{&window};
  QPushButton back{&window}, next{&window}, finished{&window};
};

TEST_F(PageStack, One_Page_Is_Seen_The_First_To_Begin_With) {
  for (int page = 0; page < 3; ++page) {
    EXPECT_EQ(pages.widget(page)->isVisible(), page == 0) << page;
  }
  Press(next);
  for (int page = 0; page < 3; ++page) {
    EXPECT_EQ(pages.widget(page)->isVisible(), page == 1) << page;
  }
}

TEST_F(PageStack, Back_Is_Disabled_On_The_First_Page_And_Finished_Enabled_On_The_Last) {
  Expect_Enabled(false, true, false);
  Press(next);
  Expect_Enabled(true, true, false);
  Press(next);
  EXPECT_TRUE(pages.Is_At_End());
  Expect_Enabled(true, false, true);
  Press(back);
  EXPECT_FALSE(pages.Is_At_End());
  Expect_Enabled(true, true, false);
  Press(back);
  Expect_Enabled(false, true, false);
}

TEST_F(PageStack, Where_Something_Is_Lacking_The_Last_Page_Has_Next_In_The_Place_Of_Finished) {
  pages.Set_Complete(false);
  Press(next), Press(next);
  Expect_Enabled(true, true, false);
  Press(next);
  EXPECT_EQ(pages.currentIndex(), 2) << "there is no further page";
  pages.Set_Complete(true);
  Expect_Enabled(true, false, true);
}

TEST_F(PageStack, A_Complete_Screen_Is_Finished_On_The_Last_Page_Only) {
  pages.Set_Complete(true);
  Expect_Enabled(false, true, false);
}

TEST_F(PageStack, Starts_Anew_At_The_First_Page) {
  Press(next), Press(next);
  pages.Start();
  EXPECT_EQ(pages.currentIndex(), 0);
  Expect_Enabled(false, true, false);
}

TEST_F(PageStack, Steps_Without_Buttons_Stay_Within_The_Pages) {
  Page_Stack bare(nullptr);
  bare.addWidget(new QLabel(&bare));
  bare.addWidget(new QLabel(&bare));
  bare.Go_Back();
  EXPECT_EQ(bare.currentIndex(), 0);
  bare.Go_On();
  bare.Go_On();
  EXPECT_EQ(bare.currentIndex(), 1);
}

TEST_F(PageStack, Its_Title_Counts_From_1_And_Has_Two_Blanks) {
  EXPECT_EQ(pages.Step_Text(), "Step 1 of  3");
  Press(next), Press(next);
  EXPECT_EQ(pages.Step_Text(), "Step 3 of  3");
}

}  // namespace
}  // namespace barvon::testing

#include "platform/qt/fields/tick_list.h"

#include <gtest/gtest.h>

#include <QTest>
#include <utility>
#include <vector>

#include "support/screen_support.h"

namespace barvon::testing {
namespace {

using Told = std::vector<std::pair<int, bool>>;

class TickList : public ::testing::Test {
 protected:
  TickList() {
    list.Fill({"Clay", "", "Silt"});
    QObject::connect(&list, &Tick_List::Ticked, &list, [this](int row, bool on) {
      told.emplace_back(row, on);
      EXPECT_EQ(list.Is_Ticked(row), on);
    });
    list.show();
    EXPECT_TRUE(Has_Keyboard(&list));
  }

  /// On the box, at the left end of the line.
  void Click_Box(int row) {
    const QRect line = list.visualItemRect(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      QPoint(line.left() + 10, line.center().y()));
  }

  Tick_List list{nullptr};
  Told told;
};

TEST_F(TickList, A_Click_On_The_Box_Ticks_And_Unticks_And_Is_Told) {
  Click_Box(2);
  EXPECT_EQ(told, (Told{{2, true}}));
  Click_Box(2);
  EXPECT_EQ(told, (Told{{2, true}, {2, false}}));
  EXPECT_FALSE(list.Is_Ticked(2));
}

TEST_F(TickList, A_Click_On_The_Text_Ticks_Nothing) {
  const QRect line = list.visualItemRect(list.item(0));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, line.center());
  EXPECT_TRUE(told.empty());
}

TEST_F(TickList, Space_Ticks_The_Line_That_Is_Reached_By_Keys) {
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(told, (Told{{2, true}}));
}

TEST_F(TickList, The_Programs_Own_Ticks_And_Lines_Are_Mute) {
  list.Tick(0, true);
  EXPECT_TRUE(list.Is_Ticked(0));
  EXPECT_EQ(list.item(0)->checkState(), Qt::Checked);
  list.item(0)->setText("Clay_2");
  list.Fill({"Sand", "Gravel"});
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(list.count(), 2);
  EXPECT_FALSE(list.Is_Ticked(0)) << "new lines begin without ticks";
  EXPECT_EQ(list.item(0)->checkState(), Qt::Unchecked);
}

TEST_F(TickList, After_A_Mute_Tick_The_User_Unticks_And_Is_Heard) {
  list.Tick(0, true);
  Click_Box(0);
  EXPECT_EQ(told, (Told{{0, false}}));
}

TEST_F(TickList, A_Tick_That_Is_Taken_Back_At_Once_Is_Told_Once) {
  QObject::connect(&list, &Tick_List::Ticked, &list,
                   [this](int row, bool) { list.Tick(row, false); });
  Click_Box(0);
  EXPECT_EQ(told, (Told{{0, true}}));
  EXPECT_EQ(list.item(0)->checkState(), Qt::Unchecked);
}

TEST_F(TickList, An_Empty_Line_Has_No_Box) {
  Click_Box(1);
  list.setCurrentRow(1);
  QTest::keyClick(&list, Qt::Key_Space);
  list.Tick(1, true);
  EXPECT_TRUE(told.empty());
  EXPECT_FALSE(list.Is_Ticked(1));
  EXPECT_FALSE(list.item(1)->data(Qt::CheckStateRole).isValid());
}

}  // namespace
}  // namespace barvon::testing

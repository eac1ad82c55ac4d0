#include "platform/qt/large_text_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>

namespace barvon {
namespace {

constexpr int kMargin = 4;
constexpr std::size_t kLine = 26;  // bytes of "row 00 of.some_words here\n"

struct LargeTextView : ::testing::Test {
  LargeTextView() {
    Text_Rows rows;
    for (int i = 0; i < 100; ++i) {
      rows.Add("row " + std::string(i < 10 ? "0" : "") + std::to_string(i) +
               " of.some_words here\n");
    }
    rows.Finish();
    view.Set_Rows(std::move(rows));
    view.setFixedSize(400, 12 * view.fontMetrics().lineSpacing());
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
  }

  std::size_t Rows_In_View() const {
    return static_cast<std::size_t>((view.viewport()->height() - 2 * kMargin) /
                                    view.fontMetrics().lineSpacing());
  }
  /// In front of the letter of that number, counted from 0, in a row of the view.
  QPoint At(int row, int letter) const {
    const QString line = view.Text_In_View().section('\n', row, row);
    const int height = view.fontMetrics().lineSpacing();
    return {kMargin + view.fontMetrics().horizontalAdvance(line.left(letter)),
            kMargin + row * height + height / 2};
  }
  /// Opens the menu of the right button, and does this with it.
  void With_Menu(const std::function<void(QMenu&)>& act) {
    bool came = false;
    QTimer::singleShot(0, &view, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      came = true;
      act(*menu);
      menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, At(0, 1),
                            view.viewport()->mapToGlobal(At(0, 1)));
    QApplication::sendEvent(view.viewport(), &event);
    EXPECT_TRUE(came);
  }
  QAccessibleTextInterface& Told() {
    return *QAccessible::queryAccessibleInterface(&view)->textInterface();
  }

  Large_Text_View view;
};

TEST_F(LargeTextView, Keys_Go_Down_By_Rows_And_Pages_In_The_Same_Column) {
  view.Go_To(5);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(view.Place(), kLine + 5);
  const std::size_t page = Rows_In_View();
  ASSERT_GT(page, 5U);
  QTest::keyClick(&view, Qt::Key_PageDown);
  EXPECT_EQ(view.Place(), (1 + page) * kLine + 5);
  EXPECT_EQ(view.verticalScrollBar()->value(), static_cast<int>(page));
  QTest::keyClick(&view, Qt::Key_PageUp, Qt::ShiftModifier);
  EXPECT_EQ(view.Place(), kLine + 5);
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
  EXPECT_EQ(view.Marked_Text().size(), static_cast<qsizetype>(page * kLine));
  QTest::keyClick(&view, Qt::Key_PageUp);
  EXPECT_EQ(view.Place(), 5U);
  EXPECT_EQ(view.Marked_Text(), "");
}

TEST_F(LargeTextView, The_Mouse_Marks_From_Where_It_Was_Pressed) {
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, At(0, 4));
  const auto move = [this](const QPoint& to, Qt::MouseButtons buttons) {
    QMouseEvent event(QEvent::MouseMove, to, view.viewport()->mapToGlobal(to), Qt::NoButton,
                      buttons, {});
    QApplication::sendEvent(view.viewport(), &event);
  };
  move(At(1, 3), Qt::LeftButton);
  EXPECT_EQ(view.Marked_Text(), "00 of.some_words here\nrow");
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, At(1, 3));
  move(At(0, 0), Qt::NoButton);
  EXPECT_EQ(view.Place(), kLine + 3);
}

TEST_F(LargeTextView, A_Double_Click_Marks_The_Word) {
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, At(2, 9));
  EXPECT_EQ(view.Marked_Text(), "of.some_words");
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, At(1, 25));
  EXPECT_EQ(view.Marked_Text(), "here") << "behind the line's end";
  Large_Text_View empty;
  QTest::mouseDClick(empty.viewport(), Qt::LeftButton, {}, QPoint(9, 9));
  EXPECT_EQ(empty.Marked_Text(), "");
}

TEST_F(LargeTextView, Its_Menu_Marks_And_Copies) {
  With_Menu([](const QMenu& menu) {
    ASSERT_EQ(menu.actions().size(), 2);
    EXPECT_EQ(menu.actions()[0]->text(), "&Copy");
    EXPECT_FALSE(menu.actions()[0]->isEnabled()) << "nothing is marked";
    EXPECT_EQ(menu.actions()[1]->text(), "Select &All");
    menu.actions()[1]->trigger();
  });
  EXPECT_EQ(view.Marked_Text().size(), static_cast<qsizetype>(100 * kLine));
  view.Go_To(0);
  view.Go_To(6, true);
  With_Menu([](const QMenu& menu) { menu.actions()[0]->trigger(); });
  EXPECT_EQ(QApplication::clipboard()->text(), "row 00");
}

TEST_F(LargeTextView, Assistive_Tools_Find_Letters_And_Marks_By_Their_Place) {
  const QRect letter = Told().characterRect(4);
  EXPECT_EQ(letter.topLeft(), view.viewport()->mapToGlobal(QPoint(At(0, 4).x(), kMargin)));
  EXPECT_EQ(letter.width(), view.fontMetrics().horizontalAdvance("row 0") -
                                view.fontMetrics().horizontalAdvance("row "));
  const int second = static_cast<int>(kLine) + 2;  // "w" of the second row
  EXPECT_EQ(Told().characterRect(second).top() - letter.top(), view.fontMetrics().lineSpacing());
  EXPECT_EQ(Told().offsetAtPoint(Told().characterRect(second).topLeft() + QPoint(1, 1)), second);
  Told().addSelection(0, 3);
  EXPECT_EQ(view.Marked_Text(), "row");
  Told().removeSelection(0);
  EXPECT_EQ(Told().selectionCount(), 0);
  EXPECT_EQ(view.Place(), 3U);
  Told().scrollToSubstring(second, second + 1);
  EXPECT_EQ(view.Place(), kLine + 2);
  int from = -1, to = -1;
  EXPECT_EQ(Told().attributes(7, &from, &to), "") << "all letters are alike";
  EXPECT_EQ(from, 0);
  EXPECT_EQ(to, Told().characterCount());
}

}  // namespace
}  // namespace barvon

#include "platform/qt/fields/focus_entry.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <initializer_list>

#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// A screen with a field that hints and checks, another one, and its three buttons.
class FocusEntry : public ::testing::Test {
 protected:
  FocusEntry() {
    auto* column = new QVBoxLayout(&screen);
    for (QWidget* widget : std::initializer_list<QWidget*>{field, other, ok, cancel, help}) {
      column->addWidget(widget);
    }
    for (QPushButton* button : {ok, cancel, help}) button->setAutoDefault(false);
    QObject::connect(cancel, &QPushButton::clicked, &screen, &QDialog::reject);
    When_Focused(field, [this] { ++hints; });
    When_Left(field, {ok, cancel, help}, [this] {
      ++checks;
      focus_then = QApplication::focusWidget();
    });
    screen.show();
    EXPECT_TRUE(Has_Keyboard(&screen));
    Go_To(field);
  }

  void Go_To(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton);
    QCoreApplication::processEvents();
  }

  QDialog screen;
  QLineEdit* field = new QLineEdit(&screen);
  QLineEdit* other = new QLineEdit(&screen);
  QPushButton* ok = new QPushButton("OK", &screen);
  QPushButton* cancel = new QPushButton("C&ancel", &screen);
  QPushButton* help = new QPushButton("&Help", &screen);
  int hints = 0;
  int checks = 0;
  QWidget* focus_then = nullptr;
};

TEST_F(FocusEntry, A_Hint_Shows_Each_Time_The_Field_Is_Entered) {
  const int before = hints;
  Go_To(other);
  EXPECT_EQ(hints, before);
  Go_To(field);
  EXPECT_EQ(hints, before + 1);
  Go_To(other);
  QTest::keyClick(other, Qt::Key_Backtab);
  EXPECT_EQ(hints, before + 2);
}

TEST_F(FocusEntry, Leaving_By_A_Click_Or_A_Key_Is_Checked_Once_The_Focus_Is_Settled) {
  Go_To(other);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(focus_then, other);
  Go_To(field);
  EXPECT_EQ(checks, 1);
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(checks, 1) << "not before the focus is settled";
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 2);
}

TEST_F(FocusEntry, Leaving_For_OK_Cancel_Or_Help_Is_Mute) {
  for (QWidget* button : std::initializer_list<QWidget*>{ok, help, cancel}) {
    Go_To(field);
    Go_To(button);
    EXPECT_EQ(checks, 0);
  }
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(FocusEntry, Escape_And_The_Close_Box_Are_Mute) {
  QTest::keyClick(field, Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(checks, 0);
  screen.show();
  ASSERT_TRUE(Has_Keyboard(&screen));
  Go_To(field);
  screen.close();
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 0);
}

TEST_F(FocusEntry, A_Screen_That_Opens_Again_On_Another_Field_Is_Mute) {
  screen.close();
  screen.show();
  other->setFocus();
  ASSERT_TRUE(Has_Keyboard(&screen));
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 0);
}

TEST_F(FocusEntry, A_Screen_That_Closes_Before_The_Focus_Is_Settled_Is_Mute) {
  QTest::keyClick(field, Qt::Key_Tab);
  screen.close();
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 0);
}

TEST_F(FocusEntry, Another_Window_That_Takes_The_Focus_Leaves_Nothing) {
  const int before = hints;
  QWidget window;
  window.show();
  ASSERT_TRUE(Has_Keyboard(&window));
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 0);
  window.close();
  screen.activateWindow();
  ASSERT_TRUE(Has_Keyboard(&screen));
  EXPECT_EQ(hints, before) << "it comes back";
}

TEST_F(FocusEntry, The_Check_May_Send_The_Focus_Back) {
  When_Left(field, {}, [this] { field->setFocus(); });
  Go_To(other);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(QApplication::focusWidget(), field);
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 1);
}

TEST_F(FocusEntry, A_Field_That_Is_Gone_Is_Not_Checked) {
  QTest::keyClick(field, Qt::Key_Tab);
  delete field;
  QCoreApplication::processEvents();
  EXPECT_EQ(checks, 0);
}

}  // namespace
}  // namespace barvon::testing

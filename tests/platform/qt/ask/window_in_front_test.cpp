#include "platform/qt/ask/window_in_front.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace barvon {
namespace {

/// Three windows, each with a field that has the keyboard when the window has it.
class WindowInFront : public ::testing::Test {
 protected:
  WindowInFront() {
    Follow_Windows_In_Front();
    for (QLineEdit& window : windows) window.show();
  }
  static void Turn_To(QWidget& window) {
    window.activateWindow();
    window.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  /// As the desktop tells it between two windows.
  static void Leave_All() { QApplication::setActiveWindow(nullptr); }

  QLineEdit windows[3];
};

TEST_F(WindowInFront, Behind_A_Dialog_It_Is_The_One_That_Had_The_Keyboard_Before) {
  for (QLineEdit& window : windows) {
    Turn_To(window);
    EXPECT_EQ(Window_In_Front(), &window);
    {
      QDialog dialog(&window);
      QLineEdit name(&dialog);
      dialog.setModal(true);
      dialog.show();
      name.setFocus();
      ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
      EXPECT_EQ(Window_In_Front(), &dialog);
    }
    Leave_All();
    EXPECT_EQ(Window_In_Front(), &window);
  }
}

TEST_F(WindowInFront, One_That_Is_Hidden_Gives_Way_To_The_One_Before) {
  Turn_To(windows[2]);
  Turn_To(windows[0]);
  windows[0].hide();
  Leave_All();
  EXPECT_EQ(Window_In_Front(), &windows[2]);
}

}  // namespace
}  // namespace barvon

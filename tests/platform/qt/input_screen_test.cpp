#include "platform/qt/input_screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "platform/qt/ask/frm_progress_bar.h"
#include "platform/qt/screen_window.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// Two tabs with a field on each, one more tab with tabs of its own, and the usual buttons.
class Small_Screen : public Input_Screen {
 public:
  explicit Small_Screen(QWidget* workspace) : Input_Screen("frmSmall", workspace) {
    ++made;
    ++alive;
    tabs = new QTabWidget(this);
    inner = new QTabWidget;
    for (int page = 0; page < 2; ++page) tabs->addTab(Page(page), QString::number(page));
    tabs->addTab(inner, "2");
    for (int page = 2; page < 4; ++page) inner->addTab(Page(page), QString::number(page));
    auto* column = new QVBoxLayout(this);
    column->addWidget(tabs);
    column->addLayout(Make_Command1());
  }
  ~Small_Screen() override { --alive; }

  QPushButton* Button(int index) { return Command1(index); }

  static void Clear() { made = alive = 0, log.clear(), on_command = {}; }
  static inline int made = 0, alive = 0;
  static inline std::vector<std::string> log;
  static inline std::function<void(Small_Screen*, int)> on_command;

  QTabWidget* tabs;
  QTabWidget* inner;

 protected:
  void Opening() override { log.push_back(FillingForm ? "opening, filling" : "opening"); }
  void Activated() override { log.push_back(FillingForm ? "activated, filling" : "activated"); }
  void Command1_Click(int index) override {
    log.push_back("click " + std::to_string(index));
    if (on_command) {
      on_command(this, index);
    } else if (index != kHelp) {
      Unload();
    }
  }

 private:
  QWidget* Page(int index) {
    auto* page = new QWidget;
    auto* field = new QLineEdit(page);
    field->setObjectName(QStringLiteral("Text1(%1)").arg(index));
    (new QVBoxLayout(page))->addWidget(field);
    return page;
  }
};

/// As the window system does; true when the window went.
bool Press_Close_Box(QWidget* window) { return window->close(); }

using Log = std::vector<std::string>;

class InputScreen : public ::testing::Test {
 protected:
  InputScreen() {
    Small_Screen::Clear();
    Name_Screen(main, "Main");
    main.setGeometry(200, 150, 400, 300);
    main.show();
    EXPECT_TRUE(Has_Keyboard(&main));
    screen = new Small_Screen(&main);
  }

  ~InputScreen() override { Small_Screen::Clear(); }

  void Open(const std::string& control = {}) {
    screen->Open(false, control);
    ASSERT_TRUE(Has_Keyboard(screen));
  }

  static void Come_To(QWidget* window) {
    window->activateWindow();  // as the desktop does when the window in front goes
    ASSERT_TRUE(Has_Keyboard(window));
  }

  QLineEdit* Text1(int index) {
    return screen->findChild<QLineEdit*>(QStringLiteral("Text1(%1)").arg(index));
  }

  Log& log = Small_Screen::log;
  QMainWindow main;
  Small_Screen* screen;
};

TEST_F(InputScreen, Bears_Its_Name_And_The_References_Of_Its_Buttons) {
  EXPECT_EQ(screen->objectName(), "frmSmall");
  EXPECT_EQ(screen->findChild<QPushButton*>("Command1(0)")->text(), "OK");
  EXPECT_EQ(screen->findChild<QPushButton*>("Command1(1)")->text(), "C&ancel");
  EXPECT_EQ(screen->findChild<QPushButton*>("Command1(2)")->text(), "&Help");
}

TEST_F(InputScreen, Stands_At_3_Percent_Of_The_Display_At_Every_Opening) {
  const QRect display = screen->screen()->geometry();
  const QPoint place(display.left() + display.width() * 3 / 100,
                     display.top() + display.height() * 3 / 100);
  for (int time = 0; time < 2; ++time) {
    Open();
    EXPECT_LE((screen->pos() - place).manhattanLength(), 2);
    screen->move(300, 300);
    screen->Unload();
  }
}

TEST_F(InputScreen, Opens_Without_Blocking) {
  Open();
  EXPECT_TRUE(screen->isVisible());
  EXPECT_FALSE(screen->isModal());
  EXPECT_EQ(log, (Log{"opening, filling", "activated"}));
}

TEST_F(InputScreen, Opens_Blocking_And_Comes_Back_When_It_Is_Closed) {
  bool modal = false;
  QTimer::singleShot(0, screen, [&] {
    modal = QApplication::activeModalWidget() == screen;
    QTest::mouseClick(screen->Button(0), Qt::LeftButton);
  });
  screen->Open(true);
  EXPECT_TRUE(modal);
  EXPECT_FALSE(screen->isVisible());
  EXPECT_EQ(log, (Log{"opening, filling", "activated", "click 0"}));
}

TEST_F(InputScreen, Opened_While_It_Is_Open_It_Keeps_What_It_Holds) {
  Open();
  Text1(0)->setText("typed");
  screen->Open(false, "Text1(1)");
  EXPECT_EQ(log, (Log{"opening, filling", "activated"}));
  EXPECT_EQ(Text1(0)->text(), "typed");
  EXPECT_EQ(screen->focusWidget(), Text1(1));
}

TEST_F(InputScreen, The_Focus_Goes_To_The_Control_Of_That_Name_In_Whichever_Tab) {
  Open("Text1(1)");
  EXPECT_EQ(QApplication::focusWidget(), Text1(1));
  EXPECT_EQ(screen->tabs->currentIndex(), 1);
  screen->Unload();
  Open("Text1(3)");
  EXPECT_EQ(QApplication::focusWidget(), Text1(3));
  EXPECT_EQ(screen->tabs->currentIndex(), 2);
  EXPECT_EQ(screen->inner->currentIndex(), 1);
  screen->Unload();
  Open("Text1(0)");
  EXPECT_EQ(QApplication::focusWidget(), Text1(0));
  EXPECT_EQ(screen->tabs->currentIndex(), 0);
}

TEST_F(InputScreen, Without_A_Control_The_Focus_Goes_To_The_First_One) {
  Open("Text1(1)");
  screen->Unload();
  screen->tabs->setCurrentIndex(0);
  Open();
  ASSERT_NE(screen->focusWidget(), nullptr);
  EXPECT_TRUE(screen->tabs->isAncestorOf(screen->focusWidget()));
  EXPECT_NE(screen->focusWidget(), Text1(1));
}

TEST_F(InputScreen, A_Control_That_Is_Not_There_Leaves_The_Screen_Open_As_Without_One) {
  Open("Text9(4)");
  EXPECT_TRUE(screen->isVisible());
  EXPECT_TRUE(screen->tabs->isAncestorOf(screen->focusWidget()));
}

TEST_F(InputScreen, Each_Button_Runs_Its_Command_Once) {
  Small_Screen::on_command = [](Small_Screen*, int) {};
  Open();
  log.clear();
  for (int index = 0; index < 3; ++index) {
    QTest::mouseClick(screen->Button(index), Qt::LeftButton);
  }
  EXPECT_EQ(log, (Log{"click 0", "click 1", "click 2"}));
  EXPECT_TRUE(screen->isVisible()) << "what closes the screen is its own command";
}

TEST_F(InputScreen, F1_Presses_Help_From_Any_Field) {
  Open("Text1(1)");
  log.clear();
  QTest::keyClick(Text1(1), Qt::Key_F1);
  EXPECT_EQ(log, Log{"click 2"});
  EXPECT_TRUE(screen->isVisible());
}

TEST_F(InputScreen, Escape_Is_Cancel) {
  Open();
  log.clear();
  QTest::keyClick(screen, Qt::Key_Escape);
  EXPECT_EQ(log, (Log{"click 1"}));
  EXPECT_FALSE(screen->isVisible());
}

TEST_F(InputScreen, The_Close_Box_Is_Cancel) {
  Open();
  log.clear();
  EXPECT_TRUE(Press_Close_Box(screen));
  EXPECT_EQ(log, (Log{"click 1"}));
  EXPECT_FALSE(screen->isVisible());
}

TEST_F(InputScreen, A_Cancel_That_Does_Not_Close_Holds_The_Close_Box_And_Escape) {
  Small_Screen::on_command = [](Small_Screen*, int) {};
  Open();
  EXPECT_FALSE(Press_Close_Box(screen));
  QTest::keyClick(screen, Qt::Key_Escape);
  EXPECT_TRUE(screen->isVisible());
  EXPECT_EQ(log, (Log{"opening, filling", "activated", "click 1", "click 1"}));
}

TEST_F(InputScreen, Closing_From_Ok_Does_Not_Run_Cancel_However_It_Is_Closed) {
  const std::vector<void (*)(Small_Screen*)> ways = {[](Small_Screen* it) { it->Unload(); },
                                                     [](Small_Screen* it) { it->accept(); },
                                                     [](Small_Screen* it) { it->reject(); }};
  for (const auto way : ways) {
    Small_Screen::on_command = [way](Small_Screen* it, int) { way(it); };
    Open();
    log.clear();
    QTest::mouseClick(screen->Button(0), Qt::LeftButton);
    EXPECT_EQ(log, (Log{"click 0"}));
    EXPECT_FALSE(screen->isVisible());
  }
}

TEST_F(InputScreen, Return_In_A_Field_Is_Ok) {
  Open("Text1(0)");
  log.clear();
  QTest::keyClick(Text1(0), Qt::Key_Return);
  EXPECT_EQ(log, (Log{"click 0"}));
}

TEST_F(InputScreen, Return_On_A_Button_Is_That_Button) {
  Small_Screen::on_command = [](Small_Screen*, int) {};
  Open();
  log.clear();
  screen->Button(2)->setFocus();
  QTest::keyClick(screen->Button(2), Qt::Key_Return);
  EXPECT_EQ(log, (Log{"click 2"}));
}

TEST_F(InputScreen, Is_Activated_When_The_User_Comes_Back_From_Another_Screen) {
  Open();
  log.clear();
  Come_To(&main);
  EXPECT_EQ(log, Log{});
  Come_To(screen);
  EXPECT_EQ(log, Log{"activated"});
  QDialog other;
  Name_Screen(other, "frmOther");
  other.show();
  Come_To(&other);
  Come_To(screen);
  EXPECT_EQ(log, (Log{"activated", "activated"}));
}

TEST_F(InputScreen, Is_Activated_When_A_Screen_That_Blocked_It_Is_Closed) {
  Open();
  log.clear();
  QDialog other(screen);
  Name_Screen(other, "frmOther");
  QTimer::singleShot(0, &other, [&] {
    EXPECT_TRUE(Has_Keyboard(&other));
    other.accept();
  });
  other.exec();
  Come_To(screen);
  EXPECT_EQ(log, Log{"activated"});
}

TEST_F(InputScreen, Is_Not_Activated_By_The_Closing_Of_A_Message_Box) {
  Open();
  log.clear();
  QMessageBox box(screen);
  QTimer::singleShot(0, &box, [&] {
    EXPECT_TRUE(Has_Keyboard(&box));
    box.accept();
  });
  box.exec();
  Come_To(screen);
  QApplication::processEvents();
  EXPECT_EQ(log, Log{});
}

TEST_F(InputScreen, Is_Not_Activated_By_Coming_Back_From_The_Help) {
  Open();
  log.clear();
  QWidget help;
  help.setObjectName("HelpWindow");
  help.show();
  Come_To(&help);
  Come_To(screen);
  EXPECT_EQ(log, Log{});
}

TEST_F(InputScreen, Is_Not_Activated_When_A_Progress_Box_Goes) {
  Open();
  log.clear();
  frmProgress_Bar progress(nullptr);
  progress.Open("Reading...");
  Come_To(&progress);
  Come_To(screen);
  EXPECT_EQ(log, Log{});
}

TEST_F(InputScreen, While_It_Is_Closed_It_Is_Not_Activated) {
  Open();
  screen->Unload();
  log.clear();
  QDialog other;
  Name_Screen(other, "frmOther");
  other.show();
  Come_To(&other);
  Come_To(&main);
  EXPECT_EQ(log, Log{});
  Open();
  EXPECT_EQ(log, (Log{"opening, filling", "activated"}));
}

TEST_F(InputScreen, Fresh_Screens_Are_Made_Anew_At_Each_Use) {
  delete screen;
  Small_Screen::Clear();
  const auto opener = Fresh_Screens<Small_Screen>(&main);
  for (int use = 1; use <= 3; ++use) {
    opener(false, "Text1(1)");
    EXPECT_EQ(Small_Screen::made, use);
    main.findChild<Small_Screen*>()->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Small_Screen::alive, 0);
  }
}

TEST_F(InputScreen, A_Fresh_Screen_That_Is_Open_Comes_To_The_Front_Through_Any_Copy_Of_Its_Opener) {
  delete screen;
  Small_Screen::Clear();
  const auto opener = Fresh_Screens<Small_Screen>(&main);
  const auto copy = opener;
  copy(false, "");
  opener(false, "Text1(3)");
  copy(true, "");
  EXPECT_EQ(Small_Screen::made, 1);
  EXPECT_EQ(log, (Log{"opening, filling", "activated"}));
  EXPECT_EQ(main.findChild<Small_Screen*>()->inner->currentIndex(), 1);
}

// Screens read their tables in a command; the toolkit would end the typing only when the closing
// screen loses the focus, after the record has been saved or restored.
TEST_F(InputScreen, A_Command_Finds_In_A_Table_What_Is_Being_Typed_However_It_Is_Given) {
  F1Book* table = nullptr;
  for (const int way : {0, 1}) {
    Small_Screen::log.clear();
    screen = new Small_Screen(&main);
    table = new F1Book(kBookNumbers, screen->tabs->widget(0));
    screen->tabs->widget(0)->layout()->addWidget(table);
    QObject::connect(table, &F1Book::Edited, table,
                     [&] { Small_Screen::log.push_back("edited " + table->table().TextRC(1, 1)); });
    Open();
    table->setFocus();
    QTest::keyClick(table, '7');
    ASSERT_NE(QApplication::focusWidget(), table);
    if (way == 0) screen->Button(0)->click();  // as a screen reader does
    if (way == 1) Press_Close_Box(screen);
    EXPECT_EQ(Small_Screen::log,
              (Log{"opening, filling", "activated", "edited 7", way == 0 ? "click 0" : "click 1"}));
  }
}

TEST_F(InputScreen, A_Fresh_Screen_Blocks_When_It_Is_Told_To) {
  delete screen;
  Small_Screen::Clear();
  const auto opener = Fresh_Screens<Small_Screen>(&main);
  bool modal = false;
  QTimer::singleShot(0, &main, [&] {
    modal = dynamic_cast<Input_Screen*>(QApplication::activeModalWidget()) != nullptr;
    main.findChild<Small_Screen*>()->Unload();
  });
  opener(true, "");
  EXPECT_TRUE(modal);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Small_Screen::alive, 0);
}

// Two windows over the main one may be stacked either way, and who blocks must never lie below.
TEST_F(InputScreen, A_Blocking_Screen_Stands_Over_The_Screen_It_Is_Opened_From) {
  Open();
  Come_To(screen);
  const auto opener = Fresh_Screens<Small_Screen>(&main);
  const QWindow* below = nullptr;
  const auto open_and_look = [&] {
    QTimer::singleShot(0, &main, [&] {
      QWidget* front = QApplication::activeModalWidget();
      below = front->windowHandle()->transientParent();
      static_cast<Small_Screen*>(front)->Unload();
    });
    opener(true, "");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  open_and_look();
  EXPECT_EQ(below, screen->windowHandle());
  Come_To(&main);
  open_and_look();
  EXPECT_EQ(below, main.windowHandle());
}

// It would go when that screen goes.
TEST_F(InputScreen, A_Screen_That_Does_Not_Block_Stands_Over_The_Workspace) {
  Open();
  Come_To(screen);
  Fresh_Screens<Small_Screen> (&main)(false, "");
  for (Small_Screen* each : main.findChildren<Small_Screen*>()) {
    EXPECT_EQ(each->parentWidget(), &main);
  }
  EXPECT_EQ(Small_Screen::alive, 2);
}

}  // namespace
}  // namespace barvon::testing

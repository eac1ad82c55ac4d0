#include <gtest/gtest.h>

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>
#include <vector>

#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/input_screen.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// Writes down what it is told to do, and does nothing.
class Shape : public Input_Screen {
 public:
  using Input_Screen::Input_Screen;
  std::vector<int> given;
  QLineEdit* field = nullptr;
  using Input_Screen::Command1;

 protected:
  void Command1_Click(int index) override { given.push_back(index); }
  QVBoxLayout* Column_With_Field() {
    auto* column = new QVBoxLayout(this);
    field = new QLineEdit(this);
    column->addWidget(field);
    return column;
  }
};

/// Steps back and on; Return goes on, and its help follows the steps.
class Wizard_Shape : public Shape {
 public:
  explicit Wizard_Shape(QWidget* workspace)
      : Shape("Data_Wiz", workspace,
              {.on_return = 1, .cancel = 3, .help = 4, .place = QPoint(100, 100)}) {
    Column_With_Field()->addLayout(
        Make_Command1({"< &Back", "&Next >", "&Finished", "&Cancel", "&Help", "Enter Data"}));
    Tab_Through({field});
  }
};

/// Panels of another name, where the screen wants them.
class Database_Shape : public Shape {
 public:
  explicit Database_Shape(QWidget* workspace) : Shape("DataBase", workspace, {.topic = 2590}) {
    auto* grid = new QGridLayout;
    int place = 0;
    for (QPushButton* panel : SSPanel1) {
      panel->setText(QString::number(place));
      grid->addWidget(panel, place / 2, place % 2);
      ++place;
    }
    Column_With_Field()->addLayout(grid);
    Take_Commands({SSPanel1.begin(), SSPanel1.end()});
    Tab_Through({field});
  }
  ControlArray<QPushButton> SSPanel1{this, "SSPanel1", 4};
};

/// No OK: its first command computes, its second closes.
class Dilution_Shape : public Shape {
 public:
  explicit Dilution_Shape(QWidget* workspace) : Shape("frmDilute2", workspace, {.topic = 2590}) {
    Column_With_Field()->addLayout(
        Make_Command1({"&Compute", "C&lose", "&Help", "&Read", "&Save", "Clear &All"}));
  }
};

/// One button, and no help.
class About_Shape : public Shape {
 public:
  explicit About_Shape(QWidget* workspace)
      : Shape("frmAbout", workspace,
              {.cancel = 0, .help = {}, .placement = Screen_Setup::Placement::Centre}) {
    Column_With_Field()->addLayout(Make_Command1({"OK"}));
  }
};

using Given = std::vector<int>;

class ScreenShapes : public ::testing::Test {
 protected:
  ScreenShapes() {
    former_ = Set_Help_Presenter([this](const Help_Request& request) {
      if (request.command == Help_Command::Context) helped.push_back(request.topic);
    });
    main.setObjectName("Main");
    main.show();
  }
  ~ScreenShapes() override { Set_Help_Presenter(former_); }

  template <class Screen>
  Screen* Open() {
    auto* screen = new Screen(&main);
    screen->Open(false);
    EXPECT_TRUE(Has_Keyboard(screen));
    return screen;
  }
  /// The commands that a key gives in the screen's field.
  static Given By_Key(Shape* screen, Qt::Key key) {
    screen->given.clear();
    screen->field->setFocus();
    QTest::keyClick(screen->field, key);
    return screen->given;
  }
  static Given By_Close_Box(Shape* screen) {
    screen->given.clear();
    EXPECT_FALSE(static_cast<QWidget*>(screen)->close());
    return screen->given;
  }

  QMainWindow main;
  std::vector<int> helped;

 private:
  Help_Presenter former_;
};

TEST_F(ScreenShapes, A_Wizard_Goes_On_By_Return_And_Is_Called_Off_By_Its_Own_Cancel) {
  auto* wizard = Open<Wizard_Shape>();
  EXPECT_EQ(By_Key(wizard, Qt::Key_Return), Given{1});
  EXPECT_EQ(By_Key(wizard, Qt::Key_Escape), Given{3});
  EXPECT_EQ(By_Close_Box(wizard), Given{3});
}

TEST_F(ScreenShapes, A_Screen_Without_A_Page_Answers_Help_Itself) {
  auto* wizard = Open<Wizard_Shape>();
  EXPECT_EQ(By_Key(wizard, Qt::Key_F1), Given{4});
  EXPECT_EQ(helped, Given{});
}

TEST_F(ScreenShapes, A_Wizard_Opens_At_Its_Point_Of_The_Display) {
  auto* wizard = Open<Wizard_Shape>();
  const QPoint place = wizard->screen()->geometry().topLeft() + QPoint(100, 100);
  EXPECT_LE((wizard->pos() - place).manhattanLength(), 2);
}

TEST_F(ScreenShapes, Each_Button_Gives_Its_Command_Whatever_The_Array_Is_Called) {
  auto* database = Open<Database_Shape>();
  for (int index = 0; index < 4; ++index) Click(database->SSPanel1(index));
  EXPECT_EQ(database->given, (Given{0, 1, 3})) << "2 opens the page";
  EXPECT_EQ(database->Command1(3)->objectName(), "SSPanel1(3)");
}

TEST_F(ScreenShapes, Panels_Answer_To_The_Keys_As_Buttons_Do) {
  auto* database = Open<Database_Shape>();
  EXPECT_EQ(By_Key(database, Qt::Key_Return), Given{0});
  EXPECT_EQ(By_Key(database, Qt::Key_Escape), Given{1});
  EXPECT_EQ(By_Key(database, Qt::Key_F1), Given{});
  EXPECT_EQ(helped, Given{2590});
}

TEST_F(ScreenShapes, A_Screen_That_Computes_Closes_By_Escape_And_Its_Close_Box) {
  auto* dilution = Open<Dilution_Shape>();
  EXPECT_EQ(By_Key(dilution, Qt::Key_Return), Given{0});
  EXPECT_EQ(By_Key(dilution, Qt::Key_Escape), Given{1});
  EXPECT_EQ(By_Close_Box(dilution), Given{1});
  Click(dilution->Command1(2));
  EXPECT_EQ(helped, Given{2590});
  Click(dilution->Command1(5));
  EXPECT_EQ(dilution->given, (Given{1, 5}));
}

TEST_F(ScreenShapes, One_Button_Takes_Every_Key_And_F1_Without_Help_Does_Nothing) {
  auto* about = Open<About_Shape>();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    EXPECT_EQ(By_Key(about, key), Given{0}) << key;
  }
  EXPECT_EQ(By_Key(about, Qt::Key_F1), Given{});
  EXPECT_EQ(helped, Given{});
  const QRect display = about->screen()->geometry();
  EXPECT_LE((about->geometry().center() - display.center()).manhattanLength(), 40);
}

TEST_F(ScreenShapes, Tab_Goes_Through_The_Controls_And_Then_The_Commands) {
  auto* database = Open<Database_Shape>();
  database->field->setFocus();
  for (int index = 0; index < 4; ++index) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), database->SSPanel1(index)) << index;
  }
}

}  // namespace
}  // namespace barvon::testing

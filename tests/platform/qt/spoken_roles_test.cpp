#include "platform/qt/spoken_roles.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "pictures/bar_picture.h"
#include "platform/qt/fields/latching_button.h"
#include "platform/qt/large_text_view.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// A window as assistive tools are told it.
class SpokenRoles : public ::testing::Test {
 protected:
  SpokenRoles() { Mend_Spoken_Controls(); }

  static QAccessibleInterface& Told(QWidget& control) {
    return *QAccessible::queryAccessibleInterface(&control);
  }
  static QString Name(QWidget& control) { return Told(control).text(QAccessible::Name); }
  static void Act(QWidget& control, const QString& action) {
    Told(control).actionInterface()->doAction(action);
    QCoreApplication::processEvents();
  }

  QWidget window;
};

TEST_F(SpokenRoles, A_Frame_In_A_Frame_Bears_Its_Own_Caption) {
  auto* outer = new QGroupBox("Main Menu", &window);
  auto* inner = new QGroupBox("Sand && &Clay", outer);
  auto* named = new QGroupBox("Other", outer);
  named->setAccessibleName("Zone");
  EXPECT_EQ(Name(*outer), "Main Menu");
  EXPECT_EQ(Name(*inner), "Sand & Clay");
  EXPECT_EQ(Name(*named), "Zone");
  EXPECT_EQ(Told(*inner).role(), QAccessible::Grouping);
}

TEST_F(SpokenRoles, What_Is_Chosen_From_The_Bus_Is_Clicked) {
  auto* box = new QCheckBox("&Print", &window);
  auto* option = new QRadioButton("Barge", &window);
  int clicks = 0;
  for (QAbstractButton* choice : {static_cast<QAbstractButton*>(box), {option}}) {
    QObject::connect(choice, &QAbstractButton::clicked, [&clicks] { ++clicks; });
    Act(*choice, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(Told(*choice).state().checked);
  }
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(Name(*box), "Print");
  EXPECT_EQ(Told(*box).role(), QAccessible::CheckBox);
  EXPECT_EQ(Told(*option).role(), QAccessible::RadioButton);
}

TEST_F(SpokenRoles, A_Button_Tells_Its_Key_Its_Action_And_Whether_Return_Presses_It) {
  QDialog box(&window);
  auto* ok = new QPushButton("&OK", &box);
  auto* cancel = new QPushButton("Cancel", &box);
  ok->setDefault(true);
  EXPECT_EQ(Told(*ok).text(QAccessible::Accelerator), "Alt+O");
  EXPECT_EQ(Told(*cancel).text(QAccessible::Accelerator), "");
  ok->setWhatsThis("Stores the values");
  EXPECT_EQ(Told(*ok).text(QAccessible::Help), "Stores the values");
  EXPECT_TRUE(Told(*ok).state().defaultButton);
  EXPECT_FALSE(Told(*cancel).state().defaultButton);
  const QString press = QAccessibleActionInterface::pressAction();
  EXPECT_EQ(Told(*ok).actionInterface()->actionNames().value(0), press);
  ok->setEnabled(false);
  EXPECT_FALSE(Told(*ok).actionInterface()->actionNames().contains(press));
}

TEST_F(SpokenRoles, A_Click_From_The_Bus_Waits_For_A_Box) {
  auto* button = new QPushButton("OK", &window);
  int clicks = 0;
  QObject::connect(button, &QPushButton::clicked, [&clicks] { ++clicks; });
  window.show();
  const QString press = QAccessibleActionInterface::pressAction();
  {
    QDialog box(&window);
    auto* of_box = new QPushButton("Yes", &box);
    QObject::connect(of_box, &QPushButton::clicked, [&clicks] { clicks += 10; });
    box.setModal(true);
    box.show();
    Act(*button, press);
    EXPECT_EQ(clicks, 0);
    Act(*of_box, press);
    EXPECT_EQ(clicks, 10);
  }
  Act(*button, press);
  EXPECT_EQ(clicks, 11);
}

TEST_F(SpokenRoles, A_Picture_Is_A_Picture_And_A_Picture_Button_A_Button) {
  Bar_Picture picture("Composition", "composition", &window);
  auto* button = new Latching_Button(&window);
  button->setAccessibleName("Site Description");
  int runs = 0;
  button->When_Down([&runs] { ++runs; });
  EXPECT_EQ(Told(picture).role(), QAccessible::Graphic);
  EXPECT_EQ(Name(picture), "Composition");
  EXPECT_EQ(Told(*button).role(), QAccessible::Button);
  EXPECT_EQ(Name(*button), "Site Description");
  Act(*button, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(runs, 1);
}

TEST_F(SpokenRoles, Pages_With_Tabs_Are_No_Stop_Beside_Their_Tabs) {
  auto* pages = new QTabWidget(&window);
  pages->addTab(new QWidget, "First");
  EXPECT_FALSE(Told(*pages).state().focusable);
}

TEST_F(SpokenRoles, A_Large_Text_Is_Told_As_It_Is_In_View) {
  Large_Text_View view;
  view.setFixedSize(400, 10 * view.fontMetrics().lineSpacing());
  Text_Rows rows;
  rows.Add("one\n\ttwo\n");
  for (int i = 0; i < 100; ++i) rows.Add("more\n");
  rows.Finish();
  view.Set_Rows(std::move(rows));
  view.show();
  auto* text = Told(view).textInterface();
  ASSERT_NE(text, nullptr);
  // A tab reaches to the eighth letter.
  EXPECT_TRUE(text->text(0, 16).startsWith("one\n        two\n"))
      << view.Text_In_View().toStdString();
  EXPECT_LT(text->characterCount(), 100);
  EXPECT_TRUE(Told(view).state().readOnly);
  EXPECT_EQ(text->cursorPosition(), 0);
  text->setCursorPosition(13);
  EXPECT_EQ(view.Place(), 6U) << "behind the t: 4 bytes of the first line, the tab, a letter";
  EXPECT_EQ(text->cursorPosition(), 13);
  text->setSelection(0, 0, 3);
  EXPECT_EQ(view.Marked_Text(), "one");
  int from = -1, to = -1;
  text->selection(0, &from, &to);
  EXPECT_EQ(text->selectionCount(), 1);
  EXPECT_EQ(from, 0);
  EXPECT_EQ(to, 3);
  view.Go_To(10000);
  EXPECT_FALSE(text->text(0, 3).startsWith("one")) << "it has been scrolled";
  EXPECT_EQ(text->cursorPosition(), text->characterCount());
}

}  // namespace
}  // namespace barvon::testing

#include "workspace/frm_open.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <optional>

#include "core/desk/screen_register.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/option_paint.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// The start dialog over a workspace; file dialogs are called off and counted.
class StartDialog : public ::testing::Test {
 protected:
  StartDialog() {
    workspace.setGeometry(50, 50, 400, 300);
    workspace.show();
    Register_frmOpen(&workspace);
    files_ = Set_File_Dialog_Presenter({[this](const File_Request&) {
                                          ++asked_to_open;
                                          was_visible_then = Dialog().isVisible();
                                          return std::optional<std::string>();
                                        },
                                        {},
                                        {}});
    help_ = Set_Help_Presenter([this](const Help_Request&) { ++asked_for_help; });
    Register_Screen(Row_Of_Screen("Data_Wiz"), [this](bool, const std::string&) { ++wizards; });
    Project().WizardAtStart = kFalse;
  }

  ~StartDialog() override {
    Register_Screen(Row_Of_Screen("Data_Wiz"), {});
    Set_Help_Presenter(help_);
    Set_File_Dialog_Presenter(files_);
    Project().WizardAtStart = kFalse;
  }

  frmOpen& Dialog() { return *workspace.findChild<frmOpen*>("frmOpen"); }
  QRadioButton* Option1(int index) {
    return Dialog().findChild<QRadioButton*>(QStringLiteral("Option1(%1)").arg(index));
  }
  QGroupBox* Frame2(int index) {
    return Dialog().findChild<QGroupBox*>(QStringLiteral("Frame2(%1)").arg(index));
  }

  void Open() {
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmOpen"), false));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Dialog()));
  }

  /// The page to be seen; -1 when it is not exactly one.
  int Page() {
    int page = -1, seen = 0;
    for (int index = 0; index < 3; ++index) {
      if (!Frame2(index)->isVisible()) continue;
      page = index;
      ++seen;
    }
    return seen == 1 ? page : -1;
  }

  void Click(const QString& caption) {
    for (auto* button : Dialog().findChildren<QPushButton*>()) {
      if (button->text() == caption) return QTest::mouseClick(button, Qt::LeftButton);
    }
    FAIL() << "no button " << caption.toStdString();
  }
  void Back() { Click("<< &Back"); }
  void Next() { Click("&Next >>"); }
  void Choose(int index) { QTest::mouseClick(Option1(index), Qt::LeftButton, {}, Dot(index)); }
  void Double_Click(int index) {
    Choose(index);  // a click goes before it, as it does under a user's hand
    QTest::mouseDClick(Option1(index), Qt::LeftButton, {}, Dot(index));
  }
  QPoint Dot(int index) { return {10, Option1(index)->height() / 2}; }

  QWidget workspace;
  int asked_to_open = 0;
  bool was_visible_then = false;
  int asked_for_help = 0;
  int wizards = 0;

 private:
  File_Dialog_Presenter files_;
  Help_Presenter help_;
};

TEST_F(StartDialog, Is_Made_When_It_Is_First_Asked_For_And_Stays) {
  EXPECT_EQ(workspace.findChild<frmOpen*>(), nullptr);
  Open();
  Dialog().close();
  Open();
  EXPECT_EQ(workspace.findChildren<frmOpen*>().size(), 1);
}

TEST_F(StartDialog, Shows_Its_Captions) {
  Open();
  EXPECT_EQ(Dialog().windowTitle(), "BARVON");
  EXPECT_TRUE(Dialog().findChild<QLabel*>("Label1")->text().startsWith("BARVON  -  "));
  EXPECT_GT(Dialog().findChild<QLabel*>("Label1")->text().size(), 15);
  QStringList captions;
  for (const auto* button : Dialog().findChildren<QPushButton*>()) captions << button->text();
  EXPECT_EQ(captions, (QStringList{"<< &Back", "&Next >>", "&Cancel", "&Help"}));
  EXPECT_EQ(Option1(0)->text(), "Do You Wish To Open an Existing Project?");
  EXPECT_EQ(Option1(1)->text(), "Do You Wish To Create a New Project?");
  EXPECT_EQ(Option1(2)->text(), "Do You Wish To Use the Data Wizard?");
  EXPECT_EQ(Option1(3)->text(), "Do You Wish To Enter Data Conventionally?");
  EXPECT_EQ(Frame2(2)->findChild<QLabel*>()->text(), "Select Next to Enter Project File Name");
  for (int index = 0; index < 4; ++index) {
    EXPECT_EQ(Option1(index)->parentWidget(), Frame2(index / 2)) << index;
  }
}

TEST_F(StartDialog, Shows_A_Picture) {
  Open();
  const auto* picture = Dialog().findChild<QLabel*>("Picture1");
  ASSERT_NE(picture, nullptr);
  const QImage drawn = picture->pixmap().toImage();
  ASSERT_FALSE(drawn.isNull());
  EXPECT_NE(drawn.pixel(drawn.width() / 2, 5), drawn.pixel(drawn.width() / 2, drawn.height() - 5));
}

TEST_F(StartDialog, Opens_At_Page_0_With_Nothing_Chosen_And_No_Wizard) {
  Project().WizardAtStart = kTrue;
  Open();
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(Project().WizardAtStart, kFalse);
  for (int index = 0; index < 4; ++index) EXPECT_FALSE(Option1(index)->isChecked()) << index;
}

TEST_F(StartDialog, Starts_Anew_At_Every_Opening) {
  Open();
  Choose(1), Next(), Choose(2), Next(), Next();
  EXPECT_EQ(Project().WizardAtStart, kTrue);
  Open();
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(Project().WizardAtStart, kFalse);
  for (int index = 0; index < 4; ++index) EXPECT_FALSE(Option1(index)->isChecked()) << index;
}

TEST_F(StartDialog, Stands_In_The_Middle_Of_The_Display) {
  for (const bool moved : {false, true}) {
    if (moved) Dialog().move(3, 3);
    Open();
    const QPoint off = Dialog().geometry().center() - Dialog().screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 4);
    Click("&Cancel");
  }
}

TEST_F(StartDialog, Next_With_An_Existing_Project_Closes_It_And_Opens_One) {
  Open();
  Choose(0), Next();
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(asked_to_open, 1);
  EXPECT_FALSE(was_visible_then) << "the dialog is closed first";
  EXPECT_EQ(Project().WizardAtStart, kFalse);
}

TEST_F(StartDialog, Next_With_An_Existing_Project_Opens_One_At_Whatever_Page) {
  for (const int page : {1, 2}) {
    Open();
    for (int turn = 0; turn < page; ++turn) Next();
    Option1(0)->setChecked(true);
    Option1(2)->setChecked(true);
    Next();
    EXPECT_FALSE(Dialog().isVisible()) << page;
    EXPECT_EQ(asked_to_open, page);
    EXPECT_EQ(Project().WizardAtStart, kFalse) << page;
  }
}

TEST_F(StartDialog, Next_Leads_Through_The_Pages_And_Closes_It_After_The_Last) {
  Open();
  Choose(1), Next();
  EXPECT_EQ(Page(), 1);
  Next();
  EXPECT_EQ(Page(), 2);
  EXPECT_TRUE(Dialog().isVisible());
  Next();
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(asked_to_open, 0);
}

TEST_F(StartDialog, Next_With_Nothing_Chosen_Goes_On_All_The_Same) {
  Open();
  Next(), Next();
  EXPECT_EQ(Page(), 2);
  Next();
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(Project().WizardAtStart, kFalse);
}

TEST_F(StartDialog, The_Second_Page_Decides_About_The_Wizard_When_It_Is_Left) {
  Open();
  Next(), Choose(2);
  EXPECT_EQ(Project().WizardAtStart, kFalse) << "not before Next";
  Next();
  EXPECT_EQ(Project().WizardAtStart, kTrue);
  Back(), Choose(3), Next();
  EXPECT_EQ(Project().WizardAtStart, kFalse);
}

TEST_F(StartDialog, With_Neither_Way_Chosen_The_Wizard_Stays_As_It_Was) {
  for (const Flag before : {kTrue, kFalse}) {
    Open();
    Next();
    Project().WizardAtStart = before;
    Next();
    EXPECT_EQ(Page(), 2);
    EXPECT_EQ(Project().WizardAtStart, before);
    Click("&Cancel");
  }
}

TEST_F(StartDialog, The_Wizard_Opens_Once_The_Last_Page_Is_Left) {
  Open();
  Choose(1), Next(), Choose(2), Next();
  EXPECT_EQ(wizards, 0);
  Next();
  EXPECT_EQ(Project().WizardAtStart, kTrue);
  EXPECT_EQ(wizards, 1);
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(asked_to_open, 0);
}

TEST_F(StartDialog, Who_Goes_Back_To_An_Existing_Project_Gets_No_Wizard) {
  Open();
  Next(), Choose(2), Next(), Back(), Back(), Choose(0), Next();
  EXPECT_EQ(asked_to_open, 1);
  EXPECT_EQ(wizards, 0);
}

TEST_F(StartDialog, Back_Leads_Back_And_Does_Nothing_On_The_First_Page) {
  Open();
  Next(), Next();
  Back();
  EXPECT_EQ(Page(), 1);
  Back();
  EXPECT_EQ(Page(), 0);
  Back();
  EXPECT_EQ(Page(), 0);
  EXPECT_TRUE(Dialog().isVisible());
}

TEST_F(StartDialog, Back_Keeps_What_Was_Chosen) {
  Open();
  Choose(1), Next(), Choose(3), Back();
  EXPECT_TRUE(Option1(1)->isChecked());
  EXPECT_TRUE(Option1(3)->isChecked());
}

TEST_F(StartDialog, A_Double_Click_On_Any_Option_Acts_As_Next) {
  Open();
  Double_Click(1);
  EXPECT_EQ(Page(), 1);
  Double_Click(2);
  EXPECT_EQ(Page(), 2);
  EXPECT_EQ(Project().WizardAtStart, kTrue);
  Back();
  Double_Click(3);
  EXPECT_EQ(Page(), 2);
  EXPECT_EQ(Project().WizardAtStart, kFalse);
  Back(), Back();
  Double_Click(0);
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(asked_to_open, 1);
}

TEST_F(StartDialog, A_Double_Click_With_Another_Button_Of_The_Mouse_Does_Nothing) {
  Open();
  QTest::mouseDClick(Option1(1), Qt::RightButton, {}, Dot(1));
  EXPECT_EQ(Page(), 0);
}

TEST_F(StartDialog, Cancel_Closes_It_And_Keeps_What_Was_Decided) {
  Open();
  Choose(1), Next(), Choose(2), Next();
  Click("&Cancel");
  EXPECT_FALSE(Dialog().isVisible());
  EXPECT_EQ(Project().WizardAtStart, kTrue);
  EXPECT_EQ(asked_to_open, 0);
  Open();
  QTest::keyClick(&Dialog(), Qt::Key_Escape);
  EXPECT_FALSE(Dialog().isVisible());
}

TEST_F(StartDialog, Help_Does_Nothing) {
  Open();
  Next();
  Click("&Help");
  EXPECT_EQ(asked_for_help, 0);
  EXPECT_TRUE(Dialog().isVisible());
  EXPECT_EQ(Page(), 1);
}

TEST_F(StartDialog, The_Chosen_Option_Of_Each_Page_Is_Blue) {
  Open();
  const auto blue = [this](int index) {
    return Option1(index)->palette().color(QPalette::WindowText) == kBlue;
  };
  for (int index = 0; index < 4; ++index) EXPECT_FALSE(blue(index)) << index;
  Choose(1);
  EXPECT_TRUE(blue(1));
  Next(), Choose(2);
  EXPECT_TRUE(blue(1));
  EXPECT_TRUE(blue(2));
  EXPECT_FALSE(blue(0));
  EXPECT_FALSE(blue(3));
  Choose(3);
  EXPECT_FALSE(blue(2));
  EXPECT_TRUE(blue(3));
}

TEST_F(StartDialog, Works_By_The_Keyboard_Alone) {
  Open();
  ASSERT_TRUE(Has_Keyboard(&Dialog()));
  EXPECT_EQ(Dialog().focusWidget(), Option1(0));
  QTest::keyClick(Dialog().focusWidget(), Qt::Key_Down);
  QTest::keyClick(Dialog().focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(Option1(1)->isChecked());
  QTest::keyClick(Dialog().focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Page(), 1);
  EXPECT_EQ(Dialog().focusWidget(), Option1(2));
  EXPECT_FALSE(Option1(2)->isChecked());
  QTest::keyClick(Dialog().focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(Option1(2)->isChecked());
  QTest::keyClick(Dialog().focusWidget(), Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(Wait_Until([this] { return Page() == 2; }));
}

TEST_F(StartDialog, Opened_While_It_Is_Open_It_Stays_As_It_Stands) {
  Open();
  Choose(1), Next(), Choose(2);
  Open();
  EXPECT_EQ(Page(), 1);
  EXPECT_TRUE(Option1(2)->isChecked());
}

TEST_F(StartDialog, Blocks_When_It_Is_Told_To) {
  bool modal = false;
  QTimer::singleShot(0, &workspace, [&] {
    modal = QApplication::activeModalWidget() == &Dialog();
    Choose(0), Next();
  });
  ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmOpen"), true));
  EXPECT_TRUE(modal);
  EXPECT_EQ(asked_to_open, 1);
}

TEST_F(StartDialog, No_Text_Is_Cut_Off) {
  Open();
  for (int page = 0; page < 3; ++page) {
    for (auto* widget : Dialog().findChildren<QWidget*>()) {
      if (!widget->isVisible() || !Frame2(page)->isVisible()) continue;
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
          << widget->objectName().toStdString();
      EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
          << widget->objectName().toStdString();
    }
    if (page < 2) Next();
  }
}

TEST_F(StartDialog, Goes_With_Its_Workspace) {
  auto second = std::make_unique<QWidget>();
  Register_frmOpen(second.get());
  second.reset();
  EXPECT_FALSE(Open_Screen(Row_Of_Screen("frmOpen"), false));
}

}  // namespace
}  // namespace barvon::testing

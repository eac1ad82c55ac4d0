#include "workspace/frm_tip.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "core/desk/screen_register.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/files/app_folder.h"
#include "program_screens.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// The window of tips in a program whose chance is told.
class Tip : public ::testing::Test {
 protected:
  Tip() {
    Register_Program_Screens(&bench.main());
    former_ = Set_Tip_Chance([this] { return chance; });
    Write_Text(bench.folder / "TIPOFDAY.TXT", "First tip.\r\n<b>Second</b> & tip.\r\n");
  }
  ~Tip() override {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
    Set_Tip_Chance(former_);
  }

  static frmTip* In_View() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* tip = dynamic_cast<frmTip*>(window);
      if (tip != nullptr && tip->isVisible()) return tip;
    }
    return nullptr;
  }
  frmTip& Open() {
    Open_Screen(Row_Of_Screen("frmTip"), false);
    EXPECT_TRUE(Has_Keyboard(In_View()));
    return *In_View();
  }
  static QString Text(const QWidget& tip) { return tip.findChild<QLabel*>("lblTipText")->text(); }
  static QCheckBox* Box(const QWidget& tip) {
    return tip.findChild<QCheckBox*>("chkLoadTipsAtStartup");
  }
  static QPushButton* Button(const QWidget& tip, const char* name) {
    return tip.findChild<QPushButton*>(QLatin1String(name));
  }
  std::string Settings() { return Read_Text(bench.folder / "BARVON.INI"); }

  Main_Bench bench;
  double chance = 0;

 private:
  Chance former_;
};

TEST_F(Tip, Comes_From_The_Users_File_Or_From_The_One_That_Came_With_The_Program) {
  const Scratch_Folder program;
  Write_Text(program / "TIPOFDAY.TXT", "A tip of the program.\n");
  Set_Delivered_Folder(program.path());
  frmTip& own = Open();
  EXPECT_EQ(Text(own), "First tip.");
  own.Unload();
  std::filesystem::remove(bench.folder / "TIPOFDAY.TXT");
  EXPECT_EQ(Text(Open()), "A tip of the program.");
  Set_Delivered_Folder("");
}

TEST_F(Tip, Shows_Its_Captions_And_A_First_Tip_By_Chance) {
  chance = 0.5;
  frmTip& tip = Open();
  EXPECT_EQ(tip.windowTitle(), "Tip of the Day");
  QStringList labels;
  for (const auto* label : tip.findChildren<QLabel*>()) labels << label->text();
  EXPECT_TRUE(labels.contains("Did you know..."));
  EXPECT_EQ(Box(tip)->text(), "&Show Tips at Startup");
  EXPECT_EQ(Button(tip, "cmdNextTip")->text(), "&Next Tip");
  EXPECT_EQ(Button(tip, "cmdOK")->text(), "OK");
  EXPECT_EQ(Text(tip), "<b>Second</b> & tip.");
  EXPECT_EQ(tip.findChild<QLabel*>("lblTipText")->textFormat(), Qt::PlainText);
  EXPECT_EQ(tip.focusWidget(), Button(tip, "cmdOK"));
}

TEST_F(Tip, Next_Tip_Shows_One_By_Chance_Which_May_Be_The_Same) {
  frmTip& tip = Open();
  EXPECT_EQ(Text(tip), "First tip.");
  chance = 0.9;
  for (int turn = 0; turn < 2; ++turn) {
    Click(Button(tip, "cmdNextTip"));
    EXPECT_EQ(Text(tip), "<b>Second</b> & tip.");
  }
  chance = 0.1;
  QTest::keyClick(&tip, Qt::Key_N, Qt::AltModifier);  // the button is seen to go down first
  EXPECT_TRUE(Wait_Until([&tip] { return Text(tip) == "First tip."; }));
}

TEST_F(Tip, OK_Return_And_Escape_Close_It) {
  Click(Button(Open(), "cmdOK"));
  EXPECT_EQ(In_View(), nullptr);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    QTest::keyClick(&Open(), key);
    EXPECT_EQ(In_View(), nullptr);
  }
}

TEST_F(Tip, An_Empty_File_Shows_No_Tip_And_No_Error) {
  Write_Text(bench.folder / "TIPOFDAY.TXT", "");
  const Scripted_Messages messages;
  frmTip& tip = Open();
  EXPECT_EQ(Text(tip), "");
  Click(Button(tip, "cmdNextTip"));
  EXPECT_EQ(Text(tip), "");
}

TEST_F(Tip, A_Missing_File_Is_Told_In_The_Place_Of_A_Tip) {
  std::remove((bench.folder / "TIPOFDAY.TXT").c_str());
  const Scripted_Messages messages;
  frmTip& tip = Open();
  EXPECT_EQ(Text(tip).toStdString(), Missing_Tips_Text());
  Click(Button(tip, "cmdNextTip"));
  EXPECT_EQ(Text(tip).toStdString(), Missing_Tips_Text());
}

TEST_F(Tip, The_Box_Writes_1_Or_0_At_Each_Click) {
  frmTip& tip = Open();
  EXPECT_FALSE(Box(tip)->isChecked());
  EXPECT_FALSE(Exists(bench.folder / "BARVON.INI"));
  for (const char* value : {"1", "0", "1"}) {
    Click(Box(tip));
    EXPECT_EQ(Settings(), "[Options]\r\nShow Tips at Startup=" + std::string(value) + "\r\n");
  }
  Click(Button(tip, "cmdOK"));
  EXPECT_TRUE(Box(Open())->isChecked());
}

TEST_F(Tip, Tools_Shows_Tips_Whatever_The_Box_Says) {
  for (const char* value : {"0", "1"}) {
    Write_Text(bench.folder / "BARVON.INI",
               "[Options]\r\nShow Tips at Startup=" + std::string(value) + "\r\n");
    int opened = 0;
    Modal_Replies replies({[&](QWidget* tip) {
      ++opened;
      EXPECT_EQ(tip->objectName(), "frmTip");
      EXPECT_EQ(Text(*tip), "First tip.");
      EXPECT_EQ(Box(*tip)->isChecked(), value == std::string("1"));
      Click(Button(*tip, "cmdOK"));
    }});
    QAction* entry = bench.Action("mnuToolItem(5)");
    EXPECT_TRUE(entry->isVisible());
    EXPECT_EQ(entry->text(), "Tip &of the Day");
    entry->trigger();
    EXPECT_EQ(opened, 1) << value;
  }
}

TEST_F(Tip, A_Tip_Of_Many_Words_Is_Scrolled) {
  Write_Text(bench.folder / "TIPOFDAY.TXT", std::string(4000, 'w') + " " + std::string(6000, 'x'));
  frmTip& tip = Open();
  QCoreApplication::processEvents();
  EXPECT_LE(tip.height(), tip.screen()->availableGeometry().height());
  Write_Text(bench.folder / "TIPOFDAY.TXT", QString("word ").repeated(2000).toStdString());
  Click(Button(tip, "cmdOK"));
  frmTip& words = Open();
  QCoreApplication::processEvents();
  EXPECT_LE(words.height(), words.screen()->availableGeometry().height());
  EXPECT_GT(words.findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
}

/// The start of a program in which a person has ticked the box.
class TipAtStart : public Tip {
 protected:
  TipAtStart() {
    Choose_Tips_At_Start(true);
    Open_Tips_At_Start();
    EXPECT_TRUE(Has_Keyboard(In_View()));
  }
};

TEST_F(TipAtStart, Blocks_Nothing) {
  EXPECT_FALSE(In_View()->isModal());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  Click(bench.controls().SSOption1(0));
  EXPECT_EQ(Project().AnalysisType, 1);
  // An input screen comes up blocking, without a word about the tip.
  const Scripted_Messages messages;
  int opened = 0;
  Modal_Replies replies({[&](QWidget* screen) {
    ++opened;
    EXPECT_EQ(screen->objectName(), "frmDescription");
    QTest::keyClick(screen, Qt::Key_Escape);
  }});
  bench.Action("mnuEditItem(1)")->trigger();
  EXPECT_EQ(opened, 1);
}

TEST_F(TipAtStart, Leaves_The_Start_Dialog_In_Front) {
  int opened = 0;
  Modal_Replies replies({[&](QWidget* dialog) {
    ++opened;
    EXPECT_EQ(dialog->objectName(), "frmOpen");
    EXPECT_TRUE(Has_Keyboard(dialog));
    QTest::keyClick(dialog, Qt::Key_Escape);
  }});
  bench.Action("mnuToolItem(0)")->trigger();
  EXPECT_EQ(opened, 1);
  EXPECT_NE(In_View(), nullptr);
}

TEST_F(TipAtStart, Goes_Without_A_Question_When_A_Project_Is_Opened_Or_Begun) {
  for (const int entry : {0, 1}) {
    Open_Tips_At_Start();
    ASSERT_NE(In_View(), nullptr);
    Click(Box(*In_View()));
    const Scripted_Messages messages;
    const std::string path = BARVON_SAMPLES "/Section_404_Zid.DUI";
    const auto files = Set_File_Dialog_Presenter(
        {[&path](const File_Request&) { return std::optional<std::string>(path); }, {}, {}});
    bench.Action(entry == 0 ? "mnuFileItem(0)" : "mnuFileItem(1)")->trigger();
    Set_File_Dialog_Presenter(files);
    EXPECT_EQ(In_View(), nullptr) << entry;
    Choose_Tips_At_Start(true);
  }
}

TEST_F(TipAtStart, Is_The_One_Window_Of_Tips) {
  bench.Action("mnuToolItem(5)")->trigger();
  int windows = 0;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (dynamic_cast<const frmTip*>(window) != nullptr && window->isVisible()) ++windows;
  }
  EXPECT_EQ(windows, 1);
  QTest::keyClick(In_View(), Qt::Key_Escape);
  EXPECT_EQ(In_View(), nullptr);
}

}  // namespace
}  // namespace barvon::testing

#include "workspace/open_screens.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "core/desk/recent_files.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_register.h"
#include "core/keys.h"
#include "core/project_record.h"
#include "core/velocity_types.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/qt/input_screen.h"
#include "site/frm_description.h"
#include "site/frm_velocity.h"
#include "support/screen_support.h"
#include "workspace/file_menu.h"

namespace barvon {
namespace {

using testing::Main_Bench;

/// A saved project A with the site and the velocity screen over it, another one beside it on the
/// disk, and someone who answers the questions.
class OpenScreens : public ::testing::Test {
 protected:
  OpenScreens() {
    Register_Screen(kSite, Fresh_Screens<frmDescription>(&bench.main()));
    Register_Screen(kVelocity, Fresh_Screens<frmVelocity>(&bench.main()));
    messages_ = Set_Message_Presenter([this](const Message& message) {
      asked.push_back(message.text);
      return answer;
    });
    files_ = Set_File_Dialog_Presenter(
        {[this](const File_Request&) { return std::optional(other); }, {}, {}});
    c.SSOption1(1)->click();
    record.ShowMode = 0;
    record.DEPC0 = 80;
    EXPECT_TRUE(Save_File(other, kProjectKind, record));
    record.DEPC0 = 30.5;
    record.NROA0 = 2;
    record.DensityDepths = {0, 0, 30.5};  // OK asks nothing
    record.VelocityProfileType = kSingleVelocity;
    record.AvgVelocityX = 1;
    EXPECT_TRUE(Save_File(first, kProjectKind, record));
    record.ProjectFileName = first;
    asked.clear();
  }
  ~OpenScreens() override {
    answer = Answer::Yes;
    Close_Input_Screens();
    Set_Message_Presenter(messages_);
    Set_File_Dialog_Presenter(files_);
    Register_Screen(kSite, {});
    Register_Screen(kVelocity, {});
  }

  Input_Screen* Screen(const Screen_Row& row) {
    for (auto* screen : bench.main().findChildren<QWidget*>(QLatin1String(row.name))) {
      if (screen->isVisible()) return static_cast<Input_Screen*>(screen);
    }
    return nullptr;
  }
  void Open_Both() {
    Open_Screen(kSite, false);
    Open_Screen(kVelocity, false);
  }
  void Type_Into(const Screen_Row& row, const char* control, const QString& text) {
    auto* field = Screen(row)->findChild<QLineEdit*>(QLatin1String(control));
    field->selectAll();
    QTest::keyClicks(field, text);
  }
  void Press_Ok(const Screen_Row& row) {
    Screen(row)->findChild<QPushButton*>(QStringLiteral("Command1(0)"))->click();
  }
  bool Both_Stand() { return Screen(kSite) != nullptr && Screen(kVelocity) != nullptr; }
  bool None_Stands() { return Screen(kSite) == nullptr && Screen(kVelocity) == nullptr; }

  static constexpr const Screen_Row& kSite = Row_Of_Screen("frmDescription");
  static constexpr const Screen_Row& kVelocity = Row_Of_Screen("frmVelocity");
  Main_Bench bench;
  Main_Controls& c = bench.controls();
  ProjectRecord& record = Project();
  const std::string first = bench.folder / "first.DUI";
  const std::string other = bench.folder / "other.DUI";
  std::vector<std::string> asked;
  Answer answer = Answer::Yes;

 private:
  Message_Presenter messages_;
  File_Dialog_Presenter files_;
};

using Texts = std::vector<std::string>;

TEST_F(OpenScreens, Untouched_Ones_Close_Without_A_Question_When_Another_Project_Comes) {
  for (const char* command : {"mnuFileItem(0)", "mnuFileItem(1)", "mnuFileItem(2)"}) {
    c.SSOption1(1)->click();
    Open_Both();
    bench.Action(command)->trigger();
    EXPECT_TRUE(None_Stands()) << command;
    EXPECT_EQ(asked, Texts{}) << command;
  }
}

TEST_F(OpenScreens, What_Was_Typed_Is_Asked_About_Once_And_Yes_Discards_It) {
  Open_Both();
  Type_Into(kSite, "Text1(4)", "31");
  bench.Action("mnuFileItem(1)")->trigger();
  EXPECT_EQ(asked, Texts{"Discard what was typed in Disposal Site Data?"});
  EXPECT_TRUE(None_Stands());
  EXPECT_EQ(record.DEPC0, 80) << "of the project that was opened";
  EXPECT_EQ(record.ProjectFileName, other);
}

TEST_F(OpenScreens, No_Stops_The_Command_And_Everything_Stands) {
  for (const char* command : {"mnuFileItem(0)", "mnuFileItem(1)", "mnuFileItem(2)"}) {
    if (!Both_Stand()) Open_Both();
    Type_Into(kVelocity, "Text1(1)", "2.5");
    answer = Answer::No;
    asked.clear();
    bench.Action(command)->trigger();
    EXPECT_EQ(asked, Texts{"Discard what was typed in Velocity Profile Data?"}) << command;
    EXPECT_TRUE(Both_Stand()) << command;
    EXPECT_EQ(record.ProjectFileName, first) << command;
    EXPECT_EQ(record.AvgVelocityX, 1) << command;
  }
}

TEST_F(OpenScreens, Two_That_Hold_Something_Are_Named_In_One_Question) {
  Open_Both();
  Type_Into(kSite, "Text1(4)", "31");
  Type_Into(kVelocity, "Text1(1)", "2.5");
  answer = Answer::No;
  bench.Action("mnuFileItem(2)")->trigger();
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_NE(asked[0].find("Disposal Site Data"), std::string::npos);
  EXPECT_NE(asked[0].find("Velocity Profile Data"), std::string::npos);
}

TEST_F(OpenScreens, A_Recent_File_Asks_Too) {
  Update_Recent_Files(other);
  GetRecentFiles();
  Open_Both();
  Type_Into(kSite, "Text1(4)", "31");
  answer = Answer::No;
  for (int i = 1; i <= kRecentFiles; ++i) {
    if (Recent_Menu().at(static_cast<std::size_t>(i)) == other) mnuRecentFile_Click(i, record);
  }
  EXPECT_EQ(asked, Texts{"Discard what was typed in Disposal Site Data?"});
  EXPECT_EQ(record.ProjectFileName, first);
  GetRecentFiles();
  EXPECT_NE(std::find(Recent_Menu().begin(), Recent_Menu().end(), other), Recent_Menu().end())
      << "a file that was not opened for that reason is still there";
}

TEST_F(OpenScreens, What_Is_Typed_Back_And_What_Is_Accepted_Is_No_Input) {
  Open_Screen(kVelocity, false);
  Type_Into(kVelocity, "Text1(1)", "2.5");
  EXPECT_TRUE(Screen(kVelocity)->Holds_Unsaved_Input());
  Type_Into(kVelocity, "Text1(1)", "1.0");
  EXPECT_FALSE(Screen(kVelocity)->Holds_Unsaved_Input());
}

TEST_F(OpenScreens, A_Cell_That_Is_Being_Typed_In_Is_Input) {
  Open_Screen(kSite, false);
  auto* book = Screen(kSite)->findChild<F1Book*>();
  book->setFocus();
  QTest::keyClicks(book, "5");
  EXPECT_TRUE(Screen(kSite)->Holds_Unsaved_Input());
}

TEST_F(OpenScreens, A_Method_Closes_The_Site_And_Leaves_The_Velocity) {
  Open_Both();
  Type_Into(kSite, "Text1(4)", "31");
  Type_Into(kVelocity, "Text1(1)", "2.5");
  c.SSOption2(1)->click();
  EXPECT_EQ(asked, Texts{"Discard what was typed in Disposal Site Data?"});
  EXPECT_EQ(Screen(kSite), nullptr);
  EXPECT_NE(Screen(kVelocity), nullptr);
  EXPECT_EQ(record.DisposalMethod, kBarge);
}

TEST_F(OpenScreens, No_Brings_The_Former_Choice_Back) {
  Open_Both();
  Type_Into(kSite, "Text1(4)", "31");
  Type_Into(kVelocity, "Text1(1)", "2.5");
  answer = Answer::No;
  c.SSOption2(1)->click();
  EXPECT_TRUE(c.SSOption2(0)->isChecked());
  EXPECT_EQ(record.DisposalMethod, kHopper);
  c.Option3D1(1)->click();
  EXPECT_TRUE(c.Option3D1(0)->isChecked());
  c.Check3D1->click();
  EXPECT_FALSE(c.Check3D1->isChecked());
  EXPECT_EQ(record.VelocityProfileType, kSingleVelocity);
  EXPECT_TRUE(Both_Stand());
  answer = Answer::Yes;
  c.Option3D1(2)->click();
  EXPECT_EQ(record.VelocityProfileType, kVelocityField);
  EXPECT_EQ(Screen(kVelocity), nullptr);
}

TEST_F(OpenScreens, A_Discard_Goes_Back_To_The_Opening_Wherever_The_User_Was_Meanwhile) {
  record.ConstantDepthFlag = 1;
  Open_Screen(kSite, false);
  Screen(kSite)->findChild<QCheckBox*>(QStringLiteral("Check3D1(1)"))->click();
  EXPECT_EQ(record.ConstantDepthFlag, 0) << "written at once";
  Open_Screen(kVelocity, false);
  Screen(kVelocity)->findChild<QRadioButton*>(QStringLiteral("Option3D1(3)"))->click();
  ASSERT_TRUE(testing::Has_Keyboard(Screen(kVelocity)));
  for (const Screen_Row* row : {&kSite, &kVelocity, &kSite}) {
    Screen(*row)->activateWindow();
    ASSERT_TRUE(testing::Has_Keyboard(Screen(*row)));
  }
  bench.main().activateWindow();
  EXPECT_TRUE(Close_Input_Screens());
  EXPECT_EQ(record.ConstantDepthFlag, 1);
  EXPECT_EQ(record.VelocityProfileType, kSingleVelocity);
}

TEST_F(OpenScreens, A_File_That_Is_Gone_Discards_Nothing) {
  Open_Screen(kSite, false);
  Type_Into(kSite, "Text1(4)", "31");
  EXPECT_FALSE(Open_From_Workspace(bench.folder / "gone.DUI", record));
  EXPECT_NE(Screen(kSite), nullptr);
  EXPECT_EQ(asked.size(), 1u) << "only that it can't be opened";
}

TEST_F(OpenScreens, A_Screen_That_The_Error_List_Opened_Refreshes_The_Boards) {
  for (const bool blocking : {false, true}) {
    c.SiteLabel(0)->setText("not refreshed");
    if (blocking) {
      QTimer::singleShot(0, &bench.main(), [this] { Press_Ok(kSite); });
    }
    Open_Screen(kSite, blocking);
    if (!blocking) Press_Ok(kSite);
    EXPECT_NE(c.SiteLabel(0)->text(), "not refreshed") << blocking;
  }
}

}  // namespace
}  // namespace barvon

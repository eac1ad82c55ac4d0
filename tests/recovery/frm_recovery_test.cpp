#include "recovery/frm_recovery.h"

#include <gtest/gtest.h>

#include <QTest>
#include <cstdlib>
#include <filesystem>

#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/keys.h"
#include "recovery/recovery_clock.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using namespace testing;

struct FrmRecovery : ::testing::Test {
  FrmRecovery() {
    ::setenv("XDG_DATA_HOME", (bench.folder / "data").c_str(), 1);
    std::filesystem::copy_file(BARVON_SAMPLES "/Barge_Four_Layers.DUI", path);
  }

  /// The window had the project open with this title when it was killed.
  void Crash(const std::string& title) {
    ASSERT_TRUE(Open_Project(path, Project()));
    Recovery_Keeper keeper(Project());
    Project().ProjectTitle = title;
    Project().DataSaved = kFalse;
    keeper.Leave_Unasked();
    bench.Action("mnuFileItem(0)")->trigger();
  }
  /// Offers what is left; `act` is what a person does in the window.
  bool Offer(const std::function<void(QWidget*)>& act) {
    Modal_Replies replies({[&](QWidget* window) { act(window); }});
    return Offer_Recovery(&bench.main(), keeper);
  }
  static void Press(QWidget* window, int command) {
    Click(window->findChild<QPushButton*>(QStringLiteral("Command1(%1)").arg(command)));
  }

  Main_Bench bench;
  std::string path = bench.folder / "site.DUI";
  Recovery_Keeper keeper{Project()};
  Recovery_Clock clock{keeper};
};

TEST_F(FrmRecovery, Does_Not_Come_Up_When_Nothing_Was_Left) {
  EXPECT_FALSE(Offer_Recovery(&bench.main(), keeper));
}

TEST_F(FrmRecovery, Shows_What_Differs_And_Restores_It) {
  Crash("After the crash");
  EXPECT_TRUE(Offer([&](QWidget* window) {
    EXPECT_EQ(window->windowTitle(), "Restore Unsaved Changes");
    auto* list = window->findChild<QListWidget*>("List1");
    ASSERT_EQ(list->count(), 1);
    EXPECT_TRUE(list->hasFocus());
    EXPECT_TRUE(list->item(0)->text().startsWith("site.DUI, changes up to 20"));
    auto* table = window->findChild<QTableWidget*>("Table1");
    ASSERT_EQ(table->rowCount(), 1);
    EXPECT_EQ(table->horizontalHeaderItem(2)->text(), "In the file");
    EXPECT_EQ(table->item(0, 1)->text(), "Project Title");
    EXPECT_EQ(table->item(0, 3)->text(), "After the crash");
    QTest::keyClick(list, Qt::Key_Return);
  }));
  EXPECT_EQ(bench.main().windowTitle().toStdString(), "BARVON - " + path);
  EXPECT_EQ(bench.controls().Title_Box->text(), "After the crash");
  EXPECT_EQ(Project().DataSaved, kFalse);
  EXPECT_EQ(bench.controls().Text2(1)->text(), "Data Supplied");
  EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(),
            "site.DUI is restored, with the changes that were not saved.");
  bench.Action("mnuFileItem(0)")->trigger();  // a new project wants nothing of it
  EXPECT_FALSE(Offer_Recovery(&bench.main(), keeper));
}

// A value that is kept in the file and shown nowhere.
TEST_F(FrmRecovery, A_Change_That_No_Report_Tells_Is_Said_To_Be_None_Of_Its) {
  ASSERT_TRUE(Open_Project(path, Project()));
  Recovery_Keeper former(Project());
  Project().SpareReal21 = 5;
  Project().DataSaved = kFalse;
  former.Leave_Unasked();
  bench.Action("mnuFileItem(0)")->trigger();
  EXPECT_FALSE(Offer([&](QWidget* window) {
    EXPECT_EQ(window->findChild<QTableWidget*>("Table1")->rowCount(), 0);
    EXPECT_EQ(window->findChild<QLabel*>("Label2")->text().toStdString(),
              path + " is as it was. Nothing that a report tells differs.");
    EXPECT_TRUE(window->findChild<QPushButton*>("Command1(0)")->isEnabled());
    Press(window, 1);
  }));
}

TEST_F(FrmRecovery, What_It_Says_Is_Taken_Back_By_A_Save) {
  Crash("After the crash");
  EXPECT_TRUE(Offer([](QWidget* window) { Press(window, 0); }));
  EXPECT_TRUE(Save_File(path, kProjectKind, Project()));
  EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(), "");
  bench.Action("mnuFileItem(0)")->trigger();
}

TEST_F(FrmRecovery, A_Note_That_Came_Behind_It_Stays) {
  Crash("After the crash");
  EXPECT_TRUE(Offer([](QWidget* window) { Press(window, 0); }));
  Port().board.show_note({"merak32 ended with code 0 after 1 s", {}});
  EXPECT_TRUE(Save_File(path, kProjectKind, Project()));
  EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(), "merak32 ended with code 0 after 1 s");
  bench.Action("mnuFileItem(0)")->trigger();
}

TEST_F(FrmRecovery, Escape_Keeps_Everything_For_The_Next_Start) {
  Crash("later");
  for (int i = 0; i < 2; ++i) {
    EXPECT_FALSE(Offer([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); }));
    EXPECT_EQ(Project().ProjectTitle, "");
  }
}

TEST_F(FrmRecovery, Throwing_The_Last_One_Away_Is_Asked_And_Closes_The_Window) {
  Crash("away");
  Modal_Replies replies(
      {[](QWidget* window) { Press(window, 2); }, testing::Press(QMessageBox::Yes)});
  EXPECT_FALSE(Offer_Recovery(&bench.main(), keeper));
  EXPECT_FALSE(Offer_Recovery(&bench.main(), keeper));
}

TEST_F(FrmRecovery, Throwing_One_Of_Two_Away_Leaves_The_Other_In_View) {
  Crash("first");
  const std::string other = bench.folder / "other.DUI";
  std::filesystem::copy_file(path, other);
  path = other;
  Crash("second");
  Modal_Replies replies({[](QWidget* window) {
                           const auto* list = window->findChild<QListWidget*>("List1");
                           ASSERT_EQ(list->count(), 2);
                           const QString chosen = list->item(0)->text();
                           Press(window, 2);
                           ASSERT_EQ(list->count(), 1);
                           EXPECT_NE(list->item(0)->text(), chosen);
                           EXPECT_EQ(list->currentRow(), 0);
                           EXPECT_EQ(window->focusWidget(), list);
                           Press(window, 1);
                         },
                         testing::Press(QMessageBox::Yes)});
  EXPECT_FALSE(Offer_Recovery(&bench.main(), keeper));
  EXPECT_EQ(Recovery_Rows().size(), 1U);
}

TEST_F(FrmRecovery, The_End_Of_The_Program_Leaves_Neither_Copy_Nor_Lock) {
  Crash("restored");
  EXPECT_TRUE(Offer([](QWidget* window) { Press(window, 0); }));
  EXPECT_TRUE(Exists(Lock_Path_Of(path)));
  Port().recovery.leave();
  EXPECT_EQ(Names_In(bench.folder / "data/barvon/recovery"), std::vector<std::string>{});
}

}  // namespace
}  // namespace barvon

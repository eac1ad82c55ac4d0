#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QTest>
#include <tuple>

#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/ask/help_viewer.h"
#include "support/screen_support.h"
#include "workspace/file_menu.h"

namespace barvon {
namespace {

using testing::Close_Window;
using testing::Main_Bench;
using testing::Modal_Replies;
using testing::Press;
using testing::Press_Escape;

class MainClose : public ::testing::Test {
 protected:
  MainClose() {
    former_ = Set_Help_Presenter([this](const Help_Request& request) {
      if (request.command == Help_Command::Quit) ++help_closed;
    });
  }
  ~MainClose() override { Set_Help_Presenter(former_); }

  void Title_The_Project() {
    Project().ProjectFileName = bench.folder / "bay.DUI";
    Port().board.set_caption("BARVON - " + Project().ProjectFileName);
    Project().DataSaved = kFalse;
  }

  Main_Bench bench;
  int help_closed = 0;

 private:
  Help_Presenter former_;
};

TEST_F(MainClose, Each_Question_Has_Its_Title_Icon_Buttons_And_Default) {
  Modal_Replies replies({Press_Escape(), Press_Escape(), Press_Escape()});
  bench.main().close();
  bench.Action("mnuFileItem(10)")->trigger();
  Title_The_Project();
  bench.main().close();
  const QMessageBox::StandardButtons yes_no = QMessageBox::Yes | QMessageBox::No;
  const std::tuple<QString, QString, QMessageBox::Icon, QMessageBox::StandardButtons> boxes[] = {
      {"screen_tests", "Do You Wish to Quit?", QMessageBox::Question, yes_no},
      {"BARVON", "Are You Sure You Want to Quit?", QMessageBox::NoIcon, yes_no},
      {"BARVON", "Do You Wish To Save the Current File Before Quitting?", QMessageBox::NoIcon,
       yes_no | QMessageBox::Cancel}};
  ASSERT_EQ(replies.seen.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    const auto& [title, text, icon, buttons] = boxes[i];
    EXPECT_EQ(replies.seen[i].title, title);
    EXPECT_EQ(replies.seen[i].text, text);
    EXPECT_EQ(replies.seen[i].icon, icon);
    EXPECT_EQ(replies.seen[i].buttons, buttons);
    EXPECT_EQ(replies.seen[i].default_button, QMessageBox::Yes);
  }
  EXPECT_EQ(bench.ended, 0);
}

TEST_F(MainClose, An_Untitled_Project_Is_Only_Asked_About_Quitting_Even_With_Data) {
  Project().DataSaved = kFalse;
  Project().DX0 = 100;
  Modal_Replies replies({Press(QMessageBox::No)});
  EXPECT_FALSE(bench.main().close());
  EXPECT_EQ(replies.seen.at(0).text, "Do You Wish to Quit?");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Question);
  EXPECT_EQ(replies.seen.at(0).buttons, QMessageBox::Yes | QMessageBox::No);
  EXPECT_EQ(bench.ended, 0);
  EXPECT_TRUE(bench.main().isVisible());
}

TEST_F(MainClose, Yes_To_Quitting_Ends_The_Process_And_Closes_Help) {
  Modal_Replies replies({Press(QMessageBox::Yes)});
  bench.main().close();
  EXPECT_EQ(bench.ended, 1);
  EXPECT_EQ(help_closed, 1);
}

TEST_F(MainClose, No_To_Saving_Keeps_The_Program_Open) {
  Title_The_Project();
  Modal_Replies replies({Press(QMessageBox::No)});
  EXPECT_FALSE(bench.main().close());
  EXPECT_EQ(replies.seen.at(0).text, "Do You Wish To Save the Current File Before Quitting?");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  EXPECT_EQ(bench.ended, 0);
}

TEST_F(MainClose, Cancel_To_Saving_Ends_The_Program_Without_Saving) {
  Title_The_Project();
  Modal_Replies replies({Press(QMessageBox::Cancel)});
  bench.main().close();
  EXPECT_EQ(bench.ended, 1);
  EXPECT_EQ(help_closed, 1);
  EXPECT_FALSE(testing::Exists(bench.folder / "bay.DUI"));
}

TEST_F(MainClose, Getting_Rid_Of_The_Save_Prompt_Keeps_The_Program_Open) {
  Title_The_Project();
  Modal_Replies replies({Press_Escape(), Close_Window()});
  EXPECT_FALSE(bench.main().close());
  EXPECT_FALSE(bench.main().close());
  EXPECT_EQ(replies.seen.at(1).text, "Do You Wish To Save the Current File Before Quitting?");
  EXPECT_EQ(bench.ended, 0);
}

TEST_F(MainClose, Yes_To_Saving_Saves_And_Ends) {
  Title_The_Project();
  // The fresh record has errors; No saves it all the same.
  Modal_Replies replies({Press(QMessageBox::Yes), Press(QMessageBox::No)});
  bench.main().close();
  EXPECT_EQ(Project().DataSaved, kTrue);
  EXPECT_TRUE(testing::Exists(bench.folder / "bay.DUI"));
  EXPECT_EQ(bench.ended, 1);
}

TEST_F(MainClose, A_Save_That_Was_Called_Off_Keeps_The_Program_Open) {
  Title_The_Project();
  Modal_Replies replies({Press(QMessageBox::Yes), Press(QMessageBox::Cancel)});
  EXPECT_FALSE(bench.main().close());
  EXPECT_EQ(bench.ended, 0);
  EXPECT_TRUE(bench.main().isVisible());
}

TEST_F(MainClose, A_Saved_Project_Is_Only_Asked_About_Quitting) {
  Title_The_Project();
  Project().DataSaved = kTrue;
  Modal_Replies replies({Press_Escape()});
  EXPECT_FALSE(bench.main().close());
  EXPECT_EQ(replies.seen.at(0).text, "Do You Wish to Quit?");
}

TEST_F(MainClose, A_Second_Close_While_The_Box_Is_Open_Does_Nothing) {
  Modal_Replies replies({[&](QWidget* box) {
    QCloseEvent second;
    QCoreApplication::sendEvent(&bench.main(), &second);
    EXPECT_FALSE(second.isAccepted());
    box->close();
  }});
  EXPECT_FALSE(bench.main().close());
  QTest::qWait(30);
  EXPECT_EQ(replies.windows, 1);
}

TEST_F(MainClose, Exit_Never_Offers_To_Save) {
  Title_The_Project();
  Modal_Replies replies({Press(QMessageBox::No), Press(QMessageBox::Yes)});
  QTest::mouseClick(bench.controls().SSPanel3(5), Qt::LeftButton);
  EXPECT_EQ(bench.ended, 0);
  bench.Action("mnuFileItem(10)")->trigger();
  EXPECT_EQ(bench.ended, 1);
  EXPECT_EQ(help_closed, 1);
  EXPECT_EQ(replies.seen.at(0).text, "Are You Sure You Want to Quit?");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::NoIcon);
  EXPECT_FALSE(testing::Exists(bench.folder / "bay.DUI"));
}

}  // namespace
}  // namespace barvon

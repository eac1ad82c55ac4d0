#include "workspace/frm_about.h"

#include <gtest/gtest.h>

#include <QTest>

#include "core/desk/screen_register.h"
#include "program_screens.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

class About : public ::testing::Test {
 protected:
  About() { Register_Program_Screens(&bench.main()); }
  ~About() override {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
  }

  /// Opens About from the Help menu and hands it to `look`, which closes it; a window that it opens
  /// goes to `more`.
  void From_The_Menu(const std::function<void(QDialog&)>& look,
                     const std::vector<Reply>& more = {}) {
    std::vector<Reply> replies = {[&look](QWidget* dialog) {
      ASSERT_EQ(dialog->objectName(), "frmAbout");
      ASSERT_TRUE(Has_Keyboard(dialog));
      look(static_cast<QDialog&>(*dialog));
    }};
    replies.insert(replies.end(), more.begin(), more.end());
    const Modal_Replies answered(replies);
    bench.Action("mnuHelpItem(3)")->trigger();
  }
  static QPushButton* Button(const QWidget& screen, const char* name) {
    return screen.findChild<QPushButton*>(QLatin1String(name));
  }
  static QString Text(const QWidget& screen, const char* name) {
    return screen.findChild<QLabel*>(QLatin1String(name))->text();
  }

  Main_Bench bench;
};

TEST_F(About, Opens_Blocking_From_The_Help_Menu_And_Shows_What_The_Program_Is) {
  From_The_Menu([](QDialog& about) {
    EXPECT_TRUE(about.isModal());
    EXPECT_EQ(about.windowTitle(), "About BARVON");
    EXPECT_EQ(Text(about, "lblVersion1"), "Version: 1.1");
    EXPECT_TRUE(Text(about, "lblDisclaimer").startsWith("Warning: Results are no substitute for "));
    EXPECT_FALSE(Text(about, "lblTitle").isEmpty());
    EXPECT_GE(Text(about, "lblDescription").count('\n'), 2);
    EXPECT_EQ(Button(about, "cmdOK")->text(), "OK");
    EXPECT_EQ(Button(about, "cmdSysInfo")->text(), "&System Info...");
    EXPECT_EQ(Button(about, "Cmd_LoadMore")->text(), "More...");
    EXPECT_FALSE(about.findChild<QLabel*>("picIcon")->pixmap().isNull());
    EXPECT_EQ(about.focusWidget(), Button(about, "cmdOK"));
    Click(Button(about, "cmdOK"));
    EXPECT_FALSE(about.isVisible());
  });
}

TEST_F(About, Return_And_Escape_Close_It) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    From_The_Menu([key](QDialog& about) {
      QTest::keyClick(&about, key);
      EXPECT_FALSE(about.isVisible());
    });
  }
}

TEST_F(About, System_Info_Tells_That_There_Is_None) {
  From_The_Menu([](QDialog& about) {
    {
      const Scripted_Messages messages({Answer::Ok});
      Click(Button(about, "cmdSysInfo"));
      ASSERT_EQ(messages.shown.size(), 1U);
      EXPECT_EQ(messages.shown[0].text, "System Information Is Unavailable At This Time");
      EXPECT_EQ(messages.shown[0].title, "BARVON");
      EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    }
    EXPECT_TRUE(about.isVisible());
    Click(Button(about, "cmdOK"));
  });
}

TEST_F(About, More_Opens_Blocking_At_The_Corner_And_Closes_By_Its_Button) {
  const Reply look_at_more = [](QWidget* more) {
    ASSERT_EQ(more->objectName(), "frmAboutMore");
    EXPECT_TRUE(more->isModal());
    const QRect display = more->screen()->geometry();
    EXPECT_EQ(more->pos(), QPoint(static_cast<int>(display.width() * 0.03),
                                  static_cast<int>(display.height() * 0.03)));
    const auto buttons = more->findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 1);
    Click(buttons[0]);
    EXPECT_FALSE(more->isVisible());
  };
  From_The_Menu(
      [](QDialog& about) {
        Click(Button(about, "Cmd_LoadMore"));
        EXPECT_TRUE(about.isVisible());
        Click(Button(about, "cmdOK"));
      },
      {look_at_more});
}

TEST_F(About, More_Ends_With_The_Version_Of_The_Sources_And_The_Libraries) {
  const frmAboutMore more(&bench.main());
  const QString built = Text(more, "lblMore(3)");
  EXPECT_TRUE(built.contains(BARVON_VERSION)) << built.toStdString();
  EXPECT_TRUE(built.contains(QStringLiteral("Qt ") + qVersion())) << built.toStdString();
}

}  // namespace
}  // namespace barvon::testing

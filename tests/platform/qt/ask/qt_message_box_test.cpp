#include "platform/qt/ask/qt_message_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>

#include "platform/ask/busy_cursor.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using testing::Close_Window;
using testing::Modal_Replies;
using testing::Press;
using testing::Press_Escape;

class MessageBox : public ::testing::Test {
 protected:
  Qt_Services services_;
};

TEST_F(MessageBox, Shows_Text_Title_And_Icon_As_They_Stand) {
  const std::pair<Icon, QMessageBox::Icon> icons[] = {
      {Icon::None, QMessageBox::NoIcon},
      {Icon::Critical, QMessageBox::Critical},
      {Icon::Question, QMessageBox::Question},
      {Icon::Warning, QMessageBox::Warning},
      {Icon::Information, QMessageBox::Information}};
  for (const auto& [icon, shown] : icons) {
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Show_Message({"Could not Excecute  Preprocessor!", "BARVON Error", Buttons::Ok, icon});
    ASSERT_EQ(replies.seen.size(), 1u);
    EXPECT_EQ(replies.seen[0].text, "Could not Excecute  Preprocessor!");
    EXPECT_EQ(replies.seen[0].title, "BARVON Error");
    EXPECT_EQ(replies.seen[0].icon, shown);
  }
}

TEST_F(MessageBox, A_Path_With_Tags_In_It_Is_Plain_Text) {
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Show_Message({"Can't Open File: /a/<b>&amp;.DUI"});
  EXPECT_EQ(replies.seen.at(0).format, Qt::PlainText);
  EXPECT_EQ(replies.seen.at(0).text, "Can't Open File: /a/<b>&amp;.DUI");
}

TEST_F(MessageBox, A_Long_Title_Makes_A_Box_Of_Few_Words_Wider) {
  const auto width_with = [](const std::string& title) {
    int width = 0;
    Modal_Replies replies({[&](QWidget* box) {
      width = box->width();
      box->close();
    }});
    Show_Message({"?", title});
    return width;
  };
  const std::string title = "A title of more letters than its text";
  const int title_width =
      QFontMetrics(QApplication::font()).horizontalAdvance(QString::fromStdString(title));
  EXPECT_GT(width_with(title), title_width + 100) << "with room for an icon and three buttons";
  EXPECT_LT(width_with("?"), title_width);
}

TEST_F(MessageBox, Every_Button_Brings_Its_Answer_And_The_First_One_Is_The_Default) {
  struct Case {
    Buttons buttons;
    QMessageBox::StandardButtons shown;
    std::vector<std::pair<QMessageBox::StandardButton, Answer>> answers;
  };
  const Case cases[] = {
      {Buttons::Ok, QMessageBox::Ok, {{QMessageBox::Ok, Answer::Ok}}},
      {Buttons::OkCancel,
       QMessageBox::Ok | QMessageBox::Cancel,
       {{QMessageBox::Ok, Answer::Ok}, {QMessageBox::Cancel, Answer::Cancel}}},
      {Buttons::YesNo,
       QMessageBox::Yes | QMessageBox::No,
       {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}}},
      {Buttons::YesNoCancel,
       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
       {{QMessageBox::Yes, Answer::Yes},
        {QMessageBox::No, Answer::No},
        {QMessageBox::Cancel, Answer::Cancel}}},
  };
  for (const Case& c : cases) {
    for (const auto& [button, answer] : c.answers) {
      Modal_Replies replies({Press(button)});
      EXPECT_EQ(Show_Message({"?", "BARVON", c.buttons, Icon::None}), answer);
      EXPECT_EQ(replies.seen.at(0).buttons, c.shown);
      EXPECT_EQ(replies.seen.at(0).default_button, c.answers.front().first);
    }
  }
}

TEST_F(MessageBox, Escape_And_The_Close_Box_Are_Cancel_Or_No_Or_Ok) {
  const std::pair<Buttons, Answer> cases[] = {{Buttons::Ok, Answer::Ok},
                                              {Buttons::OkCancel, Answer::Cancel},
                                              {Buttons::YesNo, Answer::No},
                                              {Buttons::YesNoCancel, Answer::Cancel}};
  for (const auto& [buttons, answer] : cases) {
    Modal_Replies replies({Press_Escape(), Close_Window()});
    EXPECT_EQ(Show_Message({"?", "BARVON", buttons, Icon::None}), answer);
    EXPECT_EQ(Show_Message({"?", "BARVON", buttons, Icon::None}), answer);
  }
}

TEST_F(MessageBox, A_Message_May_Say_What_Closing_It_Counts_As) {
  const Message message{"?", "BARVON", Buttons::YesNoCancel, Icon::None, Answer::No};
  Modal_Replies replies({Press_Escape(), Close_Window(), Press(QMessageBox::Cancel)});
  EXPECT_EQ(Show_Message(message), Answer::No);
  EXPECT_EQ(Show_Message(message), Answer::No);
  EXPECT_EQ(Show_Message(message), Answer::Cancel);
}

TEST_F(MessageBox, The_Wait_Cursor_Rests_While_A_Box_Asks) {
  const Busy_Cursor busy;
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  Qt::CursorShape during = Qt::WaitCursor;
  Modal_Replies replies({[&](QWidget* box) {
    during = QApplication::overrideCursor()->shape();
    box->close();
  }});
  Show_Message({"Unable to Save File!"});
  EXPECT_EQ(during, Qt::ArrowCursor);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

}  // namespace
}  // namespace barvon

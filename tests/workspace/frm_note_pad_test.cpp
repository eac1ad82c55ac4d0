#include "workspace/frm_note_pad.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <filesystem>
#include <iterator>
#include <regex>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/process/document_opener.h"
#include "platform/qt/qt_document_opener.h"
#include "platform/qt/session_printer.h"
#include "support/screen_support.h"
#include "workspace/note_pads.h"
#include "workspace/text_documents.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class NotePad : public ::testing::Test {
 protected:
  NotePad() {
    Register_frmNotePad(&bench.main());
    bench.main().show();
    const auto choose = [this](const File_Request& request) {
      asked.push_back(request);
      return chosen;
    };
    former_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
  }
  ~NotePad() override {
    Set_File_Dialog_Presenter(former_);
    for (const char* name : {"frmNotePad", "Open_Text_File"})
      Register_Screen(*Find_Screen(name), {});
    Set_Own_Text_Window({});
  }

  frmNotePad& Untitled() {
    bench.Action("mnuToolItem(4)")->trigger();
    return *Open_Texts().back();
  }
  frmNotePad& Opened(const std::string& bytes, const char* name = "site.duo") {
    Write_Text(bench.folder / name, bytes);
    chosen = bench.folder / name;
    bench.Action("mnuToolItem(6)")->trigger();
    return *Open_Texts().back();
  }
  static void Do(const frmNotePad& text, const char* action) {
    text.findChild<QAction*>(QString("NotePad") + action)->trigger();
  }
  static QPlainTextEdit* Text1(const frmNotePad& text) {
    return text.findChild<QPlainTextEdit*>("Text1");
  }
  static Large_Text_View* View(const frmNotePad& text) {
    return dynamic_cast<Large_Text_View*>(text.findChild<QAbstractScrollArea*>("Text1"));
  }
  static std::string Place(const frmNotePad& text) {
    return text.findChild<QLabel*>("Place")->text().toStdString();
  }
  std::string Saved(const char* name = "site.duo") { return Read_Text(bench.folder / name); }

  Main_Bench bench;
  std::optional<std::string> chosen;
  std::vector<File_Request> asked;

 private:
  File_Dialog_Presenter former_;
};

int Pages_In(const std::string& pdf) {
  const std::regex page("/Type /Page[^s]");
  return static_cast<int>(
      std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), page), std::sregex_iterator()));
}

TEST_F(NotePad, Text_Viewer_Makes_An_Untitled_Text_That_Blocks_Nobody) {
  frmNotePad& text = Untitled();
  EXPECT_EQ(text.windowTitle(), "Untitled");
  EXPECT_EQ(text.objectName(), "frmNotePad");
  EXPECT_TRUE(text.isVisible());
  EXPECT_FALSE(text.isModal());
  EXPECT_EQ(text.property("tag").toInt(), 1);
  EXPECT_EQ(Text1(text)->toPlainText(), "");
  EXPECT_TRUE(QFontInfo(Text1(text)->font()).fixedPitch());
  EXPECT_EQ(Untitled().property("tag").toInt(), 2) << "any number of them";
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse);
}

TEST_F(NotePad, Open_Text_File_Offers_Outputs_Texts_And_All_Files) {
  frmNotePad& text = Opened("first\r\nlast\r\n");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].title, "Open Text File");
  ASSERT_EQ(asked[0].filters.size(), 3U);
  EXPECT_EQ(asked[0].filters[0].pattern, "*.DUO");
  EXPECT_EQ(asked[0].filters[1].pattern, "*.txt");
  EXPECT_EQ(asked[0].filters[2].pattern, "*");
  EXPECT_EQ(text.windowTitle().toStdString(), bench.folder / "site.duo");
  EXPECT_EQ(Text1(text)->toPlainText(), "first\nlast\n");
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse) << "loading is no change";
  EXPECT_EQ(bench.main().windowTitle(), "BARVON - UNTITLED.DUI");
  EXPECT_FALSE(Exists(bench.folder / "BARVON.INI")) << "no entry among the recent files";
}

TEST_F(NotePad, Open_Text_File_Called_Off_Opens_Nothing_And_A_Missing_File_Is_Told) {
  bench.Action("mnuToolItem(6)")->trigger();
  EXPECT_TRUE(Open_Texts().empty());
  chosen = bench.folder / "none.txt";
  Modal_Replies replies({Press(QMessageBox::Ok)});
  bench.Action("mnuToolItem(6)")->trigger();
  EXPECT_EQ(replies.seen.at(0).text.toStdString(),
            "Can't Open File: " + *chosen + "   Or File Not Found");
  EXPECT_TRUE(Open_Texts().empty());
  EXPECT_FALSE(Documents().Any_Open());
}

TEST_F(NotePad, A_Folder_Is_No_Text) { EXPECT_FALSE(Open_Text(bench.folder.path(), bench.main())); }

TEST_F(NotePad, A_Saved_Text_Keeps_Every_Byte_That_Was_Not_Typed_Over) {
  using namespace std::string_literals;
  const std::pair<std::string, std::string> cases[] = {
      {"a\nb\n", "Xa\nb\n"},
      {"a\r\nb\r\n", "Xa\r\nb\r\n"},
      {"a\r\nb\nc\rd", "Xa\r\nb\nc\rd"},
      {"no end", "Xno end"},
      {"", "X"},
      {"caf\xC3\xA9\n", "Xcaf\xC3\xA9\n"},
      {"\xEF\xBB\xBFmark\r\n", "\xEF\xBB\xBFXmark\r\n"},
      {"caf\xE9 \x80\r\n", "Xcaf\xE9 \x80\r\n"},
      {"a\0b\0\r\n\f\x1A"s, "Xa\0b\0\r\n\f\x1A"s},
      {"non\xA0"
       "breaking, \xAD soft\n",
       "Xnon\xA0"
       "breaking, \xAD soft\n"},
      {"\x81\x8D\x8F\x90\x9D\n", "X\x81\x8D\x8F\x90\x9D\n"},
      {"line\xE2\x80\xA8separator\n", "Xline\xE2\x80\xA8separator\n"},
  };
  for (const auto& [before, after] : cases) {
    frmNotePad& text = Opened(before);
    ASSERT_NE(Text1(text), nullptr);
    QTest::keyClicks(Text1(text), "X");
    EXPECT_EQ(Documents().FState(text.index()).Dirty, kTrue);
    Do(text, "Save");
    EXPECT_EQ(Saved(), after);
    EXPECT_EQ(Documents().FState(text.index()).Dirty, kFalse);
    ASSERT_TRUE(text.close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(NotePad, An_Unchanged_Text_Is_Saved_As_It_Was_Read) {
  std::string all = "mixed\r\nends\n\r";
  for (int i = 1; i < 256; ++i) all += static_cast<char>(i);
  frmNotePad& text = Opened(all);
  chosen = bench.folder / "copy.txt";
  Do(text, "SaveAs");
  EXPECT_EQ(Saved("copy.txt"), all);
  EXPECT_EQ(text.windowTitle().toStdString(), *chosen);
}

TEST_F(NotePad, New_Lines_Get_The_Line_End_Of_The_Others) {
  frmNotePad& text = Opened("a\nb\n");
  QTest::keyClick(Text1(text), Qt::Key_Return);
  QTest::keyClick(Text1(text), Qt::Key_Return, Qt::ShiftModifier);
  Do(text, "Save");
  EXPECT_EQ(Saved(), "\n\na\nb\n");
  frmNotePad& fresh = Untitled();
  QTest::keyClicks(Text1(fresh), "one");
  QTest::keyClick(Text1(fresh), Qt::Key_Return);
  chosen = bench.folder / "new.txt";
  Do(fresh, "Save");
  EXPECT_EQ(Saved("new.txt"), "one\r\n");
}

TEST_F(NotePad, A_Letter_That_The_Encoding_Lacks_Is_Asked_About) {
  frmNotePad& text = Opened("caf\xE9\r\n");
  Type(Text1(text), QString(QChar(0x3B1)));
  Modal_Replies replies({Press(QMessageBox::No), Press(QMessageBox::Yes)});
  Do(text, "Save");
  EXPECT_EQ(Saved(), "caf\xE9\r\n");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
  Do(text, "Save");
  EXPECT_EQ(Saved(),
            "\xCE\xB1"
            "caf\xC3\xA9\r\n");
  EXPECT_EQ(text.findChild<QLabel*>("Kind")->text(), "UTF-8, CR LF");
}

TEST_F(NotePad, A_Text_That_Has_Lost_Its_Last_Accent_Is_Still_In_Its_Encoding) {
  frmNotePad& text = Opened("\xC3\xA9\n");
  QTest::keyClick(Text1(text), Qt::Key_Delete);
  Do(text, "Save");
  EXPECT_EQ(Saved(), "\n");
  Type(Text1(text), QString(QChar(0xE9)));
  Do(text, "Save");
  EXPECT_EQ(Saved(), "\xC3\xA9\n");
}

TEST_F(NotePad, Undone_Typing_Is_No_Change) {
  frmNotePad& text = Opened("a\n");
  QTest::keyClicks(Text1(text), "X");
  EXPECT_EQ(text.findChild<QLabel*>("State")->text(), "Changed");
  Do(text, "Undo");
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse);
  EXPECT_TRUE(text.close());
}

TEST_F(NotePad, Closing_Unchanged_Text_Asks_Nothing_And_Sets_Deleted) {
  frmNotePad& text = Untitled();
  Do(text, "Close");
  EXPECT_EQ(Documents().FState(1).Deleted, kTrue);
  EXPECT_EQ(Documents().Document(1), nullptr);
  EXPECT_EQ(Untitled().index(), 2);
}

TEST_F(NotePad, Closing_Changed_Text_Goes_By_The_Answer) {
  frmNotePad& text = Opened("a\n");
  QTest::keyClicks(Text1(text), "X");
  Modal_Replies replies(
      {Press(QMessageBox::Cancel), Press(QMessageBox::Yes), Press(QMessageBox::No)});
  EXPECT_FALSE(text.close());
  chosen = std::nullopt;
  EXPECT_FALSE(text.close()) << "a cancelled Save As keeps the window open";
  EXPECT_TRUE(text.isVisible());
  EXPECT_EQ(asked.back().title, "Save As");
  EXPECT_TRUE(text.close());
  EXPECT_EQ(Saved(), "a\n");
  EXPECT_EQ(replies.seen.at(0).text.toStdString(),
            "The text in [" + (bench.folder / "site.duo") +
                "] has changed.\nDo you want to save the changes?");
  EXPECT_EQ(replies.seen[0].title, "BARVON");
}

TEST_F(NotePad, Close_All_Stops_At_The_First_That_Stays) {
  Untitled();
  frmNotePad& changed = Untitled();
  frmNotePad& last = Untitled();
  QTest::keyClicks(Text1(changed), "X");
  Modal_Replies replies({Press(QMessageBox::Cancel), Press(QMessageBox::No)});
  Do(last, "CloseAll");
  EXPECT_EQ(Documents().Open_Ones(), (std::vector{2, 3}));
  Do(last, "CloseAll");
  EXPECT_FALSE(Documents().Any_Open());
}

TEST_F(NotePad, Quitting_And_Exit_Ask_For_Each_Changed_Text_And_Cancel_Stops) {
  for (frmNotePad* text : {&Untitled(), &Untitled()}) QTest::keyClicks(Text1(*text), "X");
  Untitled();
  {
    Modal_Replies replies(
        {Press(QMessageBox::Yes), Press(QMessageBox::No), Press(QMessageBox::Cancel)});
    bench.main().close();
    EXPECT_EQ(replies.seen.at(0).text, "Do You Wish to Quit?");
    EXPECT_EQ(replies.windows, 3);
  }
  EXPECT_EQ(bench.ended, 0);
  EXPECT_TRUE(bench.main().isVisible());
  EXPECT_EQ(Documents().Changed_Ones().size(), 2U);
  {
    Modal_Replies replies({Press(QMessageBox::Yes), Press(QMessageBox::Cancel)});
    bench.Action("mnuFileItem(10)")->trigger();
  }
  EXPECT_EQ(bench.ended, 0);
  Modal_Replies replies({Press(QMessageBox::Yes), Press(QMessageBox::No), Press(QMessageBox::No)});
  bench.Action("mnuFileItem(10)")->trigger();
  EXPECT_EQ(bench.ended, 1);
}

TEST_F(NotePad, A_New_Project_Asks_About_Changed_Text_And_Leaves_It_Open) {
  frmNotePad& text = Untitled();
  QTest::keyClicks(Text1(text), "kept");
  Modal_Replies replies({Press(QMessageBox::Yes)});
  chosen = bench.folder / "notes.txt";
  bench.Action("mnuFileItem(0)")->trigger();
  EXPECT_EQ(replies.seen.at(0).text,
            "The text in Untitled has changed.\n\nDo you want to save the changes?");
  EXPECT_EQ(Saved("notes.txt"), "kept");
  EXPECT_EQ(Text1(text)->toPlainText(), "kept");
}

TEST_F(NotePad, A_File_That_Is_Open_Comes_To_The_Front_And_Is_Read_Again) {
  frmNotePad& text = Opened("one\ntwo\nthree\n");
  Text1(text)->moveCursor(QTextCursor::Down);
  frmNotePad& again = Opened("one\nnew\nthree\n");
  EXPECT_EQ(&again, &text);
  EXPECT_EQ(Text1(text)->toPlainText(), "one\nnew\nthree\n");
  EXPECT_EQ(Place(text), "Line 2, Column 1") << "the caret stays";
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse);
}

TEST_F(NotePad, Reading_Again_Over_Typed_Text_Asks) {
  frmNotePad& text = Opened("one\n");
  QTest::keyClicks(Text1(text), "X");
  Modal_Replies replies({Press_Escape(), Press(QMessageBox::Yes)});
  Opened("two\n");
  EXPECT_EQ(Text1(text)->toPlainText(), "Xone\n");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::No);
  Do(text, "ReadAgain");
  EXPECT_EQ(Text1(text)->toPlainText(), "two\n");
  EXPECT_EQ(Documents().FState(1).Dirty, kFalse);
}

TEST_F(NotePad, Saving_Over_A_File_That_Was_Written_Since_It_Was_Read_Asks) {
  frmNotePad& text = Opened("one\n");
  QTest::keyClicks(Text1(text), "X");
  Write_Text(bench.folder / "site.duo", "another run\n");
  Modal_Replies replies({Press_Escape(), Press(QMessageBox::Yes)});
  Do(text, "Save");
  EXPECT_EQ(Saved(), "another run\n");
  EXPECT_EQ(Documents().FState(1).Dirty, kTrue);
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::No);
  Do(text, "Save");
  EXPECT_EQ(Saved(), "Xone\n");
  QTest::keyClicks(Text1(text), "Y");
  Do(text, "Save");
  EXPECT_EQ(Saved(), "XYone\n") << "its own save is no change of another's";
  Write_Text(bench.folder / "site.duo", "a run\n");
  Do(text, "ReadAgain");
  QTest::keyClicks(Text1(text), "Z");
  Do(text, "Save");
  EXPECT_EQ(Saved(), "a Zrun\n");
  EXPECT_EQ(replies.windows, 2);
}

TEST_F(NotePad, A_Text_That_Could_Not_Be_Read_To_Its_End_Is_Not_Saved_As_The_Whole) {
  const std::string path = bench.folder / "site.duo";
  Write_Text(path, std::string(6'000'000, '\n'));
  frmNotePad& text = *new frmNotePad(Project());
  ASSERT_TRUE(text.Load(path));
  text.show();
  ASSERT_TRUE(text.Is_Reading());
  std::filesystem::resize_file(path, 2'000'000);
  Modal_Replies replies({Press(QMessageBox::Ok)});
  chosen = bench.folder / "copy.txt";
  Do(text, "SaveAs");
  EXPECT_EQ(
      replies.seen.at(0).text.toStdString(),
      "File " + path + " could not be read to its end. A part of it is not saved as the whole.");
  EXPECT_FALSE(Exists(bench.folder / "copy.txt"));
  EXPECT_EQ(text.findChild<QLabel*>("State")->text(),
            "Read only: the file could not be read to its end");
  Do(text, "ReadAgain");
  Do(text, "SaveAs");
  EXPECT_EQ(Saved("copy.txt"), std::string(2'000'000, '\n'));
}

TEST_F(NotePad, Close_Asks_About_A_Changed_Text_Once_And_Goes_On_When_It_Is_Saved) {
  bench.controls().SSOption1(0)->click();  // a project is under way
  frmNotePad& text = Opened("one\n", "notes.txt");
  QTest::keyClicks(Text1(text), "X");
  Project().ProjectFileName = bench.folder / "bay.DUI";
  Modal_Replies replies({Press(QMessageBox::Yes)});
  bench.Action("mnuFileItem(2)")->trigger();
  EXPECT_EQ(replies.windows, 1);
  EXPECT_EQ(replies.seen.at(0).text.toStdString(),
            "The text in " + (bench.folder / "notes.txt") +
                " has changed.\n\nDo you want to save the changes?");
  EXPECT_EQ(Saved("notes.txt"), "Xone\n");
  EXPECT_EQ(Project().ProjectFileName, "");
}

TEST_F(NotePad, A_File_That_Is_Gone_Leaves_Its_Text) {
  frmNotePad& text = Opened("one\n");
  std::filesystem::remove(bench.folder / "site.duo");
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Do(text, "ReadAgain");
  EXPECT_EQ(Text1(text)->toPlainText(), "one\n");
}

TEST_F(NotePad, View_Output_Shows_The_Output_Once_However_Often_It_Is_Asked_For) {
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "");
  Write_Text(bench.folder / "bay.duo", "output\r\n");
  Project().ProjectFileName = bench.folder / "bay.DUI";
  bench.Action("mnuViewItem(1)")->trigger();
  Write_Text(bench.folder / "bay.duo", "newer output\r\n");
  bench.Action("mnuViewItem(1)")->trigger();
  qputenv("PATH", path);
  ASSERT_EQ(Open_Texts().size(), 1U);
  EXPECT_EQ(Text1(*Open_Texts()[0])->toPlainText(), "newer output\n");
}

TEST_F(NotePad, Window_And_Font_Menus_And_Print_Are_There_While_A_Text_Is_Open) {
  const auto shown = [this](const char* name) { return bench.Action(name)->isVisible(); };
  EXPECT_FALSE(shown("mnuWindow"));
  EXPECT_FALSE(bench.Action("mnuFileItem(7)")->isEnabled());
  EXPECT_FALSE(bench.Action("mnuEditItem(8)")->isEnabled());
  frmNotePad& one = Untitled();
  frmNotePad& two = Untitled();
  one.close();
  EXPECT_TRUE(shown("mnuWindow"));
  EXPECT_TRUE(shown("mnuEditItem(11)"));
  EXPECT_TRUE(bench.Action("mnuEditItem(11)")->isEnabled());
  EXPECT_FALSE(bench.Action("mnuEditItem(8)")->isEnabled()) << "Error Check has a gate of its own";
  EXPECT_EQ(bench.Action("mnuFontName(0)")->text().toStdString(),
            QFontDatabase::families().first().replace("&", "&&").toStdString());
  EXPECT_EQ(bench.Action("mnuEditItem(11)")->menu()->actions().size(),
            QFontDatabase::families().size());
  two.close();
  EXPECT_FALSE(shown("mnuWindow"));
  EXPECT_FALSE(shown("mnuEditItem(11)"));
  EXPECT_EQ(bench.Action("mnuEditItem(11)")->menu()->actions().size(), 1);
  EXPECT_FALSE(bench.Action("mnuFileItem(7)")->isEnabled());
}

TEST_F(NotePad, Closing_A_Text_Leaves_Error_Check_As_It_Is) {
  bench.controls().SSOption1(0)->click();
  EXPECT_TRUE(bench.Action("mnuEditItem(8)")->isEnabled());
  Untitled().close();
  EXPECT_TRUE(bench.Action("mnuEditItem(8)")->isEnabled());
  EXPECT_TRUE(bench.Action("mnuFileItem(7)")->isEnabled());
}

TEST_F(NotePad, Print_Is_For_The_Text_In_Front_Until_A_Person_Turns_To_The_Boards) {
  frmNotePad& text = Opened("caf\xE9\n");
  EXPECT_TRUE(bench.Action("mnuFileItem(7)")->isEnabled()) << "without a project too";
  ASSERT_TRUE(Active_Text());
  EXPECT_EQ(Active_Text()->text, "caf\xC3\xA9\n");
  EXPECT_EQ(Active_Text()->caption, bench.folder / "site.duo");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(bench.folder / "text.pdf"));
  EXPECT_TRUE(Print_Active_Text(printer));
  EXPECT_EQ(Saved("text.pdf").substr(0, 5), "%PDF-");
  QTest::mouseClick(bench.controls().Title_Box, Qt::LeftButton);
  EXPECT_FALSE(Active_Text());
  EXPECT_FALSE(Print_Active_Text(printer));
  EXPECT_FALSE(bench.Action("mnuFileItem(7)")->isEnabled());
  EXPECT_FALSE(Port().text.print());
  int asked = 0;
  File_Dialog_Presenter to_file;
  to_file.printer = [&](const std::string&, int) {
    ++asked;
    Session_Printer().setOutputFormat(QPrinter::PdfFormat);
    Session_Printer().setOutputFileName(QString::fromStdString(bench.folder / "printed.pdf"));
    return true;
  };
  const auto former = Set_File_Dialog_Presenter(to_file);
  Do(text, "Print");
  Set_File_Dialog_Presenter(former);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(Saved("printed.pdf").substr(0, 5), "%PDF-");
}

TEST_F(NotePad, Long_Lines_Tabs_And_New_Pages_Are_Printed) {
  const int long_line = 20000;  // letters: more than a page holds
  frmNotePad& text = Opened("\tone\n\ftwo\n" + std::string(long_line, 'x') + "\n", "site.txt");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(bench.folder / "text.pdf"));
  EXPECT_TRUE(text.Print(printer));
  const int with_long_line = Pages_In(Saved("text.pdf"));
  EXPECT_GE(with_long_line, 3) << "the second page begins at \"two\", the line goes over it";
  frmNotePad& two = Opened("\tone\n\ftwo\n", "two.txt");
  EXPECT_TRUE(two.Print(printer));
  EXPECT_EQ(Pages_In(Saved("text.pdf")), 2);
}

TEST_F(NotePad, A_Print_That_Fails_Or_Would_Replace_The_Project_Is_Told) {
  frmNotePad& text = Opened("one\n");
  Write_Text(bench.folder / "bank.DUI", "precious");
  Project().ProjectFileName = bench.folder / "bank.DUI";
  std::string target = bench.folder / "bank.DUI";
  File_Dialog_Presenter to_file;
  to_file.printer = [&](const std::string&, int) {
    Session_Printer().setOutputFormat(QPrinter::PdfFormat);
    Session_Printer().setOutputFileName(QString::fromStdString(target));
    return true;
  };
  const auto former = Set_File_Dialog_Presenter(to_file);
  {
    const Scripted_Messages messages({Answer::Ok, Answer::Ok});
    Do(text, "Print");
    target = bench.folder / "none/text.pdf";
    Do(text, "Print");
    ASSERT_EQ(messages.shown.size(), 2U);
    for (const Message& message : messages.shown) {
      EXPECT_EQ(message.text, "The Text Could Not Be Printed.");
      EXPECT_EQ(message.icon, Icon::Critical);
    }
  }
  Set_File_Dialog_Presenter(former);
  Forget_Session_Printer();
  EXPECT_EQ(Saved("bank.DUI"), "precious");
  Project().ProjectFileName.clear();
}

TEST_F(NotePad, Find_Next_With_Nothing_To_Find_Asks_What) {
  const frmNotePad& text = Opened("one\n");
  Do(text, "FindNext");
  auto* find = text.findChild<QLineEdit*>("FindText");
  EXPECT_TRUE(find->isVisible());
  EXPECT_TRUE(find->hasFocus());
  EXPECT_EQ(text.findChild<QLabel*>("FindOutcome")->text(), "");
  QTest::keyClicks(find, "two");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_NE(text.findChild<QLabel*>("FindOutcome")->text(), "");
}

TEST_F(NotePad, The_Menus_Of_A_Text_Are_Made_Ready_As_They_Come_Up) {
  const auto menu = [](const frmNotePad& text, const QString& title) {
    for (QAction* item : text.menuBar()->actions()) {
      if (item->text() == title) return item->menu();
    }
    return static_cast<QMenu*>(nullptr);
  };
  const frmNotePad& text = Opened("one\n");
  emit menu(text, "&Edit")->aboutToShow();
  EXPECT_TRUE(text.findChild<QAction*>("NotePadPaste")->isEnabled());
  emit menu(text, "F&ont")->aboutToShow();
  EXPECT_FALSE(menu(text, "F&ont")->isEmpty());
  const QString window = bench.main().findChild<QMenu*>("mnuWindow")->title();
  emit menu(text, window)->aboutToShow();
  EXPECT_FALSE(menu(text, window)->isEmpty());
  const frmNotePad& shown = Opened(std::string(10001, 'x'), "long.txt");
  emit menu(shown, "&Edit")->aboutToShow();
  for (const char* name : {"NotePadUndo", "NotePadRedo", "NotePadCut", "NotePadPaste"}) {
    EXPECT_FALSE(shown.findChild<QAction*>(name)->isEnabled()) << name;
  }
}

TEST_F(NotePad, Of_An_Open_Project_Its_Output_Is_Offered_Or_Its_Folder) {
  Project().ProjectFileName = bench.folder / "bay.DUI";
  chosen = std::nullopt;
  bench.Action("mnuToolItem(6)")->trigger();
  Write_Text(bench.folder / "bay.duo", "output");
  bench.Action("mnuToolItem(6)")->trigger();
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].name, bench.folder.path());
  EXPECT_EQ(asked[1].name, bench.folder / "bay.duo");
  Project().ProjectFileName.clear();
}

TEST_F(NotePad, A_Text_Of_Many_Pages_Is_Printed_Only_When_A_Person_Agrees) {
  frmNotePad& text = Opened(std::string(30000, '\n'));
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(bench.folder / "text.pdf"));
  // On a busy machine the box with the progress comes up too: it is left alone.
  Scripted_Messages messages({Answer::No, Answer::Yes});
  EXPECT_TRUE(text.Print(printer)) << "called off is not failed";
  EXPECT_FALSE(Exists(bench.folder / "text.pdf"));
  EXPECT_TRUE(text.Print(printer));
  const int pages = Pages_In(Saved("text.pdf"));
  EXPECT_GT(pages, 200);
  EXPECT_EQ(messages.shown.at(0).text,
            "The text takes about " + std::to_string(pages) + " pages. Print it?");
  printer.setFromTo(3, 202);
  EXPECT_TRUE(text.Print(printer)) << "200 of them are not asked about";
  EXPECT_EQ(Pages_In(Saved("text.pdf")), 200);
  EXPECT_EQ(messages.shown.size(), 2U);
}

TEST_F(NotePad, A_Long_Print_Shows_How_Far_It_Is_And_Can_Be_Called_Off) {
  std::string bytes;
  while (bytes.size() < 6'000'000) bytes += "a line of the text that takes long to print\n";
  frmNotePad& text = Opened(bytes);
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(bench.folder / "text.pdf"));
  Write_Text(bench.folder / "text.pdf", "old");
  int share = 0;
  const auto call_off = [&share](QWidget* window) {
    auto* box = qobject_cast<QProgressDialog*>(window);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->labelText(), "Printing site.duo");
    share = box->value();
    box->findChild<QPushButton*>()->click();
  };
  Modal_Replies replies({Press(QMessageBox::Yes), call_off});
  EXPECT_TRUE(text.Print(printer));
  EXPECT_EQ(replies.windows, 2);
  EXPECT_GT(share, 0);
  EXPECT_LT(share, 1000);
  EXPECT_EQ(Saved("text.pdf"), "old") << "a part would pass for the whole";
}

TEST_F(NotePad, A_Print_That_Gets_Nowhere_Is_Not_Taken_For_Done) {
  frmNotePad& text = Opened("one line\n");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QStringLiteral("/dev/full"));
  EXPECT_FALSE(text.Print(printer));
  EXPECT_EQ(printer.outputFileName(), QStringLiteral("/dev/full")) << "as it was chosen";
}

TEST_F(NotePad, A_Font_Is_Set_In_The_Text_In_Front_Alone) {
  frmNotePad& one = Untitled();
  frmNotePad& two = Untitled();
  const QFont before = Text1(one)->font();
  const QString name = QFontDatabase::families().last();
  const auto last = static_cast<int>(QFontDatabase::families().size()) - 1;
  bench.Action(qPrintable(QString("mnuFontName(%1)").arg(last)))->trigger();
  EXPECT_EQ(Text1(two)->font().family(), name);
  EXPECT_EQ(Text1(one)->font(), before);
  EXPECT_EQ(Documents().FState(2).Dirty, kFalse);
}

TEST_F(NotePad, The_Window_Menu_Puts_Texts_Into_Their_Places) {
  frmNotePad& one = Untitled();
  frmNotePad& two = Untitled();
  frmNotePad& icon = Untitled();
  icon.showMinimized();
  bench.Action("mnuWItem(2)")->trigger();
  EXPECT_EQ(one.y(), two.y());
  EXPECT_GE(two.x(), one.x() + one.width());
  bench.Action("mnuWItem(1)")->trigger();
  EXPECT_EQ(one.x(), two.x());
  EXPECT_GE(two.y(), one.y() + one.height());
  bench.Action("mnuWItem(0)")->trigger();
  EXPECT_GT(two.x(), one.x());
  EXPECT_LT(two.x(), one.x() + one.width());
  EXPECT_EQ(one.size(), two.size());
  EXPECT_TRUE(icon.isMinimized());
  bench.Action("mnuWItem(3)")->trigger();
  EXPECT_FALSE(icon.isMinimized());
}

TEST_F(NotePad, Find_Goes_Forth_And_Back_And_Says_When_There_Is_Nothing) {
  frmNotePad& text = Opened("first line\r\ncaf\xE9 line\r\nlast line\r\n");
  ASSERT_TRUE(Has_Keyboard(&text));
  QTest::keyClick(&text, Qt::Key_F, Qt::ControlModifier);
  auto* find = text.findChild<QLineEdit*>("FindText");
  ASSERT_TRUE(Wait_Until([find] { return find->hasFocus(); }));
  QTest::keyClicks(find, "line");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(Text1(text)->textCursor().blockNumber(), 0);
  QTest::keyClick(&text, Qt::Key_F3);
  EXPECT_EQ(Text1(text)->textCursor().blockNumber(), 1);
  QTest::keyClick(&text, Qt::Key_F3, Qt::ShiftModifier);
  QTest::keyClick(&text, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Text1(text)->textCursor().blockNumber(), 2) << "from the other end again";
  EXPECT_EQ(Text1(text)->textCursor().selectedText(), "line");
  EXPECT_EQ(Place(text), "Line 3, Column 10");
  QTest::keyClicks(find, "s");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(text.findChild<QLabel*>("FindOutcome")->text(), "Not in this text.");
  QTest::keyClick(find, Qt::Key_Escape);
  EXPECT_FALSE(text.findChild<QWidget*>("FindBar")->isVisible());
  EXPECT_TRUE(Text1(text)->hasFocus());
}

TEST_F(NotePad, The_Status_Bar_Tells_Line_Column_And_Kind) {
  frmNotePad& text = Opened("one\ncaf\xC3\xA9\n");
  EXPECT_EQ(Place(text), "Line 1, Column 1");
  Text1(text)->moveCursor(QTextCursor::Down);
  Text1(text)->moveCursor(QTextCursor::EndOfLine);
  EXPECT_EQ(Place(text), "Line 2, Column 5");
  EXPECT_EQ(text.findChild<QLabel*>("Kind")->text(), "UTF-8, LF");
}

TEST_F(NotePad, A_Large_Text_Is_In_View_At_Once_And_Read_While_The_Window_Lives) {
  std::string bytes;
  for (int i = 0; bytes.size() < 12'000'000; ++i) bytes += "line " + std::to_string(i) + "\r\n";
  Write_Text(bench.folder / "site.duo", bytes + "the end");
  frmNotePad& text = *new frmNotePad(Project());
  ASSERT_TRUE(text.Load(bench.folder / "site.duo"));
  text.show();
  ASSERT_NE(View(text), nullptr);
  EXPECT_EQ(Text1(text), nullptr);
  EXPECT_TRUE(text.Is_Reading());
  EXPECT_GT(View(text)->rows().Rows(), 1000U);
  EXPECT_EQ(text.findChild<QLabel*>("State")->text(), "Reading...");
  ASSERT_TRUE(Wait_Until([&text] { return !text.Is_Reading(); }));
  EXPECT_EQ(text.findChild<QLabel*>("State")->text(), "Read only: too large to be edited here");
  EXPECT_EQ(View(text)->rows().Size(), bytes.size() + 7);
  QTest::keyClick(View(text), Qt::Key_End, Qt::ControlModifier);
  EXPECT_TRUE(Place(text).ends_with(", Column 8")) << Place(text);
  chosen = bench.folder / "copy.txt";
  Do(text, "SaveAs");
  EXPECT_EQ(Saved("copy.txt"), bytes + "the end");
  EXPECT_TRUE(text.close()) << "nothing can have changed";
}

TEST_F(NotePad, A_Large_Text_That_Is_Read_Again_Stays_Where_It_Was) {
  const std::string line = "0123456789abcdefghijklmnopqrstuvwxyz\n";
  std::string bytes;
  while (bytes.size() < 12'000'000) bytes += line;
  Write_Text(bench.folder / "site.duo", bytes);
  frmNotePad& text = *new frmNotePad(Project());
  ASSERT_TRUE(text.Load(bench.folder / "site.duo"));
  text.show();
  ASSERT_TRUE(Wait_Until([&text] { return !text.Is_Reading(); }));
  View(text)->Go_To(200'000 * line.size() + 5);
  const int row = View(text)->verticalScrollBar()->value();
  Write_Text(bench.folder / "site.duo", bytes + "more\n");
  Do(text, "ReadAgain");
  EXPECT_FALSE(text.Is_Reading());
  EXPECT_EQ(View(text)->Place(), 200'000 * line.size() + 5);
  EXPECT_EQ(View(text)->verticalScrollBar()->value(), row);
  EXPECT_EQ(View(text)->rows().Size(), bytes.size() + 5);
}

TEST_F(NotePad, A_Large_Text_Is_Searched_To_Its_End_Before_It_Is_Read) {
  std::string bytes(6'000'000, '\n');
  Write_Text(bench.folder / "site.duo", bytes + "needle\n");
  frmNotePad& text = *new frmNotePad(Project());
  ASSERT_TRUE(text.Load(bench.folder / "site.duo"));
  text.show();
  ASSERT_TRUE(text.Is_Reading());
  Do(text, "Find");
  auto* find = text.findChild<QLineEdit*>("FindText");
  QTest::keyClicks(find, "Needle");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_FALSE(text.Is_Reading());
  EXPECT_EQ(View(text)->Marked_Text(), "needle");
  EXPECT_EQ(Place(text), "Line 6000001, Column 7");
}

TEST_F(NotePad, A_Large_Text_Is_Marked_And_Copied_By_Keys_And_Mouse) {
  frmNotePad& text = Opened(std::string(10001, 'x') + "\none two\nthree\n");
  Large_Text_View* view = View(text);
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(text.findChild<QLabel*>("State")->text(),
            "Read only: holds what an editor would change");
  QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(view, Qt::Key_Up);
  QTest::keyClick(view, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one two\n");
  QTest::keyClick(view, Qt::Key_Home);
  QTest::keyClick(view, Qt::Key_Right);
  EXPECT_EQ(Place(text), "Line 2, Column 2");
  QTest::keyClick(view, Qt::Key_Left);
  QTest::keyClick(view, Qt::Key_Left);
  EXPECT_EQ(Place(text), "Line 1, Column 10002");
  QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(view->Marked_Text().size(), 10001 + 15);
  QTest::keyClick(view, Qt::Key_Home, Qt::ControlModifier);
  const int letter = view->fontMetrics().horizontalAdvance('x');
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(4 + 3 * letter, 8));
  EXPECT_EQ(Place(text), "Line 1, Column 4");
}

TEST_F(NotePad, The_First_Line_Of_An_Output_Is_In_View_Whole) {
  const frmNotePad& text = Opened(std::string(104, 'n') + "\r\n" + std::string(500, '\n'));
  const QPlainTextEdit* edit = Text1(text);
  QTextCursor end(edit->document());
  end.movePosition(QTextCursor::EndOfBlock);
  const int right = edit->cursorRect(end).right();
  const bool is_whole = right < edit->viewport()->width();
  // On a small screen the texts leave room to stand in steps.
  constexpr int kRoomForSteps = 48;
  EXPECT_TRUE(is_whole || text.width() >= text.screen()->availableSize().width() - kRoomForSteps)
      << right << " of " << edit->viewport()->width();
}

TEST_F(NotePad, An_Empty_File_And_One_Without_Line_Ends_Are_Shown) {
  EXPECT_EQ(Text1(Opened("", "empty.txt"))->toPlainText(), "");
  frmNotePad& text = Opened(std::string(5'000'000, 'x'), "one.txt");
  ASSERT_NE(View(text), nullptr);
  ASSERT_TRUE(Wait_Until([&text] { return !text.Is_Reading(); }));
  QTest::keyClick(View(text), Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(Place(text), "Line 1, Column 5000001");
}

}  // namespace
}  // namespace barvon

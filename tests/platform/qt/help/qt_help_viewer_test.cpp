#include "platform/qt/help/qt_help_viewer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>

#include "platform/qt/help/help_window.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using testing::Modal_Replies;
using testing::Press;
using testing::Read_Text;
using testing::Scratch_Folder;
using testing::Wait_Until;
using testing::Write_Text;

Help_Window* Window() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "Help") return static_cast<Help_Window*>(window);
  }
  return nullptr;
}

/// The real help file behind the viewer; the window is closed when a test is over.
class HelpViewer : public ::testing::Test {
 protected:
  HelpViewer() { Set_Help_File(BARVON_HELP_FILE); }
  ~HelpViewer() override { Show_Help({Help_Command::Quit, 0, ""}); }

  static void Ask(Help_Command command, int topic = 0, const std::string& key = "") {
    Show_Help({command, topic, key});
    ASSERT_NE(Window(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(Window()));
  }
  static QString Shown() { return Window()->page().source().fileName(); }
  static int Tab() { return Window()->navigation().currentIndex(); }
  template <class T>
  static T* Child(const char* name) {
    return Window()->findChild<T*>(QLatin1String(name));
  }
  static void Trigger(const char* action) { Child<QAction>(action)->trigger(); }

 private:
  Qt_Services services_;
};

TEST_F(HelpViewer, Context_Shows_The_Page_Of_The_Topic) {
  Ask(Help_Command::Context, 2460);
  EXPECT_EQ(Shown(), "site-description.html");
  EXPECT_EQ(Window()->windowTitle(), "Disposal Site Data - BARVON Help");
  EXPECT_TRUE(Window()->page().toPlainText().contains("Roughness Height (ft) at Bottom"));
  Ask(Help_Command::Context, 3000);
  EXPECT_EQ(Shown(), "timing.html");
}

TEST_F(HelpViewer, A_Page_Beside_A_Blocking_Window_Leaves_It_In_Sight) {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  for (const int left_over : {0, 260, 400}) {
    SCOPED_TRACE(left_over);
    QDialog blocking;
    auto* field = new QLineEdit(&blocking);
    field->setFocus();
    blocking.setWindowModality(Qt::ApplicationModal);
    blocking.setGeometry(100, 100, room.right() - 100 - left_over, 500);
    blocking.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&blocking));
    Show_Topic_Beside(2660);
    ASSERT_NE(Window(), nullptr);
    EXPECT_TRUE(Window()->isVisible());
    EXPECT_FALSE(Window()->testAttribute(Qt::WA_ShowWithoutActivating)) << "for the next time";
    EXPECT_EQ(Shown(), "wizard-step-2.html");
    const QRect place = Window()->geometry();
    if (left_over == 0) {
      EXPECT_LT(place.bottom(), blocking.geometry().bottom() - 40) << "its buttons";
    } else {
      EXPECT_GT(place.left(), blocking.geometry().right());
    }
    EXPECT_GT(Window()->page().width(), place.width() / 2);
    Show_Help({Help_Command::Quit, 0, ""});
  }
}

TEST_F(HelpViewer, Context_Of_No_Topic_Is_The_Contents_With_The_List_Of_Rules) {
  Ask(Help_Command::Context, 0);
  EXPECT_EQ(Shown(), "contents.html");
  EXPECT_TRUE(Window()->page().toPlainText().contains("The rules a project must meet"));
}

TEST_F(HelpViewer, Context_Of_An_Unknown_Topic_Is_The_Contents) {
  Ask(Help_Command::Context, 4711);
  EXPECT_EQ(Shown(), "contents.html");
}

TEST_F(HelpViewer, Index_Command_Shows_The_Contents) {
  Ask(Help_Command::Context, 2460);
  Ask(Help_Command::Index);
  EXPECT_EQ(Shown(), "contents.html");
}

TEST_F(HelpViewer, Finder_Opens_With_The_Contents_Tab) {
  Ask(Help_Command::PartialKey);
  Ask(Help_Command::Finder);
  EXPECT_EQ(Tab(), Help_Navigation::kContents);
  EXPECT_EQ(Shown(), "contents.html");
}

TEST_F(HelpViewer, Finder_Leaves_The_Page_That_Is_Read) {
  Ask(Help_Command::Context, 2470);
  Ask(Help_Command::Finder);
  EXPECT_EQ(Shown(), "velocity.html");
}

TEST_F(HelpViewer, Partial_Key_Opens_The_Index_With_The_Key_Typed) {
  Ask(Help_Command::PartialKey, 0, "roughness");
  EXPECT_EQ(Tab(), Help_Navigation::kIndex);
  EXPECT_EQ(Child<QLineEdit>("HelpKey")->text(), "roughness");
  auto* index = Child<QHelpIndexWidget>("HelpIndex");
  ASSERT_TRUE(Wait_Until(
      [&] { return index->model()->rowCount() > 0 && index->model()->rowCount() < 10; }));
  for (int row = 0; row < index->model()->rowCount(); ++row) {
    const QString keyword = index->model()->index(row, 0).data().toString();
    EXPECT_TRUE(keyword.contains("roughness", Qt::CaseInsensitive)) << keyword.toStdString();
  }
}

TEST_F(HelpViewer, Index_Leads_To_The_Field_Of_A_Keyword) {
  Ask(Help_Command::PartialKey);
  auto* index = Child<QHelpIndexWidget>("HelpIndex");
  ASSERT_TRUE(Wait_Until([&] { return index->model()->rowCount() > 300; }));
  auto* key = Child<QLineEdit>("HelpKey");
  QTest::keyClicks(key, "XBARGE");
  ASSERT_TRUE(Wait_Until([&] { return index->model()->rowCount() == 1; }));
  QTest::keyClick(key, Qt::Key_Return);
  EXPECT_EQ(Shown(), "operation.html");
  EXPECT_EQ(Window()->page().source().fragment(), "location-of-disposal-point-from-top-of-g");
}

TEST_F(HelpViewer, A_Keyword_Of_Several_Pages_Asks_Which) {
  Ask(Help_Command::PartialKey, 0, "Salinity (ppt)");
  auto* index = Child<QHelpIndexWidget>("HelpIndex");
  ASSERT_TRUE(Wait_Until([&] {
    return index->model()->rowCount() > 0 &&
           index->currentIndex().data().toString() == "Salinity (ppt)";
  }));
  Modal_Replies replies({[](QWidget* window) {
    auto* question = qobject_cast<QInputDialog*>(window);
    ASSERT_NE(question, nullptr);
    EXPECT_TRUE(question->comboBoxItems().contains("Dredging Site Water Density"));
    question->setTextValue("Dredging Site Water Density");
    question->accept();
  }});
  QTest::keyClick(Child<QLineEdit>("HelpKey"), Qt::Key_Return);
  EXPECT_EQ(Shown(), "water-density.html");
}

TEST_F(HelpViewer, Contents_Lead_To_Their_Pages_And_Follow_Them) {
  Ask(Help_Command::Finder);
  auto* contents = Child<QHelpContentWidget>("HelpContents");
  const QAbstractItemModel* model = contents->model();
  ASSERT_TRUE(Wait_Until([&] { return model->rowCount() > 0; }));
  const QModelIndex first = model->index(0, 0, model->index(0, 0));
  ASSERT_EQ(first.data().toString(), "Your first project");
  contents->scrollTo(first);
  QTest::mouseClick(contents->viewport(), Qt::LeftButton, {}, contents->visualRect(first).center());
  EXPECT_EQ(Shown(), "first-project.html");
  Ask(Help_Command::Context, 2500);
  EXPECT_EQ(contents->currentIndex().data().toString(), "Disposal Operation Data");
}

TEST_F(HelpViewer, Search_Finds_A_Word_And_Marks_It_On_The_Page) {
  Ask(Help_Command::Index);
  Window()->navigation().Open_Search();
  QTest::keyClicks(Child<QLineEdit>("HelpWords"), "Ekman equation");
  QTest::mouseClick(Child<QPushButton>("HelpSearch"), Qt::LeftButton);
  auto* results = Child<QListWidget>("HelpResults");
  ASSERT_TRUE(Wait_Until([&] { return results->count() > 0; }));
  int density = -1;
  for (int row = 0; row < results->count(); ++row) {
    if (results->item(row)->text().contains("Dredging Site Water Density")) density = row;
  }
  ASSERT_GE(density, 0);
  emit results->itemActivated(results->item(density));
  EXPECT_EQ(Shown(), "water-density.html");
  EXPECT_EQ(Window()->page().textCursor().selectedText(), "Ekman");
}

TEST_F(HelpViewer, Results_Of_A_Search_Are_Shown_Whole_One_Close_To_The_Other) {
  Ask(Help_Command::Index);
  Window()->navigation().Open_Search();
  QTest::keyClicks(Child<QLineEdit>("HelpWords"), "hopper");
  QTest::mouseClick(Child<QPushButton>("HelpSearch"), Qt::LeftButton);
  auto* results = Child<QListWidget>("HelpResults");
  ASSERT_TRUE(Wait_Until([&] { return results->count() > 5; }));
  QCoreApplication::processEvents();
  const int margin = results->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
  for (int row = 0; row < results->count(); ++row) {
    const QRect place = results->visualItemRect(results->item(row));
    const QRect text = results->fontMetrics().boundingRect(
        0, 0, place.width() - 2 * margin, 1000, Qt::TextWordWrap, results->item(row)->text());
    EXPECT_GE(place.height(), text.height()) << row;
    if (row == 0) continue;
    const QRect above = results->visualItemRect(results->item(row - 1));
    EXPECT_LE(place.top() - above.bottom(), 8) << row;
  }
}

TEST_F(HelpViewer, A_Long_Keyword_Is_Read_In_Its_Tip) {
  Ask(Help_Command::PartialKey, 0, "XBARGE");
  auto* index = Child<QHelpIndexWidget>("HelpIndex");
  ASSERT_TRUE(Wait_Until([&] { return index->model()->rowCount() == 1; }));
  const QPoint place = index->visualRect(index->model()->index(0, 0)).center();
  QTest::mouseMove(index->viewport(), place + QPoint(0, 100));
  QTest::mouseMove(index->viewport(), place);
  EXPECT_TRUE(Wait_Until([&] { return index->toolTip() == "XBARGE"; }));
}

TEST_F(HelpViewer, Search_Takes_Signs_For_No_Commands_And_Says_When_Nothing_Is_Found) {
  Ask(Help_Command::Index);
  auto* words = Child<QLineEdit>("HelpWords");
  auto* outcome = Child<QLabel>("HelpOutcome");
  words->setText("\"quixotic* AND (");
  QTest::keyClick(words, Qt::Key_Return);
  ASSERT_TRUE(Wait_Until([&] { return outcome->text() == "No page holds these words."; }));
  words->setText("  -- ");
  QTest::keyClick(words, Qt::Key_Return);
  EXPECT_EQ(outcome->text(), "Type one or more words to look for.");
}

TEST_F(HelpViewer, Back_Forward_And_Home) {
  Ask(Help_Command::Context, 2460);
  EXPECT_FALSE(Child<QAction>("HelpBack")->isEnabled());
  Ask(Help_Command::Context, 2510);
  Trigger("HelpBack");
  EXPECT_EQ(Shown(), "site-description.html");
  Trigger("HelpForward");
  EXPECT_EQ(Shown(), "coefficients.html");
  Trigger("HelpHome");
  EXPECT_EQ(Shown(), "contents.html");
}

TEST_F(HelpViewer, Zoom_Goes_Both_Ways_And_Back) {
  Ask(Help_Command::Index);
  const qreal normal = Window()->page().font().pointSizeF();
  Trigger("HelpLarger");
  Trigger("HelpLarger");
  EXPECT_GT(Window()->page().font().pointSizeF(), normal);
  Trigger("HelpSmaller");
  Trigger("HelpNormal");
  EXPECT_DOUBLE_EQ(Window()->page().font().pointSizeF(), normal);
  for (int i = 0; i < 100; ++i) Trigger("HelpSmaller");
  EXPECT_GT(Window()->page().font().pointSizeF(), 4);
}

TEST_F(HelpViewer, Finds_On_The_Page_And_Starts_Again_At_The_Top) {
  Ask(Help_Command::Context, 3030);
  Trigger("HelpFind");
  auto* text = Child<QLineEdit>("HelpFindText");
  ASSERT_TRUE(text->isVisible());
  text->setText("harbour");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(Window()->page().textCursor().selectedText(), "Harbour");
  const int first = Window()->page().textCursor().position();
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(Window()->page().textCursor().position(), first);
  text->setText("quixotic");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(Child<QLabel>("HelpFindOutcome")->text(), "Not on this page.");
  QTest::keyClick(Window(), Qt::Key_Escape);
  EXPECT_FALSE(text->isVisible());
  EXPECT_TRUE(Window()->isVisible());
}

TEST_F(HelpViewer, Escape_Closes_The_Window_And_It_Opens_Again_On_Its_Page) {
  Ask(Help_Command::Context, 2540);
  QTest::keyClick(Window(), Qt::Key_Escape);
  EXPECT_FALSE(Window()->isVisible());
  Ask(Help_Command::Finder);
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_EQ(Shown(), "evaluation.html");
}

TEST_F(HelpViewer, A_Page_Prints) {
  Scratch_Folder folder;
  Ask(Help_Command::Context, 2460);
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(folder / "page.pdf"));
  Window()->page().print(&printer);
  EXPECT_EQ(Read_Text(folder / "page.pdf").substr(0, 5), "%PDF-");
}

TEST_F(HelpViewer, Quit_Closes_The_Window) {
  Ask(Help_Command::Index);
  Show_Help({Help_Command::Quit, 0, ""});
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(HelpViewer, Closing_Help_That_Was_Never_Open_Says_Nothing) {
  Modal_Replies replies({});
  Show_Help({Help_Command::Quit, 0, ""});
  QCoreApplication::processEvents();
  EXPECT_EQ(replies.windows, 0);
}

TEST_F(HelpViewer, A_Missing_Help_File_Is_Told_In_Words) {
  Set_Help_File("/nowhere/BARVON.HLP");
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Show_Help({Help_Command::Context, 2460, ""});
  EXPECT_EQ(replies.seen.at(0).text, "The help file is missing: /nowhere/BARVON.HLP");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Warning);
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(HelpViewer, A_Damaged_Help_File_Is_Told_In_Words) {
  Scratch_Folder folder;
  const std::string whole = Read_Text(BARVON_HELP_FILE);
  for (const std::string& bytes :
       {std::string(), std::string("no help at all"), whole.substr(0, 100),
        whole.substr(0, whole.size() / 2), std::string(whole.size(), '\0')}) {
    const std::string path = folder / "BARVON.HLP";
    Write_Text(path, bytes);
    Set_Help_File(path);
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Show_Help({Help_Command::Index, 0, ""});
    EXPECT_EQ(replies.seen.at(0).text,
              "The help file can't be shown: " + QString::fromStdString(path));
    EXPECT_EQ(Window(), nullptr);
  }
  EXPECT_EQ(testing::Names_In(folder.path()), std::vector<std::string>{"BARVON.HLP"});
}

TEST_F(HelpViewer, A_Folder_In_The_Place_Of_The_File_Is_Told_In_Words) {
  Scratch_Folder folder;
  Set_Help_File(folder.path());
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Show_Help({Help_Command::Index, 0, ""});
  EXPECT_TRUE(replies.seen.at(0).text.startsWith("The help file can't be shown: "));
}

TEST_F(HelpViewer, Nothing_Is_Written_Beside_The_Help_File) {
  Scratch_Folder folder;
  const std::string path = folder / "BARVON.HLP";
  const std::string whole = Read_Text(BARVON_HELP_FILE);
  Write_Text(path, whole);
  Set_Help_File(path);
  Ask(Help_Command::Index);
  auto* index = Child<QHelpIndexWidget>("HelpIndex");
  ASSERT_TRUE(Wait_Until([&] { return index->model()->rowCount() > 300; }));
  Show_Help({Help_Command::Quit, 0, ""});
  EXPECT_EQ(testing::Names_In(folder.path()), std::vector<std::string>{"BARVON.HLP"});
  EXPECT_EQ(Read_Text(path), whole);
}

/// Where a click in the help window gets to.
bool Takes_Clicks() {
  auto* tabs = &Window()->navigation();
  tabs->setCurrentIndex(Help_Navigation::kContents);
  const QPoint index_tab = tabs->tabBar()->tabRect(Help_Navigation::kIndex).center();
  const QPoint at = tabs->tabBar()->mapTo(Window(), index_tab);
  QTest::mouseClick(Window()->windowHandle(), Qt::LeftButton, {}, at);
  return tabs->currentIndex() == Help_Navigation::kIndex;
}

TEST_F(HelpViewer, Is_Used_While_A_Screen_Blocks_The_Program) {
  QDialog screen;
  screen.setModal(true);
  screen.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen));
  Ask(Help_Command::Context, 2460);
  EXPECT_TRUE(Takes_Clicks());
}

TEST_F(HelpViewer, Stays_Usable_When_Screens_Come_Up_And_Go) {
  Ask(Help_Command::Context, 2460);
  ASSERT_TRUE(Takes_Clicks());
  {
    QDialog screen;
    screen.setModal(true);
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen));
    EXPECT_TRUE(Takes_Clicks());
    {
      QDialog box(&screen);
      box.setModal(true);
      box.show();
      ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
      EXPECT_TRUE(Takes_Clicks());
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(Takes_Clicks());
  }
  QCoreApplication::processEvents();
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_TRUE(Takes_Clicks());
}

TEST_F(HelpViewer, Does_Not_Keep_The_Program_Alive) {
  Ask(Help_Command::Index);
  EXPECT_FALSE(Window()->testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(HelpViewer, Opens_In_Its_Place_And_Is_Large_Enough_To_Read) {
  Ask(Help_Command::Index);
  EXPECT_GE(Window()->width(), 512);
  EXPECT_GE(Window()->height(), 512);
  EXPECT_TRUE(Window()->screen()->geometry().contains(Window()->geometry()));
}

QList<QUrl> All_Pages() {
  return Window()->library().engine().files("barvon.help", QString(), "html");
}

TEST_F(HelpViewer, Every_Page_Can_Be_Read_From_The_File) {
  Ask(Help_Command::Index);
  EXPECT_GT(All_Pages().size(), 30);
  for (const QUrl& page : All_Pages()) {
    Window()->page().setSource(page);
    EXPECT_FALSE(Window()->page().documentTitle().isEmpty()) << page.toString().toStdString();
    EXPECT_GT(Window()->page().toPlainText().size(), 300) << page.toString().toStdString();
  }
}

TEST_F(HelpViewer, No_Page_Is_Wider_Than_The_Window_Opens) {
  Ask(Help_Command::Index);
  for (const QUrl& page : All_Pages()) {
    Window()->page().setSource(page);
    QCoreApplication::processEvents();
    EXPECT_EQ(Window()->page().horizontalScrollBar()->maximum(), 0)
        << page.toString().toStdString();
  }
}

TEST_F(HelpViewer, A_Page_That_Is_Not_There_Is_Told_In_Words) {
  Ask(Help_Command::Index);
  Window()->page().setSource(QUrl("qthelp://barvon.help/help/nowhere.html"));
  EXPECT_TRUE(Window()->page().toPlainText().contains("The help file holds no page nowhere.html."));
}

TEST_F(HelpViewer, Pages_Use_The_Style_Sheet) {
  Ask(Help_Command::Context, 2460);
  const QTextBlock heading = Window()->page().document()->begin();
  EXPECT_EQ(heading.begin().fragment().charFormat().foreground().color(), QColor("#12395f"));
}

TEST_F(HelpViewer, Every_Control_Has_A_Name_For_Assistive_Tools) {
  Ask(Help_Command::Index);
  for (const char* name : {"HelpContents", "HelpIndex", "HelpResults", "HelpPage"}) {
    EXPECT_FALSE(Child<QWidget>(name)->accessibleName().isEmpty()) << name;
  }
}

}  // namespace
}  // namespace barvon

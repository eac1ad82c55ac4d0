#include "graphs/frm_graphs.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSvgRenderer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <filesystem>
#include <optional>

#include "graphs/graph_menus.h"
#include "pictures/picture.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "results/small_outputs.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

class FrmGraphs : public ::testing::Test {
 protected:
  FrmGraphs() {
    Write_Outputs("bay");
    former_ = Set_File_Dialog_Presenter({[this](const File_Request& request) {
                                           titles.push_back(request.title);
                                           return chosen;
                                         },
                                         {},
                                         {},
                                         {}});
    Build_Graph_Menus(window);
    window.show();
  }
  ~FrmGraphs() override { Set_File_Dialog_Presenter(former_); }

  void Write_Outputs(const std::string& name) const {
    Write_Text(folder / (name + ".dut"), kSmallSeries);
    Write_Text(folder / (name + ".duc"), kSmallMaps);
    Write_Text(folder / (name + ".dup"), kSmallPhases);
  }
  void Open_Bay(int view = kOverview) { window.Show_Results_Of(folder / "bay.DUI", view); }
  template <class T>
  T* Child(const char* name) {
    return window.findChild<T*>(QLatin1String(name));
  }
  QAction* Action(const char* name) { return Child<QAction>(name); }
  std::string Label(const char* name) { return Child<QLabel>(name)->text().toStdString(); }
  /// What a timer does once the files rest.
  void Look_Twice() {
    window.Look_Again();
    window.Look_Again();
  }

  Scratch_Folder folder;
  const Qt_Services services;
  std::optional<std::string> chosen;
  std::vector<std::string> titles;
  frmGraphs window;

 private:
  File_Dialog_Presenter former_;
};

// The map tells what the keys point at, and that it does no longer. By then the window goes.
TEST_F(FrmGraphs, A_Window_May_Go_While_Keys_Are_In_Its_Map) {
  window.hide();
  auto* other = new frmGraphs;
  other->show();
  other->Show_Results_Of(folder / "bay.DUI", kContours);
  other->activateWindow();
  Picture* map = other->Page_In_Front()->Shown_Picture();
  ASSERT_NE(map, nullptr);
  map->setFocus(Qt::TabFocusReason);
  QTest::keyClick(map, Qt::Key_Right);
  const auto* told = other->findChild<QLabel*>(QStringLiteral("Told"));
  ASSERT_NE(told, nullptr);
  EXPECT_FALSE(told->text().isEmpty());
  delete other;
}

TEST_F(FrmGraphs, Each_Type_Opens_Its_View) {
  for (int view = 0; view < kGraphViews; ++view) {
    Open_Bay(view);
    EXPECT_EQ(window.tabs().currentIndex(), view);
    EXPECT_NE(window.Page_In_Front(), nullptr);
    EXPECT_TRUE(Action(("mnuGraph(" + std::to_string(view) + ")").c_str())->isChecked());
  }
  EXPECT_EQ(window.windowTitle(), "BARVON Graphics - bay.DUI");
  EXPECT_EQ(Label("OwnTitle").rfind("M\xC3\xB6wenbank  (bay.DUI, run of ", 0), 0u);
}

TEST_F(FrmGraphs, Empty_It_Says_What_To_Do) {
  EXPECT_EQ(window.Page_In_Front(), nullptr);
  EXPECT_EQ(Label("Notice").rfind("No results are open.", 0), 0u);
  EXPECT_FALSE(Child<QPushButton>("cmdListing")->isVisible());
  for (const char* name : {"mnuCompare", "mnuNoComparison", "mnuSavePicture", "mnuSaveNumbers",
                           "mnuPlace", "mnuPrint", "mnuGraph(0)"}) {
    EXPECT_FALSE(Action(name)->isEnabled()) << name;
  }
  chosen = folder / "bay.DUI";
  QTest::mouseClick(Child<QPushButton>("cmdOpen"), Qt::LeftButton);
  EXPECT_EQ(titles, std::vector<std::string>{"Open Results"});
  ASSERT_NE(window.Page_In_Front(), nullptr);
  EXPECT_TRUE(Action("mnuCompare")->isEnabled());
}

TEST_F(FrmGraphs, Calling_The_Dialog_Off_Changes_Nothing) {
  Action("mnuOpen")->trigger();
  EXPECT_EQ(window.Page_In_Front(), nullptr);
  Open_Bay(kContours);
  Action("mnuOpen")->trigger();
  Action("mnuCompare")->trigger();
  EXPECT_EQ(titles.size(), 3u);
  EXPECT_EQ(window.tabs().currentIndex(), kContours);
  EXPECT_EQ(window.shown().other, nullptr);
}

TEST_F(FrmGraphs, Damaged_Outputs_Are_Told_With_File_Line_And_Reason) {
  Write_Text(folder / "bay.dut", With(kSmallSeries, "PEAK   6.0", "PEAK   6.x"));
  Open_Bay();
  EXPECT_EQ(window.Page_In_Front(), nullptr);
  EXPECT_NE(Label("Notice").find("bay.dut, line 13"), std::string::npos) << Label("Notice");
}

TEST_F(FrmGraphs, Outputs_Of_Another_Solver_Are_Told_And_Their_Listing_Is_Read) {
  Write_Text(folder / "bay.dut", "ANOTHER SOLVER 3\r\n");
  Write_Text(folder / "bay.duo", "first line\r\nsecond line\r\n");
  Open_Bay();
  EXPECT_NE(Label("Notice").find("are of another solver"), std::string::npos);
  auto* listing = Child<QPushButton>("cmdListing");
  ASSERT_TRUE(listing->isVisible());
  QTest::mouseClick(listing, Qt::LeftButton);
  EXPECT_TRUE(window.notice().view().isVisible());
  EXPECT_TRUE(window.notice().view().Text_In_View().startsWith("first line\nsecond line"));
  // Another project has another listing.
  Open_Bay();
  EXPECT_TRUE(window.notice().Listing_Is_Shown());
  window.Show_Results_Of(folder / "none.DUI", kOverview);
  EXPECT_FALSE(window.notice().Listing_Is_Shown());
}

TEST_F(FrmGraphs, A_Listing_That_Has_Gone_Is_Told) {
  std::filesystem::remove(folder / "bay.dut");
  Write_Text(folder / "bay.duo", "first line\r\n");
  Open_Bay();
  std::filesystem::remove(folder / "bay.duo");
  const Scripted_Messages messages({Answer::Ok});
  QTest::mouseClick(Child<QPushButton>("cmdListing"), Qt::LeftButton);
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "The listing " + (folder / "bay.duo") + " can't be read: No such file or directory.");
  EXPECT_FALSE(window.notice().Listing_Is_Shown());
}

TEST_F(FrmGraphs, A_Text_Is_Found_In_The_Listing_By_Keys) {
  std::filesystem::remove(folder / "bay.dut");
  Write_Text(folder / "bay.duo", "first line\r\nsecond line\r\n");
  Open_Bay();
  window.notice().Show_Listing();
  Action("mnuFind")->trigger();
  auto* field = Child<QLineEdit>("FindText");
  ASSERT_TRUE(field->isVisible());
  QTest::keyClicks(field, "second");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(window.notice().view().Marked_Text(), "second");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(field->isVisible());
}

TEST_F(FrmGraphs, Results_That_Come_Later_Take_The_Place_Of_The_Notice) {
  std::filesystem::remove(folder / "bay.duc");
  Open_Bay(kDeposit);
  EXPECT_EQ(window.Page_In_Front(), nullptr);
  Write_Outputs("bay");
  Look_Twice();
  ASSERT_NE(window.Page_In_Front(), nullptr);
  EXPECT_EQ(window.tabs().currentIndex(), kDeposit);
  EXPECT_EQ(Label("State").rfind("New outputs of bay.DUI, run of ", 0), 0u);
}

TEST_F(FrmGraphs, A_Run_Under_The_Window_Is_Shown_With_A_Word) {
  Open_Bay(kMaxima);
  EXPECT_EQ(Label("State"), "");
  Write_Text(folder / "bay.dut", With(kSmallSeries, "Copper    ", "Silver    "));
  window.Look_Again();
  EXPECT_EQ(window.shown().own->species.at(1).name, "Copper");
  window.Look_Again();
  EXPECT_EQ(window.shown().own->species.at(1).name, "Silver");
  EXPECT_EQ(window.tabs().currentIndex(), kMaxima);
  EXPECT_EQ(Label("State").rfind("New outputs of bay.DUI", 0), 0u);
}

TEST_F(FrmGraphs, The_Picture_Stays_When_The_Outputs_Go_Or_Are_Damaged) {
  Open_Bay(kContours);
  const Results_Held before = window.shown().own;
  std::filesystem::remove(folder / "bay.dut");
  Look_Twice();
  EXPECT_EQ(window.shown().own, before);
  EXPECT_NE(window.Page_In_Front(), nullptr);
  EXPECT_EQ(Label("State").rfind("Shown is the run of ", 0), 0u);
  Write_Text(folder / "bay.dut", kSmallSeries.substr(0, 500));
  Look_Twice();
  EXPECT_EQ(window.shown().own, before);
  EXPECT_NE(Label("State").find("bay.dut, line "), std::string::npos) << Label("State");
  Write_Outputs("bay");
  Look_Twice();
  EXPECT_NE(window.shown().own, before);
}

TEST_F(FrmGraphs, Two_Results_Have_Both_Their_Titles_Until_The_Comparison_Ends) {
  Open_Bay();
  Write_Outputs("cove");
  chosen = folder / "cove.dut";
  Action("mnuCompare")->trigger();
  ASSERT_NE(window.shown().other, nullptr);
  EXPECT_TRUE(Child<QLabel>("OwnTitle")->isVisible());
  EXPECT_TRUE(Child<QLabel>("OtherTitle")->isVisible());
  EXPECT_EQ(Label("OtherTitle").rfind("Compared with: M\xC3\xB6wenbank  (cove.dut, run of ", 0),
            0u);
  EXPECT_TRUE(Action("mnuNoComparison")->isEnabled());
  QTest::mouseClick(Child<QPushButton>("cmdNoComparison"), Qt::LeftButton);
  EXPECT_EQ(window.shown().other, nullptr);
  EXPECT_FALSE(Child<QLabel>("OtherTitle")->isVisible());
  EXPECT_FALSE(Child<QPushButton>("cmdNoComparison")->isVisible());
  EXPECT_FALSE(Action("mnuNoComparison")->isEnabled());
}

TEST_F(FrmGraphs, Another_Project_Ends_A_Comparison_With_A_Word) {
  Write_Outputs("other");
  Write_Outputs("third");
  Open_Bay(kContours);
  window.Compare_With(folder / "other.DUI");
  chosen = folder / "third.DUI";
  Action("mnuOpen")->trigger();
  EXPECT_EQ(window.shown().other, nullptr);
  EXPECT_FALSE(Child<QLabel>("OtherTitle")->isVisible());
  EXPECT_FALSE(Action("mnuNoComparison")->isEnabled());
  EXPECT_EQ(Label("State"), "No longer compared with other.DUI.");
  window.Show_Results_Of(folder / "bay.DUI", kContours);
  EXPECT_EQ(Label("State"), "");
}

TEST_F(FrmGraphs, A_New_Comparison_Takes_Words_Of_Before_Away) {
  Write_Outputs("other");
  Open_Bay();
  window.Say("No longer compared with other.DUI.");
  window.Compare_With(folder / "other.DUI");
  EXPECT_EQ(Label("State"), "");
  Write_Text(folder / "bay.dut", std::string(kSmallSeries) + " ");
  Look_Twice();
  const std::string damage = Label("State");
  EXPECT_EQ(damage.rfind("Shown is the run of ", 0), 0u) << damage;
  window.Compare_With(folder / "other.DUI");
  EXPECT_EQ(Label("State"), damage);
}

TEST_F(FrmGraphs, A_Run_Compared_With_Itself_Is_Told_Once) {
  Open_Bay();
  window.Compare_With(folder / "bay.DUI");
  Write_Outputs("bay");
  Look_Twice();
  const std::string words = Label("State");
  EXPECT_EQ(words.rfind("New outputs of bay.DUI, run of ", 0), 0u) << words;
  EXPECT_EQ(words.find(';'), std::string::npos) << words;
}

TEST_F(FrmGraphs, A_Small_Picture_Leads_To_What_It_Shows) {
  Open_Bay(kContours);
  auto* species = window.Page_In_Front()->findChild<QComboBox*>(QStringLiteral("cboSpecies"));
  ASSERT_NE(species, nullptr);
  ASSERT_EQ(species->count(), 2);
  const int telling = species->currentIndex();
  species->setCurrentIndex(1 - telling);
  window.Show_View(kOverview);
  QTest::mouseClick(Child<QPushButton>("Open(2)"), Qt::LeftButton);
  EXPECT_EQ(Child<QTabWidget>("Views")->currentIndex(), kContours);
  EXPECT_EQ(species->currentIndex(), telling);
}

TEST_F(FrmGraphs, Times_In_Both_Runs_Are_Told_Where_They_Differ) {
  Write_Outputs("other");
  Open_Bay(kOverview);
  window.Compare_With(folder / "other.DUI");
  EXPECT_FALSE(Child<QLabel>("CommonTimes")->isVisible());
  std::string series = kSmallSeries, maps = kSmallMaps;
  const auto rename = [](std::string& text) {
    for (std::size_t at = 0; (at = text.find("1.200000e+03", at)) != std::string::npos;) {
      text.replace(at, 12, "1.800000e+03");
    }
  };
  rename(series);
  rename(maps);
  Write_Text(folder / "longer.dut", series);
  Write_Text(folder / "longer.duc", maps);
  Write_Text(folder / "longer.dup", kSmallPhases);
  window.Compare_With(folder / "longer.DUI");
  auto* times = Child<QLabel>("CommonTimes");
  for (int view = 0; view < kGraphViews; ++view) {
    window.Show_View(view);
    ASSERT_TRUE(times->isVisible());
    EXPECT_EQ(times->text(),
              "The time in both is 600 s (10 min). Differences at a time are of this one alone.");
  }
  window.End_Comparison();
  EXPECT_FALSE(times->isVisible());
}

TEST_F(FrmGraphs, Words_That_The_Foot_Would_Cut_Stand_Whole_Above_It) {
  Open_Bay(kContours);
  window.resize(1400, 700);
  window.Say("short");
  EXPECT_TRUE(Child<QLabel>("State")->isVisible());
  EXPECT_FALSE(Child<QLabel>("WholeState")->isVisible());
  window.resize(640, 480);
  Write_Text(folder / "bay.dut", With(kSmallSeries, "PEAK   6.0", "PEAK   6.x"));
  Look_Twice();
  const std::string said = Label("State");
  ASSERT_NE(said.find("bay.dut, line 13"), std::string::npos) << said;
  auto* whole = Child<QLabel>("WholeState");
  QTest::qWait(0);
  ASSERT_TRUE(whole->isVisible());
  EXPECT_FALSE(Child<QLabel>("State")->isVisible());
  EXPECT_EQ(whole->text().remove(QChar(0x200B)).toStdString(), said);
  EXPECT_EQ(whole->accessibleName().toStdString(), said);
  EXPECT_GE(whole->height(), whole->heightForWidth(whole->width()));
  window.Say("");
  EXPECT_FALSE(whole->isVisible());
}

TEST_F(FrmGraphs, What_Can_Not_Be_Compared_With_Is_Told_And_Leaves_All_As_It_Was) {
  Open_Bay();
  chosen = folder / "none.DUI";
  const Scripted_Messages messages({Answer::Ok});
  Action("mnuCompare")->trigger();
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text.rfind("These results can't be compared with: none.dut", 0), 0u);
  EXPECT_EQ(window.shown().other, nullptr);
  EXPECT_NE(window.Page_In_Front(), nullptr);
}

TEST_F(FrmGraphs, A_Run_Of_The_Other_Project_Is_Shown_Too) {
  Open_Bay();
  Write_Outputs("cove");
  chosen = folder / "cove.DUI";
  window.Compare();
  Write_Text(folder / "cove.dut", With(kSmallSeries, "Copper    ", "Silver    "));
  Look_Twice();
  EXPECT_EQ(window.shown().other->species.at(1).name, "Silver");
  EXPECT_EQ(Label("State").rfind("New outputs of cove.DUI", 0), 0u);
  std::filesystem::remove(folder / "cove.duc");
  Look_Twice();
  EXPECT_EQ(window.shown().other->species.at(1).name, "Silver");
  EXPECT_EQ(Label("State").rfind("Shown is the run of ", 0), 0u);
}

TEST_F(FrmGraphs, Two_Runs_After_Each_Other_Are_Both_Told) {
  Open_Bay();
  Write_Outputs("cove");
  window.Compare_With(folder / "cove.DUI");
  Write_Text(folder / "bay.dut", With(kSmallSeries, "Copper    ", "Silver    "));
  Look_Twice();
  Write_Text(folder / "cove.dut", With(kSmallSeries, "Copper    ", "Silver    "));
  Look_Twice();
  EXPECT_EQ(Label("State").rfind("New outputs of bay.DUI, run of ", 0), 0u) << Label("State");
  EXPECT_NE(Label("State").find("; of cove.DUI, run of "), std::string::npos) << Label("State");
  window.End_Comparison();
  EXPECT_EQ(Label("State").find("cove"), std::string::npos) << Label("State");
  EXPECT_EQ(Label("State").rfind("New outputs of bay.DUI", 0), 0u);
}

TEST_F(FrmGraphs, What_Holds_Words_Alone_Is_Not_Saved_Copied_Or_Printed) {
  Open_Bay(kContours);
  Write_Outputs("cove");
  Write_Text(folder / "cove.dut", With(kSmallSeries, "Copper    ", "Silver    "));
  window.Compare_With(folder / "cove.DUI");
  auto* species = window.Page_In_Front()->findChild<QComboBox*>("cboSpecies");
  auto* side = window.Page_In_Front()->findChild<QComboBox*>("cboSide");
  species->setCurrentIndex(species->findText("Copper"));
  const auto expect = [&](bool offered) {
    for (const char* name :
         {"mnuSavePicture", "mnuSaveNumbers", "mnuPrint", "mnuCopy", "mnuCopyNumbers"}) {
      EXPECT_EQ(Action(name)->isEnabled(), offered) << name;
    }
  };
  expect(true);
  side->setCurrentIndex(2);
  EXPECT_FALSE(window.Page_In_Front()->Has_Content());
  expect(false);
  window.Show_View(kMaxima);
  expect(true);
}

TEST_F(FrmGraphs, A_Copy_Of_Each_View_Can_Be_Pasted_In_Every_Form) {
  for (int view = 0; view < kGraphViews; ++view) {
    Open_Bay(view);
    QApplication::clipboard()->clear();
    Action("mnuCopy")->trigger();
    const QMimeData* content = QApplication::clipboard()->mimeData();
    ASSERT_NE(content, nullptr);
    const QImage pasted = qvariant_cast<QImage>(content->imageData());
    ASSERT_FALSE(pasted.isNull()) << view;
    const QImage saved = QImage::fromData(window.Page_In_Front()->Shown_Picture()->As_Png(), "PNG");
    EXPECT_EQ(pasted.size(), saved.size());
    EXPECT_TRUE(QSvgRenderer(content->data(QStringLiteral("image/svg+xml"))).isValid()) << view;
    // As many lines as the numbers have, with as many cells.
    const QString csv = QString::fromStdString(window.Page_In_Front()->Numbers());
    EXPECT_EQ(content->text().count(QLatin1Char('\n')), csv.count(QLatin1Char('\n'))) << view;
    EXPECT_GE(content->text().count(QLatin1Char('\t')), csv.count(QLatin1Char('\n'))) << view;
    const QString cells = content->text();
    Action("mnuCopyNumbers")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), cells);
    EXPECT_EQ(Label("State"), "Numbers copied");
  }
}

TEST_F(FrmGraphs, Keys_Reach_Each_View) {
  Open_Bay();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (int view = kGraphViews - 1; view >= 0; --view) {
    QTest::keyClick(&window, static_cast<Qt::Key>(Qt::Key_1 + view), Qt::ControlModifier);
    EXPECT_EQ(window.tabs().currentIndex(), view);
    EXPECT_TRUE(window.tabs().tabBar()->hasFocus());
  }
  QTest::keyClick(window.tabs().tabBar(), Qt::Key_Right);
  EXPECT_EQ(window.tabs().currentIndex(), 1);
}

TEST_F(FrmGraphs, F1_Opens_The_Page_Of_The_Graphics) {
  std::vector<int> topics;
  const Help_Presenter former = Set_Help_Presenter(
      [&topics](const Help_Request& request) { topics.push_back(request.topic); });
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_F1);
  Set_Help_Presenter(former);
  EXPECT_EQ(topics, std::vector<int>{kGraphicsTopic});
}

TEST_F(FrmGraphs, Texts_Grow_And_Shrink_And_Come_Back) {
  const double usual = QApplication::font().pointSizeF();
  Action("mnuLarger")->trigger();
  EXPECT_GT(QApplication::font().pointSizeF(), usual);
  for (int i = 0; i < 40; ++i) Action("mnuLarger")->trigger();
  EXPECT_LT(QApplication::font().pointSizeF(), 2.2 * usual);
  Action("mnuUsual")->trigger();
  EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual);
  Action("mnuSmaller")->trigger();
  EXPECT_LT(QApplication::font().pointSizeF(), usual);
  Action("mnuUsual")->trigger();
}

TEST_F(FrmGraphs, Names_In_Two_Lines_Have_Tabs_Of_Two_Lines) {
  Open_Bay();
  window.resize(640, 440);
  QApplication::processEvents();
  for (int i = 0; i < 8; ++i) Action("mnuLarger")->trigger();
  QApplication::processEvents();
  const QTabBar& bar = *window.tabs().tabBar();
  EXPECT_TRUE(bar.tabText(kContours).contains('\n'));
  for (int view = 0; view < kGraphViews; ++view) {
    EXPECT_GE(bar.tabRect(view).height(), 2 * bar.fontMetrics().lineSpacing());
    EXPECT_LE(bar.tabRect(view).bottom(), bar.height());
  }
  Action("mnuUsual")->trigger();
  window.resize(1100, 700);
  QApplication::processEvents();
  EXPECT_EQ(bar.tabText(kContours), "Concentration Contours");
  EXPECT_LT(bar.tabRect(kContours).height(), 2 * bar.fontMetrics().lineSpacing()) << window.width();
}

TEST_F(FrmGraphs, Closing_The_Window_Takes_The_Help_Along) {
  std::vector<Help_Command> commands;
  const Help_Presenter former = Set_Help_Presenter(
      [&commands](const Help_Request& request) { commands.push_back(request.command); });
  Action("mnuClose")->trigger();
  Set_Help_Presenter(former);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(commands, std::vector<Help_Command>{Help_Command::Quit});
}

}  // namespace
}  // namespace barvon::testing

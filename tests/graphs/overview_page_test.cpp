#include "graphs/overview_page.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "graphs/overview_data.h"
#include "results/small_results.h"

namespace barvon::testing {
namespace {

class Overview_Bench {
 public:
  explicit Overview_Bench(Results own = Small_Results(),
                          std::shared_ptr<const Results> other = nullptr) {
    page.Show({std::make_shared<const Results>(std::move(own)), std::move(other)});
    page.resize(1000, 700);
    page.show();
    QApplication::processEvents();
  }

  template <class T>
  T* Child(const char* name) {
    return page.findChild<T*>(QLatin1String(name));
  }
  QString Text(const char* name) { return Child<QLabel>(name)->text(); }

  Overview_Page page;
};

std::shared_ptr<const Results> Another() {
  auto other = std::make_shared<Results>(Small_Results());
  other->path = "/work/wide.DUI";
  other->title = "WIDE BAY";
  return other;
}

TEST(OverviewPage, It_Says_Whose_Results_They_Are_And_What_They_Are_Worth) {
  Overview_Bench bench;
  EXPECT_EQ(bench.Text("Title"), "SMALL BAY");
  EXPECT_TRUE(bench.Text("Made").startsWith("COMPANION SOLVER 1.0, 19"));
  EXPECT_EQ(bench.Text("Warning"), "A model of its own; not a validated code for permits.");
  EXPECT_EQ(bench.Text("Verdicts"),
            "criterion outside the disposal site, 2 mg/l:\n  exceeded from 140 s to 260 s");
  EXPECT_EQ(bench.Text("Deposit"),
            "Deposit at 400 s (6.7 min): thickest 2 ft at X 50 ft, Z 40 ft; 3000 ft3 on the grid, "
            "voids included.");
  EXPECT_FALSE(bench.Child<QLabel>("Title2")->isVisible());
}

TEST(OverviewPage, Without_A_Verdict_It_Says_Why) {
  Results results = Small_Results();
  results.verdicts.clear();
  EXPECT_EQ(Words_Of(results, "").verdicts, "None: nothing is compared in this run.");
  results.input_sum.reset();
  EXPECT_EQ(Words_Of(results, "").verdicts,
            "These outputs are of an earlier solver, which tells its verdicts in the listing "
            "alone.");
  results.title.clear();
  EXPECT_EQ(Words_Of(results, "").title, "small");
  EXPECT_EQ(Words_Of(results, "").verdicts.find("None"), std::string::npos);
  results.beds.clear();
  EXPECT_EQ(Words_Of(results, "").deposit, "The outputs hold no deposit.");
}

TEST(OverviewPage, The_Largest_Values_Are_A_Row_A_Species) {
  const Overview_Table table = Largest_Table(Small_Results(), nullptr);
  EXPECT_EQ(table.headings, (std::vector<std::string>{"Species", "Inside the site",
                                                      "Outside the site", "At any point"}));
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0], (std::vector<std::string>{"Sand", "90 mg/l\nat 100 s (1.7 min), 20 ft",
                                                     "8 mg/l\nat 200 s (3.3 min), 20 ft",
                                                     "120 mg/l\nat 100 s (1.7 min), 21 ft"}));
  Results zone = Small_Results();
  zone.zid = zone.site;
  zone.site.reset();
  EXPECT_EQ(Largest_Table(zone, nullptr).headings,
            (std::vector<std::string>{"Species", "Anywhere", "Outside the ZID", "At any point"}));
}

TEST(OverviewPage, Columns_Name_The_Mixing_Zone_And_What_Two_Runs_Have) {
  const Results site = Small_Results();
  Results zone = Small_Results();
  zone.mixing_zone = true;
  EXPECT_EQ(Largest_Table(zone, nullptr).headings[1], "Inside the mixing zone");
  EXPECT_EQ(Largest_Table(zone, &zone).headings[2], "Outside the mixing zone");
  EXPECT_EQ(Largest_Table(site, &zone).headings[1], "Inside the site or zone");
  Results nowhere = Small_Results();
  nowhere.site.reset();
  EXPECT_EQ(Largest_Table(nowhere, &zone).headings[1], "Inside the mixing zone");
  const Overview_Table both = Largest_Table(zone, &nowhere);
  EXPECT_EQ(both.headings,
            (std::vector<std::string>{"Species", "Inside the mixing zone",
                                      "Outside the mixing zone", "Anywhere", "At any point"}));
  EXPECT_EQ(both.rows[0][2], "8 mg/l\nat 200 s (3.3 min), 20 ft");
  EXPECT_EQ(both.rows[0][3], "-");
  EXPECT_EQ(both.rows[1][1], "-");
  EXPECT_EQ(both.rows[1][2], "-");
  EXPECT_EQ(both.rows[1][3], "8 mg/l\nat 200 s (3.3 min), 20 ft");
  EXPECT_EQ(Largest_Table(zone, &nowhere).headings[1], "Inside the mixing zone");
}

TEST(OverviewPage, The_Table_Is_Shown_Whole) {
  Overview_Bench bench;
  auto* table = bench.Child<QTableWidget>("Largest");
  ASSERT_EQ(table->rowCount(), 2);
  EXPECT_EQ(table->item(0, 0)->text(), "Sand");
  EXPECT_GE(table->viewport()->height(), table->verticalHeader()->length());
  EXPECT_GE(table->viewport()->width(), table->horizontalHeader()->length());
}

TEST(OverviewPage, The_Balance_Is_Shown_At_The_End_Or_At_A_Time) {
  Overview_Bench bench;
  EXPECT_EQ(bench.page.Picture_Name(), "Balance at the end");
  auto* balance = bench.Child<Bar_Picture>("Balance");
  EXPECT_EQ(bench.page.Shown_Picture(), balance);
  EXPECT_EQ(balance->Drawn().chart.bars[0].parts[0].to, 10);
  QSignalSpy changed(&bench.page, &Graph_Page::Changed);
  QTest::keyClick(bench.Child<QComboBox>("BalanceTime"), Qt::Key_Down);
  EXPECT_EQ(balance->Drawn().chart.bars[0].parts[0].to, 75);
  EXPECT_EQ(bench.page.Picture_Name(), "Balance at 100 s (1.7 min)");
  EXPECT_NE(bench.page.Numbers().find(",100,800,600,200,0\r\n"), std::string::npos);
  EXPECT_EQ(changed.count(), 1);
  bench.page.Show({std::make_shared<const Results>(Small_Results()), nullptr});
  EXPECT_EQ(bench.page.Picture_Name(), "Balance at 100 s (1.7 min)");
}

TEST(OverviewPage, The_Balance_Of_Another_Project_Begins_At_Its_End) {
  Overview_Bench bench;
  QTest::keyClick(bench.Child<QComboBox>("BalanceTime"), Qt::Key_Down);
  bench.page.Show({Another(), nullptr});
  EXPECT_EQ(bench.page.Picture_Name(), "Balance at the end");
}

TEST(OverviewPage, A_Small_Picture_Opens_Its_View_By_Click_And_By_Key) {
  Overview_Bench bench;
  QSignalSpy asked(&bench.page, &Graph_Page::Asked_For);
  int view = 1;
  for (const char* name : {"Open(1)", "Open(2)", "Open(3)"}) {
    auto* button = bench.Child<Picture_Button>(name);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    ASSERT_EQ(asked.count(), 2 * view);
    EXPECT_EQ(asked.last().first().toInt(), view);
    EXPECT_FALSE(button->text().isEmpty());
    EXPECT_FALSE(button->accessibleDescription().isEmpty());
    ++view;
  }
}

TEST(OverviewPage, The_Small_Pictures_Show_The_Results) {
  Overview_Bench bench;
  const QImage before = bench.Child<Picture_Button>("Open(1)")->grab().toImage();
  const QImage map = bench.Child<Picture_Button>("Open(2)")->grab().toImage();
  Results other = Small_Results();
  other.limits.clear();
  bench.page.Show({std::make_shared<const Results>(other), nullptr});
  EXPECT_NE(bench.Child<Picture_Button>("Open(1)")->grab().toImage(), before);
  EXPECT_NE(bench.Child<Picture_Button>("Open(2)")->grab().toImage(), map);
}

TEST(OverviewPage, Two_Runs_Are_Said_Beside_Each_Other) {
  Overview_Bench bench(Small_Results(), Another());
  EXPECT_EQ(bench.Text("Title"), "small: SMALL BAY");
  EXPECT_EQ(bench.Text("Title2"), "wide: WIDE BAY");
  EXPECT_TRUE(bench.Child<QLabel>("Title2")->isVisible());
  EXPECT_GT(bench.Child<QLabel>("Title2")->mapTo(&bench.page, QPoint()).x(),
            bench.Child<QLabel>("Title")->mapTo(&bench.page, QPoint()).x() + 100);
  EXPECT_EQ(bench.Child<QTableWidget>("Largest")->rowCount(), 4);
  EXPECT_EQ(bench.Child<QTableWidget>("Largest")->item(1, 0)->text(), "Sand\nwide");
  EXPECT_EQ(bench.Child<Bar_Picture>("Balance")->Drawn().chart.bars.size(), 4u);
  bench.page.Show({std::make_shared<const Results>(Small_Results()), nullptr});
  EXPECT_FALSE(bench.Child<QLabel>("Title2")->isVisible());
  EXPECT_EQ(bench.Text("Title"), "SMALL BAY");
}

TEST(OverviewPage, Empty_Results_Are_Survived) {
  Overview_Bench bench{Results()};
  EXPECT_EQ(bench.Child<QTableWidget>("Largest")->rowCount(), 0);
  EXPECT_EQ(bench.Child<Bar_Picture>("Balance")->Drawn().note, "Nothing to show yet.");
  EXPECT_FALSE(bench.Child<Picture_Button>("Open(2)")->grab().isNull());
}

TEST(OverviewPage, In_A_Narrow_Window_The_Small_Pictures_Are_Below_And_The_Table_Scrolls) {
  Overview_Bench bench;
  auto* table = bench.Child<QTableWidget>("Largest");
  const auto place = [&](QWidget* part) { return part->mapTo(&bench.page, QPoint()); };
  EXPECT_GT(place(bench.Child<QPushButton>("Open(1)")).x(), place(table).x() + table->width());
  EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0);
  bench.page.resize(380, 700);
  QApplication::processEvents();
  EXPECT_GT(place(bench.Child<QPushButton>("Open(1)")).y(), place(table).y() + table->height() - 1);
  EXPECT_GT(table->horizontalScrollBar()->maximum(), 0);
  EXPECT_GE(table->viewport()->height(), table->verticalHeader()->length());
}

// With all columns that one kind of run has.
TEST(OverviewPage, The_Table_Of_Two_Runs_Fits_A_Small_Display) {
  Results zone = Small_Results();
  zone.path = "/work/Section_404_Zid.DUI";
  zone.mixing_zone = true;
  zone.zid = zone.site;
  for (Result_Maxima& row : zone.maxima) {
    row.inside = row.outside = row.outside_zid = 5542.9;
    row.depth = 34;
  }
  for (Result_Peak& peak : zone.peaks) peak.depth = 34.83;
  auto other = std::make_shared<Results>(zone);
  other->path = "/work/Fine.DUI";
  Overview_Bench bench(zone, other);
  bench.page.resize(1000, 600);
  QApplication::processEvents();
  const auto* table = bench.Child<QTableWidget>("Largest");
  EXPECT_EQ(table->columnCount(), 5);
  EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0);
}

TEST(OverviewPage, Large_Letters_Are_Given_Room) {
  Overview_Bench bench;
  const int before = bench.Child<QLabel>("Title")->fontMetrics().height();
  const int balance = bench.Child<Bar_Picture>("Balance")->minimumHeight();
  QFont large = bench.page.font();
  large.setPointSizeF(2 * large.pointSizeF());
  bench.page.setFont(large);
  QApplication::processEvents();
  EXPECT_GT(bench.Child<QLabel>("Title")->fontMetrics().height(), 1.8 * before);
  EXPECT_GT(bench.Child<Bar_Picture>("Balance")->minimumHeight(), 1.6 * balance);
  auto* table = bench.Child<QTableWidget>("Largest");
  EXPECT_GE(table->viewport()->height(), table->verticalHeader()->length());
}

TEST(OverviewPage, A_Small_Window_Scrolls_Rather_Than_Cuts) {
  Overview_Bench bench;
  bench.page.resize(500, 300);
  QApplication::processEvents();
  auto* scrolled = bench.page.findChild<QScrollArea*>();
  ASSERT_NE(scrolled, nullptr);
  EXPECT_GT(scrolled->verticalScrollBar()->maximum(), 0);
  for (const QWidget* part : scrolled->widget()->findChildren<QWidget*>()) {
    if (!part->isVisible() || part->parentWidget() == nullptr) continue;
    if (qobject_cast<const QPushButton*>(part) == nullptr) continue;
    EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString();
  }
}

}  // namespace
}  // namespace barvon::testing

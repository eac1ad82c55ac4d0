#include "graphs/maxima_page.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "results/small_results.h"

namespace barvon::testing {
namespace {

/// The page in a window, as a person has it.
class Maxima_Bench {
 public:
  explicit Maxima_Bench(Results own = Small_Results(),
                        std::shared_ptr<const Results> other = nullptr) {
    page.Show({std::make_shared<const Results>(std::move(own)), std::move(other)});
    page.resize(900, 600);
    page.show();
    QApplication::processEvents();
  }

  template <class T>
  T* Child(const char* name) {
    return page.findChild<T*>(QLatin1String(name));
  }
  Maxima_Plot* Plot() { return Child<Maxima_Plot>("MaximaPlot"); }
  QString Reading() { return Child<QLabel>("Reading")->text(); }
  void Point_At(double time, double value) {
    QTest::mouseMove(Plot(), Plot()->Place_Of(time, value).toPoint());
    QApplication::processEvents();
  }

  Maxima_Page page;
};

Results With_Zid() {
  Results results = Small_Results();
  results.zid = {.top = 0, .left = 0, .bottom = 50, .right = 50};
  return results;
}

std::shared_ptr<const Results> Another() {
  auto other = std::make_shared<Results>(Small_Results());
  other->path = "/work/wide.DUI";
  return other;
}

TEST(MaximaPage, It_Opens_With_The_Species_Of_The_Tightest_Limit_Over_All_Depths) {
  Maxima_Bench bench;
  EXPECT_EQ(bench.Child<QComboBox>("Species")->currentText(), "Ammonia");
  EXPECT_EQ(bench.Plot()->Drawn().title, "Ammonia at all depths");
  EXPECT_EQ(bench.Plot()->Drawn().limits.size(), 1u);
  EXPECT_EQ(bench.page.Picture_Name(), "Ammonia at all depths against time");
  EXPECT_EQ(bench.page.Shown_Picture(), bench.Plot());
}

TEST(MaximaPage, Species_And_Depth_Are_Chosen_By_Keys) {
  Maxima_Bench bench;
  QSignalSpy changed(&bench.page, &Graph_Page::Changed);
  QTest::keyClick(bench.Child<QComboBox>("Species"), Qt::Key_Up);
  EXPECT_EQ(bench.Plot()->Drawn().title, "Sand at all depths");
  QTest::keyClick(bench.Child<QComboBox>("Depth"), Qt::Key_Down);
  EXPECT_EQ(bench.Plot()->Drawn().title, "Sand at 5 ft");
  EXPECT_EQ(changed.count(), 2);
}

TEST(MaximaPage, Curves_Are_Named_In_Letters_Of_Any_Size) {
  const QFont plain = QApplication::font();
  for (const double larger : {1.0, 1.6, 2.0}) {
    QFont font = plain;
    font.setPointSizeF(plain.pointSizeF() * larger);
    QApplication::setFont(font);
    Maxima_Bench bench(With_Zid(), Another());
    bench.page.resize(1024, 560);
    QApplication::processEvents();
    bench.Plot()->As_Png();
    QApplication::processEvents();
    const QByteArray svg = bench.Plot()->As_Svg();
    for (const Maxima_Curve& curve : bench.Plot()->Drawn().curves) {
      EXPECT_TRUE(svg.contains((">" + curve.name + "<").c_str())) << larger << " " << curve.name;
    }
  }
  QApplication::setFont(plain);
}

TEST(MaximaPage, Letters_Lead_To_Each_Choice) {
  Maxima_Bench bench(With_Zid());
  for (const QCheckBox* box : bench.page.findChildren<QCheckBox*>()) {
    EXPECT_TRUE(box->text().contains(QLatin1Char('&'))) << box->objectName().toStdString();
  }
  for (const char* name : {"Species", "Depth", "HeldAgainst"}) {
    bool led_to = false;
    for (const QLabel* label : bench.page.findChildren<QLabel*>()) {
      led_to |=
          label->buddy() == bench.Child<QWidget>(name) && label->text().contains(QLatin1Char('&'));
    }
    EXPECT_TRUE(led_to) << name;
  }
}

TEST(MaximaPage, Each_Curve_Is_Put_Away_By_Its_Box) {
  Maxima_Bench bench(With_Zid());
  EXPECT_EQ(bench.Plot()->Drawn().curves.size(), 3u);
  for (const char* name : {"Inside", "Outside", "OutsideZid"}) {
    QTest::keyClick(bench.Child<QCheckBox>(name), Qt::Key_Space);
  }
  EXPECT_TRUE(bench.Plot()->Drawn().curves.empty());
  EXPECT_EQ(bench.Plot()->Drawn().limits.size(), 1u);
  QTest::keyClick(bench.Child<QCheckBox>("Limits"), Qt::Key_Space);
  EXPECT_TRUE(bench.Plot()->Drawn().limits.empty());
  QTest::keyClick(bench.Child<QCheckBox>("Logarithmic"), Qt::Key_Space);
  EXPECT_TRUE(bench.Plot()->Drawn().value.logarithmic);
}

TEST(MaximaPage, Boxes_Name_The_Mixing_Zone) {
  Results zone = Small_Results();
  zone.mixing_zone = true;
  Maxima_Bench bench(zone);
  EXPECT_EQ(bench.Child<QCheckBox>("Inside")->text(), "&Inside the mixing zone");
  EXPECT_EQ(bench.Child<QCheckBox>("Outside")->text(), "&Outside the mixing zone");
  bench.page.Show({std::make_shared<const Results>(Small_Results()), nullptr});
  EXPECT_EQ(bench.Child<QCheckBox>("Inside")->text(), "&Inside the site");
}

TEST(MaximaPage, Boxes_Of_What_The_Run_Has_Not_Are_Not_Shown) {
  Results results = Small_Results();
  results.site.reset();
  results.limits.clear();
  Maxima_Bench bench(results);
  for (const char* name : {"Inside", "Outside", "OutsideZid", "Limits"}) {
    EXPECT_FALSE(bench.Child<QCheckBox>(name)->isVisible()) << name;
  }
  ASSERT_EQ(bench.Plot()->Drawn().curves.size(), 1u);
  EXPECT_EQ(bench.Plot()->Drawn().curves[0].name, "anywhere");
  bench.page.Show({std::make_shared<const Results>(With_Zid()), nullptr});
  EXPECT_TRUE(bench.Child<QCheckBox>("OutsideZid")->isVisible());
}

TEST(MaximaPage, A_Typed_Value_Is_Held_Against_The_Curves) {
  Maxima_Bench bench;
  auto* held = bench.Child<QLineEdit>("HeldAgainst");
  QTest::keyClicks(held, "2.5");
  ASSERT_EQ(bench.Plot()->Drawn().limits.size(), 2u);
  EXPECT_EQ(bench.Plot()->Drawn().limits[1].value, 2.5);
  QTest::keyClicks(held, "x");
  EXPECT_EQ(bench.Plot()->Drawn().limits.size(), 1u);
  EXPECT_TRUE(held->accessibleDescription().contains("no number"));
}

TEST(MaximaPage, The_Pointer_Reads_The_Nearest_Output_Time) {
  Maxima_Bench bench;
  QSignalSpy told(&bench.page, &Graph_Page::Told);
  bench.Point_At(210, 3);
  const QString words = "200 s (3.3 min): inside the site 4 mg/l; outside the site 3 mg/l";
  EXPECT_EQ(bench.Reading(), words);
  EXPECT_EQ(told.last().first().toString(), words);
  EXPECT_EQ(bench.Plot()->Read_Time(), 200);
}

TEST(MaximaPage, Keys_Read_From_Time_To_Time) {
  Maxima_Bench bench;
  Maxima_Plot* plot = bench.Plot();
  QTest::keyClick(plot, Qt::Key_Right);
  EXPECT_EQ(plot->Read_Time(), 100);
  QTest::keyClick(plot, Qt::Key_Right);
  EXPECT_EQ(plot->Read_Time(), 200);
  QTest::keyClick(plot, Qt::Key_End);
  QTest::keyClick(plot, Qt::Key_Right);
  EXPECT_EQ(plot->Read_Time(), 400);
  QTest::keyClick(plot, Qt::Key_Left);
  EXPECT_EQ(plot->Read_Time(), 300);
  QTest::keyClick(plot, Qt::Key_Home);
  QTest::keyClick(plot, Qt::Key_Left);
  EXPECT_EQ(plot->Read_Time(), 100);
  QTest::keyClick(plot, Qt::Key_Escape);
  EXPECT_EQ(plot->Read_Time(), std::nullopt);
  EXPECT_TRUE(bench.Reading().startsWith("Point at the plot"));
  QTest::keyClick(plot, Qt::Key_Left);
  EXPECT_EQ(plot->Read_Time(), 400);
}

TEST(MaximaPage, The_Plot_Stays_As_Large_While_It_Is_Read) {
  Maxima_Bench bench(With_Zid(), Another());
  const QSize before = bench.Plot()->size();
  QTest::keyClick(bench.Plot(), Qt::Key_Right);
  QApplication::processEvents();
  ASSERT_GT(bench.Reading().size(), 100);
  EXPECT_EQ(bench.Plot()->size(), before);
}

TEST(MaximaPage, The_Line_That_Is_Read_Is_Seen_But_Not_Saved) {
  Maxima_Bench bench;
  const QByteArray saved = bench.Plot()->As_Svg();
  const QImage before = bench.Plot()->grab().toImage();
  QTest::keyClick(bench.Plot(), Qt::Key_Right);
  QApplication::processEvents();
  EXPECT_NE(bench.Plot()->grab().toImage(), before);
  EXPECT_EQ(bench.Plot()->As_Svg(), saved);
}

TEST(MaximaPage, Choices_Stay_When_New_Results_Hold_Them_Too) {
  Maxima_Bench bench;
  QTest::keyClick(bench.Child<QComboBox>("Species"), Qt::Key_Up);
  bench.Child<QComboBox>("Depth")->setCurrentIndex(2);
  QTest::keyClick(bench.Plot(), Qt::Key_Right);
  Results fresh = Small_Results();
  std::swap(fresh.species[0], fresh.species[1]);
  bench.page.Show({std::make_shared<const Results>(fresh), nullptr});
  EXPECT_EQ(bench.Plot()->Drawn().title, "Sand at 20 ft");
  EXPECT_EQ(bench.Plot()->Read_Time(), 100);
  for (Result_Maxima& row : fresh.maxima) {
    row.depth += 1;
    row.time += 1;
  }
  fresh.species[1].name = "Silt";
  bench.page.Show({std::make_shared<const Results>(fresh), nullptr});
  EXPECT_EQ(bench.Plot()->Drawn().title, "Silt at all depths");
  EXPECT_EQ(bench.Plot()->Read_Time(), std::nullopt);
}

void Choose_Otherwise(Maxima_Bench& bench) {
  QTest::keyClick(bench.Child<QComboBox>("Species"), Qt::Key_Up);
  bench.Child<QComboBox>("Depth")->setCurrentIndex(2);
  for (const char* name : {"Inside", "Limits"}) {
    QTest::keyClick(bench.Child<QCheckBox>(name), Qt::Key_Space);
  }
  QTest::keyClicks(bench.Child<QLineEdit>("HeldAgainst"), "7");
  ASSERT_EQ(bench.Plot()->Drawn().title, "Sand at 20 ft");
  ASSERT_EQ(bench.Plot()->Drawn().curves.size(), 1u);
}

TEST(MaximaPage, Another_Project_Begins_At_Its_Telling_View) {
  Maxima_Bench bench;
  Choose_Otherwise(bench);
  bench.page.Show({Another(), nullptr});
  EXPECT_EQ(bench.Plot()->Drawn().title, "Ammonia at all depths");
  EXPECT_EQ(bench.Plot()->Drawn().curves.size(), 2u);
  EXPECT_EQ(bench.Plot()->Drawn().limits.size(), 1u);  // none that was typed
  EXPECT_EQ(bench.Child<QLineEdit>("HeldAgainst")->text(), "");
}

TEST(MaximaPage, The_Telling_View_Is_Gone_Back_To) {
  Maxima_Bench bench;
  Choose_Otherwise(bench);
  bench.page.Show_Telling();
  EXPECT_EQ(bench.Plot()->Drawn().title, "Ammonia at all depths");
  EXPECT_EQ(bench.Plot()->Drawn().curves.size(), 2u);
  EXPECT_EQ(bench.Plot()->Drawn().limits.size(), 2u);
}

TEST(MaximaPage, The_Other_Results_Curves_Come_And_Go) {
  Maxima_Bench bench;
  const auto own = std::make_shared<const Results>(Small_Results());
  bench.page.Show({own, Another()});
  EXPECT_EQ(bench.Plot()->Drawn().curves.size(), 4u);
  EXPECT_TRUE(bench.page.Numbers().starts_with("time (s),\"small, inside the site (mg/l)\""));
  bench.page.Show({own, nullptr});
  EXPECT_EQ(bench.Plot()->Drawn().curves.size(), 2u);
}

TEST(MaximaPage, Results_Without_Species_Say_So) {
  Maxima_Bench bench{Results()};
  EXPECT_EQ(bench.Plot()->Drawn().note, "The outputs hold no species.");
  EXPECT_FALSE(bench.Plot()->As_Png().isEmpty());
  QTest::keyClick(bench.Plot(), Qt::Key_Right);
  EXPECT_EQ(bench.Plot()->Read_Time(), std::nullopt);
}

TEST(MaximaPage, Tab_Goes_From_Choice_To_Choice_To_The_Plot) {
  Maxima_Bench bench(With_Zid());
  bench.page.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.page));
  bench.Child<QComboBox>("Species")->setFocus();
  for (const char* name : {"Depth", "HeldAgainst", "Inside", "Outside", "OutsideZid", "Limits",
                           "Logarithmic", "MaximaPlot"}) {
    QTest::keyClick(bench.page.focusWidget(), Qt::Key_Tab);
    ASSERT_NE(bench.page.focusWidget(), nullptr);
    EXPECT_EQ(bench.page.focusWidget()->objectName(), name);
  }
}

}  // namespace
}  // namespace barvon::testing

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <memory>

#include "graphs/contour_page.h"
#include "graphs/deposit_page.h"
#include "results/mapped_results.h"

namespace barvon::testing {
namespace {

template <class Page>
class Opened {
 public:
  Opened() {
    page.resize(900, 640);
    page.show();
    page.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
  }
  void Show(Results results) {
    page.Show({std::make_shared<const Results>(std::move(results)), nullptr});
  }
  void Show(Results results, Results other) {
    page.Show({std::make_shared<const Results>(std::move(results)),
               std::make_shared<const Results>(std::move(other))});
  }
  template <class Control>
  Control& Get(const char* name) {
    auto* control = page.template findChild<Control*>(QLatin1String(name));
    EXPECT_TRUE(control) << name;
    return *control;
  }
  QComboBox& Box(const char* name) { return Get<QComboBox>(name); }
  void Choose(const char* name, const char* text) {
    QComboBox& box = Box(name);
    const int index = box.findText(QLatin1String(text));
    ASSERT_GE(index, 0) << text;
    // As the list does when an entry is taken.
    box.setFocus();
    while (box.currentIndex() < index) QTest::keyClick(&box, Qt::Key_Down);
    while (box.currentIndex() > index) QTest::keyClick(&box, Qt::Key_Up);
  }
  void Tick_Timer() { QMetaObject::invokeMethod(&Get<QTimer>("Playing"), "timeout"); }
  /// The picture in words, when it has followed.
  QString Words() {
    QApplication::processEvents();
    return page.Shown_Picture()->accessibleDescription();
  }
  QString Name() { return page.Picture_Name(); }

  Page page;
};

using Contours = Opened<Contour_Page>;
using Deposit = Opened<Deposit_Page>;

TEST(ContourPage, Choices_Are_Those_Of_The_Outputs_And_The_Picture_Follows) {
  Contours contours;
  contours.Show(Mapped_Results());
  contours.Choose("cboSpecies", "COPPER");
  contours.Choose("cboDepth", "20 ft");
  EXPECT_EQ(contours.Name(), "COPPER at 20 ft, 600 s (10 min)");
  QTest::keyClick(&contours.Get<QSlider>("Time"), Qt::Key_Right);
  EXPECT_EQ(contours.Name(), "COPPER at 20 ft, 1200 s (20 min)");
  EXPECT_EQ(contours.Get<QLabel>("TimeWords").text(), "1200 s (20 min)");
  const auto map = contours.page.Map_Shown();
  ASSERT_TRUE(map);
  EXPECT_EQ(map->cells.values.back(), 128);
  EXPECT_EQ(map->unit, "mg/l");
  EXPECT_EQ(map->levels.back(), 100);
  EXPECT_TRUE(contours.page.Numbers().ends_with("100,100,128\r\n"));
}

TEST(ContourPage, Below_Its_Least_Height_The_Map_Scrolls_And_Keys_Keep_Their_Meaning) {
  Contours contours;
  contours.Show(Mapped_Results());
  QFont large = contours.page.font();
  large.setPointSizeF(2 * large.pointSizeF());
  contours.page.setFont(large);
  contours.page.resize(640, 230);
  QApplication::processEvents();
  auto& map = contours.Get<Map_Picture>("Map");
  QWidget& view = *map.parentWidget();
  EXPECT_GE(map.height(), map.minimumSizeHint().height());
  ASSERT_GT(map.height(), view.height());
  EXPECT_TRUE(contours.Get<QSlider>("Time").isVisible());
  map.setFocus();
  const QString before = contours.Name();
  QTest::keyClick(&map, Qt::Key_PageDown);
  EXPECT_NE(contours.Name(), before);
  EXPECT_EQ(map.y(), 0);
  QTest::keyClick(&map, Qt::Key_Down);
  for (int i = 0; i < 10; ++i) QTest::keyClick(&map, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_LT(map.y(), 0);
  const QPoint at = map.Widget_Place(*map.Cross_Hair())->toPoint();
  EXPECT_TRUE(view.rect().contains(map.mapTo(&view, at)));
}

TEST(ContourPage, The_Largest_Over_Time_Has_No_Time) {
  Contours contours;
  contours.Show(Mapped_Results());
  contours.Choose("cboSpecies", "SAND");
  contours.Choose("cboDepth", "10 ft");
  auto& largest = contours.Get<QCheckBox>("chkLargest");
  QTest::keyClick(&largest, Qt::Key_Space);
  EXPECT_EQ(contours.Name(), "SAND at 10 ft, largest over time");
  EXPECT_FALSE(contours.Get<QSlider>("Time").isEnabled());
  EXPECT_FALSE(contours.Get<QPushButton>("cmdPlay").isEnabled());
  EXPECT_EQ(contours.Get<QLabel>("TimeWords").text(), "all times");
  EXPECT_EQ(contours.page.Sequence_Length(), 0);
  // Where the outputs hold none, the box goes with it.
  contours.Choose("cboDepth", "20 ft");
  EXPECT_FALSE(largest.isChecked());
  EXPECT_FALSE(largest.isEnabled());
  EXPECT_TRUE(contours.Get<QSlider>("Time").isEnabled());
}

TEST(ContourPage, Scale_Steps_Lines_And_Grid_Are_Taken) {
  Contours contours;
  contours.Show(Mapped_Results());
  contours.Choose("cboColours", "Fit each time");
  EXPECT_FALSE(contours.page.View().same_scale);
  contours.Choose("cboSteps", "Linear");
  EXPECT_FALSE(contours.page.View().logarithmic);
  QTest::mouseClick(&contours.Get<QCheckBox>("chkLines"), Qt::LeftButton, {}, {6, 8});
  EXPECT_FALSE(contours.page.View().lines);
  QTest::mouseClick(&contours.Get<QCheckBox>("chkGrid"), Qt::LeftButton, {}, {6, 8});
  EXPECT_TRUE(contours.page.View().grid);
}

TEST(ContourPage, Playing_Goes_To_The_End_And_Begins_Anew) {
  Contours contours;
  contours.Show(Mapped_Results());
  auto& play = contours.Get<QPushButton>("cmdPlay");
  auto& time = contours.Get<QSlider>("Time");
  time.setValue(0);
  QTest::mouseClick(&play, Qt::LeftButton);
  EXPECT_EQ(play.text(), "&Pause");
  EXPECT_TRUE(contours.Get<QTimer>("Playing").isActive());
  contours.Tick_Timer();
  EXPECT_EQ(time.value(), 1);
  EXPECT_EQ(play.text(), "&Play");
  EXPECT_FALSE(contours.Get<QTimer>("Playing").isActive());
  QTest::mouseClick(&play, Qt::LeftButton);
  EXPECT_EQ(time.value(), 0);
  QTest::mouseClick(&play, Qt::LeftButton);
  EXPECT_FALSE(contours.Get<QTimer>("Playing").isActive());
}

TEST(ContourPage, Keys_On_The_Picture_Go_Through_Time) {
  Contours contours;
  contours.Show(Mapped_Results());
  auto& map = contours.Get<Map_Picture>("Map");
  auto& time = contours.Get<QSlider>("Time");
  map.setFocus();
  QTest::keyClick(&map, Qt::Key_Home);
  EXPECT_EQ(time.value(), 0);
  QTest::keyClick(&map, Qt::Key_PageDown);
  EXPECT_EQ(time.value(), 1);
  QTest::keyClick(&map, Qt::Key_PageUp);
  EXPECT_EQ(time.value(), 0);
  QTest::keyClick(&map, Qt::Key_End);
  EXPECT_EQ(time.value(), 1);
  QTest::keyClick(&map, Qt::Key_Space);
  EXPECT_TRUE(contours.Get<QTimer>("Playing").isActive());
  EXPECT_EQ(time.value(), 0);
  QTest::keyClick(&map, Qt::Key_Space);
  EXPECT_FALSE(contours.Get<QTimer>("Playing").isActive());
}

TEST(ContourPage, A_Page_That_Is_Left_Stops_Playing) {
  Contours contours;
  contours.Show(Mapped_Results());
  contours.Get<QSlider>("Time").setValue(0);
  QTest::mouseClick(&contours.Get<QPushButton>("cmdPlay"), Qt::LeftButton);
  contours.page.hide();
  EXPECT_FALSE(contours.Get<QTimer>("Playing").isActive());
}

TEST(ContourPage, A_Section_Comes_By_Keys_And_Goes_By_Its_Button) {
  Contours contours;
  contours.Show(Mapped_Results());
  auto& map = contours.Get<Map_Picture>("Map");
  auto& remove = contours.Get<QPushButton>("cmdRemoveSection");
  EXPECT_FALSE(remove.isEnabled());
  map.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&map, Qt::Key_Left);
  QTest::keyClick(&map, Qt::Key_Return);
  QTest::keyClick(&map, Qt::Key_Up);
  QTest::keyClick(&map, Qt::Key_Return);
  EXPECT_TRUE(remove.isEnabled());
  EXPECT_NE(contours.page.Numbers().find("Distance (ft)"), std::string::npos);
  // It stays while time goes on.
  QTest::keyClick(&map, Qt::Key_End);
  EXPECT_TRUE(contours.page.View().section);
  remove.setFocus();
  QTest::keyClick(&remove, Qt::Key_Space);
  EXPECT_FALSE(contours.page.View().section);
  EXPECT_FALSE(remove.isEnabled());
  EXPECT_TRUE(map.hasFocus());
}

TEST(ContourPage, New_Outputs_Keep_What_Is_Chosen) {
  Contours contours;
  contours.Show(Mapped_Results());
  contours.Choose("cboSpecies", "COPPER");
  contours.Choose("cboDepth", "20 ft");
  contours.Get<QSlider>("Time").setValue(1);
  contours.Choose("cboSteps", "Linear");
  Results fresh = Mapped_Results();
  std::swap(fresh.species[0], fresh.species[1]);
  for (auto* maps : {&fresh.maps, &fresh.most}) {
    for (Result_Map& map : *maps) map.species = 3 - map.species;
  }
  contours.Show(fresh);
  EXPECT_EQ(contours.Name(), "COPPER at 20 ft, 1200 s (20 min)");
  EXPECT_EQ(contours.Box("cboSteps").currentText(), "Linear");
  EXPECT_EQ(contours.page.Map_Shown()->cells.values.back(), 128);
}

// Without limits and maxima the telling view is the first map there is.
TEST(ContourPage, Another_Project_And_The_Overviews_Picture_Begin_At_The_Telling_View) {
  Contours contours;
  contours.Show(Mapped_Results());
  const QString telling = contours.Name();
  const auto choose_otherwise = [&] {
    contours.Choose("cboSpecies", "COPPER");
    contours.Choose("cboDepth", "20 ft");
    contours.Choose("cboSteps", "Linear");
    contours.Get<QSlider>("Time").setValue(1);
    ASSERT_EQ(contours.Name(), "COPPER at 20 ft, 1200 s (20 min)");
  };
  choose_otherwise();
  Results other = Mapped_Results();
  other.path = "/p/other.DUI";
  contours.Show(other);
  EXPECT_EQ(contours.Name(), telling);
  contours.Get<QCheckBox>("chkLargest").click();
  ASSERT_TRUE(contours.page.View().largest);
  contours.page.Show_Telling();
  EXPECT_EQ(contours.Name(), telling);
  choose_otherwise();
  contours.page.Show_Telling();
  EXPECT_EQ(contours.Name(), telling);
  EXPECT_EQ(contours.Box("cboSteps").currentText(), "Linear");
}

TEST(ContourPage, A_Section_Stays_For_Fresh_Outputs_And_Goes_With_Its_Project) {
  Contours contours;
  contours.Show(Mapped_Results());
  auto& map = contours.Get<Map_Picture>("Map");
  emit map.Section_Drawn(Section_Line{{0, 0}, {100, 100}});
  auto& remove = contours.Get<QPushButton>("cmdRemoveSection");
  EXPECT_TRUE(remove.isEnabled());
  contours.Show(Mapped_Results());
  EXPECT_TRUE(remove.isEnabled());
  Results other = Mapped_Results();
  other.path = "/p/other.DUI";
  contours.Show(other);
  EXPECT_FALSE(remove.isEnabled());
}

TEST(ContourPage, Two_Results_Are_Shown_In_Turn_And_As_Their_Difference) {
  Contours contours;
  EXPECT_FALSE(contours.Box("cboSide").isVisible());
  Results other = Mapped_Results();
  other.path = "/p/other.DUI";
  for (Result_Map& map : other.maps) map.values[3] += 1;
  contours.Show(Mapped_Results(), other);
  EXPECT_TRUE(contours.Box("cboSide").isVisible());
  const double own = contours.page.Map_Shown()->cells.values.back();
  contours.Choose("cboSide", "Other");
  EXPECT_EQ(contours.page.Map_Shown()->cells.values.back(), own + 1);
  EXPECT_EQ(contours.page.Map_Shown()->of->path, "/p/other.DUI");
  contours.Choose("cboSide", "Difference");
  EXPECT_EQ(contours.page.Map_Shown()->cells.values.back(), -1);
  EXPECT_LT(contours.page.Map_Shown()->levels.front(), 0);
  EXPECT_NE(contours.page.Map_Shown()->of->path, "/p/other.DUI");
  EXPECT_TRUE(contours.Name().startsWith("own less other: "));
  EXPECT_FALSE(contours.Get<QCheckBox>("chkLines").isEnabled());
  contours.Show(Mapped_Results());
  EXPECT_FALSE(contours.Box("cboSide").isVisible());
  EXPECT_EQ(contours.page.Map_Shown()->cells.values.back(), own);
}

template <class Page>
QStringList Stops_Of_Tab(Page& page, const char* first) {
  QStringList stops;
  QWidget* at = page.template findChild<QWidget*>(QLatin1String(first));
  at->setFocus(Qt::TabFocusReason);
  for (int i = 0; i < 20 && !stops.contains(QApplication::focusWidget()->objectName()); ++i) {
    stops << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  return stops;
}

TEST(ContourPage, Tab_Goes_Through_The_Choices_Then_To_The_Map_And_Its_Time) {
  Contours contours;
  contours.Show(Mapped_Results());
  EXPECT_EQ(Stops_Of_Tab(contours.page, "cboSpecies"),
            (QStringList{"cboSpecies", "cboDepth", "chkLargest", "cboColours", "cboSteps",
                         "chkLines", "chkGrid", "Map", "cmdPlay", "Time"}));
}

TEST(DepositPage, Tab_Comes_To_The_Thickness_Behind_The_Choices) {
  Deposit deposit;
  deposit.Show(Mapped_Results());
  EXPECT_EQ(Stops_Of_Tab(deposit.page, "cboSpecies"),
            (QStringList{"cboSpecies", "cboColours", "cboSteps", "chkLines", "chkGrid",
                         "txtThickness", "Map", "cmdPlay", "Time"}));
}

TEST(ContourPage, The_Sequence_Is_The_Times) {
  Contours contours;
  contours.Show(Mapped_Results());
  EXPECT_EQ(contours.page.Sequence_Length(), 2);
  QSignalSpy changed(&contours.page, &Graph_Page::Changed);
  contours.page.Show_In_Sequence(1);
  contours.page.Show_In_Sequence(0);
  EXPECT_EQ(contours.page.Sequence_Place(), 0);
  EXPECT_GE(changed.size(), 1);
  EXPECT_TRUE(contours.Name().endsWith("600 s (10 min)"));
}

TEST(ContourPage, Outputs_Without_Maps_Say_So_And_Come_Back) {
  Contours contours;
  EXPECT_FALSE(contours.page.Map_Shown());
  ASSERT_TRUE(contours.page.Shown_Picture());
  Results none = Mapped_Results();
  none.maps.clear();
  none.most.clear();
  contours.Show(none);
  EXPECT_FALSE(contours.page.Map_Shown());
  EXPECT_FALSE(contours.Box("cboSpecies").isEnabled());
  EXPECT_EQ(contours.Words(), "The outputs hold no maps of concentrations.");
  EXPECT_EQ(contours.page.Numbers(), "");
  contours.Show(Mapped_Results());
  EXPECT_TRUE(contours.page.Map_Shown());
  EXPECT_TRUE(contours.Box("cboSpecies").isEnabled());
}

TEST(DepositPage, Begins_With_All_Solids_At_The_End_And_Tells_The_Totals) {
  Deposit deposit;
  deposit.Show(Mapped_Results());
  EXPECT_EQ(deposit.Name(), "Deposit of all solids, 1200 s (20 min)");
  EXPECT_FALSE(deposit.Box("cboDepth").isVisible());
  EXPECT_FALSE(deposit.Get<QCheckBox>("chkLargest").isVisible());
  // 1.2 ft on one cell of 10000 ft2.
  EXPECT_EQ(deposit.Get<QLabel>("Volume").text(), "12000 ft3 (444.44 yd3)");
  EXPECT_EQ(deposit.Get<QLabel>("Area").text(), "10000 ft2 (0.22957 acres)");
  deposit.Choose("cboSpecies", "SAND");
  EXPECT_EQ(deposit.Get<QLabel>("Volume").text(), "6000 ft3 (222.22 yd3)");
}

TEST(DepositPage, The_Area_Follows_The_Typed_Thickness) {
  Deposit deposit;
  deposit.Show(Mapped_Results());
  auto& limit = deposit.Get<QLineEdit>("txtThickness");
  EXPECT_EQ(limit.text(), "0.1");
  limit.selectAll();
  QTest::keyClicks(&limit, "1.5");
  EXPECT_EQ(deposit.Get<QLabel>("Area").text(), "0 ft2 (0 acres)");
  limit.clear();
  EXPECT_EQ(deposit.Get<QLabel>("Area").text(), "A thickness in feet is needed, like 0.1.");
}

TEST(DepositPage, Without_A_Deposit_There_Are_No_Totals) {
  Deposit deposit;
  Results none = Mapped_Results();
  none.beds.clear();
  deposit.Show(none);
  EXPECT_EQ(deposit.Get<QLabel>("Volume").text(), "");
  EXPECT_EQ(deposit.Get<QLabel>("Area").text(), "");
  EXPECT_FALSE(deposit.Get<QLineEdit>("txtThickness").isEnabled());
  EXPECT_EQ(deposit.Words(), "The outputs hold no maps of the deposit.");
}

}  // namespace
}  // namespace barvon::testing

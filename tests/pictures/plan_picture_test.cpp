#include "pictures/plan_picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <limits>

#include "pictures/picture_bench.h"

namespace barvon::testing {
namespace {

using Takes = Plan_Picture::Takes;

Plan Site(double down = 2000, double right = 4000) {
  Plan plan;
  plan.area = {0, 0, down, right};
  plan.title = "Site";
  plan.description = "A site.";
  plan.shapes.push_back(
      Polygon_Shape{Rectangle(On_Plan({400, 400}), On_Plan({800, 1200})), Colour{0, 160, 0}, {}});
  return plan;
}

/// A window with a field before the plan, and what the plan has said.
class PlanPicture : public ::testing::Test {
 protected:
  PlanPicture() : column_(&window_), plan_("Plan of the site", "site plan") {
    column_.addWidget(&before_);
    column_.addWidget(&plan_);
    window_.resize(520, 420);
    QObject::connect(&plan_, &Plan_Picture::Point_Chosen, &plan_,
                     [this](const Feet_Point& point) { chosen_.push_back(point); });
    QObject::connect(&plan_, &Plan_Picture::Point_Passed, &plan_,
                     [this](const Feet_Point& point) { passed_.push_back(point); });
    QObject::connect(&plan_, &Plan_Picture::Area_Changed, &plan_,
                     [this](const Feet_Point& a, const Feet_Point& b) {
                       changed_.push_back({a, b});
                     });
    QObject::connect(&plan_, &Plan_Picture::Area_Chosen, &plan_,
                     [this](const Feet_Point& a, const Feet_Point& b) {
                       areas_.push_back({a, b});
                     });
  }

  void Open(Takes takes, const Plan& plan = Site()) {
    plan_.Set_Takes(takes);
    plan_.Show(plan);
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    before_.setFocus();
    QApplication::processEvents();
  }
  QPoint At(double x, double z) { return plan_.Place_Of({x, z}).toPoint(); }
  void Drag(const QPoint& from, const QPoint& to) {
    QTest::mousePress(&plan_, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, plan_.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&plan_, &move);
    QTest::mouseRelease(&plan_, Qt::LeftButton, {}, to);
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&plan_, static_cast<Qt::Key>(key), modifiers);
  }

  QWidget window_;
  QVBoxLayout column_;
  QLineEdit before_;
  Plan_Picture plan_;
  std::vector<Feet_Point> chosen_, passed_;
  std::vector<std::pair<Feet_Point, Feet_Point>> changed_, areas_;
};

constexpr double kPixel = 10;  // ft; the plan shows less than so many on a pixel

TEST_F(PlanPicture, A_Click_Hands_Over_The_Point_Below_It) {
  Open(Takes::points);
  ASSERT_LT(plan_.Place_Of({0, 0}).x() + 4000 / kPixel, plan_.Place_Of({0, 4000}).x() + 1);
  QTest::mouseClick(&plan_, Qt::LeftButton, {}, At(1200, 800));
  ASSERT_EQ(chosen_.size(), 1u);
  EXPECT_NEAR(chosen_[0].x, 1200, kPixel);
  EXPECT_NEAR(chosen_[0].z, 800, kPixel);
  EXPECT_TRUE(plan_.hasFocus());
  EXPECT_EQ(plan_.Cursor(), chosen_[0]);
}

TEST_F(PlanPicture, The_Point_Is_The_Same_After_The_Window_Was_Resized) {
  Open(Takes::points);
  window_.resize(900, 700);
  QApplication::processEvents();
  QTest::mouseClick(&plan_, Qt::LeftButton, {}, At(1200, 800));
  ASSERT_EQ(chosen_.size(), 1u);
  EXPECT_NEAR(chosen_[0].x, 1200, kPixel);
  EXPECT_NEAR(chosen_[0].z, 800, kPixel);
}

TEST_F(PlanPicture, Beside_The_Area_Nothing_Is_Chosen) {
  Open(Takes::points);
  QTest::mouseClick(&plan_, Qt::LeftButton, {}, At(0, 0) - QPoint(5, 0));
  QTest::mouseClick(&plan_, Qt::LeftButton, {}, At(2000, 4000) + QPoint(0, 5));
  EXPECT_TRUE(chosen_.empty());
}

TEST_F(PlanPicture, Other_Buttons_Choose_Nothing_And_A_Button_That_Moves_Away_Neither) {
  Open(Takes::points);
  QTest::mouseClick(&plan_, Qt::MiddleButton, {}, At(500, 500));
  Drag(At(500, 500), At(500, 2500));
  EXPECT_TRUE(chosen_.empty());
  EXPECT_TRUE(areas_.empty());
}

TEST_F(PlanPicture, A_Plan_That_Takes_Nothing_Leaves_Buttons_And_Keys_To_What_Is_Around_It) {
  Open(Takes::nothing);
  const QPoint place = At(500, 500);
  QMouseEvent press(QEvent::MouseButtonPress, place, plan_.mapToGlobal(place), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&plan_, &press);
  EXPECT_FALSE(press.isAccepted());
  plan_.setFocus(Qt::TabFocusReason);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&plan_, &enter);
  EXPECT_FALSE(enter.isAccepted());
  EXPECT_TRUE(chosen_.empty());
  EXPECT_EQ(plan_.accessibleDescription(), "A site.");
}

TEST_F(PlanPicture, Tab_Shows_The_Cursor_In_The_Middle_And_Return_Picks_Its_Point) {
  Open(Takes::points);
  QTest::keyClick(&before_, Qt::Key_Tab);
  ASSERT_TRUE(plan_.hasFocus());
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&plan_, &enter);
  EXPECT_TRUE(enter.isAccepted());  // or the screen's OK would be pressed
  ASSERT_EQ(chosen_.size(), 1u);
  EXPECT_EQ(chosen_[0], (Feet_Point{1000, 2000}));
}

// A hundredth of 4000 ft is 40, and 20 the round number below.
TEST_F(PlanPicture, Arrow_Keys_Move_The_Cursor_X_Down_And_Z_Right) {
  Open(Takes::points);
  plan_.Set_Cursor({1000, 2000});
  plan_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Down);
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{1020, 2000}));
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{1020, 2200}));
  Key(Qt::Key_Up);
  Key(Qt::Key_Left);
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{1000, 2180}));
  ASSERT_EQ(passed_.size(), 4u);
  EXPECT_EQ(passed_.back(), (Feet_Point{1000, 2180}));
  EXPECT_TRUE(plan_.accessibleDescription().endsWith("The cursor is at X 1000 ft, Z 2180 ft."));
}

TEST_F(PlanPicture, Keys_Go_By_The_Steps_That_The_Screen_Gives_And_Stop_At_The_Edge) {
  Open(Takes::points);
  plan_.Set_Key_Steps({50, 75});
  plan_.Set_Cursor({1900, 100});
  plan_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Down);
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{1950, 100}));
  Key(Qt::Key_Left);
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{1950, 25}));
  Key(Qt::Key_Left);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{2000, 0}));
}

TEST_F(PlanPicture, The_Cursor_Is_Seen_With_The_Keyboard_Alone) {
  Open(Takes::points);
  plan_.Set_Cursor({1000, 2000});
  QApplication::processEvents();
  const QColor ink(176, 0, 96);
  const QRect around(At(1000, 2000) - QPoint(6, 6), QSize(13, 13));
  EXPECT_EQ(Count_Pixels(plan_.grab().toImage(), around, ink), 0);
  plan_.setFocus(Qt::TabFocusReason);
  EXPECT_GT(Count_Pixels(plan_.grab().toImage(), around, ink, 200), 10);
  // It is no part of the picture that is saved.
  EXPECT_FALSE(plan_.As_Svg().contains("#b00060"));
  before_.setFocus();
  EXPECT_EQ(Count_Pixels(plan_.grab().toImage(), around, ink), 0);
}

TEST_F(PlanPicture, Commands_With_Control_Or_Alt_Are_Not_For_The_Cursor) {
  Open(Takes::points);
  plan_.setFocus(Qt::TabFocusReason);
  const auto before = plan_.Cursor();
  Key(Qt::Key_Down, Qt::ControlModifier);
  Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(plan_.Cursor(), before);
}

TEST_F(PlanPicture, A_Drag_Hands_Over_Its_Corners_As_They_Were_Drawn) {
  Open(Takes::points_and_areas);
  Drag(At(1500, 3000), At(500, 1000));
  ASSERT_EQ(areas_.size(), 1u);
  EXPECT_NEAR(areas_[0].first.x, 1500, kPixel);
  EXPECT_NEAR(areas_[0].first.z, 3000, kPixel);
  EXPECT_NEAR(areas_[0].second.x, 500, kPixel);
  EXPECT_NEAR(areas_[0].second.z, 1000, kPixel);
  ASSERT_FALSE(changed_.empty());
  EXPECT_EQ(changed_.back(), areas_[0]);
  EXPECT_TRUE(chosen_.empty());
}

TEST_F(PlanPicture, A_Drag_Beyond_The_Edge_Ends_At_The_Edge) {
  Open(Takes::points_and_areas);
  Drag(At(1500, 3000), plan_.rect().bottomRight() + QPoint(100, 100));
  ASSERT_EQ(areas_.size(), 1u);
  EXPECT_EQ(areas_[0].second, (Feet_Point{2000, 4000}));
}

TEST_F(PlanPicture, A_Click_Without_A_Drag_Is_A_Point_Also_Where_Areas_Are_Taken) {
  Open(Takes::points_and_areas);
  QTest::mouseClick(&plan_, Qt::LeftButton, {}, At(1200, 800));
  EXPECT_EQ(chosen_.size(), 1u);
  EXPECT_TRUE(areas_.empty());
}

TEST_F(PlanPicture, Space_Begins_And_Ends_An_Area_By_Keys_And_Escape_Gives_It_Up) {
  Open(Takes::points_and_areas);
  plan_.Set_Key_Steps({100, 100});
  plan_.Set_Cursor({500, 500});
  plan_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Space);
  Key(Qt::Key_Down);
  Key(Qt::Key_Right);
  ASSERT_EQ(changed_.size(), 3u);
  Key(Qt::Key_Escape);
  EXPECT_TRUE(areas_.empty());
  Key(Qt::Key_Space);
  Key(Qt::Key_Up);
  Key(Qt::Key_Space);
  ASSERT_EQ(areas_.size(), 1u);
  EXPECT_EQ(areas_[0].first, (Feet_Point{600, 600}));
  EXPECT_EQ(areas_[0].second, (Feet_Point{500, 600}));
  EXPECT_TRUE(chosen_.empty());
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&plan_, &escape);
  EXPECT_FALSE(escape.isAccepted());  // it closes the screen
}

TEST_F(PlanPicture, Return_Ends_An_Area_Too_And_It_Is_Drawn_Meanwhile) {
  Open(Takes::points_and_areas);
  plan_.Set_Key_Steps({100, 100});
  plan_.Set_Cursor({500, 500});
  plan_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Space);
  const QImage at_first = plan_.grab().toImage();
  Key(Qt::Key_Down);
  Key(Qt::Key_Right);
  EXPECT_NE(plan_.grab().toImage(), at_first);
  Key(Qt::Key_Return);
  ASSERT_EQ(areas_.size(), 1u);
  EXPECT_EQ(areas_[0].first, (Feet_Point{500, 500}));
  EXPECT_EQ(areas_[0].second, (Feet_Point{600, 600}));
  EXPECT_TRUE(chosen_.empty());
}

TEST_F(PlanPicture, A_Smaller_Area_Takes_The_Cursor_Along) {
  Open(Takes::points);
  plan_.Set_Cursor({1900, 3900});
  plan_.Show(Site(1000, 1000));
  QApplication::processEvents();
  EXPECT_EQ(plan_.Cursor(), (Feet_Point{1000, 1000}));
}

TEST_F(PlanPicture, Without_An_Area_Clicks_And_Keys_Do_Nothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const Plan& plan : {Plan{}, Site(0, 0), Site(nan, 100), Site(1e300, 1e300)}) {
    Open(Takes::points_and_areas, plan);
    QTest::mouseClick(&plan_, Qt::LeftButton, {}, plan_.rect().center());
    Drag(QPoint(50, 50), QPoint(150, 150));
    plan_.setFocus(Qt::TabFocusReason);
    for (const int key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) Key(key);
    EXPECT_EQ(plan_.Tip_At(plan_.rect().center()), "");
    EXPECT_FALSE(plan_.grab().isNull());
  }
  EXPECT_TRUE(chosen_.empty());
  EXPECT_TRUE(areas_.empty());
  EXPECT_EQ(plan_.Cursor(), std::nullopt);
}

TEST_F(PlanPicture, Before_It_Has_A_Size_It_Takes_Nothing) {
  Plan_Picture plan("Plan", "plan");
  plan.Set_Takes(Takes::points);
  plan.Show(Site());
  plan.resize(0, 0);
  bool chosen = false;
  QObject::connect(&plan, &Plan_Picture::Point_Chosen, &plan, [&] { chosen = true; });
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(0, 0), QPointF(0, 0), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&plan, &press);
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(&plan, &down);
  EXPECT_FALSE(chosen);
  EXPECT_EQ(plan.Cursor(), std::nullopt);
}

TEST_F(PlanPicture, Shapes_In_Feet_Are_Seen_Where_The_Pointer_Reads_Those_Feet) {
  Open(Takes::points);
  const QImage seen = plan_.grab().toImage();
  EXPECT_EQ(seen.pixelColor(At(600, 800)), QColor(0, 160, 0));
  EXPECT_NE(seen.pixelColor(At(900, 800)), QColor(0, 160, 0));
  EXPECT_TRUE(plan_.Tip_At(plan_.Place_Of({0, 0})) == "X 0 ft, Z 0 ft");
}

TEST_F(PlanPicture, The_Frame_Shows_Where_The_Keyboard_Is) {
  Open(Takes::points);
  const QColor highlight = plan_.palette().color(QPalette::Highlight);
  EXPECT_NE(plan_.grab().toImage().pixelColor(0, plan_.height() / 2), highlight);
  plan_.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(plan_.grab().toImage().pixelColor(0, plan_.height() / 2), highlight);
}

}  // namespace
}  // namespace barvon::testing

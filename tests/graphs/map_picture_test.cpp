#include "graphs/map_picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>
#include <vector>

#include "pictures/picture_bench.h"
#include "pictures/shape_painter.h"
#include "results/drawings/colour_scale.h"
#include "results/drawings/map_view.h"
#include "results/mapped_results.h"

namespace barvon::testing {
namespace {

/// 8 x 10 cells of 100 ft, one of 40 at X 300, Z 500.
Map_Content Peak() {
  Map_Content content;
  content.cells = {.rows = 8, .columns = 10, .spacing_x = 100, .spacing_z = 100, .values = {}};
  content.cells.values.assign(80, 0);
  content.cells.values[3 * 10 + 5] = 40;
  content.title = "SAND at 20 ft, 600 s";
  content.quantity = "Concentration";
  content.unit = "mg/l";
  content.scale.levels = {10, 20};
  return content;
}

/// The picture in a window, behind a field, and what it has said.
class MapPicture : public ::testing::Test {
 protected:
  MapPicture() : column_(&window_), map_("Map", "map") {
    column_.addWidget(&before_);
    column_.addWidget(&map_);
    window_.resize(700, 600);
    QObject::connect(&map_, &Map_Picture::Told, &map_,
                     [this](const QString& words) { told_.push_back(words); });
    QObject::connect(&map_, &Map_Picture::Section_Drawn, &map_,
                     [this](const Section_Line& line) { lines_.push_back(line); });
    QObject::connect(&map_, &Map_Picture::Section_Removed, &map_, [this] { ++removed_; });
    map_.Show(Peak());
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    before_.setFocus();
  }

  QPoint At(double x, double z) { return map_.Widget_Place({x, z})->toPoint(); }
  void Move(const QPoint& to, Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent move(QEvent::MouseMove, to, map_.mapToGlobal(to), Qt::NoButton, held,
                     Qt::NoModifier);
    QApplication::sendEvent(&map_, &move);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&map_, key, modifiers);
  }

  QWidget window_;
  QVBoxLayout column_;
  QLineEdit before_;
  Map_Picture map_;
  std::vector<QString> told_;
  std::vector<Section_Line> lines_;
  int removed_ = 0;
};

TEST_F(MapPicture, Paints_The_Bands_Where_The_Values_Are) {
  const QImage seen = map_.grab().toImage();
  const QPoint peak = At(300, 500), slope = At(300, 540), far = At(700, 100);
  EXPECT_LT(Difference(seen.pixelColor(peak), To_QColor(Band_Colour(1, 2))), 12);
  EXPECT_LT(Difference(seen.pixelColor(At(300, 440)), To_QColor(Band_Colour(0, 2))), 60);
  EXPECT_LT(Difference(seen.pixelColor(slope), To_QColor(Band_Colour(1, 2))), 12);
  EXPECT_EQ(seen.pixelColor(far), QColor(Qt::white));
}

TEST_F(MapPicture, The_Pointer_Reads_The_Value_Below_It) {
  Move(At(300, 500));
  ASSERT_FALSE(told_.empty());
  // A pixel is about 2 ft.
  const QRegularExpression near(
      "^X (29[89]|30[0-2]) ft, Z (49[89]|50[0-2]) ft: (39[.0-9]*|40) mg/l$");
  EXPECT_TRUE(near.match(told_.back()).hasMatch()) << qPrintable(told_.back());
  EXPECT_EQ(map_.Tip_At(At(300, 500)), told_.back());
  Move({3, 3});
  EXPECT_EQ(told_.back(), QString());
  Move(At(300, 500));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&map_, &leave);
  EXPECT_EQ(told_.back(), QString());
}

TEST_F(MapPicture, What_Is_Read_Follows_When_The_Map_Changes_Under_A_Still_Pointer) {
  Move(At(300, 500));
  Map_Content content = Peak();
  content.cells.values.assign(80, 7);
  map_.Show(content);
  QApplication::processEvents();
  EXPECT_TRUE(told_.back().endsWith(": 7 mg/l")) << qPrintable(told_.back());
  map_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Left);
  map_.Show(Peak());
  QApplication::processEvents();
  EXPECT_EQ(told_.back(), "X 0 ft, Z 0 ft: 0 mg/l");  // the first of the alike
}

TEST_F(MapPicture, Dragging_Draws_A_Line_And_A_Click_Does_Not) {
  QTest::mouseClick(&map_, Qt::LeftButton, {}, At(200, 200));
  EXPECT_TRUE(lines_.empty());
  QTest::mousePress(&map_, Qt::LeftButton, {}, At(200, 200));
  Move(At(400, 600), Qt::LeftButton);
  QTest::mouseRelease(&map_, Qt::LeftButton, {}, At(500, 700));
  ASSERT_EQ(lines_.size(), 1);
  EXPECT_NEAR(lines_[0].from.x, 200, 3);
  EXPECT_NEAR(lines_[0].from.z, 200, 3);
  EXPECT_NEAR(lines_[0].to.x, 500, 3);
  EXPECT_NEAR(lines_[0].to.z, 700, 3);
}

TEST_F(MapPicture, A_Line_That_Is_Dragged_Out_Of_The_Map_Ends_At_Its_Edge) {
  QTest::mousePress(&map_, Qt::LeftButton, {}, At(200, 200));
  Move({1, 1}, Qt::LeftButton);
  QTest::mouseRelease(&map_, Qt::LeftButton, {}, {1, 1});
  ASSERT_EQ(lines_.size(), 1);
  EXPECT_EQ(lines_[0].to.x, -50);
  EXPECT_EQ(lines_[0].to.z, -50);
}

TEST_F(MapPicture, Keys_Move_A_Cross_Hair_From_The_Largest_Value_On) {
  map_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Right);
  ASSERT_TRUE(map_.Cross_Hair());
  EXPECT_EQ(told_.back(), "X 300 ft, Z 500 ft: 40 mg/l");
  Key(Qt::Key_Right);
  EXPECT_EQ(told_.back(), "X 300 ft, Z 550 ft: 20 mg/l");
  Key(Qt::Key_Down);
  EXPECT_EQ(told_.back(), "X 350 ft, Z 550 ft: 10 mg/l");
  EXPECT_TRUE(map_.accessibleDescription().contains("The cross-hair is at X 350 ft, Z 550 ft: 10"));
  Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(told_.back(), "X -50 ft, Z 550 ft: 0 mg/l");
  before_.setFocus();
  EXPECT_EQ(told_.back(), QString());
  EXPECT_FALSE(map_.accessibleDescription().contains("The cross-hair is"));
}

TEST_F(MapPicture, A_Line_Is_Drawn_By_Keys) {
  map_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Left);
  Key(Qt::Key_Return);
  for (int i = 0; i < 4; ++i) Key(Qt::Key_Right);
  EXPECT_TRUE(lines_.empty());
  Key(Qt::Key_Return);
  ASSERT_EQ(lines_.size(), 1);
  EXPECT_EQ(lines_[0].from.z, 500);
  EXPECT_EQ(lines_[0].to.z, 700);
  EXPECT_EQ(lines_[0].to.x, 300);
}

TEST_F(MapPicture, Escape_Gives_Up_A_Line_In_The_Making_Then_Removes_The_One_There) {
  map_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Left);
  Key(Qt::Key_Return);
  Key(Qt::Key_Right);
  Key(Qt::Key_Escape);
  Key(Qt::Key_Return);  // begins anew
  Key(Qt::Key_Return);  // without a length
  EXPECT_TRUE(lines_.empty());
  Key(Qt::Key_Escape);
  EXPECT_EQ(removed_, 0);
  Map_Content content = Peak();
  content.section = Section_Line{{100, 100}, {300, 500}};
  map_.Show(content);
  Key(Qt::Key_Escape);
  EXPECT_EQ(removed_, 1);
}

TEST_F(MapPicture, A_Section_Is_Part_Of_What_Is_Saved) {
  EXPECT_FALSE(map_.As_Svg().contains("Distance along the line (ft)"));
  Map_Content content = Peak();
  content.section = Section_Line{{100, 100}, {300, 500}};
  map_.Show(content);
  EXPECT_TRUE(map_.As_Svg().contains("Distance along the line (ft)"));
}

TEST_F(MapPicture, Without_A_Map_It_Says_Why_And_Takes_Neither_Keys_Nor_Lines) {
  map_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Left);
  Map_Content content;
  content.nothing = "The outputs hold no maps of the deposit.";
  map_.Show(content);
  told_.clear();
  Key(Qt::Key_Left);
  Key(Qt::Key_Return);
  QTest::mousePress(&map_, Qt::LeftButton, {}, {300, 300});
  Move({400, 400}, Qt::LeftButton);
  QTest::mouseRelease(&map_, Qt::LeftButton, {}, {400, 400});
  EXPECT_TRUE(lines_.empty());
  for (const QString& words : told_) EXPECT_EQ(words, QString());
  EXPECT_EQ(map_.accessibleDescription(), "The outputs hold no maps of the deposit.");
  EXPECT_FALSE(map_.Widget_Place({0, 0}));
}

TEST_F(MapPicture, A_Smaller_Grid_Takes_The_Cross_Hair_Along) {
  map_.setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Left);
  Map_View view;
  view.species = 1;
  view.depth = 10;
  view.time = 600;
  map_.Show(Content_Of(Mapped_Results(), nullptr, view));
  EXPECT_EQ(map_.Cross_Hair()->x, 150);
  EXPECT_EQ(map_.Cross_Hair()->z, 150);
}

}  // namespace
}  // namespace barvon::testing

#include "pictures/shape_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <limits>

#include "pictures/density_profile.h"
#include "pictures/picture_bench.h"
#include "pictures/shapes/svg_writer.h"
#include "pictures/two_point_profile.h"

namespace barvon::testing {
namespace {

QImage Painted(const Shape_List& picture) {
  QImage image(static_cast<int>(picture.width), static_cast<int>(picture.height),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  Paint_Shapes(painter, picture, QFont());
  return image;
}

QImage Rendered(const Shape_List& picture) {
  QImage image(static_cast<int>(picture.width), static_cast<int>(picture.height),
               QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  QSvgRenderer renderer(QByteArray::fromStdString(Svg_Text(picture)));
  EXPECT_TRUE(renderer.isValid());
  renderer.render(&painter);
  return image;
}

TEST(ShapePainter, Paints_Fills_Lines_And_Circles_Where_They_Are) {
  Shape_List picture{60, 40, "", "", {}};
  picture.shapes.push_back(Polygon_Shape{Rectangle({10, 10}, {20, 20}), Colour{255, 0, 0}, {}});
  picture.shapes.push_back(Line_Shape{{{0, 30}, {60, 30}}, {{0, 0, 255}, 4, Dash::solid}});
  picture.shapes.push_back(Circle_Shape{{40, 15}, 5, Colour{0, 128, 0}, {}});
  for (const QImage& seen : {Painted(picture), Rendered(picture)}) {
    EXPECT_EQ(seen.pixelColor(15, 15), QColor(255, 0, 0));
    EXPECT_EQ(seen.pixelColor(15, 25), QColor(Qt::white));
    EXPECT_EQ(seen.pixelColor(50, 30), QColor(0, 0, 255));
    EXPECT_EQ(seen.pixelColor(40, 15), QColor(0, 128, 0));
    EXPECT_EQ(seen.pixelColor(46, 21), QColor(Qt::white));
  }
}

TEST(ShapePainter, A_Ring_In_An_Area_Is_A_Hole_Whichever_Way_It_Goes) {
  for (const bool same_way : {true, false}) {
    Shape_List picture{60, 40, "", "", {}};
    std::vector<Place> hole = Rectangle({20, 10}, {40, 30});
    if (!same_way) hole = {hole[3], hole[2], hole[1], hole[0]};
    picture.shapes.push_back(
        Area_Shape{{Rectangle({5, 5}, {55, 35}), hole}, Colour{255, 0, 0}, {}});
    for (const QImage& seen : {Painted(picture), Rendered(picture)}) {
      EXPECT_EQ(seen.pixelColor(10, 20), QColor(255, 0, 0));
      EXPECT_EQ(seen.pixelColor(30, 20), QColor(Qt::white));
      EXPECT_EQ(seen.pixelColor(50, 20), QColor(255, 0, 0));
      EXPECT_EQ(seen.pixelColor(58, 20), QColor(Qt::white));
    }
  }
}

TEST(ShapePainter, Letters_Have_Their_Size_To_A_Fraction_And_Bold_Ones_Are_Blacker) {
  const auto ink = [](double size, bool bold) {
    Shape_List picture{240, 40, "", "", {}};
    picture.shapes.push_back(
        Text_Shape{{4, 30}, "HHHHHHHH", size, {0, 0, 0}, Anchor::start, false, bold});
    return Count_Pixels(Painted(picture), QRect(0, 0, 240, 40), Qt::black, 200);
  };
  EXPECT_GT(ink(14.5, false), ink(14, false));
  EXPECT_LT(ink(14.5, false), ink(16, false));
  EXPECT_GT(ink(14, true), ink(14, false));
}

TEST(ShapePainter, Text_Lies_On_The_Side_That_Its_Anchor_Names) {
  const auto ink = [](Anchor anchor, bool upwards, const QRect& area) {
    Shape_List picture{120, 120, "", "", {}};
    picture.shapes.push_back(Text_Shape{{60, 60}, "HHHH", 14, {0, 0, 0}, anchor, upwards});
    return Count_Pixels(Painted(picture), area, Qt::black, 200);
  };
  const QRect right(62, 40, 58, 22), left(0, 40, 58, 22), above(40, 0, 22, 58);
  EXPECT_GT(ink(Anchor::start, false, right), 20);
  EXPECT_EQ(ink(Anchor::start, false, left), 0);
  EXPECT_GT(ink(Anchor::end, false, left), 20);
  EXPECT_EQ(ink(Anchor::end, false, right), 0);
  EXPECT_GT(ink(Anchor::middle, false, left), 5);
  EXPECT_GT(ink(Anchor::middle, false, right), 5);
  EXPECT_GT(ink(Anchor::start, true, above), 20);
}

TEST(ShapePainter, What_Has_No_Place_Leaves_A_Gap) {
  Shape_List picture{20, 20, "", "", {}};
  const double nan = std::numeric_limits<double>::quiet_NaN();
  picture.shapes.push_back(Line_Shape{{{0, 0}, {nan, 9}}, {{0, 0, 0}, 5, Dash::solid}});
  picture.shapes.push_back(Circle_Shape{{9, 9}, 1e300, Colour{0, 0, 0}, {}});
  EXPECT_EQ(Count_Pixels(Painted(picture), QRect(0, 0, 20, 20), Qt::black, 300), 0);
}

// The file that a screen saves shows what the screen shows.
TEST(ShapePainter, A_Saved_Svg_Has_The_Same_Colours_At_The_Same_Places) {
  Density_Profile profile;
  profile.Show({{0, 1.00}, {40, 1.02}}, 45);
  const QImage seen = Seen(profile);
  QSvgRenderer renderer(profile.As_Svg());
  ASSERT_TRUE(renderer.isValid());
  QImage saved(renderer.defaultSize(), QImage::Format_RGB32);
  QPainter painter(&saved);
  renderer.render(&painter);
  painter.end();
  const QPoint corner(2, 2);  // of the content in the widget
  for (const Density_Point& point :
       std::vector<Density_Point>{{20, 1.01}, {48, 1.013}, {30, 1.005}}) {
    const QPoint at = profile.Place_Of(point).toPoint();
    EXPECT_LT(Difference(saved.pixelColor(at - corner), seen.pixelColor(at)), 30) << point.depth;
  }
}

TEST(ShapePainter, A_Saved_Svg_Holds_Names_Numbers_And_Notes) {
  Two_Point_Profile profile;
  Profile_Point half;
  half.x_depth = 10;
  half.x_velocity = 1.25;
  profile.Show({half, {}});
  profile.Set_Caption("Depths < 20 ft & more");
  Seen(profile);
  const std::string text = profile.As_Svg().toStdString();
  for (const char* part : {"<title>Velocity against depth</title>", "1.25 ft/s at 10 ft",
                           "3 value pairs not complete.", "Depths &lt; 20 ft &amp; more",
                           ">X velocity</text>", ">Depth (ft)</text>"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
}

}  // namespace
}  // namespace barvon::testing

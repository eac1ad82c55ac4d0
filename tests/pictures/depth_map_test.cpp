#include "pictures/depth_map.h"

#include <gtest/gtest.h>
#include <qcustomplot.h>

#include <limits>

#include "pictures/picture_bench.h"

namespace barvon::testing {
namespace {

// 8 rows of 12 columns; the depth tells its cell: 10 x row + column.
Depth_Grid Telling_Grid() {
  Depth_Grid grid = {8, 12, {}};
  for (int row = 1; row <= 8; ++row) {
    for (int column = 1; column <= 12; ++column) grid.depths.push_back(10 * row + column);
  }
  return grid;
}

TEST(DepthMap, Every_Cell_Has_The_Colour_Of_Its_Depth_In_Its_Place) {
  Depth_Map map;
  map.Show(Telling_Grid());
  const QImage seen = Seen(map);
  for (int row = 1; row <= 8; ++row) {
    for (int column = 1; column <= 12; ++column) {
      const QColor colour = seen.pixelColor(map.Place_Of(row, column).toPoint());
      EXPECT_LT(Difference(colour, map.Colour_Of(10 * row + column)), 6) << row << " " << column;
    }
  }
  EXPECT_GT(Difference(map.Colour_Of(11), map.Colour_Of(92)), 150);
}

TEST(DepthMap, Rows_Go_Down_And_Columns_To_The_Right) {
  Depth_Map map;
  map.Show(Telling_Grid());
  Seen(map);
  EXPECT_LT(map.Place_Of(1, 1).y(), map.Place_Of(8, 1).y());
  EXPECT_LT(map.Place_Of(1, 1).x(), map.Place_Of(1, 12).x());
  EXPECT_EQ(map.Place_Of(3, 1).y(), map.Place_Of(3, 12).y());
}

TEST(DepthMap, Outer_Cells_Are_As_Large_As_The_Others) {
  Depth_Map map;
  map.Show(Telling_Grid());
  const QImage seen = Seen(map);
  const QPointF first = map.Place_Of(1, 1), last = map.Place_Of(8, 12);
  const QPointF part((last.x() - first.x()) / 11 * 0.4, (last.y() - first.y()) / 7 * 0.4);
  for (const double side : {-1.0, 1.0}) {
    const QPoint at = (first + side * part).toPoint(), end = (last + side * part).toPoint();
    EXPECT_LT(Difference(seen.pixelColor(at), map.Colour_Of(11)), 6);
    EXPECT_LT(Difference(seen.pixelColor(end), map.Colour_Of(92)), 6);
    EXPECT_TRUE(map.Tip_At(first + side * part).startsWith("Row 1, Col 1: 11.00 ft"));
    EXPECT_TRUE(map.Tip_At(last + side * part).startsWith("Row 8, Col 12: 92.00 ft"));
  }
}

TEST(DepthMap, Deeper_Is_Darker_Step_By_Step) {
  Depth_Map map;
  map.Show(Telling_Grid());
  for (int depth = 12; depth <= 92; ++depth) {
    EXPECT_LE(qGray(map.Colour_Of(depth).rgb()), qGray(map.Colour_Of(depth - 1).rgb())) << depth;
  }
  EXPECT_GT(qGray(map.Colour_Of(11).rgb()), qGray(map.Colour_Of(92).rgb()) + 100);
}

TEST(DepthMap, A_Change_Of_One_Depth_Is_Seen_At_Once) {
  Depth_Map map;
  Depth_Grid grid = Telling_Grid();
  map.Show(grid);
  const QImage before = Seen(map);
  grid.depths[2 * 12 + 4] = 92;  // row 3, column 5 was 35
  map.Show(grid);
  const QImage after = Seen(map);
  const QPoint place = map.Place_Of(3, 5).toPoint(), other = map.Place_Of(3, 6).toPoint();
  EXPECT_GT(Difference(before.pixelColor(place), after.pixelColor(place)), 150);
  EXPECT_EQ(before.pixelColor(other), after.pixelColor(other));
}

// One column is drawn as two halves: both grids have as many cells.
TEST(DepthMap, Two_Columns_Behind_One_Have_Their_Places) {
  Depth_Map map;
  map.Show({3, 1, {10, 20, 30}});
  const QImage one = Seen(map);
  for (int row = 1; row <= 3; ++row) {
    const QColor colour = one.pixelColor(map.Place_Of(row, 1).toPoint());
    EXPECT_LT(Difference(colour, map.Colour_Of(10 * row)), 6) << row;
  }
  map.Show({3, 2, {10, 90, 20, 80, 30, 70}});
  const QImage two = Seen(map);
  for (int row = 1; row <= 3; ++row) {
    const QColor left = two.pixelColor(map.Place_Of(row, 1).toPoint());
    const QColor right = two.pixelColor(map.Place_Of(row, 2).toPoint());
    EXPECT_LT(Difference(left, map.Colour_Of(10 * row)), 6) << row;
    EXPECT_LT(Difference(right, map.Colour_Of(100 - 10 * row)), 6) << row;
  }
}

TEST(DepthMap, An_Empty_Cell_Is_White) {
  Depth_Map map;
  Depth_Grid grid = Telling_Grid();
  grid.depths[0] = std::numeric_limits<double>::quiet_NaN();
  map.Show(grid);
  const QImage seen = Seen(map);
  EXPECT_EQ(seen.pixelColor(map.Place_Of(1, 1).toPoint()), QColor(Qt::white));
  EXPECT_TRUE(map.Tip_At(map.Place_Of(1, 1)).startsWith("Row 1, Col 1: no depth"));
}

TEST(DepthMap, A_Uniform_Grid_Has_One_Colour) {
  Depth_Map map;
  map.Show({8, 8, std::vector<double>(64, 30)});
  const QImage seen = Seen(map);
  EXPECT_EQ(seen.pixelColor(map.Place_Of(1, 1).toPoint()),
            seen.pixelColor(map.Place_Of(8, 8).toPoint()));
  EXPECT_GT(Difference(seen.pixelColor(map.Place_Of(4, 4).toPoint()), Qt::white), 100);
}

TEST(DepthMap, The_Largest_Grid_And_Single_Rows_And_Columns_Are_In_Their_Place) {
  Depth_Map map;
  for (const auto& [rows, columns] : {std::pair(96, 96), {1, 5}, {5, 1}, {1, 1}}) {
    Depth_Grid grid = {rows, columns, std::vector<double>(rows * columns, 20.0)};
    grid.depths.back() = 40;
    map.Show(grid);
    const QImage seen = Seen(map);
    const QPointF last = map.Place_Of(rows, columns);
    EXPECT_LT(Difference(seen.pixelColor(last.toPoint()), map.Colour_Of(40)), 6) << rows;
    EXPECT_TRUE(map.Tip_At(last).endsWith("40.00 ft")) << rows << " " << columns;
  }
}

TEST(DepthMap, Headings_Stand_Apart_In_A_Narrow_Picture_Too) {
  Depth_Map map;
  map.Show({96, 96, std::vector<double>(96 * 96, 1234.5)});
  const QCPAxis& axis = *map.findChild<QCustomPlot*>()->xAxis2;
  const QFontMetricsF metrics(axis.tickLabelFont());
  for (int width = 200; width <= 900; width += 20) {
    Seen(map, {width, 360});
    double taken = -1e9;  // to where the headings before it reach
    for (qsizetype i = 0; i < axis.tickVector().size(); ++i) {
      const double half = metrics.horizontalAdvance(axis.tickVectorLabels().at(i)) / 2;
      const double middle = axis.coordToPixel(axis.tickVector().at(i));
      EXPECT_GT(middle - half, taken) << width << " " << i;
      taken = middle + half;
    }
  }
}

TEST(DepthMap, No_Grid_And_No_Numbers_Are_No_Trouble) {
  Depth_Map map;
  const double infinity = std::numeric_limits<double>::infinity();
  for (const Depth_Grid& grid :
       {Depth_Grid{}, Depth_Grid{2, 2, {1}}, Depth_Grid{2, 1, {infinity, -infinity}},
        Depth_Grid{2, 1, {-1e12, 1e12}}, Depth_Grid{2, 1, {1e-300, 0}}}) {
    map.Show(grid);
    EXPECT_FALSE(Seen(map).isNull());
    EXPECT_EQ(map.Tip_At({0, 0}), "");
  }
}

}  // namespace
}  // namespace barvon::testing

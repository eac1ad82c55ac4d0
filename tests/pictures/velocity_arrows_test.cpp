#include "pictures/velocity_arrows.h"

#include <gtest/gtest.h>

#include <limits>

#include "pictures/picture_bench.h"

namespace barvon::testing {
namespace {

const QColor kInk(20, 33, 48);

Velocity_Grid Even_Grid(int rows, int columns, double x, double z) {
  const std::size_t count = static_cast<std::size_t>(rows) * columns;
  return {rows, columns, std::vector<double>(count, x), std::vector<double>(count, z)};
}

// A thin line between two rows of pixels leaves half its ink in each.
constexpr int kHalfInk = 300;

int Ink_Near(const QImage& seen, const QPointF& place) {
  return Count_Pixels(seen, QRect(place.toPoint() - QPoint(3, 3), QSize(7, 7)), kInk, kHalfInk);
}

// The head makes the tip's end heavier than the tail's.
TEST(VelocityArrows, An_Arrow_Points_Where_The_Water_Goes) {
  struct Case {
    double x, z;
    QPointF way;
  };
  for (const Case& c : {Case{1, 0, {0, 1}}, Case{-1, 0, {0, -1}}, Case{0, 1, {1, 0}},
                        Case{0, -1, {-1, 0}}, Case{3, 4, {0.8, 0.6}}}) {
    Velocity_Arrows map;
    map.Show(Even_Grid(8, 8, c.x, c.z));
    const QImage seen = Seen(map);
    const QPointF centre = map.Place_Of(4, 4), reach = c.way * (map.Longest_Arrow() / 2 - 4);
    const QPointF across(-reach.y(), reach.x());
    EXPECT_GT(Ink_Near(seen, centre + reach), Ink_Near(seen, centre - reach) + 5) << c.x << c.z;
    EXPECT_GT(Ink_Near(seen, centre - reach), 3) << c.x << " " << c.z;
    EXPECT_EQ(Ink_Near(seen, centre + across), 0) << c.x << " " << c.z;
  }
}

// Half the speed: an arrow half as long. Only the column through the centre is looked at.
TEST(VelocityArrows, Its_Length_Is_Its_Part_Of_The_Fastest_Speed) {
  Velocity_Grid grid = Even_Grid(8, 8, 1, 0);
  grid.x[3 * 8 + 3] = 2;
  Velocity_Arrows map;
  map.Show(grid);
  const QImage seen = Seen(map, {640, 560});
  const auto extent = [&](int row, int column) {
    const QPoint at = map.Place_Of(row, column).toPoint();
    const int reach = static_cast<int>(map.Longest_Arrow() / 2) + 2;
    int first = 0, last = -1;
    for (int y = -reach; y <= reach; ++y) {
      if (Count_Pixels(seen, QRect(at.x() - 1, at.y() + y, 3, 1), kInk) == 0) continue;
      if (last < first) first = y;
      last = y;
    }
    return last - first + 1;
  };
  EXPECT_NEAR(extent(4, 4), map.Longest_Arrow(), 4);
  EXPECT_NEAR(extent(4, 5), map.Longest_Arrow() / 2, 4);
}

TEST(VelocityArrows, Arrows_Never_Touch_Those_Of_Other_Points) {
  Velocity_Arrows map;
  for (const auto& [rows, columns] : {std::pair(8, 8), {96, 96}, {8, 96}, {96, 8}}) {
    map.Show(Even_Grid(rows, columns, 1, 1));
    for (const QSize size : {QSize(480, 360), QSize(240, 180), QSize(900, 500)}) {
      Seen(map, size);
      const auto& arrows = map.Arrows();
      ASSERT_FALSE(arrows.empty());
      double nearest = 1e9;
      for (std::size_t i = 1; i < arrows.size(); ++i) {
        const QPointF apart = map.Place_Of(arrows[i].row, arrows[i].column) -
                              map.Place_Of(arrows[0].row, arrows[0].column);
        nearest = std::min(nearest, std::hypot(apart.x(), apart.y()));
      }
      EXPECT_LE(map.Longest_Arrow(), nearest * 1.1) << rows << "x" << columns;
      EXPECT_GT(map.Longest_Arrow(), 8) << rows << "x" << columns;
    }
  }
}

TEST(VelocityArrows, Speed_Is_Shown_At_Every_Point_Also_Between_The_Arrows) {
  Velocity_Grid grid = Even_Grid(96, 96, 0.1, 0);
  grid.x[50 * 96 + 60] = 2;  // row 51, column 61
  Velocity_Arrows map;
  map.Show(grid);
  const QImage seen = Seen(map, {900, 700});
  const QColor fast = seen.pixelColor(map.Place_Of(51, 61).toPoint());
  const QColor slow = seen.pixelColor((map.Place_Of(51, 61) + map.Place_Of(51, 63)).toPoint() / 2);
  EXPECT_GT(Difference(fast, slow), 60);
}

TEST(VelocityArrows, A_Point_Tells_Its_Numbers) {
  Velocity_Arrows map;
  map.Show(Even_Grid(8, 8, 3, 4));
  Seen(map);
  EXPECT_EQ(map.Tip_At(map.Place_Of(2, 7)),
            "Row 2, Col 7: 5 ft/s down and right\nX 3 ft/s, Z 4 ft/s");
  EXPECT_EQ(map.Tip_At({0, 0}), "");
}

// The plot draws when its size changes, before the new data is brought to it.
TEST(VelocityArrows, A_Smaller_Grid_And_A_New_Size_At_Once_Are_No_Trouble) {
  Velocity_Arrows map;
  map.Show(Even_Grid(96, 96, 1, 1));
  Seen(map);
  map.Show(Even_Grid(8, 9, 1, 1));
  map.resize(300, 200);
  map.grab();
  EXPECT_EQ(map.Drawn().columns, 9);
  for (const Velocity_Arrow& arrow : map.Arrows()) {
    EXPECT_LE(arrow.row, 8);
    EXPECT_LE(arrow.column, 9);
  }
}

TEST(VelocityArrows, No_Values_Are_Any_Trouble) {
  Velocity_Arrows map;
  map.Show({});
  EXPECT_FALSE(Seen(map).isNull());
  for (const double value : {0.0, 1e12, -1e-300, std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
    map.Show(Even_Grid(3, 1, value, -value));
    EXPECT_FALSE(Seen(map).isNull());
    EXPECT_FALSE(map.accessibleDescription().isEmpty());
  }
}

}  // namespace
}  // namespace barvon::testing

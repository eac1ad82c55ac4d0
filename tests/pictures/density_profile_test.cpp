#include "pictures/density_profile.h"

#include <gtest/gtest.h>

#include <limits>

#include "pictures/picture_bench.h"
#include "pictures/plot_parts.h"

namespace barvon::testing {
namespace {

TEST(DensityProfile, The_Surface_Is_At_The_Top_And_Dense_Water_At_The_Right) {
  Density_Profile profile;
  profile.Show({{0, 1.00}, {40, 1.02}});
  Seen(profile);
  const QPointF surface = profile.Place_Of({0, 1.00}), bottom = profile.Place_Of({40, 1.02});
  EXPECT_LT(surface.y(), bottom.y());
  EXPECT_LT(surface.x(), bottom.x());
  const QPointF middle = profile.Place_Of({20, 1.01});
  EXPECT_NEAR(middle.x(), (surface.x() + bottom.x()) / 2, 1e-6);
  EXPECT_NEAR(middle.y(), (surface.y() + bottom.y()) / 2, 1e-6);
}

TEST(DensityProfile, The_Line_Goes_Through_Its_Points) {
  Density_Profile profile;
  profile.Show({{0, 1.00}, {40, 1.02}});
  const QImage seen = Seen(profile);
  for (const double part : {0.25, 0.5, 0.75}) {
    const QPoint on = profile.Place_Of({40 * part, 1 + 0.02 * part}).toPoint();
    EXPECT_GT(Count_Pixels(seen, QRect(on - QPoint(2, 2), QSize(5, 5)), kXColour), 2) << part;
    const QPoint off = profile.Place_Of({40 * part, 1.02 - 0.008 * part}).toPoint();
    EXPECT_EQ(Count_Pixels(seen, QRect(off - QPoint(2, 2), QSize(5, 5)), kXColour), 0) << part;
  }
}

TEST(DensityProfile, It_Is_Live) {
  Density_Profile profile;
  profile.Show({{0, 1.00}, {40, 1.02}});
  const QImage before = Seen(profile);
  profile.Show({{0, 1.00}, {20, 1.02}, {40, 1.02}});
  EXPECT_EQ(profile.Drawn().points.size(), 3u);
  EXPECT_NE(Seen(profile), before);
}

TEST(DensityProfile, Below_The_Bottom_Is_Ground) {
  Density_Profile profile;
  profile.Show({{0, 1.00}, {40, 1.02}}, 45);
  const QImage seen = Seen(profile);
  // The axis goes on to 50 ft.
  const QColor ground = seen.pixelColor(profile.Place_Of({48, 1.013}).toPoint());
  const QColor water = seen.pixelColor(profile.Place_Of({42, 1.013}).toPoint());
  EXPECT_EQ(water, QColor(Qt::white));
  EXPECT_GT(Difference(ground, Qt::white), 30);
}

TEST(DensityProfile, A_Point_Tells_Its_Numbers) {
  Density_Profile profile;
  profile.Show({{0, 1.00}, {15, 1.0082}});
  Seen(profile);
  EXPECT_EQ(profile.Tip_At(profile.Place_Of({15, 1.0082}) + QPointF(3, -2)),
            "Depth 15 ft\nDensity 1.0082 g/cc");
  EXPECT_EQ(profile.Tip_At(profile.Place_Of({5, 1.0082})), "");
}

TEST(DensityProfile, No_Values_Are_Any_Trouble) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  Density_Profile profile;
  for (const std::vector<Density_Point>& points :
       std::vector<std::vector<Density_Point>>{{},
                                               {{0, 1}},
                                               {{5, 1}, {5, 1}},
                                               {{nan, nan}, {infinity, 1}, {1, -infinity}},
                                               {{-1e12, 1e12}, {1e12, -1e12}},
                                               {{1e300, 1e300}},
                                               {{1e-300, 1}, {2e-300, 1}}}) {
    profile.Show(points, points.size() == 1 ? infinity : -5);
    EXPECT_FALSE(Seen(profile).isNull());
    EXPECT_FALSE(profile.accessibleDescription().isEmpty());
  }
}

}  // namespace
}  // namespace barvon::testing

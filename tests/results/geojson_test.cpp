#include "results/geojson.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

#include "results/contours.h"

namespace barvon {
namespace {

using nlohmann::json;

const Map_Place kFeet = {1000, 2000, 0, Place_Unit::foot, "EPSG:2263"};

/// A line of cells, 100 ft each way.
Cell_Values Row_Of(std::vector<double> values) {
  return {1, static_cast<int>(values.size()), 100, 100, std::move(values)};
}

Results With_Outlines() {
  Results results;
  results.site = Result_Area{.top = 0, .left = 100, .bottom = 50, .right = 200};
  results.zid = Result_Area{.top = 25, .left = 200, .bottom = 10, .right = 100};
  results.disposal = Result_Point{.x = 20, .z = 150};
  return results;
}

json Written(const Cell_Values& cells, const std::vector<double>& levels,
             const Map_Place& place = kFeet) {
  return json::parse(Geojson_Text(cells, levels, "Sand", "mg/l", {}, place));
}

/// Twice the area within a ring of positions, above 0 where it runs counterclockwise.
double Twice_Area(const json& ring) {
  double twice = 0;
  for (std::size_t i = 1; i < ring.size(); ++i) {
    twice += static_cast<double>(ring[i - 1][0]) * static_cast<double>(ring[i][1]) -
             static_cast<double>(ring[i][0]) * static_cast<double>(ring[i - 1][1]);
  }
  return twice;
}

std::vector<json> Features_Of(const json& collection, const std::string& kind) {
  std::vector<json> found;
  for (const json& feature : collection["features"]) {
    if (feature["properties"]["kind"] == kind) found.push_back(feature);
  }
  return found;
}

TEST(Geojson, Outlines_Are_Written_Letter_By_Letter) {
  EXPECT_EQ(
      Geojson_Text(Row_Of({0, 0, 0}), {5}, "Sand \"fine\"\n\\", "mg/l", With_Outlines(), kFeet),
      "{\"type\":\"FeatureCollection\",\"name\":\"Sand \\\"fine\\\"\\u000a\\\\\",\"crs\":"
      "{\"type\":\"name\",\"properties\":{\"name\":\"urn:ogc:def:crs:EPSG::2263\"}},"
      "\"features\":[\n"
      "{\"type\":\"Feature\",\"properties\":{\"kind\":\"grid\"},\"geometry\":{\"type\":\"Polygon\","
      "\"coordinates\":[[[950,2050],[950,1950],[1250,1950],[1250,2050],[950,2050]]]}},\n"
      "{\"type\":\"Feature\",\"properties\":{\"kind\":\"disposal site\"},\"geometry\":{\"type\":"
      "\"Polygon\",\"coordinates\":[[[1100,2000],[1100,1950],[1200,1950],[1200,2000],"
      "[1100,2000]]]}},\n"
      "{\"type\":\"Feature\",\"properties\":{\"kind\":\"ZID\"},\"geometry\":{\"type\":\"Polygon\","
      "\"coordinates\":[[[1100,1990],[1100,1975],[1200,1975],[1200,1990],[1100,1990]]]}},\n"
      "{\"type\":\"Feature\",\"properties\":{\"kind\":\"disposal point\"},\"geometry\":{\"type\":"
      "\"Point\",\"coordinates\":[1150,1980]}}\n]}\n");
}

TEST(Geojson, A_Mixing_Zone_Is_Called_So) {
  Results results = With_Outlines();
  results.mixing_zone = true;
  const std::string text = Geojson_Text(Row_Of({0, 0, 0}), {5}, "Sand", "mg/l", results, kFeet);
  EXPECT_NE(text.find(R"({"kind":"mixing zone"})"), std::string::npos);
  EXPECT_EQ(text.find("disposal site"), std::string::npos);
}

TEST(Geojson, Without_A_Code_The_System_Is_A_Local_One) {
  const auto name = [](const Map_Place& place) {
    return Written(Row_Of({0, 0}), {}, place)["crs"]["properties"]["name"].get<std::string>();
  };
  EXPECT_EQ(name({0, 0, 0, Place_Unit::metre_survey, "UTM \"18\" north"}),
            "LOCAL_CS[\"UTM '18' north\",UNIT[\"metre\",1]]");
  EXPECT_EQ(name({0, 0, 0, Place_Unit::foot, ""}), "LOCAL_CS[\"unknown\",UNIT[\"foot\",0.3048]]");
}

TEST(Geojson, A_Level_Has_Its_Area_And_Its_Line) {
  // Half way from 0 to 10 on both sides: Z from 50 to 150 ft.
  const json written = Written(Row_Of({0, 10, 0}), {5});
  const auto areas = Features_Of(written, "area");
  ASSERT_EQ(areas.size(), 1U);
  EXPECT_EQ(areas[0]["properties"],
            json::parse(R"({"kind":"area","what":"Sand","level":5,"unit":"mg/l"})"));
  EXPECT_EQ(areas[0]["geometry"]["type"], "MultiPolygon");
  const json ring = areas[0]["geometry"]["coordinates"][0][0];
  EXPECT_EQ(ring.front(), ring.back());
  EXPECT_EQ(Twice_Area(ring), 2 * 100 * 100);
  for (const json& position : ring) {
    EXPECT_TRUE(position[0] == 1050 || position[0] == 1150) << position;
    EXPECT_TRUE(position[1] >= 1950 && position[1] <= 2050) << position;
  }
  const auto lines = Features_Of(written, "line");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0]["geometry"]["type"], "MultiLineString");
  EXPECT_EQ(lines[0]["geometry"]["coordinates"].size(), 2U);
}

TEST(Geojson, Higher_Levels_Come_Later_And_Empty_Ones_Not_At_All) {
  const auto areas = Features_Of(Written(Row_Of({0, 10, 0}), {8, 20, 2}), "area");
  ASSERT_EQ(areas.size(), 2U);
  EXPECT_EQ(areas[0]["properties"]["level"], 2);
  EXPECT_EQ(areas[1]["properties"]["level"], 8);
}

TEST(Geojson, A_Hole_Is_In_The_Polygon_Around_It) {
  // A gap in a field of 3 by 3 reaches 50 ft to each side: 5000 ft2. To the right of it, behind
  // two empty columns, a field without a gap.
  const Cell_Values cells{3,
                          6,
                          100,
                          100,
                          {9, 9, 9, 0, 0, 9,  //
                           9, 0, 9, 0, 0, 9,  //
                           9, 9, 9, 0, 0, 9}};
  const auto areas = Features_Of(Written(cells, {4.5}), "area");
  ASSERT_EQ(areas.size(), 1U);
  json polygons = areas[0]["geometry"]["coordinates"];
  ASSERT_EQ(polygons.size(), 2U);
  if (polygons[0].size() == 1) std::swap(polygons[0], polygons[1]);
  ASSERT_EQ(polygons[0].size(), 2U);
  EXPECT_EQ(polygons[1].size(), 1U);
  EXPECT_EQ(Twice_Area(polygons[0][1]), -2 * 5000);
  // The field goes on half way to the empty column: 3 by 3 cells.
  EXPECT_EQ(Twice_Area(polygons[0][0]), 2 * 300 * 300);
  EXPECT_EQ(Twice_Area(polygons[1][0]), 2 * 300 * 100);
}

TEST(Geojson, An_Island_In_A_Hole_Is_A_Polygon_Of_Its_Own) {
  Cell_Values cells{7, 7, 100, 100, std::vector<double>(49, 9)};
  for (int row = 1; row < 6; ++row) {
    for (int column = 1; column < 6; ++column) {
      cells.values[static_cast<std::size_t>(7 * row + column)] = row == 3 && column == 3 ? 9 : 0;
    }
  }
  const auto areas = Features_Of(Written(cells, {4.5}), "area");
  ASSERT_EQ(areas.size(), 1U);
  std::vector<std::size_t> rings;
  for (const json& polygon : areas[0]["geometry"]["coordinates"]) rings.push_back(polygon.size());
  std::ranges::sort(rings);
  EXPECT_EQ(rings, (std::vector<std::size_t>{1, 2}));
}

TEST(Geojson, Every_Polygon_Runs_The_Right_Way_And_No_Area_Is_Lost) {
  EXPECT_TRUE(rc::check([] {
    Cell_Values cells{*rc::gen::inRange(1, 8), *rc::gen::inRange(1, 8), 100, 70, {}};
    for (int i = 0; i < cells.rows * cells.columns; ++i) {
      cells.values.push_back(*rc::gen::inRange(0, 10));
    }
    const double level = *rc::gen::inRange(1, 20) / 2.0;
    const Map_Place place{5000, 7000, *rc::gen::inRange(-360, 360) + 0.0, Place_Unit::metre, ""};
    double expected = 0, found = 0, length = 0;
    for (const Contour_Ring& ring : Regions_Above(cells, level)) {
      expected += Signed_Area(ring.points) * 0.3048 * 0.3048;
    }
    for (const json& area : Features_Of(Written(cells, {level}, place), "area")) {
      for (const json& polygon : area["geometry"]["coordinates"]) {
        for (std::size_t i = 0; i < polygon.size(); ++i) {
          const double twice = Twice_Area(polygon[i]);
          RC_ASSERT((i == 0) == (twice > 0));
          found += twice / 2;
          length += 100.0 * static_cast<double>(polygon[i].size());
        }
      }
    }
    // Positions are rounded to half a millimetre.
    RC_ASSERT(std::abs(found - expected) <= 0.001 * (length + 1));
  }));
}

using Step = std::array<long long, 2>;  // thousandths of easting and northing
using Ring = std::vector<Step>;         // its first position at the end again

Ring Ring_Of(const json& positions) {
  Ring ring;
  for (const json& position : positions) {
    ring.push_back({std::llround(1000 * position[0].get<double>()),
                    std::llround(1000 * position[1].get<double>())});
  }
  return ring;
}

/// On which side of a line from a to b a position is: above 0 on the left, 0 on it.
long long Side(const Step& a, const Step& b, const Step& at) {
  return (b[0] - a[0]) * (at[1] - a[1]) - (b[1] - a[1]) * (at[0] - a[0]);
}

bool Is_Between(const Step& a, const Step& b, const Step& at) {
  return Side(a, b, at) == 0 && std::min(a[0], b[0]) <= at[0] && at[0] <= std::max(a[0], b[0]) &&
         std::min(a[1], b[1]) <= at[1] && at[1] <= std::max(a[1], b[1]);
}

/// Whether two lines have more in common than an end of both.
bool Clash(const Step& a, const Step& b, const Step& c, const Step& d) {
  for (const auto& [from, to, at] : {std::array{a, b, c}, {a, b, d}, {c, d, a}, {c, d, b}}) {
    if (at != from && at != to && Is_Between(from, to, at)) return true;
  }
  if ((a == c && b == d) || (a == d && b == c)) return true;
  const auto parts = [](long long one, long long other) {
    return (one < 0 && other > 0) || (one > 0 && other < 0);
  };
  return parts(Side(a, b, c), Side(a, b, d)) && parts(Side(c, d, a), Side(c, d, b));
}

/// By the odd-even rule; coordinates may be halves.
bool Is_Inside(const Ring& ring, double east, double north) {
  bool inside = false;
  for (std::size_t i = 1; i < ring.size(); ++i) {
    const auto [a, b] = std::pair(ring[i - 1], ring[i]);
    if ((static_cast<double>(a[1]) > north) == (static_cast<double>(b[1]) > north)) continue;
    const double part = (north - static_cast<double>(a[1])) / static_cast<double>(b[1] - a[1]);
    if (east < static_cast<double>(a[0]) + part * static_cast<double>(b[0] - a[0])) {
      inside = !inside;
    }
  }
  return inside;
}

/// The distance of a point from the nearest line of the rings.
double Distance(const std::vector<Ring>& rings, double east, double north) {
  double least = std::numeric_limits<double>::max();
  for (const Ring& ring : rings) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const double way_east = static_cast<double>(ring[i][0] - ring[i - 1][0]);
      const double way_north = static_cast<double>(ring[i][1] - ring[i - 1][1]);
      const double to_east = east - static_cast<double>(ring[i - 1][0]);
      const double to_north = north - static_cast<double>(ring[i - 1][1]);
      const double part = std::clamp((to_east * way_east + to_north * way_north) /
                                         (way_east * way_east + way_north * way_north),
                                     0.0, 1.0);
      least = std::min(least, std::hypot(to_east - part * way_east, to_north - part * way_north));
    }
  }
  return least;
}

constexpr double kHair = 1e-6;

bool Has_Higher_Neighbour(const Cell_Values& cells, int row, int column) {
  const auto is_higher = [&](int other_row, int other_column) {
    return other_row >= 1 && other_row <= cells.rows && other_column >= 1 &&
           other_column <= cells.columns &&
           cells.At(other_row, other_column) > cells.At(row, column) + kHair;
  };
  return is_higher(row - 1, column) || is_higher(row + 1, column) || is_higher(row, column - 1) ||
         is_higher(row, column + 1);
}

/// Values that are a level, and such that are a hair beside it.
Cell_Values Round_Values() {
  Cell_Values cells{*rc::gen::inRange(1, 8), *rc::gen::inRange(1, 8), 100, 70, {}};
  for (int i = 0; i < cells.rows * cells.columns; ++i) {
    const double hair = *rc::gen::element(0.0, 0.0, 0.0, 1e-9, -1e-9, 3e-7);
    cells.values.push_back(*rc::gen::element(0.0, 0.01, 0.02, 0.05, 0.1) + hair);
  }
  return cells;
}

TEST(Geojson, Areas_At_The_Values_Of_Cells_Are_Simple_And_Hold_The_Right_Cells) {
  EXPECT_TRUE(rc::check([] {
    const Cell_Values cells = Round_Values();
    const double level = *rc::gen::element(0.01, 0.02, 0.05, 0.1);
    const double turn = *rc::gen::element(0.0, 90.0, 17.0, 45.0, -123.4);
    const Map_Place place{1000.3, 2000.7, turn,
                          *rc::gen::element(Place_Unit::metre, Place_Unit::foot), ""};
    std::vector<Ring> all;
    for (const json& area : Features_Of(Written(cells, {level}, place), "area")) {
      std::vector<std::vector<Ring>> polygons;
      for (const json& polygon : area["geometry"]["coordinates"]) {
        polygons.emplace_back();
        for (const json& ring : polygon) {
          polygons.back().push_back(Ring_Of(ring));
          all.push_back(polygons.back().back());
        }
      }
      for (const auto& polygon : polygons) {
        for (std::size_t hole = 1; hole < polygon.size(); ++hole) {
          const Step a = polygon[hole][0], b = polygon[hole][1];
          const double east = static_cast<double>(a[0] + b[0]) / 2;
          const double north = static_cast<double>(a[1] + b[1]) / 2;
          RC_ASSERT(Is_Inside(polygon[0], east, north));
          // No other polygon lies around it within this one.
          for (const auto& other : polygons) {
            if (&other == &polygon || !Is_Inside(other[0], east, north)) continue;
            RC_ASSERT(Is_Inside(other[0],
                                static_cast<double>(polygon[0][0][0] + polygon[0][1][0]) / 2,
                                static_cast<double>(polygon[0][0][1] + polygon[0][1][1]) / 2));
          }
        }
      }
    }
    // No ring comes to a position twice, and no lines meet but in an end of both.
    std::vector<std::pair<Step, Step>> lines;
    for (const Ring& ring : all) {
      RC_ASSERT(std::set<Step>(ring.begin(), ring.end()).size() + 1 == ring.size());
      for (std::size_t i = 1; i < ring.size(); ++i) lines.emplace_back(ring[i - 1], ring[i]);
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
      for (std::size_t k = 0; k < i; ++k) {
        RC_ASSERT(!Clash(lines[i].first, lines[i].second, lines[k].first, lines[k].second));
      }
    }
    for (int row = 1; row <= cells.rows; ++row) {
      for (int column = 1; column <= cells.columns; ++column) {
        const Map_Point centre =
            On_Map(place, {(row - 1) * cells.spacing_x, (column - 1) * cells.spacing_z});
        const double east = 1000 * centre.easting, north = 1000 * centre.northing;
        const auto around = std::ranges::count_if(
            all, [&](const Ring& ring) { return Is_Inside(ring, east, north); });
        // What is only a hair beside the level, rounding may take to either side.
        const double above = cells.At(row, column) - level;
        if (std::abs(above) > kHair) RC_ASSERT((around % 2 == 1) == (above > 0));
        // A cell at the level itself is in the area beside it, or on its outline.
        if (above == 0 && Has_Higher_Neighbour(cells, row, column)) {
          RC_ASSERT(around % 2 == 1 || Distance(all, east, north) < 1);
        }
      }
    }
  }));
}

}  // namespace
}  // namespace barvon

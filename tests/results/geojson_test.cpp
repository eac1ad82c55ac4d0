#include "results/geojson.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>
#include <nlohmann/json.hpp>

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

}  // namespace
}  // namespace barvon

// What programs that read such files make of them: GDAL's own, where they are installed.

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

#include "platform/process/search_path.h"
#include "results/ascii_grid.h"
#include "results/geojson.h"
#include "support/plain_support.h"
#include "support/run_program.h"

namespace barvon::testing {
namespace {

/// Not turned, in metres of UTM zone 18 north.
const Map_Place kUtm = {500000, 4000000, 0, Place_Unit::metre, "EPSG:32618"};

/// Cells of 100 ft = 30.48 m each way.
/// 1.25 2 3
/// 4    5 60.5
Cell_Values Six() { return {2, 3, 100, 100, {1.25, 2, 3, 4, 5, 60.5}}; }

class GisReaders : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"gdalinfo", "gdallocationinfo", "ogrinfo"}) {
      if (!Find_Program(name)) GTEST_SKIP() << name << " is not installed";
    }
  }

  /// What the program says of it, standard error included: a warning is a fault.
  std::string Said(const std::string& program, const std::vector<std::string>& words) {
    std::vector<std::string> command = {Find_Program(program).value_or("")};
    command.insert(command.end(), words.begin(), words.end());
    const Program_Result result = Run_Program({command, folder.path(), {}, {}});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
  }

  void Save_Grid(const Cell_Values& cells, const Map_Place& place) {
    const auto grid = To_North(cells, place);
    ASSERT_TRUE(grid);
    Write_Text(folder / "map.asc", Ascii_Grid_Text(*grid));
    Write_Text(folder / "map.asc.aux.xml", Ascii_Grid_Notes(*grid, place, "Sand, 600 s", "mg/l"));
  }

  std::string Value_At(double easting, double northing) {
    const std::string said =
        Said("gdallocationinfo",
             {"-valonly", "-geoloc", "map.asc", std::to_string(easting), std::to_string(northing)});
    return said.substr(0, said.find_last_not_of('\n') + 1);
  }

  static void Expect_Said(const std::string& text, const std::string& part) {
    EXPECT_NE(text.find(part), std::string::npos) << part << "\nis not in\n" << text;
  }

  Scratch_Folder folder;
};

TEST_F(GisReaders, An_Ascii_Grid_Lies_Where_It_Should) {
  Save_Grid(Six(), kUtm);
  const std::string said = Said("gdalinfo", {"map.asc"});
  Expect_Said(said, "Driver: AAIGrid/");
  Expect_Said(said, "Size is 3, 2");
  // Half a cell, 15.24 m, to the north-west of the corner point.
  Expect_Said(said, "Origin = (499984.760000000009313,4000015.2399999");
  Expect_Said(said, "Pixel Size = (30.480000000000000,-30.480000000000000)");
  Expect_Said(said, "Type=Float32");
  Expect_Said(said, "NoData Value=-9999");
  Expect_Said(said, "Description = Sand, 600 s");
  Expect_Said(said, "Unit Type: mg/l");
  Expect_Said(said, "SYSTEM=EPSG:32618");
  // The points of row 1, column 1 and of row 2, column 3.
  EXPECT_EQ(Value_At(500000, 4000000), "1.25");
  EXPECT_EQ(Value_At(500060.96, 3999969.52), "60.5");
  // A little inside the western edge of column 2, and a little outside.
  EXPECT_EQ(Value_At(500015.30, 4000000), "2");
  EXPECT_EQ(Value_At(500015.20, 4000000), "1.25");
}

TEST_F(GisReaders, Whole_Numbers_In_Front_Of_A_Fraction_Are_Read_As_Numbers) {
  Save_Grid({1, 3, 100, 100, {0, 0, 0.5}}, kUtm);
  EXPECT_EQ(Value_At(500060.96, 4000000), "0.5");
  Save_Grid({1, 2, 100, 100, {1, 2}}, kUtm);
  Expect_Said(Said("gdalinfo", {"map.asc"}), "Type=Float32");
}

TEST_F(GisReaders, A_Turned_Grid_Has_Its_Cells_Where_They_Are_And_Nothing_Beside) {
  // 30 degrees clockwise: Z grows towards 120 degrees from north, X towards 210.
  Map_Place place = kUtm;
  place.turn = 30;
  Save_Grid(Six(), place);
  EXPECT_EQ(Value_At(500000, 4000000), "1.25");
  // Column 3 is 60.96 m along Z: 52.793 m to the east, 30.48 m to the south.
  EXPECT_EQ(Value_At(500052.793, 3999969.52), "3");
  // Row 2 is 30.48 m along X: 15.24 m to the west, 26.396 m to the south.
  EXPECT_EQ(Value_At(499984.76, 3999973.604), "4");
  // North-east of them all.
  EXPECT_EQ(Value_At(500060, 4000010), "-9999");
}

TEST_F(GisReaders, A_Grid_In_Feet_Stays_In_Feet) {
  Save_Grid(Six(), {1000, 2000, 90, Place_Unit::foot, "state plane"});
  const std::string said = Said("gdalinfo", {"map.asc"});
  Expect_Said(said, "Size is 2, 3");
  Expect_Said(said, "Origin = (850.000000000000000,2050.000000000000000)");
  EXPECT_EQ(Value_At(1000, 1800), "3");
  EXPECT_EQ(Value_At(900, 2000), "4");
}

TEST_F(GisReaders, Contours_And_Outlines_Are_Read) {
  Results results;
  results.site = Result_Area{.top = 0, .left = 100, .bottom = 50, .right = 200};
  results.disposal = Result_Point{.x = 20, .z = 150};
  Write_Text(folder / "map.geojson",
             Geojson_Text({1, 3, 100, 100, {0, 10, 0}}, {5}, "Sand, 600 s", "mg/l", results, kUtm));
  const std::string said = Said("ogrinfo", {"-al", "-ro", "map.geojson"});
  Expect_Said(said, "Layer name: Sand, 600 s");
  Expect_Said(said, "Feature Count: 5");
  Expect_Said(said, "ID[\"EPSG\",32618]");
  Expect_Said(said, "level (Integer)");
  // The grid reaches from -50 to 250 ft of Z and from -50 to 50 ft of X.
  Expect_Said(said, "Extent: (499984.760000, 3999984.760000) - (500076.200000, 4000015.240000)");
  Expect_Said(said, "kind (String) = disposal site");
  // Z 150 ft = 45.72 m, X 20 ft = 6.096 m.
  Expect_Said(said, "POINT (500045.72 3999993.904)");
  // The area of 100 ft each way is 929.0304 m2.
  Expect_Said(Said("ogrinfo",
                   {"-ro", "-sql", "select OGR_GEOM_AREA from \"Sand, 600 s\" where kind = 'area'",
                    "map.geojson"}),
              "OGR_GEOM_AREA (Real) = 929.0304");
}

TEST_F(GisReaders, Areas_Of_A_Wild_Map_Are_Valid_Polygons) {
  // Values that are at a level itself, saddles, gaps and lone cells.
  Cell_Values cells{40, 40, 100, 70, {}};
  std::mt19937 random(1);
  for (int i = 0; i < 1600; ++i) {
    const double value = random() % 6;
    cells.values.push_back(value == 5 ? std::numeric_limits<double>::quiet_NaN() : value);
  }
  Map_Place place = kUtm;
  place.turn = 17;
  Write_Text(folder / "map.geojson",
             Geojson_Text(cells, {0.5, 1, 2, 2.5, 4}, "Sand", "mg/l", {}, place));
  const std::string said =
      Said("ogrinfo", {"-ro", "-q", "-dialect", "sqlite", "-sql",
                       "select level, st_isvalid(geometry) as v from Sand where kind = 'area'",
                       "map.geojson"});
  if (said.find("v (Integer)") == std::string::npos) GTEST_SKIP() << "without spatial functions";
  EXPECT_EQ(said.find("v (Integer) = 0"), std::string::npos) << said;
  Expect_Said(said, "level (Real) = 4");
}

TEST_F(GisReaders, Areas_At_The_Values_Of_Cells_Are_Valid_Polygons) {
  const std::array values{0.0, 0.01, 0.02, 0.05, 0.1};
  for (unsigned seed = 0; seed < 12; ++seed) {
    Cell_Values cells{12, 12, 100, seed % 2 == 0 ? 100.0 : 70.0, {}};
    std::mt19937 random(seed);
    for (int i = 0; i < 144; ++i) cells.values.push_back(values[random() % values.size()]);
    Map_Place place = kUtm;
    place.turn = seed % 3 * 29.5;
    Write_Text(folder / "map.geojson",
               Geojson_Text(cells, {0.01, 0.02, 0.05, 0.1}, "Sand", "ft", {}, place));
    const std::string said =
        Said("ogrinfo",
             {"-ro", "-q", "-dialect", "sqlite", "-sql",
              "select st_isvalid(geometry) as v from Sand where kind = 'area'", "map.geojson"});
    if (said.find("v (Integer)") == std::string::npos) GTEST_SKIP() << "without spatial functions";
    EXPECT_EQ(said.find("v (Integer) = 0"), std::string::npos) << seed << said;
  }
}

TEST_F(GisReaders, Without_A_Code_Nobody_Takes_The_Numbers_For_Degrees) {
  Map_Place place = kUtm;
  place.system = "";
  Write_Text(folder / "map.geojson",
             Geojson_Text({1, 3, 100, 100, {0, 10, 0}}, {5}, "Sand", "mg/l", {}, place));
  const std::string said = Said("ogrinfo", {"-al", "-so", "-ro", "map.geojson"});
  EXPECT_EQ(said.find("WGS 84"), std::string::npos) << said;
  Expect_Said(said, "ENGCRS[\"unknown\"");
}

}  // namespace
}  // namespace barvon::testing

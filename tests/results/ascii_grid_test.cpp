#include "results/ascii_grid.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>
#include <limits>

namespace barvon {
namespace {

Map_Place Feet(double turn) { return {1000, 2000, turn, Place_Unit::foot, ""}; }

/// 1 2 3
/// 4 5 6
Cell_Values Six(double spacing_x = 100, double spacing_z = 100) {
  return {2, 3, spacing_x, spacing_z, {1, 2, 3, 4, 5, 6}};
}

std::string Text_Of(const Cell_Values& cells, const Map_Place& place) {
  const auto grid = To_North(cells, place);
  return grid ? Ascii_Grid_Text(*grid) : "";
}

std::string Head(int columns, int rows, const std::string& left, const std::string& bottom,
                 const std::string& cell, const std::string& no_data = "-9999") {
  return "ncols " + std::to_string(columns) + "\r\nnrows " + std::to_string(rows) +
         "\r\nxllcorner " + left + "\r\nyllcorner " + bottom + "\r\ncellsize " + cell +
         "\r\nNODATA_value " + no_data + "\r\n";
}

TEST(AsciiGrid, A_Grid_To_The_North_Goes_Cell_By_Cell) {
  // Cells are centred on their points: half a cell to the west, and one and a half to the south.
  EXPECT_EQ(Text_Of(Six(), Feet(0)),
            Head(3, 2, "950", "1850", "100") + "1.0 2.0 3.0\r\n4.0 5.0 6.0\r\n");
}

TEST(AsciiGrid, Metres_Are_To_The_Millimetre_And_Below) {
  EXPECT_EQ(Text_Of(Six(), {500000, 4000000, 0, Place_Unit::metre, ""}),
            Head(3, 2, "499984.76", "3999954.28", "30.48") + "1.0 2.0 3.0\r\n4.0 5.0 6.0\r\n");
  // 3937 ft are 1200 m, so half a cell is 600 m.
  EXPECT_EQ(Text_Of(Six(3937, 3937), {0, 0, 0, Place_Unit::metre_survey, ""}),
            Head(3, 2, "-600", "-1800", "1200") + "1.0 2.0 3.0\r\n4.0 5.0 6.0\r\n");
}

TEST(AsciiGrid, Quarter_Turns_Are_Exact) {
  // Z to the south, X to the west.
  EXPECT_EQ(Text_Of(Six(), Feet(90)),
            Head(2, 3, "850", "1750", "100") + "4.0 1.0\r\n5.0 2.0\r\n6.0 3.0\r\n");
  // Z to the west, X to the north.
  EXPECT_EQ(Text_Of(Six(), Feet(180)),
            Head(3, 2, "750", "1950", "100") + "6.0 5.0 4.0\r\n3.0 2.0 1.0\r\n");
  // Z to the north, X to the east.
  EXPECT_EQ(Text_Of(Six(), Feet(-90)),
            Head(2, 3, "950", "1950", "100") + "3.0 6.0\r\n2.0 5.0\r\n1.0 4.0\r\n");
  EXPECT_EQ(Text_Of(Six(), Feet(270)), Text_Of(Six(), Feet(-90)));
}

TEST(AsciiGrid, Cells_Longer_Than_Wide_Are_Cut_Into_Squares) {
  EXPECT_EQ(Text_Of(Six(200, 100), Feet(0)),
            Head(3, 4, "950", "1700", "100") +
                "1.0 2.0 3.0\r\n1.0 2.0 3.0\r\n4.0 5.0 6.0\r\n4.0 5.0 6.0\r\n");
  const auto grid = To_North(Six(150, 100), Feet(0));
  ASSERT_TRUE(grid);
  EXPECT_TRUE(grid->exact);
  EXPECT_EQ(grid->cell, 50);
  EXPECT_EQ(grid->rows, 6);
  EXPECT_EQ(grid->columns, 6);
}

TEST(AsciiGrid, Sides_Without_A_Common_Measure_Are_Not_Exact) {
  const auto grid = To_North(Six(100, 100 * std::sqrt(2.0)), Feet(0));
  ASSERT_TRUE(grid);
  EXPECT_FALSE(grid->exact);
  EXPECT_EQ(grid->cell, 50);
}

TEST(AsciiGrid, A_Turned_Cell_Is_A_Staircase) {
  // A square of 100 ft on its corner reaches 70.7 ft; the centres of squares of 50 ft are 45.7 ft
  // to the west, 4.3 and 54.3 ft to the east, and the same to south and north.
  const Cell_Values one{1, 1, 100, 100, {7}};
  const auto grid = To_North(one, Feet(45));
  ASSERT_TRUE(grid);
  EXPECT_FALSE(grid->exact);
  EXPECT_EQ(Ascii_Grid_Text(*grid), Head(3, 3, "929.289322", "1929.289322", "50") +
                                        "-9999 7.0 -9999\r\n7.0 7.0 7.0\r\n-9999 7.0 -9999\r\n");
}

TEST(AsciiGrid, Values_Have_All_Their_Digits_And_A_Point) {
  const Cell_Values cells{1, 5, 1, 1, {1e-7, 123456.78, 1e30, -0.0, 0.1}};
  EXPECT_TRUE(Text_Of(cells, Feet(0)).ends_with("\r\n1.0e-07 123456.78 1.0e+30 0.0 0.1\r\n"));
}

TEST(AsciiGrid, No_Value_Is_Told_Apart_From_Every_Value) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Text_Of({1, 4, 100, 100, {-9999, nan, infinite, 2}}, Feet(0)),
            Head(4, 1, "950", "1950", "100", "-99999") + "-9999.0 -99999 -99999 2.0\r\n");
}

TEST(AsciiGrid, Nothing_Without_Cells) {
  EXPECT_FALSE(To_North({}, Feet(0)));
  EXPECT_FALSE(To_North(Six(0, 100), Feet(0)));
  EXPECT_FALSE(To_North(Six(100, std::nan("")), Feet(0)));
}

TEST(AsciiGrid, The_Centre_Of_Every_Cell_Has_Its_Value_However_The_Grid_Is_Turned) {
  EXPECT_TRUE(rc::check([] {
    Cell_Values cells{*rc::gen::inRange(1, 9),
                      *rc::gen::inRange(1, 9),
                      *rc::gen::inRange(1, 4000) / 10.0,
                      *rc::gen::inRange(1, 4000) / 10.0,
                      {}};
    // The squares of narrow cells are many.
    RC_PRE(std::max(cells.spacing_x, cells.spacing_z) <
           20 * std::min(cells.spacing_x, cells.spacing_z));
    for (int i = 0; i < cells.rows * cells.columns; ++i) cells.values.push_back(i);
    const Map_Place place{
        *rc::gen::inRange(-100000, 100000) / 7.0, *rc::gen::inRange(-100000, 100000) / 7.0,
        *rc::gen::inRange(-720, 720) / 2.0, static_cast<Place_Unit>(*rc::gen::inRange(0, 3)), ""};
    const auto grid = To_North(cells, place);
    RC_ASSERT(grid.has_value());
    for (int row = 1; row <= cells.rows; ++row) {
      for (int column = 1; column <= cells.columns; ++column) {
        const Map_Point at =
            On_Map(place, {(row - 1) * cells.spacing_x, (column - 1) * cells.spacing_z});
        const int across = static_cast<int>((at.easting - grid->left) / grid->cell);
        const int up = static_cast<int>((at.northing - grid->bottom) / grid->cell);
        RC_ASSERT(across >= 0 && across < grid->columns && up >= 0 && up < grid->rows);
        const auto square =
            static_cast<std::size_t>((grid->rows - 1 - up) * grid->columns + across);
        RC_ASSERT(grid->values[square] == cells.At(row, column));
      }
    }
  }));
}

TEST(AsciiGrid, Its_Notes_Tell_What_It_Cannot) {
  const auto grid = To_North(Six(), Feet(0));
  ASSERT_TRUE(grid);
  EXPECT_EQ(Ascii_Grid_Notes(*grid, {0, 0, 0, Place_Unit::metre, "EPSG:32618"},
                             "Sand & silt, <20 ft", "mg/l"),
            "<PAMDataset>\n  <Metadata>\n    <MDI key=\"SYSTEM\">EPSG:32618</MDI>\n    <MDI "
            "key=\"CELLS\">each "
            "square has the value of the one cell of the site's grid that it is a part of</MDI>\n"
            "  </Metadata>\n  <PAMRasterBand band=\"1\">\n    <Description>Sand &amp; silt, "
            "&lt;20 ft</Description>\n    <UnitType>mg/l</UnitType>\n  </PAMRasterBand>\n"
            "</PAMDataset>\n");
  EXPECT_EQ(Ascii_Grid_Notes(*grid, Feet(0), "", "").find("SYSTEM"), std::string::npos);
  EXPECT_NE(Ascii_Grid_Notes(*grid, Feet(0), "a > b\n", "").find("<Description>a &gt; b <"),
            std::string::npos);
}

}  // namespace
}  // namespace barvon

#include "site/grid_csv.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>

namespace barvon {
namespace {

/// The rows of a text that is read as 2 rows of 3 columns.
Grid_Rows Rows_Of(std::string_view text) {
  Grid_Csv read = Read_Grid_Csv(text, 2, 3);
  EXPECT_EQ(read.fault, "");
  return read.rows;
}

std::string Fault_Of(std::string_view text) {
  const Grid_Csv read = Read_Grid_Csv(text, 2, 3);
  EXPECT_TRUE(read.rows.empty());
  return read.fault;
}

const Grid_Rows kCounted = {{1, 2, 3}, {4, 5, 6}};

TEST(GridCsv, Is_Written_Row_By_Row_With_Commas_And_Two_Character_Line_Ends) {
  EXPECT_EQ(Write_Grid_Csv({{1, -2.5, 0}, {1e-7, 0.1, 1234567}}),
            "1,-2.5,0\r\n1e-07,0.1,1234567\r\n");
  EXPECT_EQ(Write_Grid_Csv({}), "");
}

TEST(GridCsv, Takes_Every_Usual_Line_End_And_A_Missing_Last_One) {
  for (const char* text : {"1,2,3\r\n4,5,6\r\n", "1,2,3\n4,5,6\n", "1,2,3\r4,5,6\r",
                           "1,2,3\r\n4,5,6", "1,2,3\n4,5,6", "1,2,3\r4,5,6"}) {
    EXPECT_EQ(Rows_Of(text), kCounted) << text;
  }
}

TEST(GridCsv, Takes_A_Byte_Order_Mark_And_Empty_Lines_At_The_End) {
  EXPECT_EQ(Rows_Of("\xEF\xBB\xBF"
                    "1,2,3\n4,5,6\n"),
            kCounted);
  EXPECT_EQ(Rows_Of("1,2,3\n4,5,6\n\n  \r\n\n"), kCounted);
}

TEST(GridCsv, Takes_Quotes_And_Blanks_Around_A_Number) {
  EXPECT_EQ(Rows_Of("\"1\", 2 ,\" 3 \"\n \"4\" ,+5,6.0\n"), kCounted);
}

TEST(GridCsv, Is_Separated_By_Semicolons_When_It_Has_Any) {
  EXPECT_EQ(Rows_Of("1;2;3\n4;5;6\n"), kCounted);
  EXPECT_EQ(Rows_Of("\"1\";2;3\n4;\"5\";6\n"), kCounted);
}

TEST(GridCsv, A_Decimal_Comma_Is_Refused_And_Never_Misread) {
  EXPECT_EQ(Fault_Of("1,5;2;3\n4;5;6\n"),
            "Row 1, column 1: \"1,5\" is not a number.  The decimal sign is a point.");
  EXPECT_EQ(Fault_Of("1,2,3\n4,\"5,5\",6\n"),
            "Row 2, column 2: \"5,5\" is not a number.  The decimal sign is a point.");
}

TEST(GridCsv, A_Cell_That_Is_No_Number_Throughout_Is_Named_By_Row_And_Column) {
  EXPECT_EQ(Fault_Of("1,2,3\n4,5,x\n"), "Row 2, column 3: \"x\" is not a number.");
  EXPECT_EQ(Fault_Of("1,1O0,3\n4,5,6\n"), "Row 1, column 2: \"1O0\" is not a number.");
  EXPECT_EQ(Fault_Of("1,2,3 ft\n4,5,6\n"), "Row 1, column 3: \"3 ft\" is not a number.");
  EXPECT_EQ(Fault_Of("1,nan,inf\n4,5,6\n"), "Row 1, column 2: \"nan\" is not a number.");
  EXPECT_EQ(Fault_Of("Col 1,Col 2,Col 3\n1,2,3\n4,5,6\n"),
            "Row 1, column 1: \"Col 1\" is not a number.");
}

TEST(GridCsv, A_Number_That_Would_Read_As_0_For_Its_Size_Is_Refused) {
  EXPECT_EQ(Fault_Of("1,2,3\n1e999,5,6\n"),
            "Row 2, column 1: \"1e999\" is too large or too small a number.");
}

TEST(GridCsv, An_Empty_Cell_Is_No_Zero) {
  EXPECT_EQ(Fault_Of("1,,3\n4,5,6\n"), "Row 1, column 2 is empty.");
  EXPECT_EQ(Fault_Of("1,2,3\n4,5,\n"), "Row 2, column 3 is empty.");
  EXPECT_EQ(Fault_Of("1,2,3\n\"\",5,6\n"), "Row 2, column 1 is empty.");
}

TEST(GridCsv, What_Stands_Beside_A_Quoted_Number_Does_Not_Grow_Together_With_It) {
  EXPECT_EQ(Fault_Of("\"1\"2,2,3\n4,5,6\n"), "Row 1, column 1: \"1\"2\" is not a number.");
  EXPECT_EQ(Fault_Of("1,\"\"\"2\",3\n4,5,6\n"), "Row 1, column 2: \"\"2\" is not a number.");
}

TEST(GridCsv, A_Quote_That_Is_Never_Closed_Is_No_Number) {
  EXPECT_EQ(Fault_Of("1,2,3\n4,5,\"6"), "Row 2, column 3: \"\"6\" is not a number.");
  // It takes the rest of the file with it: the first line ends there.
  EXPECT_EQ(Fault_Of("1,2,\"3\n4,5,6\n"),
            "Row 1, column 3: \"\"3 4,5,6 \" is not a number.  The "
            "decimal sign is a point.");
}

TEST(GridCsv, Another_Width_Is_Named_By_The_First_Cell_That_Is_Missing_Or_Extra) {
  EXPECT_EQ(Fault_Of("1,2,3\n4,5\n"),
            "Row 2, column 3 is missing.  The file has 2 rows, the first of 3 columns; the table "
            "has 2 rows of 3 columns.");
  EXPECT_EQ(Fault_Of("1,2,3,\n4,5,6,\n"),
            "Row 1, column 4 is extra.  The file has 2 rows, the first of 4 columns; the table has "
            "2 rows of 3 columns.");
}

TEST(GridCsv, Another_Height_Is_Named_By_The_First_Row_That_Is_Missing_Or_Extra) {
  EXPECT_EQ(
      Fault_Of("1,2,3\n"),
      "Row 2, column 1 is missing.  The file has 1 row, the first of 3 columns; the table has "
      "2 rows of 3 columns.");
  EXPECT_EQ(Fault_Of("1,2,3\n4,5,6\n7,8,9\n"),
            "Row 3, column 1 is extra.  The file has 3 rows, the first of 3 columns; the table has "
            "2 rows of 3 columns.");
  EXPECT_EQ(Fault_Of("1,2,3\n\n4,5,6\n"),
            "Row 2, column 2 is missing.  The file has 3 rows, the first of 3 columns; the table "
            "has 2 rows of 3 columns.");
}

TEST(GridCsv, An_Empty_File_Lacks_Its_First_Cell) {
  for (const char* text : {"", "\n", "\xEF\xBB\xBF"}) {
    EXPECT_EQ(Fault_Of(text),
              "Row 1, column 1 is missing.  The file has 0 rows; the table has 2 rows of 3 "
              "columns.");
  }
}

TEST(GridCsv, A_Long_Cell_Of_Any_Bytes_Is_Shown_In_Short) {
  const std::string letters(60, 'w');
  EXPECT_EQ(Fault_Of("1,2,\xE9\x01" + letters + "\n4,5,6"),
            "Row 1, column 3: \"\xC3\xA9 " + letters.substr(0, 38) + "...\" is not a number.");
}

RC_GTEST_PROP(GridCsv, Every_Number_Reads_Back_Bit_By_Bit, ()) {
  const int rows = *rc::gen::inRange(1, 12);
  const int columns = *rc::gen::inRange(1, 12);
  Grid_Rows table;
  for (int row = 0; row < rows; ++row) {
    std::vector<double> values;
    for (int column = 0; column < columns; ++column) {
      const auto value = std::bit_cast<double>(*rc::gen::arbitrary<std::uint64_t>());
      values.push_back(std::isfinite(value) ? value : -0.0);
    }
    table.push_back(values);
  }
  const Grid_Csv read = Read_Grid_Csv(Write_Grid_Csv(table), rows, columns);
  RC_ASSERT(read.fault.empty());
  for (std::size_t row = 0; row < table.size(); ++row) {
    for (std::size_t column = 0; column < table[row].size(); ++column) {
      RC_ASSERT(std::bit_cast<std::uint64_t>(read.rows[row][column]) ==
                std::bit_cast<std::uint64_t>(table[row][column]));
    }
  }
}

RC_GTEST_PROP(GridCsv, Any_Bytes_Give_A_Table_Of_That_Size_Or_A_Fault, ()) {
  const std::string characters = "0123456789.,;\"\r\n \t-+eEx\xEF\xBB\xBF";
  std::string text;
  for (const int at : *rc::gen::container<std::vector<int>>(
           rc::gen::inRange(0, static_cast<int>(characters.size())))) {
    text += characters[static_cast<std::size_t>(at)];
  }
  const Grid_Csv read = Read_Grid_Csv(text, 1, 2);
  if (read.fault.empty()) {
    RC_ASSERT(read.rows.size() == 1U);
    RC_ASSERT(read.rows[0].size() == 2U);
  } else {
    RC_ASSERT(read.rows.empty());
  }
}

}  // namespace
}  // namespace barvon

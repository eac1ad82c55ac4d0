#include "platform/table/cell_range.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace barvon::testing {
namespace {

TEST(CellRange, A_Range_Text_Names_Two_Corners_In_Any_Order) {
  const Cell_Range expected{1, 1, 3, 2};
  for (const char* text : {"A1:B3", "B3:A1", "A3:B1", "a1:b3"}) {
    ASSERT_TRUE(Parse_Range(text)) << text;
    EXPECT_EQ(*Parse_Range(text), expected) << text;
  }
  EXPECT_EQ(*Parse_Range("C2"), (Cell_Range{2, 3, 2, 3}));
  // Columns after Z: AA is 27, CR is 3 * 26 + 18 = 96.
  EXPECT_EQ(*Parse_Range("AA10:CR96"), (Cell_Range{10, 27, 96, 96}));
}

TEST(CellRange, Anything_Else_Is_No_Range) {
  for (const char* text : {"", "A", "1", "A0", "1A", "A1:", ":A1", "A1:B", "A1:B2:C3", " A1", "A1 ",
                           "A-1", "A1.5", "$A$1", "ABCD1", "A1234567",
                           "\xC3\x84"
                           "1",
                           "A1;B2"}) {
    EXPECT_FALSE(Parse_Range(text)) << text;
  }
}

TEST(CellRange, Columns_Are_Lettered_As_Spreadsheets_Do) {
  EXPECT_EQ(Column_Letters(1), "A");
  EXPECT_EQ(Column_Letters(26), "Z");
  EXPECT_EQ(Column_Letters(27), "AA");
  EXPECT_EQ(Column_Letters(52), "AZ");
  EXPECT_EQ(Column_Letters(702), "ZZ");
  EXPECT_EQ(Column_Letters(703), "AAA");
  EXPECT_EQ(Column_Letters(0), "");
}

TEST(CellRange, What_Two_Ranges_Share_And_Span) {
  const Cell_Range a{1, 1, 4, 4};
  EXPECT_EQ(*Shared(a, {3, 2, 9, 3}), (Cell_Range{3, 2, 4, 3}));
  EXPECT_EQ(*Shared(a, {4, 4, 4, 4}), (Cell_Range{4, 4, 4, 4}));
  EXPECT_FALSE(Shared(a, {5, 1, 6, 4}));
  EXPECT_FALSE(Shared(a, {1, 5, 4, 6}));
  EXPECT_EQ(Joined({2, 3, 2, 3}, {5, 1, 5, 1}), (Cell_Range{2, 1, 5, 3}));
}

TEST(CellRange, A_Range_Text_Reads_As_The_Range_That_It_Was_Made_From) {
  EXPECT_TRUE(rc::check([] {
    const int row = *rc::gen::inRange(1, 1000), col = *rc::gen::inRange(1, 18279);
    const Cell_Range range{row, col, row + *rc::gen::inRange(0, 50),
                           std::min(col + *rc::gen::inRange(0, 50), 18278)};
    RC_ASSERT(Parse_Range(Range_Text(range)) == range);
  }));
}

}  // namespace
}  // namespace barvon::testing

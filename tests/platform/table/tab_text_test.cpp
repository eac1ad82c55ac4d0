#include "platform/table/tab_text.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

namespace barvon::testing {
namespace {

TEST(TabText, Tabs_Part_Cells_And_Line_Ends_Part_Rows) {
  const Text_Block expected{{"1", "2"}, {"3", "4"}};
  EXPECT_EQ(Read_Tab_Text("1\t2\n3\t4"), expected);
  EXPECT_EQ(Read_Tab_Text("1\t2\n3\t4\n"), expected) << "a line end behind the last row";
  EXPECT_EQ(Read_Tab_Text("1\t2\r\n3\t4\r\n"), expected);
  EXPECT_EQ(Read_Tab_Text("1\t2\r3\t4\r"), expected);
}

TEST(TabText, Empty_Cells_And_Rows_Are_Cells_And_Rows) {
  EXPECT_EQ(Read_Tab_Text(""), (Text_Block{{""}}));
  EXPECT_EQ(Read_Tab_Text("\n"), (Text_Block{{""}}));
  EXPECT_EQ(Read_Tab_Text("\n\n"), (Text_Block{{""}, {""}}));
  EXPECT_EQ(Read_Tab_Text("\t"), (Text_Block{{"", ""}}));
  EXPECT_EQ(Read_Tab_Text("a\n\nb\n"), (Text_Block{{"a"}, {""}, {"b"}}));
}

TEST(TabText, A_Block_Is_As_Wide_As_Its_Widest_Row) {
  const Text_Block cells = Read_Tab_Text("1\n2\t3\t4\n5\t6");
  EXPECT_EQ(cells, (Text_Block{{"1"}, {"2", "3", "4"}, {"5", "6"}}));
  EXPECT_EQ(Width_Of(cells), 3U);
  EXPECT_EQ(Width_Of({}), 0U);
}

// Filled up to a rectangle it would have 10^10 cells.
TEST(TabText, One_Wide_Row_Does_Not_Make_Many_Short_Ones_Wide) {
  const Text_Block cells = Read_Tab_Text(std::string(100000, '\t') + std::string(100000, '\n'));
  EXPECT_EQ(cells.size(), 100000U);
  EXPECT_EQ(cells.back().size(), 1U);
  EXPECT_EQ(Width_Of(cells), 100001U);
}

TEST(TabText, A_Quoted_Cell_Holds_Quotes_And_One_Line) {
  EXPECT_EQ(Read_Tab_Text("\"a \"\"b\"\"\"\tc"), (Text_Block{{"a \"b\"", "c"}}));
  EXPECT_EQ(Read_Tab_Text("\"two\nlines\"\t\"and\ta tab\"\r\n3\t4"),
            (Text_Block{{"two lines", "and a tab"}, {"3", "4"}}));
  EXPECT_EQ(Read_Tab_Text("\"two\r\nlines\""), (Text_Block{{"two lines"}}));
  EXPECT_EQ(Read_Tab_Text("\"\""), (Text_Block{{""}}));
}

TEST(TabText, A_Quote_That_Encloses_Nothing_Is_A_Character) {
  EXPECT_EQ(Read_Tab_Text("\"open\t1\n2\t3"), (Text_Block{{"\"open", "1"}, {"2", "3"}}));
  EXPECT_EQ(Read_Tab_Text("12\"\tb"), (Text_Block{{"12\"", "b"}})) << "twelve inches";
  EXPECT_EQ(Read_Tab_Text("\"a\"b\tc"), (Text_Block{{"\"a\"b", "c"}}));
  EXPECT_EQ(Read_Tab_Text("\""), (Text_Block{{"\""}}));
}

TEST(TabText, Rows_Are_Written_With_A_Line_End_And_A_Single_Cell_Without) {
  EXPECT_EQ(Write_Tab_Text({{"1", "2"}, {"3", ""}}), "1\t2\n3\t\n");
  EXPECT_EQ(Write_Tab_Text({{"1"}, {""}}), "1\n\n");
  EXPECT_EQ(Write_Tab_Text({{"1.5"}}), "1.5");
  EXPECT_EQ(Write_Tab_Text({{"\"a\""}}), "\"\"\"a\"\"\"");
}

TEST(TabText, What_Is_Written_Reads_Back) {
  EXPECT_TRUE(rc::check([] {
    const auto rows = *rc::gen::inRange<std::size_t>(1, 5);
    const auto cols = *rc::gen::inRange<std::size_t>(1, 5);
    const auto text = rc::gen::container<std::string>(rc::gen::element('a', '1', '"', ' ', '.'));
    const auto cells = *rc::gen::container<Text_Block>(
        rows, rc::gen::container<std::vector<std::string>>(cols, text));
    RC_ASSERT(Read_Tab_Text(Write_Tab_Text(cells)) == cells);
  }));
}

TEST(TabText, Any_Bytes_Make_Rows_Of_Cells) {
  EXPECT_TRUE(rc::check([] {
    const auto text = *rc::gen::container<std::string>(
        rc::gen::element('a', '"', '\t', '\n', '\r', '\0', '\xE4'));
    const Text_Block cells = Read_Tab_Text(text);
    RC_ASSERT(!cells.empty());
    for (const auto& row : cells) {
      RC_ASSERT(!row.empty());
      for (const std::string& cell : row) {
        RC_ASSERT(cell.find_first_of("\t\r\n") == cell.npos);
      }
    }
  }));
}

}  // namespace
}  // namespace barvon::testing

#include "platform/table/delimited_text.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace barvon::testing {
namespace {

Text_Block One_Line(std::string_view text) {
  return Read_Delimited_Text(text, '\t', Quote_Rule::One_Line);
}

Text_Block Whole_Cells(std::string_view text) {
  return Read_Delimited_Text(text, ',', Quote_Rule::Whole_Cell);
}

constexpr Quote_Rule kRules[] = {Quote_Rule::One_Line, Quote_Rule::Whole_Cell};

TEST(DelimitedText, The_Separator_Parts_Cells_And_Line_Ends_Part_Rows) {
  const Text_Block expected{{"1", "2"}, {"3", "4"}};
  for (const Quote_Rule rule : kRules) {
    for (const char* text : {"1;2\n3;4", "1;2\n3;4\n", "1;2\r\n3;4\r\n", "1;2\r3;4\r"}) {
      EXPECT_EQ(Read_Delimited_Text(text, ';', rule), expected) << text;
    }
    EXPECT_EQ(Read_Delimited_Text("1,2\t3", ';', rule), (Text_Block{{"1,2\t3"}}));
  }
}

TEST(DelimitedText, Empty_Cells_And_Rows_Are_Cells_And_Rows) {
  for (const Quote_Rule rule : kRules) {
    EXPECT_EQ(Read_Delimited_Text("", ',', rule), (Text_Block{{""}}));
    EXPECT_EQ(Read_Delimited_Text("\n", ',', rule), (Text_Block{{""}}));
    EXPECT_EQ(Read_Delimited_Text(",", ',', rule), (Text_Block{{"", ""}}));
    EXPECT_EQ(Read_Delimited_Text("a,\n\nb", ',', rule), (Text_Block{{"a", ""}, {""}, {"b"}}));
  }
}

TEST(DelimitedText, Quotes_Around_A_Cell_Go_And_Two_In_It_Are_One) {
  EXPECT_EQ(One_Line("\"a \"\"b\"\"\"\t\"\""), (Text_Block{{"a \"b\"", ""}}));
  EXPECT_EQ(Whole_Cells("\"a \"\"b\"\"\",\"\""), (Text_Block{{"a \"b\"", ""}}));
}

TEST(DelimitedText, Separators_And_Line_Breaks_In_A_Quoted_Cell_Become_Blanks_Or_Stay) {
  EXPECT_EQ(One_Line("\"two\nlines\"\t\"and\ta tab\"\t\"1\r\n2\""),
            (Text_Block{{"two lines", "and a tab", "1 2"}}));
  EXPECT_EQ(Whole_Cells("\"two\nlines\",\"and,a comma\",\"1\r\n2\""),
            (Text_Block{{"two\nlines", "and,a comma", "1\r\n2"}}));
}

TEST(DelimitedText, Blanks_Before_A_Quote_Count_In_One_Line_Only) {
  EXPECT_EQ(One_Line("  \"a\""), (Text_Block{{"  \"a\""}}));
  EXPECT_EQ(Whole_Cells("  \"a\""), (Text_Block{{"a"}}));
  EXPECT_EQ(Whole_Cells("  a"), (Text_Block{{"  a"}}));
}

TEST(DelimitedText, A_Quote_Within_A_Cell_Is_A_Character) {
  EXPECT_EQ(One_Line("12\"\tb"), (Text_Block{{"12\"", "b"}}));
  EXPECT_EQ(Whole_Cells("12\",b"), (Text_Block{{"12\"", "b"}}));
}

TEST(DelimitedText, A_Quote_That_Encloses_No_Cell_Is_A_Character_Of_One_Line) {
  EXPECT_EQ(One_Line("\"open\t1\n2"), (Text_Block{{"\"open", "1"}, {"2"}}));
  EXPECT_EQ(One_Line("\"a\"b\tc"), (Text_Block{{"\"a\"b", "c"}}));
  EXPECT_EQ(One_Line("\""), (Text_Block{{"\""}}));
}

TEST(DelimitedText, A_Quote_That_Encloses_No_Whole_Cell_Stays_In_Its_Text) {
  EXPECT_EQ(Whole_Cells("1,\"2,3\n4"), (Text_Block{{"1", "\"2,3\n4"}}));
  EXPECT_EQ(Whole_Cells("\"1\"2 3,4"), (Text_Block{{"1\"2 \"3", "4"}}));
  EXPECT_EQ(Whole_Cells("\"1\"  ,4"), (Text_Block{{"1  ", "4"}}));
}

// A paste of several hundred rows, each as long as its fields ask.
TEST(DelimitedText, Many_Rows_Keep_Their_Own_Widths) {
  std::string text;
  for (int row = 0; row < 600; ++row) {
    text += "Name " + std::to_string(row) + "\t0.5" + (row % 2 == 0 ? "\r\n" : "\t1\r\n");
  }
  const Text_Block rows = One_Line(text);
  ASSERT_EQ(rows.size(), 600U);
  EXPECT_EQ(rows[598], (std::vector<std::string>{"Name 598", "0.5"}));
  EXPECT_EQ(rows[599], (std::vector<std::string>{"Name 599", "0.5", "1"}));
}

TEST(DelimitedText, Any_Bytes_Make_Rows_Of_Cells) {
  EXPECT_TRUE(rc::check([] {
    const auto text = *rc::gen::container<std::string>(
        rc::gen::element('a', ' ', '"', ',', '\n', '\r', '\0', '\xE4'));
    for (const Quote_Rule rule : kRules) {
      const Text_Block rows = Read_Delimited_Text(text, ',', rule);
      RC_ASSERT(!rows.empty());
      for (const auto& row : rows) RC_ASSERT(!row.empty());
    }
  }));
}

TEST(DelimitedText, Whole_Cells_Written_In_Quotes_Read_Back) {
  EXPECT_TRUE(rc::check([] {
    const auto cells = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(
        rc::gen::container<std::string>(rc::gen::element('a', '1', '"', ' ', ',', '\n', '\r'))));
    std::string text;
    for (const std::string& cell : cells) {
      text += text.empty() ? "\"" : ",\"";
      for (const char character : cell)
        text += character == '"' ? "\"\"" : std::string(1, character);
      text += '"';
    }
    RC_ASSERT(Whole_Cells(text) == Text_Block{cells});
  }));
}

}  // namespace
}  // namespace barvon::testing

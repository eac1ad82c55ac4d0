#include "database/column_lines.h"

#include <gtest/gtest.h>

#include <array>

namespace barvon::testing {
namespace {

constexpr std::array<Line_Columns, 2> kPair = {{{1, 3}, {4, 6}}};
constexpr std::array<Line_Columns, 2> kGap = {{{1, 4}, {6, 9}}};
constexpr std::array<Line_Columns, 1> kOne = {{{1, 6}}};

TEST(ColumnLines, What_The_Blanks_Tell_Is_What_The_Columns_Read) {
  EXPECT_TRUE(Is_In_Columns(" 32 36", kPair));
  EXPECT_TRUE(Is_In_Columns(" 32 36 grid points", kPair));
  EXPECT_FALSE(Is_In_Columns(" 32  36 ", kPair)) << "reads 3";
  EXPECT_TRUE(Is_In_Columns("100100", kPair)) << "no blank between them";
  EXPECT_TRUE(Is_In_Columns(" 32", kPair)) << "the second is 0";
  EXPECT_TRUE(Is_In_Columns(" 0  0 ", kGap)) << "0 is read either way";
  EXPECT_FALSE(Is_In_Columns(" 0  1 ", kGap));
  EXPECT_FALSE(Is_In_Columns(" 123.4567 ", kOne));
  EXPECT_FALSE(Is_In_Columns("abc", kOne));
  EXPECT_TRUE(Is_In_Columns("", kOne));
}

TEST(ColumnLines, Digits_Behind_The_Columns_Are_Seen) {
  EXPECT_TRUE(Runs_Out_Of_Columns("1234567", kOne));
  EXPECT_FALSE(Runs_Out_Of_Columns("123456 7", kOne));
  EXPECT_FALSE(Runs_Out_Of_Columns("123456", kPair)) << "other columns begin there";
  EXPECT_TRUE(Runs_Out_Of_Columns("1234567", kPair));
}

TEST(ColumnLines, Numbers_Move_To_The_Ends_Of_Their_Columns) {
  EXPECT_EQ(Into_Columns(" 32  36 ", kPair)->line, " 32 36");
  EXPECT_EQ(Into_Columns("-0.25  1.5 ", kGap)->line, "-.25  1.5");
  EXPECT_FALSE(Into_Columns("-0.25  1.5 ", kGap)->rounded);
  const auto rounded = Into_Columns(" 1234.5678 ", kOne);
  EXPECT_EQ(rounded->line, "1234.6");
  EXPECT_TRUE(rounded->rounded);
  EXPECT_EQ(Into_Columns(" 0.0012345 ", kOne)->line, ".00123");
  EXPECT_EQ(Into_Columns(" 5E-05 ", kOne)->line, " 5E-05");
}

TEST(ColumnLines, What_Can_Not_Be_Moved_Is_Left) {
  EXPECT_FALSE(Into_Columns(" 32 ", kPair)) << "one number only";
  EXPECT_FALSE(Into_Columns(" 32 x", kPair));
  EXPECT_FALSE(Into_Columns(" 1234  5 ", kPair)) << "no rounding makes three digits of it";
}

TEST(ColumnLines, A_Small_Number_May_Stand_With_An_Exponent) {
  const auto slopes = Into_Columns(" 0.0125  0.0005 ", kGap);
  ASSERT_TRUE(slopes);
  EXPECT_EQ(slopes->line, ".013 5E-4") << "0.0125 is rounded by a twenty-fifth, 0.0005 not at all";
  EXPECT_TRUE(slopes->rounded);
  EXPECT_EQ(Number_In(slopes->line, kGap[1]), 0.0005);
  EXPECT_FALSE(Into_Columns(" -0.0005  1 ", kGap)) << "-5E-4 takes five columns";
  EXPECT_FALSE(Into_Columns(" 0.0015  1 ", kGap)) << ".002 is a third more";
  EXPECT_FALSE(Into_Columns(" 1500  1 ", kPair)) << "2E3 is a third more";
}

TEST(ColumnLines, Only_Lines_Of_Just_As_Many_Numbers_Move) {
  EXPECT_FALSE(Into_Columns(" 32  36  grid, by hand ", kPair));
  EXPECT_FALSE(Into_Columns(" 32  36  40 ", kPair));
}

TEST(ColumnLines, Printed_Lines_Are_Told_From_Others) {
  EXPECT_EQ(Printed(std::array{700.0, -0.25, 5e-5}), " 700 -0.25  5E-05 ");
  EXPECT_TRUE(Is_Printed(" 700 -0.25  5E-05 ", 3));
  EXPECT_TRUE(Is_Printed(" 700  2", 2)) << "blanks at the end come and go";
  EXPECT_TRUE(Is_Printed("", 0));
  for (const char* line : {" 700 2 ", "700  2 ", " 700  2.0 ", " 700  2x ", " 700 ", "",
                           " 700  2  3 ", " 700  2  words", " 700  1e0 "}) {
    EXPECT_FALSE(Is_Printed(line, 2)) << line;
  }
  EXPECT_FALSE(Is_Printed(" 0 ", 0));
}

TEST(ColumnLines, Columns_That_Hold_No_Number_Of_Their_Own) {
  EXPECT_EQ(Column_Fault(" 1.5  2.5", kGap), "");
  EXPECT_EQ(Column_Fault("", kGap), "numbers should stand here, but the line is empty");
  EXPECT_EQ(Column_Fault("  ", kOne), "a number should stand here, but the line is empty");
  EXPECT_EQ(Column_Fault("", {}), "");
  EXPECT_EQ(Column_Fault("    42,5", kOne), "a number runs out of its columns");
  EXPECT_EQ(Column_Fault("1234.5E2", kOne), "a number runs out of its columns");
  EXPECT_EQ(Column_Fault("1234.5 E", kOne), "");
  EXPECT_EQ(Column_Fault("  42,5", kOne),
            "columns 1 to 6 should hold a number, but \"42,5\" stands there");
  EXPECT_EQ(Column_Fault("  4 25", kOne),
            "columns 1 to 6 should hold a number, but \"4 25\" stands there");
  EXPECT_EQ(Column_Fault(" 1.5  2.5 as surveyed", kGap), "");
  EXPECT_EQ(Column_Fault("   42 feet", kOne), "");
  EXPECT_EQ(Column_Fault(" 1.5", kGap),
            "columns 6 to 9 should hold a number, but nothing stands there");
  EXPECT_EQ(Column_Fault("        42", kOne),
            "columns 1 to 6 should hold a number, but nothing stands there");
  EXPECT_EQ(Column_Fault(" 1.5  n/a", kGap),
            "columns 6 to 9 should hold a number, but \"n/a\" stands there");
  EXPECT_EQ(Column_Fault(" 1.5-2.50", kGap), "a number begins before columns 6 to 9");
  EXPECT_EQ(Column_Fault("1.525  2.5", kGap), "a number runs out of its columns");
}

// A depth that is missing leaves its density in both columns.
TEST(ColumnLines, A_Number_That_Columns_Cut_In_Two) {
  constexpr std::array<Line_Columns, 2> kProfile = {{{1, 6}, {7, 12}}};
  EXPECT_EQ(Column_Fault(" 1.0012", kProfile),
            "a number runs on from columns 1 to 6 into the next ones");
  EXPECT_EQ(Column_Fault("     01.0010", kProfile), "") << "the point is the second one's";
  EXPECT_EQ(Column_Fault("1234.5100000", kProfile), "") << "the second fills its columns";
  EXPECT_EQ(Column_Fault("   250   250", kProfile), "");
}

TEST(ColumnLines, A_Number_Behind_The_Columns) {
  EXPECT_TRUE(Number_Behind("     0       0", kOne));
  EXPECT_FALSE(Number_Behind("     0  feet 2", kOne));
  EXPECT_FALSE(Number_Behind("     0", kOne));
  EXPECT_FALSE(Number_Behind("     0  7", {}));
}

TEST(ColumnLines, Leading_Numbers_End_At_The_First_Word) {
  EXPECT_EQ(Leading_Numbers("  1 -2.5\t.5 x 4", 9), (std::vector<double>{1, -2.5, 0.5}));
  EXPECT_EQ(Leading_Numbers("1 2 3", 2), (std::vector<double>{1, 2}));
  EXPECT_EQ(Leading_Numbers("1x", 2), std::vector<double>{});
}

}  // namespace
}  // namespace barvon::testing

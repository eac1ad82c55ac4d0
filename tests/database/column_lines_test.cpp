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

TEST(ColumnLines, Leading_Numbers_End_At_The_First_Word) {
  EXPECT_EQ(Leading_Numbers("  1 -2.5\t.5 x 4", 9), (std::vector<double>{1, -2.5, 0.5}));
  EXPECT_EQ(Leading_Numbers("1 2 3", 2), (std::vector<double>{1, 2}));
  EXPECT_EQ(Leading_Numbers("1x", 2), std::vector<double>{});
}

}  // namespace
}  // namespace barvon::testing

#include "solver/number_text.h"

#include <gtest/gtest.h>

namespace companion {
namespace {

TEST(NumberText, Has_Its_Columns) {
  EXPECT_EQ(Sci(1234.567), "  1.234567e+03");
  EXPECT_EQ(Sci(-0.0), "  0.000000e+00");
  EXPECT_EQ(Sci(-1.5e-99), " -1.500000e-99");
  EXPECT_EQ(Sci(-1.5e-140), "  0.000000e+00");
  EXPECT_EQ(Int(42), "   42");
  EXPECT_EQ(Map_Number(0.123456), " 1.2346e-01");
  EXPECT_EQ(Map_Number(0), " 0.0000e+00");
}

TEST(NumberText, Reads_Well) {
  EXPECT_EQ(Plain(85), "85");
  EXPECT_EQ(Plain(1234.5678), "1234.6");
  EXPECT_EQ(Plain(-0.0), "0");
  EXPECT_EQ(Fixed(2.345, 1), "2.3");
  EXPECT_EQ(Fixed(-0.04, 1), "0.0");
  EXPECT_EQ(Right("abc", 5), "  abc");
  EXPECT_EQ(Right("abcdef", 5), " abcdef");
  EXPECT_EQ(Left("ab", 4), "ab  ");
}

}  // namespace
}  // namespace companion

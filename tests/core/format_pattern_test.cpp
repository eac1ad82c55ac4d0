#include "core/format_pattern.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>

namespace barvon {
namespace {

struct Pattern_Case {
  double value;
  const char* pattern;
  const char* text;
};

TEST(FormatNumber, Fills_Digit_Patterns) {
  for (const Pattern_Case& c : {
           Pattern_Case{0, "##", ""},
           {32, "##", "32"},
           {12345, "##", "12345"},
           {0.5, "####.00", ".50"},
           {0, "#.00", ".00"},
           {12.345, "####0.0000", "12.3450"},
           {0.1, "####0.0000", "0.1000"},
           {7, "000", "007"},
           {7, "#######0", "7"},
           {0, "#######0", "0"},
           {1.26, "##0.00", "1.26"},
           {3.14159, "####.###", "3.142"},
           {3.1, "####.###", "3.1"},
           {1e20, "0", "100000000000000000000"},
           {1e-20, "0.00", "0.00"},
           {123456789.126, "#.00", "123456789.13"},
       }) {
    EXPECT_EQ(Format_Number(c.value, c.pattern), c.text) << c.value << " in " << c.pattern;
  }
}

TEST(FormatNumber, Always_Writes_The_Point_Of_Its_Pattern) {
  EXPECT_EQ(Format_Number(5, "#####.##"), "5.");
  EXPECT_EQ(Format_Number(0, "#####.##"), ".");
  EXPECT_EQ(Format_Number(3600, "######0."), "3600.");
}

TEST(FormatNumber, Rounds_Half_Away_From_Zero_On_The_Decimal_Value) {
  EXPECT_EQ(Format_Number(1.005, "0.00"), "1.01");
  EXPECT_EQ(Format_Number(-1.005, "0.00"), "-1.01");
  EXPECT_EQ(Format_Number(2.5, "0"), "3");
  EXPECT_EQ(Format_Number(0.5, "0"), "1");
  EXPECT_EQ(Format_Number(0.05, "0.0"), "0.1");
  EXPECT_EQ(Format_Number(0.04, "0.0"), "0.0");
  EXPECT_EQ(Format_Number(9.995, "0.00"), "10.00");
  EXPECT_EQ(Format_Number(0.005, "0.00"), "0.01");
  EXPECT_EQ(Format_Number(0.0005, "0.00"), "0.00");
}

TEST(FormatNumber, A_Value_That_Shows_Only_Zeros_Has_No_Sign) {
  EXPECT_EQ(Format_Number(-0.001, "0.00"), "0.00");
  EXPECT_EQ(Format_Number(-0.0, "0.0"), "0.0");
  EXPECT_EQ(Format_Number(-0.5, "#.00"), "-.50");
}

TEST(FormatPattern, A_Comma_Groups_The_Digits_In_Front_Of_The_Point_By_Three) {
  const std::pair<double, const char*> cases[] = {{0, ".00"},
                                                  {5, "5.00"},
                                                  {999.994, "999.99"},
                                                  {999.995, "1,000.00"},
                                                  {1234.5, "1,234.50"},
                                                  {-123456, "-123,456.00"},
                                                  {1234567, "1,234,567.00"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(Format_Number(value, "##,###.00"), text);
}

TEST(FormatText, Fills_Character_Positions_From_The_Right) {
  EXPECT_EQ(Format_Text("ab", "@@@@@"), "   ab");
  EXPECT_EQ(Format_Text("abcdefg", "@@@@@"), "abcdefg");
  EXPECT_EQ(Format_Text("", "@@@"), "   ");
  EXPECT_EQ(Format_Text("\xC3\xA9t\xC3\xA9", "@@@@@"), "  \xC3\xA9t\xC3\xA9");
}

TEST(FormatText, Other_Characters_Of_The_Pattern_Stand_As_They_Are) {
  EXPECT_EQ(Format_Number(3600, "@@@@@@@@.0"), "    3600.0");
  EXPECT_EQ(Format_Number(3600.5, "@@@@@@@@.0"), "  3600.5.0");
}

RC_GTEST_PROP(FormatNumber, Keeps_Two_Decimals_Of_Any_Cents, (int cents)) {
  // Built from whole numbers, so the expected text needs no rounding at all.
  const std::string digits = std::to_string(std::abs(static_cast<long long>(cents)) + 1000);
  std::string expected =
      digits.substr(0, digits.size() - 2) + "." + digits.substr(digits.size() - 2);
  const double value = (std::abs(static_cast<double>(cents)) + 1000) / 100.0;
  RC_ASSERT(Format_Number(value, "0.00") == expected);
  RC_ASSERT(Format_Number(-value, "#.00") == "-" + expected);
}

}  // namespace
}  // namespace barvon

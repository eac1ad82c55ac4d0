#include "report/report_numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace barvon {
namespace {

using Texts = std::vector<std::string>;

TEST(ReportNumbers, A_Number_Is_Shown_As_On_Its_Screen) {
  EXPECT_EQ(Whole_Number_Text(60, "#####0.0"), "60.0");
  EXPECT_EQ(Whole_Number_Text(2400, "######0."), "2400");
  EXPECT_EQ(Whole_Number_Text(0, "#.00"), "0.00");
  EXPECT_EQ(Whole_Number_Text(0.5, "#.00"), "0.50");
  EXPECT_EQ(Whole_Number_Text(-0.5, "#.00"), "-0.50");
  EXPECT_EQ(Whole_Number_Text(1.8, ""), "1.8");
}

TEST(ReportNumbers, A_Number_That_The_Screen_Rounds_Has_All_Its_Digits) {
  EXPECT_EQ(Whole_Number_Text(30.66, "#####0.0"), "30.66");
  EXPECT_EQ(Whole_Number_Text(0.25, "####0.0"), "0.25");
  EXPECT_EQ(Whole_Number_Text(0.000001, "#0.00000"), "1E-06");
  EXPECT_EQ(Whole_Number_Text(2400.5, "######0."), "2400.5");
}

TEST(ReportNumbers, What_Is_No_Number_Is_Told) {
  EXPECT_EQ(Whole_Number_Text(std::numeric_limits<double>::infinity(), "0.0"), "inf");
  EXPECT_EQ(Whole_Number_Text(std::numeric_limits<double>::quiet_NaN(), "0.0"), "nan");
}

TEST(ReportNumbers, The_Points_Of_A_Column_Stand_Below_Each_Other) {
  EXPECT_EQ(Column_Texts({2.65, 2.6, 3}), (Texts{"2.65", "2.60", "3.00"}));
  EXPECT_EQ(Column_Texts({900, 1800}), (Texts{"900", "1800"}));
  EXPECT_EQ(Column_Texts({}), Texts{});
}

TEST(ReportNumbers, One_Number_With_Many_Digits_Leaves_The_Others_Short) {
  EXPECT_EQ(Column_Texts({0.5, 0.123456789}), (Texts{"0.5", "0.123456789"}));
  EXPECT_EQ(Column_Texts({0.5, 1e20}), (Texts{"0.5", "1E+20"}));
}

}  // namespace
}  // namespace barvon

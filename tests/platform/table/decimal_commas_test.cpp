#include "platform/table/decimal_commas.h"

#include <gtest/gtest.h>

namespace barvon::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(DecimalCommas, A_Block_Of_Decimal_Comma_Numbers_Tells_Them_In_Order) {
  EXPECT_EQ(Decimal_Comma_Cells({{"1,5", "7", "depth"}, {"", "-0,25"}, {" +3,0E-2 ", "2.5"}}),
            (Texts{"1,5", "-0,25", " +3,0E-2 "}));
  EXPECT_EQ(Decimal_Comma_Cells({{"1,5D3"}}), Texts{"1,5D3"});
}

TEST(DecimalCommas, One_Comma_That_Is_No_Decimal_Point_Leaves_All_Of_Them_Alone) {
  for (const char* other : {"1,200.5", "1,200,000", ",5", "1,", "1,5 ft", "1,5E", "silt, sand", ",",
                            "1 200,5", "--1,5", "-,5"}) {
    EXPECT_EQ(Decimal_Comma_Cells({{"1,5", other}}), Texts{}) << other;
  }
}

TEST(DecimalCommas, A_Block_Without_Commas_Has_None) {
  EXPECT_EQ(Decimal_Comma_Cells({{"1.5", "", "x"}}), Texts{});
  EXPECT_EQ(Decimal_Comma_Cells({}), Texts{});
}

TEST(DecimalCommas, Every_Comma_Becomes_A_Point) {
  EXPECT_EQ(With_Points({{"1,5", "2"}, {"-0,25E-1", "3.5"}}),
            (Text_Block{{"1.5", "2"}, {"-0.25E-1", "3.5"}}));
}

}  // namespace
}  // namespace barvon::testing

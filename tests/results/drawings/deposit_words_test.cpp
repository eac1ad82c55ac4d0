#include "results/drawings/deposit_words.h"

#include <gtest/gtest.h>

namespace barvon::testing {
namespace {

/// Cells of 33 by 100 ft: 3300 ft2.
Cell_Values Deposit() {
  return {.rows = 2, .columns = 2, .spacing_x = 33, .spacing_z = 100, .values = {0, 0.1, 0.2, 0.6}};
}

// 0.9 ft x 3300 ft2 = 2970 ft3 = 110 yd3.
TEST(DepositWords, The_Volume_Is_The_Sum_Over_The_Cells) {
  EXPECT_EQ(Volume_Words(Deposit(), false), "2970 ft3 (110 yd3)");
  EXPECT_EQ(Volume_Words(Deposit(), true), "+2970 ft3 (+110 yd3)");
  Cell_Values less = Deposit();
  for (double& value : less.values) value = -value;
  EXPECT_EQ(Volume_Words(less, true), "-2970 ft3 (-110 yd3)");
}

// Two cells are thicker than 0.1 ft; an acre is 43560 ft2.
TEST(DepositWords, The_Area_Counts_Cells_Above_The_Typed_Thickness) {
  EXPECT_EQ(Area_Words(Deposit(), "0.1"), "6600 ft2 (0.15152 acres)");
  EXPECT_EQ(Area_Words(Deposit(), " 0 "), "9900 ft2 (0.22727 acres)");
  EXPECT_EQ(Area_Words(Deposit(), "0.6"), "0 ft2 (0 acres)");
}

TEST(DepositWords, A_Text_That_Is_No_Thickness_Is_Told) {
  for (const char* text : {"", "abc", "0,1", "1 ft"}) {
    EXPECT_EQ(Area_Words(Deposit(), text), "A thickness in feet is needed, like 0.1.") << text;
  }
  EXPECT_EQ(Area_Words(Deposit(), "-1"), "A thickness below 0 has no area of its own.");
}

}  // namespace
}  // namespace barvon::testing

#include "results/drawings/common_times.h"

#include <gtest/gtest.h>

#include "results/mapped_results.h"

namespace barvon::testing {
namespace {

/// Maps at these times, of the deposit too.
Results At_Times(const std::vector<double>& times) {
  Results results;
  for (const double time : times) {
    results.maps.push_back(Small_Map(time, 1, 10, {0, 0, 0, 1}));
    results.maps.push_back(Small_Map(time, 1, 20, {0, 0, 0, 1}));
    results.beds.push_back(Small_Map(time, 0, 0, {0, 0, 0, 1}));
  }
  return results;
}

TEST(CommonTimes, Nothing_Is_Told_Of_Runs_With_The_Same_Times) {
  const Results one = At_Times({600, 1200});
  EXPECT_EQ(Common_Times_Words(one, one), "");
  EXPECT_EQ(Common_Times_Words(one, At_Times({1200, 600.00001})), "");  // the eighth digit
  EXPECT_EQ(Common_Times_Words({}, {}), "");
}

TEST(CommonTimes, A_Shorter_Run_Leaves_Its_Times) {
  const Results one = At_Times({60, 120, 180}), other = At_Times({60, 120});
  const std::string words =
      "The times in both are 60 s (1 min) and 120 s (2 min). Differences at a time are of these "
      "alone.";
  EXPECT_EQ(Common_Times_Words(one, other), words);
  EXPECT_EQ(Common_Times_Words(other, one), words);
}

TEST(CommonTimes, Times_Between_Each_Other_Leave_None) {
  EXPECT_EQ(Common_Times_Words(At_Times({60, 120}), At_Times({90})),
            "No time is in both outputs. A map has no difference at a time.");
  EXPECT_EQ(Common_Times_Words(At_Times({60}), {}),
            "No time is in both outputs. A map has no difference at a time.");
}

TEST(CommonTimes, A_Deposit_Alone_Has_Times_Too) {
  Results one = At_Times({60, 120}), other = At_Times({60});
  one.maps.clear();
  other.maps.clear();
  EXPECT_EQ(Common_Times_Words(one, other),
            "The time in both is 60 s (1 min). Differences at a time are of this one alone.");
}

TEST(CommonTimes, Many_Are_Told_By_Their_Ends) {
  const std::vector<double> seven{60, 120, 180, 240, 300, 360, 420};
  EXPECT_EQ(Times_Of_Both(seven), "7 times are in both, from 60 s (1 min) to 420 s (7 min).");
  EXPECT_EQ(
      Times_Of_Both(seven, 200),
      "7 times are in both, from 60 s (1 min) to 420 s (7 min); the nearest is 180 s (3 min).");
}

}  // namespace
}  // namespace barvon::testing

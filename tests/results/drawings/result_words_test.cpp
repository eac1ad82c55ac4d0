#include "results/drawings/result_words.h"

#include <gtest/gtest.h>

#include "results/csv_text.h"
#include "results/small_results.h"

namespace barvon::testing {
namespace {

TEST(ResultWords, Times_Are_Told_In_Seconds_And_As_One_Would_Say_Them) {
  EXPECT_EQ(Time_Words(45), "45 s");
  EXPECT_EQ(Time_Words(600), "600 s (10 min)");
  EXPECT_EQ(Time_Words(150), "150 s (2.5 min)");
  EXPECT_EQ(Time_Words(7200), "7200 s (2 h)");
  EXPECT_EQ(Time_Words(9000), "9000 s (2.5 h)");
}

TEST(ResultWords, Projects_Are_Told_Apart) {
  Results own = Small_Results(), other = Small_Results();
  EXPECT_EQ(Project_Name(own), "small");
  other.path = "/work/b/wide.dut";
  EXPECT_EQ(Project_Names(own, other), (std::pair<std::string, std::string>{"small", "wide"}));
  other.path = "/work/b/small.DUI";
  EXPECT_EQ(Project_Names(own, other),
            (std::pair<std::string, std::string>{"small (work)", "small (b)"}));
  other.path = own.path;
  EXPECT_EQ(Project_Names(own, other),
            (std::pair<std::string, std::string>{"small", "small (other)"}));
}

TEST(ResultWords, A_Species_Is_The_Same_By_Name_And_Unit) {
  const Results own = Small_Results();
  Results other = Small_Results();
  std::swap(other.species[0], other.species[1]);
  EXPECT_EQ(Same_Species(other, own, 1), 2);
  EXPECT_EQ(Same_Species(other, own, 2), 1);
  other.species[0].unit = "%";
  EXPECT_EQ(Same_Species(other, own, 2), std::nullopt);
}

TEST(ResultWords, The_Second_Of_A_Name_Is_The_Others_Second) {
  Results own = Small_Results(), other = Small_Results();
  own.species = {{"Sand", "mg/l"}, {"Sand", "mg/l"}};
  other.species = {{"Sand", "mg/l"}, {"Clay", "mg/l"}, {"Sand", "mg/l"}};
  EXPECT_EQ(Same_Species(other, own, 1), 1);
  EXPECT_EQ(Same_Species(other, own, 2), 3);
  EXPECT_EQ(Same_Species(own, other, 3), 2);
  own.species.pop_back();
  EXPECT_EQ(Same_Species(own, other, 3), std::nullopt);
}

TEST(CsvText, Cells_Are_Quoted_Where_They_Must_Be) {
  EXPECT_EQ(Csv_Line({"a", "b,c", "d \"e\""}), "a,\"b,c\",\"d \"\"e\"\"\"\r\n");
  EXPECT_EQ(Csv_Number(0.1), "0.1");
  EXPECT_EQ(Csv_Number(-0.0), "0");
  EXPECT_EQ(Csv_Number(1.0 / 0.0), "");
}

}  // namespace
}  // namespace barvon::testing

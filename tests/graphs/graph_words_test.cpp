#include "graphs/graph_words.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// The clock of a place five hours behind UTC, without summer time.
class GraphWords : public ::testing::Test {
 protected:
  GraphWords() {
    ::setenv("TZ", "EST5", 1);
    ::tzset();
    results.path = "/bay/site.DUI";
    results.title = "Bay of Sand";
    results.made = 1763812980;  // 2025-11-22 12:03 UTC
  }
  ~GraphWords() override {
    ::unsetenv("TZ");
    ::tzset();
  }

  Results results;
};

TEST_F(GraphWords, Times_Are_Those_Of_The_Clock_On_The_Wall) {
  EXPECT_EQ(Clock_Text(1763812980), "2025-11-22 07:03");
  EXPECT_EQ(Clock_Text(0), "1969-12-31 19:00");
}

TEST_F(GraphWords, A_Title_Says_Whose_Results_They_Are_And_Of_When) {
  EXPECT_EQ(Title_Line(results), "Bay of Sand  (site.DUI, run of 2025-11-22 07:03)");
  results.title.clear();
  EXPECT_EQ(Title_Line(results), "site.DUI, run of 2025-11-22 07:03");
}

TEST_F(GraphWords, The_Window_Is_Named_After_The_File) {
  EXPECT_EQ(Window_Caption(""), "BARVON Graphics");
  EXPECT_EQ(Window_Caption("/bay/site.DUI"), "BARVON Graphics - site.DUI");
}

TEST_F(GraphWords, A_Listing_Is_Offered_Where_There_Is_One) {
  Scratch_Folder folder;
  const Result_Problem problem{folder / "site.dut", 3, "no number", false};
  EXPECT_EQ(Notice_Of(problem, folder / "site.DUI").listing, "");
  Write_Text(folder / "SITE.DUO", "listing");
  const Graph_Notice notice = Notice_Of(problem, folder / "site.DUI");
  EXPECT_EQ(notice.listing, folder / "SITE.DUO");
  EXPECT_NE(notice.words.find(problem.Words()), std::string::npos);
}

TEST_F(GraphWords, Another_Solvers_Outputs_Are_Told_Apart_From_Damaged_Ones) {
  Result_Problem problem{"/bay/site.dut", 1, "it begins otherwise", true};
  EXPECT_NE(Notice_Of(problem, "/bay/site.DUI").words.find("are of another solver"),
            std::string::npos);
  problem.foreign = false;
  EXPECT_EQ(Notice_Of(problem, "/bay/site.DUI").words.find("are of another solver"),
            std::string::npos);
}

TEST_F(GraphWords, The_Status_Line_Names_The_Run_That_Is_Shown) {
  EXPECT_EQ(Fresh_Words(results), "New outputs of site.DUI, run of 2025-11-22 07:03");
  const std::string fresh = Fresh_Words(results);
  results.path = "/bay/cove.DUI";
  EXPECT_EQ(Words_Of_Both(fresh, Fresh_Words(results)),
            fresh + "; of cove.DUI, run of 2025-11-22 07:03");
  EXPECT_EQ(Words_Of_Both(fresh, fresh), fresh);
  EXPECT_EQ(Words_Of_Both("", fresh), fresh);
  EXPECT_EQ(Words_Of_Both(fresh, ""), fresh);
  EXPECT_EQ(Words_Of_Both(fresh, "Shown is"), fresh + "; Shown is");
  const Result_Problem problem{"/bay/site.dut", 3, "no number", false};
  EXPECT_EQ(Kept_Words(problem, results),
            "Shown is the run of 2025-11-22 07:03; " + problem.Words());
}

}  // namespace
}  // namespace barvon::testing

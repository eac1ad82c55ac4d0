#include "core/desk/accepted_screen.h"

#include <gtest/gtest.h>

#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

class AcceptedScreen : public Recorded_Workspace {
 protected:
  /// What the main window was told, in order.
  std::vector<std::string> Told_By(const Screen_Row& row, bool blocking,
                                   const Status_Words& words = {}) {
    log_.clear();
    Accept_Screen(row, blocking, record_, words);
    return log_;
  }
  /// The elements of ScreenDataSupplied that are set.
  std::vector<int> Supplied() const {
    std::vector<int> supplied;
    for (int i = 0; i <= 10; ++i) {
      if (record_.ScreenDataSupplied[static_cast<std::size_t>(i)] == kTrue) supplied.push_back(i);
    }
    return supplied;
  }
  using Log = std::vector<std::string>;
};

TEST_F(AcceptedScreen, Tells_Its_Line_Its_Mark_And_Refreshes) {
  EXPECT_EQ(Told_By(Row_Of_Screen("frmOperation"), false),
            (Log{"status 4 Data Supplied blue", "mark 5", "display"}));
  EXPECT_EQ(Supplied(), std::vector<int>{9});
}

TEST_F(AcceptedScreen, Who_Opened_A_Blocking_Screen_Refreshes_By_Himself) {
  EXPECT_EQ(Told_By(Row_Of_Screen("frmOperation"), true),
            (Log{"status 4 Data Supplied blue", "mark 5"}));
}

TEST_F(AcceptedScreen, A_Screen_Without_A_Line_Or_An_Entry_Tells_None) {
  for (const bool blocking : {false, true}) {
    EXPECT_EQ(Told_By(Row_Of_Screen("frmGridDescrip"), blocking), Log{}) << blocking;
  }
  EXPECT_EQ(Supplied(), std::vector<int>{3});
}

TEST_F(AcceptedScreen, The_Water_Density_Refreshes_In_Any_Case) {
  for (const bool blocking : {false, true}) {
    EXPECT_EQ(Told_By(Row_Of_Screen("frmDensity"), blocking), Log{"display"}) << blocking;
  }
  EXPECT_EQ(Supplied(), std::vector<int>{8});
}

TEST_F(AcceptedScreen, A_Screen_May_Have_Words_Of_Its_Own) {
  EXPECT_EQ(Told_By(Row_Of_Screen("frmCoefficients"), true,
                    {"Default Coefficients", Status_Colour::Black}),
            (Log{"status 5 Default Coefficients black", "mark 6"}));
}

TEST_F(AcceptedScreen, Every_Screen_That_Reports_Data_Has_Its_Element) {
  for (const Screen_Row& row : kScreens) {
    record_.ScreenDataSupplied.fill(kFalse);
    Accept_Screen(row, true, record_);
    EXPECT_EQ(Supplied(), row.supplied ? std::vector<int>{*row.supplied} : std::vector<int>{})
        << row.name;
  }
}

}  // namespace
}  // namespace barvon::testing

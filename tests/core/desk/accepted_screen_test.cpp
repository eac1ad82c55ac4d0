#include "core/desk/accepted_screen.h"

#include <gtest/gtest.h>

#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

class AcceptedScreen : public Recorded_Workspace {
 protected:
  /// What the main window was told, in order.
  std::vector<std::string> Told_By(const Screen_Row& row, const Status_Words& words = {}) {
    log_.clear();
    Accept_Screen(row, record_, words);
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

TEST_F(AcceptedScreen, Tells_Its_Line_Its_Mark_And_Refreshes_Whoever_Opened_It) {
  EXPECT_EQ(Told_By(Row_Of_Screen("frmOperation")),
            (Log{"status 4 Data Supplied blue", "mark 5", "display"}));
  EXPECT_EQ(Supplied(), std::vector<int>{9});
}

TEST_F(AcceptedScreen, A_Screen_Without_A_Line_Or_An_Entry_Tells_None) {
  EXPECT_EQ(Told_By(Row_Of_Screen("frmGridDescrip")), Log{"display"});
  EXPECT_EQ(Supplied(), std::vector<int>{3});
  EXPECT_EQ(Told_By(Row_Of_Screen("frmDensity")), Log{"display"});
}

TEST_F(AcceptedScreen, A_Screen_May_Have_Words_Of_Its_Own) {
  EXPECT_EQ(
      Told_By(Row_Of_Screen("frmCoefficients"), {"Default Coefficients", Status_Colour::Black}),
      (Log{"status 5 Default Coefficients black", "mark 6", "display"}));
}

TEST_F(AcceptedScreen, Data_That_Is_Only_Supplied_Has_No_Mark_And_No_Refresh) {
  log_.clear();
  Supply_Screen(Row_Of_Screen("frmMatBarge"), record_);
  EXPECT_EQ(log_, Log{"status 3 Data Supplied blue"});
  EXPECT_EQ(Supplied(), std::vector<int>{7});
}

TEST_F(AcceptedScreen, Every_Screen_That_Reports_Data_Has_Its_Element) {
  for (const Screen_Row& row : kScreens) {
    record_.ScreenDataSupplied.fill(kFalse);
    Accept_Screen(row, record_);
    EXPECT_EQ(Supplied(), row.supplied ? std::vector<int>{*row.supplied} : std::vector<int>{})
        << row.name;
  }
}

}  // namespace
}  // namespace barvon::testing

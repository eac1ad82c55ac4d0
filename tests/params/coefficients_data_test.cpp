#include "params/coefficients_data.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "platform/table/spreadsheet_edits.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

class CoefficientsData : public ::testing::Test {
 protected:
  CoefficientsData() { Set_Project_Defaults(record_); }

  void Fill(std::int16_t method = kHopper) {
    record_.DisposalMethod = method;
    Fill_Coefficients(record_, table_);
    *before_ = record_;
  }
  void Accept() { record_.ScreenDataSupplied[10] = kTrue; }
  std::string Row(int row) const {
    std::string cells;
    for (int col = 1; col <= kCoefficientColumns; ++col) cells += table_.ShownRC(row, col) + "|";
    return cells;
  }
  Cell_Look Look(int row, int col = kCurrentColumn) const {
    return Look_Of_Coefficient(table_, record_, row, col);
  }
  Names Changed() const { return Differing_Fields(*before_, record_); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
  Spreadsheet_Table table_{kBookNumbers};
};

TEST_F(CoefficientsData, A_New_Project_Starts_With_The_Defaults_Of_Its_Method) {
  Fill(kHopper);
  EXPECT_EQ(table_.MaxRow(), 14);
  EXPECT_EQ(Row(3), "Drag Coefficient For a Sphere|CD|0.50000|0.50000|");
  EXPECT_EQ(Row(14), "Stripping Factor|CSTRIP|0.00300|0.00300|");
  Fill(kContinuous);
  EXPECT_EQ(table_.MaxRow(), 15);
  EXPECT_EQ(Row(3), "Drag Coefficient for a Cylinder|CD|1.30000|1.30000|");
  EXPECT_EQ(Row(15), "Entrainment Due to Element Collapse|ALPHA4|0.00100|0.00100|");
}

TEST_F(CoefficientsData, The_Table_Is_Headed_And_Only_Current_Values_Can_Be_Typed) {
  Fill();
  const Names headings = {"DESCRIPTION", "KEYWORD", "DEFAULT VALUE", "CURRENT VALUE"};
  for (int col = 1; col <= kCoefficientColumns; ++col) {
    EXPECT_EQ(table_.ColText(col), headings[static_cast<std::size_t>(col - 1)]);
    EXPECT_EQ(table_.StyleRC(1, col).centred, col > 1) << col;
    EXPECT_EQ(Can_Edit(table_, 1, col), col == kCurrentColumn) << col;
  }
  EXPECT_EQ(table_.Selection(), "D1");
}

TEST_F(CoefficientsData, Values_From_A_File_Stand_Alone_Until_Defaults_Are_Asked_For) {
  record_.WizardAccepted = kTrue;
  record_.CD = 0.123456;
  Fill();
  EXPECT_EQ(Row(3), "Drag Coefficient For a Sphere|CD||0.12346|");
  Fill_Defaults(record_, table_);
  EXPECT_EQ(Row(3), "Drag Coefficient For a Sphere|CD|0.50000|0.50000|");
}

TEST_F(CoefficientsData, Accepted_Values_Stand_Beside_The_Defaults) {
  record_.CD = 0.6;
  Accept();
  Fill();
  EXPECT_EQ(Row(3), "Drag Coefficient For a Sphere|CD|0.50000|0.60000|");
  record_.WizardAccepted = kTrue;
  Fill();
  EXPECT_EQ(Row(3), "Drag Coefficient For a Sphere|CD|0.50000|0.60000|");
}

TEST_F(CoefficientsData, The_Defaults_Are_One_Step_Of_Undo) {
  record_.WizardAccepted = kTrue;
  record_.CD = 0.6;
  record_.CM = 1.5;
  Fill();
  EXPECT_FALSE(table_.CanUndo());
  Fill_Defaults(record_, table_);
  table_.Undo();
  EXPECT_EQ(Row(2), "Apparent Mass Coefficient|CM||1.50000|");
  EXPECT_EQ(Row(3), "Drag Coefficient For a Sphere|CD||0.60000|");
  EXPECT_FALSE(table_.CanUndo());
}

TEST_F(CoefficientsData, A_Value_That_Is_Not_The_Default_Is_Bold_And_Tells_It) {
  record_.WizardAccepted = kTrue;  // the column of defaults is empty
  record_.CD = 0.6;
  Fill();
  EXPECT_EQ(Look(3), (Cell_Look{true, false, "0.6 is not the default, 0.5"}));
  EXPECT_EQ(Look(4), Cell_Look());
  EXPECT_EQ(Look(3, kDescriptionColumn), Cell_Look());
  table_.TextRC(3, kCurrentColumn, ".50");
  EXPECT_EQ(Look(3), Cell_Look());
}

TEST_F(CoefficientsData, A_Value_Without_Physical_Sense_Warns) {
  Fill();
  table_.TextRC(3, kCurrentColumn, "-0.5");
  EXPECT_EQ(Look(3), (Cell_Look{true, true,
                                "-0.5 is not the default, 0.5. "
                                "Below 0 it has no physical sense"}));
  table_.NumberRC(4, kCurrentColumn, std::numeric_limits<double>::infinity());
  EXPECT_TRUE(Look(4).warned);
  table_.TextRC(3, kCurrentColumn, "0");
  EXPECT_FALSE(Look(3).warned);
}

TEST_F(CoefficientsData, An_Empty_Cell_Is_0) {
  Fill();
  table_.TextRC(3, kCurrentColumn, "");
  EXPECT_TRUE(Look(3).bold);
  EXPECT_TRUE(Look(3).warned);
  EXPECT_EQ(Look(3).tip, "Empty, stored as 0");
  Save_Data(table_, record_);
  EXPECT_EQ(record_.CD, 0);
}

TEST_F(CoefficientsData, A_Save_Takes_The_Rows_Of_The_Method_And_No_Other) {
  record_.DataSaved = kTrue;
  Fill(kBarge);
  for (int row = 1; row <= table_.MaxRow(); ++row) table_.NumberRC(row, kCurrentColumn, 10 + row);
  Save_Data(table_, record_);
  EXPECT_EQ(Changed(), (Names{"DataSaved", "BETA", "CM", "CD", "CDRAG", "CFRIC", "CD3", "CD4",
                              "FRICTN", "ALAMDA", "AKY0", "GAMA", "ALPHA0", "ALPHAC", "CSTRIP"}));
  EXPECT_EQ(record_.BETA, 11);
  EXPECT_EQ(record_.ALPHA0, 22);
  EXPECT_EQ(record_.CSTRIP, 24);
  Fill(kContinuous);
  for (int row = 1; row <= table_.MaxRow(); ++row) table_.NumberRC(row, kCurrentColumn, 30 + row);
  Save_Data(table_, record_);
  EXPECT_EQ(record_.GAMA, 41);
  EXPECT_EQ(record_.ALPHA1, 42);
  EXPECT_EQ(record_.ALPHA4, 45);
  EXPECT_EQ(record_.ALPHA0, 22);
}

TEST_F(CoefficientsData, A_Value_Nobody_Touched_Keeps_Its_Digits) {
  record_.WizardAccepted = kTrue;
  record_.ALAMDA = 0.00123456789;
  Fill();
  Save_Data(table_, record_);
  EXPECT_EQ(record_.ALAMDA, 0.00123456789);
}

TEST_F(CoefficientsData, A_Method_Without_Rows_Stores_No_Coefficient) {
  for (const std::int16_t method : {0, 4}) {
    Fill(method);
    EXPECT_EQ(table_.MaxRow(), 0);
    Fill_Defaults(record_, table_);
    Save_Data(table_, record_);
    EXPECT_EQ(Changed(), Names{});
  }
}

TEST_F(CoefficientsData, The_Choice_Of_The_Pritchard_Expression_Is_Unsaved_Data) {
  record_.DataSaved = kTrue;
  Choose_Pritchard(true, record_);
  EXPECT_EQ(record_.PritchardFlag, 1);
  EXPECT_EQ(record_.DataSaved, kFalse);
  Choose_Pritchard(false, record_);
  EXPECT_EQ(record_.PritchardFlag, 0);
}

}  // namespace
}  // namespace barvon::testing

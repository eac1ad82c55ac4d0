#include "site/density_table.h"

#include <gtest/gtest.h>

#include <memory>

#include "site/site_support.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Cells = std::vector<std::string>;

class DensityTable : public ::testing::Test {
 protected:
  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(DensityTable, Has_Two_Columns_Or_Four_With_Their_Headings_And_Widths) {
  Spreadsheet_Table table(kBookNumbers);
  Lay_Out_Density_Table(false, table);
  EXPECT_EQ(table.MaxCol(), 2);
  EXPECT_EQ(table.ColText(1), "Depth (ft)");
  EXPECT_EQ(table.ColText(2), "Density (g/cc)");
  Lay_Out_Density_Table(true, table);
  EXPECT_EQ(table.MaxCol(), 4);
  EXPECT_EQ(table.ColText(1), "Depth (ft)");
  EXPECT_EQ(table.ColText(2), "Salinity (ppt)");
  EXPECT_EQ(table.ColText(3), "Temp (celsius)");
  EXPECT_EQ(table.ColText(4), "Density (g/cc)");
  for (int column = 1; column <= 4; ++column) EXPECT_EQ(table.ColWidth(column), 3650);
}

TEST_F(DensityTable, Depths_Show_One_Decimal_And_Densities_Four_And_Both_Keep_The_Rest) {
  record_.DensityDepths = {0, 0, 30.64};
  record_.Densities = {0, 1.02345, 1.024};
  Spreadsheet_Table table(kBookNumbers);
  Lay_Out_Density_Table(false, table);
  table.MaxRow(2);
  Fill_Density_Table(record_, 2, false, table);
  EXPECT_EQ(Shown_Column(table, 1), (Cells{"0.0", "30.6"}));
  EXPECT_EQ(Shown_Column(table, 2), (Cells{"1.0235", "1.0240"}));
  EXPECT_EQ(table.NumberRC(2, 1), 30.64);
  EXPECT_EQ(table.NumberRC(1, 2), 1.02345);
}

TEST_F(DensityTable, Salinity_And_Temperature_Show_One_Decimal) {
  record_.DensitySalinities = {0, 35.25};
  record_.DensityTemperatures = {0, 18};
  Spreadsheet_Table table(kBookNumbers);
  Lay_Out_Density_Table(true, table);
  Fill_Density_Table(record_, 1, true, table);
  EXPECT_EQ(table.ShownRC(1, 2), "35.3");
  EXPECT_EQ(table.ShownRC(1, 3), "18.0");
}

TEST_F(DensityTable, A_Fill_Takes_No_More_Rows_Than_The_Record_Has_Points) {
  record_.DensityDepths[5] = 50;
  Spreadsheet_Table table(kBookNumbers);
  Lay_Out_Density_Table(false, table);
  Fill_Density_Table(record_, 1000, false, table);
  EXPECT_EQ(table.NumberRC(5, 1), 50);
  EXPECT_TRUE(table.IsEmptyRC(6, 1));
  Fill_Density_Table(record_, -3, false, table);
}

TEST_F(DensityTable, Densities_Are_Read_Back_As_Shown_With_Four_Decimals) {
  // Sea water of 35 ppt and 10 deg C weighs 1.027006 g/cc at the surface and 1.028389 at 1000 ft.
  const auto table = Computed_Profile({{0, 35, 10}, {1000, 35, 10}});
  EXPECT_TRUE(Compute_Density_Table(*table, record_));
  EXPECT_EQ(Shown_Column(*table, 4), (Cells{"1.0270", "1.0284"}));
  EXPECT_EQ(record_.Densities[1], 1.027);
  EXPECT_EQ(record_.Densities[2], 1.0284);
  EXPECT_EQ(record_.DensityDepths[2], 1000);
  EXPECT_EQ(record_.DensitySalinities[2], 35);
  EXPECT_EQ(record_.DensityTemperatures[1], 10);
  EXPECT_EQ(record_.DensityComputeFlag, kTrue);
}

TEST_F(DensityTable, Text_That_Is_No_Number_Counts_As_0_In_A_Computation) {
  // Fresh water of 4 deg C weighs 1.000038 g/cc.
  const auto table = Computed_Profile({{0, 0, 4}, {0, 0, 0}});
  table->TextRC(1, 2, "salt");
  EXPECT_TRUE(Compute_Density_Table(*table, record_));
  EXPECT_EQ(table->ShownRC(1, 4), "1.0000");
}

TEST_F(DensityTable, Water_Without_A_Density_Is_Refused_In_Words_And_Changes_Nothing) {
  // At -67.26 deg C the formula divides by zero.
  const auto table = Computed_Profile({{0, 35, 10}, {20, 35, -67.26}});
  table->TextRC(1, 4, "1.0111");
  record_.Densities = {0, 1.01, 1.02};
  record_.DensityDepths = {0, 3, 4};
  const auto before = std::make_unique<ProjectRecord>(record_);
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Compute_Density_Table(*table, record_));
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "The Density of Point 2 Can Not Be Computed.  Please Correct Its Salinity or "
            "Temperature.");
  EXPECT_EQ(Differing_Fields(*before, record_), std::vector<std::string>{});
  EXPECT_EQ(Shown_Column(*table, 4), (Cells{"1.0111", ""}));
}

TEST_F(DensityTable, More_Rows_Than_Points_Are_Refused_In_Words_And_Change_Nothing) {
  const auto table = Computed_Profile(
      {{0, 35, 10}, {1, 35, 10}, {2, 35, 10}, {3, 35, 10}, {4, 35, 10}, {5, 35, 10}});
  const auto before = std::make_unique<ProjectRecord>(record_);
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Compute_Density_Table(*table, record_));
  EXPECT_EQ(messages.shown.at(0).text,
            "Density Is Computed for at Most 5 Points.  Please Correct the Number of Density "
            "Points First.");
  EXPECT_EQ(Differing_Fields(*before, record_), std::vector<std::string>{});
  EXPECT_TRUE(table->IsEmptyRC(1, 4));
}

}  // namespace
}  // namespace barvon::testing

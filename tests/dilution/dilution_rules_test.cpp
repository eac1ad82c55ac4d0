#include "dilution/dilution_rules.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <memory>

#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

/// One row of a list with 50 g/L of solids, so that a sediment's ug/kg divided by 20 are ug/L.
class DilutionRules : public ::testing::Test {
 protected:
  DilutionRules() {
    record.DiluteSolidsConc = 50;
    record.DiluteRowCount = 1;
  }

  void Expect_Elutriate(double concentration, double criterion, double background, double dilution,
                        const char* remark) {
    record.DiluteElutriate[1] = concentration;
    record.DiluteCriteria[1] = criterion;
    record.DiluteBackground[1] = background;
    EXPECT_EQ(Calc_Elut(record, 1), dilution);
    EXPECT_EQ(record.DiluteElutDilution[1], dilution);
    EXPECT_EQ(record.DiluteElutRemark[1], remark);
    record.DiluteBulk[1] = concentration * 20;
    EXPECT_EQ(Calc_Bulk(record, 1), dilution);
    EXPECT_EQ(record.DiluteBulkWaterConc[1], concentration);
    EXPECT_EQ(record.DiluteBulkDilution[1], dilution);
    EXPECT_EQ(record.DiluteBulkRemark[1], remark);
  }

  std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
};

TEST_F(DilutionRules, A_Criterion_Between_Background_And_Concentration_Takes_Its_Dilution) {
  Expect_Elutriate(26, 10, 2, 2, "       ");
  Expect_Elutriate(50, 10, 2, 5, "       ");
}

TEST_F(DilutionRules, A_Concentration_Up_To_The_Criterion_Needs_None) {
  Expect_Elutriate(10, 10, 2, 0, "       ");
  Expect_Elutriate(5, 10, 20, 0, "       ");
  Expect_Elutriate(-3, -2, 0, 0, "       ");
  Expect_Elutriate(0, 0, 0, 0, "       ");
}

TEST_F(DilutionRules, A_Criterion_Of_Zero_Or_Less_Cannot_Be_Met) {
  Expect_Elutriate(5, 0, 0, 9999999, "C = 0.0");
  Expect_Elutriate(5, 0, -1, 9999999, "C = 0.0");
  Expect_Elutriate(5, -1, -2, 9999999, "C = 0.0");
  Expect_Elutriate(5, -1, 2, 9999999, "C = 0.0");
}

TEST_F(DilutionRules, A_Criterion_Not_Above_The_Background_Cannot_Be_Met) {
  Expect_Elutriate(5, 2, 2, 9999999, "C < B");
  Expect_Elutriate(5, 2, 3, 9999999, "C < B");
}

TEST_F(DilutionRules, The_Solids_Carry_The_Sediment_Into_The_Water) {
  record.DiluteBulk[1] = 1000;
  record.DiluteCriteria[1] = 50;
  EXPECT_EQ(Calc_Bulk(record, 1), 0);
  EXPECT_EQ(record.DiluteBulkWaterConc[1], 50);
}

TEST_F(DilutionRules, Without_Solids_Nothing_Is_Computed_And_The_User_Is_Told) {
  record.DiluteBulk[1] = 1000;
  record.DiluteBulkDilution[1] = 7;
  for (const double solids : {0.0, -1.0}) {
    Scripted_Messages messages({Answer::Ok});
    EXPECT_FALSE(Compute_Dilutions(solids, record));
    EXPECT_EQ(messages.shown.at(0).text,
              "Provide a Solids Concentration Greater Than Zero for the Dredged Material Being "
              "Disposed.");
    EXPECT_EQ(messages.shown.at(0).title, "BARVON");
    EXPECT_EQ(messages.shown.at(0).icon, Icon::Warning);
    EXPECT_EQ(record.DiluteSolidsConc, solids);
    EXPECT_EQ(record.DiluteBulkDilution[1], 7);
  }
}

TEST_F(DilutionRules, An_Empty_List_Computes_Nothing_And_Succeeds) {
  Scripted_Messages messages;
  record.DiluteRowCount = 0;
  const auto before = std::make_unique<ProjectRecord>(record);
  EXPECT_TRUE(Compute_Dilutions(40, record));
  EXPECT_EQ(Differing_Fields(*before, record), std::vector<std::string>{"DiluteSolidsConc"});
}

TEST_F(DilutionRules, Every_Row_Of_The_List_Is_Computed_And_None_Behind_It) {
  record.DiluteRowCount = 500;
  for (std::size_t i = 1; i <= 500; ++i) {
    record.DiluteElutriate[i] = 10 + static_cast<double>(i);
    record.DiluteCriteria[i] = 10;
    record.DiluteBackground[i] = 9;
  }
  ASSERT_TRUE(Compute_Dilutions(50, record));
  EXPECT_EQ(record.DiluteElutDilution[1], 1);
  EXPECT_EQ(record.DiluteElutDilution[500], 500);
  record.DiluteRowCount = 499;
  record.DiluteElutriate[499] = record.DiluteElutriate[500] = 12;
  ASSERT_TRUE(Compute_Dilutions(50, record));
  EXPECT_EQ(record.DiluteElutDilution[499], 2);
  EXPECT_EQ(record.DiluteElutDilution[500], 500);
}

TEST_F(DilutionRules, Results_Are_Known_To_Be_Those_Of_Their_Values) {
  record.DiluteBulk[1] = 1000;
  record.DiluteElutriate[1] = 26;
  record.DiluteCriteria[1] = 10;
  record.DiluteBackground[1] = 2;
  EXPECT_FALSE(List_Is_Computed(record));
  ASSERT_TRUE(Compute_Dilutions(50, record));
  EXPECT_TRUE(List_Is_Computed(record));
  record.DiluteSolidsConc = 60;
  EXPECT_FALSE(Bulk_Is_Computed(record, 1));
  EXPECT_TRUE(Elutriate_Is_Computed(record, 1));
  EXPECT_FALSE(List_Is_Computed(record));
}

// A result of 0 looks like one that was never computed; the remark tells them apart.
TEST_F(DilutionRules, A_Row_That_Was_Never_Computed_Is_Not_Computed) {
  EXPECT_FALSE(Elutriate_Is_Computed(record, 1));
  ASSERT_TRUE(Compute_Dilutions(50, record));
  EXPECT_TRUE(Elutriate_Is_Computed(record, 1));
}

// Mixing one part with the dilution's parts of ambient water gives the criterion.
TEST_F(DilutionRules, The_Diluted_Material_Just_Meets_Its_Criterion) {
  EXPECT_TRUE(rc::check([this] {
    const double background = *rc::gen::inRange(0, 1000);
    const double criterion = background + *rc::gen::inRange(1, 1000);
    const double concentration = criterion + *rc::gen::inRange(1, 100000);
    record.DiluteElutriate[1] = concentration;
    record.DiluteCriteria[1] = criterion;
    record.DiluteBackground[1] = background;
    const double parts = Calc_Elut(record, 1);
    const double mixed = (concentration + parts * background) / (1 + parts);
    RC_ASSERT(std::abs(mixed - criterion) < 1e-9 * criterion);
  }));
}

}  // namespace
}  // namespace barvon::testing

#include "site/site_data.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "core/desk/workspace_port.h"
#include "core/project_defaults.h"
#include "core/wizard_answers.h"
#include "site/site_support.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Names = std::vector<std::string>;

class SiteData : public ::testing::Test {
 protected:
  SiteData() {
    Reset_Port();
    Set_Project_Defaults(record_);
    Port().board.paint_velocity_option = [this](int index, Status_Colour colour) {
      painted_.push_back(std::to_string(index) +
                         (colour == Status_Colour::Blue ? " blue" : " black"));
    };
  }
  ~SiteData() override {
    Reset_Port();
    Answers_Of_Wizard() = {};
  }

  /// Text1(index) of a sound site, with one other text.
  static Site_Entry Entry(int index = -1, const std::string& text = "") {
    Site_Entry entry;
    int field = 0;
    for (const char* sound : {"40", "20", "100", "50", "30.6", "0.005", "0.5", "-0.25", "2"}) {
      entry.texts("Text1", field++) = sound;
    }
    if (index >= 0) entry.texts("Text1", index) = text;
    return entry;
  }

  void Save(const Site_Entry& entry) {
    const Scripted_Messages none;
    SaveSiteData(entry, *profile_, record_);
  }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
  std::unique_ptr<Spreadsheet_Table> profile_ = Typed_Profile({{0, 1.02}, {30.6, 1.024}});
  Names painted_;
};

TEST_F(SiteData, A_Save_Takes_Every_Field) {
  record_.DataSaved = kTrue;
  record_.DistX = 11;
  record_.DistZ = 12;
  Save(Entry());
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(record_.NMAX0, 40);
  EXPECT_EQ(record_.MMAX0, 20);
  EXPECT_EQ(record_.DZ0, 100);
  EXPECT_EQ(record_.DX0, 50);
  EXPECT_EQ(record_.DEPC0, 30.6);
  EXPECT_EQ(record_.ConstantDepthFlag, 1);
  EXPECT_EQ(record_.RHDA0, 0.005);
  EXPECT_EQ(record_.SLOPEX0, 0.5);
  EXPECT_EQ(record_.SLOPEZ0, -0.25);
  EXPECT_EQ(record_.NROA0, 2);
  EXPECT_EQ(record_.DensityDepths[2], 30.6);
  EXPECT_EQ(record_.Densities[1], 1.02);
  EXPECT_EQ(record_.DistX, 11) << "the dimensions are those of the last edit";
  EXPECT_EQ(record_.DistZ, 12);
}

TEST_F(SiteData, Grid_Counts_Are_Cut_And_Held_Without_A_Word) {
  const std::pair<const char*, int> counts[] = {
      {"97", 96}, {"5", 8},    {"8", 8},  {"96", 96},    {"95.9", 95}, {"7.9", 8},
      {"", 8},    {"many", 8}, {"-3", 8}, {"1e300", 96}, {"40000", 96}};
  for (const auto& [typed, count] : counts) {
    Save(Entry(kZPoints, typed));
    EXPECT_EQ(record_.NMAX0, count) << typed;
    Save(Entry(kXPoints, typed));
    EXPECT_EQ(record_.MMAX0, count) << typed;
  }
}

TEST_F(SiteData, Density_Points_Are_Rounded_Half_To_Even_And_Held) {
  const std::pair<const char*, int> counts[] = {{"1", 2},   {"1.9", 2}, {"2.5", 2}, {"3.5", 4},
                                                {"4.4", 4}, {"4.6", 5}, {"5", 5},   {"97", 5},
                                                {"", 2},    {"-1", 2}};
  for (const auto& [typed, count] : counts) {
    Save(Entry(kDensityPoints, typed));
    EXPECT_EQ(record_.NROA0, count) << typed;
  }
}

TEST_F(SiteData, A_Text_That_Does_Not_Begin_With_A_Number_Is_0) {
  for (const int field : {kZSpacing, kXSpacing, kConstantDepth, kRoughness, kXSlope, kZSlope}) {
    Save(Entry(field, "none"));
  }
  Save(Entry(kRoughness, "x1"));
  EXPECT_EQ(record_.RHDA0, 0);
}

TEST_F(SiteData, A_Variable_Depth_Stores_0_As_The_Constant_One) {
  Site_Entry entry = Entry();
  entry.variable_depth = true;
  Save(entry);
  EXPECT_EQ(record_.DEPC0, 0);
  EXPECT_EQ(record_.ConstantDepthFlag, 0);
}

TEST_F(SiteData, With_Computed_Densities_Four_Columns_Are_Stored_And_Rows_Beyond_Are_Kept) {
  profile_ = Computed_Profile({{0, 31, 11}, {20, 32, 12}});
  profile_->TextRC(2, 4, "1.0250");
  record_.Densities[3] = 9;
  Site_Entry entry = Entry();
  entry.computes_density = true;
  Save(entry);
  EXPECT_EQ(record_.DensityDepths[2], 20);
  EXPECT_EQ(record_.DensitySalinities[2], 32);
  EXPECT_EQ(record_.DensityTemperatures[1], 11);
  EXPECT_EQ(record_.Densities[2], 1.025);
  EXPECT_EQ(record_.Densities[3], 9);
}

TEST_F(SiteData, Without_Computed_Densities_Salinities_And_Temperatures_Are_Kept) {
  record_.DensitySalinities[1] = 31;
  record_.DensityTemperatures[1] = 11;
  Save(Entry());
  EXPECT_EQ(record_.DensitySalinities[1], 31);
  EXPECT_EQ(record_.DensityTemperatures[1], 11);
}

struct Text_Case {
  int field;
  const char* text;
  const char* told;
  bool goes_on;
};

TEST_F(SiteData, Each_Change_Of_A_Field_Has_Its_Own_Check) {
  const char* const kTooMany = "Number of Grid Points Exceeds Maximum of 96";
  const char* const kLow = "Roughness Height May Be Too Low";
  const char* const kHigh = "Roughness Height May Be Too High";
  const char* const kPoints = "Number of Density Points Must Be Between 2 and 5";
  const Text_Case cases[] = {{kZPoints, "97", kTooMany, false},
                             {kXPoints, "97", kTooMany, false},
                             {kZPoints, "96.5", kTooMany, false},
                             {kZPoints, "96", "", true},
                             {kZPoints, "5", "", true},
                             {kXPoints, "", "", true},
                             {kXPoints, "-400", "", true},
                             {kZSpacing, "9999", "", true},
                             {kConstantDepth, "-9", "", true},
                             {kRoughness, "0.001", "", true},
                             {kRoughness, "0.0009", kLow, true},
                             {kRoughness, "0.0005", kLow, true},
                             {kRoughness, "-1", kLow, true},
                             {kRoughness, "0", "", true},
                             {kRoughness, "", "", true},
                             {kRoughness, "0.05", "", true},
                             {kRoughness, "0.0501", kHigh, true},
                             {kXSlope, "99", "", true},
                             {kDensityPoints, "1", kPoints, false},
                             {kDensityPoints, "6", kPoints, false},
                             {kDensityPoints, "", kPoints, false},
                             {kDensityPoints, "5.1", kPoints, false},
                             {kDensityPoints, "2", "", true},
                             {kDensityPoints, "5", "", true}};
  for (const Text_Case& c : cases) {
    const bool tells = *c.told != '\0';
    Scripted_Messages messages(std::vector<Answer>(tells ? 1 : 0, Answer::Ok));
    EXPECT_EQ(Check_Site_Text(c.field, c.text), c.goes_on) << c.field << " " << c.text;
    ASSERT_EQ(messages.shown.size(), tells ? 1u : 0u) << c.field << " " << c.text;
    if (!tells) continue;
    EXPECT_EQ(messages.shown[0].text, c.told);
    EXPECT_EQ(messages.shown[0].title, "BARVON");
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
  }
}

TEST_F(SiteData, The_Tables_Rows_Are_The_Count_Rounded_Half_To_Even) {
  const std::pair<const char*, int> counts[] = {{"2", 2},
                                                {"2.5", 2},
                                                {"3.5", 4},
                                                {"4.6", 5},
                                                {"", 0},
                                                {"-5", 0},
                                                {"1e300", Spreadsheet_Table::kSheetRows}};
  for (const auto& [typed, rows] : counts) EXPECT_EQ(Density_Rows(typed), rows) << typed;
}

TEST_F(SiteData, Dimensions_Are_One_Spacing_Less_Than_The_Points) {
  Store_Dimensions(Entry(), record_);
  EXPECT_EQ(record_.DistZ, 3900);  // (40 - 1) x 100
  EXPECT_EQ(record_.DistX, 950);   // (20 - 1) x 50
  Store_Dimensions(Entry(kZPoints, ""), record_);
  EXPECT_EQ(record_.DistZ, -100);
  record_.NMAX0 = 11;
  record_.DZ0 = 2.5;
  Store_Dimensions(record_);
  EXPECT_EQ(record_.DistZ, 25);
}

TEST_F(SiteData, A_Dimension_Is_Never_A_Negative_Zero) {
  Site_Entry entry = Entry(kZPoints, "0");
  entry.texts("Text1", kZSpacing) = "0";
  Store_Dimensions(entry, record_);
  EXPECT_FALSE(std::signbit(record_.DistZ));
}

TEST_F(SiteData, A_Variable_Depth_Takes_The_Two_Point_Profile_Away_And_A_Constant_One_Brings_It) {
  record_.VelocityProfileType = 3;
  Choose_Variable_Depth(true, record_);
  EXPECT_EQ(record_.ConstantDepthFlag, 0);
  EXPECT_EQ(record_.VelocityProfileType, 0);
  EXPECT_EQ(painted_, Names{"1 black"});
  Choose_Variable_Depth(false, record_);
  EXPECT_EQ(record_.ConstantDepthFlag, 1);
  EXPECT_EQ(record_.VelocityProfileType, 3);
  EXPECT_EQ(painted_, (Names{"1 black", "1 blue"}));
}

TEST_F(SiteData, Other_Velocity_Profiles_Stay_Whatever_The_Depth) {
  for (const double type : {1, 2, 4, 5}) {
    record_.VelocityProfileType = type;
    Choose_Variable_Depth(true, record_);
    Choose_Variable_Depth(false, record_);
    EXPECT_EQ(record_.VelocityProfileType, type);
  }
  EXPECT_EQ(painted_, Names{});
}

TEST_F(SiteData, Opening_Shows_Roughness_And_Density_Points_Brought_In_And_Stores_Nothing) {
  const std::pair<int, int> counts[] = {{0, 2}, {1, 2}, {2, 2}, {5, 5}, {6, 5}, {-7, 2}};
  for (const auto& [stored, held] : counts) {
    record_.NROA0 = static_cast<std::int16_t>(stored);
    EXPECT_EQ(Opening_Texts(record_)("Text1", kDensityPoints), std::to_string(held));
    EXPECT_EQ(Density_Points(record_), held);
    EXPECT_EQ(record_.NROA0, stored);
  }
  EXPECT_EQ(Opening_Texts(record_)("Text1", kRoughness), "0.00500");
  EXPECT_EQ(record_.RHDA0, 0);
  record_.RHDA0 = 0.0002;
  EXPECT_EQ(Opening_Texts(record_)("Text1", kRoughness), "0.00020");
  record_.DEPC0 = 12;
  Answers_Of_Wizard().water_depth = "60";
  Store_Wizard_Depth(record_);
  EXPECT_EQ(record_.DEPC0, 12) << "the wizard is not open";
}

TEST_F(SiteData, Slopes_Are_Those_Of_Hopper_And_Barge) {
  const std::pair<int, bool> methods[] = {{0, false}, {1, true}, {2, false}, {3, true}, {4, false}};
  record_.SLOPEX0 = 0.5;
  record_.SLOPEZ0 = -0.25;
  for (const auto& [method, has_slopes] : methods) {
    record_.DisposalMethod = static_cast<std::int16_t>(method);
    EXPECT_EQ(Fill_Fields(Site_Fields(), record_)("Text1", kXSlope), has_slopes ? "0.50" : "0");
    EXPECT_EQ(Fill_Fields(Site_Fields(), record_)("Text1", kZSlope), has_slopes ? "-0.25" : "0");
  }
}

TEST_F(SiteData, The_Wizards_Water_Becomes_A_Profile_Of_Two_Points_Its_Degrees_Taken_As_They_Are) {
  record_.WizardActive = kTrue;
  record_.NROA0 = 4;
  Answers_Of_Wizard() = {"2400", "1000", "10", "35", 0};
  Store_Wizard_Depth(record_);
  EXPECT_EQ(record_.DEPC0, 1000);
  Store_Wizard_Densities(record_);
  EXPECT_EQ(record_.NROA0, 2);
  EXPECT_EQ(record_.DensityComputeFlag, kTrue);
  EXPECT_EQ(record_.DensityDepths[1], 0);
  EXPECT_EQ(record_.DensityDepths[2], 1000);
  for (int i = 1; i <= 2; ++i) {
    EXPECT_EQ(record_.DensitySalinities[i], 35);
    EXPECT_EQ(record_.DensityTemperatures[i], 10);
  }
  // 35 ppt and 10 degrees weigh 1.027006 g/cc at the surface and 1.028389 at 1000 ft.
  EXPECT_NEAR(record_.Densities[1], 1.027006, 5e-7);
  EXPECT_NEAR(record_.Densities[2], 1.028389, 5e-7);
}

TEST_F(SiteData, Without_The_Wizard_The_Profile_Is_The_Records) {
  Answers_Of_Wizard() = {"2400", "1000", "10", "35", 0};
  const auto before = std::make_unique<ProjectRecord>(record_);
  Store_Wizard_Densities(record_);
  EXPECT_EQ(Differing_Fields(*before, record_), Names{});
}

TEST_F(SiteData, Water_Of_The_Wizard_Without_A_Density_Is_Told_And_The_Densities_Stay) {
  record_.WizardActive = kTrue;
  record_.Densities = {0, 1.01, 1.02};
  Answers_Of_Wizard() = {"2400", "60", "-67.26", "35", 0};
  Scripted_Messages messages({Answer::Ok});
  Store_Wizard_Densities(record_);
  EXPECT_EQ(messages.shown.at(0).text,
            "The Density of Point 1 Can Not Be Computed.  Please Correct Its Salinity or "
            "Temperature.");
  EXPECT_EQ(record_.Densities[1], 1.01);
  EXPECT_EQ(record_.Densities[2], 1.02);
  EXPECT_EQ(record_.DensityTemperatures[2], -67.26);
}

TEST_F(SiteData, Cancel_Restores_Its_Nine_Fields_And_No_Others) {
  const Site_Copy copy = Copy_Site(Entry(), record_);
  const auto before = std::make_unique<ProjectRecord>(record_);
  Save(Entry());
  Store_Dimensions(Entry(), record_);
  Choose_Variable_Depth(true, record_);
  Reset_Vars(copy, record_);
  EXPECT_EQ(Differing_Fields(*before, record_),
            (Names{"DistX", "DistZ", "ConstantDepthFlag", "DensityDepths", "Densities"}));
}

TEST_F(SiteData, Cancel_After_A_Save_Leaves_Something_To_Save) {
  record_.SavedUnderScreens = kTrue;
  const Site_Copy copy = Copy_Site(Entry(), record_);
  record_.DataSaved = kTrue;
  Reset_Vars(copy, record_);
  EXPECT_EQ(record_.DataSaved, kTrue);
  record_.DX0 += 1;
  Reset_Vars(copy, record_);
  EXPECT_EQ(record_.DataSaved, kFalse);
}

RC_GTEST_PROP(SiteDataProperty, A_Saved_Site_Is_Always_Within_Its_Limits, ()) {
  const auto record = std::make_unique<ProjectRecord>();
  const auto table = Typed_Profile({{0, 1}, {1, 1}});
  Site_Entry entry;
  for (int field = 0; field < kSiteFields; ++field) {
    entry.texts("Text1", field) = *rc::gen::string<std::string>();
  }
  entry.texts("Text1", kZPoints) = std::to_string(*rc::gen::arbitrary<int>());
  entry.texts("Text1", kDensityPoints) = std::to_string(*rc::gen::arbitrary<int>());
  SaveSiteData(entry, *table, *record);
  RC_ASSERT(record->NMAX0 >= 8 && record->NMAX0 <= 96);
  RC_ASSERT(record->MMAX0 >= 8 && record->MMAX0 <= 96);
  RC_ASSERT(record->NROA0 >= 2 && record->NROA0 <= 5);
}

}  // namespace
}  // namespace barvon::testing

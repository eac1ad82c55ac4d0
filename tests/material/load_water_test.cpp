#include "material/load_water.h"

#include <gtest/gtest.h>

#include "material/open_hopper_boxes.h"
#include "support/record_differences.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

class LoadWater : public Recorded_Workspace {
 protected:
  LoadWater() { record_.SiteDensity = 1.02; }
  ~LoadWater() override { Set_Open_Hopper_Boxes({}); }

  static Field_Texts Typed(const char* density, const char* salinity, const char* temperature) {
    Field_Texts texts;
    texts("Text3", kLoadDensity) = density;
    texts("Text3", kLoadSalinity) = salinity;
    texts("Text3", kLoadTemperature) = temperature;
    return texts;
  }
};

TEST_F(LoadWater, Opens_By_Its_Patterns) {
  record_.SiteDensity = 0.98;
  record_.SiteSalinity = 12.345;
  record_.SiteTemperature = 0;
  const Field_Texts texts = Fill_Fields(Water_Fields(), record_);
  EXPECT_EQ(texts("Text3", kLoadDensity), ".9800");
  EXPECT_EQ(texts("Text3", kLoadSalinity), "12.35");
  EXPECT_EQ(texts("Text3", kLoadTemperature), ".00");
  EXPECT_EQ(Computed_Density_Text(record_)("Text3", kLoadDensity), "0.9800");
}

TEST_F(LoadWater, The_Boxes_Are_Read_In_32_Bits_And_Held_On_The_Barge_Alone) {
  EXPECT_FALSE(Type_Water(Typed("", "0", "20"), false, record_));
  EXPECT_EQ(record_.SiteDensity, 1.02);
  EXPECT_TRUE(Type_Water(Typed("", "35", "20"), false, record_));
  EXPECT_NEAR(record_.SiteDensity, 1.025060, 5e-7);
  EXPECT_TRUE(Type_Water(Typed("", "90", "4"), false, record_));
  EXPECT_GT(record_.SiteDensity, 1.05);
  EXPECT_TRUE(Type_Water(Typed("", "0", "4"), true, record_));
  EXPECT_EQ(record_.SiteDensity, 1.05);
}

TEST_F(LoadWater, A_Closed_Hopper_Screen_Is_Stood_For_By_The_Records_Numbers) {
  record_.SiteSalinity = 35;
  record_.SiteTemperature = 20;
  Compute_Density(record_);
  EXPECT_NEAR(record_.SiteDensity, 1.025060, 5e-7);
  Set_Open_Hopper_Boxes(Hopper_Boxes{0, 20});
  Compute_Density(record_);
  EXPECT_NEAR(record_.SiteDensity, 0.998267, 5e-7);
  EXPECT_EQ(record_.SiteSalinity, 0);
}

TEST_F(LoadWater, A_Computed_Density_Beyond_The_Limits_Is_Told) {
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Set_Open_Hopper_Boxes(Hopper_Boxes{0, 90});
  Compute_Density(record_);
  EXPECT_EQ(record_.SiteDensity, 0.972);
  Set_Open_Hopper_Boxes(Hopper_Boxes{90, 4});
  Compute_Density(record_);
  EXPECT_EQ(record_.SiteDensity, 1.05);
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(messages.shown[0].text,
            "Minimum Allowable Dredging Site Water Density is 0.972 g/cc.  Site Water Density Will "
            "Be Set to 0.972 g/cc.");
}

TEST_F(LoadWater, Water_Without_A_Density_Is_Told_And_Changes_Nothing) {
  const auto before = std::make_unique<ProjectRecord>(record_);
  Scripted_Messages messages({Answer::Ok});
  Set_Open_Hopper_Boxes(Hopper_Boxes{0, -67.26});
  Compute_Density(record_);
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(Differing_Fields(*before, record_), std::vector<std::string>{});
}

TEST_F(LoadWater, Both_Limits_Pass_At_OK_And_What_Is_Beyond_Does_Not) {
  for (const char* passes : {"0.972", "1.05"}) {
    EXPECT_TRUE(Water_Density_Fits(Typed(passes, "", ""), record_)) << passes;
  }
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  EXPECT_FALSE(Water_Density_Fits(Typed("0.9719", "", ""), record_));
  EXPECT_FALSE(Water_Density_Fits(Typed("1.0501", "", ""), record_));
  EXPECT_EQ(messages.shown[0].text,
            "Minimum Allowable Dredging Site Water Density is 0.972 g/cc.  Please Correct.");
}

}  // namespace
}  // namespace barvon::testing

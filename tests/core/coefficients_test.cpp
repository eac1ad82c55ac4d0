#include "core/coefficients.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "core/keys.h"
#include "core/project_defaults.h"

namespace barvon::testing {
namespace {

std::string Keywords_Of(std::int16_t method) {
  std::string keywords;
  for (const Coefficient& one : Coefficients_Of(method)) keywords += one.keyword + std::string(" ");
  return keywords;
}

TEST(Coefficients, Each_Method_Has_Its_Own_In_The_Order_Of_The_Table) {
  const std::string vessel =
      "BETA CM CD CDRAG CFRIC CD3 CD4 FRICTN ALAMDA AKY0 GAMA ALPHA0 ALPHAC CSTRIP ";
  EXPECT_EQ(Keywords_Of(kHopper), vessel);
  EXPECT_EQ(Keywords_Of(kBarge), vessel);
  EXPECT_EQ(Keywords_Of(kContinuous),
            "BETA CM CD CDRAG CFRIC CD3 CD4 FRICTN ALAMDA AKY0 GAMA ALPHA1 ALPHA2 ALPHA3 ALPHA4 ");
  for (const std::int16_t none : {-1, 0, 4}) EXPECT_TRUE(Coefficients_Of(none).empty());
}

TEST(Coefficients, The_Cloud_Of_A_Pipeline_Is_A_Cylinder) {
  EXPECT_STREQ(Coefficients_Of(kHopper)[2].description, "Drag Coefficient For a Sphere");
  EXPECT_EQ(Coefficients_Of(kHopper)[2].default_value, 0.5);
  EXPECT_STREQ(Coefficients_Of(kContinuous)[2].description, "Drag Coefficient for a Cylinder");
  EXPECT_EQ(Coefficients_Of(kContinuous)[2].default_value, 1.3);
}

TEST(Coefficients, Defaults_Follow_The_Method) {
  std::vector<double> pipeline;
  for (const Coefficient& one : Coefficients_Of(kContinuous)) pipeline.push_back(one.default_value);
  EXPECT_EQ(pipeline, (std::vector<double>{0, 1, 1.3, 1, 0.01, 0.2, 2, 0.01, 0.005, 0.05, 0.25,
                                           0.0806, 0.3536, 0.3536, 0.001}));
}

TEST(Coefficients, A_New_Project_Has_The_Defaults_Of_A_Vessel) {
  const auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  for (const std::int16_t method : {kHopper, kBarge}) {
    record->DisposalMethod = method;
    EXPECT_TRUE(Has_Default_Coefficients(*record));
  }
  record->DisposalMethod = kContinuous;
  EXPECT_FALSE(Has_Default_Coefficients(*record));
  record->DisposalMethod = kHopper;
  record->ALPHA1 = 7;  // which no vessel has
  EXPECT_TRUE(Has_Default_Coefficients(*record));
  record->CSTRIP = 0.0031;
  EXPECT_FALSE(Has_Default_Coefficients(*record));
}

TEST(Coefficients, What_Is_Below_0_Makes_No_Sense_And_No_Mass_Is_Less_Than_Its_Own) {
  const auto vessel = Coefficients_Of(kHopper);
  EXPECT_TRUE(Makes_Sense(vessel[2], 0));
  EXPECT_FALSE(Makes_Sense(vessel[2], -1e-9));
  EXPECT_TRUE(Makes_Sense(vessel[1], 1));
  EXPECT_FALSE(Makes_Sense(vessel[1], 0.99));
  EXPECT_FALSE(Makes_Sense(vessel[2], std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(Makes_Sense(vessel[2], std::numeric_limits<double>::quiet_NaN()));
}

}  // namespace
}  // namespace barvon::testing

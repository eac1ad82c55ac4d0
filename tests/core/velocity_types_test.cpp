#include "core/velocity_types.h"

#include <gtest/gtest.h>

#include <iterator>

namespace barvon {
namespace {

TEST(VelocityTypes, Each_Type_Has_Its_Form) {
  EXPECT_EQ(Form_Of_Type(1), kSingleForm);
  EXPECT_EQ(Form_Of_Type(2), kSingleForm);
  EXPECT_EQ(Form_Of_Type(3), kTwoPointForm);
  EXPECT_EQ(Form_Of_Type(4), kFieldForm);
  EXPECT_EQ(Form_Of_Type(5), kUnsteadyForm);
  for (const double none : {0.0, -1.0, 6.0, 2.5}) EXPECT_EQ(Form_Of_Type(none), kNoForm);
}

TEST(VelocityTypes, Each_Form_Has_Its_Type_Option_And_Name) {
  const struct {
    double type;
    const char* option;
    const char* name;
  } forms[] = {{1, "Single Depth Averaged Velocity", "Single Depth Averaged Velocity"},
               {3, "2-Point Velocity Profile For Constant Depth",
                "2-Point Velocity Profile for a Constant Depth Grid"},
               {4, "Variable Velocity Field", "Variable Velocity Field for Entire Grid"},
               {5, "Unsteady Velocity Profile",
                "Unsteady Velocity for Single Depth (Tidal Velocity Profile)"}};
  ASSERT_EQ(std::size(forms), kVelocityForms);
  for (int i = 0; i < kVelocityForms; ++i) {
    const auto form = static_cast<Velocity_Form>(i);
    EXPECT_EQ(Type_Of_Form(form), forms[i].type);
    EXPECT_STREQ(Option_Of_Form(form), forms[i].option);
    EXPECT_STREQ(Name_Of_Form(form), forms[i].name);
  }
  EXPECT_EQ(Type_Of_Form(kNoForm), 0);
  EXPECT_STREQ(Option_Of_Form(kNoForm), "");
  EXPECT_STREQ(Name_Of_Form(kNoForm), "");
}

}  // namespace
}  // namespace barvon

#include "core/project_file/project_image.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>

namespace barvon {
namespace {

bool Same(const Image_Number& a, const Image_Number& b) {
  return a.part == b.part && a.first == b.first && a.second == b.second;
}

TEST(NumberNamed, Is_Every_Number_By_Its_Own_Name) {
  for (const Image_Number& number : Image_Numbers()) {
    const auto found = Number_Named(Name_Of_Number(number));
    ASSERT_TRUE(found && Same(*found, number)) << Name_Of_Number(number);
  }
}

TEST(NumberNamed, Is_Nothing_For_A_Name_That_Is_Not_Spelled_So) {
  for (const char* name : {"",
                           "(",
                           "RealSlots",
                           "RealSlots(",
                           "RealSlots()",
                           "RealSlots(0)",
                           "RealSlots(9386)",
                           "RealSlots(-1)",
                           "RealSlots(07)",
                           "RealSlots(+7)",
                           "RealSlots( 7)",
                           "RealSlots(7",
                           "RealSlots(7) ",
                           "RealSlots(7,1)",
                           "RealSlots(99999999999999999999)",
                           "realslots(7)",
                           "VelocityFieldX(3)",
                           "VelocityFieldX(3,97)",
                           "VelocityFieldX(97,3)",
                           "VelocityFieldX(3,0)",
                           "VelocityFieldX(3 ,7)",
                           "TidalVelX(27)",
                           "TidalVelX(1,2)",
                           "TidalVelZ",
                           "TidalVelZ(0)",
                           "TidalDepth(1)",
                           "KEY4(0)",
                           "SolidNames(1)"}) {
    EXPECT_FALSE(Number_Named(name)) << name;
  }
}

RC_GTEST_PROP(NumberNamed, Is_Nothing_Or_The_Number_Of_That_Very_Name, ()) {
  std::string name = Name_Of_Number(*rc::gen::elementOf(Image_Numbers()));
  const auto at = *rc::gen::inRange<std::size_t>(0, name.size());
  const char letter = *rc::gen::elementOf(std::string("0123456789,()XZ "));
  if (*rc::gen::arbitrary<bool>()) {
    name[at] = letter;
  } else {
    name.insert(at, 1, letter);
  }
  const auto found = Number_Named(name);
  if (found) RC_ASSERT(Name_Of_Number(*found) == name);
}

TEST(ImageRows, Are_All_Numbers_In_Their_Order) {
  const auto image = std::make_unique<Project_Image>();
  double next = 0;
  for (const Image_Number& number : Image_Numbers()) Number_In(*image, number) = ++next;
  double expected = 0;
  for (const Number_Row& row : Image_Rows()) {
    EXPECT_EQ(Index_Of(row.first), static_cast<std::size_t>(expected));
    for (const double number : Row_In(*image, row)) ASSERT_EQ(number, ++expected);
  }
  EXPECT_EQ(expected, next);
}

}  // namespace
}  // namespace barvon

#include "platform/text/letter_case.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(LetterCase, Case_Is_Ignored_For_Letters_Of_The_Alphabet) {
  EXPECT_EQ(Upper_Case("site.dui"), "SITE.DUI");
  EXPECT_TRUE(Equal_Ignoring_Case("Tmpfile.Due", "TMPFILE.DUE"));
  EXPECT_FALSE(Equal_Ignoring_Case("a", "ab"));
}

TEST(LetterCase, Every_Other_Byte_Stays) {
  EXPECT_EQ(Upper_Case("@[`{ \xC3\xA4 1"), "@[`{ \xC3\xA4 1");
  EXPECT_FALSE(Equal_Ignoring_Case("\xC3\xA4", "\xC3\x84"));
}

}  // namespace
}  // namespace barvon

#include "core/text_tools.h"
#include "platform/files/paths.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(TextTools, Fields_Pad_And_Never_Cut) {
  EXPECT_EQ(Right_Justified("12", 5), "   12");
  EXPECT_EQ(Left_Justified("12", 5), "12   ");
  EXPECT_EQ(Right_Justified("1234567", 5), "1234567");
  EXPECT_EQ(Left_Justified("\xC3\xA9", 3), "\xC3\xA9  ");
}

TEST(TextTools, FitField_Cuts_Only_What_Is_Longer) {
  EXPECT_EQ(FitField("12345678901", 10), "1234567890");
  EXPECT_EQ(FitField("123", 10), "123");
  EXPECT_EQ(FitField("\xC3\xA9\xC3\xA9\xC3\xA9", 2), "\xC3\xA9\xC3\xA9");
}

TEST(TextTools, Trimming_Takes_Blanks_Only) {
  EXPECT_EQ(Trimmed("  a b "), "a b");
  EXPECT_EQ(Trimmed_Right("  a b "), "  a b");
  EXPECT_EQ(Trimmed("   "), "");
  EXPECT_EQ(Trimmed("\ta"), "\ta");
}

TEST(TextTools, Base_Name_Is_The_Path_Up_To_The_Last_Dot_Of_Its_Name) {
  EXPECT_EQ(Base_Name("/sites/bay.one/SITE.A.DUI"), "/sites/bay.one/SITE.A");
  EXPECT_EQ(Base_Name("/sites/bay.one/SITE"), "/sites/bay.one/SITE");
  EXPECT_EQ(With_Extension("/sites/bay.one/SITE", "DUE"), "/sites/bay.one/SITE.DUE");
  EXPECT_EQ(With_Extension("SITE.dui", "DUE"), "SITE.DUE");
}

TEST(TextTools, Remove_Character_Leaves_Text_Alone_For_An_Empty_Character) {
  EXPECT_EQ(Remove_Character("a&b&c", "&"), "abc");
  EXPECT_EQ(Remove_Character("a&b", ""), "a&b");
  EXPECT_EQ(Remove_Character("", "x"), "");
}

}  // namespace
}  // namespace barvon

#include "pictures/shapes/lettering.h"

#include <gtest/gtest.h>

#include "pictures/shapes/svg_writer.h"

namespace barvon {
namespace {

TEST(Lettering, Wide_Letters_Take_More_And_A_Character_Of_Many_Bytes_Counts_Once) {
  EXPECT_LT(Text_Width("iii", 10), Text_Width("nnn", 10));
  EXPECT_LT(Text_Width("nnn", 10), Text_Width("WWW", 10));
  EXPECT_DOUBLE_EQ(Text_Width("n", 20), 2 * Text_Width("n", 10));
  EXPECT_DOUBLE_EQ(Text_Width("\xC3\xA9", 10), Text_Width("e", 10));
  EXPECT_EQ(Text_Width("", 10), 0);
}

TEST(Lettering, Lines_Break_At_Blanks_And_No_Word_Is_Cut) {
  const double width = Text_Width("one two", 10);
  EXPECT_EQ(Wrapped("one two three\nfour", 10, width),
            (std::vector<std::string>{"one two", "three", "four"}));
  EXPECT_EQ(Wrapped("incomprehensible", 10, 1), std::vector<std::string>{"incomprehensible"});
  EXPECT_TRUE(Wrapped("", 10, 100).empty());
  EXPECT_TRUE(Wrapped(" \n ", 10, 100).empty());
}

TEST(Lettering, A_Note_Makes_The_Picture_Higher_And_Lies_In_The_New_Part) {
  Shape_List picture{200, 100, "", "", {}};
  Add_Note(picture, "", 10);
  EXPECT_EQ(picture.height, 100);
  Add_Note(picture, "one\ntwo", 10);
  ASSERT_EQ(picture.shapes.size(), 2u);
  for (const Shape& shape : picture.shapes) {
    const auto& text = std::get<Text_Shape>(shape);
    EXPECT_GT(text.place.y - text.size, 100);
    EXPECT_LT(text.place.y, picture.height);
  }
}

}  // namespace
}  // namespace barvon

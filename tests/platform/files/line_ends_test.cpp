#include "platform/files/line_ends.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace barvon {
namespace {

TEST(LineEnds, Each_Kind_Becomes_One_Line_Feed) {
  EXPECT_EQ(With_Line_Feeds("a\r\nb\nc\rd\r\r\n\n"), "a\nb\nc\nd\n\n\n");
  EXPECT_EQ(With_Line_Feeds(""), "");
  EXPECT_EQ(With_Line_Feeds("\r"), "\n");
}

TEST(LineEnds, The_Prevailing_One_Is_The_Most_Frequent_And_Of_Equals_The_First) {
  EXPECT_EQ(Prevailing_Line_End("a\nb\r\nc\r\n"), "\r\n");
  EXPECT_EQ(Prevailing_Line_End("a\nb\r\n"), "\n");
  EXPECT_EQ(Prevailing_Line_End("a\rb\r\n"), "\r");
  EXPECT_EQ(Prevailing_Line_End("no end"), "\r\n") << "as in the program's own files";
}

TEST(LineEnds, A_Text_With_One_Kind_Keeps_It_For_New_Lines) {
  EXPECT_EQ(With_Former_Line_Ends("a\nb", "a\nnew\nb"), "a\nnew\nb");
  EXPECT_EQ(With_Former_Line_Ends("a\r\nb", "a\nnew\nb"), "a\r\nnew\r\nb");
  EXPECT_EQ(With_Former_Line_Ends("a\rb", "a\nb\n"), "a\rb\r");
  EXPECT_EQ(With_Former_Line_Ends("", "a\nb"), "a\r\nb");
}

TEST(LineEnds, A_Last_End_Is_Neither_Added_Nor_Taken) {
  EXPECT_EQ(With_Former_Line_Ends("a\r\nb", "a\nbc"), "a\r\nbc");
  EXPECT_EQ(With_Former_Line_Ends("a\r\nb\r\n", "a\nbc\n"), "a\r\nbc\r\n");
  EXPECT_EQ(With_Former_Line_Ends("a\r\nb\r\n", "a\nb"), "a\r\nb");
}

TEST(LineEnds, In_A_Mixed_Text_Each_Line_Keeps_Its_Own) {
  const std::string mixed = "one\r\ntwo\nthree\rfour\r\n\nsix";
  EXPECT_EQ(With_Former_Line_Ends(mixed, "one\ntwo\nthree\nfour\n\nsix"), mixed);
  EXPECT_EQ(With_Former_Line_Ends(mixed, "one\ntwo, typed over\nthree\nfour\n\nsix"),
            "one\r\ntwo, typed over\nthree\rfour\r\n\nsix");
  EXPECT_EQ(With_Former_Line_Ends(mixed, "zero\none\ntwo\nthree\nfour\n\nsix"),
            "zero\r\none\r\ntwo\nthree\rfour\r\n\nsix");
  EXPECT_EQ(With_Former_Line_Ends(mixed, "one\nthree\nfour\n\nsix"), "one\r\nthree\rfour\r\n\nsix");
  EXPECT_EQ(With_Former_Line_Ends(mixed, "one\ntwo\nthree\nfour\n\nsix\n"), mixed + "\r\n")
      << "a line that had none gets the prevailing one";
}

TEST(LineEnds, Two_Edits_Far_Apart_Leave_The_Lines_Between_Them_Alone) {
  std::string mixed, edited, expected;
  for (int i = 0; i < 1000; ++i) {
    const std::string line = "line " + std::to_string(i);
    const std::string end = i % 3 == 0 ? "\r\n" : "\n";
    mixed += line + end;
    if (i == 10) {
      edited += "new\n";
      expected += "new\n";  // most lines end so
    }
    edited += line + (i == 900 ? "!" : "") + "\n";
    expected += line + (i == 900 ? "!" : "") + end;
  }
  EXPECT_EQ(With_Former_Line_Ends(mixed, edited), expected);
}

TEST(LineEnds, A_Text_That_Is_Another_One_Altogether_Is_Done_In_Time) {
  std::string mixed, edited;
  for (int i = 0; i < 50000; ++i) {
    mixed += std::to_string(i) + (i % 2 == 0 ? "\n" : "\r\n");
    edited += std::to_string(-i) + "\n";
  }
  const std::string text = With_Former_Line_Ends(mixed, edited);
  EXPECT_EQ(With_Line_Feeds(text), edited);
}

RC_GTEST_PROP(LineEnds, A_Text_With_Nothing_Edited_Comes_Out_As_It_Was, ()) {
  const auto text =
      *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab\r\n\n\r \0", 8)));
  RC_ASSERT(With_Former_Line_Ends(text, With_Line_Feeds(text)) == text);
}

RC_GTEST_PROP(LineEnds, Whatever_Is_Edited_Keeps_Its_Lines, ()) {
  const auto letters = rc::gen::elementOf(std::string("ab\r\n\n"));
  const auto former = *rc::gen::container<std::string>(letters);
  const auto edited = With_Line_Feeds(*rc::gen::container<std::string>(letters));
  RC_ASSERT(With_Line_Feeds(With_Former_Line_Ends(former, edited)) == edited);
}

}  // namespace
}  // namespace barvon

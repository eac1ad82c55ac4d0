#include "platform/files/text_content.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace barvon {
namespace {

using namespace std::string_literals;

std::string Through_Memory(const std::string& bytes) {
  return Bytes_Of(Content_Of(bytes)).value_or("nothing");
}

TEST(TextContent, Tells_The_Encodings_Apart) {
  EXPECT_EQ(Encoding_Of(""), Text_Encoding::ASCII);
  EXPECT_EQ(Encoding_Of("plain\r\n\0\f"s), Text_Encoding::ASCII);
  EXPECT_EQ(Encoding_Of("caf\xE9"), Text_Encoding::Windows_1252);
  EXPECT_EQ(Encoding_Of("caf\xC3\xA9"), Text_Encoding::UTF8);
  EXPECT_EQ(Encoding_Of("\xEF\xBB\xBF"), Text_Encoding::UTF8_With_Mark);
  EXPECT_EQ(Encoding_Of("\xEF\xBB\xBFplain"), Text_Encoding::UTF8_With_Mark);
  EXPECT_EQ(Encoding_Of("\xEF\xBB\xBF\xE9"), Text_Encoding::Windows_1252) << "no UTF-8 behind it";
}

TEST(TextContent, Holds_The_Characters_Without_The_Mark) {
  EXPECT_EQ(Content_Of("caf\xE9\x80").text, "caf\xC3\xA9\xE2\x82\xAC");
  EXPECT_EQ(Content_Of("\xEF\xBB\xBF\xC3\xA9\r\n").text, "\xC3\xA9\r\n");
}

TEST(TextContent, Every_Byte_Comes_Back) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  for (const std::string& bytes :
       {""s, all, "a\nb"s, "a\r\nb\r\n"s, "\0\0x\0"s, "caf\xC3\xA9\n"s, "\xEF\xBB\xBF\n"s,
        "\xEF\xBB\xBF\xC3\xA9t"s, "\x81\x8D\x8F\x90\x9D"s}) {
    EXPECT_EQ(Through_Memory(bytes), bytes);
  }
}

TEST(TextContent, A_Letter_That_The_Encoding_Lacks_Is_Not_Written_As_Another) {
  const std::string alpha = "\xCE\xB1";
  EXPECT_EQ(Bytes_Of({Text_Encoding::Windows_1252, alpha}), std::nullopt);
  EXPECT_EQ(Bytes_Of({Text_Encoding::UTF8, alpha}), alpha);
  EXPECT_EQ(Bytes_Of({Text_Encoding::UTF8_With_Mark, alpha}), "\xEF\xBB\xBF" + alpha);
}

TEST(TextContent, A_Plain_Text_Takes_The_Encoding_That_Its_First_Letters_Need) {
  EXPECT_EQ(Bytes_Of({Text_Encoding::ASCII, "caf\xC3\xA9"}), "caf\xE9");
  EXPECT_EQ(Bytes_Of({Text_Encoding::ASCII, "\xCE\xB1"}), "\xCE\xB1");
}

TEST(TextContent, Lines_Too_Long_And_Characters_That_An_Editor_Loses_Are_Only_Read) {
  EXPECT_TRUE(Can_Be_Edited(""));
  EXPECT_TRUE(Can_Be_Edited("a\0b\f\t\xC2\xA0"s));
  EXPECT_TRUE(Can_Be_Edited(std::string(kLongestEditedLine, 'x') + "\n"));
  EXPECT_FALSE(Can_Be_Edited("\n" + std::string(kLongestEditedLine + 1, 'x')));
  EXPECT_FALSE(Can_Be_Edited("a\xE2\x80\xA9"));  // paragraph separator
  EXPECT_FALSE(Can_Be_Edited("a\xEF\xB7\x90"));
  EXPECT_FALSE(Can_Be_Edited("\xEF\xBB\xBFsecond mark"));
}

RC_GTEST_PROP(TextContent, Any_Bytes_Come_Back, ()) {
  const auto bytes = *rc::gen::arbitrary<std::string>();
  RC_ASSERT(Through_Memory(bytes) == bytes);
}

}  // namespace
}  // namespace barvon

#include "platform/files/text_encoding.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace barvon {
namespace {

TEST(TextEncoding, One_Byte_A_Character) {
  EXPECT_EQ(To_File_Bytes("\xC3\xA9"), "\xE9");      // e acute
  EXPECT_EQ(To_File_Bytes("\xE2\x82\xAC"), "\x80");  // euro sign
  EXPECT_EQ(To_File_Bytes("\xE2\x80\x93"), "\x96");  // en dash
  EXPECT_EQ(From_File_Bytes("\x80"), "\xE2\x82\xAC");
  EXPECT_EQ(From_File_Bytes("\xFF"), "\xC3\xBF");
}

TEST(TextEncoding, What_Has_No_Byte_Becomes_A_Question_Mark) {
  EXPECT_EQ(To_File_Bytes("\xC5\x82"), "?");          // l with stroke
  EXPECT_EQ(To_File_Bytes("\xF0\x9F\x8C\x8A"), "?");  // beyond the basic plane
  EXPECT_EQ(To_File_Bytes("a\xE9"
                          "b"),
            "a?b");  // no UTF-8
  EXPECT_FALSE(Fits_File_Encoding("\xC5\x82"));
  EXPECT_FALSE(Fits_File_Encoding("\xE9"));
  EXPECT_TRUE(Fits_File_Encoding("Rh\xC3\xB4ne \xE2\x82\xAC"));
}

TEST(TextEncoding, Every_Byte_Survives_The_Way_Through_Memory) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  EXPECT_EQ(To_File_Bytes(From_File_Bytes(bytes)), bytes);
}

TEST(TextEncoding, Settings_Hold_Paths_Of_Any_Alphabet) {
  EXPECT_EQ(To_Settings_Bytes("/mar/Rh\xC3\xB4ne"), "/mar/Rh\xF4ne");
  EXPECT_EQ(To_Settings_Bytes("/odra/\xC5\x82"
                              "acha"),
            "/odra/\xC5\x82"
            "acha");
  for (const char* text : {"plain", "Rh\xC3\xB4ne", "\xC5\x82", "\xC3\x83\xC2\xA9"}) {
    EXPECT_EQ(From_Settings_Bytes(To_Settings_Bytes(text)), text);
  }
}

RC_GTEST_PROP(TextEncoding, No_Bytes_Make_It_Fail, (std::string bytes)) {
  RC_ASSERT(To_File_Bytes(From_File_Bytes(bytes)) == bytes);
  RC_ASSERT(To_File_Bytes(bytes).size() <= bytes.size());
}

}  // namespace
}  // namespace barvon

#include "core/number_reading.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "core/format_pattern.h"
#include "core/number_text.h"

namespace barvon {
namespace {

struct Case {
  std::string typed;
  std::string note;
};

TEST(RealNote, Is_Silent_On_The_Many_Ways_To_Write_One_Number) {
  for (const char* typed : {"62",
                            "62.50",
                            " 62 ",
                            "\t62\t",
                            "+5",
                            "-5",
                            "5.",
                            ".5",
                            "-.5",
                            "+.5",
                            "0",
                            "0.000",
                            "-0",
                            "007",
                            "1e3",
                            "1E3",
                            "1d3",
                            "1D3",
                            "1E+03",
                            "1.5D-3",
                            "0e999",
                            "0.1234567890123456789",
                            "32768",
                            "1e300",
                            "4.94065645841247E-324"}) {
    EXPECT_EQ(Real_Note(typed), "") << typed;
  }
}

TEST(RealNote, Tells_What_Is_Read_When_Something_Else_Is_Typed) {
  const std::vector<Case> cases = {
      {"62,5", "reads as 62"},     // decimal comma
      {"1,200", "reads as 1"},     // thousands
      {"1O0", "reads as 1"},       // letter O
      {"O.5", "reads as 0"},       // in front
      {"l00", "reads as 0"},       // letter l
      {"1l", "reads as 1"},        // behind
      {"1 200", "reads as 1"},     // blank inside
      {"6 2", "reads as 6"},       //
      {"- 5", "reads as 0"},       // blank behind the sign
      {"45 ft", "reads as 45"},    // a unit
      {"about 45", "reads as 0"},  //
      {"1.2.3", "reads as 1.2"},   //
      {"5-", "reads as 5"},        //
      {"--5", "reads as 0"},       //
      {"1e", "reads as 1"},        // an exponent without digits
      {"1e+", "reads as 1"},       //
      {"0x10", "reads as 0"},      //
      {"1E3.5", "reads as 1000"},  //
      {"$5", "reads as 0"},        //
      {"5%", "reads as 5"},        //
      {"\xC2\xA0"
       "62",
       "reads as 0"},                 // a blank that is no blank
      {"62\xC2\xA0", "reads as 62"},  //
      {"\xE2\x88\x92"
       "5",
       "reads as 0"},         // a minus sign that is no hyphen
      {".", "reads as 0"},    //
      {"-", "reads as 0"},    //
      {"nan", "reads as 0"},  //
      {"inf", "reads as 0"},  //
  };
  for (const Case& c : cases) EXPECT_EQ(Real_Note(c.typed), c.note) << c.typed;
}

TEST(RealNote, A_Blank_Field_Reads_As_0) {
  EXPECT_EQ(Real_Note(""), "reads as 0");
  EXPECT_EQ(Real_Note("   "), "reads as 0");
  EXPECT_EQ(Real_Note("\t"), "reads as 0");
}

TEST(RealNote, A_Number_Beyond_The_Range_Reads_As_0) {
  EXPECT_EQ(Real_Note("1e999"), "reads as 0");
  EXPECT_EQ(Real_Note("-1e309"), "reads as 0");
  EXPECT_EQ(Real_Note("1e-400"), "reads as 0");
  EXPECT_EQ(Real_Note("1e99999999999999999999"), "reads as 0");
  EXPECT_EQ(Real_Note(std::string(400, '9')), "reads as 0");
}

TEST(WholeNote, Tells_What_Rounding_Half_To_Even_Gives) {
  EXPECT_EQ(Whole_Note("62.4"), "reads as 62");
  EXPECT_EQ(Whole_Note("62.6"), "reads as 63");
  EXPECT_EQ(Whole_Note("0.5"), "reads as 0");
  EXPECT_EQ(Whole_Note("1.5"), "reads as 2");
  EXPECT_EQ(Whole_Note("2.5"), "reads as 2");
  EXPECT_EQ(Whole_Note("-1.5"), "reads as -2");
  EXPECT_EQ(Whole_Note("62,6"), "reads as 62");
  EXPECT_EQ(Whole_Note("62.6 ft"), "reads as 63");
  EXPECT_EQ(Whole_Note(""), "reads as 0");
}

TEST(WholeNote, Is_Silent_On_Whole_Numbers_However_Written) {
  for (const char* typed :
       {"62", "62.", "62.0", " 62 ", "+62", "0", "-3", "1e3", "6.2E1", "32767", "-32768"}) {
    EXPECT_EQ(Whole_Note(typed), "") << typed;
    EXPECT_EQ(Cut_Note(typed), "") << typed;
  }
}

TEST(WholeNote, A_Number_Beyond_Sixteen_Bits_Is_Announced_Before_Reading_It_Fails) {
  const std::string words = "can't be read: a whole number from -32768 to 32767 belongs here";
  for (const char* typed : {"32768", "-32769", "99999", "1e300", "40000 ft"}) {
    EXPECT_EQ(Whole_Note(typed), words) << typed;
    EXPECT_EQ(Cut_Note(typed), words) << typed;
  }
  EXPECT_EQ(Whole_Note("32767.5"), words);
  EXPECT_EQ(Cut_Note("32767.5"), "reads as 32767");
  EXPECT_EQ(Whole_Note("1e999"), "reads as 0") << "beyond a double's range it is 0 first";
}

TEST(CutNote, Tells_What_Cutting_Gives) {
  EXPECT_EQ(Cut_Note("62.9"), "reads as 62");
  EXPECT_EQ(Cut_Note("-1.9"), "reads as -1");
  EXPECT_EQ(Cut_Note(""), "reads as 0");
}

/// Texts of what people type into number fields, right and wrong.
rc::Gen<std::string> Typed() {
  return rc::gen::container<std::string>(
      rc::gen::elementOf(std::string("0123456789019.,+-eEdDOl \t'x")));
}

RC_GTEST_PROP(RealNote, Is_Silent_On_What_The_Program_Prints, (double value)) {
  // The 15 digits of the last doubles of all are more than a double holds.
  RC_PRE(std::isfinite(value) && std::abs(value) < 1.797693134862315e308);
  RC_ASSERT(Real_Note(Plain_Number(value)).empty());
  RC_ASSERT(Real_Note(Exact_Number(value)).empty());
}

RC_GTEST_PROP(RealNote, Is_Silent_On_Every_Pattern_That_Prints_A_Digit, (std::int32_t mantissa)) {
  const double value = mantissa * std::pow(10.0, *rc::gen::inRange(-9, 9));
  for (const char* pattern :
       {"####0.0000", "######0.", "#######0", "###0.00", "#0.000000", "0", "@@@@@@@@@@@@"}) {
    const std::string printed = Format_Number(value, pattern);
    RC_ASSERT(Real_Note(printed).empty());
  }
  for (const char* pattern : {"#.00", "#.0000"}) {
    RC_ASSERT(Real_Note(Format_Number(value, pattern)).empty());
  }
}

TEST(RealNote, A_Pattern_That_Prints_A_Zero_As_Nothing_Leaves_A_Blank_That_Reads_As_0) {
  EXPECT_EQ(Format_Number(0, "###"), "");
  EXPECT_EQ(Real_Note(Format_Number(0, "###")), "reads as 0");
}

RC_GTEST_PROP(WholeNote, Is_Silent_On_Every_Whole_Number_The_Program_Prints, (std::int16_t value)) {
  RC_ASSERT(Whole_Note(Plain_Number(value)).empty());
  RC_ASSERT(Cut_Note(Plain_Number(value)).empty());
}

RC_GTEST_PROP(RealNote, Speaks_Whenever_A_Character_Was_Left_Unread, ()) {
  const std::string text = *Typed();
  const Number_Start start = Read_Number_Start(text);
  const bool unread = text.find_first_not_of(" \t", start.end) != std::string::npos;
  if (unread || start.end == 0) {
    RC_ASSERT(!Real_Note(text).empty());
    RC_ASSERT(!Whole_Note(text).empty());
    RC_ASSERT(!Cut_Note(text).empty());
  }
}

// A number and one more character that can't continue it.
RC_GTEST_PROP(RealNote, Tells_The_Number_In_Front_Of_What_Was_Left_Unread, (std::int32_t value)) {
  const std::string rest(1, *rc::gen::elementOf(std::string(",Olxft%'/")));
  RC_ASSERT(Real_Note(Plain_Number(value) + rest + *Typed()) == "reads as " + Plain_Number(value));
}

RC_GTEST_PROP(ReadReal, Is_Always_What_The_Lenient_Parse_Gives, ()) {
  const std::string text = *rc::gen::oneOf(Typed(), rc::gen::arbitrary<std::string>());
  RC_ASSERT(Read_Real(text).value == Lenient_Number(text));
}

// The text up to where reading ends is the same number, and one character less of it is not all.
RC_GTEST_PROP(NumberStart, Ends_Where_The_Number_Ends, ()) {
  const std::string text = *Typed();
  const Number_Start start = Read_Number_Start(text);
  RC_ASSERT(start.end <= text.size());
  RC_ASSERT(Lenient_Number(text.substr(0, start.end)) == start.value);
  RC_ASSERT(Read_Number_Start(text.substr(0, start.end)).end == start.end);
}

TEST(NumberStart, Tells_Where_Reading_Ends) {
  EXPECT_EQ(Read_Number_Start("62,5").end, 2U);
  EXPECT_EQ(Read_Number_Start("  62 ").end, 4U);
  EXPECT_EQ(Read_Number_Start("-5e2x").end, 4U);
  EXPECT_EQ(Read_Number_Start("5e+").end, 1U);
  EXPECT_EQ(Read_Number_Start("-").end, 0U);
  EXPECT_EQ(Read_Number_Start("  ").end, 0U);
  EXPECT_TRUE(Read_Number_Start("1e308").in_range);
  EXPECT_FALSE(Read_Number_Start("1e309").in_range);
  EXPECT_FALSE(Read_Number_Start("1e-400").in_range);
}

}  // namespace
}  // namespace barvon

#include "dilution/dilution_file.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>
#include <memory>

#include "core/desk/file_kinds.h"
#include "core/number_text.h"
#include "support/project_text.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

class DilutionFile : public ::testing::Test {
 protected:
  void Put(std::size_t i, const std::string& name, double bulk, double elutriate, double criterion,
           double background) {
    record.DiluteRowCount = static_cast<std::int16_t>(i);
    record.DiluteParameterNames[i] = name;
    record.DiluteBulk[i] = bulk;
    record.DiluteElutriate[i] = elutriate;
    record.DiluteCriteria[i] = criterion;
    record.DiluteBackground[i] = background;
  }

  std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
};

const std::string kTwoParameters =
    "   DUD    0\r\n"
    "                                                Harbour load\r\n"
    "    2          392.4\r\n"
    "Copper\r\n"
    "           1000             26             10              2\r\n"
    "Zinc, total\r\n"
    "            0.5              0         0.0001              0\r\n";

TEST_F(DilutionFile, Is_Written_Byte_By_Byte) {
  record.ProjectTitle = "Harbour load";
  record.DiluteSolidsConc = 392.4;
  Put(1, "Copper", 1000, 26, 10, 2);
  Put(2, "Zinc, total", 0.5, 0, 0.0001, 0);
  EXPECT_EQ(Write_Dilution_File(record), kTwoParameters);
}

TEST_F(DilutionFile, Is_Read_Column_By_Column) {
  record.DiluteBulkDilution[1] = 5;
  record.DiluteBulkRemark[1] = "C < B";
  ASSERT_EQ(Read_Dilution_File(kTwoParameters, record), Failure::None);
  EXPECT_EQ(record.ProjectTitle, std::string(48, ' ') + "Harbour load");
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_EQ(record.DiluteSolidsConc, 392.4);
  EXPECT_EQ(record.DiluteParameterNames[1], "Copper");
  EXPECT_EQ(record.DiluteBulk[1], 1000);
  EXPECT_EQ(record.DiluteElutriate[1], 26);
  EXPECT_EQ(record.DiluteCriteria[1], 10);
  EXPECT_EQ(record.DiluteBackground[1], 2);
  EXPECT_EQ(record.DiluteParameterNames[2], "Zinc, total");
  EXPECT_EQ(record.DiluteBulk[2], 0.5);
  EXPECT_EQ(record.DiluteCriteria[2], 0.0001);
  EXPECT_EQ(record.DiluteBulkDilution[1], 0);
  EXPECT_EQ(record.DiluteBulkRemark[1], "");
}

TEST_F(DilutionFile, Names_Are_Windows_1252_And_A_Byte_A_Column) {
  Put(1, "Gef\xC3\xA4hrliche Stoffe 12345", 1, 1, 1, 1);
  const std::string bytes = Write_Dilution_File(record);
  EXPECT_NE(bytes.find("Gef\xE4hrliche Stoffe 12345\r\n"), std::string::npos);
  ASSERT_EQ(Read_Dilution_File(bytes, record), Failure::None);
  EXPECT_EQ(record.DiluteParameterNames[1], "Gef\xC3\xA4hrliche Stoffe 1");
}

TEST_F(DilutionFile, A_Name_Of_25_Characters_Comes_Back_With_20) {
  Put(1, "abcdefghijklmnopqrstuvwxy", 1, 1, 1, 1);
  Put(2, "abcdefghijklmnopqrst", 1, 1, 1, 1);
  EXPECT_EQ(Lost_Letters_Note(record),
            "1 name of more than 20 letters: the first 20 are read back");
  const std::string bytes = Write_Dilution_File(record);
  EXPECT_NE(bytes.find("abcdefghijklmnopqrstuvwxy\r\n"), std::string::npos);
  ASSERT_EQ(Read_Dilution_File(bytes, record), Failure::None);
  EXPECT_EQ(record.DiluteParameterNames[1], "abcdefghijklmnopqrst");
  EXPECT_EQ(Lost_Letters_Note(record), "");
}

TEST_F(DilutionFile, Letters_Outside_Its_Alphabet_Are_Told) {
  EXPECT_EQ(Dilution_Name_Note("Gef\xC3\xA4hrlich"), "");
  // A Greek alpha; it is no letter of Windows-1252.
  EXPECT_EQ(Dilution_Name_Note("\xCE\xB1-BHC"),
            "has a character that the dilution file can't keep");
  Put(1, "\xCE\xB1-BHC", 1, 1, 1, 1);
  EXPECT_EQ(Lost_Letters_Note(record), "1 name with letters that the file can't keep: saved as ?");
  EXPECT_NE(Write_Dilution_File(record).find("\r\n?-BHC\r\n"), std::string::npos);
  Put(2, "abcdefghijklmnopqrstu\xCE\xB1", 1, 1, 1, 1);
  EXPECT_EQ(Lost_Letters_Note(record),
            "1 name of more than 20 letters: the first 20 are read back; 2 names with letters that "
            "the file can't keep: saved as ?");
}

TEST_F(DilutionFile, An_Empty_List_Is_Three_Lines_And_Leaves_The_Former_Entries) {
  EXPECT_EQ(Lines_Of(Write_Dilution_File(record)).at(3), "    0              0");
  Put(1, "Copper", 1000, 26, 10, 2);
  ASSERT_EQ(Read_Dilution_File("   DUD    0\r\nTitle\r\n    0             45\r\n", record),
            Failure::None);
  EXPECT_EQ(record.DiluteRowCount, 0);
  EXPECT_EQ(record.DiluteSolidsConc, 45);
  EXPECT_EQ(record.DiluteParameterNames[1], "Copper");
  EXPECT_EQ(record.DiluteBulk[1], 1000);
}

TEST_F(DilutionFile, A_List_Leaves_Nothing_Behind_Its_Last_Entry) {
  for (std::size_t i = 1; i <= 500; ++i) Put(i, "old", 1, 2, 3, 4);
  ASSERT_EQ(Read_Dilution_File(kTwoParameters, record), Failure::None);
  for (std::size_t i = 3; i <= 500; ++i) {
    EXPECT_EQ(record.DiluteParameterNames[i], "");
    EXPECT_EQ(record.DiluteBulk[i] + record.DiluteElutriate[i] + record.DiluteCriteria[i] +
                  record.DiluteBackground[i],
              0);
  }
}

TEST_F(DilutionFile, After_Clearing_The_Count_Stands_And_Empty_Rows_Are_Written) {
  record.DiluteRowCount = 1;
  EXPECT_EQ(Write_Dilution_File(record),
            "   DUD    0\r\n" + std::string(60, ' ') +
                "\r\n    1              0\r\n\r\n"
                "              0              0              0              0\r\n");
}

TEST_F(DilutionFile, A_Value_Wider_Than_Its_Field_In_The_File_Shifts_Its_Line) {
  const std::string bytes = "tag\r\ntitle\r\n    1              1\r\nA\r\n" +
                            std::string("  1234567890.1234567             26             10") +
                            "              2\r\n";
  ASSERT_EQ(Read_Dilution_File(bytes, record), Failure::None);
  EXPECT_EQ(record.DiluteBulk[1], 1234567890.12);
  EXPECT_EQ(record.DiluteElutriate[1], 34567);
}

TEST_F(DilutionFile, A_Count_Beyond_The_Table_Is_Refused_Before_Anything_Is_Stored) {
  record.ProjectTitle = "Mine";
  Put(1, "Copper", 1000, 26, 10, 2);
  const auto before = std::make_unique<ProjectRecord>(record);
  for (const char* count : {"  501", "   -1", "99999", " 5E30", "1E999"}) {
    const std::string bytes = "tag\r\ntitle\r\n" + std::string(count) + "              1\r\n";
    EXPECT_NE(Read_Dilution_File(bytes, record), Failure::None) << count;
    EXPECT_EQ(Differing_Fields(*before, record), std::vector<std::string>{}) << count;
  }
}

TEST_F(DilutionFile, A_File_That_Is_Too_Short_Changes_Nothing) {
  Put(1, "Copper", 1000, 26, 10, 2);
  const auto before = std::make_unique<ProjectRecord>(record);
  for (const std::string& bytes :
       {std::string(), std::string("tag\r\n"), std::string("tag\r\ntitle\r\n"),
        kTwoParameters.substr(0, kTwoParameters.find("Zinc") + 13)}) {
    EXPECT_EQ(Read_Dilution_File(bytes, record), Failure::Input_Past_End);
    EXPECT_EQ(Differing_Fields(*before, record), std::vector<std::string>{});
  }
}

TEST_F(DilutionFile, Text_In_A_Field_Reads_As_Zero_And_The_Tag_Is_Not_Looked_At) {
  ASSERT_EQ(Read_Dilution_File("whatever\ntitle\n    1 none\nLead\n            ND\n", record),
            Failure::None);
  EXPECT_EQ(record.DiluteSolidsConc, 0);
  EXPECT_EQ(record.DiluteParameterNames[1], "Lead");
  EXPECT_EQ(record.DiluteBulk[1], 0);
  EXPECT_EQ(record.DiluteBackground[1], 0);
}

TEST_F(DilutionFile, A_Count_With_A_Fraction_Is_Rounded) {
  ASSERT_EQ(Read_Dilution_File("t\nt\n  1.4              1\nLead\n\n", record), Failure::None);
  EXPECT_EQ(record.DiluteRowCount, 1);
}

TEST_F(DilutionFile, Five_Hundred_Parameters_Go_Out_And_Come_Back) {
  for (std::size_t i = 1; i <= 500; ++i) {
    const auto value = static_cast<double>(i);
    Put(i, "Parameter " + std::to_string(i), value, value / 8, value * 1000, value / 1024);
  }
  const auto saved = std::make_unique<ProjectRecord>(record);
  const std::string bytes = Write_Dilution_File(record);
  EXPECT_EQ(Lines_Of(bytes).at(1002), "Parameter 500");
  record.DiluteBulk = {};
  ASSERT_EQ(Read_Dilution_File(bytes, record), Failure::None);
  EXPECT_EQ(Differing_Fields(*saved, record), std::vector<std::string>{"ProjectTitle"});
}

TEST(NumberToFit, A_Number_That_Fits_Is_Plain) {
  EXPECT_EQ(Number_To_Fit(0.5, 15), "0.5");
  EXPECT_EQ(Number_To_Fit(-12.25, 15), "-12.25");
  EXPECT_EQ(Number_To_Fit(999999999999999, 15), "999999999999999");
}

TEST(NumberToFit, A_Wider_One_Has_The_Closest_Form_That_Fits) {
  EXPECT_EQ(Number_To_Fit(1234567.891234567, 15), "1234567.8912346");
  EXPECT_EQ(Number_To_Fit(-1234567.891234567, 15), "-1234567.891235");
  EXPECT_EQ(Number_To_Fit(-999999999999999, 15), "-1E15");
  EXPECT_EQ(Number_To_Fit(-123456789012345, 15), "-123456789012E3");
  EXPECT_EQ(Number_To_Fit(1.23456789012345e-7, 15), "1.2345678901E-7");
  EXPECT_EQ(Number_To_Fit(0.000123456789012345, 15), "1.2345678901E-4");
  EXPECT_EQ(Number_To_Fit(-1.23456789012345e-100, 15), "-123456789E-108");
}

TEST(NumberToFit, Digits_Take_The_Room_Of_Points_And_Zeros) {
  EXPECT_EQ(Number_To_Fit(0.12345678901234567, 15), ".12345678901235");
  EXPECT_EQ(Number_To_Fit(-0.12345678901234567, 15), "-.1234567890123");
  EXPECT_EQ(Number_To_Fit(123456789012345678, 15), "1234567890123E5");
}

TEST(NumberToFit, The_Largest_Number_Is_Not_Rounded_Beyond_Every_Number) {
  EXPECT_EQ(Number_To_Fit(1.7976931348623157e308, 15), "17976931348E298");
  EXPECT_EQ(Number_To_Fit(-1.7976931348623157e308, 15), "-1797693134E299");
}

TEST_F(DilutionFile, Forms_Without_A_Zero_Or_A_Point_Are_Read_Back) {
  Put(1, "Copper", 0.12345678901234567, 123456789012345678, 1.7976931348623157e308,
      -1.23456789012345e-100);
  const std::string bytes = Write_Dilution_File(record);
  EXPECT_NE(bytes.find(".123456789012351234567890123E517976931348E298-123456789E-108\r\n"),
            std::string::npos);
  ASSERT_EQ(Read_Dilution_File(bytes, record), Failure::None);
  EXPECT_EQ(record.DiluteBulk[1], 0.12345678901235);
  EXPECT_EQ(record.DiluteElutriate[1], 1234567890123e5);
  EXPECT_EQ(record.DiluteCriteria[1], 1.7976931348e308);
  EXPECT_EQ(record.DiluteBackground[1], -1.23456789e-100);
}

TEST(NumberToFit, What_Is_Read_Back_Is_Never_Further_Off_Than_The_Field_Must_Be) {
  EXPECT_TRUE(rc::check([] {
    const double value =
        std::ldexp(*rc::gen::inRange(-1000000000, 1000000000) + 0.1, *rc::gen::inRange(-200, 200));
    const std::string text = Number_To_Fit(value, 15);
    RC_ASSERT(text.size() <= 15);
    RC_ASSERT(std::abs(Lenient_Number(text) - value) <= 1e-6 * std::abs(value));
  }));
}

TEST_F(DilutionFile, Registers_Who_Reads_And_Writes_It) {
  Register_Dilution_File();
  const File_Kind* kind = Find_File_Kind("DUD");
  ASSERT_NE(kind, nullptr);
  ASSERT_EQ(kind->read("a.dud", kTwoParameters, record), Failure::None);
  record.ProjectTitle = "Harbour load";
  EXPECT_EQ(kind->write(record), kTwoParameters);
  Register_File_Kind("DUD", {});
}

}  // namespace
}  // namespace barvon::testing

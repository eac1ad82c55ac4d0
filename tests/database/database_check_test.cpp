#include "database/database_check.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "core/project_defaults.h"
#include "database/data_files.h"
#include "database/database_files.h"
#include "database/save_site.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Lines = std::vector<std::string>;

/// Two sites, materials and vessels, with nothing wrong.
class DatabaseCheck : public ::testing::Test {
 protected:
  DatabaseCheck() {
    Write("dspsites.dat", "100\r\nNorth\r\n\r\n200\r\nSouth\r\n\r\n");
    Write("sites.dat", "100\r\nBar\r\n\r\n200\r\nSlip\r\n\r\n");
    Write("vessels.dat", "100\r\nAuk\r\n200\r\nBittern\r\n");
    Write("dispdb.dat", kNorth + kSouth + "\r\n");
    Write("veldb.dat", Velocity_Block(" 100") + Velocity_Block(" 200") + "\r\n");
    Write("matdb.dat", Material_Record(" 100", "Sand") + Material_Record(" 200", "Silt") + "\r\n");
    Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 1) + "\r\n");
  }
  void Write(const char* file, const std::string& text) { Write_Text(folder / file, text); }
  /// The findings of a file as texts.
  Lines Found(const std::string& file) {
    Lines found;
    for (const Database_Finding& finding : Check_Database(folder.path()).findings) {
      if (finding.file == file) found.push_back(Finding_Text(finding));
    }
    return found;
  }

  const std::string kNorth = Site_Record(" 100", "    10");
  const std::string kSouth = Site_Record(" 200", "    20");
  Scratch_Folder folder;
};

TEST_F(DatabaseCheck, Sound_Files_Have_No_Faults) {
  const Database_Report report = Check_Database(folder.path());
  EXPECT_EQ(report.Faults(), 0);
  EXPECT_TRUE(report.mends.empty());
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(Finding_Text(report.findings[0]),
            "vesdb.dat, line 9: remark: a project finds the vessels behind the first one only "
            "while it has 1 opening itself");
}

TEST_F(DatabaseCheck, Missing_Files_Are_Named) {
  const Scratch_Folder empty;
  Lines names;
  for (const Database_Finding& finding : Check_Database(empty.path()).findings) {
    EXPECT_EQ(finding.text, "can't be read");
    names.push_back(finding.file);
  }
  EXPECT_EQ(names, (Lines{"dspsites.dat", "dispdb.dat", "veldb.dat", "sites.dat", "matdb.dat",
                          "vessels.dat", "vesdb.dat"}));
}

TEST_F(DatabaseCheck, A_Line_That_Is_Missing_Behind_The_Last_Record) {
  Write("dispdb.dat", kNorth + kSouth);
  EXPECT_EQ(Found("dispdb.dat"),
            Lines{"dispdb.dat, line 22: a line is missing behind the last record, which the walk "
                  "does not find"});
  EXPECT_EQ(Found("dspsites.dat"),
            Lines{"dspsites.dat, line 5: \"South\", code 200: the site is not found in "
                  "dispdb.dat"});
  Mend_Database(folder.path(), Check_Database(folder.path()));
  EXPECT_EQ(Read_Text(folder / "dispdb.dat"), kNorth + kSouth + "\r\n");
  EXPECT_EQ(Read_Text(folder / "dispdb.dat.bak"), kNorth + kSouth);
}

TEST_F(DatabaseCheck, A_Block_Of_Months_That_Is_Two_Lines_Short) {
  std::string shorter = Velocity_Block(" 100");
  for (int i = 0; i < 2; ++i) shorter.erase(shorter.rfind("\r\n", shorter.size() - 3) + 2);
  Write("veldb.dat", shorter + Velocity_Block(" 200") + "\r\n");
  EXPECT_EQ(Found("veldb.dat"),
            Lines{"veldb.dat, line 36: another record begins inside the one of code 100"});
  EXPECT_EQ(Found("dspsites.dat").size(), 1U) << "the first one reads its neighbour's lines";
}

TEST_F(DatabaseCheck, A_Block_Of_Months_With_A_Line_Too_Many) {
  std::string longer = Velocity_Block(" 100");
  longer.insert(longer.find("\r\n3\r\n") + 2, "comment\r\n");
  Write("veldb.dat", longer + Velocity_Block(" 200") + "\r\n");
  EXPECT_EQ(Found("veldb.dat"),
            Lines{"veldb.dat, line 8: the number of a month should stand here, in columns 1 to "
                  "3"});
  EXPECT_EQ(Found("dspsites.dat").size(), 2U);
}

TEST_F(DatabaseCheck, An_Empty_Line_Between_Records_Stays) {
  const std::string before =
      Material_Record(" 100", "Sand") + "\r\n" + Material_Record(" 200", "Silt");
  Write("matdb.dat", before);
  EXPECT_EQ(Found("matdb.dat"),
            (Lines{"matdb.dat, line 6: an empty line stands where a record begins",
                   "matdb.dat, line 11: a line is missing behind the last record, which the walk "
                   "does not find; the file is out of step before it, so none is added"}));
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
}

TEST_F(DatabaseCheck, A_Record_With_A_Line_Too_Many_And_One_With_A_Line_Too_Few) {
  Write("dispdb.dat", kNorth + "comment\r\n" + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"), Lines{"dispdb.dat, line 12: a record should begin here, but "
                                       "columns 1 to 4 hold no code"});
  EXPECT_EQ(Found("dspsites.dat").size(), 1U);
  const std::string short_one = kNorth.substr(0, kNorth.rfind("    10"));
  Write("dispdb.dat", short_one + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"),
            Lines{"dispdb.dat, line 11: another record begins inside the one of code 100"});
}

TEST_F(DatabaseCheck, Codes_That_Come_Twice_Or_Have_No_Entry) {
  Write("dispdb.dat", kNorth + kNorth + Site_Record(" 900", "    20") + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"),
            (Lines{"dispdb.dat, line 12: code 100 stands a second time; the walk takes line 1",
                   "dispdb.dat, line 23: remark: code 900 has no entry in dspsites.dat"}));
}

TEST_F(DatabaseCheck, Counts_That_A_Project_Can_Not_Hold) {
  std::string material = Material_Record(" 100", "Sand");
  material[41] = '5';
  Write("matdb.dat", material + Material_Record(" 200", "Silt") + "\r\n");
  EXPECT_EQ(Found("matdb.dat"),
            Lines{"matdb.dat, line 1: the record's count is more than a project can hold"});
  EXPECT_EQ(Found("sites.dat").size(), 2U);
}

TEST_F(DatabaseCheck, A_Data_Line_That_Reads_As_A_Code) {
  Write("dispdb.dat", Site_Record(" 100", " 200  ") + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"), (Lines{"dispdb.dat, line 4: remark: the line also reads as code "
                                        "200",
                                        "dispdb.dat, line 11: remark: the line also reads as code "
                                        "200"}));
}

TEST_F(DatabaseCheck, Vessels_With_Other_Openings_Than_The_First) {
  Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 3) + "\r\n");
  EXPECT_EQ(Found("vesdb.dat"),
            Lines{"vesdb.dat, line 9: remark: a project finds the vessels behind the first one "
                  "only while it has 1 opening itself"})
      << "no walk passes the last vessel";
  EXPECT_EQ(Found("vessels.dat"), Lines{});
  Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 3) +
                         Vessel_Record(" 300", "30", 1) + "\r\n");
  Write("vessels.dat", "1\nAuk\n2\nBittern\n3\nCurlew\n");
  EXPECT_EQ(Found("vesdb.dat"),
            Lines{"vesdb.dat, line 23: the first vessel has 1 opening, this one another number: "
                  "no project finds all vessels"});
  EXPECT_EQ(Found("vessels.dat"),
            Lines{"vessels.dat, line 6: \"Curlew\", code 300: the vessel is not found in "
                  "vesdb.dat"});
}

TEST_F(DatabaseCheck, A_Number_That_Runs_Out_Of_Its_Columns) {
  std::string vessel = Vessel_Record(" 100", "1234567", 1);
  Write("vesdb.dat", vessel + Vessel_Record(" 200", "20", 1) + "\r\n");
  EXPECT_EQ(Found("vesdb.dat").front(), "vesdb.dat, line 2: a number runs out of its columns");
}

TEST_F(DatabaseCheck, A_Site_In_A_Free_Layout_Is_Put_Into_The_Columns) {
  const auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->DX0 = 250.5;
  record->DZ0 = 1234.5678;
  record->DEPC0 = record->DEPTHI = 100;
  record->RHDA0 = 0.005;
  record->SLOPEX0 = -0.25;
  record->NROA0 = 2;
  record->DensityDepths[2] = 100;
  record->Densities[1] = 1.0012;
  record->Densities[2] = 1;
  ASSERT_EQ(Save_Site(folder.path(), 2, "East", *record).error, 0);
  EXPECT_EQ(Found("dispdb.dat"),
            (Lines{"dispdb.dat, line 23: an empty line stands where a record begins",
                   "dispdb.dat, line 24: the site is in a free layout, which the walk can't read",
                   "dispdb.dat, line 24: the numbers are not in their columns",
                   "dispdb.dat, line 25: the numbers are not in their columns",
                   "dispdb.dat, line 26: the numbers are not in their columns, and must be rounded "
                   "to fit: 1234.6 250.5",
                   "dispdb.dat, line 27: remark: the line also reads as code 100",
                   "dispdb.dat, line 30: the numbers are not in their columns",
                   "dispdb.dat, line 32: the numbers are not in their columns",
                   "dispdb.dat, line 33: remark: the line also reads as code 100",
                   "dispdb.dat, line 34: remark: the line also reads as code 100",
                   "dispdb.dat, line 34: a line is missing behind the last record, which the walk "
                   "does not find"}));
  const Database_Mended mended = Mend_Database(folder.path(), Check_Database(folder.path()));
  EXPECT_EQ(mended.files, Lines{"dispdb.dat"});
  EXPECT_EQ(Check_Database(folder.path()).Faults(), 0);
  EXPECT_EQ(Read_Text(folder / "dispdb.dat"),
            kNorth + kSouth +
                " 300 2\r\n 32 32\r\n1234.6 250.5\r\n 100 \r\n 0.005 \r\n\r\n-.25    0\r\n\r\n"
                "     01.0012\r\n 100  1 \r\n 100 \r\n\r\n");
  EXPECT_EQ(Found("dspsites.dat"),
            Lines{"dspsites.dat, line 8: remark: \"East\", code 300: 12 months are not found in "
                  "veldb.dat"});
  const auto found = std::make_unique<ProjectRecord>();
  found->SelectedSiteCode = 300;
  ASSERT_TRUE(Find_Site(folder.path(), *found));
  EXPECT_EQ(found->DX0, 250.5);
  EXPECT_EQ(found->Densities[1], 1.0012);
  EXPECT_EQ(found->DEPTHI, 100);
}

TEST_F(DatabaseCheck, A_Site_That_Does_Not_Fit_Stays_As_It_Is) {
  const auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->SLOPEX0 = 0.0125;
  record->SLOPEZ0 = 0.0015;
  Write("dispdb.dat", kNorth + kSouth);
  ASSERT_EQ(Save_Site(folder.path(), 2, "East", *record).error, 0);
  const Lines found = Found("dispdb.dat");
  EXPECT_NE(std::ranges::find(found,
                              "dispdb.dat, line 29: the numbers are not in their columns, and do "
                              "not fit into them: the site stays as it is"),
            found.end());
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_NE(std::ranges::find(found,
                              "dispdb.dat, line 23: the site is in a free layout, which the walk "
                              "can't read; it does not fit into the columns and stays as it is"),
            found.end());
  // A site behind it waits until the walk comes to it.
  record->SLOPEX0 = record->SLOPEZ0 = 0.0005;
  const std::string before = Read_Text(folder / "dispdb.dat");
  ASSERT_EQ(Save_Site(folder.path(), 3, "West", *record).error, 0);
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  std::string fitting = before;
  fitting.replace(fitting.find(" 0.0125  0.0015 "), 16, " 0.0005  0.002 ");
  Write("dispdb.dat", fitting);
  ASSERT_EQ(Check_Database(folder.path()).mends.size(), 1U);
  Mend_Database(folder.path(), Check_Database(folder.path()));
  const std::string after = Read_Text(folder / "dispdb.dat");
  EXPECT_NE(after.find("\r\n5E-4 .002\r\n"), std::string::npos);
}

TEST_F(DatabaseCheck, A_Record_That_Breaks_Keeps_Its_Lines) {
  const std::string broken = " 300  2 \r\n 32  36 \r\n 100  250.5 \r\n";
  Write("dispdb.dat", broken + kNorth + kSouth);
  EXPECT_EQ(Found("dispdb.dat").front(),
            "dispdb.dat, line 1: the site is in a free layout, which the walk can't read; it is "
            "not whole and stays as it is");
  EXPECT_EQ(Found("dispdb.dat").back(),
            "dispdb.dat, line 25: a line is missing behind the last record, which the walk does "
            "not find; the file is out of step before it, so none is added");
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
}

const std::string kPrinted =
    " 300  2 \r\n 32  36 \r\n 100  250.5 \r\n 42 \r\n 0.005 \r\n\r\n 0  0.25 \r\n\r\n 0  1.0012 "
    "\r\n 1000  1.015 \r\n 42 \r\n";

/// The text with one line more, behind so many.
std::string With_Line(std::string text, int behind, const std::string& line) {
  std::size_t at = 0;
  for (int i = 0; i < behind; ++i) at = text.find("\r\n", at) + 2;
  return text.insert(at, line + "\r\n");
}

TEST_F(DatabaseCheck, A_Printed_Site_With_A_Number_Or_A_Line_Too_Many_Stays) {
  const std::string start = kNorth + kSouth;
  Write("dispdb.dat", start + kPrinted);
  ASSERT_EQ(Check_Database(folder.path()).mends.size(), 1U);
  for (const auto& [behind, line] : std::vector<std::pair<int, std::string>>{
           {1, ""}, {1, " 32  36 "}, {3, ""}, {6, ""}, {8, ""}, {8, " 0  1.0012 "}, {10, ""}}) {
    Write("dispdb.dat", start + With_Line(kPrinted, behind, line));
    EXPECT_TRUE(Check_Database(folder.path()).mends.empty()) << behind << line;
    EXPECT_EQ(Found("dispdb.dat").front(),
              "dispdb.dat, line 23: the site is in a free layout, which the walk can't read; it is "
              "not whole and stays as it is")
        << behind << line;
  }
  std::string more = kPrinted;
  more.replace(more.find(" 42 \r\n"), 4, " 42  7 ");
  Write("dispdb.dat", start + more);
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_EQ(Found("dispdb.dat")[5],
            "dispdb.dat, line 26: the free layout has 1 number in this line, and nothing else");
}

TEST_F(DatabaseCheck, A_Printed_Site_With_Text_In_An_Empty_Line_Stays) {
  Write("dispdb.dat", kNorth + kSouth + With_Line(kPrinted, 5, " 7 "));
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  const Lines found = Found("dispdb.dat");
  EXPECT_NE(std::ranges::find(found, "dispdb.dat, line 28: the free layout has an empty line here"),
            found.end());
}

TEST_F(DatabaseCheck, No_Line_Is_Added_Behind_A_Last_Site_That_Stays) {
  std::string steep = kPrinted;
  steep.replace(steep.find(" 0  0.25 "), 9, " 0.0125  0.0015 ");
  Write("dispdb.dat", kNorth + kSouth + steep);
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_EQ(Found("dispdb.dat").back(),
            "dispdb.dat, line 33: a line is missing behind the last record, which the walk does "
            "not find; the record stays as it is, so none is added");
}

TEST_F(DatabaseCheck, A_File_That_Ends_Inside_A_Record) {
  Write("dispdb.dat", kNorth + kSouth.substr(0, kSouth.find("    20")));
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_EQ(Found("dispdb.dat"),
            Lines{"dispdb.dat, line 14: the file ends inside the record of code 200, which is not "
                  "whole and stays as it is"});
}

TEST_F(DatabaseCheck, A_Number_Behind_The_Last_Columns_Is_A_Remark) {
  std::string north = kNorth;
  north.replace(north.find(" 0.5 0.25"), 9, " 0.5 0.25  7");
  Write("dispdb.dat", north + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"),
            Lines{"dispdb.dat, line 7: remark: a number stands behind the last columns, where none "
                  "is read"});
}

// A deep point of the profile looks as the first line of site 1000 does.
TEST_F(DatabaseCheck, Lines_Behind_A_Break_Stay) {
  std::string shallow = kPrinted;
  shallow.replace(shallow.find("1.015"), 5, "1");
  const std::string broken = shallow.substr(shallow.find("\r\n 0  1.0012") + 2);
  const std::string before = kNorth + kSouth + broken + kPrinted + "\r\n";
  Write("dispdb.dat", before);
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_EQ(Found("dispdb.dat").front(),
            "dispdb.dat, line 23: a record should begin here, but columns 1 to 4 hold no code");
}

TEST_F(DatabaseCheck, Neither_Of_Two_Sites_Of_One_Code_Is_Mended) {
  Write("dispdb.dat", kNorth + kSouth + kPrinted + kPrinted);
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_EQ(Found("dispdb.dat").front(),
            "dispdb.dat, line 23: the site is in a free layout, which the walk can't read; its "
            "code stands more than once, so it stays as it is");
}

// In step again, the walk would take " 400  2 " for a site without points.
TEST_F(DatabaseCheck, A_Site_Is_Left_When_A_Broken_One_Would_Be_Found_Behind_It) {
  std::string broken = kPrinted;
  broken.replace(0, 4, " 400");
  broken.replace(broken.find("0.25"), 4, "0.25x");
  Write("dispdb.dat", kNorth + kSouth + "\r\n" + kPrinted + broken + "\r\n");
  EXPECT_TRUE(Check_Database(folder.path()).mends.empty());
  EXPECT_EQ(Found("dispdb.dat")[1],
            "dispdb.dat, line 24: the site is in a free layout, which the walk can't read; the "
            "walk would then read a record behind it wrongly, so it stays as it is");
}

TEST_F(DatabaseCheck, Mending_Leaves_Every_Other_Byte) {
  std::string north = kNorth;
  north.replace(north.find("\r\n"), 2, "\n");
  Write("dispdb.dat", north + "\r\n" + kPrinted + kSouth + "end");
  ASSERT_EQ(Found("dispdb.dat").back(),
            "dispdb.dat, line 35: a record should begin here, but columns 1 to 4 hold no code");
  Mend_Database(folder.path(), Check_Database(folder.path()));
  EXPECT_EQ(Read_Text(folder / "dispdb.dat"),
            north +
                " 300 2\r\n 32 36\r\n 100  250.5 \r\n 42 \r\n 0.005 \r\n\r\n   0  .25\r\n\r\n"
                "     01.0012\r\n 1000  1.015 \r\n 42 \r\n" +
                kSouth + "end");
}

TEST_F(DatabaseCheck, A_Last_Record_That_Is_Not_Whole_Gets_No_Line) {
  for (const auto& [file, record, damaged] :
       {std::tuple{"dispdb.dat", kNorth, 4},
        std::tuple{"matdb.dat", Material_Record(" 100", "Sand"), 4},
        std::tuple{"vesdb.dat", Vessel_Record(" 100", "10", 1), 12}}) {
    std::size_t at = 0;
    for (int line = 1; line < damaged; ++line) at = record.find("\r\n", at) + 2;
    std::string shorter = record;
    shorter.erase(at, shorter.find("\r\n", at) + 2 - at);
    Write(file, shorter + "\r\n");
    EXPECT_TRUE(Check_Database(folder.path()).mends.empty()) << file;
    EXPECT_TRUE(Found(file).back().ends_with("; the record is not whole, so none is added"))
        << Found(file).back();
  }
}

TEST_F(DatabaseCheck, Lines_That_Lost_Their_Numbers) {
  std::string site = kNorth;
  site.replace(site.find("    10\r\n"), 6, "    42,5");
  site.replace(site.find("0.25"), 4, "");
  Write("dispdb.dat", site + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"),
            (Lines{"dispdb.dat, line 4: a number runs out of its columns",
                   "dispdb.dat, line 7: columns 6 to 9 should hold a number, but nothing stands "
                   "there"}));
  site = kNorth;
  site.replace(site.find("    10\r\n"), 6, "");
  site.replace(site.find("     01.0010"), 12, " 1.0012");
  site.replace(site.find("    501.0020"), 12, "    50");
  Write("dispdb.dat", site + kSouth + "\r\n");
  EXPECT_EQ(Found("dispdb.dat"),
            (Lines{"dispdb.dat, line 4: a number should stand here, but the line is empty",
                   "dispdb.dat, line 9: a number runs on from columns 1 to 6 into the next ones",
                   "dispdb.dat, line 10: columns 7 to 12 should hold a number, but nothing stands "
                   "there"}));
  std::string block = Velocity_Block(" 100");
  block.erase(block.find("      10"), block.find("      30") - block.find("      10") - 2);
  Write("veldb.dat", block + Velocity_Block(" 200") + "\r\n");
  EXPECT_EQ(Found("veldb.dat"),
            Lines{"veldb.dat, line 3: numbers should stand here, but the line is empty"});
  std::string vessel = Vessel_Record(" 100", "", 1);
  Write("vesdb.dat", vessel + Vessel_Record(" 200", "20", 1) + "\r\n");
  EXPECT_EQ(Found("vesdb.dat").front(),
            "vesdb.dat, line 2: a number should stand here, but the line is empty");
}

TEST_F(DatabaseCheck, Flags_Of_A_Fraction_Other_Than_Y_And_N) {
  std::string material = Material_Record(" 100", "Sand"), other = Material_Record(" 200", "Silt");
  material.replace(material.find(" N N"), 4, " J N");
  other.replace(other.find(" N N"), 4, " y");
  Write("matdb.dat", material + other + "\r\n");
  EXPECT_EQ(Found("matdb.dat"),
            (Lines{"matdb.dat, line 3: column 53 should hold Y or N, but \"J\" stands there",
                   "matdb.dat, line 8: column 55 should hold Y or N, but nothing stands there"}));
}

TEST_F(DatabaseCheck, Currents_That_A_New_Site_Would_Take) {
  Write("veldb.dat", Velocity_Block(" 100") + Velocity_Block(" 200") + Velocity_Block(" 300") +
                         Velocity_Block(" 400") + "\r\n");
  EXPECT_EQ(Found("veldb.dat"),
            (Lines{"veldb.dat, line 75: remark: code 300 has no entry in dspsites.dat; no site can "
                   "be added as long as it has none",
                   "veldb.dat, line 112: remark: code 400 has no entry in dspsites.dat"}));
}

TEST_F(DatabaseCheck, Names_With_Letters_That_Can_Not_Be_Seen) {
  Write("vessels.dat", "100\r\nA\tuk\r\n200\r\nBitt\x81rn\r\n");
  const std::string text = ": remark: the name holds a tab or another letter that can't be seen";
  EXPECT_EQ(Found("vessels.dat"),
            (Lines{"vessels.dat, line 2" + text, "vessels.dat, line 4" + text}));
}

TEST_F(DatabaseCheck, Lists_Without_Entries) {
  for (const char* file : {"dspsites.dat", "sites.dat", "vessels.dat"}) {
    Write(file, "");
    EXPECT_EQ(Found(file), Lines{std::string(file) + ": has no entries"});
  }
}

TEST_F(DatabaseCheck, Lists_With_Entries_That_Are_None) {
  Write("dspsites.dat", "100\r\nNorth\r\n\r\nSouth\r\n200\r\nx\r\n300\r\n\r\n\r\n\r\n\r\n");
  EXPECT_EQ(Found("dspsites.dat"),
            (Lines{"dspsites.dat, line 4: a code should stand here, but no number does",
                   "dspsites.dat, line 6: an empty line should stand here, but text does",
                   "dspsites.dat, line 8: the name is empty",
                   "dspsites.dat, line 10: an empty line too many stands at the end",
                   "dspsites.dat, line 8: \"\", code 300: the site is not found in dispdb.dat",
                   "dspsites.dat, line 11: \"\", code 400: the site is not found in dispdb.dat",
                   "dspsites.dat, line 8: remark: \"\", code 300: 12 months are not found in "
                   "veldb.dat",
                   "dspsites.dat, line 11: remark: \"\", code 400: 12 months are not found in "
                   "veldb.dat"}));
  Write("sites.dat", "100\r\nBar\r\nby hand\r\n200\r\nSlip\r\n\r\n\r\n");
  EXPECT_EQ(Found("sites.dat"),
            (Lines{"sites.dat, line 3: remark: an empty line should stand here, but text does",
                   "sites.dat, line 7: remark: an empty line too many stands at the end"}));
  Write("vessels.dat", "100\r\nAuk\r\n200\r\nBittern\r\n\r\n");
  EXPECT_EQ(Found("vessels.dat"), Lines{}) << "the line that ends the list";
  Write("vessels.dat", "100\r\nAuk\r\n\r\n200\r\nBittern\r\n");
  EXPECT_EQ(Found("vessels.dat"),
            Lines{"vessels.dat, line 3: an empty line ends the list; the entries behind it are not "
                  "shown"});
}

TEST_F(DatabaseCheck, Columns_Of_Materials_Velocities_And_Vessels) {
  std::string material = Material_Record(" 100", "Sand");
  material.replace(material.find("2.70"), 4, "n/a ");
  std::string shifted = Material_Record(" 200", "Silt");
  shifted.erase(shifted.find("   Silt"), 3);
  Write("matdb.dat", material + shifted + "\r\n");
  EXPECT_EQ(Found("matdb.dat"),
            (Lines{"matdb.dat, line 3: columns 19 to 22 should hold a number, but \"n/a\" stands "
                   "there",
                   "matdb.dat, line 8: a number runs out of its columns"}));
  material = Material_Record(" 100", "Sand");
  material.replace(material.find("   Sand"), 7, " Sand  ");
  Write("matdb.dat", material + Material_Record(" 200", "") + "\r\n");
  EXPECT_EQ(Found("matdb.dat"), (Lines{"matdb.dat, line 3: the name begins before columns 4 to 11",
                                       "matdb.dat, line 8: no name stands in columns 4 to 11"}));
  std::string block = Velocity_Block(" 100");
  block.replace(block.find("    0.25"), 8, "-0.25000");
  Write("veldb.dat", block + Velocity_Block(" 200") + "\r\n");
  EXPECT_EQ(Found("veldb.dat"),
            Lines{"veldb.dat, line 3: a number begins before columns 32 to 38"});
  Write("vesdb.dat",
        Vessel_Record(" 100", "        10", 1) + Vessel_Record(" 200", "20", 1) + "\r\n");
  EXPECT_EQ(Found("vesdb.dat").front(),
            "vesdb.dat, line 2: columns 1 to 6 should hold a number, but nothing stands there");
}

TEST_F(DatabaseCheck, A_Former_Copy_Is_Not_Replaced) {
  Write("dispdb.dat", kNorth + kSouth);
  Write("dispdb.dat.bak", "former");
  Mend_Database(folder.path(), Check_Database(folder.path()));
  EXPECT_EQ(Read_Text(folder / "dispdb.dat.bak"), "former");
  EXPECT_EQ(Read_Text(folder / "dispdb.dat.bak2"), kNorth + kSouth);
}

TEST_F(DatabaseCheck, A_Check_Changes_No_File) {
  Write("dispdb.dat", kNorth + kSouth);
  const Lines before = Names_In(folder.path());
  Check_Database(folder.path());
  EXPECT_EQ(Names_In(folder.path()), before);
  EXPECT_EQ(Read_Text(folder / "dispdb.dat"), kNorth + kSouth);
}

/// A value of so many tenths, which any of the columns holds.
double Tenths(int least, int most) { return *rc::gen::inRange(least, most) / 10.0; }

TEST(DatabaseMending, Any_Site_That_Was_Added_Is_Found_After_Mending) {
  EXPECT_TRUE(rc::check([] {
    const Scratch_Folder folder;
    const auto record = std::make_unique<ProjectRecord>();
    Set_Project_Defaults(*record);
    record->NMAX0 = *rc::gen::inRange<std::int16_t>(0, 97);
    record->MMAX0 = *rc::gen::inRange<std::int16_t>(0, 97);
    record->DX0 = Tenths(0, 99999);
    record->DZ0 = Tenths(0, 99999);
    record->DEPC0 = Tenths(0, 9999);
    record->RHDA0 = Tenths(0, 99);
    record->SLOPEX0 = Tenths(-49, 50);
    record->SLOPEZ0 = Tenths(-49, 50);
    record->NROA0 = *rc::gen::inRange<std::int16_t>(0, kMaxDensityPoints + 1);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(record->NROA0); ++i) {
      record->DensityDepths[i] = Tenths(0, 9999);
      record->Densities[i] = Tenths(10, 20);
    }
    record->DEPTHI = Tenths(0, 9999);
    const int place = *rc::gen::inRange(0, kMostEntries);
    std::string list;
    for (int i = 0; i < place; ++i) list += "0\r\nname\r\n\r\n";
    Write_Text(folder / "dspsites.dat", list);
    RC_ASSERT(Save_Site(folder.path(), place, "East", *record).error == 0);
    Mend_Database(folder.path(), Check_Database(folder.path()));
    const auto found = std::make_unique<ProjectRecord>();
    Set_Project_Defaults(*found);
    found->SelectedSiteCode = Code_Of_Place(place);
    RC_ASSERT(Find_Site(folder.path(), *found));
    found->SelectedSiteCode = 0;
    RC_ASSERT(Differing_Fields(*record, *found).empty());
  }));
}

// Whatever the numbers: found with no number off by more than a twentieth, or all bytes as before.
TEST(DatabaseMending, A_Site_Is_Mended_Whole_Or_Not_At_All) {
  EXPECT_TRUE(rc::check([] {
    const Scratch_Folder folder;
    const auto real = [] {
      return *rc::gen::inRange(-99999, 99999) / std::pow(10, *rc::gen::inRange(0, 9));
    };
    const auto record = std::make_unique<ProjectRecord>();
    Set_Project_Defaults(*record);
    record->SLOPEX0 = real();
    record->SLOPEZ0 = real();
    record->RHDA0 = real();
    record->DEPTHI = real();
    RC_ASSERT(Save_Site(folder.path(), 0, "East", *record).error == 0);
    const std::string before = Read_Text(folder / "dispdb.dat");
    Mend_Database(folder.path(), Check_Database(folder.path()));
    if (Read_Text(folder / "dispdb.dat") == before) return;
    const auto found = std::make_unique<ProjectRecord>();
    found->SelectedSiteCode = 100;
    RC_ASSERT(Find_Site(folder.path(), *found));
    for (const auto field : {&ProjectRecord::SLOPEX0, &ProjectRecord::SLOPEZ0,
                             &ProjectRecord::RHDA0, &ProjectRecord::DEPTHI}) {
      const double told = (*record).*field;
      RC_ASSERT(std::abs((*found).*field - told) <= 0.05 * std::abs(told));
    }
  }));
}

TEST(DatabaseMending, No_Bytes_Make_A_Check_Fail) {
  EXPECT_TRUE(rc::check([](const std::string& bytes) {
    const Scratch_Folder folder;
    for (const char* file : {"dispdb.dat", "veldb.dat", "matdb.dat", "vesdb.dat"}) {
      Write_Text(folder / file, " 100 1\r\n" + bytes + "\r\n 200  3 \r\n" + bytes);
    }
    Write_Text(folder / "dspsites.dat", bytes);
    for (const char* list : {"sites.dat", "vessels.dat"}) {
      Write_Text(folder / list, "1\r\na\r\n2\r\nb\r\n3\r\nc\r\n");
    }
    Mend_Database(folder.path(), Check_Database(folder.path()));
    Check_Database(folder.path());
  }));
}

}  // namespace
}  // namespace barvon::testing

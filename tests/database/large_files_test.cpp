// Files of the database that are far larger than those of a person, and still no reason to wait.

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "database/data_files.h"
#include "database/database_check.h"
#include "database/database_files.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

class LargeDatabase : public ::testing::Test {
 protected:
  void Write(const char* file, const std::string& text) { Write_Text(folder / file, text); }

  /// How many findings of a file hold the words.
  std::ptrdiff_t Count(const std::string& file, const std::string& words) {
    const auto findings = Check_Database(folder.path()).findings;
    return std::ranges::count_if(findings, [&](const Database_Finding& finding) {
      return finding.file == file && finding.text.find(words) != std::string::npos;
    });
  }

  Scratch_Folder folder;
};

TEST_F(LargeDatabase, Entries_Beyond_The_Most_Are_Told_By_One_Line) {
  std::string list;
  for (int place = 1; place <= 120; ++place) {
    const std::string number = std::to_string(place);
    list += number + "00\r\nSite " + number + "\r\n\r\n";
  }
  Write("dspsites.dat", list);
  Write("dispdb.dat", Site_Record(" 100", "    10") + "\r\n");
  Write("veldb.dat", Velocity_Block(" 100") + "\r\n");
  EXPECT_EQ(Count("dspsites.dat", "has more than 99 entries"), 1);
  EXPECT_EQ(Count("dspsites.dat", "the site is not found"), 98);
  EXPECT_EQ(Count("dspsites.dat", "12 months are not found"), 98);
  EXPECT_EQ(Count("dspsites.dat", "\"Site 99\", code 9900: the site is not found"), 1);
  EXPECT_EQ(Count("dspsites.dat", "Site 100"), 0);
}

TEST_F(LargeDatabase, Empty_Entries_Beyond_The_Most_Are_Told_By_One_Line) {
  Write("dspsites.dat", std::string(3 * 1000, '\n') + "100\r\nNorth\r\n\r\n");
  EXPECT_EQ(Count("dspsites.dat", "has more than 99 entries"), 1);
  EXPECT_EQ(Count("dspsites.dat", "the name is empty"), 99);
}

// Each of them once searched all others for text, and was a line of its own of the findings.
TEST_F(LargeDatabase, Empty_Lines_In_Front_Of_A_Record_Are_Told_By_One_Line) {
  constexpr int kEmptyLines = 50'000;
  std::string lines;
  for (int i = 0; i < kEmptyLines; ++i) lines += "\n";
  Write("dspsites.dat", "100\r\nNorth\r\n\r\n");
  Write("dispdb.dat", lines + Site_Record(" 100", "    10") + "\r\n");
  EXPECT_EQ(Count("dispdb.dat", "50000 empty lines stand where a record begins"), 1);
  EXPECT_EQ(Count("dispdb.dat", "an empty line stands"), 0);
  Write("dispdb.dat", Site_Record(" 100", "    10") + lines);
  EXPECT_EQ(Count("dispdb.dat", "where a record begins"), 0);
}

RC_GTEST_FIXTURE_PROP(LargeDatabase, One_Walk_Misses_The_Months_That_A_Search_Does_Not_Find, ()) {
  std::string block = *rc::gen::element(" 100\r\n", " 200\r\n", "");
  for (int place = *rc::gen::inRange(0, 14); place > 0; --place) {
    block += *rc::gen::weightedOneOf<std::string>(
        {{8,
          rc::gen::map(rc::gen::inRange(0, 14), [](int month) { return std::to_string(month); })},
         {1, rc::gen::element<std::string>("", "1.5", "x", " 100")}});
    block += "\r\n";
    for (int point = *rc::gen::weightedElement<int>({{9, 2}, {1, 1}}); point > 0; --point) {
      block += "      10     0.5            10    0.25\r\n";
    }
  }
  Write("veldb.dat", Velocity_Block(" 300") + block + *rc::gen::element("", "\r\n", " 100\r\n"));
  const auto record = std::make_unique<ProjectRecord>();
  for (const double code : {100.0, 300.0}) {
    record->SelectedSiteCode = code;
    int missing = 0;
    for (int month = 1; month <= 12; ++month) {
      record->SelectedMonth = month;
      if (!Find_Velocity(folder.path(), *record)) ++missing;
    }
    RC_ASSERT(Months_Missing(folder.path(), code) == missing);
  }
}

}  // namespace
}  // namespace barvon::testing

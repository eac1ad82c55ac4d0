#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <filesystem>
#include <map>
#include <memory>

#include "core/project_defaults.h"
#include "database/data_files.h"
#include "database/database_check.h"
#include "database/database_files.h"
#include "database/save_site.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Lines = std::vector<std::string>;
using Found = std::map<std::pair<int, int>, std::unique_ptr<ProjectRecord>>;  // by code and month

const std::string kSamples = std::string(BARVON_SAMPLES) + "/database";

Lines Lines_Of(const std::string& text) {
  Lines lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    lines.push_back(text.substr(at, end - at));
    at = end == text.npos ? text.size() : end + 2;
  }
  return lines;
}

std::string Text_Of(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

void Find_In(const std::string& folder, const std::string& file, int code, int month,
             Found& found) {
  auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->NOPENS = 1;  // as the sample vessels have
  bool is_there = false;
  if (file == "dispdb.dat") {
    record->SelectedSiteCode = code;
    is_there = Find_Site(folder, *record);
  } else if (file == "veldb.dat") {
    record->SelectedSiteCode = code;
    record->SelectedMonth = month;
    is_there = Find_Velocity(folder, *record);
  } else if (file == "matdb.dat") {
    record->SelectedMaterialCode = code;
    is_there = Find_Material(folder, *record);
  } else {
    record->SelectedVesselCode = code;
    is_there = Find_Vessel(folder, *record);
  }
  if (is_there) found.emplace(std::pair{code, month}, std::move(record));
}

/// What the walk finds of the codes up to one.
Found Find_All(const std::string& folder, const std::string& file, int last) {
  Found found;
  const int months = file == "veldb.dat" ? 12 : 1;
  for (int code = 100; code <= last; code += 100) {
    for (int month = 1; month <= months; ++month) Find_In(folder, file, code, month, found);
  }
  return found;
}

bool Is_Same(const Found& found, const Found::value_type& entry) {
  const auto same = found.find(entry.first);
  return same != found.end() && Differing_Fields(*same->second, *entry.second).empty();
}

enum class Damage { Deleted, Doubled, Emptied, Garbled, With_A_Comma, Count };

void Do_Damage(Lines& lines, std::size_t at, Damage damage) {
  const auto line = lines.begin() + static_cast<std::ptrdiff_t>(at);
  if (damage == Damage::Deleted) {
    lines.erase(line);
  } else if (damage == Damage::Doubled) {
    lines.insert(line, std::string(*line));
  } else if (damage == Damage::Emptied) {
    line->clear();
  } else if (damage == Damage::Garbled) {
    *line = "n/a";
  } else {
    *line += ",5";
  }
}

/// A file, how many of the last record's lines are damaged, and the last code.
class SampleDamage : public ::testing::TestWithParam<std::tuple<const char*, int, int>> {};

// With or without the line behind it: what mending makes of a last record with one line damaged is
// what it was before.
TEST_P(SampleDamage, No_Damaged_Last_Record_Comes_To_Be_Found) {
  const auto& [file, lines_of_last, last_code] = GetParam();
  const Scratch_Folder folder;
  for (const char* list : {"dspsites.dat", "sites.dat", "vessels.dat"}) {
    std::filesystem::copy_file(kSamples + "/" + list, folder / list);
  }
  const std::string sound = Read_Text(kSamples + "/" + file);
  const Lines whole = Lines_Of(sound);
  Write_Text(folder / file, sound);
  const Found right = Find_All(folder.path(), file, last_code);
  const std::size_t first = whole.size() - 1 - static_cast<std::size_t>(lines_of_last);
  for (const bool has_line_behind : {true, false}) {
    for (std::size_t at = first; at + 1 < whole.size(); ++at) {
      for (int damage = 0; damage < static_cast<int>(Damage::Count); ++damage) {
        Lines lines = whole;
        if (!has_line_behind) lines.pop_back();
        Do_Damage(lines, at, static_cast<Damage>(damage));
        Write_Text(folder / file, Text_Of(lines));
        const Database_Report report = Check_Database(folder.path());
        if (report.mends.empty()) continue;
        const Found before = Find_All(folder.path(), file, last_code);
        Mend_Database(folder.path(), report);
        const Found after = Find_All(folder.path(), file, last_code);
        for (const auto& entry : before) {
          EXPECT_TRUE(Is_Same(after, entry)) << at + 1 << " damage " << damage;
        }
        for (const auto& entry : after) {
          EXPECT_TRUE(Is_Same(before, entry) || Is_Same(right, entry))
              << at + 1 << " damage " << damage << " code " << entry.first.first;
        }
        EXPECT_TRUE(Check_Database(folder.path()).mends.empty()) << at + 1 << " damage " << damage;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Files, SampleDamage,
                         ::testing::Values(std::tuple{"dispdb.dat", 11, 700},
                                           std::tuple{"veldb.dat", 6, 700},
                                           std::tuple{"matdb.dat", 6, 800},
                                           std::tuple{"vesdb.dat", 14, 500}));

/// A value of so many tenths, which any of the columns holds.
double Tenths(int least, int most) { return *rc::gen::inRange(least, most) / 10.0; }

std::unique_ptr<ProjectRecord> Any_Site() {
  auto site = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*site);
  site->NMAX0 = *rc::gen::inRange<std::int16_t>(0, kMaxGridPoints + 1);
  site->MMAX0 = *rc::gen::inRange<std::int16_t>(0, kMaxGridPoints + 1);
  site->DX0 = Tenths(0, 9999);
  site->DZ0 = Tenths(0, 9999);
  site->DEPC0 = site->DEPTHI = *rc::gen::element(100.0, 200.0, 42.0, 300.0);
  site->RHDA0 = Tenths(0, 99);
  site->SLOPEX0 = Tenths(-49, 50);
  site->SLOPEZ0 = Tenths(-49, 50);
  site->NROA0 = *rc::gen::inRange<std::int16_t>(0, kMaxDensityPoints + 1);
  for (std::size_t i = 1; i <= static_cast<std::size_t>(site->NROA0); ++i) {
    site->DensityDepths[i] = *rc::gen::element(0.0, 100.0, 400.0, 1000.0);
    site->Densities[i] = *rc::gen::element(1.0, 1.015, 2.0);
  }
  return site;
}

// Sites in and without columns in any order, a line or two of them damaged.
TEST(DatabaseMending, What_Was_Found_Stays_And_Only_Whole_Records_Come_To_It) {
  EXPECT_TRUE(rc::check([] {
    constexpr int kMostSites = 5;
    const Scratch_Folder folder;
    const int sites = *rc::gen::inRange(1, kMostSites + 1);
    std::string data;
    Found right;
    for (int i = 0; i < sites; ++i) {
      const bool free = *rc::gen::inRange(0, 2) == 1;
      const double code = (i + 1) * 100;
      const std::string printed = free ? Site_Data_Lines(code, *Any_Site())
                                       : Site_Record(" " + std::to_string((i + 1) * 100), "    42");
      if (free && *rc::gen::inRange(0, 2) == 1) data += "\r\n";
      // Alone in a file and mended, each is found as it is to be.
      Write_Text(folder / "dispdb.dat", printed + "\r\n");
      Mend_Database(folder.path(), Check_Database(folder.path()));
      Find_In(folder.path(), "dispdb.dat", static_cast<int>(code), 1, right);
      data += printed;
    }
    RC_ASSERT(right.size() == static_cast<std::size_t>(sites));
    Lines lines = Lines_Of(data);
    if (*rc::gen::inRange(0, 2) == 1) lines.emplace_back();
    const std::size_t sound_lines = lines.size();
    bool has_moved_lines = false;
    for (int damages = *rc::gen::inRange(0, 3); damages > 0 && !lines.empty(); --damages) {
      Do_Damage(lines, *rc::gen::inRange<std::size_t>(0, lines.size()),
                static_cast<Damage>(*rc::gen::inRange(0, static_cast<int>(Damage::Count))));
      has_moved_lines = has_moved_lines || lines.size() != sound_lines;
    }
    // A line that is missing and one that stands twice leave a record whole to every eye.
    RC_PRE(!has_moved_lines || lines.size() != sound_lines);
    Write_Text(folder / "dispdb.dat", Text_Of(lines));
    constexpr int kLastCode = 1000;  // of what any line reads as
    const Found before = Find_All(folder.path(), "dispdb.dat", kLastCode);
    const Database_Report report = Check_Database(folder.path());
    RC_CLASSIFY(!report.mends.empty(), "mended");
    Mend_Database(folder.path(), report);
    const Found after = Find_All(folder.path(), "dispdb.dat", kLastCode);
    for (const auto& entry : before) {
      if (Is_Same(right, entry)) RC_ASSERT(Is_Same(after, entry));
    }
    for (const auto& entry : after) RC_ASSERT(Is_Same(before, entry) || Is_Same(right, entry));
    RC_ASSERT(Check_Database(folder.path()).mends.empty());
  }));
}

}  // namespace
}  // namespace barvon::testing

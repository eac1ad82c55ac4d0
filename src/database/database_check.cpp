#include "database/database_check.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "core/number_text.h"
#include "core/project_defaults.h"
#include "core/text_tools.h"
#include "database/data_columns.h"
#include "database/data_files.h"
#include "database/record_mends.h"
#include "database/record_scan.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

using Names = std::optional<std::vector<std::string>>;

struct Lines_Of_File {
  std::vector<std::string> lines;
  std::string bytes;
};

std::optional<Lines_Of_File> Read_Lines(const std::string& path) {
  Line_Walk walk(path);
  if (!walk.Opened()) return std::nullopt;
  Lines_Of_File file;
  while (walk.Next_Or_Last()) file.lines.push_back(walk.Line());
  if (Read_Whole_File(Path_To_Write(path), file.bytes) != 0) return std::nullopt;
  return file;
}

/// The bytes of a file with the edits made; lines that none of them takes keep theirs.
std::string Edited_Bytes(const std::string& bytes, const std::vector<Line_Edit>& edits) {
  const char* line_end = bytes.find('\r') != bytes.npos ? "\r\n" : "\n";
  std::string edited;
  std::size_t at = 0, line = 0;
  const auto end_of_line = [&](std::size_t from) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n", from), bytes.size());
    if (end == bytes.size()) return end;
    return end + (bytes.compare(end, 2, "\r\n") == 0 ? 2 : 1);
  };
  for (const Line_Edit& edit : edits) {
    for (; line < edit.first; ++line) {
      const std::size_t end = end_of_line(at);
      edited.append(bytes, at, end - at);
      at = end;
    }
    for (; line < edit.end; ++line) at = end_of_line(at);
    if (!edited.empty() && edited.back() != '\n' && edited.back() != '\r') edited += line_end;
    for (const std::string& text : edit.lines) edited += To_File_Bytes(text) + line_end;
  }
  return edited.append(bytes, at, bytes.npos);
}

// Lines of an entry of a list.
constexpr std::size_t kTwo = 2, kThree = 3;

bool Is_Empty(const std::string& line) { return Trimmed(line).empty(); }

bool Is_Number(const std::string& line) {
  const std::string text = Trimmed(line);
  return !text.empty() && Read_Number_Start(text).end == text.size();
}

/// A check of one folder, file by file.
class Database_Checker {
 public:
  explicit Database_Checker(const std::string& folder) : folder_(folder) {
    Set_Project_Defaults(*record_);
    const Names sites = Site_Names(folder), materials = Material_Names(folder),
                vessels = Vessel_Names(folder);
    Check_List(kSiteList, sites, kThree);
    Check_Data(kSiteLayout, sites, kThree, [this](double code) { return Finds_Site(code); });
    Check_Data(kVelocityLayout, sites, kThree, [this](double code) { return Finds_Months(code); });
    Check_List(kMaterialList, materials, kThree);
    Check_Data(kMaterialLayout, materials, kThree,
               [this](double code) { return Finds_Material(code); });
    Check_List(kVesselList, vessels, kTwo);
    Check_Data(kVesselLayout, vessels, kTwo, [this](double code) { return Finds_Vessel(code); });
  }

  Database_Report report;

 private:
  void Find(const char* file, std::size_t line, const std::string& text, bool remark = false) {
    report.findings.push_back({file, static_cast<int>(line), text, remark});
  }

  void Check_List(const char* file, const Names& names, std::size_t lines_of_entry) {
    const auto list = Read_Lines(Join_Path(folder_, file));
    if (!names || !list) {
      Find(file, 0, "can't be read");
      return;
    }
    if (names->size() > kMostEntries) {
      Find(file, 0, "has more than " + std::to_string(kMostEntries) + " entries");
    }
    if (names->empty()) Find(file, 0, "has no entries");
    std::vector<std::string> lines = list->lines;
    std::size_t end = lines.size();
    while (end > 0 && Is_Empty(lines[end - 1])) --end;
    // An entry that lacks no more than its last, empty line is whole.
    const std::size_t whole = (end + lines_of_entry - 1) / lines_of_entry * lines_of_entry;
    const std::size_t behind = lines.size() - std::min(lines.size(), whole);
    lines.resize(whole);
    // Those beyond the most have been told together.
    const std::size_t looked_at = std::min(whole, kMostEntries * lines_of_entry);
    for (std::size_t at = 0; at < looked_at; at += lines_of_entry) {
      if (lines_of_entry == kTwo && Is_Empty(lines[at])) {
        Find(file, at + 1, "an empty line ends the list; the entries behind it are not shown");
        return;
      }
      Check_Entry(file, lines, at, lines_of_entry);
    }
    if (behind > 0 && lines_of_entry == kThree) {
      Find(file, whole + 1, "an empty line too many stands at the end", behind == 1);
    }
  }

  void Check_Entry(const char* file, const std::vector<std::string>& lines, std::size_t at,
                   std::size_t lines_of_entry) {
    if (!Is_Number(lines[at])) Find(file, at + 1, "a code should stand here, but no number does");
    if (Is_Empty(lines[at + 1])) Find(file, at + 2, "the name is empty");
    if (Has_Control_Letters(lines[at + 1])) {
      Find(file, at + 2, "the name holds a tab or another letter that can't be seen", true);
    }
    if (lines_of_entry == kThree && !Is_Empty(lines[at + 2])) {
      // Materials may have a line of their own there; a site's is always empty.
      Find(file, at + 3, "an empty line should stand here, but text does",
           std::string_view(file) == kMaterialList);
    }
  }

  template <class Finds>
  void Check_Data(const Data_Layout& layout, const Names& names, std::size_t lines_of_entry,
                  Finds finds) {
    const auto file = Read_Lines(Join_Path(folder_, layout.file));
    if (!file) {
      Find(layout.file, 0, "can't be read");
      return;
    }
    // Without its list a file may hold any code.
    const std::size_t entries = names ? names->size() : kMostEntries;
    Record_Scan scan(layout, file->lines, static_cast<int>(entries));
    const std::vector<Line_Edit> edits = Record_Mends(scan);
    report.findings.insert(report.findings.end(), scan.findings.begin(), scan.findings.end());
    if (&layout == &kVesselLayout) Compare_Openings(file->lines, scan);
    if (!edits.empty()) report.mends.push_back({layout.file, Edited_Bytes(file->bytes, edits)});
    // A file has no place for the code of an entry beyond the most; the list's check tells of it.
    const std::size_t looked_for = names ? std::min<std::size_t>(names->size(), kMostEntries) : 0;
    for (std::size_t i = 0; i < looked_for; ++i) {
      const std::string missing = finds(Code_Of_Place(static_cast<int>(i)));
      if (missing.empty()) continue;
      // A site that was added on the screen has no currents.
      const bool never_there =
          &layout == &kVelocityLayout && !scan.first_lines.contains(static_cast<int>(i));
      Find(layout.list, i * lines_of_entry + 2,
           "\"" + (*names)[i] + "\", code " +
               std::to_string((i + 1) * static_cast<std::size_t>(kCodeStep)) + ": " + missing +
               " in " + layout.file,
           never_there);
    }
  }

  /// The walk to a vessel passes those before it by the project's openings, not by their own. No
  /// walk passes the last one.
  void Compare_Openings(const std::vector<std::string>& lines, const Record_Scan& scan) {
    std::vector<std::pair<std::size_t, double>> counts;
    for (const Scanned_Record& record : scan.records) {
      const std::size_t at = record.first + 8;
      if (at < lines.size()) counts.emplace_back(at, Number_In(lines[at], data_columns::kField));
    }
    if (counts.empty()) return;
    const double first = counts.front().second;
    record_->NOPENS = static_cast<std::int16_t>(std::clamp(first, 0.0, double{kMaxLayers}));
    const std::string openings = Counted(static_cast<std::size_t>(record_->NOPENS), "opening");
    bool same = true;
    for (const auto& [at, count] : std::span(counts).first(counts.size() - 1)) {
      if (count == first) continue;
      same = false;
      Find(kVesselFile, at + 1,
           "the first vessel has " + openings +
               ", this one another number: no project finds all vessels");
    }
    if (same && counts.size() > 1) {
      Find(kVesselFile, counts.front().first + 1,
           "a project finds the vessels behind the first one only while it has " + openings +
               " itself",
           true);
    }
  }

  // What is missing of a code in words; nothing when the walk finds it.
  std::string Finds_Site(double code) {
    record_->SelectedSiteCode = code;
    return Find_Site(folder_, *record_) ? "" : "the site is not found";
  }
  std::string Finds_Months(double code) {
    const auto missing = static_cast<std::size_t>(Months_Missing(folder_, code));
    if (missing == 0) return "";
    return Counted(missing, "month") + (missing == 1 ? " is" : " are") + " not found";
  }
  std::string Finds_Material(double code) {
    record_->SelectedMaterialCode = code;
    return Find_Material(folder_, *record_) ? "" : "the material is not found";
  }
  std::string Finds_Vessel(double code) {
    record_->SelectedVesselCode = code;
    const std::int16_t openings = record_->NOPENS;
    const bool found = Find_Vessel(folder_, *record_);
    record_->NOPENS = openings;
    return found ? "" : "the vessel is not found";
  }

  const std::string folder_;
  std::unique_ptr<ProjectRecord> record_ = std::make_unique<ProjectRecord>();
};

}  // namespace

int Database_Report::Faults() const {
  return static_cast<int>(std::ranges::count(findings, false, &Database_Finding::remark));
}

std::string Holds_Site_Already(const std::string& folder, int place) {
  const auto scan_has = [&](const Data_Layout& layout) {
    const auto file = Read_Lines(Join_Path(folder, layout.file));
    return file && Record_Scan(layout, file->lines, kMostEntries).first_lines.contains(place);
  };
  // A walk out of step may find what a scan takes for a part of another record.
  const auto record = std::make_unique<ProjectRecord>();
  record->SelectedSiteCode = Code_Of_Place(place);
  if (scan_has(kSiteLayout) || Find_Site(folder, *record)) return kSiteFile;
  if (scan_has(kVelocityLayout)) return kVelocityFile;
  for (int month = 1; month <= kMonths; ++month) {
    record->SelectedMonth = month;
    if (Find_Velocity(folder, *record)) return kVelocityFile;
  }
  return "";
}

Database_Report Check_Database(const std::string& folder) {
  return Database_Checker(folder).report;
}

std::string Kept_Copy_Of(const std::string& file) {
  std::string copy = file + ".bak";
  for (int number = 2; Find_Path(copy); ++number) copy = file + ".bak" + std::to_string(number);
  return copy;
}

Database_Mended Mend_Database(const std::string& folder, const Database_Report& report) {
  Database_Mended mended;
  for (const Database_Mend& mend : report.mends) {
    const std::string path = Path_To_Write(Join_Path(folder, mend.file));
    const std::string copy = Kept_Copy_Of(path);
    std::string bytes;
    int error = Read_Whole_File(path, bytes);
    if (error == 0) error = Write_Whole_File(copy, bytes);
    if (error == 0) error = Write_Whole_File(path, mend.bytes);
    if (error != 0) {
      // A copy of what is there still is not needed.
      std::string now;
      if (Read_Whole_File(path, now) == 0 && now == bytes) std::remove(copy.c_str());
      mended.error = error;
      mended.failed = mend.file;
      return mended;
    }
    mended.files.push_back(mend.file);
    mended.copies.push_back(mend.file + copy.substr(path.size()));
  }
  return mended;
}

}  // namespace barvon

#include <algorithm>
#include <cstdint>
#include <memory>
#include <tuple>

#include "checks/check_data.h"
#include "checks/remarks.h"
#include "core/desk/analysis_keys.h"
#include "core/desk/load_record.h"
#include "core/model_input/model_input.h"
#include "core/project_defaults.h"
#include "core/project_file/column_reader.h"
#include "core/project_file/exact_values.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "dilution/dilution_file.h"
#include "fuzz/readers.h"
#include "report/project_report.h"
#include "report/report_html.h"
#include "support/record_differences.h"

namespace barvon::fuzz {
namespace {

using testing::Differing_Fields;

constexpr int kFewPoints = 3;  // a side: the columns of a file that is short enough to be led
constexpr std::size_t kReportsEvery = 16;

const ProjectRecord& Fresh() {
  static const std::unique_ptr<ProjectRecord> record = Fresh_Record();
  return *record;
}

// ---- Projects

std::vector<std::string> Projects() {
  std::vector<std::string> files = Files_Of(BARVON_SAMPLES, ".DUI");
  for (std::string& file : Files_Of(BARVON_TEST_DATA "/dui", ".dui")) {
    files.push_back(std::move(file));
  }
  // The short layout is read four times as fast: half of the changes go there.
  const auto shorter = std::ranges::min_element(files, {}, &std::string::size);
  files.insert(files.end(), files.size(), std::string(*shorter));
  return files;
}

std::unique_ptr<ProjectRecord> Loaded(std::string_view bytes) {
  auto record = std::make_unique<ProjectRecord>(Fresh());
  if (Load_Project("site.dui", bytes, *record).failure != Failure::None) {
    Demand(Differing_Fields(*record, Fresh()).empty(), "a load that fails leaves the record");
    return nullptr;
  }
  return record;
}

void Open_Project_Bytes(std::string_view bytes) {
  auto record = std::make_unique<ProjectRecord>(Fresh());
  if (Load_Project("site.dui", bytes, *record).failure != Failure::None) return;
  Compute_Site_Density_From_Bulk(*record);
  Refresh_Record(*record);
}

std::string Saved(ProjectRecord& record) {
  Pack_Slots(record);
  return Save_Project("site.dui", record);
}

void Hold_Project(std::string_view bytes) {
  const auto record = Loaded(bytes);
  if (!record) return;
  const std::string saved = Saved(*record);
  const auto again = Loaded(saved);
  Demand(again != nullptr, "what was saved can be loaded");
  Demand(Saved(*again) == saved, "the second save is the first one");

  Compute_Site_Density_From_Bulk(*record);
  Refresh_Record(*record);
  Check_Data(*record);
  Remarks_On(*record);
  if (bytes.size() % kReportsEvery == 0) Report_Html(Project_Report(*record, {}));
  std::string model_input;
  const Failure failure = Make_Model_Input(*record, model_input);
  Demand(failure == Failure::None || model_input.empty(), "a failed model input is empty");
}

/// Lines of a good file, the one that the first byte names, with others in their place: two bytes
/// for the number of a line, its text up to a zero byte, and so on.
std::string Patched_Project(std::string_view input) {
  static const std::vector<std::string> files = Projects();
  if (input.empty()) return files.front();
  std::string_view rest = files[static_cast<unsigned char>(input[0]) % files.size()];
  input.remove_prefix(1);
  std::vector<std::string_view> lines;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size() - 1) + 1;
    lines.push_back(rest.substr(0, end));
    rest.remove_prefix(end);
  }
  while (input.size() > 2) {
    const auto number =
        static_cast<unsigned char>(input[0]) * 256U + static_cast<unsigned char>(input[1]);
    input.remove_prefix(2);
    const std::size_t end = std::min(input.find('\0'), input.size());
    lines[number % lines.size()] = input.substr(0, end);
    input.remove_prefix(std::min(end + 1, input.size()));
  }
  std::string file;
  for (const std::string_view line : lines) file += line;
  return file;
}

std::vector<std::string> Patches() {
  return {std::string("\0\0\3 1 2 3\r\n\0\0\7 1E999 .5 -3\r\n", 28),
          std::string("\20\5\42abc 1,2 3\r\n", 13)};
}

// ---- Parts of a project

/// The columns of a file of few points; its numbers are their places.
std::vector<std::string> Short_Columns() {
  std::string file = "   DUMP    3\r\nA site\r\n";
  for (const int count : {16, 16, 9}) {
    for (int i = 1; i <= count; ++i) file += i < 10 ? "    " + std::to_string(i) : "   12";
    file += "\r\n";
  }
  const int reals = kFirstDepthSlot - 1 + kFewPoints * kFewPoints;
  for (int slot = 1; slot <= reals; ++slot) {
    file += std::string(slot < 100 ? 8 : 7, ' ') + std::to_string(slot + 10) + ".";
    if (slot % 6 == 0) file += "\r\n";
  }
  file += "\r\nSand    Silt    Clay\r\nGGGGGG\r\nTFGTFGTFGTFGTFGTFG\r\n";
  for (int i = 0; i < 2 * kFewPoints * kFewPoints; ++i) file += " ." + std::to_string(i);
  return {file + "\r\n"};
}

void Read_Few_Columns(std::string_view bytes) {
  const File_Parts parts = Split_File(bytes);
  Demand(parts.columns.size() + parts.exact.size() == bytes.size(), "a file is its two parts");
  Read_Columns(parts.columns, kFewPoints, nullptr);
}

std::vector<std::string> Exact_Lines() {
  return {
      "Exact values of this project that the columns above this line can not hold: 2\r\n"
      "RealSlots(102) = 2.6512345678901234; the columns give 0\r\n"
      "SolidNames(1) = \"Coarse \\x22sand\"; the columns give \"\"\r\nEnd of the exact values\r\n",
      "Exact values of this project that the columns above this line can not hold: 3\r\n"
      "VelocityFieldX(3,7) = -0.3333333333333333; the columns give nothing\r\n"
      "TidalVelZ(26) = 0.125; the columns give nothing\r\nSectionStatus(6) = \"\\x0A\"; "
      "the columns give \"\"\r\nEnd of the exact values\r\n"};
}

void Apply_Exact_Lines(std::string_view bytes) {
  Columns_Read columns;
  columns.given.assign(Image_Numbers().size(), 0);
  const std::string file = "\n" + std::string(bytes);
  const File_Parts parts = Split_File(file);
  std::string damaged;
  if (!parts.exact.empty()) Apply_Exact_Values(parts, columns, damaged);
}

// ---- Lists of parameters

std::vector<std::string> Dilution_Lists() {
  auto record = std::make_unique<ProjectRecord>(Fresh());
  std::vector<std::string> files;
  for (const std::int16_t count : {0, 2, 40}) {
    record->DiluteRowCount = count;
    record->DiluteSolidsConc = 50;
    for (int i = 1; i <= count; ++i) {
      record->DiluteParameterNames[i] = "Parameter " + std::to_string(i);
      record->DiluteBulk[i] = 1000.0 / i;
      record->DiluteElutriate[i] = i;
      record->DiluteCriteria[i] = 0.1 * i;
      record->DiluteBackground[i] = 1e-7 * i;
    }
    files.push_back(Write_Dilution_File(*record));
  }
  return files;
}

/// All that a list fills.
bool Same_List(const ProjectRecord& a, const ProjectRecord& b) {
  const auto fields = [](const ProjectRecord& record) {
    return std::tie(record.ProjectTitle, record.DiluteRowCount, record.DiluteSolidsConc,
                    record.DiluteParameterNames, record.DiluteBulk, record.DiluteElutriate,
                    record.DiluteCriteria, record.DiluteBackground);
  };
  return fields(a) == fields(b);
}

std::unique_ptr<ProjectRecord> Read_Dilution(std::string_view bytes) {
  auto record = std::make_unique<ProjectRecord>(Fresh());
  if (Read_Dilution_File(bytes, *record) == Failure::None) return record;
  Demand(Same_List(*record, Fresh()), "a list that fails leaves the record");
  return nullptr;
}

void Open_Dilution(std::string_view bytes) { Read_Dilution(bytes); }

void Hold_Dilution(std::string_view bytes) {
  const auto record = Read_Dilution(bytes);
  if (!record) return;
  // Letters and digits that a field can't hold are gone with the first save.
  const auto first = Read_Dilution(Write_Dilution_File(*record));
  Demand(first != nullptr, "a list that was saved can be read");
  const auto second = Read_Dilution(Write_Dilution_File(*first));
  Demand(second != nullptr && Same_List(*first, *second), "a list that was saved stays as it is");
}

constexpr Reader kReaders[] = {
    {"project", 4, Projects, Open_Project_Bytes, Hold_Project, nullptr},
    {"project_lines", 0, Patches, Open_Project_Bytes, Hold_Project, Patched_Project},
    {"columns", 0, Short_Columns, Read_Few_Columns, nullptr, nullptr},
    {"exact_values", 0, Exact_Lines, Apply_Exact_Lines, nullptr, nullptr},
    {"dilution", 22, Dilution_Lists, Open_Dilution, Hold_Dilution, nullptr},
};

}  // namespace

std::span<const Reader> Project_Readers() { return kReaders; }

}  // namespace barvon::fuzz

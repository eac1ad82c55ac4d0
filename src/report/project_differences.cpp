#include "report/project_differences.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>
#include <variant>

#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/text/counted.h"
#include "report/report_sections.h"
#include "site/site_data.h"

namespace barvon {
namespace {

constexpr std::size_t kMostCells = 12;  // of one table that are told one by one

/// A value as a report tells it.
struct Told {
  std::string where, table, what, value;
  int time = 0;  // how often the same was told before

  auto Key() const { return std::tie(where, table, what, time); }
  bool operator<(const Told& other) const { return Key() < other.Key(); }
};

std::string With_Words(const std::string& before, const std::string& text) {
  return before.empty() ? text : text.empty() ? before : before + ": " + text;
}

std::string On_One_Line(std::string text) {
  std::ranges::replace(text, '\n', ' ');
  return text;
}

/// Takes what is told out of the parts of a report.
class Teller {
 public:
  std::vector<Told> told;

  void operator()(const Report_Heading& heading) {
    if (heading.level == 1) where_ = heading.text;
    part_ = heading.level == 1 ? "" : heading.text;
  }
  void operator()(const Report_Table& table) {
    const std::string caption = table.caption.empty() ? part_ : table.caption;
    if (table.kind == Table_Kind::values) {
      Values(table);
    } else {
      Cells(caption, table);
    }
  }
  template <class Other>
  void operator()(const Other&) {}

  void Tell(const std::string& table, const std::string& what, const std::string& value) {
    const int time = times_[where_ + '\n' + table + '\n' + what]++;
    told.push_back({where_, table, what, value, time});
  }
  void Chapter(const std::string& where) { where_ = where; }

 private:
  void Values(const Report_Table& table) {
    std::string group;
    for (const Report_Row& row : table.rows) {
      if (row.group) group = row.cells.front();
      if (row.group || row.cells.size() < 2) continue;
      const bool has_unit = row.cells.size() > 2 && !row.cells[2].empty();
      Tell("", With_Words(row.inside ? group : "", row.cells[0]),
           row.cells[1] + (has_unit ? " " + row.cells[2] : ""));
    }
  }
  void Cells(const std::string& caption, const Report_Table& table) {
    const bool headed = !table.columns.empty() && table.columns.front().heading.empty();
    int number = 0;
    for (const Report_Row& row : table.rows) {
      ++number;
      const std::string name =
          headed && !row.cells.empty() ? row.cells.front() : "row " + std::to_string(number);
      for (std::size_t i = headed ? 1 : 0; i < row.cells.size(); ++i) {
        const std::string column =
            i < table.columns.size() ? On_One_Line(table.columns[i].heading) : "";
        std::string cell = name;
        if (!column.empty()) cell.append(", ").append(column);
        Tell(caption.empty() ? where_ : caption, With_Words(caption, cell), row.cells[i]);
      }
    }
  }

  std::string where_, part_;
  std::map<std::string, int> times_;
};

void Tell_Dilutions(const ProjectRecord& record, Teller& teller) {
  constexpr char kList[] = "Dilution calculator";
  teller.Chapter(kList);
  teller.Tell("", "Parameters", std::to_string(record.DiluteRowCount));
  teller.Tell("", "Solids Concentration", Plain_Number(record.DiluteSolidsConc) + " g/L");
  for (int i = 1; i <= std::clamp<int>(record.DiluteRowCount, 0, kMaxDilutionRows); ++i) {
    const std::string row = "row " + std::to_string(i) + ", ";
    teller.Tell(kList, row + "name", record.DiluteParameterNames[i]);
    teller.Tell(kList, row + "sediment", Plain_Number(record.DiluteBulk[i]));
    teller.Tell(kList, row + "elutriate", Plain_Number(record.DiluteElutriate[i]));
    teller.Tell(kList, row + "criterion", Plain_Number(record.DiluteCriteria[i]));
    teller.Tell(kList, row + "background", Plain_Number(record.DiluteBackground[i]));
  }
}

std::vector<Told> What_Is_Told(const ProjectRecord& project) {
  // A file has no dimensions of the grid: they follow from its counts and spacings.
  const auto record = std::make_unique<ProjectRecord>(project);
  Store_Dimensions(*record);
  Report_Maker report(*record);
  for (const Report_Section& section : kReportSections) {
    if (section.tells_entries) section.write(report);
  }
  Teller teller;
  teller.Chapter("Study");
  teller.Tell("", "Project Title", Trimmed(record->ProjectTitle));
  for (const Report_Part& part : report.document.parts) std::visit(teller, part);
  Tell_Dilutions(*record, teller);
  return std::move(teller.told);
}

using Values = std::map<Told, std::string>;

Values By_Key(const std::vector<Told>& told) {
  Values values;
  for (const Told& entry : told) values.emplace(entry, entry.value);
  return values;
}

std::string Value_In(const Values& values, const Told& entry) {
  const auto found = values.find(entry);
  return found == values.end() ? "" : found->second;
}

}  // namespace

std::vector<Project_Difference> Differences_Of(const ProjectRecord& one,
                                               const ProjectRecord& other) {
  const std::vector<Told> first = What_Is_Told(one);
  std::vector<Told> all = What_Is_Told(other);
  const Values ones = By_Key(first), others = By_Key(all);
  std::ranges::copy_if(first, std::back_inserter(all),
                       [&](const Told& entry) { return !others.contains(entry); });
  std::map<std::string, int> places;
  for (const Told& entry : all) places.emplace(entry.where, static_cast<int>(places.size()));
  std::ranges::stable_sort(all, {}, [&](const Told& entry) { return places[entry.where]; });
  std::erase_if(
      all, [&](const Told& entry) { return Value_In(ones, entry) == Value_In(others, entry); });

  std::map<std::pair<std::string, std::string>, std::size_t> counts;
  for (const Told& entry : all) ++counts[{entry.where, entry.table}];
  std::vector<Project_Difference> differences;
  for (const Told& entry : all) {
    std::size_t& count = counts[{entry.where, entry.table}];
    if (entry.table.empty() || count <= kMostCells) {
      if (count == 0) continue;
      differences.push_back(
          {entry.where, entry.what, Value_In(ones, entry), Value_In(others, entry)});
    } else {
      differences.push_back({entry.where, entry.table, "", Counted(count, "value") + " differ"});
      count = 0;
    }
  }
  return differences;
}

}  // namespace barvon

#include "results/series_reader.h"

#include <cstddef>

#include "results/result_lines.h"
#include "results/row_order.h"

namespace barvon {
namespace {

constexpr std::size_t kNameColumns = 10, kUnitColumns = 4, kGap = 2;
constexpr int kMostSpecies = 99;

class Series {
 public:
  Series(const std::string& file, std::string_view bytes, Results& results)
      : lines_(file, bytes), results_(results) {}

  std::optional<Result_Problem> Read() {
    if (auto problem = Take_Result_Head(lines_, "Time series", results_)) return problem;
    for (; !lines_.At_End(); lines_.Next()) {
      Result_Columns columns(lines_.Line());
      if (!Read_Line(lines_.Tag(), columns)) return lines_.Unknown_Tag();
      columns.End();
      if (!columns.Reason().empty()) return lines_.Problem(columns.Reason());
    }
    if (const std::string reason = Incomplete(); !reason.empty()) {
      return lines_.Problem("the output is not whole: " + reason);
    }
    return lines_.Changed();
  }

 private:
  int Species() const { return static_cast<int>(results_.species.size()); }

  bool Read_Line(std::string_view tag, Result_Columns& columns) {
    if (tag == "MAXI ") {
      Read_Maxima(columns);
    } else if (tag == "PEAK ") {
      Read_Peak(columns);
    } else if (tag == "MASS ") {
      Read_Mass(columns);
    } else if (tag == "SPEC ") {
      Read_Species(columns);
    } else if (tag == "LIMI ") {
      Read_Limit(columns);
    } else if (tag == "VERD ") {
      results_.verdicts.push_back(columns.Rest());
    } else {
      return false;
    }
    return true;
  }

  void Read_Species(Result_Columns& columns) {
    columns.Count(Species() + 1, Species() + 1);
    if (Species() == kMostSpecies) columns.Fail("more species than a run has");
    columns.Skip_Blanks(kGap);
    Result_Species species;
    species.name = columns.Text(kNameColumns);
    species.unit = columns.Text(kUnitColumns);
    if (species.unit != "mg/l" && species.unit != "%") columns.Fail("no unit \"mg/l\" or \"%\"");
    if (maxima_.Times() + peaks_.Times() + masses_.Times() > 0) {
      columns.Fail("a species behind the series");
    }
    results_.species.push_back(species);
  }

  void Read_Limit(Result_Columns& columns) {
    constexpr int kAnywhere = static_cast<int>(Result_Where::anywhere);
    Result_Limit limit;
    limit.species = columns.Count(1, Species());
    limit.where = static_cast<Result_Where>(columns.Count(0, kAnywhere));
    limit.value = columns.Sci();
    limit.from = columns.Sci();
    limit.exceeded = columns.Count(0, 1) == 1;
    limit.first = columns.Sci();
    limit.last = columns.Sci();
    limit.worst = columns.Sci();
    limit.worst_time = columns.Sci();
    columns.Skip_Blanks(kGap);
    limit.of = columns.Rest();
    results_.limits.push_back(limit);
  }

  void Read_Maxima(Result_Columns& columns) {
    Result_Maxima row;
    row.time = columns.Sci();
    row.species = columns.Count(1, Species());
    row.depth = columns.Sci();
    row.inside = columns.Sci();
    row.outside = columns.Sci();
    row.outside_zid = columns.Sci();
    columns.Fail(maxima_.Next(row.time, row.species, row.depth));
    results_.maxima.push_back(row);
  }

  void Read_Peak(Result_Columns& columns) {
    Result_Peak row;
    row.time = columns.Sci();
    row.species = columns.Count(1, Species());
    row.value = columns.Sci();
    row.x = columns.Sci();
    row.z = columns.Sci();
    row.depth = columns.Sci();
    columns.Fail(peaks_.Next(row.time, row.species));
    results_.peaks.push_back(row);
  }

  void Read_Mass(Result_Columns& columns) {
    Result_Mass row;
    row.time = columns.Sci();
    row.species = columns.Count(1, Species());
    row.suspended = columns.Sci();
    row.on_grid = columns.Sci();
    row.off_grid = columns.Sci();
    row.released = columns.Sci();
    columns.Fail(masses_.Next(row.time, row.species));
    results_.masses.push_back(row);
  }

  /// Lines that are missing from an output that was cut between two of them.
  std::string Incomplete() const {
    if (results_.species.empty()) return "no SPEC line";
    if (masses_.Times() == 0) return "no MASS line";
    for (const Row_Order* rows : {&maxima_, &peaks_, &masses_}) {
      if (std::string reason = rows->End(); !reason.empty()) return reason;
      if (rows->Rows_A_Time() % results_.species.size() != 0) return "a species has fewer lines";
    }
    // Descent and collapse alone have none of the first two.
    if (maxima_.Times() != peaks_.Times()) return "MAXI and PEAK lines of different times";
    if (maxima_.Times() > masses_.Times()) return "MASS lines of some times are missing";
    return {};
  }

  Result_Lines lines_;
  Results& results_;
  Row_Order maxima_, peaks_, masses_;
};

}  // namespace

std::optional<Result_Problem> Read_Series(const std::string& file, std::string_view bytes,
                                          Results& results) {
  return Series(file, bytes, results).Read();
}

}  // namespace barvon

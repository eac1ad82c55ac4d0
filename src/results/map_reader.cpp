#include "results/map_reader.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "results/result_lines.h"
#include "results/row_order.h"

namespace barvon {
namespace {

constexpr int kMostSpecies = 99;

class Maps {
 public:
  Maps(const std::string& file, std::string_view bytes, Results& results)
      : lines_(file, bytes), results_(results) {}

  std::optional<Result_Problem> Read() {
    if (auto problem = Take_Result_Head(lines_, "Maps", results_)) return problem;
    if (lines_.At_End() || lines_.Tag() != "GRID ") return lines_.Problem("no GRID line");
    while (!lines_.At_End()) {
      if (auto problem = Read_Line(lines_.Tag())) return problem;
    }
    if (const std::string reason = Incomplete(); !reason.empty()) {
      return lines_.Problem("the output is not whole: " + reason);
    }
    return lines_.Changed();
  }

 private:
  std::optional<Result_Problem> Read_Line(std::string_view tag) {
    if (tag == "MAP  ") return Read_Map(results_.maps, map_order_, 1);
    if (tag == "BED  ") return Read_Map(results_.beds, bed_order_, 0);
    if (tag == "MOST ") return Read_Map(results_.most, most_order_, 1);
    Result_Columns columns(lines_.Line());
    if (tag == "GRID ") {
      Read_Grid(columns);
    } else if (tag == "SITE " || tag == "ZONE ") {
      Read_Area(columns, results_.site);
      results_.mixing_zone = tag == "ZONE ";
    } else if (tag == "ZIDR ") {
      Read_Area(columns, results_.zid);
    } else if (tag == "POIN ") {
      if (results_.disposal) columns.Fail("a second POIN line");
      results_.disposal.emplace();
      results_.disposal->x = columns.Sci();
      results_.disposal->z = columns.Sci();
    } else {
      return lines_.Unknown_Tag();
    }
    return Passed(columns);
  }

  /// Goes to the next line where this one is sound.
  std::optional<Result_Problem> Passed(Result_Columns& columns) {
    columns.End();
    if (!columns.Reason().empty()) return lines_.Problem(columns.Reason());
    lines_.Next();
    return std::nullopt;
  }

  void Read_Grid(Result_Columns& columns) {
    Result_Grid& grid = results_.grid;
    if (grid.rows > 0) columns.Fail("a second GRID line");
    grid.rows = columns.Count(1, kMostResultPoints);
    grid.columns = columns.Count(1, kMostResultPoints);
    grid.spacing_x = columns.Sci();
    grid.spacing_z = columns.Sci();
    if (!(grid.spacing_x > 0 && grid.spacing_z > 0)) columns.Fail("a spacing that is not above 0");
  }

  static void Read_Area(Result_Columns& columns, std::optional<Result_Area>& area) {
    if (area) columns.Fail("a second line of this tag");
    area.emplace();
    area->top = columns.Sci();
    area->bottom = columns.Sci();
    area->left = columns.Sci();
    area->right = columns.Sci();
    if (area->bottom < area->top || area->right < area->left) {
      columns.Fail("an area that ends before it begins");
    }
  }

  int Most_Species() const {
    return results_.species.empty() ? kMostSpecies : static_cast<int>(results_.species.size());
  }

  std::optional<Result_Problem> Read_Map(std::vector<Result_Map>& to, Row_Order& order,
                                         int first_species) {
    const Result_Grid& grid = results_.grid;
    Result_Columns columns(lines_.Line());
    Result_Map map;
    map.time = columns.Sci();
    map.species = columns.Count(first_species, Most_Species());
    map.depth = columns.Sci();
    map.base = columns.Sci();
    map.top = columns.Count(1, grid.rows);
    map.bottom = columns.Count(0, grid.rows);
    map.left = columns.Count(1, grid.columns);
    map.right = columns.Count(0, grid.columns);
    if ((map.bottom < map.top) != (map.right < map.left)) {
      columns.Fail("a window without rows that has columns, or the other way");
    }
    columns.Fail(order.Next(map.time, map.species, map.depth));
    if (auto problem = Passed(columns)) return problem;
    if (map.bottom >= map.top) {
      const int width = map.right - map.left + 1, height = map.bottom - map.top + 1;
      map.values.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    }
    for (int row = map.top; row <= map.bottom; ++row) {
      if (lines_.At_End()) return lines_.Problem("the output ends within a map");
      Result_Columns values(lines_.Line(), 0);
      for (int column = map.left; column <= map.right; ++column) {
        map.values.push_back(values.Map_Number());
      }
      if (auto problem = Passed(values)) return problem;
    }
    to.push_back(std::move(map));
    return std::nullopt;
  }

  /// Maps that are missing from an output that was cut between two of them.
  std::string Incomplete() const {
    if (bed_order_.Times() == 0) return "no BED line";
    for (const Row_Order* rows : {&map_order_, &bed_order_, &most_order_}) {
      if (std::string reason = rows->End(); !reason.empty()) return reason;
    }
    // Descent and collapse alone have neither.
    if (map_order_.Rows_A_Time() != most_order_.Rows_A_Time()) {
      return "MAP and MOST lines of different species or depths";
    }
    if (map_order_.Times() > bed_order_.Times()) return "BED lines of some times are missing";
    return {};
  }

  Result_Lines lines_;
  Results& results_;
  Row_Order map_order_, bed_order_, most_order_;
};

}  // namespace

std::optional<Result_Problem> Read_Maps(const std::string& file, std::string_view bytes,
                                        Results& results) {
  return Maps(file, bytes, results).Read();
}

}  // namespace barvon

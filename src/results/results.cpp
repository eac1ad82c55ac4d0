#include "results/results.h"

#include <cstddef>

#include "results/plain_numbers.h"

namespace barvon {

double Cell_Base(const Result_Map& map) { return In_Digits(map.base, kMapDigits); }

Cell_Values Whole_Grid(const Result_Grid& grid, const Result_Map& map) {
  Cell_Values whole{.rows = grid.rows,
                    .columns = grid.columns,
                    .spacing_x = grid.spacing_x,
                    .spacing_z = grid.spacing_z,
                    .values = {}};
  const auto columns = static_cast<std::size_t>(grid.columns);
  whole.values.assign(static_cast<std::size_t>(grid.rows) * columns, Cell_Base(map));
  auto value = map.values.begin();
  for (int row = map.top; row <= map.bottom; ++row) {
    const std::size_t first = static_cast<std::size_t>(row - 1) * columns;
    for (int column = map.left; column <= map.right; ++column) {
      whole.values[first + static_cast<std::size_t>(column - 1)] = *value++;
    }
  }
  return whole;
}

}  // namespace barvon

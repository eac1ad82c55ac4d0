#include "results/drawings/deposit_words.h"

#include "results/cell_places.h"
#include "results/drawings/map_words.h"
#include "results/plain_numbers.h"

namespace barvon {
namespace {

constexpr double kFeet3InYard3 = 27, kFeet2InAcre = 43560;

}  // namespace

std::string Volume_Words(const Cell_Values& thickness, bool difference) {
  const double volume = Volume_Of(thickness);
  const std::string sign = difference && volume > 0 ? "+" : "";
  return sign + Reading_Words(volume, "ft3") + " (" + sign +
         Reading_Words(volume / kFeet3InYard3, "yd3") + ")";
}

std::string Area_Words(const Cell_Values& thickness, const std::string& typed_limit) {
  const auto limit = Number_Of(typed_limit);
  if (!limit) return "A thickness in feet is needed, like 0.1.";
  if (*limit < 0) return "A thickness below 0 has no area of its own.";
  const double area = Cell_Area_Above(thickness, *limit);
  return Reading_Words(area, "ft2") + " (" + Reading_Words(area / kFeet2InAcre, "acres") + ")";
}

}  // namespace barvon

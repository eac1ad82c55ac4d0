#include "core/model_input/vessel_footprint.h"

#include <array>
#include <cstddef>

namespace barvon {
namespace {

/// How many bins lie along and across the vessel, and the gaps between them.
struct Bin_Pattern {
  int lengths, gaps_along, widths, gaps_across;
};

/// By NBINS, from 1.
constexpr std::array<Bin_Pattern, 9> kBinPatterns = {{
    {1, 0, 1, 0},
    {1, 0, 1, 0},
    {1, 0, 2, 1},
    {3, 2, 1, 0},
    {2, 1, 2, 1},
    {5, 4, 1, 0},
    {3, 2, 2, 1},
    {6, 5, 1, 0},  // seven bins count as six lengths, and that stays
    {4, 3, 2, 1},
}};

}  // namespace

Footprint Vessel_Footprint(int bins, const Bin_Size& bin) {
  const bool known = bins >= 1 && bins < static_cast<int>(kBinPatterns.size());
  const Bin_Pattern& pattern = kBinPatterns[known ? static_cast<std::size_t>(bins) : 1];
  Footprint footprint{pattern.lengths * bin.length, pattern.widths * bin.width};
  if (pattern.gaps_along > 0) footprint.length += pattern.gaps_along * bin.gap;
  if (pattern.gaps_across > 0) footprint.width += pattern.gaps_across * bin.gap;
  return footprint;
}

Footprint Vessel_Footprint(const ProjectRecord& record) {
  return Vessel_Footprint(record.NBINS, {record.BINL, record.BINW, record.DBINS});
}

}  // namespace barvon

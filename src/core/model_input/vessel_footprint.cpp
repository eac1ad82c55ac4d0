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

Footprint Vessel_Footprint(const ProjectRecord& record) {
  const bool known = record.NBINS >= 1 && record.NBINS < static_cast<int>(kBinPatterns.size());
  const Bin_Pattern& bins = kBinPatterns[known ? static_cast<std::size_t>(record.NBINS) : 1];
  Footprint footprint{bins.lengths * record.BINL, bins.widths * record.BINW};
  if (bins.gaps_along > 0) footprint.length += bins.gaps_along * record.DBINS;
  if (bins.gaps_across > 0) footprint.width += bins.gaps_across * record.DBINS;
  return footprint;
}

}  // namespace barvon

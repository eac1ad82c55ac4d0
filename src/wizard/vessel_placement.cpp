#include "wizard/vessel_placement.h"

#include <algorithm>
#include <cstddef>

namespace barvon {
namespace {

constexpr double kUpstream = 0.2, kDownstream = 0.8;  // parts of the grid's length
constexpr double kFootprintsOff = 3, kBargesOff = 2;

/// How the bins that open together lie: rows of them along the vessel, one or two abreast.
struct Bins {
  int along, abreast;
};
// Seven bins are six lengths; users' sites rely on it.
constexpr Bins kBins[] = {{1, 1}, {1, 2}, {3, 1}, {2, 2}, {5, 1}, {3, 2}, {6, 1}, {4, 2}};
constexpr int kMostBins = static_cast<int>(std::size(kBins));

double Extent(int bins, double size, double distance) {
  return bins * size + (bins - 1) * distance;
}

double Grid_Extent(int points, double spacing) { return (points - 1) * spacing; }

}  // namespace

Vessel_Footprint VesselFootprint(const ProjectRecord& record) {
  const bool known = record.NBINS >= 1 && record.NBINS <= kMostBins;
  const Bins bins = kBins[known ? static_cast<std::size_t>(record.NBINS - 1) : 0];
  return {Extent(bins.along, record.BINL, record.DBINS),
          Extent(bins.abreast, record.BINW, record.DBINS)};
}

void PlaceVesselFromTypicalVelocity(const Typical_Velocity& velocity, ProjectRecord& record) {
  record.XBARGE =
      (velocity.TypicalVelX < 0 ? kDownstream : kUpstream) * Grid_Extent(record.MMAX0, record.DX0);
  record.ZBARGE =
      (velocity.TypicalVelZ < 0 ? kDownstream : kUpstream) * Grid_Extent(record.NMAX0, record.DZ0);
}

void PlaceSiteEdges(const Typical_Velocity& velocity, bool hopper, ProjectRecord& record) {
  double offset = kBargesOff * record.BargeLength;
  if (hopper) {
    const Vessel_Footprint footprint = VesselFootprint(record);
    offset = kFootprintsOff * std::max(footprint.FootprintLength, footprint.FootprintWidth);
  }
  if (velocity.TypicalVelX < 0) {
    record.SiteBottom = record.XBARGE + offset;
  } else {
    record.SiteTop = record.XBARGE - offset;
  }
  if (velocity.TypicalVelZ < 0) {
    record.SiteRight = record.ZBARGE + offset;
  } else {
    record.SiteLeft = record.ZBARGE - offset;
  }
}

}  // namespace barvon

#include "wizard/vessel_placement.h"

#include <algorithm>

#include "core/model_input/vessel_footprint.h"

namespace barvon {
namespace {

constexpr double kUpstream = 0.2, kDownstream = 0.8;  // parts of the grid's length
constexpr double kFootprintsOff = 3, kBargesOff = 2;

double Grid_Extent(int points, double spacing) { return (points - 1) * spacing; }

}  // namespace

void PlaceVesselFromTypicalVelocity(const Typical_Velocity& velocity, ProjectRecord& record) {
  record.XBARGE =
      (velocity.TypicalVelX < 0 ? kDownstream : kUpstream) * Grid_Extent(record.MMAX0, record.DX0);
  record.ZBARGE =
      (velocity.TypicalVelZ < 0 ? kDownstream : kUpstream) * Grid_Extent(record.NMAX0, record.DZ0);
}

void PlaceSiteEdges(const Typical_Velocity& velocity, bool hopper, ProjectRecord& record) {
  double offset = kBargesOff * record.BargeLength;
  if (hopper) {
    const Footprint footprint = Vessel_Footprint(record);
    offset = kFootprintsOff * std::max(footprint.length, footprint.width);
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

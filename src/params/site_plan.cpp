#include "params/site_plan.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/keys.h"
#include "core/model_input/vessel_footprint.h"
#include "core/number_text.h"
#include "core/velocity_types.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr double kDegreesOfHalfTurn = 180;

double Length(int points, double spacing) { return (points - 1) * spacing; }

int Points(std::int16_t count) { return std::clamp<int>(count, 0, kMaxGridPoints); }

// The velocities of the field lie at the grid points, [x][z].
Mean_Current Mean_Of_Field(const ProjectRecord& record) {
  Mean_Current sum;
  const int rows = Points(record.MMAX0), columns = Points(record.NMAX0);
  for (int row = 1; row <= rows; ++row) {
    for (int column = 1; column <= columns; ++column) {
      sum.x += record.VelocityFieldX[row][column];
      sum.z += record.VelocityFieldZ[row][column];
    }
  }
  const double count = std::max(1, rows * columns);
  return {sum.x / count, sum.z / count};
}

std::optional<Mean_Current> Current_Of(const ProjectRecord& record) {
  switch (Form_Of_Type(record.VelocityProfileType)) {
    case kSingleForm:
      return Mean_Current{record.AvgVelocityX, record.AvgVelocityZ};
    case kTwoPointForm:
      return Mean_Current{(record.VelX1 + record.VelX2) / 2, (record.VelZ1 + record.VelZ2) / 2};
    case kFieldForm:
      return Mean_Of_Field(record);
    case kUnsteadyForm:
      return Mean_Current{Widen(record.TidalAvgVelX), Widen(record.TidalAvgVelZ)};
    case kNoForm:
      break;
  }
  return std::nullopt;
}

std::vector<Vessel_Leg> Legs_Of_Record(const ProjectRecord& record, int count, double seconds) {
  std::vector<Vessel_Velocity> velocities;
  for (int i = 1; i <= std::min(count, kMaxLayers); ++i) {
    velocities.push_back({record.LayerVelX[i], record.LayerVelZ[i]});
  }
  return Legs_Of(velocities, seconds);
}

void Add_Vessel(const ProjectRecord& record, Site_Plan& site) {
  site.disposal_point = Feet_Point{record.XBARGE, record.ZBARGE};
  if (record.DisposalMethod == kHopper) {
    const Footprint bins = Vessel_Footprint(record);
    site.vessel_length = bins.length;
    site.vessel_width = bins.width;
    site.course = Legs_Of_Record(record, record.NOPENS, record.TDIS);
  } else if (record.DisposalMethod == kBarge) {
    site.vessel_length = record.BargeLength;
    site.vessel_width = record.BargeWidth;
    site.course = Legs_Of_Record(record, record.LAYERS, record.BargeEmptyTime);
  } else if (record.DisposalMethod == kContinuous) {
    site.course = {
        Leg_Of_Course(record.VesselSpeed, record.VesselCourse, record.DischargeDuration)};
  }
  if (!Has_Vessel(record)) return;
  site.hole_x = record.XHOLE;
  site.hole_z = record.ZHOLE;
}

}  // namespace

Site_Plan Plan_Of_Site(const ProjectRecord& record) {
  Site_Plan site;
  site.length_x = Length(record.MMAX0, record.DX0);
  site.length_z = Length(record.NMAX0, record.DZ0);
  Add_Vessel(record, site);
  if (Speaks_Of_Disposal_Site(record)) site.boundary_name = "Disposal site";
  // All zeros leave the mixing zone and the ZID to the program.
  const auto given = [](const Feet_Area& area) {
    return area.top != 0 || area.left != 0 || area.bottom != 0 || area.right != 0;
  };
  const Feet_Area boundary = {record.SiteTop, record.SiteLeft, record.SiteBottom, record.SiteRight};
  if (Is_Regulatory(record) && given(boundary)) site.boundary = boundary;
  const Feet_Area zid = {record.ZidTop, record.ZidLeft, record.ZidBottom, record.ZidRight};
  if (Has_Zid(record) && given(zid)) site.zid = zid;
  site.current = Current_Of(record);
  return site;
}

std::vector<Vessel_Leg> Legs_Of(std::span<const Vessel_Velocity> velocities, double seconds) {
  std::vector<Vessel_Leg> legs;
  for (const Vessel_Velocity& velocity : velocities) {
    legs.push_back({velocity.x, velocity.z, seconds / static_cast<double>(velocities.size())});
  }
  return legs;
}

Vessel_Leg Leg_Of_Course(double speed, double degrees, double seconds) {
  const double angle = degrees * std::numbers::pi / kDegreesOfHalfTurn;
  return {speed * std::cos(angle), speed * std::sin(angle), seconds};
}

bool Agrees_To_Put(const std::string& what, const Feet_Point& point) {
  return Ask("Put " + what + " at X = " + Plain_Number(point.x) +
                 " ft, Z = " + Plain_Number(point.z) + " ft?",
             Buttons::YesNo, Icon::Question) == Answer::Yes;
}

}  // namespace barvon

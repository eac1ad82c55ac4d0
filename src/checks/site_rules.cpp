#include "checks/site_rules.h"

#include <algorithm>
#include <string>

#include "checks/references.h"
#include "core/format_pattern.h"
#include "core/keys.h"

namespace barvon {
namespace {

constexpr int kLeastGridPoints = 8;
constexpr double kLeastRoughness = 0.0005;  // ft
constexpr double kMostRoughness = 0.05;     // ft

constexpr char kSiteOutsideGrid[] = "Location of Disposal Site is Outside of the Site Grid";
constexpr char kZoneOutsideGrid[] = "Location of the Mixing Zone is Outside of the Site Grid";
constexpr char kVesselOutsideSite[] = "Dumping Point is Outside of Specified Mixing Zone";

const char* Site_Message(const ProjectRecord& record) {
  return Speaks_Of_Disposal_Site(record) ? kSiteOutsideGrid : kZoneOutsideGrid;
}

// The extents of the grid are points x spacing here, one spacing more than the grid is long.
double X_Extent(const ProjectRecord& record) { return record.MMAX0 * record.DX0; }
double Z_Extent(const ProjectRecord& record) { return record.NMAX0 * record.DZ0; }

bool Outside(double corner, double extent) { return corner < 0 || corner > extent; }

bool Grid_Count_Outside_Bounds(int points) {
  return points < kLeastGridPoints || points > kMaxGridPoints;
}

std::string Grid_Count_Message(int points) {
  return "Number of Grid Pts (" + Format_Number(points, "###") + ") Outside Bounds";
}

void Check_Z_Count(const ProjectRecord& record, Error_List& errors) {
  if (Grid_Count_Outside_Bounds(record.NMAX0)) {
    errors.Add(Grid_Count_Message(record.NMAX0), reference::kSiteZPoints);
  }
}

void Check_X_Count(const ProjectRecord& record, Error_List& errors) {
  if (Grid_Count_Outside_Bounds(record.MMAX0)) {
    errors.Add(Grid_Count_Message(record.MMAX0), reference::kSiteXPoints);
  }
}

void Check_Z_Spacing(const ProjectRecord& record, Error_List& errors) {
  if (record.DZ0 < 0) errors.Add("Z Grid Spacing Less Than Zero", reference::kSiteZSpacing);
}

void Check_X_Spacing(const ProjectRecord& record, Error_List& errors) {
  if (record.DX0 < 0) errors.Add("X Grid Spacing Less Than Zero", reference::kSiteXSpacing);
}

void Check_Roughness(const ProjectRecord& record, Error_List& errors) {
  if (record.RHDA0 < kLeastRoughness || record.RHDA0 > kMostRoughness) {
    errors.Add("Roughness Height Outside Bounds", reference::kSiteRoughness);
  }
}

void Check_Depth(const ProjectRecord& record, Error_List& errors) {
  if (record.DEPC0 <= 0 && record.ConstantDepthFlag == 1) {
    errors.Add("Depth of Receiving Water Not Supplied", reference::kSiteDensities);
  }
}

void Check_Densities(const ProjectRecord& record, Error_List& errors) {
  const int points = std::min<int>(record.NROA0, kMaxDensityPoints);
  for (int i = 1; i <= points; ++i) {
    if (record.Densities[i] == 0) {
      errors.Add(
          "Density Value Not Supplied at Depth = " + Format_Number(record.DensityDepths[i], "####"),
          reference::kSiteDensities);
    }
  }
}

// Top and left are each held against the other axis' extent, bottom and right against their own:
// a top edge is measured along Z. Users' projects rely on it.
void Check_Site_Top(const ProjectRecord& record, Error_List& errors) {
  if (Outside(record.SiteTop, Z_Extent(record))) {
    errors.Add(Site_Message(record), reference::kBoundaryTop);
  }
}

void Check_Site_Left(const ProjectRecord& record, Error_List& errors) {
  if (Outside(record.SiteLeft, X_Extent(record))) {
    errors.Add(Site_Message(record), reference::kBoundaryLeft);
  }
}

void Check_Site_Bottom(const ProjectRecord& record, Error_List& errors) {
  if (Outside(record.SiteBottom, X_Extent(record))) {
    errors.Add(Site_Message(record), reference::kBoundaryBottom);
  }
}

void Check_Site_Right(const ProjectRecord& record, Error_List& errors) {
  if (Outside(record.SiteRight, Z_Extent(record))) {
    errors.Add(Site_Message(record), reference::kBoundaryRight);
  }
}

void Check_Site_Given(const ProjectRecord& record, Error_List& errors) {
  if (Speaks_Of_Disposal_Site(record) && record.SiteTop == 0 && record.SiteLeft == 0 &&
      record.SiteBottom == 0 && record.SiteRight == 0) {
    errors.Add("Disposal Site Is Not Specified", reference::kBoundaryTop);
  }
}

/// Only a rectangle that is turned round both ways is found.
void Check_Site_Corners(const ProjectRecord& record, Error_List& errors) {
  if (Is_Regulatory(record) && record.SiteTop > record.SiteBottom &&
      record.SiteLeft > record.SiteRight) {
    errors.Add(Speaks_Of_Disposal_Site(record) ? "Lower Left Point of Disposal Site is Invalid"
                                               : "Lower Left Point of Mixing Zone is Invalid",
               reference::kBoundaryBottom);
  }
}

void Check_Vessel_Across_Site(const ProjectRecord& record, Error_List& errors) {
  if (Speaks_Of_Disposal_Site(record) &&
      (record.ZBARGE < record.SiteLeft || record.ZBARGE > record.SiteRight)) {
    errors.Add(kVesselOutsideSite, reference::kBoundaryTop);
  }
}

void Check_Vessel_Along_Site(const ProjectRecord& record, Error_List& errors) {
  if (Speaks_Of_Disposal_Site(record) &&
      (record.XBARGE < record.SiteTop || record.XBARGE > record.SiteBottom)) {
    errors.Add(kVesselOutsideSite, reference::kBoundaryTop);
  }
}

/// The model input would add the missing point all the same.
void Check_Profile_Reaches_Bottom(const ProjectRecord& record, Error_List& errors) {
  const int last = std::clamp<int>(record.NROA0, 0, kMaxDensityPoints);
  if (record.DensityDepths[last] < record.DEPC0) {
    errors.Add("Receiving Water Densities Unacceptable.", reference::kSiteDepth);
  }
}

}  // namespace

void Check_Site(const ProjectRecord& record, Error_List& errors) {
  Check_Z_Count(record, errors);
  Check_X_Count(record, errors);
  Check_Z_Spacing(record, errors);
  Check_X_Spacing(record, errors);
  Check_Roughness(record, errors);
  Check_Depth(record, errors);
  Check_Densities(record, errors);
  Check_Site_Top(record, errors);
  Check_Site_Left(record, errors);
  Check_Site_Bottom(record, errors);
  Check_Site_Right(record, errors);
  Check_Site_Given(record, errors);
  Check_Site_Corners(record, errors);
  Check_Vessel_Across_Site(record, errors);
  Check_Vessel_Along_Site(record, errors);
  Check_Profile_Reaches_Bottom(record, errors);
}

}  // namespace barvon

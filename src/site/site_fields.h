#pragma once

#include "core/field_table.h"

namespace barvon {

/// The fields of frmDescription, by the index of Text1.
enum Site_Field {
  kZPoints = 0,
  kXPoints,
  kZSpacing,       // ft
  kXSpacing,       // ft
  kConstantDepth,  // ft
  kRoughness,      // ft
  kXSlope,         // degrees
  kZSlope,         // degrees
  kDensityPoints,
  kSiteFields
};

/// The captions of the frames that are nothing but fields.
inline constexpr char kPointsFrame[] = "Number of Grid Points in:";
inline constexpr char kSpacingFrame[] = "Spacing (ft) between Grid Points";
inline constexpr char kDimensionsFrame[] = "Disposal Grid Dimensions";
inline constexpr char kSlopeFrame[] = "Slope (deg) of Bottom in:";

/// The captions of its check boxes.
inline constexpr char kVariableDepthCaption[] = "Specify Variable Depth Grid?";
inline constexpr char kComputesDensityCaption[] =
    "Compute Density Based on Salinity and Temperature?";

/// The table of frmDescription: Text1, and in Text2 the grid's dimensions.
Field_Table Site_Fields();

}  // namespace barvon

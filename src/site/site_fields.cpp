#include "site/site_fields.h"

#include "core/keys.h"

namespace barvon {
namespace {

constexpr Count_Limits kGridCount = {8, kMaxGridPoints};
constexpr Count_Limits kDensityCount = {2, kMaxDensityPoints};
constexpr char kCount[] = "#######0";
constexpr char kFeet[] = "####0.00";
constexpr char kDegrees[] = "#####0.00";
constexpr char kDimension[] = "####.00";

static_assert(kMaxGridPoints == 96 && kMaxDensityPoints == 5, "two labels name them");

constexpr Field_Row kRows[] = {
    {.control = {"Text1", kZPoints},
     .label = "Z-Direction (Left to Right) (8 to 96)",
     .pattern = kCount,
     .reads = Reads::Cut,
     .member = &ProjectRecord::NMAX0,
     .frame = kPointsFrame,
     .tag = "NMAX0",
     .held = kGridCount},
    {.control = {"Text1", kXPoints},
     .label = "X-Direction (Top to Bottom) (8 to 96)",
     .pattern = kCount,
     .reads = Reads::Cut,
     .member = &ProjectRecord::MMAX0,
     .frame = kPointsFrame,
     .tag = "MMAX0",
     .held = kGridCount},
    {.control = {"Text1", kZSpacing},
     .label = "Z-Dir (Left to Right)",
     .unit = "ft",
     .pattern = kFeet,
     .member = &ProjectRecord::DZ0,
     .frame = kSpacingFrame,
     .tag = "DZ0"},
    {.control = {"Text1", kXSpacing},
     .label = "X-Dir (Top to Bottom)",
     .unit = "ft",
     .pattern = kFeet,
     .member = &ProjectRecord::DX0,
     .frame = kSpacingFrame,
     .tag = "DX0"},
    {.control = {"Text2", 0},
     .label = "Width (ft) [Z-Dir]",
     .unit = "ft",
     .pattern = kDimension,
     .reads = Reads::Nothing,
     .member = &ProjectRecord::DistZ,
     .frame = kDimensionsFrame,
     .tag = "DistZ"},
    {.control = {"Text2", 1},
     .label = "Length (ft) [X-Dir]",
     .unit = "ft",
     .pattern = kDimension,
     .reads = Reads::Nothing,
     .member = &ProjectRecord::DistX,
     .frame = kDimensionsFrame,
     .tag = "DistX"},
    {.control = {"Text1", kConstantDepth},
     .label = "Constant Water Depth (ft) at Disposal Site",
     .unit = "ft",
     .pattern = "#####0.0",
     .member = &ProjectRecord::DEPC0,
     .tag = "DEPC0",
     .label_name = {"Label1", 4}},
    {.control = {"Text1", kRoughness},
     .label = "Roughness Height (ft) at Bottom in X-Direction (Typically from 0.0005 to  0.05 ft)",
     .unit = "ft",
     .pattern = "#0.00000",
     .member = &ProjectRecord::RHDA0,
     .tag = "RHDA0"},
    {.control = {"Text1", kXSlope},
     .label = "X-Direction (+ Depth Increases Top to Bottom)",
     .unit = "deg",
     .pattern = kDegrees,
     .member = &ProjectRecord::SLOPEX0,
     .frame = kSlopeFrame,
     .tag = "SLOPEX0",
     .enabled_for = Has_Vessel},
    {.control = {"Text1", kZSlope},
     .label = "Z-Direction (+ Depth Increases Left to Right)",
     .unit = "deg",
     .pattern = kDegrees,
     .member = &ProjectRecord::SLOPEZ0,
     .frame = kSlopeFrame,
     .tag = "SLOPEZ0",
     .enabled_for = Has_Vessel},
    {.control = {"Text1", kDensityPoints},
     .label = "Number of Points to Describe Water Density Profile (max 5).  Enter Increasing "
              "Depths Starting From Surface.",
     .pattern = kCount,
     .reads = Reads::Whole,
     .member = &ProjectRecord::NROA0,
     .tag = "NROA0",
     .held = kDensityCount},
};

}  // namespace

Field_Table Site_Fields() { return kRows; }

}  // namespace barvon

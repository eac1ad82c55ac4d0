#pragma once

#include "core/field_table.h"

namespace barvon {

inline constexpr char kVelocityFrame[] = "Vessel Velocity (Fps)";
inline constexpr char kDepressionFrame[] = "Depression Dumping";

/// Text1 of frmOperation. The fields from 2 on are a hopper's or a barge's.
enum Operation_Field {
  kPlaceFromTop = 0,
  kPlaceFromLeft,
  kVesselLength,
  kVesselWidth,
  kBinGap,
  kLoadedDraft,
  kEmptyDraft,
  kEmptyingTime,
  kBinsTogether,
  kOperationFields
};
/// Text3: the depression.
enum Depression_Field { kHoleAlongX = 0, kHoleAlongZ, kHoleDepth, kDepressionFields };
/// Text4: the pipeline.
enum Pipeline_Field {
  kPipeSpeed = 0,
  kPipeCourse,
  kPipeDuration,
  kPipeRate,
  kPipeRadius,
  kPipeDepth,
  kPipeAngle,
  kPipelineFields
};

inline constexpr char kPlacePattern[] = "####0.00";     // of the disposal point
inline constexpr char kOpeningsPattern[] = "#######0";  // of Text2

/// The table of frmOperation: which field a method of disposal has, and as what.
Field_Table Operation_Fields();

}  // namespace barvon

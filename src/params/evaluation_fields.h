#pragma once

#include <cstdint>

#include "core/field_table.h"
#include "core/project_record.h"

namespace barvon {

/// Text and Text5 of frmMdlkyn: the corners of the boundary and of the Zone of Initial Dilution.
enum Corner_Field { kCornerTop = 0, kCornerLeft, kCornerBottom, kCornerRight, kCornerFields };
/// Text1 of frmMdlkyn.
enum Limit_Field { kLimit = 0, kInSediment, kContaminantName, kBackground, kLimitFields };
/// Text4 of frmMdlkyn.
enum Tracer_Field { kTracerConcentration = 0, kTracerBackground, kTracerName, kTracerFields };
/// Text8 of frmMdlkyn: its first fields are the depths.
enum Output_Field { kOutputCount = kMaxOutputDepths, kOutputFields };

inline constexpr char kZidCaption[] = "Do you want to evaluate a Zone of Initial Dilution (ZID)?";
inline constexpr char kTracerFrame[] = "Conservative Tracer Description";
/// Above the corners of the ZID.
inline constexpr char kZidUpperLeft[] = "Specify Location of Upper Left Corner of ZID on Grid";
inline constexpr char kZidLowerRight[] = "Specify Location of Lower Right Corner of ZID on Grid";
/// Above the output depths.
inline constexpr char kOutputDepthsCaption[] = "Depths (ft) for Transport-Diffusion Output";

/// The type of analysis that captions and labels go by: the wizard's while it is at work.
std::int16_t Evaluated_Type(const ProjectRecord& record);

/// The fields that the evaluation has. Those of the boundary are among them when it is shown.
/// Text8(5), the number of depths, is filled and read by itself.
Field_Table Evaluation_Fields(bool boundary);

}  // namespace barvon

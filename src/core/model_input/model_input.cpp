#include "core/model_input/model_input.h"

#include <algorithm>
#include <cstdint>

#include "core/checked_entry.h"
#include "core/fluid_concentration.h"
#include "core/keys.h"
#include "core/model_input/entered_values.h"
#include "core/model_input/model_continuous.h"
#include "core/model_input/model_sections.h"
#include "core/number_text.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

void Demand(Failure failure) {
  if (failure != Failure::None) throw Run_Time_Failure{failure};
}

void Derive_Concentrations(ProjectRecord& record) {
  if (!Contaminant_Is_In_The_Sediment(record)) return;
  Demand(Sediment_Tracer_Concentration(record, record.TracerConcentration));
  double& fluid = record.FluidComputedConcentration;
  if (record.LAYERS > 1 && record.DisposalMethod == kBarge) {
    Demand(record.SeparationFlag == 1 ? Fluid_Concentration_Layered(record, fluid)
                                      : Fluid_Concentration_Plain(record, fluid));
  } else if (record.DisposalMethod != kContinuous) {
    Demand(Fluid_Concentration_Plain(record, fluid));
  }
}

void Derive_Tracer_Flags(ProjectRecord& record) {
  for (int i = 1; i <= record.NumSolids; ++i) {
    Entry(record.SolidTracerFlag, i) = Is_Regulatory(record) ? 1 : 0;
  }
}

/// The grid point next to a distance from the grid's edge.
std::int16_t Grid_Index(double distance, double spacing) {
  if (spacing == 0) throw Run_Time_Failure{Failure::Division_By_Zero};
  return To_Int16(Int(distance / spacing + 1.5));
}

/// 16-bit sum; Overflow outside.
std::int16_t Sum(int a, int b) { return To_Int16(a + b); }

struct Corners {
  double top, bottom, left, right;  // ft from the grid's edges
};

struct Corner_Indices {
  std::int16_t &top, &bottom, &left, &right;
};

enum class Least_Far_Corner { Two_From_The_Near_One, Fixed };

constexpr std::int16_t kLeastIndex = 3;
constexpr std::int16_t kLeastFarIndex = 5;

/// The grid points of a rectangle's corners, kept at least two points inside the grid. The order
/// of the limits counts: in a grid too small for all of them the last ones win.
void Derive_Indices(const ProjectRecord& record, const Corners& corners, Corner_Indices index,
                    Least_Far_Corner least) {
  index.top = Grid_Index(corners.top, record.DX0);
  index.bottom = Grid_Index(corners.bottom, record.DX0);
  index.left = Grid_Index(corners.left, record.DZ0);
  index.right = Grid_Index(corners.right, record.DZ0);

  const bool fixed = least == Least_Far_Corner::Fixed;
  index.top = std::max(index.top, kLeastIndex);
  index.left = std::max(index.left, kLeastIndex);
  index.bottom = std::max(index.bottom, fixed ? kLeastFarIndex : Sum(index.top, 2));
  index.right = std::max(index.right, fixed ? kLeastFarIndex : Sum(index.left, 2));
  index.bottom = std::min(index.bottom, Sum(record.MMAX0, -2));
  index.right = std::min(index.right, Sum(record.NMAX0, -2));
  index.top = std::min(index.top, Sum(index.bottom, -2));
  index.left = std::min(index.left, Sum(index.right, -2));

  if (corners.top < 0) index.top = index.bottom = index.left = index.right = 0;
}

void Derive_Site_Indices(ProjectRecord& record) {
  Derive_Indices(
      record, {record.SiteTop, record.SiteBottom, record.SiteLeft, record.SiteRight},
      {record.SiteGridTop, record.SiteGridBottom, record.SiteGridLeft, record.SiteGridRight},
      Least_Far_Corner::Two_From_The_Near_One);
  if (Has_Zid(record) && record.DisposalMethod != kContinuous) {
    Derive_Indices(
        record, {record.ZidTop, record.ZidBottom, record.ZidLeft, record.ZidRight},
        {record.ZidGridTop, record.ZidGridBottom, record.ZidGridLeft, record.ZidGridRight},
        Least_Far_Corner::Fixed);
  }
}

/// The profile has to reach the bottom. The added point stays in the project; a full profile is
/// stretched instead.
void Extend_Density_Profile(ProjectRecord& record) {
  const int last = record.NROA0;
  if (!(record.DEPC0 > Entry(record.DensityDepths, last))) return;
  if (last == kMaxDensityPoints) {
    record.DensityDepths[kMaxDensityPoints] = record.DEPC0;
    return;
  }
  Entry(record.DensityDepths, last + 1) = record.DEPC0;
  Entry(record.Densities, last + 1) = Entry(record.Densities, last);
  record.NROA0 = To_Int16(last + 1);
}

void Prepare(ProjectRecord& record) {
  Derive_Concentrations(record);
  record.CohesiveCount = record.StrippedCount = 0;
  record.TracerSolidCount = record.DepthGridFlagOut = 0;
  Derive_Tracer_Flags(record);
  if (record.DZ0 == 0) record.DZ0 = record.DX0;
  Derive_Site_Indices(record);
  Extend_Density_Profile(record);
}

void Put_Section(ProjectRecord& record, Model_Text& lines) {
  switch (record.DisposalMethod) {
    case kHopper:
      return Hopper_Section(record, lines);
    case kContinuous:
      return Continuous_Section(record, lines);
    case kBarge:
      return Barge_Section(record, lines);
    default:
      return;
  }
}

}  // namespace

Failure Write_Model_Input(ProjectRecord& record, std::string& text,
                          std::vector<Wide_Value>* wide_values) {
  text.clear();
  Model_Text lines;
  try {
    Prepare(record);
    Put_Section(record, lines);
    text = lines.Take_Text();
  } catch (const Run_Time_Failure& stop) {
    return stop.failure;
  }
  if (wide_values != nullptr) *wide_values = lines.wide_values();
  return Failure::None;
}

Failure Make_Model_Input(ProjectRecord& record, std::string& text) {
  record.FileTypeTag = "DUE";
  const Entered_Values entered(record);
  return Write_Model_Input(record, text);
}

Failure Write_Model_Extract(const std::string& path, const std::string& text) {
  const std::string name = Path_To_Write(With_Extension(path, "DUE"));
  return Failure_Of_Errno(Write_Whole_File(name, text));
}

Failure Save_Model_Extract(const std::string& path, ProjectRecord& record) {
  std::string text;
  const Failure failure = Make_Model_Input(record, text);
  return failure == Failure::None ? Write_Model_Extract(path, text) : failure;
}

}  // namespace barvon

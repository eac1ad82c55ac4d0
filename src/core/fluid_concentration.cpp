#include "core/fluid_concentration.h"

#include "core/checked_entry.h"
#include "core/keys.h"

namespace barvon {
namespace {

constexpr double kLeastSediment = 0.0001;        // mg/kg
constexpr double kLeastVolumeFraction = 0.0001;  // of a solid
constexpr double kLeastSpecificGravity = 0.01;

bool Carries_Contaminant(const ProjectRecord& record) {
  return record.NumSolids >= 1 && record.SedimentConcentration > kLeastSediment;
}

double Plain_Sum(const ProjectRecord& record) {
  double sum = 0;
  if (!Carries_Contaminant(record)) return sum;
  for (int i = 1; i <= record.NumSolids; ++i) {
    const double fraction = Entry(record.SolidVolFraction, i);
    const double gravity = Entry(record.SolidSG, i);
    if (fraction > kLeastVolumeFraction && gravity > kLeastSpecificGravity) {
      sum += record.SedimentConcentration * gravity * fraction;
    }
  }
  return sum;
}

double Layer_Total(const ProjectRecord& record) {
  double total = 0;
  for (int j = 1; j <= record.LAYERS; ++j) total += Entry(record.LayerVolume, j);
  return total;
}

double Layered_Mean(const ProjectRecord& record) {
  if (!Carries_Contaminant(record)) return 0;
  const double total = Layer_Total(record);
  double sum = 0;
  for (int i = 1; i <= record.NumSolids; ++i) {
    const double gravity = Entry(record.SolidSG, i);
    for (int j = 1; j <= record.LAYERS; ++j) {
      const double fraction = Entry(Entry(record.LayerSolidFraction, i), j);
      const double volume = Entry(record.LayerVolume, j);
      if (fraction > kLeastVolumeFraction && gravity > kLeastSpecificGravity && volume > 0) {
        sum += fraction * gravity * volume;
      }
    }
  }
  // A load whose volumes are not entered yet carries nothing; that must not stop its save.
  if (sum == 0) return 0;
  if (total == 0) throw Run_Time_Failure{Failure::Division_By_Zero};
  return sum * record.SedimentConcentration / total;
}

double Tracer_Sum(const ProjectRecord& record) {
  double sum = 0;
  for (int i = 1; i <= record.NumSolids; ++i) {
    sum +=
        record.SedimentConcentration * Entry(record.SolidSG, i) * Entry(record.SolidVolFraction, i);
  }
  return sum;
}

/// The calculation into `result`, which stays as it is when the calculation fails.
Failure Take(double (*calculation)(const ProjectRecord&), const ProjectRecord& record,
             double& result) {
  try {
    result = calculation(record);
  } catch (const Run_Time_Failure& stop) {
    return stop.failure;
  }
  return Failure::None;
}

}  // namespace

Failure Fluid_Concentration_Plain(const ProjectRecord& record, double& result) {
  if (!Contaminant_Is_In_The_Sediment(record)) return Failure::None;
  return Take(Plain_Sum, record, result);
}

Failure Fluid_Concentration_Layered(const ProjectRecord& record, double& result) {
  if (!Contaminant_Is_In_The_Sediment(record)) return Failure::None;
  return Take(Layered_Mean, record, result);
}

Failure Sediment_Tracer_Concentration(const ProjectRecord& record, double& result) {
  return Take(Tracer_Sum, record, result);
}

}  // namespace barvon

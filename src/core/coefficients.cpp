#include "core/coefficients.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/keys.h"

namespace barvon {
namespace {

using Record = ProjectRecord;

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();  // the method does not have it

struct Row {
  const char* description;
  const char* keyword;
  double Record::*member;
  double of_vessel, of_pipeline;  // the default
  double least = 0;
};

// A coefficient below 1 would make a cloud lighter that carries water along.
constexpr double kNoAddedMass = 1;

constexpr Row kRows[] = {
    {"Settling Coefficient", "BETA", &Record::BETA, 0, 0},
    {"Apparent Mass Coefficient", "CM", &Record::CM, 1, 1, kNoAddedMass},
    {"Drag Coefficient For a Sphere", "CD", &Record::CD, 0.5, kNone},
    {"Drag Coefficient for a Cylinder", "CD", &Record::CD, kNone, 1.3},
    {"Form Drag For Collapsing Cloud", "CDRAG", &Record::CDRAG, 1, 1},
    {"Skin Friction For Collapsing Cloud", "CFRIC", &Record::CFRIC, 0.01, 0.01},
    {"Drag For an Ellipsoidal Wedge", "CD3", &Record::CD3, 0.1, 0.2},
    {"Drag For a Plate", "CD4", &Record::CD4, 1, 2},
    {"Friction Between Cloud and Bottom", "FRICTN", &Record::FRICTN, 0.01, 0.01},
    {"4/3 Law Horiz. Diff. Dissipation Factor", "ALAMDA", &Record::ALAMDA, 0.001, 0.005},
    {"Unstratified Water Vert. Diff. Coefficient", "AKY0", &Record::AKY0, 0.025, 0.05},
    {"Ratio-Cloud/Ambient Density Gradients", "GAMA", &Record::GAMA, 0.25, 0.25},
    {"Turbulent Thermal Entrainment", "ALPHA0", &Record::ALPHA0, 0.235, kNone},
    {"Entrainment in Collapse", "ALPHAC", &Record::ALPHAC, 0.1, kNone},
    {"Stripping Factor", "CSTRIP", &Record::CSTRIP, 0.003, kNone},
    {"Jet Entrainment", "ALPHA1", &Record::ALPHA1, kNone, 0.0806},
    {"Thermal Entrainment", "ALPHA2", &Record::ALPHA2, kNone, 0.3536},
    {"Entrainment By Convection in Collapse", "ALPHA3", &Record::ALPHA3, kNone, 0.3536},
    {"Entrainment Due to Element Collapse", "ALPHA4", &Record::ALPHA4, kNone, 0.001},
};

/// The default of a row for the method; kNone where the method does not have the row.
double Default_Of(const Row& row, std::int16_t disposal_method) {
  switch (disposal_method) {
    case kHopper:
    case kBarge:
      return row.of_vessel;
    case kContinuous:
      return row.of_pipeline;
    default:
      return kNone;
  }
}

}  // namespace

std::vector<Coefficient> Coefficients_Of(std::int16_t disposal_method) {
  std::vector<Coefficient> coefficients;
  for (const Row& row : kRows) {
    const double value = Default_Of(row, disposal_method);
    if (std::isnan(value)) continue;
    coefficients.push_back({row.description, row.keyword, row.member, value, row.least});
  }
  return coefficients;
}

bool Has_Default_Coefficients(const ProjectRecord& record) {
  const auto coefficients = Coefficients_Of(record.DisposalMethod);
  return std::all_of(coefficients.begin(), coefficients.end(), [&](const Coefficient& one) {
    return record.*one.member == one.default_value;
  });
}

bool Makes_Sense(const Coefficient& coefficient, double value) {
  return value >= coefficient.least && std::isfinite(value);
}

}  // namespace barvon

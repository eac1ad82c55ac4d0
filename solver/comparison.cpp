#include "solver/comparison.h"

#include <algorithm>
#include <cmath>

#include "solver/look_times.h"
#include "solver/number_text.h"

namespace companion {
namespace {

bool Toxicity(const Model_Input& input) {
  return input.evaluation == Evaluation::Toxicity || input.evaluation == Evaluation::Zone_Toxicity;
}

bool Within(const Window& window, int i, int k) {
  return i + 1 >= window.top && i + 1 <= window.bottom && k + 1 >= window.left &&
         k + 1 <= window.right;
}

/// Held to what counts as an index, so that a place of any distance has one.
int Index(double place, double spacing) {
  return static_cast<int>(std::clamp(std::floor(place / spacing + 0.5), -1e6, 1e6));
}

}  // namespace

bool Zone_Evaluation(const Model_Input& input) {
  return static_cast<int>(input.evaluation) >= static_cast<int>(Evaluation::Zone_Criterion);
}

void Raise(Spot& kept, const Spot& found) {
  if (found.found && (!kept.found || found.value > kept.value)) kept = found;
}

void Comparison::Look(double time, const Spot& largest) {
  if (time < from - kSameTime || !largest.found) return;
  Raise(worst, largest);
  if (largest.value <= value) return;
  if (!ever) first = time;
  ever = true;
  last = time;
}

std::string Comparison::Verdict(const std::string& unit) const {
  if (background > value) {
    return "exceeded everywhere and always: the background alone is " + Plain(background) + " " +
           unit;
  }
  if (!ever) return "not exceeded at the times looked at";
  return "exceeded from " + Plain(first, 7) + " s to " + Plain(last, 7) + " s, worst " +
         Plain(worst.value) + " " + unit + " at (" + Plain(worst.x, 6) + ", " + Plain(worst.z, 6) +
         ")";
}

Areas::Areas(const Model_Input& input)
    : input_(input),
      has_site_(input.site.Given()),
      has_zid_(input.zid_asked && input.zid.Given()) {}

bool Areas::Counts(Area area, int i, int k) const {
  switch (area) {
    case Area::Inside:
      return has_site_ && Within(input_.site, i, k);
    case Area::Outside:
      return !has_site_ || !Within(input_.site, i, k);
    case Area::Outside_Zid:
      return !has_zid_ || !Within(input_.zid, i, k);
    case Area::Anywhere:
      break;
  }
  return true;
}

int Areas::Row(double x) const { return Index(x, input_.spacing_x); }
int Areas::Column(double z) const { return Index(z, input_.spacing_z); }

bool Areas::On_Grid(int i, int k) const {
  return i >= 0 && i < input_.points_x && k >= 0 && k < input_.points_z;
}

bool Mixing_Zone_Asked(const Model_Input& input) {
  return Zone_Evaluation(input) && !input.site.Given();
}

bool Zid_Asked(const Model_Input& input) {
  return Zone_Evaluation(input) && input.zid_asked && !input.zid.Given();
}

double Limit_Of_Site(const Model_Input& input, const Additions& additions) {
  if (input.batches.empty()) return 0;
  const Fluid& fluid = input.batches.front().fluid;
  switch (input.evaluation) {
    case Evaluation::None:
    case Evaluation::Tracer:
      return 0;
    case Evaluation::Toxicity:
    case Evaluation::Zone_Toxicity:
      return fluid.dilution;
    case Evaluation::Sediment:
      return additions.criterion.value_or(0);
    case Evaluation::Criterion:
    case Evaluation::Zone_Criterion:
    case Evaluation::Zone_Sediment:
      break;
  }
  return fluid.criterion;
}

double Limit_Of_Zid(const Model_Input& input, const Additions& additions) {
  if (input.batches.empty() || !Zone_Evaluation(input) || !input.zid_asked) return 0;
  const Fluid& fluid = input.batches.front().fluid;
  if (input.evaluation == Evaluation::Zone_Toxicity) return fluid.zid_dilution;
  if (input.evaluation == Evaluation::Zone_Sediment) return fluid.zid_standard;
  return additions.zid_standard.value_or(0);
}

std::vector<Comparison> Comparisons(const Model_Input& input, const Additions& additions,
                                    std::vector<std::string>& notes) {
  std::vector<Comparison> made;
  if (input.evaluation == Evaluation::None || input.evaluation == Evaluation::Tracer) return made;
  if (input.key2 != 0) {
    notes.push_back("Descent and collapse alone compare nothing: no verdict.");
    return made;
  }
  const std::string limit = Toxicity(input) ? "dilution" : "criterion";
  const std::string area = Zone_Evaluation(input) ? "mixing zone" : "disposal site";
  const double background = Base_Of(input, input.Solids());
  const double site_limit = Limit_Of_Site(input, additions);
  if (site_limit > 0) {
    if (!Mixing_Zone_Asked(input)) {
      made.push_back({limit + " outside the " + area, site_limit, Area::Outside, 0, background});
    }
    if (!Zone_Evaluation(input) && input.duration >= kInitialMixing) {
      made.push_back({limit + " anywhere, from " + Plain(kInitialMixing) + " s on", site_limit,
                      Area::Anywhere, kInitialMixing, background});
    }
  } else if (input.evaluation == Evaluation::Sediment && !additions.criterion) {
    notes.push_back("The criterion is not in the input for this evaluation: no verdict.");
  } else {
    notes.push_back("The " + limit + " of the " + area + " is 0: no verdict.");
  }
  if (!Zone_Evaluation(input) || !input.zid_asked) return made;
  const double zid_limit = Limit_Of_Zid(input, additions);
  if (zid_limit > 0) {
    if (!Zid_Asked(input)) {
      made.push_back({std::string(Toxicity(input) ? "dilution" : "standard") +
                          " outside the zone of initial dilution (ZID)",
                      zid_limit, Area::Outside_Zid, 0, background});
    }
  } else if (input.evaluation == Evaluation::Zone_Criterion && !additions.zid_standard) {
    notes.push_back("The ZID standard is not in the input: no verdict outside the ZID.");
  } else {
    notes.push_back("The limit of the ZID is 0: no verdict outside it.");
  }
  return made;
}

std::string Tracer_Unit(const Model_Input& input) { return Toxicity(input) ? "%" : "mg/l"; }

double Base_Of(const Model_Input& input, std::size_t species) {
  if (species < input.Solids() || input.batches.empty() || Toxicity(input)) return 0;
  return input.batches.front().fluid.background;
}

std::string Species_Name(const Model_Input& input, std::size_t species) {
  const Batch& batch = input.batches.front();
  if (species < input.Solids()) return batch.solids[species].name;
  return batch.fluid.name.empty() ? "Tracer" : batch.fluid.name;
}

double Unit_Factor(const Model_Input& input, std::size_t species) {
  return species < input.Solids() ? kMilligramsPerLitre * input.batches.front().solids[species].sg
                                  : 1;
}

Zone Smallest_Zone(const Model_Input& input, const std::vector<std::vector<double>>& most,
                   double value) {
  const Areas areas(input);
  Zone zone;
  const int i0 = std::clamp(areas.Row(input.vessel_x), 0, input.points_x - 1);
  const int k0 = std::clamp(areas.Column(input.vessel_z), 0, input.points_z - 1);
  zone.top = zone.bottom = i0 + 1;
  zone.left = zone.right = k0 + 1;
  for (const auto& map : most) {
    for (int i = 0; i < input.points_x; ++i) {
      for (int k = 0; k < input.points_z; ++k) {
        if (map[static_cast<std::size_t>(i) * static_cast<std::size_t>(input.points_z) +
                static_cast<std::size_t>(k)] <= value)
          continue;
        zone.any = true;
        zone.top = std::min(zone.top, i + 1);
        zone.bottom = std::max(zone.bottom, i + 1);
        zone.left = std::min(zone.left, k + 1);
        zone.right = std::max(zone.right, k + 1);
      }
    }
  }
  zone.at_edge = zone.any && (zone.top == 1 || zone.bottom == input.points_x || zone.left == 1 ||
                              zone.right == input.points_z);
  return zone;
}

}  // namespace companion

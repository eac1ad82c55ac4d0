#include "solver/refusals.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "solver/due_fields.h"
#include "solver/number_text.h"

namespace companion {
namespace {

std::string Indexed(const std::string& name, std::size_t i) {
  return name + "[" + std::to_string(i) + "]";
}

class Checker {
 public:
  Checker(const std::string& file, const Model_Input& input) : file_(file), input_(input) {
    for (const Entry& entry : input.entries) {
      if (!entry.name.empty()) lines_[entry.name].push_back(entry.line);
    }
  }

  void Check() {
    Grid();
    Bottom();
    Profile();
    Current();
    Operation();
    Coefficient_Values();
    for (batch_ = 0; batch_ < input_.batches.size(); ++batch_) One_Batch(input_.batches[batch_]);
    batch_ = 0;
    for (std::size_t i = 0; i < input_.print_times.size(); ++i) {
      From_Zero(Indexed("PrintTimes", i + 1), input_.print_times[i], kLargestAmount);
    }
  }

 private:
  [[noreturn]] void Refuse(const std::string& name, const std::string& reason) const {
    const auto found = lines_.find(name);
    int line = 1;
    if (found != lines_.end()) line = found->second[std::min(batch_, found->second.size() - 1)];
    throw Refusal(file_, line, name + " " + reason);
  }

  [[noreturn]] void Refuse_Value(const std::string& name, double value,
                                 const std::string& reason) const {
    Refuse(name, "is " + Plain(value) + ", " + reason);
  }

  void Up_To(const std::string& name, double value, double most) const {
    if (value > most) Refuse_Value(name, value, "more than " + Plain(most, 7));
    if (value < -most) Refuse_Value(name, value, "less than " + Plain(-most, 7));
  }
  void From_Zero(const std::string& name, double value, double most) const {
    if (value < 0) Refuse_Value(name, value, "and can't be below 0");
    Up_To(name, value, most);
  }
  void Above_Zero(const std::string& name, double value, double least, double most) const {
    if (value <= 0) Refuse_Value(name, value, "and must be above 0");
    if (value < least) Refuse_Value(name, value, "less than " + Plain(least));
    Up_To(name, value, most);
  }

  void Grid() const {
    if (input_.points_z < 2) Refuse("NMAX0", "is less than 2");
    if (input_.points_x < 2) Refuse("MMAX0", "is less than 2");
    for (std::size_t i = 0; i < input_.output_depths.size(); ++i) {
      From_Zero(Indexed("OutputDepths", i + 1), input_.output_depths[i], kLargestLength);
    }
    if (input_.constant_depth) {
      Above_Zero("DEPC0", input_.depth, kLeastLength, kLargestDepth);
    } else {
      Up_To("DEPC0", input_.depth, kLargestDepth);
    }
    Above_Zero("DX0", input_.spacing_x, kLeastLength, kLargestLength);
    Above_Zero("DZ0", input_.spacing_z, kLeastLength, kLargestLength);
    Check_Field("DepthGrid", input_.depths, kLargestDepth);
    for (std::size_t a = 0; a < input_.depths.size(); ++a) {
      for (std::size_t b = 0; b < input_.depths[a].size(); ++b) {
        const double depth = input_.depths[a][b];
        if (depth <= 0 || depth >= kLeastLength) continue;
        Refuse_Value(Indexed(Indexed("DepthGrid", a + 1), b + 1), depth,
                     "neither land nor " + Plain(kLeastLength) + " ft deep");
      }
    }
  }

  void Check_Field(const std::string& name, const std::vector<std::vector<double>>& field,
                   double most) const {
    for (std::size_t a = 0; a < field.size(); ++a) {
      for (std::size_t b = 0; b < field[a].size(); ++b) {
        if (std::abs(field[a][b]) <= most) continue;
        Up_To(Indexed(Indexed(name, a + 1), b + 1), field[a][b], most);
      }
    }
  }

  void Bottom() const {
    Up_To("XBARGE", input_.vessel_x, kLargestLength);
    Up_To("ZBARGE", input_.vessel_z, kLargestLength);
    Up_To("SLOPEX0", input_.slope_x, kSteepestSlope);
    Up_To("SLOPEZ0", input_.slope_z, kSteepestSlope);
    From_Zero("XHOLE", input_.hole_x, kLargestLength);
    From_Zero("ZHOLE", input_.hole_z, kLargestLength);
    From_Zero("DHOLE", input_.hole_depth, kLargestDepth);
    From_Zero("RHDA0", input_.roughness, kLargestLength);
  }

  void Profile() const {
    if (input_.profile_depths.empty()) Refuse("NROA0", "gives no density");
    for (std::size_t i = 0; i < input_.profile_depths.size(); ++i) {
      const std::string name = Indexed("DensityDepths", i + 1);
      Up_To(name, input_.profile_depths[i], kLargestLength);
      if (i > 0 && input_.profile_depths[i] < input_.profile_depths[i - 1]) {
        Refuse_Value(name, input_.profile_depths[i], "above the point before it");
      }
    }
    for (std::size_t i = 0; i < input_.profile_densities.size(); ++i) {
      Above_Zero(Indexed("Densities", i + 1), input_.profile_densities[i], kLeastDensity,
                 kLargestDensity);
    }
  }

  void Current() const {
    Check_Field("VelocityFieldX", input_.field_x, kLargestSpeed);
    Check_Field("VelocityFieldZ", input_.field_z, kLargestSpeed);
    static const char* const kNames[] = {"VelXDepth1", "VelXDepth2", "VelX1", "VelX2",
                                         "VelZDepth1", "VelZDepth2", "VelZ1", "VelZ2"};
    for (std::size_t i = 0; i < input_.two_point.size(); ++i) {
      const bool depth = i % 4 < 2;
      Up_To(kNames[i], input_.two_point[i], depth ? kLargestLength : kLargestSpeed);
    }
    Up_To("AvgVelocityX", input_.mean_x, kLargestSpeed);
    Up_To("AvgVelocityZ", input_.mean_z, kLargestSpeed);
    From_Zero("AvgVelocityDepth", input_.mean_depth, kLargestLength);
  }

  void Operation() const {
    Above_Zero("SimulationDuration", input_.duration, kLeastTime, kLongestRun);
    Above_Zero("LongTermTimeStep", input_.step, kLeastTime, kLargestAmount);
    if (input_.duration / input_.step > kMostTimes) {
      Refuse_Value("LongTermTimeStep", input_.step,
                   "which makes more than " + Plain(kMostTimes) + " times of the run");
    }
    From_Zero(input_.barge ? "BargeEmptyTime" : "TDIS", input_.emptying, kLargestAmount);
    From_Zero(input_.barge ? "BargeLength" : "Footprint length", input_.length, kLargestLength);
    From_Zero(input_.barge ? "BargeWidth" : "Footprint width", input_.width, kLargestLength);
    From_Zero("DREL1", input_.draft_full, kLargestLength);
    From_Zero("DREL2", input_.draft_empty, kLargestLength);
    Above_Zero("SiteDensity", input_.load_density, kLeastDensity, kLargestDensity);
  }

  void Coefficient_Values() const {
    const Coefficients& c = input_.coefficients;
    const std::pair<const char*, double> values[] = {
        {"ALPHA0", c.ALPHA0}, {"BETA", c.BETA},     {"CM", c.CM},         {"CD", c.CD},
        {"GAMA", c.GAMA},     {"CDRAG", c.CDRAG},   {"CFRIC", c.CFRIC},   {"CD3", c.CD3},
        {"CD4", c.CD4},       {"ALPHAC", c.ALPHAC}, {"FRICTN", c.FRICTN}, {"ALAMDA", c.ALAMDA},
        {"AKY0", c.AKY0},     {"CSTRIP", c.CSTRIP}};
    for (const auto& [name, value] : values) From_Zero(name, value, kLargestFactor);
    if (c.CM < kLeastApparentMass) {
      Refuse_Value("CM", c.CM, "and must be at least " + Plain(kLeastApparentMass));
    }
  }

  void One_Batch(const Batch& batch) const {
    Up_To("LayerVelX", batch.velocity_x, kLargestSpeed);
    Up_To("LayerVelZ", batch.velocity_z, kLargestSpeed);
    From_Zero(input_.barge ? "LayerVolume" : "TotalVolume / NOPENS", batch.volume, kLargestVolume);
    if (batch.volume > 0 && batch.volume < kLeastVolume) {
      Refuse_Value(input_.barge ? "LayerVolume" : "TotalVolume / NOPENS", batch.volume,
                   "less than " + Plain(kLeastVolume));
    }
    From_Zero("MoistureContent", batch.moisture, kLargestFactor);
    double sum = 0;
    for (std::size_t s = 0; s < batch.solids.size(); ++s) {
      const Solid& solid = batch.solids[s];
      Above_Zero(Indexed("SolidSG", s + 1), solid.sg, kLeastDensity, kLargestDensity);
      From_Zero(Indexed("SolidVolFraction", s + 1), solid.fraction, 1);
      From_Zero(Indexed("SolidFallVelocity", s + 1), solid.fall_velocity, kLargestSpeed);
      From_Zero(Indexed("SolidVoidRatio", s + 1), solid.void_ratio, kLargestFactor);
      From_Zero(Indexed("SolidCriticalShear", s + 1), solid.critical_shear, kLargestAmount);
      sum += solid.fraction;
      if (sum >= 1) {
        Refuse(Indexed("SolidVolFraction", s + 1),
               "brings the sum of the fractions to " + Plain(sum) + ", which must be below 1");
      }
    }
    const Fluid& fluid = batch.fluid;
    const bool in_sediment =
        input_.evaluation == Evaluation::Sediment || input_.evaluation == Evaluation::Zone_Sediment;
    From_Zero(in_sediment ? "FluidComputedConcentration" : "TracerConcentration",
              fluid.concentration, kLargestAmount);
    From_Zero("BackgroundConcentration", fluid.background, kLargestAmount);
    From_Zero("SedimentConcentration", fluid.sediment, kLargestAmount);
    From_Zero("CriterionConcentration", fluid.criterion, kLargestAmount);
    From_Zero("ToxicityDilution", fluid.dilution, kLargestAmount);
    From_Zero("ZidToxicityDilution", fluid.zid_dilution, kLargestAmount);
    From_Zero("ZCRIT", fluid.zid_standard, kLargestAmount);
  }

  const std::string& file_;
  const Model_Input& input_;
  std::size_t batch_ = 0;
  std::map<std::string, std::vector<int>, std::less<>> lines_;
};

}  // namespace

void Check_Values(const std::string& file, const Model_Input& input) {
  Checker(file, input).Check();
}

void Check_Values(const std::string& file, const Additions& additions) {
  const auto refuse = [&](const std::string& reason) { throw Refusal(file, 1, reason); };
  if (additions.criterion.value_or(0) > kLargestAmount) refuse("Criterion is too large");
  if (additions.zid_standard.value_or(0) > kLargestAmount) refuse("ZidStandard is too large");
  for (const auto& row : additions.depths) {
    for (const double depth : row) {
      if (std::abs(depth) > kLargestDepth)
        refuse("a depth of " + Plain(depth) + " ft is too large");
    }
  }
  for (const auto& row : additions.depths) {
    for (const double depth : row) {
      if (depth > 0 && depth < kLeastLength) {
        refuse("a depth of " + Plain(depth) + " ft is neither land nor water");
      }
    }
  }
  if (!additions.tide) return;
  if (std::abs(additions.tide->times.front()) > kLongestTideStart * 3600) {
    refuse("TideStart is too far from the pattern");
  }
  for (const auto* part : {&additions.tide->x, &additions.tide->z}) {
    for (const double speed : *part) {
      if (std::abs(speed) > kLargestSpeed) {
        refuse("a tidal velocity of " + Plain(speed) + " ft/s is too large");
      }
    }
  }
}

void Check_Load(const std::string& file, const Model_Input& input, double tracer) {
  double volume = 0, solids = 0;
  for (const Batch& batch : input.batches) {
    volume += batch.volume;
    for (const Solid& solid : batch.solids) solids += batch.volume * solid.fraction;
  }
  int line = 1;
  for (const Entry& entry : input.entries) {
    if (entry.name == "LayerVelX") {
      line = entry.line;
      break;
    }
  }
  if (volume <= 0) throw No_Physics(file, line, "the load has no volume");
  if (solids <= 0 && tracer == 0) {
    throw No_Physics(file, line,
                     "the load has no solids, and its fluid nothing over the background");
  }
}

void Check_Land(const std::string& file, const Model_Input& input, const Additions& additions) {
  if (input.constant_depth) return;
  const auto& depths = additions.depths.empty() ? input.depths : additions.depths;
  int line = 1;
  for (const Entry& entry : input.entries) {
    if (entry.name == "ConstantDepthFlag") line = entry.line;
  }
  const auto wet = [](double depth) { return depth > 0; };
  if (std::none_of(depths.begin(), depths.end(), [&](const std::vector<double>& row) {
        return std::any_of(row.begin(), row.end(), wet);
      })) {
    throw Refusal(file, line,
                  std::string("DepthGrid") +
                      (additions.depths.empty() ? "" : ", as the additions have it,") +
                      " is land everywhere: no depth is above 0");
  }
  const double x = input.vessel_x / input.spacing_x, z = input.vessel_z / input.spacing_z;
  const auto at = [](double place, std::size_t points) {
    return static_cast<std::size_t>(
        std::clamp(std::floor(place), 0.0, static_cast<double>(points - 2)));
  };
  const std::size_t i = at(x, depths.size()), k = at(z, depths.front().size());
  if (!wet(depths[i][k]) && !wet(depths[i + 1][k]) && !wet(depths[i][k + 1]) &&
      !wet(depths[i + 1][k + 1])) {
    throw Refusal(file, line, "DepthGrid is land around the disposal point");
  }
}

}  // namespace companion

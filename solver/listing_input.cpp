#include <algorithm>
#include <array>
#include <cstddef>
#include <set>

#include "solver/comparison.h"
#include "solver/listing_parts.h"
#include "solver/number_text.h"
#include "solver/tables.h"

namespace companion {
namespace {

std::string Pair(double a, double b) { return Plain(a, 7) + ", " + Plain(b, 7); }

std::string Depth_Of(const std::vector<std::vector<double>>& depths, std::size_t i, std::size_t k) {
  const double depth = depths[i][k];
  return depth <= 0 ? "land" : Plain(depth);
}

std::string Site_Lines(const Model_Input& input, const Additions& additions) {
  std::string text;
  text += Caption_Line("Grid points along X (down) and Z (right)",
                       std::to_string(input.points_x) + " x " + std::to_string(input.points_z));
  text += Caption_Line("Cell size X, Z", Pair(input.spacing_x, input.spacing_z) + " ft");
  if (input.constant_depth) {
    text += Caption_Line("Water depth", Plain(input.depth, 7) + " ft, constant");
  } else {
    const bool added = !additions.depths.empty();
    const auto& depths = added ? additions.depths : input.depths;
    const Areas areas(input);
    const auto i =
        static_cast<std::size_t>(std::clamp(areas.Row(input.vessel_x), 0, input.points_x - 1));
    const auto k =
        static_cast<std::size_t>(std::clamp(areas.Column(input.vessel_z), 0, input.points_z - 1));
    const std::size_t bottom = depths.size() - 1, right = depths.front().size() - 1;
    text += Caption_Line("Water depth", added ? "grid, as the additions have it"
                                              : "grid, rows of the input along X");
    const bool land = depths[i][k] <= 0;
    text += Caption_Line("Depth at the disposal point",
                         Depth_Of(depths, i, k) + (land ? " at the nearest grid point" : " ft"));
    text += Caption_Line("Depth at the corners (top left, top right,",
                         Depth_Of(depths, 0, 0) + ", " + Depth_Of(depths, 0, right) + ",");
    text +=
        Caption_Line("  bottom left, bottom right)",
                     Depth_Of(depths, bottom, 0) + ", " + Depth_Of(depths, bottom, right) + " ft");
  }
  text += Caption_Line("Disposal point X, Z", Pair(input.vessel_x, input.vessel_z) + " ft");
  text += Caption_Line("Slope along X, Z (+ pushes towards growing X, Z)",
                       Pair(input.slope_x, input.slope_z) + " deg");
  if (input.hole_depth > 0) {
    text += Caption_Line("Depression X, Z, depth",
                         Pair(input.hole_x, input.hole_z) + ", " + Plain(input.hole_depth) + " ft");
  }
  text += Caption_Line("Roughness height", Plain(input.roughness) + " ft");
  return text;
}

std::string Water_Lines(const Model_Input& input) {
  std::string text = kLineEnd;
  text += "  Water density\r\n";
  text += "    depth, ft   density, g/cc\r\n";
  for (std::size_t i = 0; i < input.profile_depths.size(); ++i) {
    text += Right(Plain(input.profile_depths[i], 7), 13) +
            Right(Fixed(input.profile_densities[i], 5), 16) + kLineEnd;
  }
  return text;
}

std::string Current_Lines(const Model_Input& input, const Additions& additions) {
  static const std::array<const char*, 6> kTypes = {
      "depth mean, through another depth as the same flow",
      "depth mean, through another depth as the same flow",
      "logarithmic profile",
      "straight between two depths, X and Z each",
      "field by grid points, the same over the depth",
      "tidal"};
  const auto type = static_cast<std::size_t>(input.velocity_type);
  std::string text = kLineEnd;
  text += Caption_Line("Current, type " + std::to_string(input.velocity_type), kTypes[type]);
  if (type == 3) {
    const auto& p = input.two_point;
    text += Caption_Line("  X: ft/s at ft", Plain(p[2]) + " at " + Plain(p[0]) + ", " +
                                                Plain(p[3]) + " at " + Plain(p[1]));
    text += Caption_Line("  Z: ft/s at ft", Plain(p[6]) + " at " + Plain(p[4]) + ", " +
                                                Plain(p[7]) + " at " + Plain(p[5]));
  } else if (type == 4) {
    const Areas areas(input);
    const int i = std::clamp(areas.Row(input.vessel_x), 0, input.points_x - 1);
    const int k = std::clamp(areas.Column(input.vessel_z), 0, input.points_z - 1);
    const auto a = static_cast<std::size_t>(i), b = static_cast<std::size_t>(k);
    text += Caption_Line("  X, Z at the disposal point",
                         Pair(input.field_x[a][b], input.field_z[a][b]) + " ft/s");
  } else {
    const bool turns = additions.tide && type == 5;
    text += Caption_Line(
        turns ? "  Average X, Z of the tide (the table holds) in" : "  Mean X, Z in a depth of",
        Pair(input.mean_x, input.mean_z) + " ft/s in " +
            (input.mean_depth > 0 ? Plain(input.mean_depth) + " ft" : "any depth"));
    if (turns) {
      text += Caption_Line("  The tide's table, from the additions",
                           Pair(additions.tide->times.front(), additions.tide->times.back()) +
                               " s of the run, first and last point");
    }
  }
  return text;
}

double Bulk_Density(const Model_Input& input, const Batch& batch) {
  double solids = 0, mass = 0;
  for (const Solid& solid : batch.solids) {
    solids += solid.fraction;
    mass += solid.fraction * solid.sg;
  }
  return mass + (1 - solids) * input.load_density;
}

std::string Load_Lines(const Model_Input& input) {
  std::string text = kLineEnd;
  double volume = 0, mass = 0;
  for (const Batch& batch : input.batches) {
    volume += batch.volume;
    mass += batch.volume * Bulk_Density(input, batch);
  }
  text += Caption_Line("Vessel", input.barge ? "split-hull barge" : "hopper dredge");
  text +=
      Caption_Line(input.barge ? "Length, width" : "Length, width of the bins that open together",
                   Pair(input.length, input.width) + " ft");
  text += Caption_Line("Draft full, empty", Pair(input.draft_full, input.draft_empty) + " ft");
  text += Caption_Line("Density of the water in the load", Fixed(input.load_density, 5) + " g/cc");
  text += Caption_Line("Volume of the load", Plain(volume, 7) + " cu yd");
  text += Caption_Line("Bulk density of the load", Fixed(mass / volume, 4) + " g/cc");
  text += Caption_Line("Time to empty", Plain(input.emptying, 7) + " s");
  text += Caption_Line("Run, series' step", Pair(input.duration, input.step) + " s");
  text += kLineEnd;
  text += "  Solid        SG       fall      voids   shear to    cohesive  washed\r\n";
  text += "             g/cc       ft/s   vol/vol   lb/sq ft              off\r\n";
  for (const Solid& solid : input.batches.front().solids) {
    text += "  " + Left(solid.name, 10) + Right(Plain(solid.sg), 6) +
            Right(Plain(solid.fall_velocity), 11) + Right(Plain(solid.void_ratio), 10) +
            Right(solid.critical_shear > 0 ? Plain(solid.critical_shear) : "always", 11) +
            Right(solid.cohesive ? "yes" : "no", 12) + Right(solid.stripped ? "yes" : "no", 8) +
            kLineEnd;
  }
  return text;
}

std::string Batch_Lines(const Model_Input& input, const Outcome& outcome) {
  double total = 0;
  for (const Batch& batch : input.batches) total += batch.volume;
  std::string text = kLineEnd;
  text += std::string("  ") + (input.barge ? "Layer" : "Opening") +
          "  volume  leaves from        to         X         Z     draft   density  moisture"
          "  clouds\r\n";
  const std::size_t number_columns = input.barge ? 7 : 9;
  text += std::string(number_columns, ' ') +
          "   cu yd            s         s        ft        ft        ft      g/cc\r\n";
  double begin = 0, x = input.vessel_x, z = input.vessel_z, gone = 0;
  for (std::size_t j = 0; j < input.batches.size(); ++j) {
    const Batch& batch = input.batches[j];
    const double share = total > 0 ? batch.volume / total : 0;
    const double lasts = input.emptying * share;
    const double middle = total > 0 ? (gone + batch.volume / 2) / total : 0;
    const double draft = input.draft_full + (input.draft_empty - input.draft_full) * middle;
    std::set<std::size_t> clouds;
    for (const Phase& phase : outcome.near_field.phases) {
      if (phase.kind == Phase_Kind::Descent && phase.batch == j) clouds.insert(phase.cloud);
    }
    text += Right(std::to_string(j + 1), number_columns) + Right(Plain(batch.volume), 8) +
            Right(Plain(begin, 6), 13) + Right(Plain(begin + lasts, 6), 10) +
            Right(Plain(x, 6), 10) + Right(Plain(z, 6), 10) + Right(Plain(draft), 10) +
            Right(Fixed(Bulk_Density(input, batch), 4), 10) +
            Right(batch.moisture > 0 ? Plain(batch.moisture) : "-", 10) +
            Right(std::to_string(clouds.size()), 8) + kLineEnd;
    begin += lasts;
    x += batch.velocity_x * lasts;
    z += batch.velocity_z * lasts;
    gone += batch.volume;
  }
  text += kLineEnd;
  text += "  Volume shares and the fluid\r\n";
  for (std::size_t j = 0; j < input.batches.size(); ++j) {
    const Batch& batch = input.batches[j];
    text += "    " + std::string(input.barge ? "layer " : "opening ") + std::to_string(j + 1) + ":";
    for (const Solid& solid : batch.solids) text += " " + solid.name + " " + Plain(solid.fraction);
    if (input.Has_Tracer()) {
      const bool toxicity = Tracer_Unit(input) == "%";
      text += "; " + Species_Name(input, input.Solids()) + " " +
              (toxicity ? std::string("100 %") : Plain(batch.fluid.concentration) + " mg/l");
    }
    text += "; vessel " + Pair(batch.velocity_x, batch.velocity_z) + " ft/s";
    text += kLineEnd;
  }
  return text;
}

std::string Window_Line(const std::string& caption, const Window& window) {
  if (!window.Given()) return Caption_Line(caption, "none given");
  return Caption_Line(caption, "points " + std::to_string(window.top) + " to " +
                                   std::to_string(window.bottom) + " along X, " +
                                   std::to_string(window.left) + " to " +
                                   std::to_string(window.right) + " along Z") +
         Caption_Line("  its corners", "(" + Pair(window.x_top, window.z_left) + ") and (" +
                                           Pair(window.x_bottom, window.z_right) + ") ft");
}

std::string Evaluation_Lines(const Model_Input& input, const Additions& additions) {
  static const std::array<const char*, 8> kEvaluations = {
      "no fluid followed",
      "tracer, nothing compared",
      "criterion outside the disposal site",
      "toxicity outside the disposal site",
      "contaminant from the sediment",
      "criterion outside the mixing zone",
      "toxicity outside the mixing zone",
      "contaminant from the sediment, outside the mixing zone"};
  std::string text = kLineEnd;
  const auto number = static_cast<std::size_t>(input.evaluation);
  text += Caption_Line("Evaluation " + std::to_string(number), kEvaluations[number]);
  const double site = Limit_Of_Site(input, additions), zid = Limit_Of_Zid(input, additions);
  if (input.Has_Tracer()) {
    const std::string unit = " " + Tracer_Unit(input);
    text += Caption_Line("Background", Plain(Base_Of(input, input.Solids())) + unit);
    if (site > 0) text += Caption_Line("Compared outside the site or zone", Plain(site) + unit);
    if (zid > 0) text += Caption_Line("Compared outside the ZID", Plain(zid) + unit);
    if (input.evaluation == Evaluation::Sediment && site > 0) {
      text += Caption_Line("", "(criterion from the additions)");
    }
    if (input.evaluation == Evaluation::Zone_Criterion && zid > 0) {
      text += Caption_Line("", "(ZID standard from the additions)");
    }
  }
  text += Window_Line("Disposal site or mixing zone", input.site);
  if (input.zid_asked) text += Window_Line("Zone of initial dilution (ZID)", input.zid);
  std::string depths;
  for (const double depth : input.output_depths) {
    depths += (depths.empty() ? "" : ", ") + Plain(depth, 7);
  }
  text += Caption_Line("Output depths", depths + " ft");
  return text;
}

std::string Coefficient_Lines(const Model_Input& input) {
  const Coefficients& c = input.coefficients;
  std::string text = kLineEnd;
  text += Caption_Line("Coefficients", input.key1 != 0 ? "as given" : "defaults");
  text += "    ALPHA0 " + Plain(c.ALPHA0) + "  BETA " + Plain(c.BETA) + "  CM " + Plain(c.CM) +
          "  CD " + Plain(c.CD) + "  GAMA " + Plain(c.GAMA) + "  CDRAG " + Plain(c.CDRAG) +
          "  CFRIC " + Plain(c.CFRIC) + kLineEnd;
  text += "    CD3 " + Plain(c.CD3) + "  CD4 " + Plain(c.CD4) + "  ALPHAC " + Plain(c.ALPHAC) +
          "  FRICTN " + Plain(c.FRICTN) + "  ALAMDA " + Plain(c.ALAMDA) + "  AKY0 " +
          Plain(c.AKY0) + "  CSTRIP " + Plain(c.CSTRIP) + kLineEnd;
  text +=
      Caption_Line("Vertical diffusion", input.pritchard ? "by the current (Pritchard's expression)"
                                                         : "AKY0, less in layered water");
  text +=
      Caption_Line("Moisture adjusts entrainment and drag", input.moisture_adjusts ? "yes" : "no");
  return text;
}

}  // namespace

std::string Input_Section(const Model_Input& input, const Additions& additions,
                          const Outcome& outcome) {
  return Section_Heading("INPUT") + Site_Lines(input, additions) + Water_Lines(input) +
         Current_Lines(input, additions) + Load_Lines(input) + Batch_Lines(input, outcome) +
         Evaluation_Lines(input, additions) + Coefficient_Lines(input);
}

std::string Without_Part_Section(const Model_Input& input) {
  static const std::set<std::string> kWithout = {
      "NBINS", "CohesiveCount", "StrippedCount", "SeparationFlag",   "DepthGridFlagOut",
      "DBINS", "BINL",          "BINW",          "TracerSolidCount", "SolidTracerFlag",
      "Unused"};
  std::string text = Section_Heading("GIVEN, BUT WITHOUT A PART IN THIS MODEL");
  std::set<std::string> told;
  const auto tell = [&](const std::string& name, const Entry& entry) {
    if (!told.insert(name).second) return;
    text += Caption_Line(name, entry.text + (entry.unit.empty() ? "" : " " + entry.unit));
  };
  for (const Entry& entry : input.entries) {
    const std::string name = entry.name.substr(0, entry.name.find('['));
    if (name != "Unused" && kWithout.count(name) != 0) tell(name, entry);
    if (name == "DEPC0" && !input.constant_depth) tell(name, entry);
    if (name == "SedimentConcentration") tell(name, entry);
    if (name == "ZidToxicityDilution" && input.evaluation != Evaluation::Zone_Toxicity) {
      tell(name, entry);
    }
    if (name == "MoistureContent" && !input.moisture_adjusts) tell(name, entry);
  }
  return text;
}

}  // namespace companion

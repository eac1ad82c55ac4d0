#include "solver/tables.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "solver/comparison.h"
#include "solver/input_sum.h"
#include "solver/listing_parts.h"
#include "solver/number_text.h"

namespace companion {
namespace {

constexpr std::size_t kNameColumns = 10;
constexpr std::size_t kUnitColumns = 4;
constexpr std::size_t kListingIndent = 2;
constexpr int kSumDigits = 16;

long Number_Of(std::size_t species) { return static_cast<long>(species) + 1; }

std::string Sci_Row(std::initializer_list<double> values) {
  std::string text;
  for (const double value : values) text += Sci(value);
  return text;
}

void Append_Map(std::string& text, const char* tag, const Cell_Map& map) {
  text += tag + Sci(map.time) + Int(map.number) + Sci(map.depth) + Sci(map.base);
  for (const int edge : {map.top, map.bottom, map.left, map.right}) text += Int(edge + 1);
  text += kLineEnd;
  std::size_t at = 0;
  for (int i = map.top; i <= map.bottom; ++i) {
    for (int k = map.left; k <= map.right; ++k) text += Map_Number(map.values[at++]);
    text += kLineEnd;
  }
}

std::string Sum_Line(const char* tag, std::uint64_t sum) {
  std::string digits;
  for (int shift = 4 * (kSumDigits - 1); shift >= 0; shift -= 4) {
    digits += "0123456789abcdef"[(sum >> shift) & 15U];
  }
  return tag + digits + kLineEnd;
}

/// Head of an output that programs read: also of which model input.
std::string Table_Head(const Model_Input& input, const std::string& what) {
  return Head(input, what) + Sum_Line("INPU  ", input.sum);
}

/// The area's corners, where the input gives one that holds a point.
std::string Area_Line(const char* tag, const Model_Input& input, const Window& area) {
  if (!area.Given() || area.bottom < area.top || area.right < area.left) return {};
  const double x = input.spacing_x, z = input.spacing_z;
  return tag +
         Sci_Row({(area.top - 1) * x, (area.bottom - 1) * x, (area.left - 1) * z,
                  (area.right - 1) * z}) +
         kLineEnd;
}

/// A background above the limit exceeds it all the time, whether anything comes on top or not.
std::string Limit_Line(const Model_Input& input, const Comparison& of) {
  const bool always = of.background > of.value;
  const double first = always ? of.from : of.first;
  const double last = always ? input.duration : of.last;
  const double worst = of.worst.found ? of.worst.value : of.background;
  const double worst_time = of.worst.found ? of.worst.time : of.from;
  return "LIMI " + Int(Number_Of(input.Solids())) + Int(static_cast<long>(of.area)) +
         Sci_Row({of.value, of.from}) + Int(always || of.ever ? 1 : 0) +
         Sci_Row({first, last, worst, worst_time}) + "  " + of.of + kLineEnd;
}

std::string Verdict_Lines(const Model_Input& input, const Additions& additions,
                          const Outcome& outcome) {
  const std::string listed = Verdict_Text(input, additions, outcome);
  const std::string end = kLineEnd;
  std::string text;
  for (std::size_t at = 0; at < listed.size();) {
    const std::size_t behind = listed.find(end, at) + end.size();
    text += "VERD " + listed.substr(at + kListingIndent, behind - at - kListingIndent);
    at = behind;
  }
  return text;
}

}  // namespace

std::string Label() {
  return std::string("COMPANION SOLVER ") + kVersion +
         " - a model of its own from general fluid dynamics; not a validated code for permits.";
}

std::string Head(const Model_Input& input, const std::string& what) {
  return Label() + kLineEnd + what + " of \"" + input.title + "\"" + kLineEnd;
}

std::string Phase_Table(const Model_Input& input, const Outcome& outcome) {
  std::string text = Table_Head(input, "Descent and collapse");
  long number = 0;
  for (const Phase& phase : outcome.near_field.phases) {
    text += "PHAS " + Int(++number) + "  " + phase.name + "; ended: " + phase.end + kLineEnd;
    for (const Cloud_State& row : phase.rows) {
      text += "STEP " + Sci_Row({row.t, row.x, row.z, row.y, row.radius, row.height, row.speed,
                                 row.downward, row.density, row.volume});
      for (const double solid : row.solids) text += Sci(solid);
      text += kLineEnd;
    }
  }
  return text;
}

std::string Series_Table(const Model_Input& input, const Additions& additions,
                         const Outcome& outcome) {
  std::string text = Table_Head(input, "Time series");
  for (std::size_t species = 0; species < input.Species(); ++species) {
    const std::string unit = species < input.Solids() ? "mg/l" : Tracer_Unit(input);
    text += "SPEC " + Int(Number_Of(species)) + "  " +
            Left(Species_Name(input, species), kNameColumns) + Left(unit, kUnitColumns) + kLineEnd;
  }
  for (const Comparison& of : outcome.comparisons) text += Limit_Line(input, of);
  text += Verdict_Lines(input, additions, outcome);
  for (const Maxima_Row& row : outcome.maxima) {
    text += "MAXI " + Sci(row.time) + Int(Number_Of(row.species)) +
            Sci_Row({row.depth, row.inside, row.outside, row.outside_zid}) + kLineEnd;
  }
  for (const Peak_Row& row : outcome.peaks) {
    const Spot& spot = row.spot;
    text += "PEAK " + Sci(spot.time) + Int(Number_Of(row.species)) +
            Sci_Row({spot.value, spot.x, spot.z, spot.depth}) + kLineEnd;
  }
  for (const Mass_Row& row : outcome.masses) {
    text += "MASS " + Sci(row.time) + Int(Number_Of(row.species)) +
            Sci_Row({row.suspended, row.on_grid, row.off_grid, row.released}) + kLineEnd;
  }
  return text;
}

std::string Map_Table(const Model_Input& input, const Outcome& outcome) {
  std::string text = Table_Head(input, "Maps");
  text += "GRID " + Int(input.points_x) + Int(input.points_z) + Sci(input.spacing_x) +
          Sci(input.spacing_z) + kLineEnd;
  text += Area_Line(Zone_Evaluation(input) ? "ZONE " : "SITE ", input, input.site);
  if (input.zid_asked) text += Area_Line("ZIDR ", input, input.zid);
  text += "POIN " + Sci_Row({input.vessel_x, input.vessel_z}) + kLineEnd;
  for (const Cell_Map& map : outcome.maps) Append_Map(text, "MAP  ", map);
  for (const Cell_Map& map : outcome.beds) Append_Map(text, "BED  ", map);
  for (const Cell_Map& map : outcome.most) Append_Map(text, "MOST ", map);
  return text;
}

std::string Sealed(std::string table) {
  constexpr int kLinesOfHead = 3;
  const std::string end = kLineEnd;
  std::size_t behind = 0;
  for (int line = 0; line < kLinesOfHead; ++line) behind = table.find(end, behind) + end.size();
  const std::string_view body = std::string_view(table).substr(behind);
  return table.insert(behind, Sum_Line("BODY  ", Check_Sum(body)));
}

}  // namespace companion

#include "due_reader.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace echo {
namespace {

constexpr int kHopper = 1;
constexpr int kBarge = 3;
constexpr std::size_t kTitleWidth = 60;

Field Int(std::string name) { return {std::move(name), "", 5, Kind::Integer}; }
Field Num(std::string name, std::string unit = "") {
  return {std::move(name), std::move(unit), 10, Kind::Number};
}
Field Cut(std::string name, std::string unit) {
  return {std::move(name), std::move(unit), 10, Kind::Cut_Number};
}

std::string Indexed(const std::string& name, int i) { return name + "[" + std::to_string(i) + "]"; }

std::vector<std::string> Lines_Of(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t at = 0;
  while (at < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    std::string line = bytes.substr(at, end - at);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    at = end + 1;
  }
  return lines;
}

/// Walks through the lines of one input, in the order of the layout.
class Reader {
 public:
  Reader(std::string file, const std::string& bytes)
      : file_(std::move(file)), lines_(Lines_Of(bytes)) {}

  Model_Input Read() {
    Read_Head();
    Read_Grid_Windows();
    Read_Output_Choices();
    Read_Depths();
    Read_Bottom_And_Water();
    Read_Velocity();
    Read_Operation();
    if (coefficients_) Read_Coefficients();
    for (int i = 1; i <= batches_; ++i) Read_Batch(i);
    Read_Print_Times();
    if (next_ < lines_.size()) {
      ++next_;
      Refuse("the input goes on where it should have ended");
    }
    return std::move(model_);
  }

 private:
  bool Is_Barge() const { return method_ == kBarge; }

  [[noreturn]] void Refuse(const std::string& reason) const {
    throw Refusal(file_, static_cast<int>(next_), reason);
  }

  void Heading(const std::string& text) { model_.entries.push_back({"", "", text}); }

  std::string Take_Line(const std::string& what) {
    if (next_ == lines_.size()) {
      throw Refusal(file_, static_cast<int>(next_) + 1, "the input ends before " + what);
    }
    return lines_[next_++];
  }

  /// Reads one line of fields, lists them, and gives back their values.
  std::vector<double> Take(const std::vector<Field>& fields) {
    const std::string line = Take_Line(fields.front().name);
    std::vector<double> values;
    try {
      const std::vector<std::string> texts = Split_Line(line, fields);
      for (std::size_t f = 0; f < fields.size(); ++f) {
        model_.entries.push_back({fields[f].name, fields[f].unit, texts[f]});
        values.push_back(Value_Of(texts[f], fields[f].kind));
      }
    } catch (const std::string& reason) {
      Refuse(reason);
    }
    return values;
  }

  /// `count` values of one array, `per_line` to a line.
  std::vector<double> Take_Array(const Field& element, int count, int per_line) {
    std::vector<double> values;
    for (int first = 1; first <= count; first += per_line) {
      std::vector<Field> fields;
      for (int i = first; i <= count && i < first + per_line; ++i) {
        fields.push_back(element);
        fields.back().name = Indexed(element.name, i);
      }
      const std::vector<double> part = Take(fields);
      values.insert(values.end(), part.begin(), part.end());
    }
    return values;
  }

  /// One value per grid point, every row on lines of its own.
  std::vector<std::vector<double>> Take_Grid(const std::string& name, const std::string& unit,
                                             int width) {
    std::vector<std::vector<double>> rows;
    for (int a = 1; a <= model_.points_x; ++a) {
      const Field element{Indexed(name, a), unit, width, Kind::Number};
      rows.push_back(Take_Array(element, model_.points_z, 10));
    }
    return rows;
  }

  int Held(double value, int least, int most, const std::string& name) const {
    if (value < least || value > most || value != static_cast<int>(value)) {
      Refuse(name + " is not one of " + std::to_string(least) + " to " + std::to_string(most));
    }
    return static_cast<int>(value);
  }

  void Read_Head() {
    Heading("Project");
    const std::string first = Take_Line("the type tag");
    if (first.size() != 15 || first.substr(0, 7) != "    DUE") {
      Refuse("no model input: the type tag \"DUE\" is not in columns 5 to 7 of 15");
    }
    --next_;
    method_ = static_cast<int>(
        Take({{"Type tag", "", 7, Kind::Name}, {"DisposalMethod", "", 8, Kind::Integer}})[1]);
    if (method_ != kHopper && !Is_Barge()) {
      Refuse("DisposalMethod is neither 1 (hopper) nor 3 (barge)");
    }
    model_.title = Take_Line("the title");
    if (model_.title.size() < kTitleWidth) Refuse("the title has less than 60 columns");
    model_.title.erase(0, model_.title.find_first_not_of(' '));
    model_.title.erase(model_.title.find_last_not_of(' ') + 1);
    model_.entries.push_back({"ProjectTitle", "", model_.title});

    const auto counts =
        Take({Int("NMAX0"), Int("MMAX0"), Int("NumSolids"), Int(Is_Barge() ? "LAYERS" : "NOPENS"),
              Int(Is_Barge() ? "Unused" : "NBINS"), Int("CohesiveCount"), Int("StrippedCount")});
    model_.points_z = Held(counts[0], 8, 96, "NMAX0");
    model_.points_x = Held(counts[1], 8, 96, "MMAX0");
    solids_ = Held(counts[2], 1, 4, "NumSolids");
    batches_ = Held(counts[3], 1, 6, Is_Barge() ? "LAYERS" : "NOPENS");
    if (Is_Barge()) Held(counts[4], 0, 0, "The fifth count");
    const auto keys =
        Take({Int("KEY1"), Int("KEY2"), Int("KEY3"), Int("JBFCFlag"),
              Int(Is_Barge() ? "SeparationFlag" : "Unused"), Int("ZidFlag"), Int("PritchardFlag")});
    coefficients_ = keys[0] != 0;
    key3_ = Held(keys[2], 0, 7, "KEY3");
    if (!Is_Barge()) Held(keys[4], 0, 0, "The fifth key");
    zid_ = key3_ > 4 && keys[5] == 1;
  }

  void Read_Grid_Windows() {
    Heading("Disposal site or mixing zone");
    Take({Int("SiteGridTop"), Int("SiteGridBottom"), Int("SiteGridLeft"), Int("SiteGridRight")});
    Take({Num("SiteTop", "ft"), Num("SiteBottom", "ft"), Num("SiteLeft", "ft"),
          Num("SiteRight", "ft")});
    if (!zid_) return;
    Heading("Zone of initial dilution");
    Take({Int("ZidGridTop"), Int("ZidGridBottom"), Int("ZidGridLeft"), Int("ZidGridRight")});
    Take(
        {Num("ZidTop", "ft"), Num("ZidBottom", "ft"), Num("ZidLeft", "ft"), Num("ZidRight", "ft")});
  }

  void Read_Output_Choices() {
    Heading("Output");
    const auto choices = Take({Int("PrintConvectiveDescent"), Int("PrintCollapse"),
                               Int("NumPrintTimes"), Int("TracerSolidCount")});
    print_times_ = Held(choices[2], 0, 12, "NumPrintTimes");
    const int depths = Held(Take({Int("NumOutputDepths")})[0], 1, 5, "NumOutputDepths");
    model_.output_depths = Take_Array(Num("OutputDepths", "ft"), depths, 8);
  }

  void Read_Depths() {
    Heading("Grid and depth");
    const auto sizes = Take({Num("DEPC0", "ft"), Num("DX0", "ft"), Num("DZ0", "ft")});
    model_.depth = sizes[0];
    model_.spacing_x = sizes[1];
    model_.spacing_z = sizes[2];
    const auto flags = Take({Int("ConstantDepthFlag"), Int("DepthGridFlagOut")});
    model_.constant_depth = Held(flags[0], 0, 1, "ConstantDepthFlag") == 1;
    if (!model_.constant_depth) model_.depths = Take_Grid("DepthGrid", "ft", 7);
  }

  void Read_Bottom_And_Water() {
    Heading("Disposal point, bottom and water");
    Take({Num("XBARGE", "ft"), Num("ZBARGE", "ft"), Num("SLOPEX0", "deg"), Num("SLOPEZ0", "deg"),
          Num("XHOLE", "ft"), Num("ZHOLE", "ft"), Num("DHOLE", "ft")});
    Take({Num("RHDA0", "ft")});
    const int points = Held(Take({Int("NROA0")})[0], 1, 5, "NROA0");
    model_.profile_depths = Take_Array(Num("DensityDepths", "ft"), points, points);
    model_.profile_densities = Take_Array(Num("Densities", "g/cc"), points, points);
  }

  void Read_Velocity() {
    Heading("Velocity");
    const int type = Held(Take({Int("VelocityProfileType")})[0], 0, 5, "VelocityProfileType");
    if (type == 4) {
      Take_Grid("VelocityFieldX", "ft/s", 8);
      Take_Grid("VelocityFieldZ", "ft/s", 8);
    } else if (type == 3) {
      Take({Num("VelXDepth1", "ft"), Num("VelXDepth2", "ft"), Num("VelX1", "ft/s"),
            Num("VelX2", "ft/s"), Num("VelZDepth1", "ft"), Num("VelZDepth2", "ft"),
            Num("VelZ1", "ft/s"), Num("VelZ2", "ft/s")});
    } else {
      Take({Num("AvgVelocityX", "ft/s"), Num("AvgVelocityZ", "ft/s"),
            Num("AvgVelocityDepth", "ft")});
    }
  }

  void Read_Operation() {
    Heading("Time and vessel");
    model_.duration = Take({Num("SimulationDuration", "s"), Num("LongTermTimeStep", "s"),
                            Num(Is_Barge() ? "BargeEmptyTime" : "TDIS", "s")})[0];
    if (Is_Barge()) {
      Take({Num("BargeLength", "ft"), Num("BargeWidth", "ft"), Num("DREL1", "ft"),
            Num("DREL2", "ft"), Num("SiteDensity", "g/cc")});
    } else {
      Take({Num("Footprint length", "ft"), Num("Footprint width", "ft"), Num("DREL1", "ft"),
            Num("DREL2", "ft"), Num("SiteDensity", "g/cc"), Num("DBINS", "ft"), Num("BINL", "ft"),
            Num("BINW", "ft")});
    }
  }

  void Read_Coefficients() {
    Heading("Coefficients");
    Take({Num("ALPHA0"), Num("BETA"), Num("CM"), Num("CD")});
    Take({Num("GAMA"), Num("CDRAG"), Num("CFRIC"), Num("CD3"), Num("CD4"), Num("ALPHAC"),
          Num("FRICTN")});
    Take({Num("ALAMDA"), Num("AKY0"), Num("CSTRIP")});
  }

  /// One opening of a hopper or one layer of a barge: its line, its solids, its fluid.
  void Read_Batch(int i) {
    Heading((Is_Barge() ? "Layer " : "Opening ") + std::to_string(i));
    Take({Num("LayerVelX", "ft/s"), Num("LayerVelZ", "ft/s"),
          Num(Is_Barge() ? "LayerVolume" : "TotalVolume / NOPENS", "cu yd"),
          Num("MoistureContent", "x liquid limit")});
    for (int s = 1; s <= solids_; ++s) {
      Take({{Indexed("SolidNames", s), "", 10, Kind::Name},
            Num(Indexed("SolidSG", s)),
            Num(Indexed("SolidVolFraction", s)),
            Num(Indexed("SolidFallVelocity", s), "ft/s"),
            Num(Indexed("SolidVoidRatio", s)),
            Num(Indexed("SolidCriticalShear", s), "lb/sq ft"),
            Int(Indexed("SolidCohesive", s)),
            Int(Indexed("SolidTracerFlag", s)),
            Int(Indexed("SolidStripped", s))});
    }
    Take(Fluid_Fields());
  }

  std::vector<Field> Fluid_Fields() const {
    std::vector<Field> fields = {{"TracerName", "", 10, Kind::Name}, Num("SiteDensity", "g/cc")};
    const bool in_sediment = key3_ == 4 || key3_ == 7;
    const bool toxicity = key3_ == 3 || key3_ == 6;
    if (in_sediment) {
      fields.push_back(Cut("FluidComputedConcentration", "mg/l"));
    } else {
      fields.push_back(Num("TracerConcentration", "mg/l"));
    }
    fields.push_back(Num("BackgroundConcentration", "mg/l"));
    if (in_sediment) fields.push_back(Num("SedimentConcentration", "mg/kg"));
    if (key3_ == 2 || key3_ == 5 || key3_ == 7) {
      fields.push_back(Num("CriterionConcentration", "mg/l"));
    }
    if (toxicity) fields.push_back(Num("ToxicityDilution", "%"));
    if (key3_ >= 4 && key3_ <= 6) fields.push_back(Num("ZidToxicityDilution", "%"));
    if (key3_ == 7) fields.push_back(Num("ZCRIT", "mg/l"));
    return fields;
  }

  void Read_Print_Times() {
    if (print_times_ == 0) return;
    Heading("Print times");
    model_.print_times = Take_Array({"PrintTimes", "s", 10, Kind::Print_Time}, print_times_, 8);
  }

  std::string file_;
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  Model_Input model_;
  int method_ = 0, key3_ = 0, solids_ = 0, batches_ = 0, print_times_ = 0;
  bool zid_ = false, coefficients_ = false;
};

}  // namespace

std::string Read_Marker(const std::string& file, const std::string& bytes) {
  const std::vector<std::string> lines = Lines_Of(bytes);
  // Seven fields between commas; the fifth is the scratch name, the last one is empty.
  static const std::vector<std::size_t> kWidths = {6, 1, 28, 37, 8, 27, 0};
  if (lines.empty()) throw Refusal(file, 1, "the marker line is missing");
  if (lines.size() > 1) throw Refusal(file, 2, "the marker is one line");
  std::vector<std::string> parts(1);
  for (const char c : lines.front()) {
    if (c == ',') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  if (parts.size() != kWidths.size()) throw Refusal(file, 1, "the marker has six commas");
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (parts[i].size() != kWidths[i]) {
      throw Refusal(file, 1,
                    "field " + std::to_string(i + 1) + " of the marker has " +
                        std::to_string(kWidths[i]) + " columns");
    }
  }
  if (parts[0] != "DUE   ") throw Refusal(file, 1, "the marker is not one of a model input");
  std::string name = parts[4].substr(0, parts[4].find_last_not_of(' ') + 1);
  if (name.empty() || name.find('/') != std::string::npos) {
    throw Refusal(file, 1, "the marker names no scratch file");
  }
  return name + ".Due";
}

Model_Input Read_Model_Input(const std::string& file, const std::string& bytes) {
  return Reader(file, bytes).Read();
}

}  // namespace echo

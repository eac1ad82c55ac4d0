#include "solver/due_reader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <utility>

namespace companion {
namespace {

constexpr int kHopper = 1;
constexpr int kContinuous = 2;
constexpr int kBarge = 3;
constexpr std::size_t kTitleWidth = 60;
constexpr double kLargestWhole = 999999999;

Due_Field Int(std::string name) { return {std::move(name), "", 5, Field_Kind::Integer}; }
Due_Field Num(std::string name, std::string unit = "") {
  return {std::move(name), std::move(unit), 10, Field_Kind::Number};
}
Due_Field Cut(std::string name, std::string unit) {
  return {std::move(name), std::move(unit), 10, Field_Kind::Cut_Number};
}

std::string Indexed(const std::string& name, int i) { return name + "[" + std::to_string(i) + "]"; }

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
    if (model_.key1 != 0) Read_Coefficients();
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

  void Heading(const std::string& text) {
    model_.entries.push_back({"", "", text, static_cast<int>(next_)});
  }

  std::string Take_Line(const std::string& what) {
    if (next_ == lines_.size()) {
      throw Refusal(file_, static_cast<int>(next_) + 1, "the input ends before " + what);
    }
    return lines_[next_++];
  }

  /// Reads one line of fields, lists them, and gives back their values.
  std::vector<double> Take(const std::vector<Due_Field>& fields) {
    const std::string line = Take_Line(fields.front().name);
    std::vector<double> values;
    try {
      const std::vector<std::string> texts = Split_Line(line, fields);
      for (std::size_t f = 0; f < fields.size(); ++f) {
        model_.entries.push_back(
            {fields[f].name, fields[f].unit, texts[f], static_cast<int>(next_)});
        values.push_back(Value_Of(texts[f], fields[f].kind));
      }
    } catch (const std::string& reason) {
      Refuse(reason);
    }
    return values;
  }

  /// `count` values of one array, `per_line` to a line.
  std::vector<double> Take_Array(const Due_Field& element, int count, int per_line) {
    std::vector<double> values;
    for (int first = 1; first <= count; first += per_line) {
      std::vector<Due_Field> fields;
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
      const Due_Field element{Indexed(name, a), unit, width, Field_Kind::Number};
      rows.push_back(Take_Array(element, model_.points_z, 10));
    }
    return rows;
  }

  int Whole(double value, const std::string& name) const {
    if (std::abs(value) > kLargestWhole) Refuse(name + " has more than nine digits");
    return static_cast<int>(value);
  }

  int Held(double value, int least, int most, const std::string& name) const {
    if (value < least || value > most || value != std::floor(value)) {
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
    method_ = static_cast<int>(Take({{"Type tag", "", 7, Field_Kind::Name},
                                     {"DisposalMethod", "", 8, Field_Kind::Integer}})[1]);
    if (method_ != kHopper && !Is_Barge()) {
      const std::string reason = "DisposalMethod is neither 1 (hopper) nor 3 (barge)";
      if (method_ == kContinuous) throw No_Physics(file_, static_cast<int>(next_), reason);
      Refuse(reason);
    }
    model_.barge = Is_Barge();
    model_.title = Take_Line("the title");
    if (model_.title.size() < kTitleWidth) Refuse("the title has less than 60 columns");
    model_.title.erase(0, model_.title.find_first_not_of(' '));
    model_.title.erase(model_.title.find_last_not_of(' ') + 1);
    model_.entries.push_back({"ProjectTitle", "", model_.title, static_cast<int>(next_)});

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
    model_.key1 = Whole(keys[0], "KEY1");
    model_.key2 = Whole(keys[1], "KEY2");
    key3_ = Held(keys[2], 0, 7, "KEY3");
    model_.evaluation = static_cast<Evaluation>(key3_);
    model_.moisture_adjusts = keys[3] == 1;
    if (!Is_Barge()) Held(keys[4], 0, 0, "The fifth key");
    model_.zid_asked = key3_ > 4 && keys[5] == 1;
    model_.pritchard = keys[6] == 1;
  }

  void Read_Grid_Windows() {
    Heading("Disposal site or mixing zone");
    model_.site = Take_Window("Site");
    if (!model_.zid_asked) return;
    Heading("Zone of initial dilution");
    model_.zid = Take_Window("Zid");
  }

  Window Take_Window(const std::string& of) {
    Window window;
    const auto at = Take(
        {Int(of + "GridTop"), Int(of + "GridBottom"), Int(of + "GridLeft"), Int(of + "GridRight")});
    window.top = Whole(at[0], of + "GridTop");
    window.bottom = Whole(at[1], of + "GridBottom");
    window.left = Whole(at[2], of + "GridLeft");
    window.right = Whole(at[3], of + "GridRight");
    const auto edges = Take({Num(of + "Top", "ft"), Num(of + "Bottom", "ft"),
                             Num(of + "Left", "ft"), Num(of + "Right", "ft")});
    window.x_top = edges[0];
    window.x_bottom = edges[1];
    window.z_left = edges[2];
    window.z_right = edges[3];
    return window;
  }

  void Read_Output_Choices() {
    Heading("Output");
    const auto choices = Take({Int("PrintConvectiveDescent"), Int("PrintCollapse"),
                               Int("NumPrintTimes"), Int("TracerSolidCount")});
    model_.print_descent = choices[0] == 1;
    model_.print_collapse = choices[1] == 1;
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
    const auto bottom =
        Take({Num("XBARGE", "ft"), Num("ZBARGE", "ft"), Num("SLOPEX0", "deg"),
              Num("SLOPEZ0", "deg"), Num("XHOLE", "ft"), Num("ZHOLE", "ft"), Num("DHOLE", "ft")});
    model_.vessel_x = bottom[0];
    model_.vessel_z = bottom[1];
    model_.slope_x = bottom[2];
    model_.slope_z = bottom[3];
    model_.hole_x = bottom[4];
    model_.hole_z = bottom[5];
    model_.hole_depth = bottom[6];
    model_.roughness = Take({Num("RHDA0", "ft")})[0];
    const int points = Held(Take({Int("NROA0")})[0], 1, 5, "NROA0");
    model_.profile_depths = Take_Array(Num("DensityDepths", "ft"), points, points);
    model_.profile_densities = Take_Array(Num("Densities", "g/cc"), points, points);
  }

  void Read_Velocity() {
    Heading("Velocity");
    const int type = Held(Take({Int("VelocityProfileType")})[0], 0, 5, "VelocityProfileType");
    model_.velocity_type = type;
    if (type == 4) {
      model_.field_x = Take_Grid("VelocityFieldX", "ft/s", 8);
      model_.field_z = Take_Grid("VelocityFieldZ", "ft/s", 8);
    } else if (type == 3) {
      const auto points =
          Take({Num("VelXDepth1", "ft"), Num("VelXDepth2", "ft"), Num("VelX1", "ft/s"),
                Num("VelX2", "ft/s"), Num("VelZDepth1", "ft"), Num("VelZDepth2", "ft"),
                Num("VelZ1", "ft/s"), Num("VelZ2", "ft/s")});
      std::copy(points.begin(), points.end(), model_.two_point.begin());
    } else {
      const auto mean = Take({Num("AvgVelocityX", "ft/s"), Num("AvgVelocityZ", "ft/s"),
                              Num("AvgVelocityDepth", "ft")});
      model_.mean_x = mean[0];
      model_.mean_z = mean[1];
      model_.mean_depth = mean[2];
    }
  }

  void Read_Operation() {
    Heading("Time and vessel");
    const auto times = Take({Num("SimulationDuration", "s"), Num("LongTermTimeStep", "s"),
                             Num(Is_Barge() ? "BargeEmptyTime" : "TDIS", "s")});
    model_.duration = times[0];
    model_.step = times[1];
    model_.emptying = times[2];
    std::vector<Due_Field> vessel = {Num(Is_Barge() ? "BargeLength" : "Footprint length", "ft"),
                                     Num(Is_Barge() ? "BargeWidth" : "Footprint width", "ft"),
                                     Num("DREL1", "ft"), Num("DREL2", "ft"),
                                     Num("SiteDensity", "g/cc")};
    if (!Is_Barge()) {
      for (const char* bins : {"DBINS", "BINL", "BINW"}) vessel.push_back(Num(bins, "ft"));
    }
    const auto sizes = Take(vessel);
    model_.length = sizes[0];
    model_.width = sizes[1];
    model_.draft_full = sizes[2];
    model_.draft_empty = sizes[3];
    model_.load_density = sizes[4];
  }

  void Read_Coefficients() {
    Heading("Coefficients");
    Coefficients& to = model_.coefficients;
    const auto put = [](const std::vector<double>& values, std::initializer_list<double*> places) {
      std::size_t i = 0;
      for (double* place : places) *place = values[i++];
    };
    put(Take({Num("ALPHA0"), Num("BETA"), Num("CM"), Num("CD")}),
        {&to.ALPHA0, &to.BETA, &to.CM, &to.CD});
    put(Take({Num("GAMA"), Num("CDRAG"), Num("CFRIC"), Num("CD3"), Num("CD4"), Num("ALPHAC"),
              Num("FRICTN")}),
        {&to.GAMA, &to.CDRAG, &to.CFRIC, &to.CD3, &to.CD4, &to.ALPHAC, &to.FRICTN});
    put(Take({Num("ALAMDA"), Num("AKY0"), Num("CSTRIP")}), {&to.ALAMDA, &to.AKY0, &to.CSTRIP});
  }

  /// One opening of a hopper or one layer of a barge: its line, its solids, its fluid.
  void Read_Batch(int i) {
    Heading((Is_Barge() ? "Layer " : "Opening ") + std::to_string(i));
    Batch batch;
    const auto head = Take({Num("LayerVelX", "ft/s"), Num("LayerVelZ", "ft/s"),
                            Num(Is_Barge() ? "LayerVolume" : "TotalVolume / NOPENS", "cu yd"),
                            Num("MoistureContent", "x liquid limit")});
    batch.velocity_x = head[0];
    batch.velocity_z = head[1];
    batch.volume = head[2];
    batch.moisture = head[3];
    for (int s = 1; s <= solids_; ++s) batch.solids.push_back(Take_Solid(s));
    batch.fluid = Take_Fluid();
    model_.batches.push_back(std::move(batch));
  }

  Solid Take_Solid(int s) {
    const std::size_t first = model_.entries.size();
    const auto values = Take({{Indexed("SolidNames", s), "", 10, Field_Kind::Name},
                              Num(Indexed("SolidSG", s)),
                              Num(Indexed("SolidVolFraction", s)),
                              Num(Indexed("SolidFallVelocity", s), "ft/s"),
                              Num(Indexed("SolidVoidRatio", s)),
                              Num(Indexed("SolidCriticalShear", s), "lb/sq ft"),
                              Int(Indexed("SolidCohesive", s)),
                              Int(Indexed("SolidTracerFlag", s)),
                              Int(Indexed("SolidStripped", s))});
    return {model_.entries[first].text,
            values[1],
            values[2],
            values[3],
            values[4],
            values[5],
            values[6] != 0,
            values[8] != 0};
  }

  Fluid Take_Fluid() {
    const std::size_t first = model_.entries.size();
    const auto fields = Fluid_Fields();
    const auto values = Take(fields);
    Fluid fluid;
    fluid.name = model_.entries[first].text;
    for (std::size_t f = 1; f < fields.size(); ++f) {
      const std::string& name = fields[f].name;
      double& place = name == "SiteDensity"               ? fluid.density
                      : name == "BackgroundConcentration" ? fluid.background
                      : name == "SedimentConcentration"   ? fluid.sediment
                      : name == "CriterionConcentration"  ? fluid.criterion
                      : name == "ToxicityDilution"        ? fluid.dilution
                      : name == "ZidToxicityDilution"     ? fluid.zid_dilution
                      : name == "ZCRIT"                   ? fluid.zid_standard
                                                          : fluid.concentration;
      place = values[f];
    }
    return fluid;
  }

  std::vector<Due_Field> Fluid_Fields() const {
    std::vector<Due_Field> fields = {{"TracerName", "", 10, Field_Kind::Name},
                                     Num("SiteDensity", "g/cc")};
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
    model_.print_times =
        Take_Array({"PrintTimes", "s", 10, Field_Kind::Print_Time}, print_times_, 8);
  }

  std::string file_;
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  Model_Input model_;
  int method_ = 0, key3_ = 0, solids_ = 0, batches_ = 0, print_times_ = 0;
};

}  // namespace

Model_Input Read_Model_Input(const std::string& file, const std::string& bytes) {
  return Reader(file, bytes).Read();
}

}  // namespace companion

#include "core/model_input/additions.h"

#include <string_view>

#include "core/checked_entry.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/velocity_types.h"

namespace barvon {
namespace {

constexpr char kVersionLine[] = "BARVON additions: 1\r\n";

/// One line, number by number.
class Named_Line {
 public:
  Named_Line(std::string& text, std::string_view name) : text_(text) {
    text_ += name;
    text_ += ':';
  }
  ~Named_Line() { text_ += "\r\n"; }
  Named_Line(const Named_Line&) = delete;
  Named_Line& operator=(const Named_Line&) = delete;

  void Add(double value) {
    text_ += ' ';
    text_ += Plain_Letters(value).text();
  }

 private:
  std::string& text_;
};

void Put_Number(std::string& text, std::string_view name, double value) {
  Named_Line(text, name).Add(value);
}

void Put_Pattern(std::string& text, std::string_view name,
                 const OneBased<float, kTidalRows>& pattern) {
  Named_Line line(text, name);
  for (int i = 1; i <= kTidalRows; ++i) line.Add(Widen(Entry(pattern, i)));
}

void Put_Evaluation(std::string& text, const ProjectRecord& record) {
  if (record.KEY3 == kOceanFurtherTesting) {
    Put_Number(text, "Criterion", record.CriterionConcentration);
  }
  if (record.KEY3 == kNavigableWaterQuality && Has_Zid(record)) {
    Put_Number(text, "ZidStandard", record.ZCRIT);
  }
}

void Put_Tide(std::string& text, const ProjectRecord& record) {
  if (record.VelocityProfileType != kUnsteadyVelocity) return;
  Put_Number(text, "TideStart", Widen(record.TidalStartTime));
  Put_Pattern(text, "TideX", record.TidalVelX);
  Put_Pattern(text, "TideZ", record.TidalVelZ);
}

/// The model input exchanges rows and columns, see Put_Grid in model_sections.cpp.
void Put_Depths(std::string& text, const ProjectRecord& record) {
  if (record.ConstantDepthFlag != 0) return;
  for (int row = 1; row <= record.MMAX0; ++row) {
    Named_Line line(text, "DepthRow");
    for (int column = 1; column <= record.NMAX0; ++column) {
      line.Add(Entry(Entry(record.DepthGrid, column), row));
    }
  }
}

}  // namespace

Failure Write_Additions(const ProjectRecord& record, std::string& text) {
  text.clear();
  if (!Has_Vessel(record)) return Failure::None;
  std::string lines;
  try {
    Put_Evaluation(lines, record);
    Put_Tide(lines, record);
    Put_Depths(lines, record);
  } catch (const Run_Time_Failure& stop) {
    return stop.failure;
  }
  if (!lines.empty()) text = kVersionLine + lines;
  return Failure::None;
}

}  // namespace barvon

#include "params/evaluation_data.h"

#include <algorithm>
#include <limits>

#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/put_back.h"
#include "params/site_plan.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr char kConcentration[] = "####0.000000";
constexpr double kToxicTracer = 100, kToxicBackground = 0;  // mg/l: the results are per cent
constexpr char kToxicName[] = "FLUID";

std::int16_t Flag_Of(bool wanted) { return wanted ? 1 : 0; }

/// The number of output depths that is typed, whole but within no limits.
double Typed_Count(const std::string& typed) {
  return Round_Half_Even(Lenient_Number(typed)) + 0.0;  // rounding makes negative zeros
}

double Count_At_OK(const std::string& typed) {
  const double count = Typed_Count(typed);
  return count < 0 ? 1 : std::min<double>(count, kMaxOutputDepths);
}

/// The area between the corners of Text or Text5.
std::optional<Feet_Area> Entered_Area(std::string_view array, const Field_Texts& texts,
                                      const ProjectRecord& record) {
  const auto corner = [&](int index) {
    return Entered_Number(Evaluation_Fields(true), {array, index}, texts, record);
  };
  const Feet_Area area = {corner(kCornerTop), corner(kCornerLeft), corner(kCornerBottom),
                          corner(kCornerRight)};
  const bool given = area.top != 0 || area.left != 0 || area.bottom != 0 || area.right != 0;
  return given ? std::optional(area) : std::nullopt;
}

std::string Caption_Of(const ProjectRecord& record) {
  if (record.KEY3 == kTracer) return "Water Quality Analysis for General Open Water Disposal";
  if (Speaks_Of_Disposal_Site(record)) {
    return "Water Quality Analysis for Section 103 Regulatory Analysis";
  }
  if (Offers_Zid(record)) {
    return "Water Quality Analysis for Section 404(b)(1) Regulatory Analysis";
  }
  return Evaluated_Type(record) == kOceanSites ? "Disposal Site Data" : "Mixing Zone Data";
}

}  // namespace

Evaluation_Shape Shape_Of_Evaluation(const ProjectRecord& record, bool led) {
  Evaluation_Shape shape;
  shape.caption = Caption_Of(record);
  shape.tracer = record.KEY3 == kTracer;
  shape.boundary = !shape.tracer || led;
  shape.zid = Offers_Zid(record);
  shape.size_note = !Speaks_Of_Disposal_Site(record);
  shape.boundary_caption = "Mixing Zone";
  shape.upper_left = "Specify Location of Upper Left Corner of Mixing Zone on Grid";
  shape.lower_right = "Specify Location of Lower Right Corner of Mixing Zone on Grid";
  if (Speaks_Of_Disposal_Site(record)) {
    shape.boundary_caption = "Description of Disposal Site";
    shape.upper_left = "Specify Location of Upper Left Corner of Disposal Site on Grid";
    shape.lower_right = "Specify Location of Lower Right Corner of  Disposal Site on Grid";
  } else if (shape.zid) {
    shape.boundary_caption = "Description of Mixing Zone";
    for (std::string* label : {&shape.upper_left, &shape.lower_right}) {
      *label += ". Enter Zeroes if You Want BARVON to Compute a Mixing Zone.";
    }
  }
  shape.zid_note =
      shape.zid
          ? "Some states may employ a zone of initial dilution (ZID) as part of its CWA 401 water "
            "quality certification. A ZID is a second mixing zone where an acute toxicity criteria "
            "can be exceeded.\nEnter zeros if you want BARVON to calcualte the size of the ZID for "
            "you."
          : "A Zone of Initial Dilution (ZID) can only be specified under the Clean Water Act "
            "Section 404 Analysis";
  return shape;
}

void Reset_Vars(const Evaluation_Copy& copy, ProjectRecord& record) {
  Put_Back(copy.ZidFlag, record.ZidFlag, record);
  Put_Back(copy.NumOutputDepths, record.NumOutputDepths, record);
  for (int i = 1; i <= kMaxOutputDepths; ++i) {
    Put_Back(copy.OutputDepths[i], record.OutputDepths[i], record);
  }
}

void Hold_Output_Count(ProjectRecord& record) {
  double& count = record.NumOutputDepths;
  // Written this way round, no number at all becomes 1 too.
  count = count > 0 ? Round_Half_Even(std::min<double>(count, kMaxOutputDepths)) : 1;
  count = std::max<double>(count, 1);
}

std::string Output_Count_Text(const ProjectRecord& record) {
  return Format_Number(record.NumOutputDepths,
                       Find_Row(Evaluation_Fields(true), {"Text8", kOutputCount}, record)->pattern);
}

std::optional<int> Entered_Output_Count(const std::string& typed) {
  const double count = Typed_Count(typed);
  if (count < 1 || count > kMaxOutputDepths) return std::nullopt;
  return static_cast<int>(count);
}

void Tell_Output_Count() {
  Show_Message({"Number of Depths Is Less Than 1 or Greater Than 5.  Please Supply Valid Entry"});
}

void Choose_Zid(bool wanted, Evaluation_Copy& copy, ProjectRecord& record) {
  Write_At_Once(Flag_Of(wanted), copy.ZidFlag, record.ZidFlag);
}

void Take_Output_Count(const std::string& typed, Evaluation_Copy& copy, ProjectRecord& record) {
  const auto count = Entered_Output_Count(typed);
  if (count) Write_At_Once<double>(*count, copy.NumOutputDepths, record.NumOutputDepths);
}

void Take_Output_Depth(int index, const Field_Texts& texts, Evaluation_Copy& copy,
                       ProjectRecord& record) {
  const Control_Name control{"Text8", index};
  const int depth = index + 1;
  std::optional<double>& former = copy.OutputDepths[depth];
  if (texts.Is_Untouched(control)) {
    if (former) record.OutputDepths[depth] = *former;
  } else {
    Write_At_Once(Lenient_Number(texts("Text8", index)), former, record.OutputDepths[depth]);
  }
}

std::string Derived_Concentration(const ProjectRecord& record) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  const int solids = std::min<int>(record.NumSolids, kMaxSolids);
  float sum = 0;
  for (int i = 1; i <= solids; ++i) {
    const double part =
        record.SolidSG[i] * record.SedimentConcentration * record.SolidVolFraction[i];
    sum = static_cast<float>(std::clamp(sum + part, -kLargest, kLargest));
  }
  return Format_Number(Widen(sum), kConcentration);
}

void Save_Evaluation(const Evaluation_Input& input, bool boundary, ProjectRecord& record) {
  record.DataSaved = kFalse;
  Read_Fields(Evaluation_Fields(boundary), input.texts, record);
  if (Compares_Toxicity(record)) {
    record.TracerConcentration = kToxicTracer;
    record.BackgroundConcentration = kToxicBackground;
    record.TracerName() = kToxicName;
  }
  if (Contaminant_Is_In_The_Sediment(record)) {
    record.TracerConcentration = Lenient_Number(Derived_Concentration(record));
  }
  if (Offers_Zid(record)) record.ZidFlag = Flag_Of(input.Check3D1);
  record.NumOutputDepths = Count_At_OK(input.texts("Text8", kOutputCount));
}

Site_Plan Entered_Site(const Evaluation_Input& input, bool boundary, const ProjectRecord& record) {
  Site_Plan site = Plan_Of_Site(record);
  site.boundary = site.zid = std::nullopt;
  if (boundary) site.boundary = Entered_Area("Text", input.texts, record);
  if (Offers_Zid(record) && input.Check3D1) {
    site.zid = Entered_Area("Text5", input.texts, record);
  }
  return site;
}

Plan_Corner Corner_Of(const Control_Name& field) {
  const bool upper = field.index == kCornerTop || field.index == kCornerLeft;
  return {{field.array, upper ? kCornerTop : kCornerBottom},
          {field.array, upper ? kCornerLeft : kCornerRight}};
}

std::string Words_Of(const Plan_Corner& corner, const ProjectRecord& record) {
  const std::string which = corner.top.index == kCornerTop ? "the upper left corner of the "
                                                           : "the lower right corner of the ";
  if (corner.top.array == "Text5") return which + "ZID";
  return which + (Speaks_Of_Disposal_Site(record) ? "disposal site" : "mixing zone");
}

}  // namespace barvon

#include "params/evaluation_fields.h"

#include "core/keys.h"
#include "core/wizard_answers.h"

namespace barvon {
namespace {

constexpr char kSixDecimals[] = "####0.000000";
constexpr char kFiveDecimals[] = "#0.00000";
constexpr char kWholeFeet[] = "###########0";
constexpr char kWholeFeetOfLeft[] = "##########0";
constexpr char kFromTop[] = "Distance from Top Edge of Grid (ft)";
constexpr char kFromLeft[] = "Distance from Left Edge of Grid (ft)";

bool Has_Tracer(const ProjectRecord& record) { return record.KEY3 == kTracer; }

bool Has_Contaminant(const ProjectRecord& record) {
  return (Speaks_Of_Disposal_Site(record) || Offers_Zid(record)) && !Compares_Toxicity(record);
}
bool Has_Ocean_Contaminant(const ProjectRecord& record) {
  return Has_Contaminant(record) && Speaks_Of_Disposal_Site(record);
}
bool Has_Navigable_Contaminant(const ProjectRecord& record) {
  return Has_Contaminant(record) && Offers_Zid(record);
}
bool Has_Fluid_Concentration(const ProjectRecord& record) {
  return Has_Contaminant(record) && !Contaminant_Is_In_The_Sediment(record);
}

bool Meets_Toxicity_Standard(const ProjectRecord& record) {
  if (!Compares_Toxicity(record)) return false;
  const std::int16_t type = Evaluated_Type(record);
  if (type == kOceanSites) return false;
  return type == kNavigableWaters || Offers_Zid(record);
}
bool Meets_Toxicity_Criteria(const ProjectRecord& record) {
  return Compares_Toxicity(record) && !Meets_Toxicity_Standard(record);
}

bool Compares_Toxicity_Of_Zid(const ProjectRecord& record) {
  return Offers_Zid(record) && Compares_Toxicity(record);
}
bool Compares_Concentration_Of_Zid(const ProjectRecord& record) {
  return Offers_Zid(record) && !Compares_Toxicity(record);
}

// Those of the boundary come last.
constexpr Field_Row kRows[] = {
    {.control = {"Text4", kTracerName},
     .label = "Description of Conservative Tracer",
     .pattern = "@@@@@@@",
     .reads = Reads::Text,
     .member = Element<&ProjectRecord::SolidNames, kSolidEntries>(),
     .label_name = {"Label4", 0},
     .shown_for = Has_Tracer},
    {.control = {"Text4", kTracerConcentration},
     .label = "Tracer Concentration in Dredged Material",
     .unit = "mg/l",
     .pattern = kSixDecimals,
     .member = &ProjectRecord::TracerConcentration,
     .label_name = {"Label4", 1},
     .shown_for = Has_Tracer},
    {.control = {"Text4", kTracerBackground},
     .label = "Background Concentration at Disposal Site",
     .unit = "mg/l",
     .pattern = kSixDecimals,
     .member = &ProjectRecord::BackgroundConcentration,
     .label_name = {"Label4", 2},
     .shown_for = Has_Tracer},

    {.control = {"Text1", kLimit},
     .label = "Water Quality Criteria for Contaminant (mg/l)",
     .unit = "mg/l",
     .pattern = kFiveDecimals,
     .member = &ProjectRecord::CriterionConcentration,
     .label_name = {"Label1", 0},
     .shown_for = Has_Ocean_Contaminant},
    {.control = {"Text1", kLimit},
     .label = "Water Quality Standard at Border of Mixing Zone for Contaminant of Concern (mg/l)",
     .unit = "mg/l",
     .pattern = kFiveDecimals,
     .member = &ProjectRecord::CriterionConcentration,
     .label_name = {"Label1", 0},
     .shown_for = Has_Navigable_Contaminant},
    {.control = {"Text1", kLimit},
     .label = "Enter Dilution Required to Meet Toxicity Criteria (%) (Typically, 1% of LC50)",
     .unit = "%",
     .pattern = kSixDecimals,
     .member = &ProjectRecord::ToxicityDilution,
     .label_name = {"Label1", 0},
     .shown_for = Meets_Toxicity_Criteria},
    {.control = {"Text1", kLimit},
     .label = "Enter Dilution Required to Meet Toxicity Standard (%) (Typically, 1% of LC50)",
     .unit = "%",
     .pattern = kSixDecimals,
     .member = &ProjectRecord::ToxicityDilution,
     .label_name = {"Label1", 0},
     .shown_for = Meets_Toxicity_Standard},
    {.control = {"Text1", kContaminantName},
     .label = "Description of Contaminant",
     .reads = Reads::Text,
     .member = Element<&ProjectRecord::SolidNames, kSolidEntries>(),
     .label_name = {"Label1", 1},
     .shown_for = Has_Ocean_Contaminant},
    {.control = {"Text1", kContaminantName},
     .label = "Contaminant of Concern",
     .reads = Reads::Text,
     .member = Element<&ProjectRecord::SolidNames, kSolidEntries>(),
     .label_name = {"Label1", 1},
     .shown_for = Has_Navigable_Contaminant},
    {.control = {"Text1", kInSediment},
     .label = "Contaminant Concentration in Sediment (mg/kg)",
     .unit = "mg/kg",
     .pattern = kFiveDecimals,
     .member = &ProjectRecord::SedimentConcentration,
     .label_name = {"Label1", 2},
     .shown_for = Contaminant_Is_In_The_Sediment},
    {.control = {"Text2"},
     .label = "Predicted Initial Concentration in Fluid Fraction (mg/l)",
     .unit = "mg/l",
     .pattern = kFiveDecimals,
     .member = &ProjectRecord::TracerConcentration,
     .label_name = {"Label1", 2},
     .shown_for = Has_Fluid_Concentration},
    {.control = {"Text1", kBackground},
     .label = "Background Concentration at Disposal Site (mg/l)",
     .unit = "mg/l",
     .pattern = kFiveDecimals,
     .member = &ProjectRecord::BackgroundConcentration,
     .label_name = {"Label1", 3},
     .shown_for = Has_Contaminant},

    {.control = {"Text5", kCornerTop},
     .label = kFromTop,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::ZidTop,
     .shown_for = Offers_Zid},
    {.control = {"Text5", kCornerLeft},
     .label = kFromLeft,
     .unit = "ft",
     .pattern = kWholeFeetOfLeft,
     .member = &ProjectRecord::ZidLeft,
     .shown_for = Offers_Zid},
    {.control = {"Text5", kCornerBottom},
     .label = kFromTop,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::ZidBottom,
     .shown_for = Offers_Zid},
    {.control = {"Text5", kCornerRight},
     .label = kFromLeft,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::ZidRight,
     .shown_for = Offers_Zid},
    {.control = {"Text6"},
     .label = "Dilution required to meet Toxicity Standard at Border of ZID (%)",
     .unit = "%",
     .pattern = kSixDecimals,
     .member = &ProjectRecord::ZidToxicityDilution,
     .label_name = {"Label6"},
     .shown_for = Compares_Toxicity_Of_Zid},
    {.control = {"Text6"},
     .label = "Water Quality Standard at Border of ZID (mg/l)",
     .unit = "mg/l",
     .pattern = kSixDecimals,
     .member = &ProjectRecord::ZCRIT,
     .label_name = {"Label6"},
     .shown_for = Compares_Concentration_Of_Zid},

    {.control = {"Text8", kOutputCount},
     .label =
         "Number of Depths for which Output is Desired. Minimum of 2 Recommended, Maximum of 5 "
         "Allowed.",
     .pattern = "#######0",
     .reads = Reads::Whole},
    {.control = {"Text8", 0},
     .label = "Depth 1",
     .unit = "ft",
     .pattern = "##0.00",
     .member = Element<&ProjectRecord::OutputDepths, 1>()},
    {.control = {"Text8", 1},
     .label = "Depth 2",
     .unit = "ft",
     .pattern = "##0.00",
     .member = Element<&ProjectRecord::OutputDepths, 2>()},
    {.control = {"Text8", 2},
     .label = "Depth 3",
     .unit = "ft",
     .pattern = "##0.00",
     .member = Element<&ProjectRecord::OutputDepths, 3>()},
    {.control = {"Text8", 3},
     .label = "Depth 4",
     .unit = "ft",
     .pattern = "##0.00",
     .member = Element<&ProjectRecord::OutputDepths, 4>()},
    {.control = {"Text8", 4},
     .label = "Depth 5",
     .unit = "ft",
     .pattern = "##0.00",
     .member = Element<&ProjectRecord::OutputDepths, 5>()},

    {.control = {"Text", kCornerTop},
     .label = kFromTop,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::SiteTop},
    {.control = {"Text", kCornerLeft},
     .label = kFromLeft,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::SiteLeft},
    {.control = {"Text", kCornerBottom},
     .label = kFromTop,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::SiteBottom},
    {.control = {"Text", kCornerRight},
     .label = kFromLeft,
     .unit = "ft",
     .pattern = kWholeFeet,
     .member = &ProjectRecord::SiteRight},
};
constexpr Field_Table kAllRows = kRows;
constexpr Field_Table kRowsWithoutBoundary = kAllRows.first(kAllRows.size() - kCornerFields);

}  // namespace

std::int16_t Evaluated_Type(const ProjectRecord& record) {
  if (record.WizardActive == kFalse) return record.AnalysisType;
  return static_cast<std::int16_t>(Answers_Of_Wizard().analysis_option + kOpenWater);
}

Field_Table Evaluation_Fields(bool boundary) { return boundary ? kAllRows : kRowsWithoutBoundary; }

}  // namespace barvon

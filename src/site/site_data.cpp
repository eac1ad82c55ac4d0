#include "site/site_data.h"

#include <algorithm>
#include <optional>

#include "core/desk/workspace_port.h"
#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/put_back.h"
#include "core/velocity_types.h"
#include "core/wizard_answers.h"
#include "material/amden.h"
#include "platform/ask/message_box.h"
#include "site/density_table.h"

namespace barvon {
namespace {

constexpr int kLeastDensityPoints = 2;
constexpr double kUsualRoughness = 0.005;
// The label and the rules allow 0.0005; the warning comes earlier all the same.
constexpr double kLowRoughness = 0.001;
constexpr double kHighRoughness = 0.05;

double Number(const Site_Entry& entry, Site_Field field, const ProjectRecord& record) {
  return Entered_Number(Site_Fields(), {"Text1", field}, entry.texts, record);
}

bool Check_Grid_Count(double count) {
  if (count <= kMaxGridPoints) return true;
  Show_Message(
      {"Number of Grid Points Exceeds Maximum of " + Format_Number(kMaxGridPoints, "###")});
  return false;
}

void Check_Roughness(double height) {
  if (height < kLowRoughness && height != 0) {
    Show_Message({"Roughness Height May Be Too Low"});
  } else if (height > kHighRoughness) {
    Show_Message({"Roughness Height May Be Too High"});
  }
}

bool Check_Density_Points(double count) {
  if (count >= kLeastDensityPoints && count <= kMaxDensityPoints) return true;
  Show_Message({"Number of Density Points Must Be Between 2 and 5"});
  return false;
}

// Half of the product's zeros would be negative ones.
double Dimension(double count, double spacing) { return (count - 1) * spacing + 0.0; }

}  // namespace

Field_Texts Opening_Texts(const ProjectRecord& record) {
  Field_Texts texts = Fill_Fields(Site_Fields(), record);
  if (record.RHDA0 == 0) {
    const Field_Row* row = Find_Row(Site_Fields(), {"Text1", kRoughness}, record);
    texts("Text1", kRoughness) = Format_Number(kUsualRoughness, row->pattern);
  }
  texts("Text1", kDensityPoints) = Plain_Number(Density_Points(record));
  return texts;
}

int Density_Points(const ProjectRecord& record) {
  return std::clamp<int>(record.NROA0, kLeastDensityPoints, kMaxDensityPoints);
}

void Store_Wizard_Depth(ProjectRecord& record) {
  if (record.WizardActive == kFalse) return;
  record.DEPC0 = Lenient_Number(Answers_Of_Wizard().water_depth);
}

void Store_Wizard_Densities(ProjectRecord& record) {
  if (record.WizardActive == kFalse) return;
  const Wizard_Answers& wizard = Answers_Of_Wizard();
  record.NROA0 = 2;
  record.DensityComputeFlag = kTrue;
  record.DensityDepths[1] = 0;
  record.DensityDepths[2] = record.DEPC0;
  OneBased<std::optional<double>, 2> density;
  for (int i = 1; i <= 2; ++i) {
    record.DensitySalinities[i] = Lenient_Number(wizard.water_salinity);
    // Asked for in Fahrenheit, taken as Celsius: what the user sees in the table is what counts.
    record.DensityTemperatures[i] = Lenient_Number(wizard.water_temperature);
    density[i] =
        AMDEN(record.DensitySalinities[i], record.DensityTemperatures[i], record.DensityDepths[i]);
  }
  for (int i = 1; i <= 2; ++i) {
    if (density[i]) continue;
    Tell_No_Density(i);
    return;
  }
  for (int i = 1; i <= 2; ++i) record.Densities[i] = *density[i];
}

bool Check_Site_Text(int index, const std::string& text) {
  const double number = Lenient_Number(text);
  switch (index) {
    case kZPoints:
    case kXPoints:
      return Check_Grid_Count(number);
    case kRoughness:
      Check_Roughness(number);
      return true;
    case kDensityPoints:
      return Check_Density_Points(number);
    default:
      return true;
  }
}

int Density_Rows(const std::string& Text1_8) {
  const double rows = Round_Half_Even(Lenient_Number(Text1_8));
  return static_cast<int>(std::clamp<double>(rows, 0, Spreadsheet_Table::kSheetRows));
}

void Store_Dimensions(ProjectRecord& record) {
  record.DistZ = Dimension(record.NMAX0, record.DZ0);
  record.DistX = Dimension(record.MMAX0, record.DX0);
}

void Store_Dimensions(const Site_Entry& entry, ProjectRecord& record) {
  record.DistZ = Dimension(Number(entry, kZPoints, record), Number(entry, kZSpacing, record));
  record.DistX = Dimension(Number(entry, kXPoints, record), Number(entry, kXSpacing, record));
}

void Choose_Variable_Depth(bool variable, ProjectRecord& record) {
  record.ConstantDepthFlag = variable ? 0 : 1;
  const double displaced = variable ? kTwoPointVelocity : kNoVelocity;
  if (record.VelocityProfileType != displaced) return;
  record.VelocityProfileType = variable ? kNoVelocity : kTwoPointVelocity;
  Port().board.paint_velocity_option(kTwoPointForm,
                                     variable ? Status_Colour::Black : Status_Colour::Blue);
}

void SaveSiteData(const Site_Entry& entry, const Spreadsheet_Table& F1Book1,
                  ProjectRecord& record) {
  record.DataSaved = kFalse;
  Read_Fields(Site_Fields(), entry.texts, record);  // its counts are held: no text is refused
  if (entry.variable_depth) record.DEPC0 = 0;
  record.ConstantDepthFlag = entry.variable_depth ? 0 : 1;
  for (int row = 1; row <= record.NROA0; ++row) {
    Store_Density_Row(F1Book1, row, entry.computes_density, record);
  }
}

Site_Copy Copy_Site(const Site_Entry& entry, const ProjectRecord& record) {
  return {record.NMAX0, record.MMAX0,           record.NROA0,        record.DZ0,
          record.DX0,   record.RHDA0,           record.SLOPEX0,      record.SLOPEZ0,
          record.DEPC0, entry.computes_density, entry.variable_depth};
}

void Reset_Vars(const Site_Copy& copy, ProjectRecord& record) {
  Put_Back(copy.NMAX0, record.NMAX0, record);
  Put_Back(copy.MMAX0, record.MMAX0, record);
  Put_Back(copy.NROA0, record.NROA0, record);
  Put_Back(copy.DZ0, record.DZ0, record);
  Put_Back(copy.DX0, record.DX0, record);
  Put_Back(copy.RHDA0, record.RHDA0, record);
  Put_Back(copy.SLOPEX0, record.SLOPEX0, record);
  Put_Back(copy.SLOPEZ0, record.SLOPEZ0, record);
  Put_Back(copy.DEPC0, record.DEPC0, record);
}

}  // namespace barvon

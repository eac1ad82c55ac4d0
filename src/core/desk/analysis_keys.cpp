#include "core/desk/analysis_keys.h"

#include "core/density_limits.h"
#include "core/desk/workspace_port.h"

namespace barvon {
namespace {

constexpr double kModelInputProject = 2;
constexpr std::int16_t kHopper = 1;
constexpr std::int16_t kBarge = 3;
constexpr std::int16_t kDescentAndCollapse = 2;

}  // namespace

std::int16_t Analysis_Type_Of_KEY4(std::int16_t key4) {
  return key4 >= 1 && key4 <= 6 ? static_cast<std::int16_t>((key4 + 1) / 2) : std::int16_t{0};
}

std::optional<std::int16_t> KEY4_Of_Evaluation(std::int16_t key3, std::int16_t disposal_method) {
  if (key3 < 0 || key3 > 7) return std::nullopt;
  if (disposal_method != kHopper && disposal_method != kBarge) return std::nullopt;
  const int hopper = key3 <= 1 ? 1 : key3 <= 4 ? 3 : 5;
  return static_cast<std::int16_t>(disposal_method == kHopper ? hopper : hopper + 1);
}

void Refresh_Record(ProjectRecord& record) {
  if (record.LegacyKeyRebuild) {
    record.KEY4 = KEY4_Of_Evaluation(record.KEY3, record.DisposalMethod).value_or(record.KEY4);
  }
  if (const std::int16_t type = Analysis_Type_Of_KEY4(record.KEY4); type != 0) {
    record.AnalysisType = type;
    record.FileKind = kModelInputProject;
  }
  if (record.DisposalMethod == kHopper || record.DisposalMethod == kBarge) {
    record.KEY1 = 1;
    record.PreviousDisposalMethod = record.DisposalMethod;
  }
  record.SiteDensity = Held_Site_Density(record.SiteDensity);
  Refresh_KEY2(record);
}

void Refresh_KEY2(ProjectRecord& record) {
  if (record.KEY2 == 1) record.KEY2 = kDescentAndCollapse;
  if (record.KEY2 < 0) record.KEY2 = 0;
  // Showing the choice is making it: a project without diffusion has no contaminant.
  if (record.KEY2 == kDescentAndCollapse) Reset_WQParams(record);
}

void Show_Project(ProjectRecord& record) {
  Refresh_Record(record);
  Port().board.display_data();
}

void Reset_WQParams(ProjectRecord& record) {
  record.TracerName().clear();
  record.TracerConcentration = record.BackgroundConcentration = 0;
  record.CriterionConcentration = record.SedimentConcentration = 0;
  record.ZidTop = record.ZidLeft = record.ZidBottom = record.ZidRight = 0;
}

}  // namespace barvon

#include "material/load_water.h"

#include <algorithm>
#include <limits>

#include "core/density_limits.h"
#include "core/format_pattern.h"
#include "core/number_text.h"
#include "material/amden.h"
#include "material/density_data.h"
#include "material/open_hopper_boxes.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr Field_Row kRows[] = {
    {.control = {"Text3", kLoadDensity},
     .label = "Density (g/cc)",
     .unit = "g/cc",
     .pattern = "#.0000",
     .member = &ProjectRecord::SiteDensity,
     .frame = kWaterFrame},
    {.control = {"Text3", kLoadSalinity},
     .label = "Salinity (ppt)",
     .unit = "ppt",
     .pattern = "#.00",
     .member = &ProjectRecord::SiteSalinity,
     .frame = kWaterFrame},
    {.control = {"Text3", kLoadTemperature},
     .label = "Temperature (Deg C)",
     .unit = "deg C",
     .pattern = "#.00",
     .member = &ProjectRecord::SiteTemperature,
     .frame = kWaterFrame},
};

constexpr char kComputedPattern[] = "####0.0000";

/// The boxes are read in 32 bits here.
double Narrow_Number(const std::string& text) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(Lenient_Number(text), -kLargest, kLargest));
}

}  // namespace

Field_Table Water_Fields() { return kRows; }

bool Type_Water(const Field_Texts& texts, bool held, ProjectRecord& record) {
  const double salinity = Narrow_Number(texts("Text3", kLoadSalinity));
  const double temperature = Narrow_Number(texts("Text3", kLoadTemperature));
  const bool computed = salinity > 0 && temperature > 0;
  if (computed) record.SiteDensity = AMDEN(salinity, temperature, 0).value_or(record.SiteDensity);
  if (held) record.SiteDensity = Held_Site_Density(record.SiteDensity);
  return computed || held;
}

void Compute_Density(ProjectRecord& record) {
  const auto [salinity, temperature] = Open_Hopper_Boxes(record);
  const auto density = AMDEN(salinity, temperature, 0);
  if (!density) {
    Tell_No_Water_Density(salinity, temperature);
    return;
  }
  record.SiteSalinity = salinity;
  record.SiteTemperature = temperature;
  record.SiteDensity = Held_Site_Density(*density);
  if (*density < kLeastSiteDensity) {
    Show_Message(
        {"Minimum Allowable Dredging Site Water Density is 0.972 g/cc.  Site Water Density Will "
         "Be Set to 0.972 g/cc."});
  } else if (*density > kGreatestSiteDensity) {
    Show_Message(
        {"Maximum Allowable Dredging Site Water Density is 1.05 g/cc.  Site Water Density Will "
         "Be Set to 1.05 g/cc."});
  }
}

Field_Texts Computed_Density_Text(const ProjectRecord& record) {
  Field_Texts texts;
  texts.Set({"Text3", kLoadDensity}, Format_Number(record.SiteDensity, kComputedPattern));
  return texts;
}

bool Water_Density_Fits(const Field_Texts& texts, const ProjectRecord& record) {
  const double density = Entered_Number(kRows, {"Text3", kLoadDensity}, texts, record);
  if (density < kLeastSiteDensity) {
    Show_Message({"Minimum Allowable Dredging Site Water Density is 0.972 g/cc.  Please Correct."});
    return false;
  }
  if (density > kGreatestSiteDensity) {
    Show_Message({"Maximum Allowable Dredging Site Water Density is 1.05 g/cc.  Please Correct."});
    return false;
  }
  return true;
}

}  // namespace barvon

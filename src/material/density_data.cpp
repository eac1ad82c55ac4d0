#include "material/density_data.h"

#include <array>
#include <string>

#include "core/density_limits.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/put_back.h"
#include "core/text_tools.h"
#include "material/amden.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

enum Field { kSalinity = 0, kTemperature, kDensity };

constexpr Field_Row kRows[] = {
    {.control = {"Text3", kSalinity},
     .label = "Salinity (ppt)",
     .unit = "ppt",
     .pattern = "####0.00",
     .member = &ProjectRecord::SiteSalinity,
     .frame = kDensityFrame,
     .label_name = {"Label4", kSalinity}},
    {.control = {"Text3", kTemperature},
     .label = "Temperature (celsius)",
     .unit = "celsius",
     .pattern = "####0.00",
     .member = &ProjectRecord::SiteTemperature,
     .frame = kDensityFrame,
     .label_name = {"Label4", kTemperature}},
    {.control = {"Text3", kDensity},
     .label = "Density (g/cc)",
     .unit = "g/cc",
     .pattern = "####0.0000",
     .member = &ProjectRecord::SiteDensity,
     .frame = kDensityFrame,
     .label_name = {"Label4", kDensity}},
};

constexpr std::size_t kShownCharacters = 40;  // of a text that is quoted in a message
constexpr char kNothingComputed[] = "No density has been computed.";

void Show_Density(const ProjectRecord& record, Density_Entry& entry) {
  entry.texts("Text3", kDensity) = Field_Text(kRows[kDensity], record);
}

/// The strict conversion: all of the text is one number. It takes what the field has no mark for.
std::optional<double> Strict_Number(const std::string& text) {
  const Number_Reading reading = Read_Real(text);
  return reading.differs ? std::nullopt : reading.value;
}

std::string Complaint(Field field, const std::string& text) {
  const std::string name = kRows[field].label;
  if (Trimmed(text).empty()) return name + " is empty.\n";
  std::string shown = First_Characters(text, kShownCharacters);
  if (shown.size() < text.size()) shown += "...";
  return name + ": \"" + shown + "\" can't be read as a number.\n";
}

}  // namespace

Field_Table Density_Fields() { return kRows; }

Density_Entry Open_Density(ProjectRecord& record) {
  record.SiteDensity = Held_Site_Density(record.SiteDensity);
  return {Fill_Fields(kRows, record), false};
}

std::optional<int> Compute_Water_Density(Density_Entry& entry, ProjectRecord& record) {
  std::array<double, 2> typed{};
  std::optional<int> wrong;
  std::string complaints;
  for (const Field field : {kSalinity, kTemperature}) {
    if (Strict_Number(entry.texts("Text3", field))) {
      typed[field] = Entered_Number(kRows, {"Text3", field}, entry.texts, record);
    } else {
      complaints += Complaint(field, entry.texts("Text3", field));
      if (!wrong) wrong = field;
    }
  }
  if (wrong) {
    Show_Warning(complaints + kNothingComputed);
    return wrong;
  }
  const auto [salinity, temperature] = typed;
  double density = record.SiteDensity;
  if (entry.Check3D3) {
    const auto computed = AMDEN(salinity, temperature, 0);
    if (!computed) {
      Tell_No_Water_Density(salinity, temperature);
      // Where fresh water of that temperature has a density, the salinity is at fault.
      return AMDEN(0, temperature, 0) ? kSalinity : kTemperature;
    }
    density = *computed;
  }
  record.SiteSalinity = salinity;
  record.SiteTemperature = temperature;
  record.SiteDensity = Held_Site_Density(density);
  Show_Density(record, entry);
  return std::nullopt;
}

void Tell_No_Water_Density(double salinity, double temperature) {
  Show_Warning("The formula has no result for a salinity of " + Plain_Number(salinity) +
               " ppt and a temperature of " + Plain_Number(temperature) + " deg C.\n" +
               kNothingComputed);
}

void Save_Data(Density_Entry& entry, ProjectRecord& record) {
  record.DataSaved = kFalse;
  Read_Fields(kRows, entry.texts, record);
  // The material screens refuse such a density; here it is told and the screen closes.
  if (record.SiteDensity < kLeastSiteDensity) {
    Show_Message({"Minimum Density is 0.972 grams/cc"});
  } else if (record.SiteDensity > kGreatestSiteDensity) {
    Show_Message({"Maximum Density is 1.050 grams/cc"});
  }
  record.SiteDensity = Held_Site_Density(record.SiteDensity);
  Show_Density(record, entry);
}

Density_Copy Copy_Density(const ProjectRecord& record) { return {record.SiteDensity}; }

void Reset_Vars(const Density_Copy& copy, ProjectRecord& record) {
  Put_Back(copy.SiteDensity, record.SiteDensity, record);
}

}  // namespace barvon

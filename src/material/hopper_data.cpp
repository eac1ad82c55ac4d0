#include "material/hopper_data.h"

#include <algorithm>
#include <cstdint>

#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "material/load_water.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr Control_Name kVolume{"Text2", 0}, kSolids{"Text2", 1}, kMoisture{"Text1"};
constexpr char kVolumePattern[] = "######0.";
constexpr char kMoisturePattern[] = "###.00";
constexpr char kNoMoisture[] = "0.0";

constexpr Field_Row kRows[] = {
    {.control = kVolume,
     .label = "Total Volume of Dredged Material in the Hopper Dredge (cu yd).",
     .unit = "cu yd",
     .pattern = kVolumePattern,
     .member = &ProjectRecord::TotalVolume,
     .label_name = {"Label1"}},
    {.control = kMoisture,
     .label = "Moisture Content of Dredged Material Expressed as Multiple of Liquid Limit.",
     .unit = "multiple of the liquid limit",
     .pattern = kMoisturePattern,
     .member = &ProjectRecord::MoistureContent,
     .label_name = {"Label3"}},
    {.control = kSolids,
     .label = "Number of Distinct Solids Fractions in the Material (Maximum of 4 Allowed).",
     .unit = "fractions",
     .reads = Reads::Cut,
     .label_name = {"Label2"}},
};

/// The volume that the screen shows while the record has none.
double Offered_Volume(const ProjectRecord& record) {
  const bool offers = record.TotalVolume == 0 && record.LayerVolume[1] > 0;
  return offers ? record.LayerVolume[1] : record.TotalVolume;
}

/// Without the coefficient there is no moisture content. A hopper that had neither the coefficient
/// nor another number typed keeps its own, a pipeline does not.
double Stored_Moisture(const Hopper_Entry& entry, const ProjectRecord& record) {
  if (entry.SSCheck1) return Entered_Number(kRows, kMoisture, entry.texts, record);
  const bool untouched = record.JBFCFlag != 1 && record.DisposalMethod != kContinuous &&
                         entry.texts.Is_Untouched(kMoisture);
  return untouched ? record.MoistureContent : 0;
}

}  // namespace

Field_Table Hopper_Fields() { return kRows; }

Hopper_Entry Open_Hopper(ProjectRecord& record) {
  record.NumSolids = std::clamp<std::int16_t>(record.NumSolids, 1, kMaxSolids);
  Hopper_Entry entry;
  entry.texts.Set(kVolume, Format_Number(Offered_Volume(record), kVolumePattern));
  entry.texts.Set(kSolids, Format_Number(record.NumSolids, "#######0"));
  entry.SSCheck1 = record.JBFCFlag == 1;
  entry.texts.Set(kMoisture, entry.SSCheck1
                                 ? Format_Number(record.MoistureContent, kMoisturePattern)
                                 : kNoMoisture);
  entry.water = Fill_Fields(Water_Fields(), record);
  return entry;
}

Field_Texts Moisture_Text(const ProjectRecord& record) {
  Field_Texts texts;
  texts.Set(kMoisture, Format_Number(record.MoistureContent, kMoisturePattern));
  return texts;
}

void Check_Hopper_Solids(const std::string& text) {
  // The whole part counts: 4.5 passes as 4, 0.5 does not.
  const double solids = Int(Lenient_Number(text));
  if (solids < 1 || solids > kMaxSolids) {
    Show_Message({"Number of Distinct Solids Fractions Must Be Between 1 and 4"});
  }
}

std::string Moisture_Doubt(const Hopper_Entry& entry, const ProjectRecord& record) {
  const std::string& typed = entry.texts(kMoisture.array, kMoisture.index);
  if (entry.SSCheck1 || entry.texts.Is_Untouched(kMoisture) || Lenient_Number(typed) == 0 ||
      record.DisposalMethod == kContinuous) {
    return "";
  }
  return "Moisture content: \"" + typed +
         "\" is stored as 0, because the coefficient is not used.\n";
}

bool Save_Data(const Hopper_Entry& entry, Solids_State& state, const Spreadsheet_Table& solids,
               ProjectRecord& record) {
  if (!Water_Density_Fits(entry.water, record)) return false;
  record.DataSaved = kFalse;
  record.TotalVolume = entry.texts.Is_Untouched(kVolume)
                           ? Offered_Volume(record)
                           : Lenient_Number(entry.texts(kVolume.array, kVolume.index));
  record.MoistureContent = Stored_Moisture(entry, record);
  record.JBFCFlag = entry.SSCheck1 ? 1 : 0;
  Read_Fields(Water_Fields(), entry.water, record);
  Store_Solids(state, solids, record);
  Save_New_Materials(record, state.lines, state.library);
  return true;
}

}  // namespace barvon

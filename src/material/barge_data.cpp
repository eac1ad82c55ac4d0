#include "material/barge_data.h"

#include <algorithm>
#include <cstdint>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "core/record_columns.h"
#include "material/load_water.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr Control_Name kLayers{"Text1", 0}, kSolids{"Text1", 1}, kMoisture{"Text2"};

constexpr Field_Row kRows[] = {
    {.control = kLayers,
     .label = "Number of Layers Used To Model Vessel Contents. Maximum of 6 Allowed.",
     .unit = "layers",
     .pattern = "#######0",
     .reads = Reads::Whole,
     .member = &ProjectRecord::LAYERS,
     .label_name = {"Label1", 0},
     .held = Count_Limits{1, kMaxLayers}},
    {.control = kSolids,
     .label = "Number of Solid Fractions in the Material.  (Maximum of 4 Allowed).",
     .unit = "fractions",
     .label_name = {"Label1", 3}},
    {.control = kMoisture,
     .label = "Moisture Content of Dredged Material",
     .unit = "multiple of the liquid limit",
     .member = &ProjectRecord::MoistureContent,
     .label_name = {"Label3"}},
};

constexpr int kAuto = Spreadsheet_Table::kAutoWidth;
constexpr Table_Column<ProjectRecord> kLayerColumns[] = {
    {"Volume\n (Cu. Yd.)", kAuto, "", kCells<&ProjectRecord::LayerVolume>},
    {"Velocity X-Dir\n(Ft/Sec)", kAuto, "", kCells<&ProjectRecord::LayerVelX>},
    {"Velocity Z-Dir\n (Ft/Sec)", kAuto, "", kCells<&ProjectRecord::LayerVelZ>}};
constexpr int kHeadingHeight = 500, kRowHeadingWidth = 2000;

constexpr char kConcentrationPrompt[] =
    "Enter the volumetric concentration for each solids fraction for each layer.   The volumetric "
    "concentration must represent the decimal fraction of the total volume of the layer.";
constexpr char kMoisturePrompt[] =
    "The moisture content is expressed as a mulitple of the liquid limit.  For example, if the "
    "liquid limit is 60% and the moisture content is 150%, then the mulitple that should be "
    "supplied is 2.5.";

bool Can_Be_Layers(const std::string& text) {
  const double layers = Lenient_Number(text);
  return layers > 0 && layers <= kMaxLayers;
}

}  // namespace

Field_Table Barge_Fields() { return kRows; }

Barge_Entry Open_Barge(ProjectRecord& record) {
  record.LAYERS = std::clamp<std::int16_t>(record.LAYERS, 1, kMaxLayers);
  record.NumSolids = std::clamp<std::int16_t>(record.NumSolids, 1, kMaxSolids);
  Barge_Entry entry;
  entry.texts = Fill_Fields(kRows, record);
  entry.texts.Set(kSolids, Format_Number(record.NumSolids, "###"));
  entry.water = Fill_Fields(Water_Fields(), record);
  entry.separated = record.SeparationFlag != 0;
  entry.with_jbfc = record.JBFCFlag == 1;
  return entry;
}

Shown_Columns<ProjectRecord> Layer_Columns() { return Shown_Columns(kLayerColumns); }

void Fill_Layer_Table(const ProjectRecord& record, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  const Shown_Columns columns = Layer_Columns();
  columns.Lay_Out(1, kMaxLayers, table);
  for (int layer = 1; layer <= kMaxLayers; ++layer) {
    // Layers beyond the project's show what they held before there were fewer.
    const auto at = static_cast<std::size_t>(layer);
    const bool once_held =
        record.LayerVolume[at] != 0 || record.LayerVelX[at] != 0 || record.LayerVelZ[at] != 0;
    if (layer <= record.LAYERS || once_held) columns.Fill_Row(record, layer, layer, table);
  }
  if (record.LayerVolume[1] == 0 && record.TotalVolume > 0) {
    table.NumberRC(1, 1, record.TotalVolume);
  }
  table.ColHeadingHeight(kHeadingHeight);
  table.RowHeadingWidth(kRowHeadingWidth);
  Define_Layer_Table(record.LAYERS, table);
}

void Define_Layer_Table(int layers, Spreadsheet_Table& table) {
  table.MaxRow(layers);
  Number_Rows("Layer ", layers, table);
  table.AutoColWidth();
}

int Layers_Of(const std::string& text) {
  return static_cast<int>(std::clamp<double>(Round_Half_Even(Lenient_Number(text)), 1, kMaxLayers));
}

std::string Layers_Doubt(const std::string& text) {
  if (Lenient_Number(text) == Layers_Of(text)) return "";
  return "Number of layers: \"" + text + "\" is stored as " + std::to_string(Layers_Of(text)) +
         ".\n";
}

bool Check_Barge_Layers(const std::string& text) {
  if (Can_Be_Layers(text)) return true;
  Show_Message({"Number of Layers Must Be Between 1 and 6"});
  return false;
}

bool Check_Barge_Solids(const std::string& text) {
  const double solids = Lenient_Number(text);
  if (solids > 0 && solids <= kMaxSolids) return true;
  Show_Message({"Number of Solids Fractions Must Be Between 1 and 4"});
  return false;
}

std::string Composition_Prompt(bool separated, bool with_jbfc) {
  if (separated && with_jbfc) return std::string(kConcentrationPrompt) + "\n" + kMoisturePrompt;
  if (separated) return kConcentrationPrompt;
  return with_jbfc ? kMoisturePrompt : "";
}

bool Save_Barge_Data(const Barge_Entry& entry, const Spreadsheet_Table& layers,
                     const Layer_Moisture& moisture, Solids_State& state,
                     const Spreadsheet_Table& solids, ProjectRecord& record) {
  if (!Water_Density_Fits(entry.water, record)) return false;
  record.DataSaved = kFalse;
  // The moisture content comes from Text2 with separation too, although it is hidden then.
  Read_Fields(kRows, entry.texts, record);
  Layer_Columns().Store(layers, record.LAYERS, record);
  if (entry.separated != (record.SeparationFlag != 0))
    record.SeparationFlag = entry.separated ? 1 : 0;
  Store_Solids(state, solids, record);
  Save_New_Materials(record, state.lines, state.library);
  record.JBFCFlag = entry.with_jbfc ? 1 : 0;
  Store_Composition(state, moisture, entry.separated && entry.with_jbfc, record);
  Read_Fields(Water_Fields(), entry.water, record);
  return true;
}

}  // namespace barvon

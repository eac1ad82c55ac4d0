#pragma once

#include <string>

#include "core/field_table.h"
#include "core/project_record.h"
#include "core/record_columns.h"
#include "material/layer_composition.h"
#include "material/solids_table.h"

namespace barvon {

/// The captions of the check boxes.
inline constexpr char kSeparationCaption[] =
    "Do you wish to enter data on material separation during transport?";
inline constexpr char kBargeJbfcCaption[] =
    "Do you wish to use the JBFC Coefficient to adjust entrainment and drag coefficients based on "
    "moisture content?";

/// The fields of frmMatBarge apart from its water: Text1(0) and Text1(1), numbers of layers and of
/// fractions, and Text2, the moisture content of the load.
Field_Table Barge_Fields();

/// What frmMatBarge holds besides its tables.
struct Barge_Entry {
  Field_Texts texts;       // of Barge_Fields(), as typed
  Field_Texts water;       // of Water_Fields()
  bool separated = false;  // SSCheck1(0): every layer has its own composition
  bool with_jbfc = false;  // SSCheck1(1): the JBFC coefficient is used
};

/// What the screen shows when it opens. LAYERS is brought to 1 to 6 first, NumSolids to 1 to 4.
Barge_Entry Open_Barge(ProjectRecord& record);

/// The columns of the table of layers: volume (cu yd) and velocities (ft/s).
Shown_Columns<ProjectRecord> Layer_Columns();
/// Volume and velocities of the layers. Layer 1 without a volume is offered that of
/// a hopper.
void Fill_Layer_Table(const ProjectRecord& record, Spreadsheet_Table& table);
/// The table gets so many layers.
void Define_Layer_Table(int layers, Spreadsheet_Table& table);

/// The layers that a text stands for, 1 to 6.
int Layers_Of(const std::string& text);
/// What to say of a number of layers that OK brings into 1 to 6, in a line; "" for one within.
std::string Layers_Doubt(const std::string& text);
/// A number of layers or of fractions was typed. False, and told, when there can't be so many.
bool Check_Barge_Layers(const std::string& text);
bool Check_Barge_Solids(const std::string& text);

/// The words beside the composition table.
std::string Composition_Prompt(bool separated, bool with_jbfc);

/// OK. False, and told, when the density is outside its limits; nothing is stored then. New
/// fractions go to the library.
bool Save_Barge_Data(const Barge_Entry& entry, const Spreadsheet_Table& layers,
                     const Layer_Moisture& moisture, Solids_State& state,
                     const Spreadsheet_Table& solids, ProjectRecord& record);

}  // namespace barvon

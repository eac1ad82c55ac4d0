#pragma once

#include <string>

#include "core/field_table.h"
#include "core/project_record.h"
#include "material/solids_table.h"

namespace barvon {

/// The caption of the check box.
inline constexpr char kHopperJbfcCaption[] =
    "Use JBFC Coefficient To Adjust Entrainment and Drag Coefficients?";

/// The fields of frmMatHopper apart from its water: Text2(0) and Text2(1), volume and number of
/// fractions, and Text1, the moisture content.
Field_Table Hopper_Fields();

/// What frmMatHopper holds besides its solids table.
struct Hopper_Entry {
  Field_Texts texts;      // of Hopper_Fields(), as typed
  Field_Texts water;      // of Water_Fields()
  bool SSCheck1 = false;  // the JBFC coefficient is used
};

/// What the screen shows when it opens. NumSolids is brought to 1 to 4 first. A hopper without a
/// volume is offered that of a barge's first layer.
Hopper_Entry Open_Hopper(ProjectRecord& record);

/// What Text1 shows of the record's moisture content.
Field_Texts Moisture_Text(const ProjectRecord& record);

/// A number of fractions was typed, which only is checked.
void Check_Hopper_Solids(const std::string& text);

/// What to say of a moisture content that was typed and is not stored without the coefficient, in a
/// line; "" for none.
std::string Moisture_Doubt(const Hopper_Entry& entry, const ProjectRecord& record);

/// OK. False, and told, when the density is outside its limits; nothing is stored then. New
/// fractions go to the library.
bool Save_Data(const Hopper_Entry& entry, Solids_State& state, const Spreadsheet_Table& solids,
               ProjectRecord& record);

}  // namespace barvon

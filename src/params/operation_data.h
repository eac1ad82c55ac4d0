#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "params/operation_fields.h"
#include "params/site_plan.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// What frmOperation holds; the velocities of the openings are in its table.
struct Operation_Entry {
  Field_Texts texts;  // of Operation_Fields(), as typed
  bool Check3D1 = false;
};

/// A value of the depression and the text that its field showed.
struct Shown_Length {
  std::string text;
  double feet = 0;
};
using Dropped_Depression = std::array<Shown_Length, kDepressionFields>;

/// What Cancel brings back: the values that an OK has stored which then left the screen open, and
/// the data board's box.
struct Operation_Copy {
  bool SSCheck3 = false;
  std::vector<double> before, after;          // of that OK; empty without one
  std::optional<Dropped_Depression> dropped;  // by No; declared again, it has all its digits
};
/// A value that somebody else has written since stays. DataSaved is not brought back: other screens
/// may have cleared it too, and a file saved meanwhile holds what goes here.
void Reset_Vars(const Operation_Copy& copy, ProjectRecord& record);

/// With the wizard open, the method of disposal is its own.
void Store_Wizard_Method(ProjectRecord& record);
/// Before the screen fills itself: a number of openings outside 0 to kMaxLayers is brought in,
/// without a message.
void Hold_Openings(ProjectRecord& record);

/// "Disposal Operation Data", with the vessel behind it.
std::string Operation_Caption(const ProjectRecord& record);
/// A hopper's openings have velocities of their own.
bool Has_Openings(const ProjectRecord& record);
/// Whether the record declares a depression.
bool Has_Depression(const ProjectRecord& record);

/// The table with the velocities of all openings, of which it shows as many as the record counts,
/// one at least.
void Fill_Velocities(const ProjectRecord& record, Spreadsheet_Table& F1Book1);
/// Text2 has changed. A number of 1 to kMaxLayers other than the rows shown makes as many rows,
/// all velocities 0, also behind them, which one undo takes back. 0 does nothing; any other number
/// is told. The result is what Text2 is to show.
std::string Take_Openings(const std::string& typed, Spreadsheet_Table& F1Book1);
/// What there is to say about a number of openings, "" for nothing.
std::string Openings_Remark(const std::string& typed);

/// What follows an OK.
struct Operation_Result {
  bool CanClose = false;
  bool Check3D1 = false;                     // as the box is to stand
  std::optional<Control_Name> refused = {};  // the field whose number does not fit
};

/// OK. A whole number beyond 16 bits is told, and nothing is stored. Otherwise the fields become
/// the record's; a number of openings above kMaxLayers counts as that, a negative one as 0, and as
/// many rows of the table become velocities, 0 for rows that were not shown. A hopper over a
/// depression must lie still: that is asked, and Yes sets its velocities to 0, No drops the
/// depression and Cancel keeps it; both leave the screen open with what is stored, which `copy`
/// then holds.
Operation_Result Save_Operation(const Operation_Entry& entry, Operation_Copy& copy,
                                Spreadsheet_Table& F1Book1, ProjectRecord& record);

/// The plan with what is typed.
Site_Plan Entered_Site(const Operation_Entry& entry, const Spreadsheet_Table& F1Book1,
                       const ProjectRecord& record);

/// What a field of the disposal point shows for a place picked on the plan, in feet.
std::string Place_Text(double feet);

}  // namespace barvon

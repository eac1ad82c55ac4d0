#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/field_table.h"
#include "core/project_record.h"

namespace barvon {

/// Text7, the typical values of the site.
enum Typical_Field {
  kPlumeDistance = 0,
  kMaxDuration,
  kTypicalVelocityX,
  kTypicalVelocityZ,
  kWaterDepth,
  kWaterTemperature,
  kWaterSalinity,
  kTypicalFields
};

/// Text1 and Text7 of the wizard.
Field_Table Wizard_Fields();
/// How they look: the temperature's mark says that it is read as Celsius.
std::vector<Field_Face> Wizard_Faces(const ProjectRecord& record);

/// What the wizard's pages hold. Each choice is the index of the option that is set.
struct Wizard_Entry {
  Field_Texts texts;   // of Wizard_Fields(), as typed
  int evaluation = 0;  // SSOption1
  int analysis = 0;    // SSOption2
  int method = 0;      // SSOption3
  int simulation = 0;  // SSOption4
  int velocity = 0;    // SSOption5
};

std::int16_t Analysis_Type_Of(const Wizard_Entry& entry);
std::int16_t Disposal_Method_Of(const Wizard_Entry& entry);

/// The evaluation, or option 0 where the type of analysis does not offer it.
int Offered_Evaluation(const Wizard_Entry& entry);

/// "Maximum Simulation Duration (sec)": the record's own while the field shows it untouched.
double Duration_Of(const Wizard_Entry& entry, const ProjectRecord& record);
double Water_Depth_Of(const Wizard_Entry& entry);

/// The duration that a type of analysis puts over `typed`; nothing when the user has typed one.
std::optional<std::string> Default_Duration(int analysis, const std::string& typed);

/// What the pages show when the wizard opens: the record's choices if it has been through here or
/// comes from a file, else the first options. Texts as far as they are filled.
Wizard_Entry Opening_Entry(const ProjectRecord& record);

/// The choices that the record stands for.
void RestoreOptionsFromRecord(const ProjectRecord& record, Wizard_Entry& entry);

/// Tells the screens that the wizard opens what its pages hold now.
void Tell_Answers(const Wizard_Entry& entry, const ProjectRecord& record);
/// The wizard has closed.
void Take_Back_Answers();

}  // namespace barvon

#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// What the choices of both boards do. Each click sets its option, whether a person made it or
/// code, and also when the option is set already: the group is repainted, the record written, and
/// what depends on the choice becomes available or not.

void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption3_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption4_Click(Main_Controls& controls, ProjectRecord& record, int index);

/// Asks the user when the option is the two-point profile and the depth is variable.
void Option3D1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void Check3D1_Click(Main_Controls& controls, ProjectRecord& record, bool set);
void SSCheck4_Click(Main_Controls& controls, ProjectRecord& record, bool set);

/// The buttons of the program options and the picture buttons.
void SSPanel5_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSRibbon1_Click(ProjectRecord& record, int index);
void SSRibbon2_Click(Main_Controls& controls, ProjectRecord& record);

/// The evaluation group reads as the type of analysis has it.
void Assign_Labels(Main_Controls& controls, std::int16_t analysis_type);

/// KEY3 from what the simulation and evaluation groups show.
void KEY3_Value(const Main_Controls& controls, ProjectRecord& record);

/// The controls' half of each choice, for a state that the record holds already; -1 shows no
/// option.
void Show_Type(Main_Controls& controls, int type);
void Show_Method(Main_Controls& controls, int method);
void Show_Simulation(Main_Controls& controls, int simulation);
void Show_Evaluation(Main_Controls& controls, int evaluation, std::int16_t analysis_type);
void Show_Velocity(Main_Controls& controls, int option, bool logarithmic);
void Show_JBFC(Main_Controls& controls, bool used);

}  // namespace barvon

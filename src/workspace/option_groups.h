#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// The controls' half of each choice, for a state that the record holds already; -1 shows no
/// option.
void Show_Type(Main_Controls& controls, int type);
void Show_Method(Main_Controls& controls, int method);
void Show_Simulation(Main_Controls& controls, int simulation);
void Show_Evaluation(Main_Controls& controls, int evaluation, std::int16_t analysis_type);
void Show_Velocity(Main_Controls& controls, int option, bool logarithmic);
void Show_JBFC(Main_Controls& controls, bool used);

/// The evaluation group reads as the type of analysis has it.
void Assign_Labels(Main_Controls& controls, std::int16_t analysis_type);

/// Sets a box without its click action.
void Show_Box(QCheckBox* box, bool set);

}  // namespace barvon

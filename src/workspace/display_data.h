#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// The general refresh: the controls show the project as it stands. What it is to show is read
/// before a control is touched, so that the state of the controls before it never reaches the
/// record; in the record it changes what Refresh_Record tells, and what Set_Data_Items does.
void Display_Data(Main_Controls& controls, ProjectRecord& record);

/// Rebuilds the data board from the record. In the record it changes what Refresh_KEY2 tells, and
/// KEY3 follows a type of analysis, or diffusion, that has been chosen since the board was last
/// rebuilt.
void Set_Data_Items(Main_Controls& controls, ProjectRecord& record);

/// For callers who want the summary brought up to date: the boards always are, so this does
/// nothing.
inline void View_Data_Summary() {}

/// What was chosen from a list of the database, 0 to 3.
void Show_Database_Line(Main_Controls& controls, int index, const std::string& text);
/// Nothing has been chosen from the database.
void Show_No_Database(Main_Controls& controls);

/// Another project takes the place of the one shown: what was chosen for that one is forgotten.
void Forget_Choices(Main_Controls& controls);

/// The workspace of a new project: no option chosen, the gate as given, every category without
/// data.
void Show_New_Project(Main_Controls& controls, ProjectRecord& record);

/// Paints the text of a velocity option, 0 to 3, and chooses nothing.
void Paint_Velocity_Option(Main_Controls& controls, int index, Status_Colour colour);

/// The state of a data category, 0 to 5.
void Show_Status_Line(Main_Controls& controls, int index, const std::string& text,
                      Status_Colour colour);

}  // namespace barvon

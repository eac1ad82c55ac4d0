#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// A click on SSOption1(index) or SSOption2(index), by a person or from code: repaints the group,
/// writes the record, opens what the choice opens.
void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index);

/// The general refresh: the controls show the project as it stands. What it is to show is read
/// before a control is touched, so that the state of the controls before it never reaches the
/// record; in the record it changes what Refresh_Record tells, and what the click actions tell of
/// FileKind and PreviousDisposalMethod.
void Display_Data(Main_Controls& controls, ProjectRecord& record);

/// Rebuilds the lines of the data board.
void Set_Data_Items(Main_Controls& controls, const ProjectRecord& record);

/// The workspace of a new project: no option chosen, the gate as given, every category without
/// data.
void Show_New_Project(Main_Controls& controls, ProjectRecord& record);

/// The state of a data category, 0 to 5.
void Show_Status_Line(Main_Controls& controls, int index, const std::string& text,
                      Status_Colour colour);

}  // namespace barvon

#pragma once

#include "core/project_record.h"

namespace barvon {

// What is done with the text documents of the program, by their indices. Whatever stands in the
// way has been told when one of these gives false.

/// Saves the text in its file, when it has changed or the file is gone; one that has none is asked
/// for a name. False: it is as unsaved as before.
bool Save_Text(int index, ProjectRecord& record);
bool Save_Text_As(int index, ProjectRecord& record);

/// Before a document closes: asks about changed text, and saves it under a name that is asked for.
/// False: it stays open.
bool May_Close_Text(int index, ProjectRecord& record);

/// Before the program ends: the same for each changed text, whose window comes to the front. False:
/// the program goes on.
bool May_Leave_Texts(ProjectRecord& record);

/// Before a file is read again over typed text. False: the text stays.
bool May_Read_Again(int index);

/// Tells the saves of the project what the text documents hold.
void Fill_Text_Port(ProjectRecord& record);

}  // namespace barvon

#pragma once

#include "core/project_record.h"

namespace barvon {

/// The four entries of the Graphics menu, by their index.
inline constexpr int kGraphKinds = 4;

/// Hands the project and the kind of picture (0 to 3) to the graphics program through the
/// settings and starts it in the application directory, whatever else is open or runs. It reads
/// what it is to show from the settings; nothing is on its command line. Tells the user in a box
/// what is missing, and in the status area when it could not be started or, once it has ended,
/// that it failed.
void Graph_Command(const ProjectRecord& record, int kind);

/// Whether the graphics program is in the current directory, under either of its names.
bool Graphics_Program_Exists();

/// Opens the project's readable output in the desktop's text editor, or in the program's own text
/// window where the desktop has no editor.
void View_Output_Command(const ProjectRecord& record);

}  // namespace barvon

#pragma once

#include <QFileDialog>
#include <string>

#include "platform/ask/file_dialog.h"

namespace barvon {

/// Where a person looks for files of his own: his documents, or his home folder when he has no
/// folder for them.
QString Documents_Folder();

/// Where the first dialog of a run of the program begins, if it is there by then; the others begin
/// where the one before was left.
void Begin_Dialogs_In(const std::string& folder);

/// The open dialog with its filters. Filters and names are matched without regard to case, and what
/// is given back is the name on the disk. What is typed, offered or chosen is the name letter for
/// letter; "~" alone or before a "/" is the home folder unless a file is called so, and a folder is
/// gone into. "." and ".." are taken out of what is given back (Without_Dots).
std::optional<std::string> Ask_Qt_Open_File(const File_Request& request);

/// The save dialog, which reads names in the same way. Tells of a folder that is not there, and
/// asks before a file is named that exists, under whatever case its name has.
std::optional<std::string> Ask_Qt_Save_File(const File_Request& request);

/// The common printer set-up dialog; what is set there holds until the program ends.
void Show_Qt_Printer_Setup();
bool Ask_Qt_Printer(const std::string& title, int pages);

}  // namespace barvon

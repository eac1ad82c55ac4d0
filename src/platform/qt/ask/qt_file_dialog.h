#pragma once

#include <QFileDialog>

#include "platform/ask/file_dialog.h"

namespace barvon {

/// The open dialog with its filters, matched without regard to case.
std::optional<std::string> Ask_Qt_Open_File(const File_Request& request);

/// The save dialog. Asks before a file is named that exists, under whatever case its name has.
std::optional<std::string> Ask_Qt_Save_File(const File_Request& request);

/// The common printer set-up dialog; what is set there holds until the program ends.
void Show_Qt_Printer_Setup();
bool Ask_Qt_Printer(const std::string& title, int pages);

}  // namespace barvon

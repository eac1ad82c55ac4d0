#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/ask/file_dialog.h"
#include "platform/files/safe_file.h"
#include "results/results.h"

namespace barvon {

/// The text as the name of a file: what a name cannot hold, or other systems refuse, is "-".
std::string As_File_Name(const QString& text);

/// Asks for a name to save under: in the folder that was saved to last, at first that of the
/// outputs, as "PROJECT, TEXT". A name with none of the filters' endings gets the chosen one's.
/// Where the name stands for another file, that is the one which the dialog asks about.
std::optional<std::string> Ask_Export_File(
    const std::string& title, const std::vector<File_Filter>& filters, const QString& text,
    const Results& results, const std::function<std::string(const std::string&)>& stands_for = {});

/// The path ends so, in whatever case: ".png".
bool Has_Ending(const std::string& path, const std::string& ending);

/// Writes the file and gives back "Saved as PATH"; a failure is told, and the line is empty. No
/// bytes are a failure of making them.
std::string Write_Export(const std::string& path, const std::string& bytes);

/// Brings the bytes onto the disk beside the file that they are for. 0 or an errno value.
int Make_Ready(Safe_File& file, const std::string& path, const std::string& bytes);

/// Waits until the new names last. A failure is told of `path`, which is saved by then.
void Wait_For_Names(Unsynced_Folders& folders, const std::string& path);

/// Tells that a file could not be saved.
void Tell_Not_Saved(const std::string& path, const std::string& reason);

}  // namespace barvon

#pragma once

#include <optional>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// Shows the open dialog: dilution files for kDilutionKind, projects and outputs otherwise. Nothing
/// on Cancel. Of dilution files the one beside `name` is offered when it is there.
std::optional<std::string> Ask_File_To_Open(double kind, const std::string& name = "");

/// Shows the save dialog with `name` offered; neither is a project offered a dilution file's name
/// nor the other way round.
/// A name whose fourth character from its end is not a dot gets ".DUD" (kDilutionKind) or ".DUI"
/// added. Nothing on Cancel.
std::optional<std::string> File_SaveAs_Dialog(const std::string& name, int kind);

/// The dialogs of a text: text and all files, by the kind that `name` is of first. Under the first
/// kind a name that is saved under gets ".txt" where it has no extension. Nothing on Cancel.
std::optional<std::string> Ask_Text_To_Open(const std::string& name = "");
std::optional<std::string> Ask_Text_To_Save(const std::string& name);

/// The extension rule of the save dialog by itself. Only the file's own name counts, not the
/// folder that it is in.
std::string With_Default_Extension(const std::string& name, int kind);

/// The path that a save of the project goes to: the project's own, or what the user chooses in
/// the save dialog when it has none or shares the name of a dilution file, which a project must
/// not replace. Nothing on Cancel.
std::optional<std::string> Ask_Name_To_Save(const ProjectRecord& record);

}  // namespace barvon

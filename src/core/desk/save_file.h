#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// What is saved beside the kinds of files, kDilutionKind and kProjectKind.
inline constexpr int kExportKind = 3;
inline constexpr int kTextKind = 4;

/// Saves by kind: a dilution file, a project and its model input export, the export alone, the text
/// of the active viewer window. True when the file of that kind is on disk; then BaseFileName and
/// DataSaved follow, which a dilution file leaves alone, the caption and the recent files, and of a
/// project ProjectFileName.
/// A text changes none of these, and never takes the place of the open project.
/// Before a project is written over that another window has, or that has changed on the disk, a
/// person is asked. Otherwise the user has been told, but for an export of sections that are marked
/// as empty, which is passed over in silence. The old file is whole after any failure, and
/// the names of the record are as they were.
///
/// A project counts as saved when its export could not be written; a note says so.
bool Save_File(const std::string& path, int kind, ProjectRecord& record);

}  // namespace barvon

#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// What became of a save of a site. `file` is the name of the file that failed, with an errno
/// value; or the list's, when the name would not come to stand at its place. `named`: the list has
/// the name all the same and could not be put back.
struct Site_Saved {
  int error = 0;
  std::string file = {};
  bool out_of_step = false;
  bool named = false;
};

/// The lines that a site appends to the list and to the data file, each with its end. Numbers have
/// a blank or a minus sign in front and a blank behind, whatever their columns:
///
///      700  2
///      32  36
///      100  200
///
/// so that the walk finds the record again only where they happen to fall into its columns.
std::string Site_List_Lines(double code, const std::string& name);
std::string Site_Data_Lines(double code, const ProjectRecord& record);

/// Appends the project's site, whose name has that place in the list (from 0), to both files of the
/// folder: to both or, after a failure, to neither. A file whose last line has no end gets one
/// first, and a list that ends with a name the empty line of its last entry; an empty line too many
/// at the end of the list goes; a file that is missing is made.
Site_Saved Save_Site(const std::string& folder, int place, const std::string& name,
                     const ProjectRecord& record);

}  // namespace barvon

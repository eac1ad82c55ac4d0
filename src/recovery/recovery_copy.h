#pragma once

#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/desk/project_hold.h"
#include "core/project_record.h"

namespace barvon {

/// A project with its unsaved changes, as it is kept for the day the program ends unasked.
struct Recovery_Copy {
  std::unique_ptr<ProjectRecord> record;  // without the state of the program
  std::time_t made = 0;
  std::optional<File_State> file;  // what the project's file was; nothing: not known
  bool project_is_unsaved = false;
  bool dilutions_are_unsaved = false;
  // The project's own file, "" when it has none. The record has one name for the project and for a
  // list of dilutions that was opened beside it.
  std::string project = {};
};

/// The bytes of a copy, which end in a check sum.
std::string Copy_Bytes(const Recovery_Copy& copy);

/// Nothing when the bytes are cut, damaged or those of another version.
std::optional<Recovery_Copy> Read_Copy(std::string_view bytes);

/// Puts the project of the copy in the place of the record's; the state of the program stays.
void Put_Copy(const Recovery_Copy& copy, ProjectRecord& record);

}  // namespace barvon

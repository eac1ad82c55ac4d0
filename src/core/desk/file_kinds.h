#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// Who reads and writes the formats that core does not own. Their owners register them at start.
struct File_Kind {
  /// Fills the record from the file's bytes. None, or what stopped it, with the record untouched.
  std::function<Failure(const std::string& path, std::string_view bytes, ProjectRecord& record)>
      read;
  /// The bytes of the file for the record.
  std::function<std::string(const ProjectRecord& record)> write;
};

/// Extension in upper case, without the dot: "DUD".
void Register_File_Kind(const std::string& extension, File_Kind kind);
/// Null when nobody registered the extension.
const File_Kind* Find_File_Kind(const std::string& extension);

inline constexpr char kProjectLetters[] = "DUI";
inline constexpr char kDilutionLetters[] = "DUD";

/// What a file is told by when it is opened: the last three characters of its path in upper case,
/// whatever is before them.
std::string Last_Three_Letters(std::string_view path);

}  // namespace barvon

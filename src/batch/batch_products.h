#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "batch/batch_options.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// Whether a product may be put under a path; says itself why not.
using May_Write = std::function<bool(const std::string& path)>;

/// A file that is made of each project.
struct Batch_Product {
  const char* name;       // "model input"
  const char* extension;  // without the point
  const char* to_folder;  // what several projects ask of --output, in words
  /// Makes the file of a project under a path; an exit code. Reading the project takes its time, in
  /// which a name can become a link to another: `may_write` is asked once more right before the
  /// write.
  std::function<int(const std::string& file, const std::string& target, Known_Folders& folders,
                    const May_Write& may_write)>
      write;
};

/// Writes what was made of a project, and says so; an exit code. `may_write` is asked of the very
/// path that the bytes are then put under: a link that is made there after it is replaced.
int Write_Product(const std::string& file, const std::string& target, std::string_view bytes,
                  const May_Write& may_write);

/// Makes the file of each project: beside it, into a folder, or for a single project under the name
/// that --output gives. Two projects never write the same file, and none is written over a project.
/// Returns the worst exit code.
int Write_Products(const Batch_Options& options, const Batch_Product& product,
                   Known_Folders& folders);

}  // namespace barvon

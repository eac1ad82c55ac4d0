#pragma once

#include <functional>
#include <string>

#include "batch/batch_options.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// A file that is made of each project.
struct Batch_Product {
  const char* name;       // "model input"
  const char* extension;  // without the point
  const char* to_folder;  // what several projects ask of --output, in words
  /// Makes the file of a project under a path; an exit code. Reading the project takes its time, in
  /// which a name can become a link to another: `may_write` is asked right before the write, and
  /// says itself why not.
  std::function<int(const std::string& file, const std::string& target, Known_Folders& folders,
                    const std::function<bool()>& may_write)>
      write;
};

/// Makes the file of each project: beside it, into a folder, or for a single project under the name
/// that --output gives. Two projects never write the same file, and none is written over a project.
/// Returns the worst exit code.
int Write_Products(const Batch_Options& options, const Batch_Product& product,
                   Known_Folders& folders);

}  // namespace barvon

#pragma once

#include <string>
#include <string_view>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// The outcome of a load.
struct Load_Result {
  /// None, or what stopped the load. The record is as it was before.
  Failure failure = Failure::None;
  /// The user has already been told in a message box.
  bool told = false;
  /// What the user should know about a load that went through, or the line at which it failed, for
  /// the status area; often empty.
  std::string remark;
};

/// Loads a project from the bytes of a .DUI file: the full layout, and when the file ends too
/// early the short one. On success the record's stored fields, its slots and OldGridFile,
/// OldGridRetry, FileTypeTag and DataSaved are those of the file; what a file without a tail does
/// not hold stays as it was. Shows the progress display.
///
/// A failure that is not the end of the file is shown as "Error Reading File:  " and its number.
/// `path` is only shown.
Load_Result Load_Project(const std::string& path, std::string_view bytes, ProjectRecord& record);

}  // namespace barvon

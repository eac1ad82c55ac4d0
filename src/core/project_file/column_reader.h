#pragma once

#include <string_view>

#include "core/failure.h"
#include "core/project_file/project_image.h"
#include "platform/ask/progress_display.h"

namespace barvon {

/// What came of reading a project file's lines.
struct Columns_Read {
  Project_Image image;
  Given_Marks given;  // for every entry of Image_Numbers
  /// The first failure in front of the tail: Input_Past_End, Overflow, or Type_Mismatch for a
  /// velocity that is no number. Reading goes on behind a value that failed; it counts as not
  /// given.
  Failure failure = Failure::None;
  bool at_end = false;  // nothing but blanks is left of the file
  /// The status and flags lines are far wider than they can be: what is there are real lines.
  bool text_lines_too_wide = false;
};

/// Reads the lines of a file of n grid points a side: 96 the full layout, 45 the short one, which
/// has no tail. Real fields are 12 columns wide, one more than the writer's; blanks inside a field
/// are ignored. Lines end in CR LF or LF. Without a progress display nothing is shown.
Columns_Read Read_Columns(std::string_view bytes, int n, Progress_Display* progress);

}  // namespace barvon

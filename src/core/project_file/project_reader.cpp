#include "core/project_file/project_reader.h"

#include <memory>
#include <optional>
#include <utility>

#include "core/project_file/column_reader.h"
#include "core/project_file/exact_values.h"
#include "core/project_file/project_image.h"
#include "core/project_file/value_slots.h"
#include "platform/ask/message_box.h"
#include "platform/ask/progress_display.h"

namespace barvon {
namespace {

constexpr std::int16_t kShortLayoutMark = 1;

/// Tells a failure that is not the end of the file by its number.
Load_Result Told(Failure failure, const std::string& damaged = {}) {
  Message message;
  message.text = "Error Reading File:  " + std::to_string(static_cast<int>(failure));
  Show_Message(message);
  return {failure, true, damaged.empty() ? "" : "What is damaged is " + damaged};
}

/// Puts what was read into the record, all of it or nothing.
Failure Take_Over(const Columns_Read& read, bool short_layout, ProjectRecord& record) {
  const auto loaded = std::make_unique<ProjectRecord>(record);
  loaded->OldGridFile = short_layout ? kShortLayoutMark : 0;
  loaded->OldGridRetry = short_layout ? kTrue : kFalse;
  if (const Failure failure = Store_Image(read.image, read.given, *loaded);
      failure != Failure::None) {
    return failure;
  }
  // The comment behind KEY4 is there so that a full file is not at its end. A full file without
  // it gets the short layout's mark; its depth grid was read with 96 points a side all the same.
  if (read.at_end) loaded->OldGridFile = kShortLayoutMark;
  loaded->DataSaved = kTrue;
  record = std::move(*loaded);
  return Failure::None;
}

Load_Result Load_Short(std::string_view bytes, Progress_Display& progress, ProjectRecord& record) {
  const Columns_Read read = Read_Columns(bytes, kShortLayoutPoints, &progress);
  // A full file that was cut off must not pass for a short one: it goes on behind the short
  // layout, or ends just there with real lines where the text lines of a short file are.
  if (read.failure != Failure::None) return {read.failure, false, {}};
  if (!read.at_end || read.text_lines_too_wide) return {Failure::Input_Past_End, false, {}};
  return {Take_Over(read, true, record), false, {}};
}

std::string Tail_Remark(const Columns_Read& read) {
  if (!Tail_Is_Given(read.given)) {
    return "The end of the file could not be read: the tidal table and the type of simulation "
           "may be those of the project before.";
  }
  return read.at_end ? "The file ends without the comment behind its type of simulation." : "";
}

}  // namespace

Load_Result Load_Project(const std::string& path, std::string_view bytes, ProjectRecord& record) {
  std::optional<Progress_Display> progress("Loading " + path);
  const File_Parts parts = Split_File(bytes);
  Columns_Read read = Read_Columns(parts.columns, kMaxGridPoints, &*progress);
  std::string damaged;
  if (!parts.exact.empty()) {
    read.failure = Apply_Exact_Values(parts, read, damaged);
    if (read.failure == Failure::Input_Past_End) return {read.failure, false, {}};
    // Behind the columns of such a file are its exact values, not the end.
    read.at_end = false;
  } else if (read.failure == Failure::Input_Past_End) {
    return Load_Short(bytes, *progress, record);
  }
  // It closes in front of a message.
  progress.reset();
  if (read.failure != Failure::None) return Told(read.failure, damaged);
  if (const Failure failure = Take_Over(read, false, record); failure != Failure::None) {
    return Told(failure);
  }
  return {Failure::None, false, Tail_Remark(read)};
}

}  // namespace barvon

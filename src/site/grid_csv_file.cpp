#include "site/grid_csv_file.h"

#include "core/failure.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

/// Several times what the largest table takes in the longest form of its numbers.
constexpr std::size_t kMaxCsvBytes = 4U << 20U;

File_Request Csv_Request(const std::string& title) {
  File_Request request;
  request.title = title;
  request.filters = {{"Comma Separated Values (*.csv)", "*.csv"}, {"All Files (*.*)", "*"}};
  return request;
}

void Tell_Failure(const std::string& what, const std::string& path, int error) {
  Show_Warning(what + Name_Of(path) + ": " + Failure_Name(Failure_Of_Errno(error)) + ".");
}

std::string With_Csv_Extension(const std::string& path) {
  return Name_Of(path).find('.') == std::string::npos ? path + ".csv" : path;
}

}  // namespace

std::optional<Grid_Rows> Import_Grid_Csv(const std::string& title, int rows, int columns) {
  const auto path = Ask_Open_File(Csv_Request(title));
  if (!path || path->empty()) return std::nullopt;
  std::string bytes;
  if (const int error = Read_Whole_File(*path, bytes); error != 0) {
    Tell_Failure("Can't read ", *path, error);
    return std::nullopt;
  }
  if (bytes.size() > kMaxCsvBytes) {
    Show_Warning("Nothing is imported from " + Name_Of(*path) +
                 ".  The file is too large for a table.");
    return std::nullopt;
  }
  Grid_Csv read = Read_Grid_Csv(bytes, rows, columns);
  if (!read.fault.empty()) {
    Show_Warning("Nothing is imported from " + Name_Of(*path) + ".  " + read.fault);
    return std::nullopt;
  }
  return std::move(read.rows);
}

bool Export_Grid_Csv(const std::string& title, const std::string& offered_name,
                     const Grid_Rows& rows) {
  File_Request request = Csv_Request(title);
  request.name = offered_name;
  request.complete = With_Csv_Extension;
  const auto chosen = Ask_Save_File(request);
  if (!chosen || chosen->empty()) return false;
  const std::string path = With_Csv_Extension(*chosen);
  const int error = Write_Whole_File(path, Write_Grid_Csv(rows));
  if (error != 0) Tell_Failure("Can't write ", path, error);
  return error == 0;
}

}  // namespace barvon

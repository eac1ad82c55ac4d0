#include "database/save_site.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <initializer_list>
#include <optional>

#include "database/column_lines.h"
#include "database/data_files.h"
#include "database/index_files.h"
#include "database/line_walk.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr char kLineEnd[] = "\r\n";

std::string Printed_Line(std::initializer_list<double> numbers) {
  return Printed({numbers.begin(), numbers.size()}) + kLineEnd;
}

/// A file before and after lines were appended to it.
struct Appended {
  std::string path;
  std::optional<std::string> before;  // nothing: there was none
  std::string after;
};

/// Reads what is to be appended to and ends its last line. 0 or an errno value.
int Read_For_Appending(const std::string& path, Appended& file) {
  file.path = Path_To_Write(path);
  std::string bytes;
  const int error = Read_Whole_File(file.path, bytes);
  if (error != 0 && error != ENOENT) return error;
  if (error == 0) file.before = bytes;
  file.after = file.before.value_or("");
  if (!file.after.empty() && file.after.back() != '\n' && file.after.back() != '\r') {
    file.after += kLineEnd;
  }
  return 0;
}

/// Where the line begins that ends a text; the text has one.
std::size_t Start_Of_Last_Line(const std::string& text) {
  const std::size_t end = text.ends_with("\r\n") ? text.size() - 2 : text.size() - 1;
  if (end == 0) return 0;
  const std::size_t before = text.find_last_of("\r\n", end - 1);
  return before == text.npos ? 0 : before + 1;
}

/// Ends a list behind its last whole entry, or the next one's code would be taken for a part of it.
/// False when a line more than that holds text, or there are not so many entries.
bool Bring_Into_Step(const std::string& path, std::size_t entries, std::string& list) {
  constexpr std::size_t kLinesOfEntry = 3;
  std::size_t lines = 0;
  for (Line_Walk walk(path); walk.Next_Or_Last();) ++lines;
  if (lines % kLinesOfEntry == 2) {
    list += kLineEnd;
    ++lines;
  } else if (lines % kLinesOfEntry == 1) {
    const std::size_t last = Start_Of_Last_Line(list);
    if (list.find_first_not_of(" \t\r\n", last) != list.npos) return false;
    list.resize(last);
    --lines;
  }
  return lines == entries * kLinesOfEntry;
}

/// Puts the new bytes of a file onto the disk beside it.
int Make_Ready(const Appended& file, const std::string& bytes, Safe_File& made) {
  int error = made.Open(file.path);
  if (error == 0) error = made.Write(bytes);
  return error == 0 ? made.Settle() : error;
}

int Put_Back(const Appended& file, Safe_File& former) {
  if (file.before) return former.Commit();
  return std::remove(file.path.c_str()) == 0 ? 0 : errno;
}

}  // namespace

std::string Site_List_Lines(double code, const std::string& name) {
  return Printed_Line({code}) + To_File_Bytes(name) + kLineEnd + kLineEnd;
}

std::string Site_Data_Lines(double code, const ProjectRecord& record) {
  const int points = std::clamp<int>(record.NROA0, 0, kMaxDensityPoints);
  std::string lines =
      Printed_Line({code, static_cast<double>(points)}) +
      Printed_Line({static_cast<double>(record.NMAX0), static_cast<double>(record.MMAX0)}) +
      Printed_Line({record.DZ0, record.DX0}) + Printed_Line({record.DEPC0}) +
      Printed_Line({record.RHDA0}) + kLineEnd + Printed_Line({record.SLOPEX0, record.SLOPEZ0}) +
      kLineEnd;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(points); ++i) {
    lines += Printed_Line({record.DensityDepths[i], record.Densities[i]});
  }
  return lines + Printed_Line({record.DEPTHI});
}

Site_Saved Save_Site(const std::string& folder, int place, const std::string& name,
                     const ProjectRecord& record) {
  const double code = Code_Of_Place(place);
  Appended list, data;
  if (const int error = Read_For_Appending(Join_Path(folder, kSiteList), list)) {
    return {error, kSiteList};
  }
  if (const int error = Read_For_Appending(Join_Path(folder, kSiteFile), data)) {
    return {error, kSiteFile};
  }
  if (!Bring_Into_Step(list.path, static_cast<std::size_t>(place), list.after)) {
    return {0, kSiteList, true};
  }
  list.after += Site_List_Lines(code, name);
  data.after += Site_Data_Lines(code, record);
  // All that needs room comes first: between the files there are only their new names then.
  Safe_File new_list, former_list, new_data;
  if (const int error = Make_Ready(list, list.after, new_list)) return {error, kSiteList};
  if (list.before) {
    if (const int error = Make_Ready(list, *list.before, former_list)) return {error, kSiteList};
  }
  if (const int error = Make_Ready(data, data.after, new_data)) return {error, kSiteFile};
  Unsynced_Folders folders;
  if (const int error = new_list.Commit(&folders)) return {error, kSiteList};
  if (const int error = new_data.Commit(&folders)) {
    const bool named = Put_Back(list, former_list) != 0;
    return {error, kSiteFile, false, named};
  }
  for (const auto& [unsynced, error] : folders.Sync()) return {error, kSiteFile};
  return {};
}

}  // namespace barvon

#include "graphs/export_files.h"

#include <QLatin1StringView>
#include <algorithm>
#include <map>
#include <string_view>
#include <system_error>

#include "platform/ask/message_box.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

constexpr qsizetype kLongestName = 180;  // bytes; of 255, the others are for numbers and endings

std::string& Last_Folder() {
  static std::string folder;
  return folder;
}

std::string Ending_Of(const File_Filter& filter) { return filter.pattern.substr(1); }

}  // namespace

std::string As_File_Name(const QString& text) {
  QString name;
  for (const QChar letter : text) {
    const bool refused =
        letter < QLatin1Char(' ') || QStringLiteral("/\\:*?\"<>|").contains(letter);
    name += refused ? QLatin1Char('-') : letter;
  }
  while (name.toUtf8().size() > kLongestName) name.chop(name.back().isLowSurrogate() ? 2 : 1);
  name = name.trimmed();
  return name.isEmpty() ? "picture" : name.toStdString();
}

bool Has_Ending(const std::string& path, const std::string& ending) {
  return path.size() > ending.size() &&
         Equal_Ignoring_Case(path.substr(path.size() - ending.size()), ending);
}

std::optional<std::string> Ask_Export_File(
    const std::string& title, const std::vector<File_Filter>& filters, const QString& text,
    const Results& results, const std::function<std::string(const std::string&)>& stands_for) {
  const auto complete = [filters](const std::string& path) {
    const bool known = std::ranges::any_of(
        filters, [&](const File_Filter& filter) { return Has_Ending(path, Ending_Of(filter)); });
    return known ? path : path + Ending_Of(filters.front());
  };
  const auto written = [complete, stands_for](const std::string& path) {
    return stands_for ? stands_for(complete(path)) : complete(path);
  };
  const std::string project = Name_Of(Base_Name(results.path));
  const std::string name =
      As_File_Name(QString::fromStdString(project) + QStringLiteral(", ") + text);
  const std::string folder =
      Last_Folder().empty() ? Folder_Of(Absolute_Path(results.path)) : Last_Folder();
  const auto chosen = Ask_Save_File({.title = title,
                                     .filters = filters,
                                     .name = Join_Path(folder, name + Ending_Of(filters.front())),
                                     .complete = written,
                                     .ending = Ending::To_Others});
  if (!chosen || chosen->empty()) return std::nullopt;
  Last_Folder() = Folder_Of(*chosen);
  return complete(*chosen);
}

void Tell_Not_Saved(const std::string& path, const std::string& reason) {
  Show_Critical("Nothing was saved as " + path + ": " + reason +
                ".\nA file that was there before is unchanged.");
}

int Make_Ready(Safe_File& file, const std::string& path, const std::string& bytes) {
  int error = file.Open(path);
  if (error == 0) error = file.Write(bytes);
  return error == 0 ? file.Settle() : error;
}

void Wait_For_Names(Unsynced_Folders& folders, const std::string& path) {
  const std::map<std::string, int> failed = folders.Sync();
  if (failed.empty()) return;
  Show_Warning("What was saved as " + path + " is whole, but may be lost should the power fail: " +
               std::generic_category().message(failed.begin()->second) + ".");
}

std::string Write_Export(const std::string& path, const std::string& bytes) {
  if (bytes.empty()) {
    Tell_Not_Saved(path, "it could not be made");
    return {};
  }
  Safe_File file;
  Unsynced_Folders folders;
  int error = Make_Ready(file, path, bytes);
  if (error == 0) error = file.Commit(&folders);
  if (error != 0) {
    Tell_Not_Saved(path, std::generic_category().message(error));
    return {};
  }
  Wait_For_Names(folders, path);
  return "Saved as " + path;
}

}  // namespace barvon

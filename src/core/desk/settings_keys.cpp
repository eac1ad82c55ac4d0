#include "core/desk/settings_keys.h"

#include <cerrno>
#include <map>
#include <utility>

#include "core/failure.h"
#include "platform/ask/message_box.h"
#include "platform/files/app_folder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/profile_settings.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

using Setting = std::pair<std::string, std::string>;  // section and key

/// Sections and keys are found without regard to case, in the file as here.
struct Ignoring_Case {
  bool operator()(const Setting& a, const Setting& b) const {
    return std::pair(Upper_Case(a.first), Upper_Case(a.second)) <
           std::pair(Upper_Case(b.first), Upper_Case(b.second));
  }
};

/// What a settings file could not take.
struct Unwritten {
  std::string path;
  bool told = false;
  std::map<Setting, std::string, Ignoring_Case> values;
};

/// That of the settings file in use.
Unwritten& Unwritten_Settings() {
  static Unwritten unwritten;
  const std::string path = Settings_Path();
  if (unwritten.path != path) unwritten = {path, false, {}};
  return unwritten;
}

void Write_Rest(Unwritten& unwritten) {
  std::erase_if(unwritten.values, [&](const auto& kept) {
    const auto& [section, key] = kept.first;
    return Write_Profile_String(unwritten.path, section, key, kept.second) == 0;
  });
}

void Tell_Once(Unwritten& unwritten, int error) {
  if (std::exchange(unwritten.told, true)) return;
  Show_Warning(
      "Can't write the settings to " + unwritten.path + ": " +
      Failure_Name(Failure_Of_Errno(error)) +
      ".\n\nRecent files and options are kept until BARVON is closed.  As soon as the file "
      "can be written they go there.");
}

}  // namespace

std::string Settings_Path() {
  return Path_To_Write(Join_Path(Application_Folder(), kSettingsFile));
}

std::string Read_Setting(const std::string& section, const std::string& key,
                         const std::string& fallback) {
  const Unwritten& unwritten = Unwritten_Settings();
  const auto kept = unwritten.values.find({section, key});
  return kept != unwritten.values.end()
             ? kept->second
             : Read_Profile_String(unwritten.path, section, key, fallback);
}

bool Write_Setting(const std::string& section, const std::string& key, const std::string& value) {
  Unwritten& unwritten = Unwritten_Settings();
  const int error = Write_Profile_String(unwritten.path, section, key, value);
  if (error == EINVAL) return false;
  if (error != 0) {
    unwritten.values[{section, key}] = value;
    Tell_Once(unwritten, error);
    return false;
  }
  unwritten.values.erase({section, key});
  Write_Rest(unwritten);
  return true;
}

bool Write_Graph_File(const std::string& project_path) {
  return Write_Setting(kGraphFileSection, kGraphFileKey, project_path);
}

}  // namespace barvon

#include "core/desk/settings_keys.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "platform/ask/message_box.h"
#include "platform/files/app_folder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/profile_settings.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

/// Sections and keys are found without regard to case, in the file as here.
bool Same_Key(const Profile_Entry& entry, const std::string& section, const std::string& key) {
  return Equal_Ignoring_Case(entry.section, section) && Equal_Ignoring_Case(entry.key, key);
}

/// Puts an entry in the place of an earlier one of its key: keys stand in the file in the order in
/// which they were set first.
void Put(std::vector<Profile_Entry>& entries, const Profile_Entry& entry) {
  const auto earlier = std::ranges::find_if(entries, [&](const Profile_Entry& other) {
    return Same_Key(other, entry.section, entry.key);
  });
  if (earlier == entries.end()) {
    entries.push_back(entry);
  } else {
    *earlier = entry;
  }
}

/// What a settings file could not take.
struct Unwritten {
  std::string path;
  bool told = false;
  int unread = 0;        // errno of a reading that failed
  bool is_left = false;  // what could not be read is the delivered file
  std::vector<Profile_Entry> entries;
};

/// That of the settings file in use.
Unwritten& Unwritten_Settings() {
  static Unwritten unwritten;
  const std::string path = Settings_Path();
  if (unwritten.path != path) unwritten = {path, false, 0, false, {}};
  return unwritten;
}

/// What the command under way has set so far.
struct Collected {
  int depth = 0;
  std::vector<Profile_Entry> entries;
};

Collected& Collected_Settings() {
  static Collected collected;
  return collected;
}

const std::string* Value_In(const std::vector<Profile_Entry>& entries, const std::string& section,
                            const std::string& key) {
  const auto found = std::ranges::find_if(
      entries, [&](const Profile_Entry& entry) { return Same_Key(entry, section, key); });
  return found == entries.end() ? nullptr : &found->value;
}

/// Whether the file is there and holds what could not be seen. A folder or a device of its name
/// holds no settings.
bool Hides_Settings(int error) { return error != 0 && error != EISDIR && error != ENOTSUP; }

void Tell_Once(Unwritten& unwritten, int error) {
  if (std::exchange(unwritten.told, true)) return;
  if (unwritten.is_left) {
    Show_Warning("Can't take over the settings in " +
                 Path_To_Write(Join_Path(Delivered_Folder(), kSettingsFile)) + " to " +
                 unwritten.path + ": " + Failure_Name(Failure_Of_Errno(error)) +
                 ".\n\nThe next start of BARVON tries again.  Recent files and options are kept "
                 "until BARVON is closed.");
    return;
  }
  if (unwritten.unread != 0) {
    Show_Warning("Can't read the settings in " + unwritten.path + ": " +
                 Failure_Name(Failure_Of_Errno(error)) +
                 ".\n\nThe file stays as it is.  Recent files and options are kept until BARVON is "
                 "closed.");
    return;
  }
  Show_Warning(
      "Can't write the settings to " + unwritten.path + ": " +
      Failure_Name(Failure_Of_Errno(error)) +
      ".\n\nRecent files and options are kept until BARVON is closed.  As soon as the file "
      "can be written they go there.");
}

/// Writes the entries, and behind them what the file could not take before.
bool Write_Now(const std::vector<Profile_Entry>& entries) {
  if (entries.empty()) return true;
  Unwritten& unwritten = Unwritten_Settings();
  std::vector<Profile_Entry> all = entries;
  for (const Profile_Entry& kept : unwritten.entries) {
    if (Value_In(entries, kept.section, kept.key) == nullptr) all.push_back(kept);
  }
  // What is set may rest on defaults that were taken for what could not be read: it must not
  // replace that, though the file be sound by now.
  const int error =
      unwritten.unread != 0 ? unwritten.unread : Write_Profile_Strings(unwritten.path, all);
  if (error == 0) {
    unwritten.entries.clear();
    return true;
  }
  for (const Profile_Entry& entry : entries) Put(unwritten.entries, entry);
  Tell_Once(unwritten, error);
  return false;
}

}  // namespace

std::string Settings_Path() {
  return Path_To_Write(Join_Path(Application_Folder(), kSettingsFile));
}

std::string Read_Setting(const std::string& section, const std::string& key,
                         const std::string& fallback) {
  Unwritten& unwritten = Unwritten_Settings();
  const std::string* value = Value_In(Collected_Settings().entries, section, key);
  if (value == nullptr) value = Value_In(unwritten.entries, section, key);
  if (value != nullptr) return *value;
  int error = 0;
  std::string read = Read_Profile_String(unwritten.path, section, key, fallback, &error);
  if (Hides_Settings(error)) unwritten.unread = error;
  return read;
}

bool Write_Setting(const std::string& section, const std::string& key, const std::string& value) {
  const Profile_Entry entry{section, key, value};
  if (!Can_Be_In_Profile(entry)) return false;
  Collected& collected = Collected_Settings();
  if (collected.depth == 0) return Write_Now({entry});
  Put(collected.entries, entry);
  return true;
}

Settings_Of_Command::Settings_Of_Command() { ++Collected_Settings().depth; }

Settings_Of_Command::~Settings_Of_Command() { Write(); }

bool Settings_Of_Command::Write() {
  if (!std::exchange(collects_, false)) return true;
  Collected& collected = Collected_Settings();
  return --collected.depth > 0 || Write_Now(std::exchange(collected.entries, {}));
}

void Take_Delivered_Settings() {
  const int error = Copy_If_Not_Own(kSettingsFile);
  if (!Hides_Settings(error)) return;
  Unwritten& unwritten = Unwritten_Settings();
  unwritten.unread = error;
  unwritten.is_left = true;
}

void Tell_Settings_Left() {
  Unwritten& unwritten = Unwritten_Settings();
  if (unwritten.is_left) Tell_Once(unwritten, unwritten.unread);
}

bool Write_Graph_File(const std::string& project_path) {
  return Write_Setting(kGraphFileSection, kGraphFileKey, project_path);
}

}  // namespace barvon

#include "core/desk/recent_files.h"

#include <algorithm>
#include <string_view>

#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "core/text_tools.h"
#include "platform/files/profile_settings.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

using Recent_List = std::array<std::string, kRecentFiles + 1>;

constexpr std::array<std::string_view, 4> kNeverListed = {"TMPFILE.QRI", "UNTITLED.QRI",
                                                          "INPUT.DAT", "UNTITLED.DUI"};

Recent_List& Menu() {
  static Recent_List menu;
  return menu;
}

std::string Entry_Key(int i) { return kRecentFileKey + std::to_string(i); }

std::string Read_Entry(int i) { return Read_Setting(kRecentFilesSection, Entry_Key(i), kNotUsed); }

void Write_Entry(int i, const std::string& value) {
  Write_Setting(kRecentFilesSection, Entry_Key(i), value);
}

bool Is_File(const std::string& value) { return !value.empty() && !value.starts_with(kNotUsed); }

std::string Compared(std::string_view path) { return Upper_Case(Trimmed(path)); }

}  // namespace

const Recent_List& Recent_Menu() { return Menu(); }

void GetRecentFiles() {
  for (int i = 1; i <= kRecentFiles; ++i) {
    const std::string value = Read_Entry(i);
    Menu()[i] = Is_File(value) ? value : "";
  }
  Port().board.show_recent_menu();
}

void Update_Recent_Files(const std::string& path) {
  const auto entries = Menu().begin() + 1;
  if (std::find(entries, Menu().end(), path) != Menu().end()) {
    GetRecentFiles();
  } else {
    WriteRecentFiles(path);
  }
}

void WriteRecentFiles(const std::string& path) {
  // What the menu shows keeps its place, its first entry included: it is not promoted.
  for (int i = 1; i <= kRecentFiles; ++i) {
    if (Compared(path) == Compared(Menu()[i])) return;
  }
  // Only the bare names: the same name in a folder enters the list.
  const std::string upper = Upper_Case(path);
  if (std::find(kNeverListed.begin(), kNeverListed.end(), upper) != kNeverListed.end()) return;
  // What comes back as another name would open another file, or none.
  if (!Is_Read_Back_From_Profile(path)) return;
  const Settings_Of_Command settings;
  for (int i = kRecentFiles - 1; i >= 1; --i) {
    const std::string value = Read_Entry(i);
    if (Is_File(value) && value != path) Write_Entry(i + 1, value);
  }
  Write_Entry(1, path);
}

void Remove_Recent(const std::string& path) {
  Recent_List entries;
  for (int i = 1; i <= kRecentFiles; ++i) entries[i] = Read_Entry(i);
  const auto gone = std::find(entries.begin() + 1, entries.end(), path);
  if (gone == entries.end()) return;
  std::move(gone + 1, entries.end(), gone);
  entries.back() = kNotUsed;
  const Settings_Of_Command settings;
  for (int i = static_cast<int>(gone - entries.begin()); i <= kRecentFiles; ++i) {
    Write_Entry(i, entries[i]);
  }
}

}  // namespace barvon

#pragma once

#include <array>
#include <string>

namespace barvon {

inline constexpr int kRecentFiles = 4;

/// What the recent-file menu shows: paths by entry, from 1; an empty entry is hidden. The
/// separator shows when any entry does. This is the menu, not the settings file: it is refilled at
/// start-up, when Update_Recent_Files finds its path in it, and after a click on an entry; in
/// between it lags behind the file.
const std::array<std::string, kRecentFiles + 1>& Recent_Menu();

/// Refills the menu from the settings and tells the workspace to show it.
void GetRecentFiles();

/// After every open from the File menu and every save: a path that the menu shows refills the
/// menu, any other is written to the settings.
void Update_Recent_Files(const std::string& path);

/// Puts a path at the head of the list in the settings, unless it is there already in any case or
/// is a bare name that never enters the list. The menu stays as it is.
void WriteRecentFiles(const std::string& path);

/// Takes a path that no longer exists out of the settings; those below move up and the last entry
/// becomes "Not Used".
void Remove_Recent(const std::string& path);

}  // namespace barvon

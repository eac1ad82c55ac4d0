#pragma once

#include <string>

namespace barvon {

/// Sections and keys of BARVON.INI.
inline constexpr char kSettingsFile[] = "BARVON.INI";

inline constexpr char kRecentFilesSection[] = "Recent Files";
inline constexpr char kRecentFileKey[] = "RecentFile";  // followed by 1 to 4
inline constexpr char kNotUsed[] = "Not Used";

inline constexpr char kHelpStatusSection[] = "Help Status";
inline constexpr char kHelpOnKey[] = "HelpOn";

inline constexpr char kOptionsSection[] = "Options";
inline constexpr char kTipsAtStartKey[] = "Show Tips at Startup";

inline constexpr char kGraphFileSection[] = "Graph File";
inline constexpr char kGraphFileKey[] = "GraphFile";

inline constexpr char kSimulationTypeSection[] = "Simulation Type";
inline constexpr char kSimTypeKey[] = "SimType";

/// BARVON.INI in the application directory, under whatever case its name has there.
std::string Settings_Path();

/// A value of BARVON.INI; `fallback` when there is none. After a file could not be read it is not
/// written either: what is set since may rest on a fallback.
std::string Read_Setting(const std::string& section, const std::string& key,
                         const std::string& fallback);

/// Sets a value in BARVON.INI, at once unless a Settings_Of_Command collects. False when it is not
/// in the file, or can't be. If the file can't be written, the user is told, once for as long as
/// the program runs; the value is kept, is read as if it were in the file, and goes there with the
/// next one that can be written.
bool Write_Setting(const std::string& section, const std::string& key, const std::string& value);

/// Settings that a copy of the program has kept beside it go on where it can't be written any more:
/// they are copied for the user who has none. While that fails none of his are written, or the ones
/// left would never be taken over.
void Take_Delivered_Settings();
/// Tells that they could not be taken over, unless that is told already.
void Tell_Settings_Left();

/// The settings that one command sets: while it lives, they are collected, and read as if they were
/// in the file; then all go there in one write. Within another one this is a part of it.
class Settings_Of_Command {
 public:
  Settings_Of_Command();
  /// Writes, unless Write was called.
  ~Settings_Of_Command();
  Settings_Of_Command(const Settings_Of_Command&) = delete;
  Settings_Of_Command& operator=(const Settings_Of_Command&) = delete;

  /// Ends the collecting. False when the settings are not in the file, as from Write_Setting.
  bool Write();

 private:
  bool collects_ = true;
};

/// Hands the project to the graphics program: GraphFile in the settings. False when it could not
/// be written.
bool Write_Graph_File(const std::string& project_path);

}  // namespace barvon

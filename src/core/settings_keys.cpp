#include "core/settings_keys.h"

#include "core/path_lookup.h"
#include "platform/app_folder.h"
#include "platform/profile_settings.h"

namespace barvon {

std::string Settings_Path() {
  return Path_To_Write(Join_Path(Application_Folder(), kSettingsFile));
}

bool Write_Graph_File(const std::string& project_path) {
  return Write_Profile_String(Settings_Path(), kGraphFileSection, kGraphFileKey, project_path);
}

}  // namespace barvon

#include "core/desk/settings_keys.h"

#include "platform/files/app_folder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/profile_settings.h"

namespace barvon {

std::string Settings_Path() {
  return Path_To_Write(Join_Path(Application_Folder(), kSettingsFile));
}

bool Write_Graph_File(const std::string& project_path) {
  return Write_Profile_String(Settings_Path(), kGraphFileSection, kGraphFileKey, project_path);
}

}  // namespace barvon

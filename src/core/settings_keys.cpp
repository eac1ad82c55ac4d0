#include "core/settings_keys.h"

namespace barvon {

std::string Settings_Path() { return kSettingsFile; }
bool Write_Graph_File(const std::string&) { return false; }

}  // namespace barvon

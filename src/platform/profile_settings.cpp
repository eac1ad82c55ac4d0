#include "platform/profile_settings.h"

namespace barvon {

std::string Read_Profile_String(const std::string&, const std::string&, const std::string&,
                                const std::string& fallback) {
  return fallback;
}
bool Write_Profile_String(const std::string&, const std::string&, const std::string&,
                          const std::string&) {
  return false;
}

}  // namespace barvon

#include "core/recent_files.h"

namespace barvon {

const std::array<std::string, kRecentFiles + 1>& Recent_Menu() {
  static std::array<std::string, kRecentFiles + 1> menu;
  return menu;
}
void GetRecentFiles() {}
void Update_Recent_Files(const std::string&) {}
void WriteRecentFiles(const std::string&) {}
void Remove_Recent(const std::string&) {}

}  // namespace barvon

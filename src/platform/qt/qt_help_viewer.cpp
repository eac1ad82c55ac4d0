#include "platform/qt/qt_help_viewer.h"

#include <filesystem>
#include <system_error>

#include "platform/message_box.h"

namespace barvon {
namespace {

std::string& Help_File() {
  static std::string path;
  return path;
}

}  // namespace

void Set_Help_File(const std::string& path) { Help_File() = path; }

void Show_Qt_Help(const Help_Request& request) {
  if (request.command == Help_Command::Quit) return;
  std::error_code error;
  const bool found = std::filesystem::exists(Help_File(), error);
  const std::string text = found ? "The help file can't be shown: " : "The help file is missing: ";
  Show_Message({text + Help_File(), kMessageTitle, Buttons::Ok, Icon::Warning});
}

}  // namespace barvon

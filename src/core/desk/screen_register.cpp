#include "core/desk/screen_register.h"

#include <map>
#include <utility>

#include "core/desk/workspace_port.h"

namespace barvon {
namespace {

std::map<std::string, Screen_Opener>& Screens() {
  static std::map<std::string, Screen_Opener> screens;
  return screens;
}

}  // namespace

void Register_Screen(const std::string& name, Screen_Opener opener) {
  if (opener) {
    Screens()[name] = std::move(opener);
  } else {
    Screens().erase(name);
  }
  Port().board.screens_changed();
}

bool Screen_Stands(const std::string& name) { return Screens().count(name) != 0; }

bool Open_Screen(const std::string& name, bool blocking, const std::string& control) {
  const auto found = Screens().find(name);
  if (found == Screens().end()) return false;
  const Screen_Opener opener = found->second;  // it may be taken out while it is open
  opener(blocking, control);
  return true;
}

void Open_Screen_Or_Tell(const std::string& name, bool blocking, const std::string& control) {
  if (Open_Screen(name, blocking, control)) return;
  Port().board.show_note({"The screen " + name + " is not part of this version.", ""});
}

}  // namespace barvon

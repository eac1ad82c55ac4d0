#include "core/screen_register.h"

#include <map>
#include <utility>

namespace barvon {
namespace {

std::map<std::string, Screen>& Screens() {
  static std::map<std::string, Screen> screens;
  return screens;
}

}  // namespace

void Register_Screen(const std::string& name, Screen screen) {
  Screens()[name] = std::move(screen);
}

bool Open_Screen(const std::string& name, bool blocking) {
  const auto found = Screens().find(name);
  if (found == Screens().end() || !found->second.open) return false;
  found->second.open(blocking);
  return true;
}

bool Focus_Screen(const std::string& name, const std::string& control) {
  const auto found = Screens().find(name);
  if (found == Screens().end() || !found->second.focus) return false;
  found->second.focus(control);
  return true;
}

}  // namespace barvon

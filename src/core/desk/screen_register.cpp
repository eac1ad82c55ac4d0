#include "core/desk/screen_register.h"

#include <map>
#include <utility>

#include "core/desk/workspace_port.h"

namespace barvon {
namespace {

std::map<const Screen_Row*, Screen_Opener>& Screens() {
  static std::map<const Screen_Row*, Screen_Opener> screens;
  return screens;
}

const Screen_Row*& Led_To() {
  static const Screen_Row* screen = nullptr;
  return screen;
}

}  // namespace

void Register_Screen(const Screen_Row& screen, Screen_Opener opener) {
  if (opener) {
    Screens()[&screen] = std::move(opener);
  } else {
    Screens().erase(&screen);
  }
  Port().board.screens_changed();
}

bool Screen_Stands(const Screen_Row& screen) { return Screens().count(&screen) != 0; }

bool Open_Screen(const Screen_Row& screen, bool blocking, const std::string& control) {
  const auto found = Screens().find(&screen);
  if (found == Screens().end()) return false;
  const Screen_Opener opener = found->second;  // it may be taken out while it is open
  opener(blocking, control);
  return true;
}

void Open_Screen_Or_Tell(const Screen_Row& screen, bool blocking, const std::string& control) {
  if (Open_Screen(screen, blocking, control)) return;
  Port().board.show_note(
      {std::string("The screen ") + screen.name + " is not part of this version.", ""});
}

Lead_To_Screen::Lead_To_Screen(const Screen_Row& screen)
    : former_(std::exchange(Led_To(), &screen)) {}

Lead_To_Screen::~Lead_To_Screen() { Led_To() = former_; }

bool Is_Led_To(const Screen_Row& screen) { return Led_To() == &screen; }

}  // namespace barvon

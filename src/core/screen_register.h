#pragma once

#include <functional>
#include <string>

namespace barvon {

/// How one screen is reached by its name.
struct Screen {
  std::function<void(bool blocking)> open;
  std::function<void(const std::string& control)> focus;
};

void Register_Screen(const std::string& name, Screen screen);

/// Opens the screen. False when no screen of that name stands.
bool Open_Screen(const std::string& name, bool blocking);
/// Gives the focus to a control of an open screen, by its name: "Text1(0)".
bool Focus_Screen(const std::string& name, const std::string& control);

}  // namespace barvon

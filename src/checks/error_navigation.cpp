#include "checks/error_navigation.h"

#include <array>

namespace barvon {
namespace {

struct Known_Screen {
  const char* name;
  bool focuses;  // its controls get the focus; frmMdlkyn is only shown
};

constexpr std::array<Known_Screen, 4> kKnownScreens = {{{"frmDescription", true},
                                                        {"frmOperation", true},
                                                        {"frmSimulation", true},
                                                        {"frmMdlkyn", false}}};

}  // namespace

std::optional<Error_Target> Error_Target_Of(const std::string& reference) {
  const auto mark = reference.find('!');
  if (mark == std::string::npos) return std::nullopt;
  const std::string screen = reference.substr(0, mark);
  for (const Known_Screen& known : kKnownScreens) {
    if (screen == known.name) {
      return Error_Target{screen, known.focuses ? reference.substr(mark + 1) : std::string()};
    }
  }
  return std::nullopt;
}

}  // namespace barvon

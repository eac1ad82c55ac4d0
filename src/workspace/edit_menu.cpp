#include "workspace/edit_menu.h"

#include <algorithm>
#include <iterator>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"
#include "workspace/option_logic.h"

namespace barvon {
namespace {

std::string Material_Screen(std::int16_t disposal_method) {
  if (disposal_method == 1 || disposal_method == 2) return "frmMatHopper";
  if (disposal_method == 3) return "frmMatBarge";
  return "";
}

std::string Edit_Screen(int index, const ProjectRecord& record) {
  switch (index) {
    case 1:
      return Check_Eval(record) ? "frmDescription" : "";
    case 2:
      return Check_Eval(record) ? "frmVelocity" : "";
    case 4:
      return Check_Eval(record) ? Material_Screen(record.DisposalMethod) : "";
    case 5:
      return Check_Eval(record) ? "frmOperation" : "";
    case 6:
      return "frmCoefficients";
    case 9:
      return "frmDensity";
    default:
      return "";
  }
}

/// Screens that work on the project. While one of them stands open without blocking none of them
/// can come up blocking.
constexpr const char* kInputScreens[] = {"frmDescription", "frmVelocity",   "frmMatHopper",
                                         "frmMatBarge",    "frmOperation",  "frmCoefficients",
                                         "frmDensity",     "frmSimulation", "frmMdlkyn"};

bool Any_Input_Screen_Is_Open() {
  return std::any_of(std::begin(kInputScreens), std::end(kInputScreens),
                     [](const char* name) { return Port().screen_is_open(name); });
}

}  // namespace

void mnuEditItem_Click(int index, ProjectRecord& record) {
  const std::string screen = Edit_Screen(index, record);
  if (!screen.empty()) Show_Screen(screen, record);
  Port().display_data();
}

void Show_Screen(const std::string& name, const ProjectRecord& record) {
  const bool blocking = record.ShowMode == 1;
  if (blocking && Any_Input_Screen_Is_Open()) {
    Show_Critical("Cannot Display Multiple Forms.  Select 'Multiple Input Windows' From View Menu");
    return;
  }
  Open_Screen_Or_Tell(name, blocking);
}

void Show_Blocking_Screen(const std::string& name) { Open_Screen_Or_Tell(name, true); }

}  // namespace barvon

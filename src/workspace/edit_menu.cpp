#include "workspace/edit_menu.h"

#include "core/screen_register.h"
#include "core/workspace_port.h"
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

void Show(const std::string& name, bool blocking) {
  if (Open_Screen(name, blocking)) return;
  Port().show_note({"The screen " + name + " is not part of this version.", ""});
}

}  // namespace

void mnuEditItem_Click(int index, ProjectRecord& record) {
  const std::string screen = Edit_Screen(index, record);
  if (!screen.empty()) Show_Screen(screen, record);
  Port().display_data();
}

void Show_Screen(const std::string& name, const ProjectRecord& record) {
  Show(name, record.ShowMode == 1);
}

void Show_Blocking_Screen(const std::string& name) { Show(name, true); }

}  // namespace barvon

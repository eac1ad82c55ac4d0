#include "workspace/edit_menu.h"

#include <algorithm>
#include <utility>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"
#include "workspace/option_logic.h"

namespace barvon {
namespace {

/// The screen of the entry. The gate belongs to the entry: it is asked once, for whatever vessel.
const Screen_Row* Edit_Screen(int index, const ProjectRecord& record) {
  bool asked = false;
  for (const Screen_Row& row : kScreens) {
    if (row.edit_entry != index) continue;
    if (row.gate == Screen_Gate::Evaluation && !std::exchange(asked, true) && !Check_Eval(record)) {
      return nullptr;
    }
    if (Serves_Vessel(row, record)) return &row;
  }
  return nullptr;
}

bool Any_Input_Screen_Is_Open() {
  return std::any_of(kScreens.begin(), kScreens.end(), [](const Screen_Row& row) {
    return row.kind == Screen_Kind::Input && Port().board.screen_is_open(row.name);
  });
}

}  // namespace

void mnuEditItem_Click(int index, ProjectRecord& record) {
  if (const Screen_Row* screen = Edit_Screen(index, record)) Show_Screen(screen->name, record);
  Port().board.display_data();
}

void Show_Screen(const std::string& name, const ProjectRecord& record) {
  const bool blocking = Opens_Blocking(record);
  if (blocking && Any_Input_Screen_Is_Open()) {
    Show_Message({"Cannot Display Multiple Forms.  Select 'Multiple Input Windows' From View Menu",
                  kMessageTitle, Buttons::Ok, Icon::Critical});
    return;
  }
  Open_Screen_Or_Tell(name, blocking);
}

void Show_Blocking_Screen(const std::string& name) { Open_Screen_Or_Tell(name, true); }

}  // namespace barvon

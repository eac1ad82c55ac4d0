#include "core/desk/show_screen.h"

#include <algorithm>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"

namespace barvon {

bool Any_Input_Screen_Is_Open() {
  return std::any_of(kScreens.begin(), kScreens.end(), [](const Screen_Row& row) {
    return row.kind == Screen_Kind::Input && Port().board.screen_is_open(row.name);
  });
}

void Show_Screen(const Screen_Row& screen, const ProjectRecord& record) {
  const bool blocking = Opens_Blocking(record);
  if (blocking && Any_Input_Screen_Is_Open()) {
    Show_Critical("Cannot Display Multiple Forms.  Select 'Multiple Input Windows' From View Menu");
    return;
  }
  Open_Screen_Or_Tell(screen, blocking);
}

}  // namespace barvon

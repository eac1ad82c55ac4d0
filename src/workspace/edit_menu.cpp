#include "workspace/edit_menu.h"

#include <utility>

#include "core/desk/screen_table.h"
#include "core/desk/show_screen.h"
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

}  // namespace

void Open_Edit_Screen(int index, const ProjectRecord& record) {
  if (const Screen_Row* screen = Edit_Screen(index, record)) Show_Screen(*screen, record);
}

}  // namespace barvon

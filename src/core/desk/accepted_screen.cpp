#include "core/desk/accepted_screen.h"

namespace barvon {

void Supply_Screen(const Screen_Row& row, ProjectRecord& record, const Status_Words& words) {
  if (row.status_line) {
    Port().board.set_status_line(*row.status_line, words.text, words.colour);
  }
  if (row.supplied) record.ScreenDataSupplied.at(static_cast<std::size_t>(*row.supplied)) = kTrue;
}

void Accept_Screen(const Screen_Row& row, ProjectRecord& record, const Status_Words& words) {
  const Board_Port& board = Port().board;
  Supply_Screen(row, record, words);
  Port().wizard.screen_accepted(row);
  if (row.edit_mark) board.mark_edit_item(*row.edit_mark);
  board.display_data();
}

}  // namespace barvon

#pragma once

#include "platform/table/tab_text.h"

namespace barvon {

/// The clipboard's text as cells, without what the files' encoding does not hold. No cells when
/// there is no text.
Text_Block Clipboard_Cells();

/// Asks, for cells that are to be pasted and hold decimal commas, whether to paste points in their
/// place, and does so on Yes. False: the user wants nothing pasted.
bool Agree_On_Commas(Text_Block& cells);

/// Puts the cells on the clipboard as tab-separated text; no cells leave it as it is.
void Set_Clipboard_Cells(const Text_Block& cells);

}  // namespace barvon

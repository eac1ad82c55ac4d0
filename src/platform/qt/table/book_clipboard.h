#pragma once

#include "platform/qt/fields/encoding_validator.h"
#include "platform/table/tab_text.h"

namespace barvon {

/// The clipboard's text as cells, with the letters that an Encoding_Validator of that kind lets in.
/// No cells when there is no text.
Text_Block Clipboard_Cells(Letters letters);

/// Asks, for cells that are to be pasted and hold decimal commas, whether to paste points in their
/// place, and does so on Yes. False: the user wants nothing pasted.
bool Agree_On_Commas(Text_Block& cells);

/// Puts the cells on the clipboard as tab-separated text; no cells leave it as it is.
void Set_Clipboard_Cells(const Text_Block& cells);

}  // namespace barvon

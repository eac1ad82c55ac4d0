#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/table/delimited_text.h"

namespace barvon {

/// The cells of the widest row.
std::size_t Width_Of(const Text_Block& cells);

/// Tab-separated text as spreadsheets put it on the clipboard, by Quote_Rule::One_Line.
Text_Block Read_Tab_Text(std::string_view text);

/// The cells as such a text, rows ended by LF; a single cell is its text alone, fit for any field.
/// Cells with a tab or a line break, and those that start with a quote, are quoted.
std::string Write_Tab_Text(const Text_Block& cells);

}  // namespace barvon

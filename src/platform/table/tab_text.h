#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace barvon {

/// Texts of a block of cells, row by row. What a row lacks to the widest one is empty.
using Text_Block = std::vector<std::vector<std::string>>;

/// The cells of the widest row.
std::size_t Width_Of(const Text_Block& cells);

/// Tab-separated text as spreadsheets put it on the clipboard: tabs between cells, rows ended by
/// LF, CRLF or CR, the last one also by the end of the text. A cell that starts with a quote goes
/// on to the closing one; two quotes in it are one, and a tab or line break in it becomes a blank,
/// since a cell holds one line. A quote that is never closed is an ordinary character. An
/// empty text is one empty cell.
Text_Block Read_Tab_Text(std::string_view text);

/// The cells as such a text, rows ended by LF; a single cell is its text alone, fit for any field.
/// Cells with a tab or a line break, and those that start with a quote, are quoted.
std::string Write_Tab_Text(const Text_Block& cells);

}  // namespace barvon

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace barvon {

/// Texts of a block of cells, row by row. What a row lacks to the widest one is empty.
using Text_Block = std::vector<std::vector<std::string>>;

/// What a double quote at the start of a cell means. In a quoted cell two quotes are one.
enum class Quote_Rule {
  /// As on the clipboard. The quoted cell goes on to a quote with the end of a cell behind it; a
  /// quote that has none is an ordinary character. A separator or line break in it becomes a
  /// blank, since a cell holds one line.
  One_Line,
  /// As in files of values. Blanks may come before the quote, and the quoted cell keeps separators
  /// and line breaks. One that is never closed takes the rest of the text with it and keeps its
  /// first quote; each character behind a closed one but a blank gets a quote before it. So
  /// neither can pass for a number.
  Whole_Cell,
};

/// The cells of a text: the separator, a comma for instance, parts cells, and LF, CRLF or CR ends
/// a row, the last one as well as the end of the text does. An empty text is one empty cell.
Text_Block Read_Delimited_Text(std::string_view text, char separator, Quote_Rule quotes);

}  // namespace barvon

#pragma once

#include <string>
#include <vector>

#include "platform/table/delimited_text.h"

namespace barvon {

/// Numbers that come from a desktop whose decimal sign is the comma.

/// The cells with a comma, row by row, when each of them is a number with one decimal comma:
/// digits on both sides of it, no point, perhaps a sign, an exponent, blanks around. Nothing when
/// one of them is anything else, since the commas then mean something else.
std::vector<std::string> Decimal_Comma_Cells(const Text_Block& cells);

/// The block with a point for every comma.
Text_Block With_Points(Text_Block cells);

}  // namespace barvon

#pragma once

#include <string>

#include "dilution/dilution_tables.h"

namespace barvon {

/// What the hint lines say when a button of the calculator gets the focus, by its index, and when
/// the cursor comes into a column; "" where the hint stays as it is. The buttons' hints are those
/// of an older order of the buttons, which users know.
std::string Button_Hint(int index);
std::string Column_Hint(Dilution_Tab tab, int col);

}  // namespace barvon

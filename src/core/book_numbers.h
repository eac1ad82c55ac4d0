#pragma once

#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// How the system's tables read and show numbers: the lenient parse, the digit patterns, and the
/// default text form without a pattern.
extern const Cell_Numbers kBookNumbers;

}  // namespace barvon

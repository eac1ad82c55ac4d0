#pragma once

#include "core/desk/screen_table.h"

namespace barvon {

// A screen that is open without blocking stands for the project as it was when it opened. Whoever
// puts another one into its place, or makes a choice that the screen follows, closes it first as
// its Cancel does. What was typed and not accepted is asked about once; after a No nothing is
// closed and the result is false.

/// The error list goes too: its findings are of the project that was checked.
bool Close_Input_Screens();

/// Those that follow one of the choices, a sum of Board_Choice.
bool Close_Screens_That_Follow(unsigned choices);

}  // namespace barvon

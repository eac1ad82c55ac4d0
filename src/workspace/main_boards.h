#pragma once

#include "workspace/main_controls.h"

namespace barvon {

/// Lays out both boards and the row of commands under them.
void Build_Boards(Main_Controls& controls);

/// Both boards are in the same place; one of them is in view.
void Show_Main_Board(Main_Controls& controls);
void Show_Data_Board(Main_Controls& controls);

}  // namespace barvon

#pragma once

#include "workspace/main_controls.h"

namespace barvon {

/// Builds the toolbar. Its buttons are actions by the names "Toolbar1(1)" and on, the separators
/// counted. The pictures are of one set: the desktop's when it has all of them and each can be
/// seen on the program's light ground, otherwise our own.
void Build_Toolbar(Main_Controls& controls);

}  // namespace barvon

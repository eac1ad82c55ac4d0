#pragma once

#include "workspace/main_controls.h"

namespace barvon {

/// Shows the Window menu, the Font menu and Print while there is a text that they are for. The
/// arrays of the documents start anew.
void Connect_Document_Menus(Main_Controls& controls);

/// The Window menu, by Window_Item.
void mnuWItem_Click(Main_Controls& controls, int index);

}  // namespace barvon

#pragma once

#include <QWidget>

#include "workspace/main_controls.h"
#include "workspace/window_places.h"

namespace barvon {

/// The name of the menu behind Font.
inline constexpr char kFontMenu[] = "mnuFontMenu";

/// Shows the Window menu, the Font menu and Print while there is a text that they are for. The
/// arrays of the documents start anew.
void Connect_Document_Menus(Main_Controls& controls);

/// The Window menu, by Window_Item.
void mnuWItem_Click(Main_Controls& controls, int index);

/// Where text windows have their places.
Window_Place Room_For_Texts(const QWidget& main);

}  // namespace barvon

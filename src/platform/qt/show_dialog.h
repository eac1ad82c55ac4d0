#pragma once

#include <QDialog>

namespace barvon {

/// Shows a dialog in front of the others. Blocking: returns when it has been closed.
void Show_Dialog(QDialog& dialog, bool blocking);

/// Puts a window that is laid out into the middle of its display.
void Centre_On_Display(QWidget& window);

}  // namespace barvon

#pragma once

#include <QDialog>

namespace barvon {

/// Shows a dialog in front of the others. Blocking: returns when it has been closed.
void Show_Dialog(QDialog& dialog, bool blocking);

}  // namespace barvon

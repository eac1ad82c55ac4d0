#pragma once

#include <QWidget>

namespace barvon {

/// Makes a window known as a screen of the program, under its name: coming back to an input screen
/// from it activates that one. Boxes, dialogs and the help are no screens, whatever they are
/// called.
void Name_Screen(QWidget& window, const char* name);

bool Is_Screen(const QWidget& window);

}  // namespace barvon

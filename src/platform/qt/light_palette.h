#pragma once

class QApplication;

namespace barvon {

/// Gives the program a look of its own: blue and black texts must stay readable whatever the
/// desktop's colours are.
void Apply_Light_Palette(QApplication& application);

}  // namespace barvon

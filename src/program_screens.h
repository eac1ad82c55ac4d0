#pragma once

#include <QWidget>

namespace barvon {

/// Makes every screen of the program known by its name. They open over `main`, which must outlive
/// the last use of a name.
void Register_Program_Screens(QWidget* main);

}  // namespace barvon

#pragma once

#include <QPrinter>

namespace barvon {

/// The printer, with the paper and margins that were chosen last; what is printed goes by it. It
/// lives as long as the application. At first its paper is US Letter with margins of three quarters
/// of an inch.
QPrinter& Session_Printer();

/// Forgets what was chosen.
void Forget_Session_Printer();

}  // namespace barvon

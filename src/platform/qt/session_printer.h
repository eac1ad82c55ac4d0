#pragma once

#include <QPrinter>
#include <string>

namespace barvon {

/// The printer, with the paper and margins that were chosen last; what is printed goes by it. It
/// lives as long as the application. At first its paper is US Letter with margins of three quarters
/// of an inch.
QPrinter& Session_Printer();

/// Offers the path for a print to a file, which is a PDF. What was printed to before is not offered
/// again; a printer that puts out paper stays the one that is chosen.
void Offer_Print_File(const std::string& path);

/// Forgets what was chosen.
void Forget_Session_Printer();

}  // namespace barvon

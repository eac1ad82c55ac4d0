#pragma once

#include <QFont>
#include <QPrinter>
#include <QString>
#include <cstddef>
#include <functional>

namespace barvon {

/// What is printed: as many lines as the text has, each given when its turn comes.
struct Printed_Text {
  QString title;  // at the head of each page
  QFont font;
  std::size_t lines = 0;
  std::function<QString(std::size_t index)> line;
  /// Told the share that is done, 0 to 1, every so many pages. False calls the print off.
  std::function<bool(double share)> go_on = {};
};

/// Prints a text line by line: a line that is wider than the page goes on in the next, a form feed
/// at its beginning starts a new page. Keeps to the printer's range of pages. False when the
/// printer or the file can't be written to. One that is called off is no failure. A file that is
/// printed to is whole in the end or as it was.
bool Print_Lines(QPrinter& printer, const Printed_Text& text);

/// How many pages of the printer's range the text fills when none of its lines is wider than the
/// page and none starts a new one.
int Estimated_Pages(QPrinter& printer, const Printed_Text& text);

}  // namespace barvon

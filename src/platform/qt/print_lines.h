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
};

/// Prints a text line by line: a line that is wider than the page goes on in the next, a form feed
/// at its beginning starts a new page. Keeps to the printer's range of pages. False when the
/// printer can't be written to.
bool Print_Lines(QPrinter& printer, const Printed_Text& text);

}  // namespace barvon

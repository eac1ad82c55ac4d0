#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace barvon {

class Help_Page;

/// Looks for a text on the page, forth and back. Hidden until it is opened.
class Help_Find_Bar : public QWidget {
 public:
  Help_Find_Bar(Help_Page& page, QWidget* parent);

  void Open();
  /// Goes to the next place of the text; opens the bar when there is no text yet.
  void Find(bool backward);

 private:
  Help_Page& page_;
  QLineEdit* text_;
  QLabel* outcome_;
};

}  // namespace barvon

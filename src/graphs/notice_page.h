#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "graphs/graph_words.h"
#include "platform/qt/find_bar.h"
#include "platform/qt/large_text_view.h"

namespace barvon {

/// What the window shows where there are no pictures: why, and what to do. A listing can be read
/// below it.
class Notice_Page : public QWidget {
  Q_OBJECT

 public:
  explicit Notice_Page(QWidget* parent);

  void Show(const Graph_Notice& notice);
  /// Reads the listing, or tells in a box that it can't be.
  void Show_Listing();
  bool Listing_Is_Shown() const { return !view_->isHidden(); }
  Large_Text_View& view() { return *view_; }
  // Of the listing; without one they do nothing.
  void Copy() const;
  void Open_Find();
  void Find(bool backward);

 signals:
  void Open_Asked();

 private:
  Graph_Notice notice_;
  QLabel* words_;
  QPushButton *open_, *listing_;
  Large_Text_View* view_;
  Find_Bar* find_bar_;
};

}  // namespace barvon

#pragma once

#include <QWidget>

namespace barvon {

/// Tells a focus that is new to a widget from one that comes back. Coming back is: from a child of
/// the widget, from a menu, and from another window when the widget had the focus in its own.
class Focus_Entry : public QObject {
 public:
  /// The widget owns this.
  explicit Focus_Entry(QWidget* widget);
  /// Asked when the widget gets the focus.
  bool Is_New() const { return !inside_; }

 private:
  QWidget* widget_;
  bool inside_ = false;  // the focus is in the widget or a child, or was when its window lost it
};

}  // namespace barvon

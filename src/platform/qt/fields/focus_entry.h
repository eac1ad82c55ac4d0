#pragma once

#include <QWidget>
#include <functional>
#include <vector>

namespace barvon {

/// Tells a focus that is new to a widget from one that comes back. Coming back is: from a child of
/// the widget, from a menu, and from another window when the widget had the focus in its own.
class Focus_Entry : public QObject {
  Q_OBJECT

 public:
  /// The widget owns this.
  explicit Focus_Entry(QWidget* widget);
  /// Asked when the widget gets the focus.
  bool Is_New() const { return !inside_; }

 signals:
  /// The focus is new to the widget.
  void Entered();
  /// The focus went on to another widget of the same window.
  void Left(QWidget* to);

 private:
  void Follow(QWidget* former, QWidget* now);

  QWidget* widget_;
  bool inside_ = false;  // the focus is in the widget or a child, or was when its window lost it
};

/// Acts at once when the field gets the focus anew: for a hint beside it.
void When_Focused(QWidget* field, std::function<void()> act);

/// Acts when the user has left the field for another widget of its window and the focus is settled
/// there, so that a box may come up or the focus be sent back. It is silent when the window has
/// been closed since, when the focus is back in the field, and when it went to one of `except`: a
/// screen's OK, which asks for itself, its Cancel and its Help.
void When_Left(QWidget* field, const std::vector<QWidget*>& except, std::function<void()> act);

}  // namespace barvon

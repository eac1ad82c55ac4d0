#pragma once

#include <QToolButton>
#include <functional>

namespace barvon {

/// A picture button of two states: it stays down while what it started is under way and comes up
/// again afterwards.
class Latching_Button : public QToolButton {
 public:
  explicit Latching_Button(QWidget* parent = nullptr);
  /// What runs when the button goes down.
  void When_Down(std::function<void()> action);

 private:
  std::function<void()> action_;
};

}  // namespace barvon

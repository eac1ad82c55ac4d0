#pragma once

#include <QScrollArea>

namespace barvon {

/// A part of a screen that asks for as much room as its contents and scrolls where the display has
/// less, so that the buttons below it stay in reach.
class Scrolled_Part : public QScrollArea {
 public:
  explicit Scrolled_Part(QWidget* contents, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace barvon

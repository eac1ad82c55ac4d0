#pragma once

#include <QLabel>

namespace barvon {

/// One line of plain text that is shortened with dots when it does not fit; its tool tip then
/// holds all of it.
class Elided_Label : public QLabel {
 public:
  explicit Elided_Label(QWidget* parent = nullptr);
  QSize minimumSizeHint() const override;
  /// The text is shown shortened.
  bool Is_Cut() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace barvon

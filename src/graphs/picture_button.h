#pragma once

#include <QPixmap>
#include <QPushButton>
#include <functional>
#include <string>

#include "pictures/shapes/shapes.h"

namespace barvon {

/// A button with a picture above its caption. It opens what it shows in small.
class Picture_Button : public QPushButton {
  Q_OBJECT

 public:
  Picture_Button(const QString& caption, QWidget* parent = nullptr);

  /// The picture for a canvas, and in words.
  void Show(std::function<Shape_List(const Canvas&)> shapes, const std::string& description);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QRect Picture_Area() const;

  std::function<Shape_List(const Canvas&)> shapes_;
  QPixmap painted_;  // of the present size; null when it must be painted anew
};

}  // namespace barvon

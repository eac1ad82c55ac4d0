#pragma once

#include <optional>

#include "pictures/shape_picture.h"
#include "results/drawings/maxima_drawing.h"

namespace barvon {

/// Maxima against time. Where the pointer is, the values of the nearest output time are read; with
/// the keyboard Left and Right go from one time to the next, Home and End to the first and last,
/// Escape ends reading.
class Maxima_Plot : public Shape_Picture {
  Q_OBJECT

 public:
  explicit Maxima_Plot(QWidget* parent = nullptr);

  void Show(Maxima_Drawing drawing);

  /// What is drawn.
  const Maxima_Drawing& Drawn() const { return drawing_; }
  /// Where a value at a time lies in the widget.
  QPointF Place_Of(double time, double value);
  /// The time that is read; nothing while none is.
  std::optional<double> Read_Time() const { return read_; }
  QString Tip_At(const QPointF& place) override;

  QSize minimumSizeHint() const override;

 signals:
  /// The values that are read, in words; empty: none any more.
  void Read(const QString& words);

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;
  Shape_List Above(const Canvas& canvas) const override;

  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Read_At(std::optional<double> time);
  std::optional<double> Time_At(const QPointF& place);

  Maxima_Drawing drawing_;
  std::optional<double> read_;
};

}  // namespace barvon

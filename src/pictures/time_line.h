#pragma once

#include "pictures/drawings/time_drawing.h"
#include "pictures/shape_picture.h"

namespace barvon {

/// Duration, time steps and print times of a simulation below each other on one axis of time; a
/// pointer on one of them reads its numbers.
class Time_Line : public Shape_Picture {
  Q_OBJECT

 public:
  explicit Time_Line(QWidget* parent = nullptr);

  void Show(Run_Times times);

  /// What is drawn of it.
  const Time_Drawing& Drawn();
  /// Where a time in a lane lies in the widget.
  QPointF Place_Of(double time, Time_Lane lane);
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;

 private:
  Run_Times times_;
  Time_Drawing drawing_;
};

}  // namespace barvon

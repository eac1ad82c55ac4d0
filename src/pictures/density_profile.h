#pragma once

#include "pictures/drawings/density_drawing.h"
#include "pictures/shape_picture.h"

namespace barvon {

/// Water density against depth, the surface at the top.
class Density_Profile : public Shape_Picture {
  Q_OBJECT

 public:
  explicit Density_Profile(QWidget* parent = nullptr);

  /// Points in the order of the table; the line joins them in that order. `bottom` is the water
  /// depth (ft), drawn when it is above 0.
  void Show(std::vector<Density_Point> points, double bottom = 0);

  /// What is drawn of it.
  const Density_Drawing& Drawn();
  /// Where a point lies in the widget.
  QPointF Place_Of(const Density_Point& point);
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;

 private:
  std::vector<Density_Point> points_;
  double bottom_ = 0;
  Density_Drawing drawing_;
};

}  // namespace barvon

#pragma once

#include "pictures/drawings/profile_drawing.h"
#include "pictures/shape_picture.h"

namespace barvon {

/// X and Z velocity against depth, each a line through its two points, the surface at the top.
class Two_Point_Profile : public Shape_Picture {
  Q_OBJECT

 public:
  explicit Two_Point_Profile(QWidget* parent = nullptr);

  void Show(const std::array<Profile_Point, 2>& points);

  /// What is drawn of it.
  const Profile_Drawing& Drawn();
  /// Where a velocity (ft/s) at a depth (ft) lies in the widget.
  QPointF Place_Of(double velocity, double depth);
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;

 private:
  std::array<Profile_Point, 2> points_;
  Profile_Drawing drawing_;
};

}  // namespace barvon

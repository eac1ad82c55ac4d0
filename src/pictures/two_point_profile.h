#pragma once

#include "pictures/picture.h"
#include "pictures/profile_drawing.h"

class QCPCurve;
class QCPLegend;

namespace barvon {

/// X and Z velocity against depth, each a line through its two points, the surface at the top.
class Two_Point_Profile : public Picture {
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
  void Fit() override;

 private:
  std::array<Profile_Point, 2> points_;
  Profile_Drawing drawing_;
  QCPCurve* x_line_;
  QCPCurve* z_line_;
  QCPLegend* legend_;
};

}  // namespace barvon

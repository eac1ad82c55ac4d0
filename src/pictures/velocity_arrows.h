#pragma once

#include "pictures/drawings/velocity_drawing.h"
#include "pictures/plot_picture.h"

class QCPColorMap;
class QCPColorScale;

namespace barvon {

class Arrow_Layer;

/// The velocity field: an arrow the way the water goes at every point, or at every few of a large
/// grid, over the speed as shades of blue.
class Velocity_Arrows : public Plot_Picture {
  Q_OBJECT

 public:
  explicit Velocity_Arrows(QWidget* parent = nullptr);

  void Show(const Velocity_Grid& grid);

  /// What is drawn of it, and the arrows at the present size.
  const Velocity_Drawing& Drawn();
  const std::vector<Velocity_Arrow>& Arrows();
  /// Length in pixels of an arrow of the fastest speed.
  double Longest_Arrow();
  /// A grid point in the widget; row and column count from 1.
  QPointF Place_Of(int row, int column);
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  void Fit() override;

 private:
  void Fit_Arrows();

  Velocity_Grid grid_;
  Velocity_Drawing drawing_;
  QCPColorMap* map_;
  QCPColorScale* scale_;
  Arrow_Layer* arrows_;
};

}  // namespace barvon

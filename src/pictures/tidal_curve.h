#pragma once

#include "pictures/drawings/tidal_drawing.h"
#include "pictures/plot_picture.h"

class QCPGraph;
class QCPLegend;

namespace barvon {

/// X and Z velocity over the hours of the pattern; the simulated interval is shaded and carries
/// its averages as dashed lines.
class Tidal_Curve : public Plot_Picture {
  Q_OBJECT

 public:
  explicit Tidal_Curve(QWidget* parent = nullptr);

  void Show(Tidal_Pattern pattern);

  /// What is drawn of it.
  const Tidal_Drawing& Drawn();
  /// Where an hour and a velocity (ft/s) lie in the widget.
  QPointF Place_Of(double hour, double velocity);
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  void Fit() override;

 private:
  void Name_Curves();

  Tidal_Pattern pattern_;
  Tidal_Drawing drawing_;
  QCPGraph* x_curve_;
  QCPGraph* z_curve_;
  QCPGraph* x_average_;
  QCPGraph* z_average_;
  QCPGraph* interval_;
  QCPLegend* legend_;
};

}  // namespace barvon

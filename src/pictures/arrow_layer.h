#pragma once

#include <qcustomplot.h>

#include <vector>

#include "pictures/drawings/velocity_drawing.h"

namespace barvon {

/// The arrows of a velocity field over a plot's grid axes, each centred on its grid point, and
/// below the axes one of a known speed.
class Arrow_Layer : public QCPAbstractItem {
 public:
  explicit Arrow_Layer(QCustomPlot* plot);

  std::vector<Velocity_Arrow> arrows;
  double longest = 0;           // pixels of an arrow with the length 1
  double reference_length = 0;  // of the reference arrow, in such lengths; 0: none
  QString reference_text;
  QFont font;

  double selectTest(const QPointF& place, bool only_selectable, QVariant* details) const override;

 protected:
  void draw(QCPPainter* painter) override;
};

}  // namespace barvon

#pragma once

#include "pictures/drawings/depth_drawing.h"
#include "pictures/plot_picture.h"

class QCPColorMap;
class QCPColorScale;

namespace barvon {

/// The depth grid as a colour map, rows and columns as its table has them. Dark is deep.
class Depth_Map : public Plot_Picture {
  Q_OBJECT

 public:
  explicit Depth_Map(QWidget* parent = nullptr);

  void Show(const Depth_Grid& grid);

  /// What is drawn of it.
  const Depth_Drawing& Drawn();
  /// The middle of a cell in the widget; row and column count from 1.
  QPointF Place_Of(int row, int column);
  /// The colour that a depth is drawn in.
  QColor Colour_Of(double depth);
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  void Fit() override;

 private:
  Depth_Grid grid_;
  Depth_Drawing drawing_;
  QCPColorMap* map_;
  QCPColorScale* scale_;
};

}  // namespace barvon

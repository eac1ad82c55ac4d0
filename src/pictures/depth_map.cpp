#include "pictures/depth_map.h"

#include <qcustomplot.h>

#include "pictures/grid_axes.h"
#include "pictures/plot_parts.h"
#include "pictures/shape_painter.h"
#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

/// From shallow to deep.
QCPColorGradient Depth_Colours() {
  QCPColorGradient colours;
  colours.clearColorStops();
  for (std::size_t i = 0; i < kLightToDark.size(); ++i) {
    colours.setColorStopAt(static_cast<double>(i) / (kLightToDark.size() - 1),
                           To_QColor(kLightToDark[i]));
  }
  colours.setNanHandling(QCPColorGradient::nhTransparent);
  return colours;
}

}  // namespace

Depth_Map::Depth_Map(QWidget* parent)
    : Plot_Picture(QStringLiteral("Map of the water depths"), QStringLiteral("depth grid"),
                   parent) {
  Dress_Grid_Axes(*plot());
  map_ = Add_Cells(*plot());
  scale_ = Add_Colour_Scale(*plot(), QStringLiteral("Depth (ft)"));
  scale_->setGradient(Depth_Colours());
  // Deep is below.
  scale_->axis()->setRangeReversed(true);
  map_->setColorScale(scale_);
  Data_Changed();
}

void Depth_Map::Show(const Depth_Grid& grid) {
  grid_ = grid;
  Data_Changed();
}

const Depth_Drawing& Depth_Map::Drawn() {
  Catch_Up();
  return drawing_;
}

QPointF Depth_Map::Place_Of(int row, int column) {
  Catch_Up();
  return plot()->pos() + Place_Of_Cell(*plot(), row, column);
}

QColor Depth_Map::Colour_Of(double depth) {
  Catch_Up();
  QCPColorGradient colours = map_->gradient();
  return QColor::fromRgb(colours.color(depth, map_->dataRange()));
}

QString Depth_Map::Tip_At(const QPointF& place) {
  Catch_Up();
  const auto cell = Cell_At(*plot(), place - plot()->pos(), drawing_.rows, drawing_.columns);
  if (!cell) return {};
  return QString::fromStdString(Depth_Cell_Text(grid_, cell->row, cell->column));
}

void Depth_Map::Build() {
  drawing_ = Draw_Depths(grid_);
  Set_Grid_Size(*plot(), drawing_.rows, drawing_.columns);
  Set_Cells(*map_, drawing_.rows, drawing_.columns, drawing_.depths);
  Set_Scale(*scale_->axis(), drawing_.scale, 0);
  scale_->setDataRange({drawing_.scale.low, drawing_.scale.high});
  Tell(drawing_.note, drawing_.description);
}

void Depth_Map::Fit() {
  Fit_Labels(*scale_->axis(), drawing_.scale, Room_For_Axes(*plot()).height());
  Fit_Grid_Labels(*plot(), drawing_.rows, drawing_.columns);
}

}  // namespace barvon

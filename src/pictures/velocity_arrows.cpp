#include "pictures/velocity_arrows.h"

#include <qcustomplot.h>

#include <algorithm>

#include "pictures/arrow_layer.h"
#include "pictures/grid_axes.h"
#include "pictures/plot_parts.h"

namespace barvon {
namespace {

constexpr double kLeastApart = 20;    // pixels between two arrows
constexpr double kLongestArrow = 60;  // pixels
constexpr double kPartOfCell = 0.92;  // of the room between two arrows that the longest one takes

/// From still to fast; light enough throughout for dark arrows on it.
QCPColorGradient Speed_Colours() {
  QCPColorGradient colours;
  colours.clearColorStops();
  colours.setColorStopAt(0, QColor(250, 252, 255));
  colours.setColorStopAt(0.5, QColor(189, 215, 238));
  colours.setColorStopAt(1, QColor(107, 168, 217));
  colours.setNanHandling(QCPColorGradient::nhTransparent);
  return colours;
}

}  // namespace

Velocity_Arrows::Velocity_Arrows(QWidget* parent)
    : Plot_Picture(QStringLiteral("Map of the velocity field"), QStringLiteral("velocity field"),
                   parent) {
  Dress_Grid_Axes(*plot());
  map_ = Add_Cells(*plot());
  scale_ = Add_Colour_Scale(*plot(), QStringLiteral("Speed (ft/s)"));
  scale_->setGradient(Speed_Colours());
  map_->setColorScale(scale_);
  arrows_ = new Arrow_Layer(plot());
  // The room between two points is known once the labels have taken theirs.
  connect(plot(), &QCustomPlot::afterLayout, this, [this] { Fit_Arrows(); });
  Data_Changed();
}

void Velocity_Arrows::Show(const Velocity_Grid& grid) {
  grid_ = grid;
  Data_Changed();
}

const Velocity_Drawing& Velocity_Arrows::Drawn() {
  Catch_Up();
  return drawing_;
}

const std::vector<Velocity_Arrow>& Velocity_Arrows::Arrows() {
  Catch_Up();
  return arrows_->arrows;
}

double Velocity_Arrows::Longest_Arrow() {
  Catch_Up();
  return arrows_->longest;
}

QPointF Velocity_Arrows::Place_Of(int row, int column) {
  Catch_Up();
  return plot()->pos() + Place_Of_Cell(*plot(), row, column);
}

QString Velocity_Arrows::Tip_At(const QPointF& place) {
  Catch_Up();
  const auto cell = Cell_At(*plot(), place - plot()->pos(), drawing_.rows, drawing_.columns);
  if (!cell) return {};
  return QString::fromStdString(Velocity_Cell_Text(grid_, cell->row, cell->column));
}

void Velocity_Arrows::Build() {
  drawing_ = Draw_Velocities(grid_);
  Set_Grid_Size(*plot(), drawing_.rows, drawing_.columns);
  Set_Cells(*map_, drawing_.rows, drawing_.columns, drawing_.speeds);
  Set_Scale(*scale_->axis(), drawing_.scale, 0);
  scale_->setDataRange({drawing_.scale.low, drawing_.scale.high});
  arrows_->reference_length = drawing_.fastest > 0 ? drawing_.reference / drawing_.fastest : 0;
  arrows_->reference_text = QString::fromStdString(Short_Text(drawing_.reference) + " ft/s");
  Tell(drawing_.note, drawing_.description);
}

void Velocity_Arrows::Fit() {
  Fit_Labels(*scale_->axis(), drawing_.scale, Room_For_Axes(*plot()).height());
  Fit_Grid_Labels(*plot(), drawing_.rows, drawing_.columns);
  arrows_->font = plot()->yAxis->tickLabelFont();
  // The reference arrow is below the map.
  const int below = static_cast<int>(QFontMetricsF(arrows_->font).height()) + 10;
  plot()->axisRect()->setMinimumMargins(QMargins(15, 15, 15, below));
}

void Velocity_Arrows::Fit_Arrows() {
  arrows_->arrows.clear();
  if (drawing_.rows == 0) return;
  const QRect axes = plot()->axisRect()->rect();
  const int row_stride = Arrow_Stride(drawing_.rows, axes.height(), kLeastApart);
  const int column_stride = Arrow_Stride(drawing_.columns, axes.width(), kLeastApart);
  arrows_->arrows = Arrows_Of(drawing_, row_stride, column_stride);
  const double apart =
      std::min(row_stride * static_cast<double>(axes.height()) / drawing_.rows,
               column_stride * static_cast<double>(axes.width()) / drawing_.columns);
  arrows_->longest = std::min(kLongestArrow, kPartOfCell * apart);
}

}  // namespace barvon

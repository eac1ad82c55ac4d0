#include "pictures/tidal_curve.h"

#include <qcustomplot.h>

#include <utility>

#include "pictures/plot_parts.h"

namespace barvon {
namespace {

const QColor kShade(255, 241, 204), kShadeEdge(214, 178, 84), kPatternEnd(122, 130, 140);

QCPGraph* Add_Curve(QCustomPlot& plot, const QColor& colour, bool squares) {
  QCPGraph* curve = plot.addGraph();
  curve->setPen(QPen(colour, 1.8));
  curve->setScatterStyle(
      QCPScatterStyle(squares ? QCPScatterStyle::ssSquare : QCPScatterStyle::ssCircle,
                      QPen(colour, 1.2), Qt::white, 5));
  return curve;
}

QCPGraph* Add_Average(QCustomPlot& plot, const QColor& colour) {
  QCPGraph* average = plot.addGraph();
  average->setPen(QPen(colour, 2, Qt::DashLine));
  return average;
}

void Fill(QCPGraph& curve, const std::vector<Tidal_Point>& points) {
  curve.data()->clear();
  for (const Tidal_Point& point : points) curve.addData(point.hour, point.velocity);
}

}  // namespace

Tidal_Curve::Tidal_Curve(QWidget* parent)
    : Plot_Picture(QStringLiteral("Velocity over the tidal pattern"),
                   QStringLiteral("tidal velocity"), parent) {
  Dress_Axis(*plot()->xAxis, QStringLiteral("Time (h)"), true);
  Dress_Axis(*plot()->yAxis, QStringLiteral("Velocity (ft/s)"), true);
  x_curve_ = Add_Curve(*plot(), kXColour, false);
  z_curve_ = Add_Curve(*plot(), kZColour, true);
  x_average_ = Add_Average(*plot(), kXColour);
  z_average_ = Add_Average(*plot(), kZColour);
  // Only the legend's entry: the shade itself lies below the grid lines.
  interval_ = plot()->addGraph();
  interval_->setPen(Qt::NoPen);
  interval_->setBrush(kShade);
  interval_->setName(QStringLiteral("Simulated"));
  legend_ = Add_Legend(*plot());
  Data_Changed();
}

void Tidal_Curve::Show(Tidal_Pattern pattern) {
  pattern_ = std::move(pattern);
  Data_Changed();
}

const Tidal_Drawing& Tidal_Curve::Drawn() {
  Catch_Up();
  return drawing_;
}

QPointF Tidal_Curve::Place_Of(double hour, double velocity) {
  Catch_Up();
  return Place_In_Plot(*plot(), hour, velocity);
}

QString Tidal_Curve::Tip_At(const QPointF& place) {
  Catch_Up();
  const QPointF at = place - plot()->pos();
  if (!QRectF(plot()->axisRect()->rect()).contains(at)) return {};
  return QString::fromStdString(Tidal_Text_At(pattern_, plot()->xAxis->pixelToCoord(at.x())));
}

void Tidal_Curve::Build() {
  drawing_ = Draw_Tide(pattern_);
  Set_Scale(*plot()->xAxis, drawing_.time);
  Set_Scale(*plot()->yAxis, drawing_.velocity);
  plot()->clearItems();
  QCPAxis& hours = *plot()->xAxis;
  if (drawing_.shaded) {
    Add_Band(*plot(), hours, *drawing_.shaded, kShade);
    for (const double edge : {drawing_.interval->low, drawing_.interval->high}) {
      Add_Mark(*plot(), hours, edge, QPen(kShadeEdge, 1));
    }
  }
  if (drawing_.time.high > drawing_.pattern_end && drawing_.pattern_end > 0) {
    Add_Mark(*plot(), hours, drawing_.pattern_end, QPen(kPatternEnd, 1, Qt::DotLine));
  }
  Fill(*x_curve_, drawing_.x);
  Fill(*z_curve_, drawing_.z);
  const auto average = [this](QCPGraph& line, const std::optional<double>& value) {
    line.data()->clear();
    if (!value || !drawing_.shaded) return;
    line.addData(drawing_.shaded->low, *value);
    line.addData(drawing_.shaded->high, *value);
  };
  average(*x_average_, drawing_.average_x);
  average(*z_average_, drawing_.average_z);
  Name_Curves();
  Tell(drawing_.note, drawing_.description);
}

// The averages are beside the names of their lines, so that no label lies on the curves.
void Tidal_Curve::Name_Curves() {
  const auto average = [](const char* name, const std::optional<double>& value) {
    return QString::fromStdString(std::string(name) + " average " +
                                  Fixed_Text(value.value_or(0), 2));
  };
  x_curve_->setName(QStringLiteral("X velocity"));
  z_curve_->setName(QStringLiteral("Z velocity"));
  x_average_->setName(average("X", drawing_.average_x));
  z_average_->setName(average("Z", drawing_.average_z));
  legend_->clearItems();
  legend_->simplify();
  x_curve_->addToLegend(legend_);
  z_curve_->addToLegend(legend_);
  if (drawing_.shaded) interval_->addToLegend(legend_);
  if (!x_average_->data()->isEmpty()) x_average_->addToLegend(legend_);
  if (!z_average_->data()->isEmpty()) z_average_->addToLegend(legend_);
}

void Tidal_Curve::Fit() {
  const QSizeF room = Room_For_Axes(*plot());
  Fit_Legend(*plot(), *legend_);
  Fit_Labels(*plot()->xAxis, drawing_.time, room.width());
  Fit_Labels(*plot()->yAxis, drawing_.velocity, room.height());
}

}  // namespace barvon

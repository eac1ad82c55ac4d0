#include "pictures/plot_parts.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

namespace barvon {
namespace {

const QColor kLetters = To_QColor(kInk), kAxis = To_QColor(kAxisInk), kGrid = To_QColor(kGridInk),
             kZeroLine = To_QColor(kZeroInk);
constexpr double kLargestInFull = 1e6, kSmallestInFull = 1e-5;

}  // namespace

void Dress_Axis(QCPAxis& axis, const QString& label, bool with_grid) {
  axis.setLabel(label);
  axis.setLabelColor(kLetters);
  axis.setTickLabelColor(kLetters);
  axis.setBasePen(QPen(kAxis));
  axis.setTickPen(QPen(kAxis));
  axis.setTickLength(0, 4);
  axis.setSubTicks(false);
  axis.setTickLabelPadding(3);
  axis.setLabelPadding(6);
  axis.grid()->setVisible(with_grid);
  axis.grid()->setPen(QPen(kGrid));
  axis.grid()->setZeroLinePen(QPen(kZeroLine));
}

void Set_Scale(QCPAxis& axis, const Axis_Scale& scale, double margin) {
  const double beyond = margin * (scale.high - scale.low);
  axis.setRange(scale.low - beyond, scale.high + beyond);
  const double largest = std::max(std::abs(scale.low), std::abs(scale.high));
  const bool in_full = largest < kLargestInFull && scale.step > kSmallestInFull;
  axis.setNumberFormat(in_full ? QStringLiteral("f") : QStringLiteral("gb"));
  axis.setNumberPrecision(in_full ? scale.decimals : 6);
}

void Fit_Labels(QCPAxis& axis, const Axis_Scale& scale, double pixels) {
  const QFontMetricsF metrics(axis.tickLabelFont());
  double label = metrics.height() * 1.5;
  if (axis.orientation() == Qt::Horizontal) {
    const auto text = [&](double value) {
      return metrics.horizontalAdvance(QString::number(value, 'f', scale.decimals));
    };
    label = std::min(std::max(text(scale.low), text(scale.high)), 80.0) + metrics.height();
  }
  const int steps = static_cast<int>(std::lround((scale.high - scale.low) / scale.step));
  const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
  ticker->setTickStep(scale.step * Label_Stride(steps, pixels, label));
  axis.setTicker(ticker);
}

void Dress_Fonts(QCustomPlot& plot, const QFont& font) {
  for (QCPAxis* axis : plot.findChildren<QCPAxis*>()) {
    axis->setTickLabelFont(font);
    axis->setLabelFont(font);
  }
  for (QCPLegend* legend : plot.findChildren<QCPLegend*>()) legend->setFont(font);
  for (QCPItemText* text : plot.findChildren<QCPItemText*>()) text->setFont(font);
}

QSizeF Room_For_Axes(const QCustomPlot& plot) {
  const QFontMetricsF metrics(plot.xAxis->tickLabelFont());
  QSizeF room = QSizeF(plot.viewport().size()) - 4 * QSizeF(metrics.height(), metrics.height());
  return room.expandedTo(QSizeF(1, 1));
}

void Add_Band(QCustomPlot& plot, QCPAxis& axis, Value_Range range, const QColor& colour) {
  const bool upright = axis.orientation() == Qt::Horizontal;
  const QCPRange x = plot.xAxis->range(), y = plot.yAxis->range();
  auto* band = new QCPItemRect(&plot);
  band->setLayer(QStringLiteral("background"));
  band->topLeft->setCoords(upright ? range.low : x.lower, upright ? y.lower : range.low);
  band->bottomRight->setCoords(upright ? range.high : x.upper, upright ? y.upper : range.high);
  band->setPen(Qt::NoPen);
  band->setBrush(colour);
}

void Add_Mark(QCustomPlot& plot, QCPAxis& axis, double value, const QPen& pen) {
  const bool upright = axis.orientation() == Qt::Horizontal;
  const QCPRange x = plot.xAxis->range(), y = plot.yAxis->range();
  auto* line = new QCPItemLine(&plot);
  line->setLayer(QStringLiteral("grid"));
  line->start->setCoords(upright ? value : x.lower, upright ? y.lower : value);
  line->end->setCoords(upright ? value : x.upper, upright ? y.upper : value);
  line->setPen(pen);
}

QPointF Place_In_Plot(const QCustomPlot& plot, double across, double down) {
  return plot.pos() + QPointF(plot.xAxis->coordToPixel(across), plot.yAxis->coordToPixel(down));
}

QCPLegend* Add_Legend(QCustomPlot& plot) {
  auto* legend = new QCPLegend;
  plot.plotLayout()->insertRow(0);
  plot.plotLayout()->addElement(0, 0, legend);
  legend->setLayer(QStringLiteral("legend"));
  legend->setFillOrder(QCPLegend::foColumnsFirst);
  legend->setBorderPen(Qt::NoPen);
  legend->setTextColor(kLetters);
  legend->setIconSize(20, 10);
  // A saved SVG shows the icons' lines unclipped, a little longer than on the screen.
  legend->setIconTextPadding(10);
  legend->setMargins(QMargins(8, 3, 8, 0));
  legend->setRowSpacing(0);
  plot.plotLayout()->setRowStretchFactor(0, 0.001);
  plot.plotLayout()->setRowSpacing(0);
  return legend;
}

void Fit_Legend(QCustomPlot& plot, QCPLegend& legend) {
  double widest = 1;
  for (const QCPAbstractLegendItem* item : plot.findChildren<QCPAbstractLegendItem*>()) {
    widest = std::max<double>(widest, item->minimumOuterSizeHint().width());
  }
  const int room = plot.viewport().width() - 24;
  const int wrap = std::max(1, static_cast<int>(room / (widest + legend.columnSpacing())));
  if (wrap == legend.wrap()) return;
  legend.setWrap(wrap);
  legend.setFillOrder(QCPLegend::foColumnsFirst, true);
}

QCPColorScale* Add_Colour_Scale(QCustomPlot& plot, const QString& label) {
  auto* scale = new QCPColorScale(&plot);
  plot.plotLayout()->addElement(0, 1, scale);
  scale->setType(QCPAxis::atRight);
  scale->setBarWidth(14);
  Dress_Axis(*scale->axis(), label, false);
  auto* sides = new QCPMarginGroup(&plot);
  plot.axisRect()->setMarginGroup(QCP::msTop | QCP::msBottom, sides);
  scale->setMarginGroup(QCP::msTop | QCP::msBottom, sides);
  return scale;
}

}  // namespace barvon

#include "pictures/grid_axes.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

#include "pictures/plot_parts.h"

namespace barvon {
namespace {

constexpr double kTightest = 0.85;  // part of a label's room that the first two may shrink to

void Put_Headings(QCPAxis& axis, const QString& word, int count, double pixels, double label) {
  const QSharedPointer<QCPAxisTickerText> headings(new QCPAxisTickerText);
  const int stride = Label_Stride(count, pixels, label);
  // 1, 3, 5 and so on, or 1 and the multiples of a larger stride, but none too near to the first.
  const bool skip = (stride - 1) * pixels < kTightest * label * count;
  for (int at = 1; at <= count; at += at == 1 && stride > 2 ? stride - 1 : stride) {
    if (at == 1 || at != stride || !skip) headings->addTick(at, word.arg(at));
  }
  axis.setTicker(headings);
}

/// The width that the plot's other parts leave to the grid.
double Width_Of_Grid(QCustomPlot& plot) {
  for (const auto phase :
       {QCPLayoutElement::upPreparation, QCPLayoutElement::upMargins, QCPLayoutElement::upLayout}) {
    plot.plotLayout()->update(phase);
  }
  return std::max(plot.axisRect()->width(), 1);
}

}  // namespace

void Dress_Grid_Axes(QCustomPlot& plot) {
  plot.xAxis->setVisible(false);
  plot.xAxis2->setVisible(true);
  Dress_Axis(*plot.xAxis2, QStringLiteral("Z, left to right"), false);
  Dress_Axis(*plot.yAxis, QStringLiteral("X, top to bottom"), false);
  plot.xAxis->grid()->setVisible(false);
  plot.yAxis->setRangeReversed(true);
}

void Set_Grid_Size(QCustomPlot& plot, int rows, int columns) {
  // Each point is in the middle of its cell.
  plot.xAxis2->setRange(0.5, columns > 0 ? columns + 0.5 : 1);
  plot.yAxis->setRange(0.5, rows > 0 ? rows + 0.5 : 1);
}

void Fit_Grid_Labels(QCustomPlot& plot, int rows, int columns) {
  const QSizeF room = Room_For_Axes(plot);
  const QFontMetricsF metrics(plot.yAxis->tickLabelFont());
  const double width = metrics.horizontalAdvance(QStringLiteral("Col %1").arg(columns));
  Put_Headings(*plot.yAxis, QStringLiteral("Row %1"), rows, room.height(), metrics.height() * 1.1);
  Put_Headings(*plot.xAxis2, QStringLiteral("Col %1"), columns, Width_Of_Grid(plot),
               width + metrics.height() * 0.6);
}

QCPColorMap* Add_Cells(QCustomPlot& plot) {
  auto* map = new QCPColorMap(plot.xAxis2, plot.yAxis);
  map->setInterpolate(false);
  return map;
}

void Set_Cells(QCPColorMap& map, int rows, int columns, const std::vector<double>& values) {
  // The map's range ends in the middle of its outer cells. A single row or column is drawn as two
  // halves, since one cell alone has no width there.
  const auto range = [](int count) {
    return count == 1 ? QCPRange(0.75, 1.25) : QCPRange(1, std::max(count, 2));
  };
  const int halves_across = columns == 1 ? 2 : 1, halves_down = rows == 1 ? 2 : 1;
  // Cells of a grid of the same size stay where they are in memory: a map follows each key.
  QCPColorMapData& data = *map.data();
  data.setSize(columns * halves_across, rows * halves_down);
  data.setRange(range(columns), range(rows));
  for (int row = 0; row < data.valueSize(); ++row) {
    const std::size_t first = static_cast<std::size_t>(row / halves_down) * columns;
    for (int column = 0; column < data.keySize(); ++column) {
      data.setCell(column, row, values[first + (columns == 1 ? 0 : column)]);
    }
  }
}

QPointF Place_Of_Cell(const QCustomPlot& plot, int row, int column) {
  return {plot.xAxis2->coordToPixel(column), plot.yAxis->coordToPixel(row)};
}

std::optional<Grid_Cell> Cell_At(const QCustomPlot& plot, const QPointF& place, int rows,
                                 int columns) {
  if (!QRectF(plot.axisRect()->rect()).contains(place)) return std::nullopt;
  const int row = static_cast<int>(std::lround(plot.yAxis->pixelToCoord(place.y())));
  const int column = static_cast<int>(std::lround(plot.xAxis2->pixelToCoord(place.x())));
  if (row < 1 || row > rows || column < 1 || column > columns) return std::nullopt;
  return Grid_Cell{row, column};
}

}  // namespace barvon

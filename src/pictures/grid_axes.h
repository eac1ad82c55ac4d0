#pragma once

#include <QPointF>
#include <optional>
#include <vector>

class QCPColorMap;
class QCustomPlot;

namespace barvon {

struct Grid_Cell {
  int row = 0, column = 0;  // from 1
};

/// Axes as a table has its headings: columns along the top, rows down the left side.
void Dress_Grid_Axes(QCustomPlot& plot);
void Set_Grid_Size(QCustomPlot& plot, int rows, int columns);
/// Headings for every row and column, or every few where there is no room for all.
void Fit_Grid_Labels(QCustomPlot& plot, int rows, int columns);

/// A colour map on these axes, one plain colour a cell.
QCPColorMap* Add_Cells(QCustomPlot& plot);
/// `values` row by row; NaN cells stay white.
void Set_Cells(QCPColorMap& map, int rows, int columns, const std::vector<double>& values);

/// In the plot's pixels.
QPointF Place_Of_Cell(const QCustomPlot& plot, int row, int column);
std::optional<Grid_Cell> Cell_At(const QCustomPlot& plot, const QPointF& place, int rows,
                                 int columns);

}  // namespace barvon

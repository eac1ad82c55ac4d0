#pragma once

#include <QColor>
#include <QFont>
#include <QPen>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include "pictures/shape_painter.h"
#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/inks.h"

class QCPAxis;
class QCPColorScale;
class QCPLegend;
class QCustomPlot;

namespace barvon {

/// The two directions.
inline constexpr QColor kXColour = To_QColor(kXInk);
inline constexpr QColor kZColour = To_QColor(kZInk);

/// The plain look of an axis: thin lines, and a grid where `with_grid`.
void Dress_Axis(QCPAxis& axis, const QString& label, bool with_grid);

/// Part of an axis that is left free at both ends, so that markers there are whole.
inline constexpr double kAxisMargin = 0.03;

/// Puts range and number format of the scale on the axis.
void Set_Scale(QCPAxis& axis, const Axis_Scale& scale, double margin = kAxisMargin);

/// Puts labels where there is room for them on that many pixels.
void Fit_Labels(QCPAxis& axis, const Axis_Scale& scale, double pixels);

/// All axes and legends of the plot take the font.
void Dress_Fonts(QCustomPlot& plot, const QFont& font);

/// The pixels that the axes get of the plot's present size, before its layout is known.
QSizeF Room_For_Axes(const QCustomPlot& plot);

/// A filled band below the grid over a range of the axis, and a line at one of its values, both
/// across the whole picture.
void Add_Band(QCustomPlot& plot, QCPAxis& axis, Value_Range range, const QColor& colour);
void Add_Mark(QCustomPlot& plot, QCPAxis& axis, double value, const QPen& pen);

/// Where the values of the bottom and the left axis meet, in the pixels of the plot's parent.
QPointF Place_In_Plot(const QCustomPlot& plot, double across, double down);

/// A legend in a row of its own above the axes.
QCPLegend* Add_Legend(QCustomPlot& plot);
/// As many entries side by side as the plot's width takes.
void Fit_Legend(QCustomPlot& plot, QCPLegend& legend);

/// A colour scale to the right of the axes, as high as they are.
QCPColorScale* Add_Colour_Scale(QCustomPlot& plot, const QString& label);

}  // namespace barvon

#include "pictures/shape_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace barvon {
namespace {

// The toolkit counts dashes in widths of the pen, shapes in pixels.
QPen Pen_Of(const std::optional<Stroke>& stroke) {
  if (!stroke) return Qt::NoPen;
  QPen pen(To_QColor(stroke->colour), stroke->width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  const double width = std::max(stroke->width, 0.1);
  if (stroke->dash == Dash::dashed) pen.setDashPattern({6 / width, 4 / width});
  if (stroke->dash == Dash::dotted) pen.setDashPattern({1 / width, 3 / width});
  return pen;
}

QBrush Brush_Of(const std::optional<Colour>& fill) {
  return fill ? QBrush(To_QColor(*fill)) : QBrush(Qt::NoBrush);
}

QPointF Point_Of(const Place& place) { return {place.x, place.y}; }

QPolygonF Points_Of(const std::vector<Place>& places) {
  QPolygonF points;
  for (const Place& place : places) points << Point_Of(place);
  return points;
}

constexpr double kFiner = 16;

class Shape_Brush {
 public:
  Shape_Brush(QPainter& painter, const QFont& letters) : painter_(painter), letters_(letters) {}

  void operator()(const Line_Shape& line) {
    painter_.setPen(Pen_Of(line.stroke));
    painter_.drawPolyline(Points_Of(line.points));
  }

  void operator()(const Polygon_Shape& polygon) {
    Take(polygon.fill, polygon.stroke);
    painter_.drawPolygon(Points_Of(polygon.points));
  }

  void operator()(const Area_Shape& area) {
    Take(area.fill, area.stroke);
    QPainterPath path;  // odd-even unless it is told otherwise
    for (const auto& ring : area.rings) {
      path.addPolygon(Points_Of(ring));
      path.closeSubpath();
    }
    painter_.drawPath(path);
  }

  void operator()(const Circle_Shape& circle) {
    Take(circle.fill, circle.stroke);
    painter_.drawEllipse(Point_Of(circle.centre), circle.radius, circle.radius);
  }

  void operator()(const Text_Shape& text) {
    // Fonts come in whole pixels: letters of another size are drawn larger and shrunk.
    const double finer = text.size == std::round(text.size) ? 1 : kFiner;
    letters_.setPixelSize(std::max(1, static_cast<int>(std::lround(text.size * finer))));
    letters_.setBold(text.bold);
    const QString letters = QString::fromStdString(text.text);
    const double width = QFontMetricsF(letters_, painter_.device()).horizontalAdvance(letters);
    const double before = text.anchor == Anchor::start    ? 0
                          : text.anchor == Anchor::middle ? width / 2
                                                          : width;
    painter_.save();
    painter_.setFont(letters_);
    painter_.setPen(To_QColor(text.colour));
    painter_.translate(Point_Of(text.place));
    if (text.upwards) painter_.rotate(-90);
    painter_.scale(1 / finer, 1 / finer);
    painter_.drawText(QPointF(-before, 0), letters);
    painter_.restore();
  }

 private:
  void Take(const std::optional<Colour>& fill, const std::optional<Stroke>& stroke) {
    painter_.setPen(Pen_Of(stroke));
    painter_.setBrush(Brush_Of(fill));
  }

  QPainter& painter_;
  QFont letters_;
};

}  // namespace

void Paint_Shapes(QPainter& painter, const Shape_List& picture, const QFont& letters) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  Shape_Brush brush(painter, letters);
  for (const Shape& shape : picture.shapes) {
    if (Has_Places(shape)) std::visit(brush, shape);
  }
  painter.restore();
}

}  // namespace barvon

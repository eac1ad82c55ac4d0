#include "pictures/arrow_layer.h"

#include <algorithm>
#include <cmath>

#include "pictures/grid_axes.h"

namespace barvon {
namespace {

const QColor kArrow(20, 33, 48);
constexpr double kLargestHead = 7, kHeadShare = 0.4, kDot = 1.2;  // pixels; part of the arrow

// An arrow centred on a place; one that is too short to have a direction is a dot.
void Draw_Arrow(QCPPainter& painter, const QPointF& centre, const QPointF& reach) {
  const double length = std::hypot(reach.x(), reach.y());
  if (length < 2 * kDot) {
    painter.setBrush(kArrow);
    painter.drawEllipse(centre, kDot / 2, kDot / 2);
    return;
  }
  const QPointF tip = centre + reach / 2, along = reach / length, across(-along.y(), along.x());
  const double head = std::min(kLargestHead, kHeadShare * length);
  const QPointF neck = tip - along * head;
  painter.setBrush(Qt::NoBrush);
  painter.drawLine(centre - reach / 2, neck);
  painter.setBrush(kArrow);
  painter.drawPolygon(QPolygonF({tip, neck + across * head * 0.4, neck - across * head * 0.4}));
}

}  // namespace

Arrow_Layer::Arrow_Layer(QCustomPlot* plot) : QCPAbstractItem(plot) { setClipToAxisRect(false); }

double Arrow_Layer::selectTest(const QPointF&, bool, QVariant*) const { return -1; }

void Arrow_Layer::draw(QCPPainter* painter) {
  painter->setAntialiasing(true);
  painter->setPen(QPen(kArrow, 1.3, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  for (const Velocity_Arrow& arrow : arrows) {
    Draw_Arrow(*painter, Place_Of_Cell(*parentPlot(), arrow.row, arrow.column),
               QPointF(arrow.right, arrow.down) * longest);
  }
  const double length = reference_length * longest;
  if (!(length > 0)) return;
  const QFontMetricsF metrics(font);
  const QRectF axes = parentPlot()->axisRect()->rect();
  const double middle = axes.bottom() + 4 + metrics.height() / 2;
  Draw_Arrow(*painter, {axes.left() + length / 2, middle}, {length, 0});
  painter->setFont(font);
  painter->drawText(QPointF(axes.left() + length + 6, middle + metrics.ascent() / 2 - 1),
                    reference_text);
}

}  // namespace barvon

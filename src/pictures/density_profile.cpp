#include "pictures/density_profile.h"

#include <qcustomplot.h>

#include <utility>

#include "pictures/plot_parts.h"

namespace barvon {
namespace {

constexpr double kReach = 10;  // pixels from a point that still mean it
const QColor kSurface(70, 140, 205), kGround(139, 110, 70), kGroundFill(239, 231, 219);

}  // namespace

Density_Profile::Density_Profile(QWidget* parent)
    : Picture(QStringLiteral("Water density against depth"), QStringLiteral("density profile"),
              parent) {
  Dress_Axis(*plot()->xAxis, QStringLiteral("Density (g/cc)"), true);
  Dress_Axis(*plot()->yAxis, QStringLiteral("Depth (ft)"), true);
  plot()->yAxis->setRangeReversed(true);
  Data_Changed();
}

void Density_Profile::Show(std::vector<Density_Point> points, double bottom) {
  points_ = std::move(points);
  bottom_ = bottom;
  Data_Changed();
}

const Density_Drawing& Density_Profile::Drawn() {
  Catch_Up();
  return drawing_;
}

QPointF Density_Profile::Place_Of(const Density_Point& point) {
  Catch_Up();
  return Place_In_Plot(*plot(), point.density, point.depth);
}

QString Density_Profile::Tip_At(const QPointF& place) {
  Catch_Up();
  for (const Density_Point& point : drawing_.points) {
    if (QLineF(Place_Of(point), place).length() > kReach) continue;
    return QString::fromStdString("Depth " + Short_Text(point.depth) + " ft\nDensity " +
                                  Fixed_Text(point.density, 4) + " g/cc");
  }
  return {};
}

void Density_Profile::Build() {
  drawing_ = Draw_Density(points_, bottom_);
  plot()->clearItems();
  plot()->clearPlottables();
  Set_Scale(*plot()->xAxis, drawing_.density);
  Set_Scale(*plot()->yAxis, drawing_.depth);
  QCPAxis& down = *plot()->yAxis;
  if (drawing_.bottom) {
    Add_Band(*plot(), down, {*drawing_.bottom, down.range().upper}, kGroundFill);
    Add_Mark(*plot(), down, *drawing_.bottom, QPen(kGround, 2));
    Name_Bottom();
  }
  Add_Mark(*plot(), down, 0, QPen(kSurface, 2));
  QCPCurve* line = Add_Line(*plot(), QStringLiteral("Density"), kXColour, false);
  for (const Density_Point& point : drawing_.points) line->addData(point.density, point.depth);
  Tell(drawing_.note, drawing_.description);
}

// At the left, where the water is lightest and the line seldom is so deep.
void Density_Profile::Name_Bottom() {
  auto* text = new QCPItemText(plot());
  text->setText(QString::fromStdString("bottom " + Short_Text(*drawing_.bottom) + " ft"));
  text->setColor(kGround.darker(120));
  text->setPadding(QMargins(4, 0, 0, 3));
  text->setPositionAlignment(Qt::AlignLeft | Qt::AlignBottom);
  text->position->setCoords(plot()->xAxis->range().lower, *drawing_.bottom);
}

void Density_Profile::Fit() {
  const QSizeF room = Room_For_Axes(*plot());
  Fit_Labels(*plot()->xAxis, drawing_.density, room.width());
  Fit_Labels(*plot()->yAxis, drawing_.depth, room.height());
}

}  // namespace barvon

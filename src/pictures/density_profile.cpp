#include "pictures/density_profile.h"

#include <QLineF>
#include <utility>

namespace barvon {
namespace {

constexpr double kReach = 10;  // pixels from a point that still mean it

}  // namespace

Density_Profile::Density_Profile(QWidget* parent)
    : Shape_Picture(QStringLiteral("Water density against depth"),
                    QStringLiteral("density profile"), parent) {
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
  return In_Widget(Frame_Of(drawing_, Present_Canvas()).At(point.density, point.depth));
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
  Tell(drawing_.note, drawing_.description);
}

Shape_List Density_Profile::Shapes(const Canvas& canvas) const {
  return Density_Shapes(drawing_, canvas);
}

}  // namespace barvon

#include "pictures/two_point_profile.h"

#include <qcustomplot.h>

#include "pictures/plot_parts.h"

namespace barvon {
namespace {

constexpr double kReach = 10;  // pixels from a point that still mean it
const QColor kSurface(70, 140, 205);

}  // namespace

Two_Point_Profile::Two_Point_Profile(QWidget* parent)
    : Picture(QStringLiteral("Velocity against depth"), QStringLiteral("velocity profile"),
              parent) {
  Dress_Axis(*plot()->xAxis, QStringLiteral("Velocity (ft/s)"), true);
  Dress_Axis(*plot()->yAxis, QStringLiteral("Depth (ft)"), true);
  plot()->yAxis->setRangeReversed(true);
  x_line_ = Add_Line(*plot(), QStringLiteral("X velocity"), kXColour, false);
  z_line_ = Add_Line(*plot(), QStringLiteral("Z velocity"), kZColour, true);
  legend_ = Add_Legend(*plot());
  x_line_->addToLegend(legend_);
  z_line_->addToLegend(legend_);
  Data_Changed();
}

void Two_Point_Profile::Show(const std::array<Profile_Point, 2>& points) {
  points_ = points;
  Data_Changed();
}

const Profile_Drawing& Two_Point_Profile::Drawn() {
  Catch_Up();
  return drawing_;
}

QPointF Two_Point_Profile::Place_Of(double velocity, double depth) {
  Catch_Up();
  return Place_In_Plot(*plot(), velocity, depth);
}

QString Two_Point_Profile::Tip_At(const QPointF& place) {
  Catch_Up();
  QStringList texts;
  const auto add = [&](const char* name, const std::vector<Profile_Line_Point>& line) {
    for (const Profile_Line_Point& point : line) {
      if (QLineF(Place_Of(point.velocity, point.depth), place).length() > kReach) continue;
      texts << QString::fromStdString(std::string(name) + " velocity " +
                                      Short_Text(point.velocity) + " ft/s at " +
                                      Short_Text(point.depth) + " ft");
    }
  };
  add("X", drawing_.x);
  add("Z", drawing_.z);
  return texts.join(QLatin1Char('\n'));
}

void Two_Point_Profile::Build() {
  drawing_ = Draw_Profile(points_);
  Set_Scale(*plot()->xAxis, drawing_.velocity);
  Set_Scale(*plot()->yAxis, drawing_.depth);
  plot()->clearItems();
  Add_Mark(*plot(), *plot()->yAxis, 0, QPen(kSurface, 2));
  const auto fill = [](QCPCurve& line, const std::vector<Profile_Line_Point>& points) {
    line.data()->clear();
    for (const Profile_Line_Point& point : points) line.addData(point.velocity, point.depth);
  };
  fill(*x_line_, drawing_.x);
  fill(*z_line_, drawing_.z);
  Tell(drawing_.note, drawing_.description);
}

void Two_Point_Profile::Fit() {
  const QSizeF room = Room_For_Axes(*plot());
  Fit_Legend(*plot(), *legend_);
  Fit_Labels(*plot()->xAxis, drawing_.velocity, room.width());
  Fit_Labels(*plot()->yAxis, drawing_.depth, room.height());
}

}  // namespace barvon

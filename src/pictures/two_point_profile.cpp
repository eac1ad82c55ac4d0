#include "pictures/two_point_profile.h"

#include <QLineF>
#include <QStringList>

namespace barvon {
namespace {

constexpr double kReach = 10;  // pixels from a point that still mean it

}  // namespace

Two_Point_Profile::Two_Point_Profile(QWidget* parent)
    : Shape_Picture(QStringLiteral("Velocity against depth"), QStringLiteral("velocity profile"),
                    parent) {
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
  return In_Widget(Frame_Of(drawing_, Present_Canvas()).At(velocity, depth));
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
  Tell(drawing_.note, drawing_.description);
}

Shape_List Two_Point_Profile::Shapes(const Canvas& canvas) const {
  return Profile_Shapes(drawing_, canvas);
}

}  // namespace barvon

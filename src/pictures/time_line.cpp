#include "pictures/time_line.h"

#include <utility>

namespace barvon {

Time_Line::Time_Line(QWidget* parent)
    : Shape_Picture(QStringLiteral("Time line of the simulation"), QStringLiteral("time line"),
                    parent) {
  Data_Changed();
}

void Time_Line::Show(Run_Times times) {
  times_ = std::move(times);
  Data_Changed();
}

const Time_Drawing& Time_Line::Drawn() {
  Catch_Up();
  return drawing_;
}

QPointF Time_Line::Place_Of(double time, Time_Lane lane) {
  Catch_Up();
  const double middle = static_cast<double>(lane) + 0.5;
  return In_Widget(Frame_Of(drawing_, Present_Canvas()).At(time, middle));
}

QString Time_Line::Tip_At(const QPointF& place) {
  Catch_Up();
  const Plot_Frame frame = Frame_Of(drawing_, Present_Canvas());
  const Place at = On_Canvas(place);
  if (!frame.Holds(at)) return {};
  const double lane = frame.Upright_At(at);
  for (const Time_Lane one : {Time_Lane::duration, Time_Lane::steps, Time_Lane::prints}) {
    const auto top = static_cast<double>(one);
    if (lane >= top && lane < top + 1) return QString::fromStdString(Lane_Words(drawing_, one));
  }
  return {};
}

void Time_Line::Build() {
  drawing_ = Draw_Times(times_);
  Tell(drawing_.note, drawing_.description);
}

Shape_List Time_Line::Shapes(const Canvas& canvas) const { return Time_Shapes(drawing_, canvas); }

}  // namespace barvon

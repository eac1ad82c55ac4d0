#include "pictures/bar_picture.h"

#include <utility>

namespace barvon {

Bar_Picture::Bar_Picture(const QString& name, const QString& file_name, QWidget* parent)
    : Shape_Picture(name, file_name, parent) {
  Data_Changed();
}

void Bar_Picture::Show(Bar_Chart chart) {
  chart_ = std::move(chart);
  Data_Changed();
}

const Bars_Drawing& Bar_Picture::Drawn() {
  Catch_Up();
  return drawing_;
}

QString Bar_Picture::Tip_At(const QPointF& place) {
  Catch_Up();
  const auto bar = Bar_At(drawing_, Present_Canvas(), On_Canvas(place));
  return bar ? QString::fromStdString(Bar_Words(drawing_.chart.bars[*bar])) : QString();
}

void Bar_Picture::Build() {
  drawing_ = Draw_Bars(chart_);
  Tell(drawing_.note, drawing_.description);
}

Shape_List Bar_Picture::Shapes(const Canvas& canvas) const { return Bar_Shapes(drawing_, canvas); }

}  // namespace barvon

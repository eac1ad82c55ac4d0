#include "graphs/maxima_plot.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QResizeEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace barvon {
namespace {

constexpr int kLeastLetters = 40, kLeastLines = 14;  // of the program's text

}  // namespace

Maxima_Plot::Maxima_Plot(QWidget* parent)
    : Shape_Picture(QStringLiteral("Max Conc. vs Time"), QStringLiteral("maximum concentration"),
                    parent) {
  Data_Changed();
}

void Maxima_Plot::Show(Maxima_Drawing drawing) {
  drawing_ = std::move(drawing);
  Data_Changed();
  const auto times = Reading_Times(drawing_);
  const bool kept = read_ && std::ranges::find(times, *read_) != times.end();
  Read_At(kept ? read_ : std::nullopt);
}

QPointF Maxima_Plot::Place_Of(double time, double value) {
  Catch_Up();
  return In_Widget(Frame_Of(drawing_, Present_Canvas()).At(time, value));
}

// What is read stands beside the plot; a tip would hide the curves.
QString Maxima_Plot::Tip_At(const QPointF&) { return {}; }

QSize Maxima_Plot::minimumSizeHint() const {
  const QFontMetrics letters = fontMetrics();
  const int usual = kLeastLines * letters.height();
  Canvas canvas = Present_Canvas();
  canvas.width = std::max(canvas.width, 1.0);
  const int named = static_cast<int>(std::ceil(Least_Height(drawing_, canvas)));
  return {kLeastLetters * letters.averageCharWidth(), std::max(usual, named + Caption_Height())};
}

void Maxima_Plot::Build() {
  Tell(drawing_.note, drawing_.description);
  updateGeometry();
}

// The legend has more rows in a narrow window, and so the least height is another.
void Maxima_Plot::resizeEvent(QResizeEvent* event) {
  Shape_Picture::resizeEvent(event);
  if (event->oldSize().width() != event->size().width()) updateGeometry();
}

void Maxima_Plot::changeEvent(QEvent* event) {
  Shape_Picture::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}

Shape_List Maxima_Plot::Shapes(const Canvas& canvas) const {
  return Maxima_Shapes(drawing_, canvas);
}

Shape_List Maxima_Plot::Above(const Canvas& canvas) const {
  return read_ ? Reading_Shapes(drawing_, canvas, *read_) : Shape_List{};
}

std::optional<double> Maxima_Plot::Time_At(const QPointF& place) {
  Catch_Up();
  const Plot_Frame frame = Frame_Of(drawing_, Present_Canvas());
  const Place at = On_Canvas(place);
  if (!frame.Holds(at)) return std::nullopt;
  return Nearest_Reading(drawing_, frame.Across_At(at));
}

void Maxima_Plot::Read_At(std::optional<double> time) {
  read_ = time;
  Redraw_Content();
  emit Read(time ? QString::fromStdString(Reading_Words(drawing_, *time)) : QString());
}

void Maxima_Plot::keyPressEvent(QKeyEvent* event) {
  const auto times = Reading_Times(drawing_);
  const bool step = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
  const bool jump = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
  if (event->key() == Qt::Key_Escape && read_) {
    Read_At(std::nullopt);
  } else if ((step || jump) && !times.empty() && event->modifiers() == Qt::NoModifier) {
    const bool onwards = event->key() == Qt::Key_Right || event->key() == Qt::Key_Home;
    auto at = read_ ? std::ranges::find(times, *read_) : times.end();
    if (jump || at == times.end()) {
      at = onwards ? times.begin() : std::prev(times.end());
    } else if (onwards) {
      if (std::next(at) != times.end()) ++at;
    } else if (at != times.begin()) {
      --at;
    }
    Read_At(*at);
  } else {
    Shape_Picture::keyPressEvent(event);
  }
}

void Maxima_Plot::mouseMoveEvent(QMouseEvent* event) {
  const auto time = Time_At(event->position());
  if (time != read_) Read_At(time);
  Shape_Picture::mouseMoveEvent(event);
}

void Maxima_Plot::leaveEvent(QEvent* event) {
  if (read_) Read_At(std::nullopt);
  Shape_Picture::leaveEvent(event);
}

}  // namespace barvon

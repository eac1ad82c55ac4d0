#include "graphs/map_picture.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "pictures/shapes/inks.h"
#include "results/cell_places.h"

namespace barvon {
namespace {

constexpr double kStepsOfCell = 0.5;                 // a key moves the cross-hair by half a spacing
constexpr double kLargeStep = 10;                    // steps of a key with Shift
constexpr double kArm = 10;                          // pixels
constexpr int kLeastLetters = 22, kLeastLines = 13;  // of the program's text
constexpr Colour kCursorInk{176, 0, 96};

constexpr char kHowTo[] =
    "Arrow keys move a cross-hair, with Shift faster; Return begins and ends a line for a section, "
    "Escape removes it.";

/// A line that is seen on light and on dark areas.
void Add_Seen(Shape_List& picture, const Place& from, const Place& to, double width) {
  picture.shapes.push_back(Line_Shape{{from, to}, {kWhite, width + 2}});
  picture.shapes.push_back(Line_Shape{{from, to}, {kCursorInk, width}});
}

}  // namespace

Map_Picture::Map_Picture(const QString& name, const QString& file_name, QWidget* parent)
    : Shape_Picture(name, file_name, parent) {
  setCursor(Qt::CrossCursor);
  Data_Changed();
}

void Map_Picture::Show(Map_Content content) {
  drawing_ = Draw_Map(std::move(content));
  if (!Has_Map()) {
    Give_Up_Line();
    cross_hair_shows_ = false;
  } else if (cross_hair_) {
    // A smaller grid takes the cross-hair along.
    const Result_Area reach = Reach_Of(drawing_.content.cells);
    cross_hair_ = Result_Point{std::clamp(cross_hair_->x, reach.top, reach.bottom),
                               std::clamp(cross_hair_->z, reach.left, reach.right)};
  }
  Data_Changed();
}

std::optional<QPointF> Map_Picture::Widget_Place(const Result_Point& place) {
  Catch_Up();
  const auto at = Map_Place_Of(drawing_, Present_Canvas(), place);
  if (!at) return std::nullopt;
  return In_Widget(*at);
}

std::optional<Result_Point> Map_Picture::Feet_At(const QPointF& place, bool nearest) const {
  return Map_Feet_At(drawing_, Present_Canvas(), On_Canvas(place), nearest);
}

QString Map_Picture::Tip_At(const QPointF& place) {
  Catch_Up();
  const auto at = Feet_At(place, false);
  return at ? QString::fromStdString(Map_Words_At(drawing_, *at)) : QString();
}

QSize Map_Picture::minimumSizeHint() const {
  const QFontMetrics letters = fontMetrics();
  return {kLeastLetters * letters.averageCharWidth(), kLeastLines * letters.height()};
}

// Another time has another value at the same place.
void Map_Picture::Build() {
  Tell_All();
  Tell_Reading();
}

void Map_Picture::Tell_Reading() {
  if (cross_hair_shows_ && cross_hair_) {
    emit Told(QString::fromStdString(Map_Words_At(drawing_, *cross_hair_)));
  } else if (pointer_) {
    emit Told(Tip_At(*pointer_));
  }
}

// The cross-hair's place and value are part of the words, for those who cannot see it.
void Map_Picture::Tell_All() {
  std::string words = drawing_.description;
  if (Has_Map()) words += std::string(" ") + kHowTo;
  if (cross_hair_shows_ && cross_hair_) {
    words += " The cross-hair is at " + Map_Words_At(drawing_, *cross_hair_) + ".";
  }
  Tell("", words);
}

Shape_List Map_Picture::Shapes(const Canvas& canvas) const { return Map_Shapes(drawing_, canvas); }

Shape_List Map_Picture::Above(const Canvas& canvas) const {
  Shape_List picture;
  const auto on_canvas = [&](const std::optional<Result_Point>& point) {
    return point ? Map_Place_Of(drawing_, canvas, *point) : std::nullopt;
  };
  const auto from = on_canvas(from_), to = on_canvas(to_);
  if (from && to) Add_Seen(picture, *from, *to, 1.5);
  const auto at = cross_hair_shows_ ? on_canvas(cross_hair_) : std::nullopt;
  if (at) {
    Add_Seen(picture, {at->x - kArm, at->y}, {at->x + kArm, at->y}, 1);
    Add_Seen(picture, {at->x, at->y - kArm}, {at->x, at->y + kArm}, 1);
  }
  return picture;
}

// Tab shows where the arrow keys would move from; a click does not need it.
void Map_Picture::focusInEvent(QFocusEvent* event) {
  if (event->reason() != Qt::MouseFocusReason && cross_hair_ && Has_Map()) {
    cross_hair_shows_ = true;
    Tell_All();
    Redraw_Content();
  }
  Shape_Picture::focusInEvent(event);
}

void Map_Picture::focusOutEvent(QFocusEvent* event) {
  if (cross_hair_shows_) {
    cross_hair_shows_ = false;
    Tell_All();
    Redraw_Content();
    emit Told(QString());
  }
  Shape_Picture::focusOutEvent(event);
}

void Map_Picture::Move_Cross_Hair(double down, double right) {
  const Cell_Values& cells = drawing_.content.cells;
  const Result_Area reach = Reach_Of(cells);
  if (!cross_hair_) {
    // The first key begins at the largest value.
    cross_hair_ = Centre_Of(cells, Largest_Cell(cells));
  } else if (cross_hair_shows_) {
    cross_hair_ = Result_Point{
        std::clamp(cross_hair_->x + down * kStepsOfCell * cells.spacing_x, reach.top, reach.bottom),
        std::clamp(cross_hair_->z + right * kStepsOfCell * cells.spacing_z, reach.left,
                   reach.right)};
  }
  cross_hair_shows_ = true;
  if (from_ && !pressed_) to_ = cross_hair_;
  Tell_All();
  Redraw_Content();
  Tell_Reading();
  if (const auto at = Widget_Place(*cross_hair_)) emit Cross_Hair_Moved(*at);
}

void Map_Picture::Begin_Or_End_Line() {
  if (from_) return End_Line(*cross_hair_);
  from_ = to_ = cross_hair_;
  Redraw_Content();
}

void Map_Picture::End_Line(const Result_Point& to) {
  const Section_Line line{*from_, to};
  Give_Up_Line();
  if (line.from.x == to.x && line.from.z == to.z) return;
  emit Section_Drawn(line);
}

bool Map_Picture::Give_Up_Line() {
  const bool had = from_.has_value();
  pressed_.reset();
  from_.reset();
  to_.reset();
  Redraw_Content();
  return had;
}

void Map_Picture::keyPressEvent(QKeyEvent* event) {
  Catch_Up();
  if (!Has_Map() || !Take_Key(*event)) Shape_Picture::keyPressEvent(event);
}

bool Map_Picture::Take_Key(const QKeyEvent& event) {
  // With Alt and the like, an arrow is a command of somebody else.
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const double step = event.modifiers().testFlag(Qt::ShiftModifier) ? kLargeStep : 1;
  switch (event.key()) {
    case Qt::Key_Up:
      Move_Cross_Hair(-step, 0);
      return true;
    case Qt::Key_Down:
      Move_Cross_Hair(step, 0);
      return true;
    case Qt::Key_Left:
      Move_Cross_Hair(0, -step);
      return true;
    case Qt::Key_Right:
      Move_Cross_Hair(0, step);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!cross_hair_shows_) return false;
      Begin_Or_End_Line();
      return true;
    case Qt::Key_Escape:
      if (Give_Up_Line()) return true;
      if (!drawing_.content.section) return false;
      emit Section_Removed();
      return true;
    default:
      return false;
  }
}

void Map_Picture::leaveEvent(QEvent* event) {
  pointer_.reset();
  if (!cross_hair_shows_) emit Told(QString());
  Shape_Picture::leaveEvent(event);
}

void Map_Picture::mousePressEvent(QMouseEvent* event) {
  Catch_Up();
  if (event->button() != Qt::LeftButton || !Feet_At(event->position(), false)) {
    return Shape_Picture::mousePressEvent(event);
  }
  Give_Up_Line();
  pressed_ = event->position();
}

void Map_Picture::mouseMoveEvent(QMouseEvent* event) {
  Catch_Up();
  pointer_ = event->position();
  emit Told(Tip_At(*pointer_));
  if (pressed_ && (from_ || QLineF(*pressed_, event->position()).length() >=
                                QApplication::startDragDistance())) {
    from_ = Feet_At(*pressed_, true);
    to_ = Feet_At(event->position(), true);
    Redraw_Content();
  }
  Shape_Picture::mouseMoveEvent(event);
}

void Map_Picture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) {
    return Shape_Picture::mouseReleaseEvent(event);
  }
  const auto to = Feet_At(event->position(), true);
  if (from_ && to) return End_Line(*to);
  Give_Up_Line();
}

}  // namespace barvon

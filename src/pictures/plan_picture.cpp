#include "pictures/plan_picture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"

namespace barvon {
namespace {

constexpr double kSteps = 100;               // of a key over the area, about
constexpr double kLargeStep = 10;            // steps of a key with Shift
constexpr double kArm = 9, kReadingGap = 6;  // pixels of the cursor's cross
constexpr Colour kCursorInk{176, 0, 96};

constexpr char kHowToPick[] =
    "Arrow keys move a cursor, with Shift faster; Return picks its point.";
constexpr char kHowToDrag[] = "Space begins and ends an area, Escape gives it up.";

bool Is_Enter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

void Add_Reading(Shape_List& picture, const Place& at, const std::string& text,
                 const Canvas& canvas) {
  const double size = canvas.text_size, width = Text_Width(text, size);
  const bool right = at.x + kReadingGap + width <= canvas.width;
  const bool above = at.y - kReadingGap - size >= 0;
  const double left = right ? at.x + kReadingGap : at.x - kReadingGap - width;
  const double baseline = above ? at.y - kReadingGap : at.y + kReadingGap + size;
  picture.shapes.push_back(Polygon_Shape{
      Rectangle({left - 2, baseline - size}, {left + width + 2, baseline + 0.3 * size}),
      kWhite,
      {}});
  picture.shapes.push_back(Text_Shape{{left, baseline}, text, size, kCursorInk});
}

}  // namespace

Plan_Picture::Plan_Picture(const QString& name, const QString& file_name, QWidget* parent)
    : Shape_Picture(name, file_name, parent) {
  Data_Changed();
}

void Plan_Picture::Show(Plan plan) {
  plan_ = std::move(plan);
  Data_Changed();
}

void Plan_Picture::Set_Takes(Takes takes) {
  takes_ = takes;
  pressed_.reset();
  corner_.reset();
  other_.reset();
  cursor_shows_ = false;
  setCursor(takes == Takes::nothing ? Qt::ArrowCursor : Qt::CrossCursor);
  Data_Changed();
}

void Plan_Picture::Set_Key_Steps(const Feet_Point& steps) { key_steps_ = steps; }

void Plan_Picture::Set_Cursor(const Feet_Point& point) {
  cursor_ = point;
  Data_Changed();
}

QPointF Plan_Picture::Place_Of(const Feet_Point& point) {
  Catch_Up();
  return In_Widget(Frame().At(point));
}

QString Plan_Picture::Tip_At(const QPointF& place) {
  Catch_Up();
  const auto point = Frame().Feet_At(On_Canvas(place));
  return point ? QString::fromStdString(Words_Of(*point)) : QString();
}

Plan_Frame Plan_Picture::Frame() const { return Plan_Frame(plan_.area, Present_Canvas()); }

bool Plan_Picture::Takes_Points() {
  Catch_Up();
  return takes_ != Takes::nothing && !Frame().Is_Empty();
}

void Plan_Picture::Build() {
  // A smaller area takes the cursor along.
  const Plan_Frame frame = Frame();
  if (cursor_ && !frame.Is_Empty()) cursor_ = frame.Inside(*cursor_);
  Tell_All();
}

// The cursor's place is part of the words, for those who cannot see it.
void Plan_Picture::Tell_All() {
  std::string words = plan_.description;
  const auto add = [&](const std::string& more) { words += (words.empty() ? "" : " ") + more; };
  if (takes_ != Takes::nothing) add(kHowToPick);
  if (takes_ == Takes::points_and_areas) add(kHowToDrag);
  if (cursor_shows_ && cursor_) add("The cursor is at " + Words_Of(*cursor_) + ".");
  Tell(plan_.note, words);
}

Shape_List Plan_Picture::Shapes(const Canvas& canvas) const { return Plan_Shapes(plan_, canvas); }

Shape_List Plan_Picture::Above(const Canvas& canvas) const {
  Shape_List picture;
  const Plan_Frame frame(plan_.area, canvas);
  if (frame.Is_Empty()) return picture;
  const Stroke stroke{kCursorInk, 1};
  if (corner_ && other_) {
    const Place a = frame.At(*corner_), b = frame.At(*other_);
    picture.shapes.push_back(
        Polygon_Shape{Rectangle(a, b), {}, Stroke{kCursorInk, 1, Dash::dashed}});
    Add_Reading(picture, b,
                "X " + Short_Text(std::abs(other_->x - corner_->x)) + " ft by Z " +
                    Short_Text(std::abs(other_->z - corner_->z)) + " ft",
                canvas);
  }
  if (cursor_shows_ && cursor_) {
    const Place at = frame.At(*cursor_);
    picture.shapes.push_back(Line_Shape{{{at.x - kArm, at.y}, {at.x + kArm, at.y}}, stroke});
    picture.shapes.push_back(Line_Shape{{{at.x, at.y - kArm}, {at.x, at.y + kArm}}, stroke});
    if (!corner_) Add_Reading(picture, at, Words_Of(*cursor_), canvas);
  }
  return picture;
}

void Plan_Picture::focusInEvent(QFocusEvent* event) {
  const bool by_key = event->reason() == Qt::TabFocusReason ||
                      event->reason() == Qt::BacktabFocusReason ||
                      event->reason() == Qt::ShortcutFocusReason;
  if (by_key && Takes_Points()) Show_Cursor();
  Shape_Picture::focusInEvent(event);
}

void Plan_Picture::focusOutEvent(QFocusEvent* event) {
  cursor_shows_ = false;
  // A box that opens over a drag would leave the area without an end.
  Give_Up_Area();
  Tell_All();
  Redraw_Content();
  Shape_Picture::focusOutEvent(event);
}

void Plan_Picture::Show_Cursor() {
  if (!cursor_) {
    const Plan_Frame frame = Frame();
    const Feet_Area& area = plan_.area;
    cursor_ = frame.Nearest_Feet(frame.At(
        {area.top + (area.bottom - area.top) / 2, area.left + (area.right - area.left) / 2}));
  }
  cursor_shows_ = true;
  Tell_All();
  Redraw_Content();
}

void Plan_Picture::Move_Cursor(double down, double right) {
  Show_Cursor();
  const Feet_Area& area = plan_.area;
  const double round =
      Round_Value_Below(std::max(area.bottom - area.top, area.right - area.left) / kSteps);
  const double step_x = key_steps_.x > 0 ? key_steps_.x : round;
  const double step_z = key_steps_.z > 0 ? key_steps_.z : round;
  cursor_ = Frame().Inside({cursor_->x + down * step_x, cursor_->z + right * step_z});
  Tell_All();
  Redraw_Content();
  emit Point_Passed(*cursor_);
  if (corner_) Stretch_To(*cursor_);
}

void Plan_Picture::keyPressEvent(QKeyEvent* event) {
  if (!Takes_Points() || !Take_Key(*event)) Shape_Picture::keyPressEvent(event);
}

bool Plan_Picture::Take_Key(const QKeyEvent& event) {
  const double step = event.modifiers().testFlag(Qt::ShiftModifier) ? kLargeStep : 1;
  // With Alt and the like, an arrow is a command of somebody else.
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  if (event.key() == Qt::Key_Up) {
    Move_Cursor(-step, 0);
  } else if (event.key() == Qt::Key_Down) {
    Move_Cursor(step, 0);
  } else if (event.key() == Qt::Key_Left) {
    Move_Cursor(0, -step);
  } else if (event.key() == Qt::Key_Right) {
    Move_Cursor(0, step);
  } else if (event.key() == Qt::Key_Escape && corner_) {
    Give_Up_Area();
  } else if (event.key() == Qt::Key_Space && takes_ == Takes::points_and_areas) {
    if (corner_) {
      End_Area();
    } else {
      Show_Cursor();
      corner_ = cursor_;
      Stretch_To(*cursor_);
    }
  } else if (Is_Enter(event) && corner_) {
    End_Area();
  } else if (Is_Enter(event) && cursor_shows_) {
    emit Point_Chosen(*cursor_);
  } else {
    return false;
  }
  return true;
}

void Plan_Picture::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !Takes_Points() ||
      !Frame().Feet_At(On_Canvas(event->position()))) {
    return Shape_Picture::mousePressEvent(event);
  }
  Give_Up_Area();
  pressed_ = event->position();
}

void Plan_Picture::mouseMoveEvent(QMouseEvent* event) {
  if (Takes_Points()) {
    const Plan_Frame frame = Frame();
    if (const auto point = frame.Feet_At(On_Canvas(event->position()))) emit Point_Passed(*point);
    if (pressed_ && takes_ == Takes::points_and_areas &&
        (corner_ ||
         QLineF(*pressed_, event->position()).length() >= QApplication::startDragDistance())) {
      corner_ = frame.Nearest_Feet(On_Canvas(*pressed_));
      Stretch_To(frame.Nearest_Feet(On_Canvas(event->position())));
    }
  }
  Shape_Picture::mouseMoveEvent(event);
}

void Plan_Picture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) {
    return Shape_Picture::mouseReleaseEvent(event);
  }
  const QPointF pressed = *std::exchange(pressed_, std::nullopt);
  if (!Takes_Points()) return;
  if (corner_) return End_Area();
  // Who moves away before letting go means no point.
  if (QLineF(pressed, event->position()).length() >= QApplication::startDragDistance()) return;
  if (const auto point = Frame().Feet_At(On_Canvas(pressed))) {
    cursor_ = *point;
    Redraw_Content();
    emit Point_Chosen(*point);
  }
}

void Plan_Picture::Stretch_To(const Feet_Point& point) {
  other_ = point;
  Redraw_Content();
  emit Area_Changed(*corner_, *other_);
}

void Plan_Picture::End_Area() {
  const Feet_Point first = *corner_, second = *other_;
  corner_.reset();
  other_.reset();
  Redraw_Content();
  emit Area_Chosen(first, second);
}

void Plan_Picture::Give_Up_Area() {
  pressed_.reset();
  corner_.reset();
  other_.reset();
  Redraw_Content();
}

}  // namespace barvon

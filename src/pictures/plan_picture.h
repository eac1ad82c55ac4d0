#pragma once

#include <optional>

#include "pictures/shape_picture.h"
#include "pictures/shapes/plan.h"

namespace barvon {

/// A plan to scale that can hand points in feet to its screen.
///
/// While it takes points, the left button picks one, and drags out an area where that is asked for.
/// By keys: a cursor shows when Tab comes to the picture, or with the first arrow key. Arrow keys
/// move it (Shift: ten steps), Return picks its point. Space begins an area at the cursor and ends
/// it, Escape gives it up. Wheel, other buttons and other keys go to what is around it, and all of
/// them while it takes no points.
class Plan_Picture : public Shape_Picture {
  Q_OBJECT

 public:
  enum class Takes { nothing, points, points_and_areas };

  /// Names as `Picture` takes them.
  Plan_Picture(const QString& name, const QString& file_name, QWidget* parent = nullptr);

  void Show(Plan plan);
  void Set_Takes(Takes takes);
  /// How far an arrow key goes, in feet; 0 for a round hundredth or so of the area.
  void Set_Key_Steps(const Feet_Point& steps);
  /// Puts the cursor there; it shows while the picture has the keyboard.
  void Set_Cursor(const Feet_Point& point);

  /// The cursor's place, also while it does not show; nothing before it has one.
  std::optional<Feet_Point> Cursor() const { return cursor_; }
  /// Where a point lies in the widget.
  QPointF Place_Of(const Feet_Point& point);
  /// The numbers of the point below the pointer.
  QString Tip_At(const QPointF& place) override;

 signals:
  /// A click within the area, or Return at the cursor.
  void Point_Chosen(const Feet_Point& point);
  /// The pointer or the cursor has moved over this point.
  void Point_Passed(const Feet_Point& point);
  /// An area is being dragged out, or stretched by keys, and when that is done. The corners come
  /// as they were drawn: the second may be above or to the left of the first.
  void Area_Changed(const Feet_Point& first, const Feet_Point& second);
  void Area_Chosen(const Feet_Point& first, const Feet_Point& second);

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;
  Shape_List Above(const Canvas& canvas) const override;

  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  Plan_Frame Frame() const;
  bool Takes_Points();
  bool Take_Key(const QKeyEvent& event);
  void Show_Cursor();
  void Move_Cursor(double down, double right);
  void Stretch_To(const Feet_Point& point);
  void End_Area();
  void Give_Up_Area();
  void Tell_All();

  Plan plan_;
  Takes takes_ = Takes::nothing;
  Feet_Point key_steps_;
  std::optional<Feet_Point> cursor_;
  bool cursor_shows_ = false;
  std::optional<QPointF> pressed_;            // the left button went down here
  std::optional<Feet_Point> corner_, other_;  // of the area in the making
};

}  // namespace barvon

#pragma once

#include <optional>

#include "pictures/shape_picture.h"
#include "results/drawings/map_drawing.h"

namespace barvon {

/// A map that is read by the pointer and by keys, and over which a line is drawn for a section.
///
/// The left button draws a line. By keys, while the picture has the keyboard: arrow keys move a
/// cross-hair (Shift: ten steps), Return begins a line there and ends it, Escape gives up a line in
/// the making or removes the one that is there. Other keys go to what is around it.
class Map_Picture : public Shape_Picture {
  Q_OBJECT

 public:
  /// Names as `Picture` takes them.
  Map_Picture(const QString& name, const QString& file_name, QWidget* parent = nullptr);

  void Show(Map_Content content);

  /// What is drawn.
  const Map_Drawing& Drawn() const { return drawing_; }
  /// Where a place in feet lies in the widget; nothing where there is no map.
  std::optional<QPointF> Widget_Place(const Result_Point& place);
  std::optional<Result_Point> Cross_Hair() const { return cross_hair_; }
  QString Tip_At(const QPointF& place) override;
  QSize minimumSizeHint() const override;

 signals:
  /// What is under the pointer or the cross-hair; empty: nothing.
  void Told(const QString& words);
  void Section_Drawn(const Section_Line& line);
  void Section_Removed();
  /// By keys, to this place of the widget.
  void Cross_Hair_Moved(const QPointF& place);

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;
  Shape_List Above(const Canvas& canvas) const override;

  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool Has_Map() const { return drawing_.content.nothing.empty(); }
  std::optional<Result_Point> Feet_At(const QPointF& place, bool nearest) const;
  bool Take_Key(const QKeyEvent& event);
  void Move_Cross_Hair(double down, double right);
  void Begin_Or_End_Line();
  bool Give_Up_Line();
  void End_Line(const Result_Point& to);
  void Tell_All();
  void Tell_Reading();

  Map_Drawing drawing_;
  std::optional<Result_Point> cross_hair_;
  bool cross_hair_shows_ = false;
  std::optional<QPointF> pointer_;         // while it is over the picture
  std::optional<QPointF> pressed_;         // the left button went down here
  std::optional<Result_Point> from_, to_;  // of the line in the making
};

}  // namespace barvon

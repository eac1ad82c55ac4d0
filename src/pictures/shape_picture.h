#pragma once

#include "pictures/picture.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// A picture that is a list of shapes, made anew for each size. Its saved SVG is what `Svg_Text`
/// writes of the list, so that it looks as the same picture in a report does.
class Shape_Picture : public Picture {
  Q_OBJECT

 public:
  QByteArray As_Svg() override;
  /// The picture as it stands, with its title and with the lines below it: what a file shows.
  Shape_List As_Shapes();

 protected:
  Shape_Picture(const QString& name, const QString& file_name, QWidget* parent);

  /// The picture for a canvas, of the data as `Build` has taken them.
  virtual Shape_List Shapes(const Canvas& canvas) const = 0;
  /// What is seen above the shapes, but not saved: a cursor. Empty unless a picture has one.
  virtual Shape_List Above(const Canvas& canvas) const;

  /// The canvas that the picture has now, and a place of the widget on it.
  Canvas Present_Canvas() const;
  Place On_Canvas(const QPointF& place) const;
  QPointF In_Widget(const Place& place) const;

  void Draw_Content(QCPPainter& painter) override;
  void Dress_Content(const QFont& font) override;
  void Redraw_Content() override;
};

}  // namespace barvon

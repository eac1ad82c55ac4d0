#include "pictures/shape_picture.h"

#include <qcustomplot.h>

#include <QFontInfo>
#include <functional>

#include "pictures/shape_painter.h"
#include "pictures/shapes/lettering.h"
#include "pictures/shapes/svg_writer.h"

namespace barvon {
namespace {

/// Paints what it is told to.
class Painted_Content : public QWidget {
 public:
  std::function<void(QPainter&)> paint;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    paint(painter);
  }
};

}  // namespace

Shape_Picture::Shape_Picture(const QString& name, const QString& file_name, QWidget* parent)
    : Picture(name, file_name, new Painted_Content, parent) {
  static_cast<Painted_Content*>(content())->paint = [this](QPainter& painter) {
    const Canvas canvas = Present_Canvas();
    Paint_Shapes(painter, Shapes(canvas), content()->font());
    Paint_Shapes(painter, Above(canvas), content()->font());
  };
}

Shape_List Shape_Picture::Above(const Canvas&) const { return {}; }

Canvas Shape_Picture::Present_Canvas() const {
  return {static_cast<double>(content()->width()), static_cast<double>(content()->height()),
          static_cast<double>(QFontInfo(content()->font()).pixelSize())};
}

Place Shape_Picture::On_Canvas(const QPointF& place) const {
  const QPointF on = place - content()->pos();
  return {on.x(), on.y()};
}

QPointF Shape_Picture::In_Widget(const Place& place) const {
  return content()->pos() + QPointF(place.x, place.y);
}

void Shape_Picture::Draw_Content(QCPPainter& painter) {
  Paint_Shapes(painter, Shapes(Present_Canvas()), content()->font());
}

void Shape_Picture::Dress_Content(const QFont& font) { content()->setFont(font); }

void Shape_Picture::Redraw_Content() { content()->update(); }

QByteArray Shape_Picture::As_Svg() { return QByteArray::fromStdString(Svg_Text(As_Shapes())); }

Shape_List Shape_Picture::As_Shapes() {
  Catch_Up();
  const Canvas canvas = Present_Canvas();
  Shape_List picture = Shapes(canvas);
  picture.title = accessibleName().toStdString();
  Add_Note(picture, Caption().toStdString(), canvas.text_size);
  return picture;
}

}  // namespace barvon

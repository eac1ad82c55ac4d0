#include "pictures/picture_bench.h"

#include <QApplication>
#include <cstdlib>

namespace barvon::testing {

QImage Seen(Picture& picture, QSize size) {
  picture.resize(size);
  picture.show();
  QApplication::processEvents();
  return picture.grab().toImage();
}

int Difference(const QColor& a, const QColor& b) {
  return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
         std::abs(a.blue() - b.blue());
}

int Count_Pixels(const QImage& image, const QRect& area, const QColor& colour, int tolerance) {
  int count = 0;
  const QRect inside = area & image.rect();
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      if (Difference(image.pixelColor(x, y), colour) < tolerance) ++count;
    }
  }
  return count;
}

}  // namespace barvon::testing

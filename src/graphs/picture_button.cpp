#include "graphs/picture_button.h"

#include <QEvent>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>
#include <utility>

#include "pictures/shape_painter.h"

namespace barvon {
namespace {

constexpr int kMargin = 6;                 // pixels
constexpr int kLetters = 40, kLines = 10;  // of the program's text
constexpr double kSmaller = 1.6;           // the picture than on its own page

}  // namespace

Picture_Button::Picture_Button(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void Picture_Button::Show(std::function<Shape_List(const Canvas&)> shapes,
                          const std::string& description) {
  shapes_ = std::move(shapes);
  painted_ = {};
  setAccessibleDescription(QString::fromStdString(description));
  update();
}

QSize Picture_Button::sizeHint() const {
  const QFontMetrics letters = fontMetrics();
  return {kLetters * letters.averageCharWidth(), kLines * letters.height() + 3 * kMargin};
}

QSize Picture_Button::minimumSizeHint() const {
  const QFontMetrics letters = fontMetrics();
  return {std::max(sizeHint().width() * 2 / 3, letters.horizontalAdvance(text()) + 4 * kMargin),
          sizeHint().height() * 2 / 3};
}

QRect Picture_Button::Picture_Area() const {
  const int caption = fontMetrics().height() + kMargin;
  return rect().adjusted(kMargin, kMargin, -kMargin, -kMargin - caption);
}

void Picture_Button::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) {
    painted_ = {};
    updateGeometry();
  }
  QPushButton::changeEvent(event);
}

void Picture_Button::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  const QRect area = Picture_Area();
  const double ratio = devicePixelRatioF();
  if (shapes_ && !area.isEmpty()) {
    // A map may have thousands of shapes: they are painted once, not at each stroke of a key.
    if (painted_.deviceIndependentSize().toSize() != area.size() ||
        painted_.devicePixelRatio() != ratio) {
      painted_ = QPixmap(area.size() * ratio);
      painted_.setDevicePixelRatio(ratio);
      painted_.fill(Qt::white);
      QPainter picture(&painted_);
      picture.scale(1 / kSmaller, 1 / kSmaller);
      Paint_Shapes(picture,
                   shapes_({kSmaller * area.width(), kSmaller * area.height(),
                            static_cast<double>(QFontInfo(font()).pixelSize())}),
                   font());
    }
    painter.drawPixmap(area.topLeft(), painted_);
  }
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  painter.drawRect(area.adjusted(-1, -1, 0, 0));
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawText(
      QRect(rect().left(), area.bottom() + 1, width(), rect().bottom() - area.bottom()),
      Qt::AlignCenter, text());
}

}  // namespace barvon

#include "platform/qt/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace barvon {

Elided_Label::Elided_Label(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize Elided_Label::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("mmmm")), fontMetrics().height()};
}

bool Elided_Label::Is_Cut() const {
  return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool Elided_Label::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const QPoint place = static_cast<QHelpEvent*>(event)->globalPos();
    // Escaped, as a tool tip would take a path with tags in it for rich text.
    QToolTip::showText(place, Is_Cut() ? text().toHtmlEscaped() : QString(), this);
    return true;
  }
  return QLabel::event(event);
}

void Elided_Label::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  const auto across =
      QStyle::visualAlignment(layoutDirection(), alignment() & Qt::AlignHorizontal_Mask);
  style()->drawItemText(&painter, contentsRect(),
                        static_cast<int>(across) | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                        isEnabled(), line, foregroundRole());
}

}  // namespace barvon

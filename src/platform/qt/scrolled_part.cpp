#include "platform/qt/scrolled_part.h"

#include <QEvent>
#include <QScrollBar>

namespace barvon {
namespace {

constexpr QSize kLeast{320, 160};

}  // namespace

Scrolled_Part::Scrolled_Part(QWidget* contents, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(contents);
}

// The toolkit's own hint stops at a few dozen letters.
QSize Scrolled_Part::sizeHint() const { return widget()->sizeHint(); }

QSize Scrolled_Part::minimumSizeHint() const {
  const QSize bars(verticalScrollBar()->sizeHint().width(),
                   horizontalScrollBar()->sizeHint().height());
  return (widget()->minimumSizeHint() + bars).boundedTo(kLeast);
}

bool Scrolled_Part::eventFilter(QObject* watched, QEvent* event) {
  // The view between them keeps from the layout around that the contents ask for another size.
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace barvon

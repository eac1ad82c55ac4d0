#include "platform/qt/focus_entry.h"

#include <QApplication>
#include <QEvent>

namespace barvon {

Focus_Entry::Focus_Entry(QWidget* widget) : QObject(widget), widget_(widget) {
  widget->installEventFilter(this);
  // This comes after the widget's own focus event, which may ask what was before.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    // Another window that takes it gives it back.
    if (now == nullptr || now->window() != widget_->window()) return;
    inside_ = now == widget_ || widget_->isAncestorOf(now);
  });
}

bool Focus_Entry::eventFilter(QObject* object, QEvent* event) {
  const bool left = event->type() == QEvent::Hide ||
                    (event->type() == QEvent::EnabledChange && !widget_->isEnabled());
  if (object == widget_ && left) inside_ = false;
  return QObject::eventFilter(object, event);
}

}  // namespace barvon

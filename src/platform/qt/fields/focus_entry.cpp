#include "platform/qt/fields/focus_entry.h"

#include <QApplication>

namespace barvon {

Focus_Entry::Focus_Entry(QWidget* widget) : QObject(widget), widget_(widget) {
  // This comes after the widget's own focus event, which may ask what was before.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    // Another window that takes it gives it back.
    if (now == nullptr || now->window() != widget_->window()) return;
    inside_ = now == widget_ || widget_->isAncestorOf(now);
  });
}

}  // namespace barvon

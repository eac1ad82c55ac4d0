#include "platform/qt/fields/focus_entry.h"

#include <QApplication>
#include <QMetaObject>
#include <algorithm>
#include <utility>

namespace barvon {
namespace {

bool Is_Within(const QWidget* widget, const QWidget* outer) {
  return widget != nullptr && (widget == outer || outer->isAncestorOf(widget));
}

}  // namespace

Focus_Entry::Focus_Entry(QWidget* widget) : QObject(widget), widget_(widget) {
  // This comes after the widget's own focus event, which may ask what was before.
  connect(qApp, &QApplication::focusChanged, this, &Focus_Entry::Follow);
}

void Focus_Entry::Follow(QWidget* former, QWidget* now) {
  // Another window that takes it gives it back.
  if (now == nullptr || now->window() != widget_->window()) return;
  const bool was_inside = std::exchange(inside_, Is_Within(now, widget_));
  if (inside_ && !was_inside) emit Entered();
  // A window that opens again has the focus from outside: nobody left the field for it.
  if (!inside_ && Is_Within(former, widget_)) emit Left(now);
}

void When_Focused(QWidget* field, std::function<void()> act) {
  QObject::connect(new Focus_Entry(field), &Focus_Entry::Entered, field, std::move(act));
}

void When_Left(QWidget* field, const std::vector<QWidget*>& except, std::function<void()> act) {
  const auto settled = [field, act = std::move(act)] {
    if (field->window()->isVisible() && !Is_Within(QApplication::focusWidget(), field)) act();
  };
  QObject::connect(new Focus_Entry(field), &Focus_Entry::Left, field,
                   [field, except, settled](const QWidget* to) {
                     if (std::find(except.begin(), except.end(), to) != except.end()) return;
                     QMetaObject::invokeMethod(field, settled, Qt::QueuedConnection);
                   });
}

}  // namespace barvon

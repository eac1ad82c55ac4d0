#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace barvon::bench {

/// Notes which widgets are painted.
class Painted : public QObject {
 public:
  Painted() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == wanted_ && event->type() == QEvent::Paint) seen_ = true;
    return false;
  }
  /// Lets everything happen that is due, up to the widget's next painting and what comes with it.
  void Wait_For(const QWidget* widget) {
    wanted_ = widget;
    seen_ = false;
    while (!seen_) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
    wanted_ = nullptr;
  }

 private:
  const QObject* wanted_ = nullptr;
  bool seen_ = false;
};

}  // namespace barvon::bench

#include "platform/qt/ask/window_in_front.h"

#include <QApplication>
#include <QPointer>
#include <algorithm>
#include <vector>

namespace barvon {
namespace {

/// The latest is the first one.
std::vector<QPointer<QWidget>>& Former_Ones() {
  static std::vector<QPointer<QWidget>> windows;
  return windows;
}

void Note(QWidget* window) {
  auto& windows = Former_Ones();
  std::erase_if(windows, [&](const QPointer<QWidget>& each) { return !each || each == window; });
  windows.insert(windows.begin(), window);
}

}  // namespace

void Follow_Windows_In_Front() {
  static bool follows = false;
  if (follows) return;
  follows = true;
  QObject::connect(qApp, &QApplication::focusChanged, qApp, [](QWidget*, QWidget* now) {
    if (now != nullptr) Note(now->window());
  });
}

QWidget* Window_In_Front() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (const QPointer<QWidget>& window : Former_Ones()) {
    if (window && window->isVisible()) return window;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

}  // namespace barvon

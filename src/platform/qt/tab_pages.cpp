#include "platform/qt/tab_pages.h"

#include <utility>

namespace barvon {

Tab_Pages::Tab_Pages(QWidget* parent) : QTabWidget(parent) {
  connect(this, &QTabWidget::currentChanged, this, [this](int page) {
    const int left = std::exchange(front_, page);
    if (left >= 0 && left != page) emit Left(left);
  });
}

void Tab_Pages::Start_At(int page) {
  front_ = page;
  setCurrentIndex(page);
  front_ = currentIndex();
}

}  // namespace barvon

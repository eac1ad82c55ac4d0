#include "graphs/view_tabs.h"

#include <QTabBar>
#include <algorithm>

namespace barvon {
namespace {

class Lined_Tab_Bar : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  QSize tabSizeHint(int index) const override {
    qsizetype breaks = 0;
    for (int tab = 0; tab < count(); ++tab) {
      breaks = std::max(breaks, tabText(tab).count(QLatin1Char('\n')));
    }
    QSize size = QTabBar::tabSizeHint(index);
    size.rheight() += static_cast<int>(breaks) * fontMetrics().lineSpacing();
    return size;
  }
};

}  // namespace

View_Tabs::View_Tabs(QWidget* parent) : QTabWidget(parent) { setTabBar(new Lined_Tab_Bar(this)); }

}  // namespace barvon

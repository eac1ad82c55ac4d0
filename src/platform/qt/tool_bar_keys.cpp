#include "platform/qt/tool_bar_keys.h"

#include <QToolButton>

namespace barvon {

std::vector<QWidget*> Let_Tab_Reach(const QToolBar& bar) {
  std::vector<QWidget*> buttons;
  for (QAction* action : bar.actions()) {
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    if (button == nullptr) continue;
    button->setFocusPolicy(Qt::TabFocus);
    buttons.push_back(button);
  }
  return buttons;
}

}  // namespace barvon

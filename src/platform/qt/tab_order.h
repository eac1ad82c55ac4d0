#pragma once

#include <QWidget>
#include <vector>

namespace barvon {

/// Tab goes through the controls in this order.
inline void Set_Tab_Order(const std::vector<QWidget*>& order) {
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace barvon

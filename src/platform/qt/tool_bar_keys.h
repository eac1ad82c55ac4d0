#pragma once

#include <QToolBar>
#include <QWidget>
#include <vector>

namespace barvon {

/// Lets Tab reach the bar's buttons, which by themselves take no focus. A click leaves the focus
/// where it is. Returns them from left to right.
std::vector<QWidget*> Let_Tab_Reach(const QToolBar& bar);

}  // namespace barvon

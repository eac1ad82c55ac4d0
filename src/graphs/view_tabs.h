#pragma once

#include <QTabWidget>

namespace barvon {

/// Tabs whose names may have line breaks: all are as high as the one with the most lines. The
/// toolkit's own have the height of one line.
class View_Tabs : public QTabWidget {
 public:
  explicit View_Tabs(QWidget* parent = nullptr);
};

}  // namespace barvon

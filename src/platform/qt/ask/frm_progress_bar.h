#pragma once

#include <QProgressBar>
#include <QWidget>
#include <string>

#include "platform/qt/elided_label.h"

namespace barvon {

/// The progress display of a load or a save. While it is in view the interface is repainted, but
/// takes no key and no click: nobody starts a second command in the middle of a file.
class frmProgress_Bar : public QWidget {
 public:
  explicit frmProgress_Bar(QWidget* parent = nullptr);
  void Open(const std::string& caption);
  /// Shows the share that is done, 0 to 1, and repaints at once.
  void Move(double share);

 private:
  void Repaint();

  Elided_Label* Label1_;
  QProgressBar* ProgressBar1_;
};

}  // namespace barvon

#pragma once

#include <QPushButton>
#include <QStatusBar>
#include <string>

#include "core/desk/workspace_port.h"
#include "platform/qt/elided_label.h"

namespace barvon {

/// The line at the window's bottom: the last remark with a way to its details, and while a
/// program runs its name with a Stop button beside it.
class Status_Area : public QStatusBar {
 public:
  explicit Status_Area(QWidget* parent);

  void Show_Note(const Status_Note& note);
  /// Clears the line while it is this one.
  void Take_Back_Note(const std::string& text);
  /// A program has been started, or has ended.
  void Show_Run(bool running, const std::string& program);

 private:
  void Show_Details();

  Elided_Label* Note_;
  QPushButton* Details_;
  QLabel* Program_;
  QPushButton* StopRun_;
  QString details_;
};

}  // namespace barvon

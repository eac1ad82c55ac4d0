#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "platform/qt/input_screen.h"
#include "workspace/tips_file.h"

namespace barvon {

/// "Tip of the Day": a tip of TIPOFDAY.TXT by chance, and the box that brings the tips at the
/// start.
class frmTip : public Input_Screen {
 public:
  explicit frmTip(QWidget* workspace);

 protected:
  void Opening() override;
  void Command1_Click(int index) override;

 private:
  enum Command { kClose, kNextTip };

  void Build();
  void DisplayCurrentTip();

  Tip_Collection tips_;
  QLabel* lblTipText;
  QCheckBox* chkLoadTipsAtStartup;
  QPushButton* cmdNextTip;
  QPushButton* cmdOK;
};

}  // namespace barvon

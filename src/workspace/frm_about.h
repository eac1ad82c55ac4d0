#pragma once

#include <QLabel>
#include <QPushButton>

#include "platform/qt/input_screen.h"

namespace barvon {

/// "About BARVON": what the program is, and what its results are not.
class frmAbout : public Input_Screen {
 public:
  explicit frmAbout(QWidget* workspace);

 protected:
  void Command1_Click(int index) override;

 private:
  enum Command { kClose, kSystemInfo, kMore };

  void Build();
  /// There is no registry here that leads to a tool, so it says so.
  void StartSysInfo();

  QLabel* lblTitle;
  QLabel* lblVersion1;
  QLabel* lblDescription;
  QLabel* lblDisclaimer;
  QPushButton* cmdOK;
  QPushButton* cmdSysInfo;
  QPushButton* Cmd_LoadMore;
};

/// What is computed here and what is not, the references, and the libraries in use.
class frmAboutMore : public Input_Screen {
 public:
  explicit frmAboutMore(QWidget* workspace);

 protected:
  void Command1_Click(int index) override;
};

}  // namespace barvon

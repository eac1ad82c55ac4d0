#pragma once

#include <QDialog>
#include <QListWidget>
#include <QPushButton>

#include "platform/qt/fields/control_array.h"

namespace barvon {

/// The findings of the last check, each leading to the screen and the control that can mend it.
class frmErrorList : public QDialog {
 public:
  explicit frmErrorList(QWidget* workspace);
  ~frmErrorList() override;

  /// Shows the findings as they stand, centred on the workspace. A check that runs while it is
  /// open fills it anew.
  void Open(bool blocking);

 private:
  void Fill();
  int Selected() const;
  void List1_DblClick(int index);
  void SSCommand1_Click(int index);

  QListWidget* List1;
  QListWidget* List2;  // the references, one beside each message; never shown
  ControlArray<QPushButton> SSCommand1;
};

/// Makes the screen known under its name; it opens over `workspace`.
void Register_frmErrorList(QWidget* workspace);

}  // namespace barvon

#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "platform/qt/fields/control_array.h"
#include "platform/qt/page_stack.h"

namespace barvon {

/// The start dialog: three pages that ask how to begin. What comes of them is the Open command or,
/// with WizardAtStart set, the Data Wizard once the last page is left.
class frmOpen : public QDialog {
 public:
  explicit frmOpen(QWidget* workspace);

  /// Starts anew at the first page, in the middle of the display. One that is open already comes
  /// to the front as it stands.
  void Open(bool blocking);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build();
  void Next();

  Page_Stack* pages_;
  ControlArray<QGroupBox> Frame2;
  ControlArray<QRadioButton> Option1;
  ControlArray<QPushButton> Command1;
};

/// Makes the dialog known under its name; it belongs to `workspace` once it is made.
void Register_frmOpen(QWidget* workspace);

}  // namespace barvon

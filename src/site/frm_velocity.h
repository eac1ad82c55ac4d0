#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <vector>

#include "core/project_record.h"
#include "platform/fields/cancel_copy.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/scrolled_part.h"
#include "site/velocity_data.h"
#include "site/velocity_panel.h"

namespace barvon {

/// "Velocity Profile Data": the current at the site in one of four forms.
class frmVelocity : public Input_Screen {
 public:
  explicit frmVelocity(QWidget* workspace);

  /// 3 has no button and is OK; 4 has none either and goes on to the depth grid without saving.
  void Command1_Click(int index) override;

 protected:
  void Opening() override;
  void Activated() override;
  void Discarding() override { copy_.Go_Back_To_Opening(); }

 private:
  QWidget* Choice_Part();
  QLayout* Note_Row();
  void Order_Controls();

  void Option3D1_Click(int form);
  void Choose(Velocity_Form form);
  void Show_Form();
  void Save();

  /// The form of the record's type; nullptr for none.
  Velocity_Panel* Panel() const;

  ProjectRecord& record_;
  Cancel_Copy<Velocity_Copy> copy_;
  std::vector<Velocity_Panel*> panels_;  // by Velocity_Form

  ControlArray<QRadioButton> Option3D1{this, "Option3D1", kVelocityForms};
  ControlArray<QLabel> Picture1{this, "Picture1", kVelocityForms};
  QLabel* Label5;
  QPlainTextEdit* Text4_0;
};

}  // namespace barvon

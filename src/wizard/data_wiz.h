#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <array>
#include <optional>

#include "core/desk/help_topics.h"
#include "core/project_record.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/page_stack.h"
#include "wizard/choice_frame.h"
#include "wizard/wizard_steps.h"

namespace barvon {

/// "BARVON Data Wizard": eight pages that lead a new user through a project. It gathers the main
/// choices itself and opens the input screens in turn.
class Data_Wiz : public Input_Screen {
 public:
  explicit Data_Wiz(QWidget* workspace);
  ~Data_Wiz() override;

 protected:
  void Opening() override;
  void Command1_Click(int index) override;
  void showEvent(QShowEvent* event) override;

 private:
  static constexpr int kVelocityOptions = 4;

  void Make_Pages();
  QWidget* Analysis_Part();
  QWidget* Options_Part();
  QWidget* Grid_Part();
  QWidget* Typical_Data_Part();
  QWidget* Velocity_Part();
  QWidget* Velocity_Box(int option);
  QWidget* Last_Part();
  void Order_Controls();
  void Show_Illustrations(int analysis, bool complete);
  void Connect();

  void Analysis_Chosen();
  void Simulation_Chosen();
  void Velocity_Chosen();
  void Check2_Click(bool disabled);
  void Show_Choices(const Wizard_Entry& entry);
  void Put_Default_Duration(int analysis);

  void ShowStep();
  void Back();
  void Next();
  void Finish();
  void Cancel();
  void Show_Step_Help();
  void Fill_Page();
  void Follow_Accepted_Velocity();
  void Show_Commands();
  void Closed();

  Wizard_Entry Entry() const;

  ProjectRecord& record_;
  std::optional<Wizard_Walk> walk_;  // once it is open

  QLineEdit* Text1;
  ControlArray<QLineEdit> Text7{this, "Text7", kTypicalFields};
  ControlArray<QRadioButton> SSOption1{this, "SSOption1", 3};  // evaluation
  ControlArray<QRadioButton> SSOption2{this, "SSOption2", 3};  // analysis
  ControlArray<QRadioButton> SSOption3{this, "SSOption3", 2};  // method
  ControlArray<QRadioButton> SSOption4{this, "SSOption4", 2};  // simulation
  ControlArray<QRadioButton> SSOption5{this, "SSOption5", kVelocityOptions};
  QCheckBox* Check2;
  QGroupBox* Frame6;
  std::array<QPlainTextEdit*, 8> Text4;  // what the pages say, by Wizard_Page
  QPushButton* draw_grid_;
  ControlArray<Choice_Frame> Frame11{this, "Frame11", kVelocityOptions};
  ControlArray<QLabel> Picture2{this, "Picture2", kVelocityOptions};
  ControlArray<QLabel> Picture3{this, "Picture3", 7};  // (3) is no page's
  ControlArray<QGroupBox> Frame1{this, "Frame1", kWizardPages};
  Page_Stack* pages_;
  Table_Fields fields_;
};

/// Makes the wizard known. It opens once the input screens that stand open are closed; a user who
/// does not want what was typed in them discarded keeps them, and the wizard stays away.
void Register_Data_Wiz(QWidget* main);

}  // namespace barvon

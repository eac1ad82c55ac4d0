#include "workspace/option_events.h"

#include "core/desk/screen_register.h"
#include "core/desk/show_screen.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "platform/ask/message_box.h"
#include "platform/qt/fields/option_paint.h"
#include "workspace/display_data.h"
#include "workspace/edit_menu.h"
#include "workspace/main_menus.h"
#include "workspace/option_groups.h"
#include "workspace/option_logic.h"
#include "workspace/summary_lines.h"

namespace barvon {

bool Type_Is_Held(const Main_Controls& /*controls*/, const ProjectRecord& record) {
  return record.FileKind != kDilutionKind;
}

bool Evaluation_Is_Held(const Main_Controls& controls, const ProjectRecord& record) {
  return KEY3_Value(Chosen_Option(controls.SSOption3), Chosen_Option(controls.SSOption4),
                    record.AnalysisType) == record.KEY3;
}

void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  // A closed project shows no method, but its record has one.
  const int method = Method_Option(record.DisposalMethod);
  Show_Method(controls, method);
  Choose_Analysis_Type(index, method, record);
  Show_Type(controls, index);
  controls.key3.Choice_Made();
}

void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Method(controls, index);
  Choose_Disposal_Method(Chosen_Option(controls.SSOption1), index, record);
}

void SSOption3_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Simulation(controls, index);
  Choose_Simulation_Type(index, record);
  // While there was no diffusion KEY3 may have become 0, which in the tiers is no evaluation.
  if (index == kWithDiffusion) controls.key3.Choice_Made();
  Assign_Labels(controls, record.AnalysisType);
}

void SSOption4_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Evaluation(controls, index, record.AnalysisType);
  Follow_KEY3(Chosen_Option(controls.SSOption3), Chosen_Option(controls.SSOption4), record);
}

void Option3D1_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Option(controls.Option3D1, index);
  Choose_Velocity(index, controls.Check3D1->isChecked(), record);
  if (index == kTwoPointForm && record.ConstantDepthFlag == 0 && Ask_To_Disable_Variable_Depth()) {
    Show_Screen(Row_Of_Screen("frmDescription"), record);
    return;
  }
  controls.Check3D1->setEnabled(index == kSingleForm);
}

void Check3D1_Click(Main_Controls& controls, ProjectRecord& record, bool set) {
  Show_Box(controls.Check3D1, set);
  Choose_Logarithmic(set, record);
}

void SSCheck4_Click(Main_Controls& controls, ProjectRecord& record, bool set) {
  record.JBFCFlag = set ? 1 : 0;
  Show_JBFC(controls, set);
  if (set && record.LAYERS == 1) {
    controls.Matlabel(5)->setText(QString::fromStdString(Moisture_Line(record)));
  }
}

void SSPanel5_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Follow_KEY3(Chosen_Option(controls.SSOption3), Chosen_Option(controls.SSOption4), record);
  auto entry = Evaluation_Entry::Open;
  if (index == kEnterEvaluation) {
    entry = Enter_Evaluation(Chosen_Option(controls.SSOption4), record);
    if (entry == Evaluation_Entry::No_Evaluation) return;
  }
  if (entry == Evaluation_Entry::Open) Show_Screen(*kOptionScreens[index], record);
  Display_Data(controls, record);
}

void mnuEditItem_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Open_Edit_Screen(index, record);
  Display_Data(controls, record);
}

void SSRibbon1_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  if (const auto entry = kRibbonScreens[index]->edit_entry) {
    mnuEditItem_Click(controls, record, *entry);
  } else {
    Show_Warning("This Feature is Unavailable at This Time.");
  }
}

void SSRibbon2_Click(Main_Controls& controls, ProjectRecord& record) {
  record.FileKind = kDilutionKind;
  record.KEY4 = kDilutionStudy;
  SetMenuAvailability(controls, Menu_Mode::Dilution);
  Open_Screen_Or_Tell(Row_Of_Screen("frmDilute2"), true);
}

}  // namespace barvon

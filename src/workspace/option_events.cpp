#include "workspace/option_events.h"

#include <QSignalBlocker>

#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"
#include "platform/qt/fields/option_paint.h"
#include "workspace/edit_menu.h"
#include "workspace/main_menus.h"
#include "workspace/option_logic.h"
#include "workspace/summary_lines.h"

namespace barvon {
namespace {

constexpr double kDilutionFileKind = 1;
constexpr std::int16_t kDilutionKEY4 = 7;
constexpr int kTwoPointProfile = 1;

/// Sets a box without its click action.
void Show_Box(QCheckBox* box, bool set) {
  const QSignalBlocker quiet(box);
  box->setChecked(set);
}

void Enable(const ControlArray<QRadioButton>& options, bool enabled) {
  for (QRadioButton* option : options) option->setEnabled(enabled);
}

}  // namespace

void Show_Type(Main_Controls& controls, int type) {
  Show_Option(controls.SSOption1, type);
  if (type < 0) return;
  controls.MethodFrame->setEnabled(true);
  Enable(controls.SSOption2, true);
  controls.Frame3D1->setEnabled(true);
  SetMenuAvailability(controls, Menu_Mode::Project);
}

void Show_Method(Main_Controls& controls, int method) { Show_Option(controls.SSOption2, method); }

void Show_Simulation(Main_Controls& controls, int simulation) {
  Show_Option(controls.SSOption3, simulation);
  Enable(controls.SSOption4, simulation == 1);
}

void Show_Evaluation(Main_Controls& controls, int evaluation, std::int16_t analysis_type) {
  Show_Option(controls.SSOption4, evaluation);
  controls.Label4(1)->setText(QLatin1String(Evaluation_Hint(evaluation, analysis_type)));
}

void Show_Velocity(Main_Controls& controls, int option, bool logarithmic) {
  Show_Option(controls.Option3D1, option);
  Show_Box(controls.Check3D1, logarithmic);
  controls.Check3D1->setEnabled(option == 0);
}

void Show_JBFC(Main_Controls& controls, bool used) {
  Show_Box(controls.SSCheck4, used);
  controls.Matlabel(5)->setVisible(used);
}

void Assign_Labels(Main_Controls& controls, std::int16_t analysis_type) {
  const Evaluation_Captions& captions = Evaluation_Captions_Of(analysis_type);
  for (int i = 0; i < 3; ++i) {
    if (captions[i] != nullptr) controls.SSOption4(i)->setText(QLatin1String(captions[i]));
    controls.SSOption4(i)->setVisible(captions[i] != nullptr);
  }
}

void KEY3_Value(const Main_Controls& controls, ProjectRecord& record) {
  const auto key3 = KEY3_Value(Chosen_Option(controls.SSOption3), Chosen_Option(controls.SSOption4),
                               record.AnalysisType);
  if (key3) record.KEY3 = *key3;
}

void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Choose_Analysis_Type(index, Chosen_Option(controls.SSOption2), record);
  Show_Type(controls, index);
  controls.key3_to_follow = true;
}

void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Method(controls, index);
  Choose_Disposal_Method(Chosen_Option(controls.SSOption1), index, record);
}

void SSOption3_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Simulation(controls, index);
  Choose_Simulation_Type(index, record);
  // While there was no diffusion KEY3 may have become 0, which in the tiers is no evaluation.
  if (index == 1) controls.key3_to_follow = true;
  Assign_Labels(controls, record.AnalysisType);
}

void SSOption4_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Evaluation(controls, index, record.AnalysisType);
  KEY3_Value(controls, record);
}

void Option3D1_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Show_Option(controls.Option3D1, index);
  Choose_Velocity(index, controls.Check3D1->isChecked(), record);
  if (index == kTwoPointProfile && record.ConstantDepthFlag == 0 &&
      Ask_To_Disable_Variable_Depth()) {
    Show_Screen("frmDescription", record);
    return;
  }
  controls.Check3D1->setEnabled(index == 0);
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
  KEY3_Value(controls, record);
  if (index == 0) Show_Screen("frmCoefficients", record);
  if (index == 1) {
    const auto entry = Enter_Evaluation(Chosen_Option(controls.SSOption4), record);
    if (entry == Evaluation_Entry::No_Evaluation) return;
    if (entry == Evaluation_Entry::Open) Show_Screen("frmMdlkyn", record);
  }
  if (index == 2) Show_Screen("frmSimulation", record);
  Port().display_data();
}

void SSRibbon1_Click(ProjectRecord& record, int index) {
  constexpr int kEditItems[] = {1, 2, 4, 5, 0, 9};
  if (index == 4) {
    Show_Warning("This Feature is Unavailable at This Time.");
    return;
  }
  mnuEditItem_Click(kEditItems[index], record);
}

void SSRibbon2_Click(Main_Controls& controls, ProjectRecord& record) {
  record.FileKind = kDilutionFileKind;
  record.KEY4 = kDilutionKEY4;
  SetMenuAvailability(controls, Menu_Mode::Dilution);
  Show_Blocking_Screen("frmDilute2");
}

}  // namespace barvon

#include "workspace/option_groups.h"

#include <QSignalBlocker>

#include "platform/qt/fields/option_paint.h"
#include "workspace/main_menus.h"
#include "workspace/option_logic.h"

namespace barvon {
namespace {

void Enable(const ControlArray<QRadioButton>& options, bool enabled) {
  for (QRadioButton* option : options) option->setEnabled(enabled);
}

}  // namespace

void Show_Box(QCheckBox* box, bool set) {
  const QSignalBlocker quiet(box);
  box->setChecked(set);
}

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

}  // namespace barvon

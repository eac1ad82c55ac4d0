#include "workspace/display_data.h"

#include <QSignalBlocker>

#include "core/desk/analysis_keys.h"
#include "core/desk/coefficient_words.h"
#include "core/keys.h"
#include "platform/qt/fields/option_paint.h"
#include "workspace/option_groups.h"
#include "workspace/option_logic.h"
#include "workspace/summary_lines.h"

namespace barvon {
namespace {

void Show_Line(QLabel* label, const std::string& text) {
  label->setText(QString::fromStdString(text));
}

void Show_Line(QLabel* label, const std::optional<std::string>& text) {
  if (text) Show_Line(label, *text);
}

/// Showing it is no change: a title longer than the box stays what it is, and data stay saved.
void Show_Title(Main_Controls& controls, const ProjectRecord& record) {
  const QSignalBlocker quiet(controls.Title_Box);
  controls.Title_Box->setText(QString::fromStdString(record.ProjectTitle));
  controls.Title_Box->setCursorPosition(0);
}

void Show_Program_Options(Main_Controls& controls, const ProjectRecord& record) {
  if (const auto hint = Simulation_Hint(record.AnalysisType)) {
    controls.Label4(0)->setText(QLatin1String(*hint));
  }
  controls.Label4(0)->show();
  Assign_Labels(controls, record.AnalysisType);
  const int simulation = Simulation_Option(record.KEY2);
  Show_Simulation(controls, simulation);
  if (simulation == kWithDiffusion) {
    Show_Evaluation(controls, Evaluation_Option(record.KEY3), record.AnalysisType);
    return;
  }
  // KEY3 0 says nothing of the evaluation while there is no diffusion: the choice then stays for
  // the day on which diffusion is chosen again.
  if (record.KEY3 != kNoTracer) Show_Option(controls.SSOption4, Evaluation_Option(record.KEY3));
  controls.Label4(1)->clear();
}

}  // namespace

void Display_Data(Main_Controls& controls, ProjectRecord& record) {
  Refresh_Record(record);
  Show_Title(controls, record);
  // In the dilution mode the choice of the project stands, for the day on which it is taken up.
  if (record.FileKind != kDilutionKind) Show_Type(controls, Type_Option(record.KEY4));
  Show_Method(controls, Method_Option(record.DisposalMethod));
  Set_Data_Items(controls, record);
}

void Set_Data_Items(Main_Controls& controls, ProjectRecord& record) {
  Refresh_KEY2(record);
  controls.key3.Follow(record);
  const Summary_Lines lines = Compose_Summary(record);
  for (int i = 0; i < 7; ++i) Show_Line(controls.SiteLabel(i), lines.SiteLabel[i]);
  const Velocity_Choice velocity = Velocity_Choice_Of(record.VelocityProfileType);
  Show_Velocity(controls, velocity.option, velocity.logarithmic);
  Show_Program_Options(controls, record);
  for (int i = 0; i < 2; ++i) Show_Line(controls.Label5(i), lines.Label5[i]);
  for (int i = 0; i < 3; ++i) controls.SSCheck2(i)->setChecked(lines.SSCheck2[i]);
  Show_Line(controls.Matlabel(3), lines.Matlabel3);
  Show_Line(controls.Matlabel(4), lines.Matlabel4);
  Show_Line(controls.Matlabel(5), lines.Matlabel5);
  Show_Line(controls.Matlabel(6), lines.Matlabel6);
  Show_JBFC(controls, lines.shows_moisture);
  for (int i = 0; i < 3; ++i) Show_Line(controls.Label6(i), lines.Label6[i]);
  controls.SSCheck3->setChecked(lines.SSCheck3);
}

void Show_Database_Line(Main_Controls& controls, int index, const std::string& text) {
  if (index < controls.Label3.first() || index > controls.Label3.last()) return;
  Show_Line(controls.Label3(index), text);
}

void Show_No_Database(Main_Controls& controls) {
  static constexpr const char* kLines[] = {"Site: NONE", "Month: NONE", "Material Location: NONE",
                                           "Disposal Vessel: NONE"};
  controls.SSCheck1->setChecked(false);
  for (int i = 0; i < 4; ++i) Show_Database_Line(controls, i, kLines[i]);
}

void Forget_Choices(Main_Controls& controls) {
  Show_No_Database(controls);
  controls.key3.Forget();
  Show_Option(controls.SSOption4, -1);
}

void Show_New_Project(Main_Controls& controls, ProjectRecord& record) {
  Show_Title(controls, record);
  Forget_Choices(controls);
  Show_Type(controls, -1);
  Show_Method(controls, -1);
  controls.MethodFrame->setEnabled(false);
  for (int i = 0; i < 5; ++i) Show_Status_Line(controls, i, kDataNotEntered, Status_Colour::Black);
  Show_Status_Line(controls, 5, kDefaultCoefficientsUsed, Status_Colour::Black);
  Set_Data_Items(controls, record);
}

void Paint_Velocity_Option(Main_Controls& controls, int index, Status_Colour colour) {
  if (index < controls.Option3D1.first() || index > controls.Option3D1.last()) return;
  Paint_Text(controls.Option3D1(index), colour == Status_Colour::Blue ? kBlue : kBlack);
}

void Show_Status_Line(Main_Controls& controls, int index, const std::string& text,
                      Status_Colour colour) {
  if (index < controls.Text2.first() || index > controls.Text2.last()) return;
  QLabel* state = controls.Text2(index);
  Show_Line(state, text);
  state->setAccessibleName(controls.Label2(index)->text() + QStringLiteral(": ") + state->text());
  Paint_Text(state, colour == Status_Colour::Blue ? kBlue : kBlack);
}

}  // namespace barvon

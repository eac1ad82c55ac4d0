#include "workspace/display_data.h"

#include "core/analysis_keys.h"
#include "platform/qt/option_paint.h"
#include "workspace/main_menus.h"
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

}  // namespace

void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Paint_Options(controls.SSOption1);
  Choose_Analysis_Type(index, Chosen_Option(controls.SSOption2), record);
  controls.MethodFrame->setEnabled(true);
  for (QRadioButton* option : controls.SSOption2) option->setEnabled(true);
  controls.Frame3D1->setEnabled(true);
  SetMenuAvailability(controls, Menu_Mode::Project);
}

void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index) {
  Paint_Options(controls.SSOption2);
  Choose_Disposal_Method(Chosen_Option(controls.SSOption1), index, record);
}

void Display_Data(Main_Controls& controls, ProjectRecord& record) {
  Refresh_Record(record);
  const std::string title = record.ProjectTitle;
  const std::int16_t key4 = record.KEY4;
  const int type = Type_Option(record.KEY4);
  const int method = Method_Option(record.DisposalMethod);

  controls.Title_Box->setText(QString::fromStdString(title));
  controls.Title_Box->setCursorPosition(0);
  Show_Option(controls.SSOption1, type);
  Show_Option(controls.SSOption2, method);
  if (type >= 0) SSOption1_Click(controls, record, type);
  if (method >= 0) SSOption2_Click(controls, record, method);

  // A title longer than the box, or a KEY4 that does not go with the method, stays what it is.
  record.ProjectTitle = title;
  record.KEY4 = key4;
  Set_Data_Items(controls, record);
}

void Set_Data_Items(Main_Controls& controls, const ProjectRecord& record) {
  const Summary_Lines lines = Compose_Summary(record);
  for (int i = 0; i < 7; ++i) Show_Line(controls.SiteLabel(i), lines.SiteLabel[i]);
  for (int i = 0; i < 2; ++i) Show_Line(controls.Label5(i), lines.Label5[i]);
  for (int i = 0; i < 3; ++i) controls.SSCheck2(i)->setChecked(lines.SSCheck2[i]);
  Show_Line(controls.Matlabel(3), lines.Matlabel3);
  Show_Line(controls.Matlabel(4), lines.Matlabel4);
  Show_Line(controls.Matlabel(5), lines.Matlabel5);
  Show_Line(controls.Matlabel(6), lines.Matlabel6);
  controls.Matlabel(5)->setVisible(lines.shows_moisture);
  for (int i = 0; i < 3; ++i) Show_Line(controls.Label6(i), lines.Label6[i]);
  controls.SSCheck3->setChecked(lines.SSCheck3);
}

void Show_New_Project(Main_Controls& controls, ProjectRecord& record) {
  controls.Title_Box->setText(QString::fromStdString(record.ProjectTitle));
  Show_Option(controls.SSOption1, -1);
  Show_Option(controls.SSOption2, -1);
  controls.MethodFrame->setEnabled(false);
  for (int i = 0; i < 5; ++i) Show_Status_Line(controls, i, kDataNotEntered, Status_Colour::Black);
  Show_Status_Line(controls, 5, "Default Coefficients Used", Status_Colour::Black);
  Set_Data_Items(controls, record);
}

void Show_Status_Line(Main_Controls& controls, int index, const std::string& text,
                      Status_Colour colour) {
  if (index < controls.Text2.first() || index > controls.Text2.last()) return;
  Show_Line(controls.Text2(index), text);
  Paint_Text(controls.Text2(index), colour == Status_Colour::Blue ? kBlue : kBlack);
}

}  // namespace barvon

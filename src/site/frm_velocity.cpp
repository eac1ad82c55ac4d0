#include "site/frm_velocity.h"

#include <QHeaderView>
#include <QStyle>
#include <algorithm>
#include <utility>
#include <vector>

#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/format_pattern.h"
#include "core/number_text.h"
#include "platform/qt/fields/number_field.h"
#include "platform/qt/fields/option_paint.h"
#include "site/velocity_questions.h"
#include "site/velocity_tables.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmVelocity");
constexpr int kOkWithoutButton = 3, kGridWithoutButton = 4;

QString Text(const std::string& text) { return QString::fromStdString(text); }

/// As wide as all its columns: none is ever out of sight.
void Show_All_Columns(F1Book* table) {
  const QHeaderView& headings = *table->verticalHeader();
  const int scroll_bar = table->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  table->setMinimumWidth(std::max(headings.sizeHint().width(), headings.minimumWidth()) +
                         table->horizontalHeader()->length() + scroll_bar +
                         2 * table->frameWidth());
}

}  // namespace

void frmVelocity::Connect() {
  for (int form = 0; form < kVelocityForms; ++form) {
    connect(Option3D1(form), &QRadioButton::clicked, this, [this, form] { Option3D1_Click(form); });
  }
  connect(Check3D1, &QCheckBox::clicked, this, &frmVelocity::Check3D1_Click);
  connect(F1Book1, &F1Book::Edited, this, &frmVelocity::Draw_Points);
  for (int i = 0; i < kDirections; ++i) {
    connect(Check3D2(i), &QCheckBox::clicked, this, [this, i] { Check3D2_Click(i); });
    connect(Text2(i), &QLineEdit::textChanged, this, [this, i] { Text2_Change(i); });
    connect(F1Book2(i), &F1Book::Edited, this, &frmVelocity::Draw_Arrows);
  }
  connect(F1Book3, &F1Book::Edited, this, &frmVelocity::Draw_Tide);
  for (QLineEdit* field : Text3) {
    connect(field, &QLineEdit::textChanged, this, &frmVelocity::Text3_Change);
  }
}

void frmVelocity::Opening() {
  record_.VelocityProfileType = Type_From_Wizard(record_);
  // The option's click stands for type 1: the logarithmic profile is chosen behind it.
  const bool logarithmic = record_.VelocityProfileType == kLogarithmicVelocity;
  const Velocity_Form form = Form_Of_Type(record_.VelocityProfileType);
  if (form == kNoForm) {
    Show_Form();
  } else {
    Option3D1_Click(form);
  }
  if (logarithmic) {
    Check3D1->setChecked(true);
    Check3D1_Click();
  }
  if (record_.WizardActive != kFalse) Text3(kDuration)->setText(Text(Duration_From_Wizard()));
}

void frmVelocity::Activated() { saved_ = Copy_Velocity(record_); }

void frmVelocity::Command1_Click(int index) {
  switch (index) {
    case kOk:
    case kOkWithoutButton:
      Save();
      break;
    case kCancel:
      Reset_Vars(saved_, record_);
      Unload();
      break;
    case kGridWithoutButton:
      Unload();
      Open_Screen("frmGridDescrip", Opens_Blocking(record_));
      break;
    default:
      break;
  }
}

void frmVelocity::Option3D1_Click(int index) {
  const auto form = static_cast<Velocity_Form>(index);
  Show_Option(Option3D1, index);
  record_.VelocityProfileType = Type_Of_Form(form);
  Label5->setText(QLatin1String(Name_Of_Form(form)));
  for (int i = 0; i < kVelocityForms; ++i) {
    Picture1(i)->setVisible(i == index);
    Frame3D(i)->setVisible(i == index);
  }
  Text4(1)->setVisible(form == kUnsteadyForm);
  Show_Form();
}

void frmVelocity::Check3D1_Click() {
  record_.VelocityProfileType = Check3D1->isChecked() ? kLogarithmicVelocity : kSingleVelocity;
}

void frmVelocity::Check3D2_Click(int i) {
  const auto direction = static_cast<Velocity_Direction>(i);
  Enable_Constant(i, Check3D2(i)->isChecked());
  if (Check3D2(i)->isChecked()) {
    // A missing constant reads as 0 and does not hold the filling up.
    if (Text2(i)->text().isEmpty()) {
      Tell_Constant_Missing(direction);
      Text2(i)->setFocus();
    }
    Spreadsheet_Table& table = F1Book2(i)->table();
    if (!Any_Cell_Above_0(table) || Ask_To_Overwrite()) {
      Fill_Field_With(Lenient_Number(Text2(i)->text().toStdString()), table);
    }
  } else {
    Const_Velocity(record_, direction) = 0;
  }
  Draw_Arrows();
}

void frmVelocity::Enable_Constant(int i, bool enabled) {
  Text2(i)->setEnabled(enabled);
  // What is not read has nothing to be marked for.
  Make_Number_Field(
      Text2(i), enabled ? Note(filled2_[At(i)]) : [](const std::string&) { return std::string(); });
}

void frmVelocity::Text2_Change(int i) {
  if (FillingForm) return;
  Fill_Field_With(Lenient_Number(Text2(i)->text().toStdString()), F1Book2(i)->table());
  Draw_Arrows();
}

void frmVelocity::Text3_Change() {
  Text4(1)->setPlainText(Text(Interval_Note(Interval_Of(Entry()))));
  Draw_Tide();
}

void frmVelocity::Save() {
  const Velocity_Entry entry = Entry();
  if (!Check_Velocity(entry, record_.VelocityProfileType)) return;
  SaveVelocityData(entry, record_);
  if (record_.VelocityProfileType == kUnsteadyVelocity) Show_Averages();
  Unload();
  Accept_Screen(kScreen, isModal(), record_);
}

void frmVelocity::Show_Form() {
  const Velocity_Entry entry = ShowVelocityData(record_);
  const bool filled_before = std::exchange(FillingForm, true);
  Check3D1->setChecked(entry.Check3D1);
  Text4(0)->setPlainText(Text(Direction_Note(record_.VelocityProfileType)));
  switch (Form_Of_Type(record_.VelocityProfileType)) {
    case kNoForm:
      break;
    case kSingleForm: {
      const double values[] = {record_.AvgVelocityDepth, record_.AvgVelocityX,
                               record_.AvgVelocityZ};
      for (int i = 0; i <= Text1.last(); ++i) {
        Set_Field(Text1(i), filled1_[At(i)], entry.Text1[At(i)], values[i]);
      }
      break;
    }
    case kTwoPointForm:
      Fill_Point_Table(entry, F1Book1->table());
      Show_All_Columns(F1Book1);
      F1Book1->setFixedHeight(F1Book1->sizeHint().height());
      Draw_Points();
      break;
    case kFieldForm:
      Show_Fields(entry);
      break;
    case kUnsteadyForm:
      Show_Unsteady(entry);
      break;
  }
  // Forms differ much in size; what is hidden takes no room.
  Fit_To_Contents();
  if (record_.VelocityProfileType == kUnsteadyVelocity) Show_Averages_Of_Filling();
  FillingForm = filled_before;
}

void frmVelocity::Show_Fields(const Velocity_Entry& entry) {
  Tell_Grid_Beyond_Fields(record_);
  for (int i = 0; i < kDirections; ++i) {
    const Velocity_Entry::Field& field = entry.fields[At(i)];
    Enable_Constant(i, field.Check3D2);
    Check3D2(i)->setChecked(field.Check3D2);
    if (field.Check3D2) {
      Set_Field(Text2(i), filled2_[At(i)], field.Text2,
                Const_Velocity(record_, static_cast<Velocity_Direction>(i)));
    }
    Fill_Field_Table(field.F1Book2, entry.rows, entry.columns, F1Book2(i)->table());
  }
  Draw_Arrows();
}

void frmVelocity::Show_Unsteady(const Velocity_Entry& entry) {
  const double values[] = {Widen(record_.TidalStartTime), Widen(record_.TidalDepth),
                           Hours_Of_Simulation(record_)};
  for (int i = 0; i <= kDuration; ++i) {
    Set_Field(Text3(i), filled3_[At(i)], entry.Text3[At(i)], values[i]);
  }
  for (const int i : {kAverageX, kAverageZ}) Text3(i)->setText(Text(entry.Text3[At(i)]));
  Fill_Tidal_Table(entry, F1Book3->table());
  Show_All_Columns(F1Book3);
  Text3_Change();
}

void frmVelocity::Show_Averages_Of_Filling() {
  // Once for the whole filling, when everything stands that the averages are made from. While a
  // person types, the averages shown stay until OK.
  if (Interval_Of(Entry()).duration == 0) {
    Tell_Duration_Missing();
  } else {
    Show_Averages();
  }
}

void frmVelocity::Show_Averages() {
  const auto averages = Average_Velocities(Entry());
  Text3(kAverageX)->setText(Text(Format_Number(averages[kAlongX], "####.00")));
  Text3(kAverageZ)->setText(Text(Format_Number(averages[kAlongZ], "####.00")));
}

Number_Note frmVelocity::Note(const Filled_Text& filled) {
  return
      [&filled](const std::string& typed) { return Filled_Note(typed, filled.text, filled.value); };
}

void frmVelocity::Set_Field(QLineEdit* field, Filled_Text& filled, const std::string& text,
                            double value) {
  filled = {text, value};
  field->clear();  // its mark hears of the value also when the text is the same
  field->setText(Text(text));
}

Velocity_Entry frmVelocity::Entry() const {
  Velocity_Entry entry;
  for (int i = 0; i <= Text1.last(); ++i) entry.Text1[At(i)] = Text1(i)->text().toStdString();
  entry.Check3D1 = Check3D1->isChecked();
  for (int i = 0; i <= Text3.last(); ++i) entry.Text3[At(i)] = Text3(i)->text().toStdString();
  switch (Form_Of_Type(record_.VelocityProfileType)) {
    case kNoForm:
    case kSingleForm:
      break;
    case kTwoPointForm:
      Read_Point_Table(F1Book1->table(), entry);
      break;
    case kFieldForm:
      entry.rows = F1Book2(kAlongX)->table().MaxRow();
      entry.columns = F1Book2(kAlongX)->table().MaxCol();
      for (int i = 0; i < kDirections; ++i) {
        Velocity_Entry::Field& field = entry.fields[At(i)];
        field.Check3D2 = Check3D2(i)->isChecked();
        field.Text2 = Text2(i)->text().toStdString();
        field.F1Book2 = Read_Field_Table(F1Book2(i)->table());
      }
      break;
    case kUnsteadyForm:
      Read_Tidal_Table(F1Book3->table(), entry);
      break;
  }
  return entry;
}

}  // namespace barvon

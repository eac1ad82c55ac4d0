#include "params/frm_simulation.h"

#include <QGroupBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/book_numbers.h"
#include "core/desk/accepted_screen.h"
#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"
#include "platform/qt/fields/focus_entry.h"
#include "platform/qt/fields/wrapping_label.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmSimulation");

}  // namespace

frmSimulation::frmSimulation(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      Text2(Named(new QLineEdit(this), "Text2")),
      Label3(Named(Wrapping_Label({}, this), "Label3")),
      Frame3D1(Named(new QWidget(this), "Frame3D1")),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      time_line_(Named(new Time_Line(this), "TimeLine")),
      fields_(this, Faces_Of(Simulation_Fields(), record_)) {
  setWindowTitle(QStringLiteral("Time Step and Print Options"));
  auto* upper = new QHBoxLayout;
  upper->addWidget(Time_Steps(), 1);
  upper->addWidget(Printing_Options(), 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(upper, 1);
  column->addWidget(time_line_, 1);
  column->addLayout(Make_Command1());
  Tab_Through({Text1(kDuration), Text1(kTimeStep), SSCheck2(kPrintsDescent),
               SSCheck2(kPrintsCollapse), SSCheck2(kOwnPrintTimes), Text2, F1Book1, time_line_});
  Connect();
}

QWidget* frmSimulation::Time_Steps() {
  auto* frame = new QGroupBox(kTimeStepsFrame, this);
  auto* fields = new QWidget(frame);
  Field_Rows rows(fields);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  for (const int i : {kDuration, kTimeStep}) fields_.Add(rows, {"Text1", i});
  auto* column = new QVBoxLayout(frame);
  column->addWidget(fields);
  column->addWidget(Label3);
  column->addStretch();
  return frame;
}

QWidget* frmSimulation::Printing_Options() {
  for (int i = 0; i < kSimulationBoxes; ++i) {
    const char* caption = kSimulationBoxCaptions[static_cast<std::size_t>(i)];
    SSCheck2(i)->setText(QLatin1String(caption));
  }
  auto* frame = new QGroupBox(kPrintingFrame, this);
  auto* column = new QVBoxLayout(frame);
  for (QCheckBox* box : SSCheck2) column->addWidget(box);
  column->addWidget(new QLabel(QLatin1String(kPrintsQuarterly), frame));
  Field_Rows rows(Frame3D1);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  fields_.Add(rows, {"Text2"});
  auto* label = Wrapping_Label(QLatin1String(kPrintTimesCaption), Frame3D1);
  label->setBuddy(F1Book1);
  rows.Whole_Row(label);
  rows.Whole_Row(F1Book1);
  F1Book1->setAccessibleName(label->text());
  F1Book1->SetNumberNote(Real_Note);
  column->addWidget(Frame3D1, 1);
  column->addStretch();
  return frame;
}

void frmSimulation::Connect() {
  for (const int i : {kDuration, kTimeStep}) {
    When_Focused(Text1(i), [this, i] { Show_Hint(i); });
    connect(Text1(i), &QLineEdit::textChanged, this, [this] { Show_Times(); });
  }
  for (int i = 0; i < kSimulationBoxes; ++i) {
    connect(SSCheck2(i), &QCheckBox::clicked, this, [this, i] { SSCheck2_Click(i); });
  }
  connect(Text2, &QLineEdit::textChanged, this, [this] { Text2_Change(); });
  connect(F1Book1, &F1Book::Edited, this, [this] { Show_Times(); });
}

void frmSimulation::Opening() {
  Hold_Print_Count(record_);
  copy_ = {};
  Label3->clear();
  fields_.Show(Fill_Fields(Simulation_Fields(), record_));
  Show_Hint(kDuration);
  Fill_Print_Times(record_, F1Book1->table());
  Set_Check(kPrintsDescent, record_.PrintConvectiveDescent == 1);
  Set_Check(kPrintsCollapse, record_.PrintCollapse == 1);
  Set_Check(kOwnPrintTimes, record_.NumPrintTimes > 0);
}

// The velocity screen stores a duration too.
void frmSimulation::Activated() {
  const Control_Name duration{"Text1", kDuration};
  if (!fields_.Texts().Is_Untouched(duration)) return;
  const bool unsaved = Holds_Unsaved_Input();
  Field_Texts stored;
  stored.Set(duration, Field_Text(*Find_Row(Simulation_Fields(), duration, record_), record_));
  fields_.Show(stored);
  if (!unsaved) Controls_Are_Stored();
}

void frmSimulation::Command1_Click(int index) {
  if (index == kOk) {
    Save_Simulation(Entry(), F1Book1->table(), record_);
    Unload();
    Accept_Screen(kScreen, record_);
  } else if (index == kCancel) {
    Reset_Vars(copy_, record_);
    Unload();
  }
}

void frmSimulation::Show_Hint(int field) {
  const auto hint = Time_Hint(field, record_.AnalysisType);
  if (hint) Label3->setText(QString::fromStdString(*hint));
}

void frmSimulation::Set_Check(int index, bool checked) {
  SSCheck2(index)->setChecked(checked);
  SSCheck2_Click(index);
}

void frmSimulation::SSCheck2_Click(int index) {
  const bool checked = SSCheck2(index)->isChecked();
  if (index != kOwnPrintTimes) {
    // While it fills itself, the screen has nothing to tell the record.
    if (!FillingForm) Choose_Printing(Simulation_Box(index), checked, copy_, record_);
    return;
  }
  Frame3D1->setVisible(checked);
  if (checked || FillingForm) {
    const QSignalBlocker quiet(Text2);
    Text2->setText(QString::fromStdString(Print_Count_Text(record_)));
  } else {
    Print_Quarterly(copy_, record_);
  }
  Show_Times();
  if (isVisible()) Fit_To_Contents();
}

void frmSimulation::Text2_Change() {
  Take_Print_Count(Text2->text().toStdString(), copy_, F1Book1->table(), record_);
  Show_Times();
}

Simulation_Entry frmSimulation::Entry() const {
  Simulation_Entry entry;
  entry.texts = fields_.Texts();
  for (int i = 0; i < kSimulationBoxes; ++i) {
    entry.SSCheck2[static_cast<std::size_t>(i)] = SSCheck2(i)->isChecked();
  }
  return entry;
}

void frmSimulation::Show_Times() {
  time_line_->Show(Entered_Times(Entry(), F1Book1->table(), record_));
}

}  // namespace barvon

#include "material/water_panel.h"

#include "platform/qt/fields/field_rows.h"

namespace barvon {

Water_Panel::Water_Panel(const QString& question, bool held, ProjectRecord& record)
    : QGroupBox(kWaterFrame),
      record_(record),
      held_(held),
      SSCheck2(Named(new QCheckBox(question, this), "SSCheck2")),
      fields_(this, Faces_Of(Water_Fields(), record)),
      Command1_3(Named(new QPushButton("&Compute Density", this), "Command1(3)")) {
  Field_Rows rows(this);
  rows.Whole_Row(SSCheck2);
  for (int i = 0; i < kLoadWaterFields; ++i) fields_.Add(rows, {"Text3", i});
  rows.Whole_Row(Command1_3);
  rows.layout()->setAlignment(Command1_3, Qt::AlignRight);
  rows.layout()->setRowStretch(rows.layout()->rowCount(), 1);
  Command1_3->setAutoDefault(false);
  connect(SSCheck2, &QCheckBox::toggled, this, &Water_Panel::SSCheck2_Click);
  for (const int i : {kLoadSalinity, kLoadTemperature}) {
    connect(Text3(i), &QLineEdit::textChanged, this, &Water_Panel::Text3_Change);
  }
  connect(Command1_3, &QPushButton::clicked, this, &Water_Panel::Command1_3_Click);
}

void Water_Panel::Open(const Field_Texts& texts) {
  opening_ = true;
  fields_.Show(texts);
  SSCheck2->setChecked(false);
  SSCheck2_Click();
  opening_ = false;
  emit Boxes_Changed();
}

std::vector<QWidget*> Water_Panel::Order() const {
  return {SSCheck2, Text3(kLoadDensity), Text3(kLoadSalinity), Text3(kLoadTemperature), Command1_3};
}

void Water_Panel::SSCheck2_Click() {
  const bool computed = SSCheck2->isChecked();
  for (const int i : {kLoadSalinity, kLoadTemperature}) Text3(i)->setEnabled(computed);
  Command1_3->setEnabled(computed);
}

void Water_Panel::Text3_Change() {
  if (opening_) return;
  emit Boxes_Changed();
  if (Type_Water(Texts(), held_, record_)) fields_.Show(Computed_Density_Text(record_));
}

void Water_Panel::Command1_3_Click() {
  Compute_Density(record_);
  fields_.Show(Computed_Density_Text(record_));
}

}  // namespace barvon

#include "material/frm_density.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "core/desk/accepted_screen.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmDensity");

}  // namespace

frmDensity::frmDensity(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace,
                   {.topic = kScreen.topic, .placement = Screen_Setup::Placement::Centre}),
      record_(Project()),
      Check3D3(Named(new QCheckBox(this), "Check3D3")),
      Text3(this, "Text3", 3),
      fields_(this, Faces_Of(Density_Fields(), record_)),
      Command2(Named(new QPushButton("&Compute", this), "Command2")) {
  setWindowTitle(QStringLiteral("Dredging Site Water Density"));
  Check3D3->setText(QStringLiteral("Compute Density Based on Salinity and Temperature?"));
  auto* frame = Named(new QGroupBox(kDensityFrame, this), "Frame3D1");
  Field_Rows rows(frame);
  rows.Whole_Row(Check3D3);
  for (int i = 0; i < 3; ++i) fields_.Add(rows, {"Text3", i});
  rows.Whole_Row(Command2);
  rows.layout()->setAlignment(Command2, Qt::AlignRight);
  auto* column = new QVBoxLayout(this);
  column->addWidget(frame);
  column->addLayout(Make_Command1());
  column->setSizeConstraint(QLayout::SetFixedSize);

  connect(Check3D3, &QCheckBox::toggled, this, [this] { Check3D3_Click(); });
  connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

void frmDensity::Opening() {
  Check3D3->setChecked(false);
  Check3D3_Click();
  fields_.Show(Open_Density(record_).texts);
}

void frmDensity::Activated() { copy_.Take(Copy_Density(record_)); }

void frmDensity::Check3D3_Click() {
  const bool computed = Check3D3->isChecked();
  for (const int i : {0, 1}) Text3(i)->setEnabled(computed);
  Command2->setEnabled(computed);
}

void frmDensity::Command2_Click() {
  Density_Entry entry = Entry();
  if (const auto wrong = Compute_Water_Density(entry, record_)) {
    Text3(*wrong)->setFocus();
    Text3(*wrong)->selectAll();
    return;
  }
  fields_.Show(entry.texts);
}

void frmDensity::Command1_Click(int index) {
  if (index == kOk) {
    Density_Entry entry = Entry();
    Save_Data(entry, record_);
    fields_.Show(entry.texts);
    Unload();
    Accept_Screen(kScreen, record_);
  } else if (index == kCancel) {
    Reset_Vars(*copy_, record_);
    Unload();
  }
}

Density_Entry frmDensity::Entry() const { return {fields_.Texts(), Check3D3->isChecked()}; }

}  // namespace barvon

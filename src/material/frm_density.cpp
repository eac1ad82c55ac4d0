#include "material/frm_density.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "core/desk/accepted_screen.h"
#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmDensity");

}  // namespace

frmDensity::frmDensity(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace,
                   {.topic = kScreen.topic, .placement = Screen_Setup::Placement::Centre}),
      Check3D3(Named(new QCheckBox(this), "Check3D3")),
      Text3(this, "Text3", 3),
      Command2(Named(new QPushButton("&Compute", this), "Command2")) {
  setWindowTitle(QStringLiteral("Dredging Site Water Density"));
  Check3D3->setText(QStringLiteral("Compute Density Based on Salinity and Temperature?"));
  auto* frame = Named(new QGroupBox("Density of Dredging Site Water", this), "Frame3D1");
  Field_Rows rows(frame);
  rows.Whole_Row(Check3D3);
  for (int i = 0; i < 3; ++i) {
    Label4[i] = rows.Number(QLatin1String(kDensityFields[i]), Text3(i), Real_Note);
    Label4[i]->setObjectName(QStringLiteral("Label4(%1)").arg(i));
  }
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
  const Density_Entry entry = Open_Density(Project());
  for (int i = 0; i < 3; ++i) Text3(i)->setText(QString::fromStdString(entry.Text3[i]));
}

void frmDensity::Activated() { copy_ = Copy_Vars(Project()); }

void frmDensity::Check3D3_Click() {
  const bool computed = Check3D3->isChecked();
  for (const int i : {0, 1}) {
    Label4[i]->setEnabled(computed);
    Text3(i)->setEnabled(computed);
  }
  Command2->setEnabled(computed);
}

void frmDensity::Command2_Click() {
  Density_Entry entry = Entry();
  if (const auto wrong = Compute_Water_Density(entry, Project())) {
    Text3(*wrong)->setFocus();
    Text3(*wrong)->selectAll();
    return;
  }
  Show_Density(entry);
}

void frmDensity::Command1_Click(int index) {
  if (index == kOk) {
    Density_Entry entry = Entry();
    Save_Data(entry, Project());
    Show_Density(entry);
    Unload();
    Accept_Screen(kScreen, isModal(), Project());
  } else if (index == kCancel) {
    Reset_Vars(copy_, Project());
    Unload();
  }
}

Density_Entry frmDensity::Entry() const {
  Density_Entry entry;
  for (int i = 0; i < 3; ++i) entry.Text3[i] = Text3(i)->text().toStdString();
  entry.Check3D3 = Check3D3->isChecked();
  return entry;
}

void frmDensity::Show_Density(const Density_Entry& entry) {
  Text3(2)->setText(QString::fromStdString(entry.Text3[2]));
}

}  // namespace barvon

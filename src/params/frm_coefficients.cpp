#include "params/frm_coefficients.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include "core/book_numbers.h"
#include "core/desk/coefficient_words.h"
#include "core/number_reading.h"
#include "params/coefficients_data.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmCoefficients");
constexpr int kDefault = 3;  // Command1

}  // namespace

frmCoefficients::frmCoefficients(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      Check3D1(Named(new QCheckBox(this), "Check3D1")) {
  setWindowTitle(QStringLiteral("Table of Coefficients"));
  Check3D1->setText(QLatin1String(kPritchardCaption));
  F1Book1->setAccessibleName(windowTitle());
  F1Book1->SetNumberNote(kCurrentColumn, Real_Note);
  F1Book1->SetCellLook([this](int row, int col) {
    return Look_Of_Coefficient(F1Book1->table(), record_, row, col);
  });
  F1Book1->Ask_For_All_Rows();
  auto* column = new QVBoxLayout(this);
  column->addWidget(F1Book1, 1);
  column->addWidget(Check3D1);
  column->addLayout(Make_Command1({QStringLiteral("OK"), QStringLiteral("C&ancel"),
                                   QStringLiteral("&Help"), QStringLiteral("&Default")}));
  Tab_Through({F1Book1, Check3D1});

  connect(F1Book1, &F1Book::Edited, this, [this] { UsingDefaults = false; });
  connect(Check3D1, &QCheckBox::clicked, this,
          [this](bool chosen) { Choose_Pritchard(chosen, record_); });
}

void frmCoefficients::Opening() {
  UsingDefaults = false;
  Fill_Coefficients(record_, F1Book1->table());
  // A description is not read when it is scrolled out on the way to its value.
  F1Book1->setMinimumWidth(F1Book1->verticalHeader()->sizeHint().width() +
                           F1Book1->horizontalHeader()->length() + 4 * F1Book1->frameWidth());
  Check3D1->setChecked(record_.PritchardFlag == 1);
}

void frmCoefficients::Command1_Click(int index) {
  switch (index) {
    case kOk:
      Save();
      break;
    case kCancel:
      Unload();
      break;
    case kDefault:
      UsingDefaults = true;
      Fill_Defaults(record_, F1Book1->table());
      // Where Ctrl+Z takes it back.
      F1Book1->setFocus();
      break;
    default:
      break;
  }
}

void frmCoefficients::Save() {
  Save_Data(F1Book1->table(), record_);
  Unload();
  Accept_Screen(kScreen, record_, Coefficient_Words(UsingDefaults, kDefaultCoefficients));
}

}  // namespace barvon

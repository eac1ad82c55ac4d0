#include "site/frm_grid_descrip.h"

#include <QApplication>
#include <QGroupBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/book_numbers.h"
#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/number_reading.h"
#include "platform/ask/message_box.h"
#include "platform/qt/fields/field_rows.h"
#include "site/drawn_cells.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmGridDescrip");
constexpr int kOkWithoutButton = 3, kBackWithoutButton = 4;
constexpr QSize kTableSize{400, 320};
constexpr int kMapWidth = 280;  // below it headings and scale crowd the map out

}  // namespace

frmGridDescrip::frmGridDescrip(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      Check3D2(Named(new QCheckBox(this), "Check3D2")),
      Text1(Named(new QLineEdit(this), "Text1")),
      fields_(this, Faces_Of(Depth_Grid_Fields(), record_)),
      Command2(Named(new QPushButton(this), "Command2")),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      map_(Named(new Depth_Map(this), "DepthMap")),
      csv_(this, F1Book1, {"Grid", "&Import...", "&Export...", "Depth Grid", "depths.csv"},
           [this] { Imported(); }) {
  setWindowTitle(QStringLiteral("Variable Depth Grid"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(Initial_Frame());
  column->addWidget(Grid_Frame(), 1);
  column->addLayout(Button_Row());
  Tab_Through({Check3D2, Text1, Command2, F1Book1, map_, csv_.Import, csv_.Export});
  Connect();
}

QWidget* frmGridDescrip::Initial_Frame() {
  auto* frame = new QGroupBox(this);
  Field_Rows rows(frame);
  Check3D2->setText(
      QStringLiteral("Do you wish to initialize the depth grid to a constant non-zero value?"));
  rows.Whole_Row(Check3D2);
  fields_.Add(rows, {"Text1"});
  Text1->setEnabled(false);
  Command2->setText(QStringLiteral("Initialize Grid"));
  Command2->setAutoDefault(false);
  rows.layout()->addWidget(Command2, rows.layout()->rowCount() - 1, 2);
  return frame;
}

QWidget* frmGridDescrip::Grid_Frame() {
  auto* frame = new QGroupBox(QStringLiteral("Depth Grid. One Value/Gridpoint (ft)"), this);
  F1Book1->setAccessibleName(frame->title());
  F1Book1->setMinimumSize(kTableSize);
  F1Book1->Ask_For_All_Rows();
  F1Book1->SetFocusCell(1, 1);
  F1Book1->SetNumberNote(Real_Note);
  map_->setMinimumWidth(kMapWidth);
  auto* halves = new QHBoxLayout(frame);
  halves->addWidget(F1Book1, 3);
  halves->addWidget(map_, 2);
  return frame;
}

QHBoxLayout* frmGridDescrip::Button_Row() {
  QHBoxLayout* row = Make_Command1();
  row->insertWidget(0, csv_.Import);
  row->insertWidget(1, csv_.Export);
  return row;
}

void frmGridDescrip::Connect() {
  connect(Check3D2, &QCheckBox::clicked, this, &frmGridDescrip::Check3D2_Click);
  connect(Text1, &QLineEdit::textChanged, this, &frmGridDescrip::Text1_Change);
  connect(Command2, &QPushButton::clicked, this, [this] {
    Initialize_Depth_Grid(InitialDepth_, Check3D2->isChecked(), F1Book1->table());
    Show_Map();
  });
  // Return behind the depth means the button beside it: OK would store a table without that depth.
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* from, const QWidget* to) {
    if (to == Text1) Command2->setDefault(true);
    if (from == Text1) Command1(kOk)->setDefault(true);
  });
  connect(F1Book1, &F1Book::Edited, this, &frmGridDescrip::F1Book1_EndEdit);
}

void frmGridDescrip::Opening() {
  size_ = Ask_Depth_Grid_Size(record_).value_or(Depth_Grid_Size{1, 1});
  if (record_.DEPTHI > 0) {
    Check3D2->setChecked(true);
    Check3D2_Click();
  }
  {
    const QSignalBlocker quiet(Text1);
    fields_.Show(Fill_Fields(Depth_Grid_Fields(), record_));
    filled_ = {Text1->text().toStdString(), record_.DEPTHI};
  }
  Text1_Change();
  ShowDepthGrid(size_, Check3D2->isChecked(), record_, F1Book1->table());
  Show_Map();
}

void frmGridDescrip::Command1_Click(int index) {
  switch (index) {
    case kOk:
    case kOkWithoutButton:
      Save();
      break;
    case kCancel:
      Unload();
      break;
    case kBackWithoutButton:
      Unload();
      Open_Screen(Row_Of_Screen("frmDescription"), Opens_Blocking(record_));
      break;
    default:
      break;
  }
}

void frmGridDescrip::Check3D2_Click() {
  Text1->setEnabled(Check3D2->isChecked());
  Show_Remark();
}

void frmGridDescrip::Text1_Change() {
  const Number_Reading reading = Read_Real(Text1->text().toStdString());
  if (reading.differs || !reading.value) {
    Show_Message({"Entry Must Be a Number"});
  } else {
    InitialDepth_ = Entry().Text1.Number();
  }
  Show_Remark();
}

void frmGridDescrip::F1Book1_EndEdit(int row, int column, int last_row, int last_column) {
  // At once: what was edited must not hide behind the one depth, even after Cancel.
  record_.DEPTHI = 0;
  Follow_Cells(F1Book1->table(), {row, column, last_row, last_column}, drawn_.depths);
  Show_Drawn();
}

void frmGridDescrip::Save() {
  SaveDepthGrid(Entry(), F1Book1->table(), record_);
  Unload();
  Accept_Screen(kScreen, record_);
}

Depth_Grid_Entry frmGridDescrip::Entry() const {
  return {Check3D2->isChecked(), As_Filled(Text1->text().toStdString(), filled_)};
}

void frmGridDescrip::Imported() {
  // Or the one depth would stand over what was imported at the next opening.
  Check3D2->setChecked(false);
  Check3D2_Click();
  record_.DEPTHI = 0;
  Show_Map();
}

void frmGridDescrip::Show_Map() {
  drawn_ = {size_.rows, size_.columns, Drawn_Cells(F1Book1->table())};
  Show_Drawn();
}

void frmGridDescrip::Show_Drawn() {
  map_->Show(drawn_);
  Show_Remark();
}

void frmGridDescrip::Show_Remark() {
  map_->Set_Caption(QString::fromStdString(Depth_Grid_Remark(Entry(), F1Book1->table())));
}

void Register_frmGridDescrip(QWidget* workspace) {
  const auto open = Fresh_Screens<frmGridDescrip>(workspace);
  Register_Screen(kScreen, [open](bool blocking, const std::string& control) {
    if (Ask_Depth_Grid_Size(Project())) open(blocking, control);
  });
}

}  // namespace barvon

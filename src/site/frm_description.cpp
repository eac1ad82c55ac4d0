#include "site/frm_description.h"

#include <QGroupBox>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"
#include "site/density_endpoints.h"
#include "site/density_table.h"
#include "site/drawn_cells.h"
#include "site/open_site_boxes.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmDescription");
constexpr int kOkWithoutButton = 3, kCloseWithoutButton = 4;
constexpr int kComputesDensity = 0, kVariableDepth = 1;  // Check3D1, and Command2 beside it
constexpr char kEditedDimension[] = "##,###.00";

/// A check box and, at the right, the button that it makes available.
void Add_Choice(Field_Rows& rows, QCheckBox* box, const QString& caption, QPushButton* button,
                const QString& button_caption) {
  box->setText(caption);
  button->setText(button_caption);
  button->setAutoDefault(false);
  button->setEnabled(false);
  const int row = rows.layout()->rowCount();
  rows.layout()->addWidget(box, row, 0);
  rows.layout()->addWidget(button, row, 1);
}

}  // namespace

frmDescription::frmDescription(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}),
      record_(Project()),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      profile_(Named(new Density_Profile(this), "DensityProfile")) {
  setWindowTitle(QStringLiteral("Disposal Site Data"));
  auto* upper = new QHBoxLayout;
  upper->addWidget(Grid_Frames(), 1);
  upper->addWidget(Depth_Frames(), 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(upper);
  column->addWidget(Density_Frame(), 1);
  column->addLayout(Make_Command1());
  Order_Controls();
  Connect();
}

frmDescription::~frmDescription() {
  if (boxes_are_told_) Set_Open_Site_Boxes({});
}

QWidget* frmDescription::Grid_Frames() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  for (const char* frame : {kPointsFrame, kSpacingFrame, kDimensionsFrame}) {
    column->addWidget(fields_.Frame(frame));
  }
  column->addStretch();
  return part;
}

QWidget* frmDescription::Depth_Frames() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  auto* frame = new QGroupBox(QStringLiteral("Water Depth and Bottom"), part);
  Field_Rows bottom(frame);
  fields_.Add(bottom, {"Text1", kConstantDepth});
  Add_Choice(bottom, Check3D1(kVariableDepth), kVariableDepthCaption, Command2(kVariableDepth),
             "Define Grid");
  fields_.Add(bottom, {"Text1", kRoughness});
  column->addWidget(frame);
  column->addWidget(fields_.Frame(kSlopeFrame));
  column->addStretch();
  return part;
}

QWidget* frmDescription::Density_Frame() {
  auto* frame = new QGroupBox(QStringLiteral("Water Density Profile"), this);
  auto* entries = new QWidget(frame);
  Field_Rows rows(entries);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  fields_.Add(rows, {"Text1", kDensityPoints});
  Add_Choice(rows, Check3D1(kComputesDensity), kComputesDensityCaption, Command2(kComputesDensity),
             "Compute Density");
  rows.Whole_Row(F1Book1);
  F1Book1->setAccessibleName(QStringLiteral("Water density profile"));
  F1Book1->SetNumberNote(Real_Note);
  auto* halves = new QHBoxLayout(frame);
  halves->addWidget(entries, 3);
  halves->addWidget(profile_, 2);
  return frame;
}

void frmDescription::Order_Controls() {
  std::vector<QWidget*> order;
  for (int i = kZPoints; i <= kXSpacing; ++i) order.push_back(Text1(i));
  order.insert(order.end(), {Text2(0), Text2(1), Text1(kConstantDepth), Check3D1(kVariableDepth),
                             Command2(kVariableDepth)});
  for (int i = kRoughness; i <= kDensityPoints; ++i) order.push_back(Text1(i));
  order.insert(order.end(),
               {Check3D1(kComputesDensity), Command2(kComputesDensity), F1Book1, profile_});
  Tab_Through(order);
}

void frmDescription::Connect() {
  for (int i = 0; i < kSiteFields; ++i) {
    connect(Text1(i), &QLineEdit::textChanged, this, [this, i] { Text1_Change(i); });
  }
  for (int i = 0; i < 2; ++i) {
    connect(Check3D1(i), &QCheckBox::clicked, this, [this, i] { Check3D1_Click(i); });
    connect(Command2(i), &QPushButton::clicked, this, [this, i] { Command2_Click(i); });
  }
  connect(F1Book1, &F1Book::Edited, this, &frmDescription::F1Book1_EndEdit);
  connect(this, &QDialog::finished, this, [this] {
    Set_Open_Site_Boxes({});
    boxes_are_told_ = false;
  });
}

void frmDescription::Opening() {
  // In front of the count's field: the profile of the wizard's water has two points.
  Store_Wizard_Depth(record_);
  Store_Wizard_Densities(record_);
  Lay_Out_Density_Table(false, F1Book1->table());
  Store_Dimensions(record_);
  fields_.Follow(Faces_Of(Site_Fields(), record_));
  const Field_Texts texts = Opening_Texts(record_);
  fields_.Set_Filled(Fill_Fields(Site_Fields(), record_));
  for (int i = 0; i < 2; ++i) Text2(i)->setText(QString::fromStdString(texts("Text2", i)));
  for (int i = kZPoints; i <= kConstantDepth; ++i) Set_Text1(i, texts("Text1", i));
  if (record_.ConstantDepthFlag == 0) Set_Check(kVariableDepth, true);
  for (int i = kRoughness; i < kSiteFields; ++i) Set_Text1(i, texts("Text1", i));
  F1Book1->table().ClearAll();
  const bool computed = record_.DensityComputeFlag != kFalse;
  if (computed) Set_Check(kComputesDensity, true);
  Fill_Density_Table(record_, Density_Points(record_), computed, F1Book1->table());
  F1Book1->table().SetActiveCell(1, 1);
  Show_Profile();
}

void frmDescription::Activated() { copy_.Take(Copy_Site(Entry(), record_)); }

void frmDescription::Command1_Click(int index) {
  switch (index) {
    case kOk:
    case kOkWithoutButton:
      Save();
      break;
    case kCancel:
      Reset();
      Unload();
      break;
    case kCloseWithoutButton:
      Unload();
      break;
    default:
      break;
  }
}

void frmDescription::Set_Text1(int index, const std::string& text) {
  {
    const QSignalBlocker quiet(Text1(index));
    Text1(index)->setText(QString::fromStdString(text));
  }
  Text1_Change(index);
}

void frmDescription::Set_Check(int index, bool checked) {
  Check3D1(index)->setChecked(checked);
  Check3D1_Click(index);
}

void frmDescription::Text1_Change(int index) {
  const std::string text = Text1(index)->text().toStdString();
  Tell_Boxes();
  if (!Check_Site_Text(index, text)) return;
  if (index == kDensityPoints) F1Book1->table().MaxRow(Density_Rows(text));
  // While it opens, the screen shows the dimensions by itself.
  if (FillingForm) return;
  Store_Dimensions(Entry(), record_);
  Show_Dimensions();
  Show_Profile();
}

void frmDescription::Check3D1_Click(int index) {
  const bool checked = Check3D1(index)->isChecked();
  Command2(index)->setEnabled(checked);
  if (index == kVariableDepth) {
    Text1(kConstantDepth)->setEnabled(!checked);
    if (!FillingForm) Choose_Variable_Depth(checked, record_);
  } else {
    if (!FillingForm) record_.DensityComputeFlag = checked ? kTrue : kFalse;
    Spreadsheet_Table& table = F1Book1->table();
    Lay_Out_Density_Table(checked, table);
    // Rows that a count outside its limits left standing are filled too: a salinity must not turn
    // into a density.
    const int rows = Density_Rows(Text1(kDensityPoints)->text().toStdString());
    Fill_Density_Table(record_, std::max(rows, table.MaxRow()), checked, table);
  }
  Show_Profile();
}

void frmDescription::Command2_Click(int index) {
  if (index == kComputesDensity) Compute_Density_Table(F1Book1->table(), record_);
  if (index == kVariableDepth) Open_Screen(Row_Of_Screen("frmGridDescrip"), true);
  Show_Profile();
}

void frmDescription::F1Book1_EndEdit() {
  if (Check3D1(kComputesDensity)->isChecked()) Compute_Density_Table(F1Book1->table(), record_);
  Show_Profile();
}

void frmDescription::Save() {
  Spreadsheet_Table& table = F1Book1->table();
  if (Check3D1(kComputesDensity)->isChecked() && !Compute_Density_Table(table, record_)) return;
  Site_Entry entry = Entry();
  const std::string points = entry.texts("Text1", kDensityPoints);
  const bool ready_to_close = EnsureDensityEndpoints(entry, table, record_);
  const std::string& needed = entry.texts("Text1", kDensityPoints);
  if (needed != points) Set_Text1(kDensityPoints, needed);
  SaveSiteData(entry, table, record_);
  Show_Profile();
  if (ready_to_close) {
    Unload();
  } else {
    fields_.Set_Filled(fields_.Texts());
    copy_.Saved(Copy_Site(Entry(), record_));
    Controls_Are_Stored();
  }
  Accept_Screen(kScreen, record_);
}

void frmDescription::Reset() {
  Reset_Vars(*copy_, record_);
  Set_Check(kComputesDensity, copy_->computes_density);
  Set_Check(kVariableDepth, copy_->variable_depth);
}

Site_Entry frmDescription::Entry() const {
  Site_Entry entry;
  entry.texts = fields_.Texts();
  entry.computes_density = Check3D1(kComputesDensity)->isChecked();
  entry.variable_depth = Check3D1(kVariableDepth)->isChecked();
  return entry;
}

void frmDescription::Show_Dimensions() {
  Text2(0)->setText(QString::fromStdString(Format_Number(record_.DistZ, kEditedDimension)));
  Text2(1)->setText(QString::fromStdString(Format_Number(record_.DistX, kEditedDimension)));
}

void frmDescription::Show_Profile() {
  const Spreadsheet_Table& table = F1Book1->table();
  std::vector<Density_Point> points;
  for (int row = 1; row <= table.MaxRow(); ++row) {
    points.push_back({Drawn_Cell(table, row, 1), Drawn_Cell(table, row, table.MaxCol())});
  }
  profile_->Show(points, Bottom_Depth(Entry(), record_));
}

void frmDescription::Tell_Boxes() {
  Set_Open_Site_Boxes(
      Site_Boxes{Text1(kZPoints)->text().toStdString(), Text1(kXPoints)->text().toStdString()});
  boxes_are_told_ = true;
}

}  // namespace barvon

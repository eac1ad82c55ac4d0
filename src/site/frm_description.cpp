#include "site/frm_description.h"

#include <QGroupBox>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/accepted_screen.h"
#include "core/desk/screen_register.h"
#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"
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
constexpr char kOpeningDimension[] = "####.00";
constexpr char kEditedDimension[] = "##,###.00";

QGroupBox* Group(const QString& title, QVBoxLayout* column) {
  auto* frame = new QGroupBox(title);
  column->addWidget(frame);
  return frame;
}

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
  Set_Tab_Order();
  Connect();
}

frmDescription::~frmDescription() {
  if (boxes_are_told_) Set_Open_Site_Boxes({});
}

QWidget* frmDescription::Grid_Frames() {
  const QString limits = QStringLiteral(" (8 to %1)").arg(kMaxGridPoints);
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  Field_Rows points(Group(QStringLiteral("Number of Grid Points in:"), column));
  points.Number("Z-Direction (Left to Right)" + limits, Text1(kZPoints), Cut_Note, "NMAX0");
  points.Number("X-Direction (Top to Bottom)" + limits, Text1(kXPoints), Cut_Note, "MMAX0");
  Field_Rows spacing(Group(QStringLiteral("Spacing (ft) between Grid Points"), column));
  spacing.Number("Z-Dir (Left to Right)", Text1(kZSpacing), Real_Note, "DZ0");
  spacing.Number("X-Dir (Top to Bottom)", Text1(kXSpacing), Real_Note, "DX0");
  Field_Rows dimensions(Group(QStringLiteral("Disposal Grid Dimensions"), column));
  dimensions.Shown("Width (ft) [Z-Dir]", Text2(0), "DistZ");
  dimensions.Shown("Length (ft) [X-Dir]", Text2(1), "DistX");
  column->addStretch();
  return part;
}

QWidget* frmDescription::Depth_Frames() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  Field_Rows bottom(Group(QStringLiteral("Water Depth and Bottom"), column));
  Label1_4 = bottom.Number("Constant Water Depth (ft) at Disposal Site", Text1(kConstantDepth),
                           Real_Note, "DEPC0");
  Label1_4->setObjectName(QStringLiteral("Label1(4)"));
  Add_Choice(bottom, Check3D1(kVariableDepth), "Specify Variable Depth Grid?",
             Command2(kVariableDepth), "Define Grid");
  bottom.Number(
      "Roughness Height (ft) at Bottom in X-Direction (Typically from 0.0005 to  0.05 ft)",
      Text1(kRoughness), Real_Note, "RHDA0");
  Field_Rows slopes(Group(QStringLiteral("Slope (deg) of Bottom in:"), column));
  slopes.Number("X-Direction (+ Depth Increases Top to Bottom)", Text1(kXSlope), Real_Note,
                "SLOPEX0");
  slopes.Number("Z-Direction (+ Depth Increases Left to Right)", Text1(kZSlope), Real_Note,
                "SLOPEZ0");
  column->addStretch();
  return part;
}

QWidget* frmDescription::Density_Frame() {
  auto* frame = new QGroupBox(QStringLiteral("Water Density Profile"), this);
  auto* entries = new QWidget(frame);
  Field_Rows rows(entries);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  rows.Number(
      "Number of Points to Describe Water Density Profile (max 5).  Enter Increasing Depths "
      "Starting From Surface.",
      Text1(kDensityPoints), Whole_Note, "NROA0");
  Add_Choice(rows, Check3D1(kComputesDensity), "Compute Density Based on Salinity and Temperature?",
             Command2(kComputesDensity), "Compute Density");
  rows.Whole_Row(F1Book1);
  F1Book1->setAccessibleName(QStringLiteral("Water density profile"));
  F1Book1->SetNumberNote(Real_Note);
  auto* halves = new QHBoxLayout(frame);
  halves->addWidget(entries, 3);
  halves->addWidget(profile_, 2);
  return frame;
}

void frmDescription::Set_Tab_Order() {
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
  Take_Site_Defaults(record_);
  Lay_Out_Density_Table(false, F1Book1->table());
  Set_Text1(kZPoints, Format_Number(record_.NMAX0, "#######0"));
  Set_Text1(kXPoints, Format_Number(record_.MMAX0, "#######0"));
  Set_Text1(kZSpacing, Format_Number(record_.DZ0, "####0.00"));
  Set_Text1(kXSpacing, Format_Number(record_.DX0, "####0.00"));
  Take_Dimensions(record_);
  Show_Dimensions(kOpeningDimension);
  Set_Text1(kConstantDepth, Format_Number(record_.DEPC0, "#####0.0"));
  if (record_.ConstantDepthFlag == 0) Set_Check(kVariableDepth, true);
  Set_Text1(kRoughness, Format_Number(record_.RHDA0, "#0.00000"));
  const bool has_slopes = Has_Slopes(record_);
  for (const auto& [field, slope] :
       {std::pair(kXSlope, record_.SLOPEX0), std::pair(kZSlope, record_.SLOPEZ0)}) {
    Text1(field)->setEnabled(has_slopes);
    Set_Text1(field, has_slopes ? Format_Number(slope, "#####0.00") : "0");
  }
  Set_Text1(kDensityPoints, Format_Number(record_.NROA0, "#######0"));
  F1Book1->table().ClearAll();
  Take_Wizard_Densities(record_);
  const bool computed = record_.DensityComputeFlag != kFalse;
  if (computed) Set_Check(kComputesDensity, true);
  Fill_Density_Table(record_, record_.NROA0, computed, F1Book1->table());
  F1Book1->table().SetActiveCell(1, 1);
  Show_Profile();
}

void frmDescription::Activated() { copy_ = Copy_Site(Entry(), record_); }

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
  Take_Dimensions(Entry(), record_);
  Show_Dimensions(kEditedDimension);
  Show_Profile();
}

void frmDescription::Check3D1_Click(int index) {
  const bool checked = Check3D1(index)->isChecked();
  Command2(index)->setEnabled(checked);
  if (index == kVariableDepth) {
    Label1_4->setEnabled(!checked);
    Text1(kConstantDepth)->setEnabled(!checked);
    Choose_Variable_Depth(checked, record_);
  } else {
    record_.DensityComputeFlag = checked ? kTrue : kFalse;
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
  if (index == kVariableDepth) Open_Screen("frmGridDescrip", true);
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
  const std::string points = entry.Text1[kDensityPoints];
  const bool ready_to_close = EnsureDensityEndpoints(entry, table, record_);
  if (entry.Text1[kDensityPoints] != points) {
    Set_Text1(kDensityPoints, entry.Text1[kDensityPoints]);
  }
  SaveSiteData(entry, table, record_);
  Show_Profile();
  if (ready_to_close) Unload();
  Accept_Screen(kScreen, isModal(), record_);
}

void frmDescription::Reset() {
  Reset_Vars(copy_, record_);
  Set_Check(kComputesDensity, copy_.computes_density);
  Set_Check(kVariableDepth, copy_.variable_depth);
}

Site_Entry frmDescription::Entry() const {
  Site_Entry entry;
  for (int i = 0; i < kSiteFields; ++i) {
    entry.Text1[i] = Text1(i)->text().toStdString();
  }
  entry.computes_density = Check3D1(kComputesDensity)->isChecked();
  entry.variable_depth = Check3D1(kVariableDepth)->isChecked();
  return entry;
}

void frmDescription::Show_Dimensions(const char* pattern) {
  Text2(0)->setText(QString::fromStdString(Format_Number(record_.DistZ, pattern)));
  Text2(1)->setText(QString::fromStdString(Format_Number(record_.DistX, pattern)));
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

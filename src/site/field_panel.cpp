#include "site/field_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "core/book_numbers.h"
#include "core/number_reading.h"
#include "platform/qt/fields/field_rows.h"
#include "site/drawn_cells.h"
#include "site/velocity_questions.h"
#include "site/velocity_tables.h"

namespace barvon {
namespace {

constexpr QSize kTableSize{220, 180};
constexpr int kMapWidth = 340;  // below it headings and scale crowd the map out
constexpr int kTablePart = 3, kMapPart = 4;
constexpr int kBetweenEntries = 24;

Grid_Csv_Texts Csv_Texts(int direction) {
  const std::string what = std::string(kAxes[direction]) + "-Direction Velocities";
  if (direction == kAlongX) {
    return {"Field(0)", "&Import X...", "&Export X...", what, "x-velocities.csv"};
  }
  return {"Field(1)", "I&mport Z...", "E&xport Z...", what, "z-velocities.csv"};
}

std::size_t At(int direction) { return static_cast<std::size_t>(direction); }

}  // namespace

Field_Panel::Field_Panel(ProjectRecord& record)
    : Velocity_Panel("Variable Velocity Field", "velocity_field", record),
      F1Book2(this, "F1Book2", kDirections, 0, kBookNumbers),
      arrows_(Named(new Velocity_Arrows(this), "VelocityArrows")) {
  auto* column = new QVBoxLayout(this);
  column->addLayout(Constant_Rows());
  auto* row = new QHBoxLayout;
  for (int i = 0; i < kDirections; ++i) row->addWidget(Build_Table(i), kTablePart);
  arrows_->setMinimumWidth(kMapWidth);
  row->addWidget(arrows_, kMapPart);
  column->addLayout(row, 1);
}

/// Above the tables and not each above its own: narrow tables leave room for the map.
QLayout* Field_Panel::Constant_Rows() {
  auto* grid = new QGridLayout;
  for (int i = 0; i < kDirections; ++i) {
    Check3D2(i)->setText(QStringLiteral("Initialize the %1-Direction Velocity field to a constant?")
                             .arg(QLatin1String(kAxes[i])));
    auto* entry = new QWidget(this);
    Field_Rows rows(entry);
    rows.layout()->setContentsMargins(0, 0, 0, 0);
    QLabel* label = rows.Number("Constant Velocity to be Used (fps)", Text2(i), Real_Note);
    label->setObjectName(QStringLiteral("Label2"));
    // The same words twice: the axis tells them apart to who hears them.
    Text2(i)->setAccessibleName(QLatin1String(kAxes[i]) + QStringLiteral("-Direction: ") +
                                Text2(i)->accessibleName());
    label->setWordWrap(false);
    Enable_Constant(i, false);
    grid->addWidget(Check3D2(i), i, 0);
    grid->addWidget(entry, i, 1);
    connect(Check3D2(i), &QCheckBox::clicked, this, [this, i] { Check3D2_Click(i); });
    connect(Text2(i), &QLineEdit::textChanged, this, [this, i] { Text2_Change(i); });
  }
  grid->setHorizontalSpacing(kBetweenEntries);
  grid->setColumnStretch(2, 1);
  return grid;
}

QWidget* Field_Panel::Build_Table(int i) {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  auto* caption =
      new QLabel(QStringLiteral("%1-Direction velocity field").arg(QLatin1String(kAxes[i])), part);
  caption->setBuddy(F1Book2(i));
  column->addWidget(caption);
  F1Book2(i)->setAccessibleName(caption->text());
  F1Book2(i)->setMinimumSize(kTableSize);
  F1Book2(i)->SetFocusCell(1, 1);
  F1Book2(i)->SetNumberNote(Real_Note);
  column->addWidget(F1Book2(i), 1);
  const Grid_Csv_Buttons& csv = csv_.emplace_back(part, F1Book2(i), Csv_Texts(i), [this, i] {
    // A constant that stays behind would cover what was read at the next opening.
    Check3D2(i)->setChecked(false);
    Check3D2_Click(i);
  });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(csv.Import);
  buttons->addWidget(csv.Export);
  buttons->addStretch();
  column->addLayout(buttons);
  connect(F1Book2(i), &F1Book::Edited, this,
          [this, i](int row, int column, int last_row, int last_column) {
            std::vector<double>& drawn = i == kAlongX ? drawn_.x : drawn_.z;
            Follow_Cells(F1Book2(i)->table(), {row, column, last_row, last_column}, drawn);
            Show_Drawn();
          });
  return part;
}

void Field_Panel::Enable_Constant(int i, bool enabled) {
  Text2(i)->setEnabled(enabled);
  // What is not read has nothing to be marked for.
  Make_Number_Field(
      Text2(i), enabled ? filled_[At(i)].Note() : [](const std::string&) { return std::string(); });
}

void Field_Panel::Fill(const Velocity_Entry& entry) {
  Tell_Grid_Beyond_Fields(record_);
  for (int i = 0; i < kDirections; ++i) {
    const Velocity_Entry::Field& field = entry.fields[At(i)];
    Enable_Constant(i, field.Check3D2);
    Check3D2(i)->setChecked(field.Check3D2);
    if (field.Check3D2) {
      filled_[At(i)].Show(Text2(i), field.Text2);
    }
    Fill_Field_Table(field.F1Book2, entry.rows, entry.columns, F1Book2(i)->table());
  }
  Draw();
}

double Field_Panel::Constant(int i) const { return filled_[At(i)].Entered(Text2(i)).Number(); }

void Field_Panel::Check3D2_Click(int i) {
  const auto direction = static_cast<Velocity_Direction>(i);
  Enable_Constant(i, Check3D2(i)->isChecked());
  if (Check3D2(i)->isChecked()) {
    // A missing constant reads as 0 and does not hold the filling up.
    if (Text2(i)->text().isEmpty()) {
      Tell_Constant_Missing(direction);
      Text2(i)->setFocus();
    }
    Spreadsheet_Table& table = F1Book2(i)->table();
    if (!Any_Cell_Above_0(table) || Ask_To_Overwrite()) Fill_Field_With(Constant(i), table);
  } else {
    Const_Velocity(record_, direction) = 0;
  }
  Draw();
}

void Field_Panel::Text2_Change(int i) {
  if (Is_Filling()) return;
  Fill_Field_With(Constant(i), F1Book2(i)->table());
  Draw();
}

void Field_Panel::Draw() {
  const Spreadsheet_Table& x = F1Book2(kAlongX)->table();
  drawn_ = {x.MaxRow(),  x.MaxCol(), Drawn_Cells(x), Drawn_Cells(F1Book2(kAlongZ)->table()),
            record_.DX0, record_.DZ0};
  Show_Drawn();
}

void Field_Panel::Show_Drawn() {
  arrows_->Show(drawn_);
  bool covered = false;
  for (int i = 0; i < kDirections; ++i) {
    const double constant = Constant(i);
    covered = covered || (Check3D2(i)->isChecked() && constant > 0 &&
                          Any_Cell_Differs(F1Book2(i)->table(), constant));
  }
  arrows_->Set_Caption(covered ? QStringLiteral("A ticked constant will stand in for cells that "
                                                "differ from it at the next opening.")
                               : QString());
}

void Field_Panel::Read(Velocity_Entry& entry) const {
  entry.rows = F1Book2(kAlongX)->table().MaxRow();
  entry.columns = F1Book2(kAlongX)->table().MaxCol();
  for (int i = 0; i < kDirections; ++i) {
    Velocity_Entry::Field& field = entry.fields[At(i)];
    field.Check3D2 = Check3D2(i)->isChecked();
    field.Text2 = filled_[At(i)].Entered(Text2(i));
    field.F1Book2 = Read_Field_Table(F1Book2(i)->table());
  }
}

std::vector<QWidget*> Field_Panel::Order() const {
  std::vector<QWidget*> order;
  for (int i = 0; i < kDirections; ++i) order.insert(order.end(), {Check3D2(i), Text2(i)});
  for (int i = 0; i < kDirections; ++i) {
    const Grid_Csv_Buttons& csv = csv_[At(i)];
    order.insert(order.end(), {F1Book2(i), csv.Import, csv.Export});
  }
  order.push_back(arrows_);
  return order;
}

}  // namespace barvon

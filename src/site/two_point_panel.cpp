#include "site/two_point_panel.h"

#include <QVBoxLayout>

#include "core/book_numbers.h"
#include "core/number_reading.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/field_rows.h"
#include "site/drawn_cells.h"
#include "site/velocity_tables.h"

namespace barvon {
namespace {

constexpr QSize kSmallestProfile{440, 250};

}  // namespace

Two_Point_Panel::Two_Point_Panel(ProjectRecord& record)
    : Velocity_Panel("2-Point Profile", "velocity_two_point", record),
      F1Book1(Named(new F1Book(kBookNumbers, this), "F1Book1")),
      profile_(Named(new Two_Point_Profile(this), "TwoPointProfile")) {
  auto* row = new QHBoxLayout(this);
  auto* column = new QVBoxLayout;
  row->addLayout(column);
  row->addWidget(profile_, 1);
  profile_->setMinimumSize(kSmallestProfile);
  F1Book1->setAccessibleName(QStringLiteral("Two-point velocity profile"));
  F1Book1->SetFocusCell(1, 1);
  F1Book1->SetNumberNote(Real_Note);
  column->addWidget(F1Book1);
  const ControlArray<QLabel> Label3(this, "Label3", 3);
  Label3(0)->setText(QStringLiteral("Constant Water Depth Must Be Specified in Site Data "));
  Label3(1)->setText(QStringLiteral("X - Direction Velocity (+) is from top to bottom"));
  Label3(2)->setText(QStringLiteral("Z - Direction Velocity (+) is from left to right"));
  for (const int i : {1, 2, 0}) column->addWidget(Label3(i));
  column->addStretch();
  connect(F1Book1, &F1Book::Edited, this, &Two_Point_Panel::Draw);
}

void Two_Point_Panel::Fill(const Velocity_Entry& entry) {
  Fill_Point_Table(entry, F1Book1->table());
  Show_All_Columns(F1Book1);
  F1Book1->setFixedHeight(F1Book1->sizeHint().height());
  Draw();
}

void Two_Point_Panel::Draw() {
  const Spreadsheet_Table& table = F1Book1->table();
  std::array<Profile_Point, 2> points;
  for (int row = 1; row <= 2; ++row) {
    points[static_cast<std::size_t>(row) - 1] = {
        Drawn_Cell(table, row, 1), Drawn_Cell(table, row, 2), Drawn_Cell(table, row, 3),
        Drawn_Cell(table, row, 4)};
  }
  profile_->Show(points);
}

void Two_Point_Panel::Read(Velocity_Entry& entry) const {
  Read_Point_Table(F1Book1->table(), entry);
}

std::vector<QWidget*> Two_Point_Panel::Order() const { return {F1Book1, profile_}; }

}  // namespace barvon

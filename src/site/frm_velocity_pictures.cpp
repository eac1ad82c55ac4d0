#include <utility>

#include "core/number_text.h"
#include "site/drawn_cells.h"
#include "site/frm_velocity.h"
#include "site/velocity_tables.h"

namespace barvon {

void frmVelocity::Draw_Points() {
  const Spreadsheet_Table& table = F1Book1->table();
  std::array<Profile_Point, 2> points;
  for (int row = 1; row <= 2; ++row) {
    points[At(row) - 1] = {Drawn_Cell(table, row, 1), Drawn_Cell(table, row, 2),
                           Drawn_Cell(table, row, 3), Drawn_Cell(table, row, 4)};
  }
  profile_->Show(points);
}

void frmVelocity::Draw_Arrows() {
  const Spreadsheet_Table& x = F1Book2(kAlongX)->table();
  arrows_->Show({x.MaxRow(), x.MaxCol(), Drawn_Cells(x), Drawn_Cells(F1Book2(kAlongZ)->table()),
                 record_.DX0, record_.DZ0});
  bool covered = false;
  for (int i = 0; i < kDirections; ++i) {
    const double constant = Lenient_Number(Text2(i)->text().toStdString());
    covered = covered || (Check3D2(i)->isChecked() && constant > 0 &&
                          Any_Cell_Differs(F1Book2(i)->table(), constant));
  }
  arrows_->Set_Caption(covered ? QStringLiteral("A ticked constant will stand in for cells that "
                                                "differ from it at the next opening.")
                               : QString());
}

void frmVelocity::Draw_Tide() {
  const Spreadsheet_Table& table = F1Book3->table();
  const Velocity_Entry entry = Entry();
  Tidal_Pattern pattern;
  for (int row = 1; row <= table.MaxRow(); ++row) {
    pattern.x.push_back(Drawn_Cell(table, row, 1));
    pattern.z.push_back(Drawn_Cell(table, row, 2));
  }
  const Tidal_Interval interval = Interval_Of(entry);
  pattern.start = Widen(interval.start);
  pattern.duration = Widen(interval.duration);
  if (interval.duration != 0) {
    const auto averages = Average_Velocities(entry);
    pattern.average_x = averages[kAlongX];
    pattern.average_z = averages[kAlongZ];
  }
  tide_->Show(std::move(pattern));
}

}  // namespace barvon

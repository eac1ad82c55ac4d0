#include "site/average_panel.h"

#include "site/velocity_fields.h"

namespace barvon {

Average_Panel::Average_Panel(ProjectRecord& record)
    : Velocity_Panel("Average Velocity", "velocity_average", record),
      Check3D1(Named(new QCheckBox(this), "Check3D1")),
      fields_(this, Faces_With_Notes(kAverageFields, filled_, record)) {
  Field_Rows rows(this);
  for (const Field_Row& row : kAverageFields) fields_.Add(rows, row.control);
  Check3D1->setText(QLatin1String(kLogarithmicCaption));
  rows.Whole_Row(Check3D1);
  rows.layout()->setRowStretch(rows.layout()->rowCount(), 1);
  connect(Check3D1, &QCheckBox::clicked, this, [this](bool checked) {
    record_.VelocityProfileType = checked ? kLogarithmicVelocity : kSingleVelocity;
  });
}

void Average_Panel::Fill(const Velocity_Entry& entry) {
  for (std::size_t i = 0; i < filled_.size(); ++i) {
    filled_[i].Show(Text1(static_cast<int>(i)), entry.Text1[i]);
  }
  Check3D1->setChecked(entry.Check3D1);
}

void Average_Panel::Left() { Check3D1->setChecked(false); }

void Average_Panel::Read(Velocity_Entry& entry) const {
  for (std::size_t i = 0; i < filled_.size(); ++i) {
    entry.Text1[i] = filled_[i].Entered(Text1(static_cast<int>(i)));
  }
  entry.Check3D1 = Check3D1->isChecked();
}

std::vector<QWidget*> Average_Panel::Order() const {
  std::vector<QWidget*> order(Text1.begin(), Text1.end());
  order.push_back(Check3D1);
  return order;
}

}  // namespace barvon

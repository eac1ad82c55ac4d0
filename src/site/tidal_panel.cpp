#include "site/tidal_panel.h"

#include <QVBoxLayout>
#include <utility>

#include "core/book_numbers.h"
#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "platform/qt/fields/note_box.h"
#include "site/drawn_cells.h"
#include "site/velocity_fields.h"
#include "site/velocity_questions.h"
#include "site/velocity_tables.h"

namespace barvon {
namespace {

/// With its fields it just fits a display 768 pixels high, without a scroll bar.
constexpr QSize kSmallestCurve{440, 190};

QString Text(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

Tidal_Panel::Tidal_Panel(ProjectRecord& record)
    : Velocity_Panel("Unsteady Velocity Profile", "velocity_tidal", record),
      F1Book3(Named(new F1Book(kBookNumbers, this), "F1Book3")),
      Text4_1(Make_Note_Box("Text4(1)", QStringLiteral("Simulated interval in hours"),
                            kVelocityNoteLines, this)),
      tide_(Named(new Tidal_Curve(this), "TidalCurve")),
      fields_(this, Faces_With_Notes(kUnsteadyFields, filled_, record)) {
  auto* row = new QHBoxLayout(this);
  F1Book3->setAccessibleName(QStringLiteral("Unsteady velocity profile"));
  F1Book3->SetNumberNote(Real_Note);
  row->addWidget(F1Book3);
  tide_->setMinimumSize(kSmallestCurve);
  auto* right = new QVBoxLayout;
  auto* entries = new QWidget(this);
  Field_Rows rows(entries);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  for (const Field_Row& row : kUnsteadyFields) fields_.Add(rows, row.control);
  for (const int i : {kAverageX, kAverageZ}) Text3(i)->setToolTip(QStringLiteral("OK computes it"));
  tide_->Set_Caption(QStringLiteral("Averages as OK computes them"));
  right->addWidget(entries);
  right->addWidget(tide_, 1);
  row->addLayout(right, 1);
  connect(F1Book3, &F1Book::Edited, this, &Tidal_Panel::Draw);
  for (QLineEdit* field : Text3) {
    connect(field, &QLineEdit::textChanged, this, &Tidal_Panel::Show_Interval);
  }
}

void Tidal_Panel::Fill(const Velocity_Entry& entry) {
  for (const int i : {kStart, kDepth, kDuration}) filled_[i].Show(Text3(i), entry.Text3[i]);
  for (const int i : {kAverageX, kAverageZ}) Text3(i)->setText(Text(entry.Text3[i].text));
  Fill_Tidal_Table(entry, F1Book3->table());
  Show_All_Columns(F1Book3);
  Show_Interval();
}

void Tidal_Panel::Shown() {
  // Once for the whole filling, when everything is there that the averages are made from. While a
  // person types, the averages shown stay until OK.
  if (!Show_Averages()) Tell_Duration_Missing();
}

void Tidal_Panel::Stored() { Show_Averages(); }

bool Tidal_Panel::Show_Averages() {
  const auto averages = Average_Velocities(Entry());
  if (!averages) return false;
  Text3(kAverageX)->setText(Text(Format_Number((*averages)[kAlongX], "####.00")));
  Text3(kAverageZ)->setText(Text(Format_Number((*averages)[kAlongZ], "####.00")));
  return true;
}

void Tidal_Panel::Show_Wizard() {
  filled_[kDuration].Show(Text3(kDuration), Duration_From_Wizard(record_));
}

void Tidal_Panel::Show_Interval() {
  Text4_1->setPlainText(Text(Interval_Note(Interval_Of(Entry()))));
  Draw();
}

void Tidal_Panel::Draw() {
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
  if (const auto averages = Average_Velocities(entry)) {
    pattern.average_x = (*averages)[kAlongX];
    pattern.average_z = (*averages)[kAlongZ];
  }
  tide_->Show(std::move(pattern));
}

Velocity_Entry Tidal_Panel::Entry() const {
  Velocity_Entry entry;
  Read(entry);
  return entry;
}

void Tidal_Panel::Read(Velocity_Entry& entry) const {
  for (const int i : {kStart, kDepth, kDuration}) entry.Text3[i] = filled_[i].Entered(Text3(i));
  Read_Tidal_Table(F1Book3->table(), entry);
}

std::vector<QWidget*> Tidal_Panel::Order() const {
  std::vector<QWidget*> order = {F1Book3};
  order.insert(order.end(), Text3.begin(), Text3.end());
  order.push_back(tide_);
  return order;
}

}  // namespace barvon

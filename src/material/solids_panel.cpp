#include "material/solids_panel.h"

#include <QHBoxLayout>

#include "core/book_numbers.h"
#include "core/number_reading.h"
#include "material/solids_doubts.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {

Solids_Panel::Solids_Panel(const char* book)
    : List1(Named(new Tick_List(this), "List1")),
      F1Book1(Named(new F1Book(kBookNumbers, this), book)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(List1, 1);
  row->addWidget(F1Book1, 5);
  List1->setAccessibleName(QStringLiteral("Material library"));
  F1Book1->setAccessibleName(QStringLiteral("Solids fractions"));
  F1Book1->Ask_For_All_Rows();
  F1Book1->KeepAnyLetters();  // the name's note and the question before OK tell what is not kept
  connect(List1, &Tick_List::Ticked, this, &Solids_Panel::List1_Click);
  connect(F1Book1, &F1Book::Edited, this, [this] { Clean_Solids_Names(table()); });
}

void Solids_Panel::Open(const std::string& section, Solids_Layout layout,
                        const ProjectRecord& record) {
  const std::vector<int> ticked = Open_Solids(section, layout, record, state_, table());
  QStringList lines;
  for (const std::string& line : state_.lines) lines.append(QString::fromStdString(line));
  List1->Fill(lines);
  for (const int line : ticked) List1->Tick(line, true);
  Set_Notes();
}

void Solids_Panel::Separate(bool separated) {
  Separate_Solids(separated, state_, table());
  Set_Notes();
}

std::string Solids_Panel::Doubts() const {
  return Are_Solids_Untouched(state_, table()) ? "" : Solids_Doubts(state_.layout, table());
}

void Solids_Panel::List1_Click(int line, bool on) {
  if (!on) {
    Untick_Material(line, state_, table());
  } else if (!Tick_Material(line, state_, table())) {
    List1->Tick(line, false);
  }
}

void Solids_Panel::Set_Notes() {
  F1Book1->SetNumberNote(Real_Note);
  F1Book1->SetNumberNote(1, Material_Name_Note);
  // On the hopper screen an empty cell counts as well.
  F1Book1->SetCellLook(
      [this](int row, int col) { return Look_Of_Letter(state_.layout, table(), row, col); });
  const auto letter = [layout = state_.layout](const std::string& typed) {
    return Letter_Note(layout, typed);
  };
  for (const Solids_Field field : {Solids_Field::Cohesive, Solids_Field::Stripped}) {
    F1Book1->SetNumberNote(Column_Of(field, state_.layout), letter);
  }
}

}  // namespace barvon

#include "site/velocity_panel.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyle>
#include <algorithm>

namespace barvon {

Velocity_Panel::Velocity_Panel(const char* caption, const char* illustration, ProjectRecord& record)
    : QGroupBox(QLatin1String(caption)), record_(record), illustration_(illustration) {}

void Velocity_Panel::Show(const Velocity_Entry& entry) {
  const QScopedValueRollback filling(filling_, true);
  Fill(entry);
}

Number_Note Filled_Field::Note() const {
  return [this](const std::string& typed) { return Filled_Note(As_Filled(typed, filled_)); };
}

void Filled_Field::Show(QLineEdit* field, const Typed_Number& filled) {
  filled_ = filled;
  field->clear();  // its mark hears of the value also when the text is the same
  field->setText(QString::fromStdString(filled.text));
}

Typed_Number Filled_Field::Entered(const QLineEdit* field) const {
  return As_Filled(field->text().toStdString(), filled_);
}

std::vector<Field_Face> Faces_With_Notes(Field_Table table, std::span<const Filled_Field> filled,
                                         const ProjectRecord& record) {
  std::vector<Field_Face> faces = Faces_Of(table, record);
  for (std::size_t i = 0; i < filled.size(); ++i) faces[i].note = filled[i].Note();
  return faces;
}

void Show_All_Columns(F1Book* table) {
  const QHeaderView& headings = *table->verticalHeader();
  const int scroll_bar = table->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  table->setMinimumWidth(std::max(headings.sizeHint().width(), headings.minimumWidth()) +
                         table->horizontalHeader()->length() + scroll_bar +
                         2 * table->frameWidth());
}

}  // namespace barvon

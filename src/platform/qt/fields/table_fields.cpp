#include "platform/qt/fields/table_fields.h"

#include <algorithm>
#include <utility>

namespace barvon {

Table_Fields::Table_Fields(QWidget* screen, std::vector<Field_Face> faces) : screen_(screen) {
  for (Field_Face& face : faces) {
    auto* line = screen->findChild<QLineEdit*>(QString::fromStdString(face.control.Reference()));
    fields_.push_back({std::move(face), line});
  }
}

QGroupBox* Table_Fields::Frame(const std::string& caption) {
  auto* frame = new QGroupBox(QString::fromStdString(caption), screen_);
  Field_Rows rows(frame);
  for (Field& field : fields_) {
    if (field.face.frame == caption) Lay_Out(rows, field);
  }
  return frame;
}

QLabel* Table_Fields::Add(Field_Rows& rows, const Control_Name& control) {
  return Lay_Out(rows, *Find(control));
}

void Table_Fields::Follow(const std::vector<Field_Face>& faces) {
  for (const Field_Face& face : faces) {
    Field* field = Find(face.control);
    field->face = face;
    if (face.kind == Field_Kind::Number) Make_Number_Field(field->line, face.note);
    Rename(field->label, QString::fromStdString(face.label));
    Set_Tag(field->line, QString::fromStdString(face.tag));
    Show_Or_Hide(*field);
  }
}

QLabel* Table_Fields::Label(const Control_Name& control) const {
  const auto found = std::find_if(fields_.begin(), fields_.end(), [&](const Field& field) {
    return field.face.control == control;
  });
  return found == fields_.end() ? nullptr : found->label;
}

void Table_Fields::Show(const Field_Texts& texts) {
  Set_Filled(texts);
  for (const Field& field : fields_) {
    const std::string* text = texts.Find(field.face.control);
    if (text == nullptr) continue;
    const QString shown = QString::fromStdString(*text);
    if (field.line->text() != shown) field.line->setText(shown);
  }
}

void Table_Fields::Set_Filled(const Field_Texts& texts) {
  for (Field& field : fields_) {
    if (const std::string* text = texts.Find(field.face.control)) field.filled = *text;
  }
}

Field_Texts Table_Fields::Texts() const {
  Field_Texts texts;
  for (const Field& field : fields_) {
    if (!field.face.shown) continue;
    texts.Set(field.face.control, field.line->text().toStdString());
    if (field.filled) texts.Set_Filled(field.face.control, *field.filled);
  }
  return texts;
}

QLabel* Table_Fields::Lay_Out(Field_Rows& rows, Field& field) {
  const Field_Face& face = field.face;
  const QString label = QString::fromStdString(face.label);
  switch (face.kind) {
    case Field_Kind::Number:
      field.label = rows.Number(label, field.line, face.note);
      break;
    case Field_Kind::Text:
      field.label = rows.Text(label, field.line, face.max_length);
      break;
    case Field_Kind::Shown:
      field.label = rows.Shown(label, field.line);
      break;
  }
  field.label->setObjectName(QString::fromStdString(face.label_name.Reference()));
  Set_Tag(field.line, QString::fromStdString(face.tag));
  Show_Or_Hide(field);
  return field.label;
}

void Table_Fields::Show_Or_Hide(const Field& field) {
  field.label->setVisible(field.face.shown);
  field.line->setVisible(field.face.shown);
  if (field.face.enabled) field.line->setEnabled(*field.face.enabled);
}

Table_Fields::Field* Table_Fields::Find(const Control_Name& control) {
  const auto found = std::find_if(fields_.begin(), fields_.end(), [&](const Field& field) {
    return field.face.control == control;
  });
  return found == fields_.end() ? nullptr : &*found;
}

}  // namespace barvon

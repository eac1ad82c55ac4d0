#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <optional>
#include <string>
#include <vector>

#include "platform/fields/field_face.h"
#include "platform/fields/field_texts.h"
#include "platform/qt/fields/field_rows.h"

namespace barvon {

/// The fields of a screen as its table tells them. The screen makes the lines of text and gives
/// them their references; label, note, tag and accessible name come from the faces:
///
///     fields_(this, Faces_Of(kVesselFields, record))
///     column->addWidget(fields_.Frame("Vessel"));
///     fields_.Show(Fill_Fields(kVesselFields, record));
class Table_Fields {
 public:
  /// Every face needs a QLineEdit of its reference within the screen.
  Table_Fields(QWidget* screen, std::vector<Field_Face> faces);

  /// A frame of that caption with all of its fields below each other.
  QGroupBox* Frame(const std::string& caption);
  /// One field as the next row. Its label is the result.
  QLabel* Add(Field_Rows& rows, const Control_Name& control);

  /// Other keys of the project: labels, notes, what is shown and what can be used follow. The same
  /// controls must be among the faces.
  void Follow(const std::vector<Field_Face>& faces);

  /// The label of a field that has been laid out.
  QLabel* Label(const Control_Name& control) const;
  /// Fills the fields that have a text with what the record holds. One that shows it already keeps
  /// its cursor and its history.
  void Show(const Field_Texts& texts);
  /// For a screen that fills its fields by itself: what it fills them with.
  void Set_Filled(const Field_Texts& texts);
  /// The texts of all fields that the project's keys show, whether or not their tab is in front,
  /// and what they were filled with.
  Field_Texts Texts() const;

 private:
  struct Field {
    Field_Face face;
    QLineEdit* line = nullptr;
    QLabel* label = nullptr;  // once it is laid out
    std::optional<std::string> filled = {};
  };
  static QLabel* Lay_Out(Field_Rows& rows, Field& field);
  static void Show_Or_Hide(const Field& field);
  Field* Find(const Control_Name& control);

  QWidget* screen_;
  std::vector<Field> fields_;
};

}  // namespace barvon

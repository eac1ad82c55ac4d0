#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <span>
#include <string>
#include <vector>

#include "core/field_table.h"
#include "core/typed_number.h"
#include "platform/qt/fields/number_field.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "site/velocity_data.h"

namespace barvon {

/// Lines of the notes below the forms.
inline constexpr int kVelocityNoteLines = 4;

/// A form of frmVelocity: the fields, the table and the picture of one way to tell the current.
class Velocity_Panel : public QGroupBox {
 public:
  /// The illustration is a picture of the program's resources.
  Velocity_Panel(const char* caption, const char* illustration, ProjectRecord& record);

  const char* Illustration() const { return illustration_; }

  /// Fills the controls. Handlers that must not take it for a person's typing rest.
  void Show(const Velocity_Entry& entry);
  /// Says what is to be said of what was filled, when the screen has its size.
  virtual void Shown() {}
  /// Another form is chosen.
  virtual void Left() {}
  /// Puts what the controls hold into the entry.
  virtual void Read(Velocity_Entry& entry) const = 0;
  /// OK has stored what was read.
  virtual void Stored() {}
  /// The open wizard's answers, on top of what was filled.
  virtual void Show_Wizard() {}

  /// A note of its own, shown beside the one on directions; nullptr without one.
  virtual QPlainTextEdit* Note() const { return nullptr; }
  /// Its controls in the order of Tab.
  virtual std::vector<QWidget*> Order() const = 0;

  /// Its labels wrap, but a scroll area that asked them for the height would take the picture's
  /// wish for its need, and scroll where there is room.
  bool hasHeightForWidth() const override { return false; }

 protected:
  virtual void Fill(const Velocity_Entry& entry) = 0;
  bool Is_Filling() const { return filling_; }

  ProjectRecord& record_;

 private:
  const char* illustration_;
  bool filling_ = false;
};

/// A number field that shows few decimals of what it is filled with: until its text is another one,
/// it stands for the whole value, and its mark tells what is left out.
class Filled_Field {
 public:
  /// Refers to this field, which must stay where it is.
  Number_Note Note() const;
  void Show(QLineEdit* field, const Typed_Number& filled);
  /// What the field stands for now.
  Typed_Number Entered(const QLineEdit* field) const;

 private:
  Typed_Number filled_;
};

/// The faces of fields, the first of which are marked by what they were filled with. Refers to
/// `filled`.
std::vector<Field_Face> Faces_With_Notes(Field_Table table, std::span<const Filled_Field> filled,
                                         const ProjectRecord& record);

/// As wide as all its columns: none is ever out of sight.
void Show_All_Columns(F1Book* table);

}  // namespace barvon

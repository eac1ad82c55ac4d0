#pragma once

#include <QGridLayout>
#include <QLabel>

#include "platform/qt/fields/number_field.h"

namespace barvon {

/// Rows of a label and its field, one line of the caller each:
///
///     Field_Rows rows(frame);
///     rows.Number("Bottom Slope (deg)", Text1(6), Real_Note, "SLOPEX0");
///     rows.Text("Name of the Site", Text3, 20);
///
/// The label names the field to assistive tools, takes its mnemonic and is grey while the field is
/// disabled; rows are in Tab order.
class Field_Rows {
 public:
  /// Lays out the frame, which must have no layout yet; the fields become its children.
  explicit Field_Rows(QWidget* frame);

  QLabel* Number(const QString& label, QLineEdit* field, Number_Note note,
                 const QString& tag = QString());
  QLabel* Text(const QString& label, QLineEdit* field, int max_length = 0);
  /// A value that can't be typed, only read and copied.
  QLabel* Shown(const QString& label, QLineEdit* field, const QString& tag = QString());
  /// Any other control with a label: a list to choose from, a check box.
  QLabel* Control(const QString& label, QWidget* control, const QString& tag = QString());
  /// A row of its own for anything else: a check box, a note.
  void Whole_Row(QWidget* control);

  QGridLayout* layout() const { return grid_; }

 private:
  QLabel* Add(const QString& label, QWidget* control);

  QGridLayout* grid_;
  QWidget* last_ = nullptr;
};

/// Gives the control its reference and returns it, for the controls that stand alone:
/// `Named(new QLineEdit(this), "Text2")`.
template <class Control>
Control* Named(Control* control, const char* reference) {
  control->setObjectName(QLatin1String(reference));
  return control;
}

/// Another text for the label of a row; its control is named by it.
void Rename(QLabel* label, const QString& text);

/// The tag of a field, "" when it has none.
void Set_Tag(QWidget* field, const QString& tag);
QString Tag_Of(const QWidget* field);

}  // namespace barvon

#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

namespace barvon {

/// What to say about a typed number: "reads as 62", or "" when it is read as it stands.
using Number_Note = std::function<std::string(const std::string& typed)>;

/// Makes a line of text a numeric field. Nothing is refused; while the note has something to say,
/// a quiet mark is inside the field at its right, and the field's tool tip and accessible
/// description tell the note. It follows every change, by whomever, even with the field's signals
/// blocked. A tool tip and a description that the field has of its own come back afterwards.
void Make_Number_Field(QLineEdit* field, Number_Note note);

/// What the field's mark says now; "" while it has none or is no numeric field.
QString Number_Note_Of(const QLineEdit* field);

/// Puts a text in the place of the field's own as typing does: the field's undo takes it back.
void Enter_Text(QLineEdit* field, const QString& text);

/// Makes a line of text a field for texts that end up in files: what the files' encoding does not
/// hold stays out, and no more than `max_length` characters go in (0: no limit).
/// A longer text that is set from code is cut, so the limit must not be below what a file holds.
void Make_Text_Field(QLineEdit* field, int max_length = 0);

}  // namespace barvon

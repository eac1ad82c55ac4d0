#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace barvon {

/// A box of words that are read and copied, not typed, with room for so many lines.
QPlainTextEdit* Make_Note_Box(const char* reference, const QString& spoken_name, int lines,
                              QWidget* parent);

}  // namespace barvon

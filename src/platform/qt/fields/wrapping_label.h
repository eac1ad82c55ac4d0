#pragma once

#include <QLabel>

namespace barvon {

/// A label that has as many lines as its text asks for.
inline QLabel* Wrapping_Label(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  return label;
}

}  // namespace barvon

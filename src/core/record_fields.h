#pragma once

#include <span>
#include <string>

#include "core/project_record.h"

namespace barvon {

enum class Field_Type {
  Integer,    // 16-bit or int
  Real,       // 32-bit values are given as the number that their own shortest text says
  Text,       // UTF-8
  Character,  // one Windows-1252 byte, given as UTF-8
};

/// One field of the record under its name. Subscripts are those of the field, from 1; a single
/// value takes none, an array takes i, a grid takes i and j. They are not checked.
struct Record_Field {
  const char* name = "";
  Field_Type type = Field_Type::Real;
  int count = 0;   // elements of an array, rows of a grid by its first subscript; 0: single value
  int across = 0;  // elements of each row; 0: not a grid
  double (*number)(const ProjectRecord&, int i, int j) = nullptr;     // Integer and Real, else 0
  std::string (*text)(const ProjectRecord&, int i, int j) = nullptr;  // Text and Character
  // Puts a value there whatever the type, cut to what the field can hold: a text takes the number's
  // text, a character the byte. What fills a whole record goes by it.
  void (*set)(ProjectRecord&, int i, int j, double value) = nullptr;
  // Puts a text there, UTF-8; of a character the first. Text and Character, else nothing.
  void (*set_text)(ProjectRecord&, int i, int j, const std::string& text) = nullptr;
};

/// Every field, in the order of the record: what shows a whole record or compares two goes by it.
/// The tracer's name is under its own name too.
std::span<const Record_Field> Record_Fields();

}  // namespace barvon

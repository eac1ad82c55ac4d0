#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/fields/field_texts.h"

namespace barvon {

enum class Field_Kind {
  Number,
  Text,
  Shown,  // can't be typed, only read and copied
};

/// How a field looks on its screen now, whoever lays it out.
struct Field_Face {
  Control_Name control;
  Control_Name label_name = {};  // of its label, when that has a name
  std::string label = {};        // with its mnemonic
  std::string frame = {};        // the caption of the frame that it is in
  std::string tag = {};
  Field_Kind kind = Field_Kind::Number;
  std::function<std::string(const std::string& typed)> note = {};  // of a number
  int max_length = 0;                                              // of a text; 0: no limit
  bool shown = true;
  std::optional<bool> enabled = {};  // nothing: as it is
};

}  // namespace barvon

#include "platform/fields/field_texts.h"

#include <utility>

namespace barvon {

std::string Control_Name::Reference() const {
  std::string reference(array);
  if (index != kNoIndex) reference += "(" + std::to_string(index) + ")";
  return reference;
}

std::string& Field_Texts::operator()(std::string_view array, int index) {
  return texts_[Control_Name{array, index}.Reference()].text;
}

const std::string& Field_Texts::operator()(std::string_view array, int index) const {
  static const std::string kNone;
  const std::string* text = Find({array, index});
  return text == nullptr ? kNone : *text;
}

const std::string* Field_Texts::Find(const Control_Name& control) const {
  const auto found = texts_.find(control.Reference());
  return found == texts_.end() ? nullptr : &found->second.text;
}

void Field_Texts::Set(const Control_Name& control, std::string text) {
  texts_[control.Reference()].text = std::move(text);
}

void Field_Texts::Set_Filled(const Control_Name& control, std::string filled) {
  texts_.at(control.Reference()).filled = std::move(filled);
}

bool Field_Texts::Is_Untouched(const Control_Name& control) const {
  const auto found = texts_.find(control.Reference());
  return found != texts_.end() && found->second.filled == found->second.text;
}

}  // namespace barvon

#include "batch/json_record.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "core/number_text.h"
#include "core/record_fields.h"

namespace barvon {
namespace {

using nlohmann::json;

constexpr int kLongestListed = 30;  // elements of an array that the listing shows one by one
constexpr std::size_t kNameColumns = 28;

json Element(const Record_Field& field, const ProjectRecord& record, int i, int j) {
  switch (field.type) {
    case Field_Type::Integer:
      return static_cast<std::int64_t>(field.number(record, i, j));
    case Field_Type::Real: {
      const double value = field.number(record, i, j);
      if (!std::isfinite(value)) return Plain_Number(value);
      return value;
    }
    case Field_Type::Text:
    case Field_Type::Character:
      break;
  }
  return field.text(record, i, j);
}

json Value(const Record_Field& field, const ProjectRecord& record) {
  if (field.count == 0) return Element(field, record, 0, 0);
  json array = json::array();
  for (int i = 1; i <= field.count; ++i) {
    if (field.across == 0) {
      array.push_back(Element(field, record, i, 0));
      continue;
    }
    json row = json::array();
    for (int j = 1; j <= field.across; ++j) row.push_back(Element(field, record, i, j));
    array.push_back(std::move(row));
  }
  return array;
}

std::string Dumped(const json& value) {
  return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string Element_Text(const Record_Field& field, const ProjectRecord& record, int i, int j) {
  if (field.type == Field_Type::Text || field.type == Field_Type::Character) {
    return "\"" + field.text(record, i, j) + "\"";
  }
  return Plain_Number(field.number(record, i, j));
}

std::string Extent(const Record_Field& field, const ProjectRecord& record) {
  std::string text = std::to_string(field.count);
  if (field.across > 0) text += " x " + std::to_string(field.across);
  text += field.type == Field_Type::Text ? " texts" : " values";
  if (field.type == Field_Type::Text) return text;
  double least = field.number(record, 1, 1);
  double most = least;
  for (int i = 1; i <= field.count; ++i) {
    for (int j = 1; j <= std::max(field.across, 1); ++j) {
      least = std::min(least, field.number(record, i, j));
      most = std::max(most, field.number(record, i, j));
    }
  }
  return text + ", " + Plain_Number(least) + " to " + Plain_Number(most);
}

}  // namespace

std::string Json_Of(const ProjectRecord& record) {
  std::string text = "{";
  const char* separator = "\n";
  for (const Record_Field& field : Record_Fields()) {
    text += separator + Dumped(field.name) + ": " + Dumped(Value(field, record));
    separator = ",\n";
  }
  return text + "\n}\n";
}

std::string Listing_Of(const ProjectRecord& record) {
  std::string text;
  for (const Record_Field& field : Record_Fields()) {
    std::string name = field.name;
    if (name.size() < kNameColumns) name.resize(kNameColumns, ' ');
    text += name;
    if (field.count == 0) {
      text += " " + Element_Text(field, record, 0, 0);
    } else if (field.across > 0 || field.count > kLongestListed) {
      text += " " + Extent(field, record);
    } else {
      for (int i = 1; i <= field.count; ++i) text += " " + Element_Text(field, record, i, 0);
    }
    text += "\n";
  }
  return text;
}

}  // namespace barvon

#include "support/record_differences.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "core/record_fields.h"

namespace barvon::testing {
namespace {

bool Same_Element(const Record_Field& field, const ProjectRecord& a, const ProjectRecord& b, int i,
                  int j) {
  if (field.type == Field_Type::Text || field.type == Field_Type::Character) {
    return field.text(a, i, j) == field.text(b, i, j);
  }
  return std::bit_cast<std::uint64_t>(field.number(a, i, j)) ==
         std::bit_cast<std::uint64_t>(field.number(b, i, j));
}

bool Same(const Record_Field& field, const ProjectRecord& a, const ProjectRecord& b) {
  const int first = field.count == 0 ? 0 : 1;
  for (int i = first; i <= field.count; ++i) {
    for (int j = field.across == 0 ? 0 : 1; j <= field.across; ++j) {
      if (!Same_Element(field, a, b, i, j)) return false;
    }
  }
  return true;
}

}  // namespace

std::vector<std::string> Differing_Fields(const ProjectRecord& a, const ProjectRecord& b,
                                          const std::vector<std::string>& except) {
  std::vector<std::string> names;
  for (const Record_Field& field : Record_Fields()) {
    if (std::find(except.begin(), except.end(), field.name) != except.end()) continue;
    if (!Same(field, a, b)) names.emplace_back(field.name);
  }
  return names;
}

}  // namespace barvon::testing

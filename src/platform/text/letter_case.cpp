#include "platform/text/letter_case.h"

namespace barvon {

std::string Upper_Case(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = Upper_Case(c);
  return upper;
}

bool Equal_Ignoring_Case(std::string_view a, std::string_view b) {
  return a.size() == b.size() && Upper_Case(a) == Upper_Case(b);
}

}  // namespace barvon

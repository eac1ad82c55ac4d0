#include "platform/files/name_case.h"

#include <cstddef>

#include "platform/text/letter_case.h"

namespace barvon {

std::string Folded_Name(std::string_view name) {
  std::string folded = Upper_Case(name);
  for (std::size_t at = 1; at < folded.size(); ++at) {
    const auto byte = static_cast<unsigned char>(folded[at]);
    const auto lead = static_cast<unsigned char>(folded[at - 1]);
    if (lead == 0xC3 && byte == 0xBF) {  // y with two dots, whose capital is elsewhere
      folded[at - 1] = '\xC5';
      folded[at] = '\xB8';
    } else if (lead == 0xC3 && byte >= 0xA0 && byte != 0xB7) {  // B7 is the division sign
      folded[at] = static_cast<char>(byte - 0x20);
    } else if (lead == 0xC5 && (byte == 0xA1 || byte == 0x93 || byte == 0xBE)) {  // s, oe, z
      folded[at] = static_cast<char>(byte - 1);
    }
  }
  return folded;
}

}  // namespace barvon

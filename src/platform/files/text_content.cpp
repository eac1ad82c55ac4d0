#include "platform/files/text_content.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";  // U+FEFF

bool Has_A_Long_Line(std::string_view text) {
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
    if (end - start > kLongestEditedLine) return true;
    start = end + 1;
  }
  return false;
}

}  // namespace

const char* Encoding_Name(Text_Encoding encoding) {
  switch (encoding) {
    case Text_Encoding::Windows_1252:
      return "Windows-1252";
    case Text_Encoding::UTF8:
      return "UTF-8";
    case Text_Encoding::UTF8_With_Mark:
      return "UTF-8 with mark";
    case Text_Encoding::ASCII:
      break;
  }
  return "ASCII";
}

Text_Encoding Encoding_Of(std::string_view bytes) {
  if (bytes.starts_with(kMark) && Is_UTF8(bytes)) return Text_Encoding::UTF8_With_Mark;
  if (Is_ASCII(bytes)) return Text_Encoding::ASCII;
  return Is_UTF8(bytes) ? Text_Encoding::UTF8 : Text_Encoding::Windows_1252;
}

Text_Content Content_Of(std::string_view bytes) {
  const Text_Encoding encoding = Encoding_Of(bytes);
  if (encoding == Text_Encoding::UTF8_With_Mark) bytes.remove_prefix(kMark.size());
  return {encoding,
          encoding == Text_Encoding::Windows_1252 ? From_File_Bytes(bytes) : std::string(bytes)};
}

bool Can_Be_Edited(std::string_view text) {
  // The paragraph separator and the marks of a frame's beginning and end are line ends to the
  // toolkit; a mark in front is taken for that of the encoding.
  static constexpr std::array<std::string_view, 3> kLost = {"\xE2\x80\xA9", "\xEF\xB7\x90",
                                                            "\xEF\xB7\x91"};
  const auto holds = [text](std::string_view lost) {
    return text.find(lost) != std::string_view::npos;
  };
  return std::ranges::none_of(kLost, holds) && !text.starts_with(kMark) && !Has_A_Long_Line(text);
}

std::optional<std::string> Bytes_Of(const Text_Content& content) {
  switch (content.encoding) {
    case Text_Encoding::Windows_1252:
      if (!Fits_File_Encoding(content.text)) return std::nullopt;
      return To_File_Bytes(content.text);
    case Text_Encoding::UTF8_With_Mark:
      return std::string(kMark) + content.text;
    case Text_Encoding::ASCII:
      return To_Settings_Bytes(content.text);
    case Text_Encoding::UTF8:
      break;
  }
  return content.text;
}

}  // namespace barvon

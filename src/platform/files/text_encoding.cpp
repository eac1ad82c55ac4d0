#include "platform/files/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace barvon {
namespace {

constexpr std::uint32_t kNoCharacter = 0xFFFFFFFF;

/// Windows-1252 80 to 9F as Unicode; an open place stands for the control character it would be.
constexpr std::array<std::uint32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Of a character above ASCII.
void Append_UTF8(std::string& text, std::uint32_t character) {
  if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (character >> 12));
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
}

/// Takes the character at `at` and moves past it; kNoCharacter for a byte that is no UTF-8.
std::uint32_t Next_Character(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  if (lead < 0x80) return lead;
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || at + static_cast<std::size_t>(more) > text.size()) {
    return kNoCharacter;
  }
  std::uint32_t character = lead & (0x3F >> more);
  for (int i = 0; i < more; ++i) {
    const auto next = static_cast<unsigned char>(text[at + static_cast<std::size_t>(i)]);
    if ((next & 0xC0) != 0x80) return kNoCharacter;
    character = (character << 6) | (next & 0x3F);
  }
  constexpr std::array<std::uint32_t, 4> kLeast = {0, 0x80, 0x800, 0x10000};
  if (character < kLeast[more]) return kNoCharacter;
  if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) return kNoCharacter;
  at += static_cast<std::size_t>(more);
  return character;
}

std::optional<char> File_Byte(std::uint32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) {
    return static_cast<char>(character);
  }
  for (std::size_t i = 0; i < kUpperControls.size(); ++i) {
    if (kUpperControls[i] == character) return static_cast<char>(0x80 + i);
  }
  return std::nullopt;
}

}  // namespace

bool Is_ASCII(std::string_view bytes) {
  return std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool Is_UTF8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    if (Next_Character(bytes, at) == kNoCharacter) return false;
  }
  return true;
}

bool Reads_As_UTF8(std::string_view bytes) { return !Is_ASCII(bytes) && Is_UTF8(bytes); }

std::string To_File_Bytes(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::uint32_t character = Next_Character(text, at);
    bytes += character == kNoCharacter ? '?' : File_Byte(character).value_or('?');
  }
  return bytes;
}

std::string From_File_Bytes(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    // ASCII, which is nearly all of most files, is taken in one go.
    const std::string_view rest = bytes.substr(at);
    const auto end = std::ranges::find_if(rest, [](char c) { return (c & 0x80) != 0; });
    const auto ascii = static_cast<std::size_t>(end - rest.begin());
    text.append(rest.substr(0, ascii));
    at += ascii;
    if (at == bytes.size()) break;
    const auto byte = static_cast<unsigned char>(bytes[at]);
    Append_UTF8(text, byte < 0xA0 ? kUpperControls[byte - 0x80u] : byte);
  }
  return text;
}

bool Fits_File_Encoding(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::uint32_t character = Next_Character(text, at);
    if (character == kNoCharacter || !File_Byte(character)) return false;
  }
  return true;
}

bool Has_Control_Letters(std::string_view text) {
  constexpr unsigned char kBlank = 0x20, kDelete = 0x7F, kUpperLead = 0xC2, kUpperEnd = 0xA0;
  unsigned char before = kBlank;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < kBlank || byte == kDelete || (before == kUpperLead && byte < kUpperEnd)) return true;
    before = byte;
  }
  return false;
}

std::string To_Settings_Bytes(std::string_view text) {
  if (!Fits_File_Encoding(text)) return std::string(text);
  std::string bytes = To_File_Bytes(text);
  return Reads_As_UTF8(bytes) ? std::string(text) : bytes;
}

std::string From_Settings_Bytes(std::string_view bytes) {
  return Reads_As_UTF8(bytes) ? std::string(bytes) : From_File_Bytes(bytes);
}

}  // namespace barvon

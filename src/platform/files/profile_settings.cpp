#include "platform/files/profile_settings.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kLineBreaks = "\r\n";

std::string_view Without_Blanks(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// A section or key name as it stands in the file, against one in memory.
bool Names(std::string_view in_file, std::string_view name) {
  return Equal_Ignoring_Case(From_Settings_Bytes(Without_Blanks(in_file)), name);
}

/// The section that a line heads; nothing when it is no heading.
std::optional<std::string_view> Heading(std::string_view line) {
  line = Without_Blanks(line);
  if (line.empty() || line.front() != '[') return std::nullopt;
  const auto end = line.find(']');
  if (end == std::string_view::npos) return std::nullopt;
  return line.substr(1, end - 1);
}

/// Where a key is in the text of a profile, or where it would have to go.
struct Place {
  bool section = false;
  bool key = false;
  std::size_t equals = 0;     // behind "="
  std::size_t value = 0;      // behind the blanks that follow it
  std::size_t value_end = 0;  // where the line's text ends
  std::size_t insert = 0;     // behind the last line of the section that is not blank
};

Place Find_Place(std::string_view text, std::string_view section, std::string_view key) {
  Place place;
  std::size_t at = text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? 3 : 0;
  while (at < text.size()) {
    const std::size_t feed = text.find('\n', at);
    const std::size_t next = feed == std::string_view::npos ? text.size() : feed + 1;
    std::size_t end = feed == std::string_view::npos ? text.size() : feed;
    if (end > at && text[end - 1] == '\r') --end;
    const std::string_view line = text.substr(at, end - at);
    if (line.empty()) {
      at = next;
      continue;
    }
    if (const auto heading = Heading(line)) {
      if (place.section) return place;
      place.section = Names(*heading, section);
      place.insert = next;
    } else if (place.section && !Without_Blanks(line).empty()) {
      place.insert = next;
      const std::size_t equals = line.find('=');
      if (Without_Blanks(line).front() != ';' && equals != std::string_view::npos &&
          Names(line.substr(0, equals), key)) {
        const std::size_t value = line.find_first_not_of(" \t", equals + 1);
        place.key = true;
        place.equals = at + equals + 1;
        place.value = value == std::string_view::npos ? end : at + value;
        place.value_end = end;
        return place;
      }
    }
    at = next;
  }
  return place;
}

std::string Value_From(std::string_view bytes) {
  bytes = Without_Blanks(bytes);
  if (bytes.size() >= 2 && bytes.front() == bytes.back() &&
      (bytes.front() == '"' || bytes.front() == '\'')) {
    bytes = bytes.substr(1, bytes.size() - 2);
  }
  std::string value = From_Settings_Bytes(bytes);
  if (value.size() > kProfileBuffer) {
    std::size_t cut = kProfileBuffer;
    while (cut > 0 && (static_cast<unsigned char>(value[cut]) & 0xC0) == 0x80) --cut;
    value.resize(cut);
  }
  return value;
}

/// A name that would be found again under itself.
bool Can_Stand_As_Name(std::string_view name, std::string_view forbidden) {
  return !name.empty() && Without_Blanks(name) == name &&
         name.find_first_of(kLineBreaks) == std::string_view::npos &&
         name.find_first_of(forbidden) == std::string_view::npos;
}

std::string With_Value(const std::string& text, const Profile_Entry& entry) {
  const auto& [section, key, value] = entry;
  const Place place = Find_Place(text, section, key);
  const std::string bytes = To_Settings_Bytes(value);
  if (place.key) {
    // The blanks of "Key = Value" stay, but must not pile up with those of the value itself.
    const bool blanks_stay = !bytes.empty() && bytes.front() != ' ' && bytes.front() != '\t';
    return text.substr(0, blanks_stay ? place.value : place.equals) + bytes +
           text.substr(place.value_end);
  }
  const std::size_t insert = place.section ? place.insert : text.size();
  std::string changed = text.substr(0, insert);
  if (!changed.empty() && changed.back() != '\n') changed += kLineEnd;
  if (!place.section) changed.append("[" + To_Settings_Bytes(section) + "]").append(kLineEnd);
  changed.append(To_Settings_Bytes(key) + "=" + bytes).append(kLineEnd);
  return changed + text.substr(insert);
}

}  // namespace

std::string Read_Profile_String(const std::string& path, const std::string& section,
                                const std::string& key, const std::string& fallback, int* error) {
  std::string text;
  const int read = Read_Whole_File(path, text);
  if (error != nullptr) *error = read == ENOENT ? 0 : read;
  if (read != 0) return fallback;
  const Place place = Find_Place(text, section, key);
  if (!place.key) return fallback;
  return Value_From(std::string_view(text).substr(place.value, place.value_end - place.value));
}

bool Can_Be_In_Profile(const Profile_Entry& entry) {
  return Can_Stand_As_Name(entry.section, "]") && Can_Stand_As_Name(entry.key, "=") &&
         entry.key.front() != ';' && entry.key.front() != '[' &&
         entry.value.find_first_of(kLineBreaks) == std::string::npos;
}

bool Is_Read_Back_From_Profile(const std::string& value) {
  return value.find_first_of(kLineBreaks) == std::string::npos &&
         Value_From(To_Settings_Bytes(value)) == value;
}

int Write_Profile_Strings(const std::string& path, const std::vector<Profile_Entry>& entries) {
  if (!std::ranges::all_of(entries, Can_Be_In_Profile)) return EINVAL;
  std::string text;
  const int error = Read_Whole_File(path, text);
  // A file that is there but can't be read must not be replaced by one with a few keys.
  if (error != 0 && error != ENOENT) return error;
  std::string changed = text;
  for (const Profile_Entry& entry : entries) changed = With_Value(changed, entry);
  return error == 0 && changed == text ? 0 : Write_Whole_File(path, changed);
}

}  // namespace barvon

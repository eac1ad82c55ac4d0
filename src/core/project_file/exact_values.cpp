#include "core/project_file/exact_values.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/number_text.h"

namespace barvon {
namespace {

constexpr std::string_view kHead =
    "Exact values of this project that the columns above this line can not hold: ";
constexpr std::string_view kEnd = "End of the exact values";
constexpr std::string_view kEquals = " = ";
constexpr std::string_view kColumnsGive = "; the columns give ";
constexpr std::string_view kNothing = "nothing";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool Same_Bits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// ---- Numbers

/// A 32-bit value is written by the shortest text of its 32 bits.
std::string Number_Text(double value, bool narrow) {
  return Exact_Number(narrow ? Widen(static_cast<float>(value)) : value);
}

bool Read_Number(std::string_view text, bool narrow, double& value) {
  if (!Read_Exact_Number(text, value)) return false;
  if (narrow) value = static_cast<double>(static_cast<float>(value));
  return true;
}

// ---- Texts

/// In quotes, in letters that survive any editor: backslash, quote and every byte that is no
/// printable ASCII as \xNN.
std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte >= 0x7F || c == '"' || c == '\\') {
      quoted.append("\\x") += kHexDigits[byte >> 4];
      quoted += kHexDigits[byte & 0xF];
    } else {
      quoted += c;
    }
  }
  return quoted + "\"";
}

std::optional<std::string> Unquoted(std::string_view quoted) {
  if (quoted.size() < 2 || quoted.front() != '"' || quoted.back() != '"') return std::nullopt;
  quoted = quoted.substr(1, quoted.size() - 2);
  std::string text;
  for (std::size_t at = 0; at < quoted.size(); ++at) {
    if (quoted[at] != '\\') {
      text += quoted[at];
      continue;
    }
    if (at + 3 >= quoted.size()) return std::nullopt;
    const auto high = kHexDigits.find(quoted[at + 2]);
    const auto low = kHexDigits.find(quoted[at + 3]);
    if (quoted[at + 1] != 'x' || high == std::string_view::npos || low == std::string_view::npos) {
      return std::nullopt;
    }
    text += static_cast<char>(high * 16 + low);
    at += 3;
  }
  return text;
}

/// A text of the image that the exact values cover, by its name.
struct Image_Text {
  std::string name;
  std::string text;
};

std::vector<Image_Text> Texts_Of(const Project_Image& image) {
  std::vector<Image_Text> texts;
  for (std::size_t i = 1; i <= kSolidEntries; ++i) {
    texts.push_back({"SolidNames(" + std::to_string(i) + ")", image.SolidNames[i]});
  }
  for (std::size_t i = 1; i < image.SectionStatus.size(); ++i) {
    texts.push_back(
        {"SectionStatus(" + std::to_string(i) + ")", std::string(1, image.SectionStatus[i])});
  }
  return texts;
}

/// `index` counts as Texts_Of does.
bool Set_Text(Project_Image& image, std::size_t index, const std::string& text) {
  if (index < kSolidEntries) {
    image.SolidNames[index + 1] = text;
    return true;
  }
  if (text.size() != 1) return false;
  image.SectionStatus[index - kSolidEntries + 1] = text.front();
  return true;
}

// ---- Lines

std::string Line(const std::string& name, const std::string& exact, const std::string& given) {
  std::string line = name;
  line.append(kEquals).append(exact).append(kColumnsGive).append(given).append(kLineEnd);
  return line;
}

struct Entry {
  std::string_view name, exact, given;
};

/// Names hold no " = ", and what the columns gave is split off from the right, since a quoted text
/// may hold anything.
std::optional<Entry> Parse_Line(std::string_view line) {
  const auto equals = line.find(kEquals);
  const auto gives = line.rfind(kColumnsGive);
  if (equals == std::string_view::npos || gives == std::string_view::npos ||
      gives < equals + kEquals.size()) {
    return std::nullopt;
  }
  const auto exact = equals + kEquals.size();
  return Entry{line.substr(0, equals), line.substr(exact, gives - exact),
               line.substr(gives + kColumnsGive.size())};
}

std::optional<std::string_view> Take_Line(std::string_view& rest) {
  const auto end = rest.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

class Exact_Reader {
 public:
  explicit Exact_Reader(Columns_Read& columns)
      : columns_(columns), texts_(Texts_Of(columns.image)) {}

  bool Apply(const Entry& entry) {
    if (const auto number = Number_Named(entry.name)) return Apply_Number(entry, *number);
    for (std::size_t i = 0; i < texts_.size(); ++i) {
      if (texts_[i].name == entry.name) return Apply_Text(entry, i);
    }
    return false;
  }

 private:
  bool Apply_Number(const Entry& entry, const Image_Number& number) {
    const bool narrow = Is_Narrow(number);
    const auto index = Index_Of(number);
    double exact = 0;
    double given = 0;
    if (!Read_Number(entry.exact, narrow, exact)) return false;
    const bool gave_nothing = entry.given == kNothing;
    if (!gave_nothing && !Read_Number(entry.given, narrow, given)) return false;
    const bool gives = columns_.given[index];
    const bool as_it_was =
        gave_nothing ? !gives : gives && Same_Bits(Number_In(columns_.image, number), given);
    if (as_it_was) {
      Number_In(columns_.image, number) = exact;
      columns_.given[index] = true;
    }
    return true;
  }

  bool Apply_Text(const Entry& entry, std::size_t index) {
    const auto exact = Unquoted(entry.exact);
    const auto given = Unquoted(entry.given);
    if (!exact || !given) return false;
    return texts_[index].text != *given || Set_Text(columns_.image, index, *exact);
  }

  Columns_Read& columns_;
  std::vector<Image_Text> texts_;
};

}  // namespace

std::string Exact_Value_Lines(const Project_Image& image, const Columns_Read& columns) {
  std::string lines;
  std::size_t count = 0;
  for (const Number_Row& row : Image_Rows()) {
    const std::size_t start = Index_Of(row.first);
    const auto exact = Row_In(image, row), read = Row_In(columns.image, row);
    for (std::size_t i = 0; i < row.count; ++i) {
      const bool given = columns.given[start + i] != 0;
      if (given && Same_Bits(exact[i], read[i])) continue;
      const Image_Number& number = Image_Numbers()[start + i];
      const bool narrow = Is_Narrow(number);
      lines += Line(Name_Of_Number(number), Number_Text(exact[i], narrow),
                    given ? Number_Text(read[i], narrow) : std::string(kNothing));
      ++count;
    }
  }
  const std::vector<Image_Text> exact = Texts_Of(image);
  const std::vector<Image_Text> read = Texts_Of(columns.image);
  for (std::size_t i = 0; i < exact.size(); ++i) {
    if (exact[i].text == read[i].text) continue;
    lines += Line(exact[i].name, Quoted(exact[i].text), Quoted(read[i].text));
    ++count;
  }
  if (count == 0) return {};
  std::string text(kHead);
  text += std::to_string(count);
  return text.append(kLineEnd).append(lines).append(kEnd).append(kLineEnd);
}

File_Parts Split_File(std::string_view bytes) {
  // The head is longer than a title or a line of names can be, so none of them passes for it. It
  // is found by a letter that no column and no name of a value has: only texts hold others.
  const std::string head = "\n" + std::string(kHead);
  const std::size_t rare = head.find('j');
  std::size_t found = std::string_view::npos;
  for (auto at = bytes.find('j'); at != std::string_view::npos; at = bytes.find('j', at + 1)) {
    if (at >= rare && bytes.substr(at - rare, head.size()) == head) found = at - rare;
  }
  if (found == std::string_view::npos) {
    // A file may be cut off inside the head: what is left of it tells that values are missing.
    found = bytes.rfind('\n');
    if (found == std::string_view::npos || !head.starts_with(bytes.substr(found))) {
      return {bytes, {}};
    }
  }
  return {bytes.substr(0, found + 1), bytes.substr(found + 1)};
}

Failure Apply_Exact_Values(const File_Parts& parts, Columns_Read& columns, std::string& damaged) {
  std::string_view exact = parts.exact;
  std::ptrdiff_t number = 1;  // of the line, behind the columns
  const auto tell = [&](std::string_view line) {
    number += std::count(parts.columns.begin(), parts.columns.end(), '\n');
    damaged = "line " + std::to_string(number) + ": " + std::string(line);
    return Failure::Type_Mismatch;
  };
  const auto head = Take_Line(exact);
  if (!head) return Failure::Input_Past_End;
  const std::string_view count_text = head->substr(kHead.size());
  std::size_t count = 0;
  const auto [end, error] =
      std::from_chars(count_text.data(), count_text.data() + count_text.size(), count);
  if (error != std::errc() || end != count_text.data() + count_text.size()) {
    return tell(*head);
  }
  Exact_Reader reader(columns);
  for (std::size_t i = 0; i < count; ++i) {
    const auto line = Take_Line(exact);
    if (!line) return Failure::Input_Past_End;
    ++number;
    const auto entry = Parse_Line(*line);
    if (!entry || !reader.Apply(*entry)) return tell(*line);
  }
  if (exact.substr(0, kEnd.size()) != kEnd) {
    if (exact.size() < kEnd.size()) return Failure::Input_Past_End;
    ++number;
    return tell(exact.substr(0, exact.find_first_of("\r\n")));
  }
  return Front_Is_Given(columns.given) ? Failure::None : columns.failure;
}

}  // namespace barvon

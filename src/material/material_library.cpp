#include "material/material_library.h"

#include <algorithm>

#include "core/desk/settings_keys.h"
#include "core/format_pattern.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/files/text_encoding.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

constexpr char kCountKey[] = "Listsize";
constexpr char kEntryKey[] = "Fraction";
constexpr char kCountPattern[] = "##";
constexpr std::size_t kValues = 7;  // behind the name
constexpr char kDelimiters[] = {' ', '\n', '\x1b', '\0'};

std::string Entry_Key(std::size_t number) {
  return kEntryKey + Format_Number(static_cast<double>(number), kCountPattern);
}

/// The words of an entry. Its end closes the last of them.
std::vector<std::string> Words_Of(const std::string& entry) {
  std::vector<std::string> words;
  std::string rest = Trimmed(entry) + " ";
  while (const auto token = Next_Token(rest)) {
    const std::string word = Trimmed(token->substr(0, token->size() - 1));
    if (!word.empty()) words.push_back(word);
    rest.erase(0, token->size());
  }
  return words;
}

bool Is_Control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }

}  // namespace

std::optional<std::string> Next_Token(std::string_view text) {
  for (const char delimiter : kDelimiters) {
    const std::size_t at = text.find(delimiter);
    if (at != text.npos) return std::string(text.substr(0, at + 1));
  }
  return std::nullopt;
}

Material_Library Read_Material_List(const std::string& section) {
  Material_Library library{section};
  const double told = Lenient_Number(Read_Setting(section, kCountKey, kNotUsed));
  const double count = std::clamp<double>(Round_Half_Even(told), 0, kMaxLibraryEntries);
  for (std::size_t i = 1; static_cast<double>(i) <= count; ++i) {
    const std::string entry = Read_Setting(section, Entry_Key(i), kNotUsed);
    library.entries.push_back(entry.starts_with(kNotUsed) ? "" : Trimmed(entry));
  }
  return library;
}

std::vector<std::string> Show_Material_List(Material_Library& library,
                                            std::span<const char* const> seeds) {
  if (library.entries.empty()) {
    for (const char* seed : seeds) library.entries.push_back(std::string(seed) + " ");
  }
  std::vector<std::string> lines;
  for (const std::string& entry : library.entries) {
    lines.push_back(entry.empty() ? "" : Next_Token(entry).value_or(entry));
  }
  return lines;
}

Material_Record Parse_Material(const std::string& entry) {
  const std::vector<std::string> words = Words_Of(entry);
  if (words.empty()) return {};
  // Where the name has more than one word its values begin later.
  const std::size_t first = words.size() > kValues ? words.size() - kValues : 1;
  const auto word = [&](std::size_t value) {
    return first + value < words.size() ? words[first + value] : std::string();
  };
  const auto number = [&](std::size_t value) {
    return static_cast<float>(std::clamp<double>(Lenient_Number(word(value)), -1e30, 1e30));
  };
  return {words[0], number(0), number(1), number(2), number(3), number(4), word(5), word(6)};
}

bool Same_Material(std::string_view name, std::string_view other) {
  return Equal_Ignoring_Case(Trimmed(name), Trimmed(other));
}

void Add_Material_To_List(const ProjectRecord& record, int solid, Material_Library& library) {
  const auto i = static_cast<std::size_t>(solid);
  std::string entry = Material_Name(record.SolidNames.at(i)) + " ";
  const auto add = [&entry](double value, const char* pattern) {
    entry += Format_Number(value, pattern) + " ";
  };
  add(record.SolidSG[i], "###.00");
  add(record.SolidVolFraction[i], "###.000");
  add(record.SolidFallVelocity[i], "###.000");
  add(record.SolidVoidRatio[i], "###.0000");
  add(record.SolidCriticalShear[i], "###.0000");
  entry += record.SolidCohesive[i] == 0 ? "N " : "Y ";
  entry += record.SolidStripped[i] == 0 ? "N " : "Y ";
  library.entries.push_back(entry);
  const std::size_t count = library.entries.size();
  Write_Setting(library.section, kCountKey,
                Format_Number(static_cast<double>(count), kCountPattern));
  Write_Setting(library.section, Entry_Key(count), entry);
}

void Save_New_Materials(const ProjectRecord& record, std::vector<std::string> lines,
                        Material_Library& library) {
  const Settings_Of_Command settings;
  for (int i = 1; i <= std::min<int>(record.NumSolids, kMaxSolids); ++i) {
    const std::string& name = record.SolidNames[static_cast<std::size_t>(i)];
    const auto same = [&](const std::string& line) { return Same_Material(name, line); };
    if (Trimmed(name).empty() || std::ranges::any_of(lines, same)) continue;
    Add_Material_To_List(record, i, library);
    lines.push_back(name);
  }
}

std::string Material_Name(const std::string& typed) {
  std::string name = typed;
  std::ranges::replace_if(name, Is_Control, ' ');
  return name;
}

std::string Material_Name_Note(const std::string& typed) {
  if (!Fits_File_Encoding(typed)) return "has a character that the project file can't keep";
  if (Character_Count(typed) > kLongestMaterial) return "is longer than the library keeps";
  if (typed.starts_with(kNotUsed)) return "is taken by the library as an empty line";
  return "";
}

}  // namespace barvon

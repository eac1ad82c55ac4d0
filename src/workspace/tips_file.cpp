#include "workspace/tips_file.h"

#include <algorithm>
#include <random>
#include <string_view>
#include <utility>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/settings_keys.h"
#include "core/number_reading.h"
#include "platform/files/path_lookup.h"
#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::vector<std::string> Lines_Of(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
    const std::size_t line_end = text.starts_with("\r\n") ? 2 : 1;
    text.remove_prefix(std::min(line_end, text.size()));
  }
  return lines;
}

Chance Of_The_Program() {
  return [engine = std::mt19937(std::random_device{}())]() mutable {
    return std::uniform_real_distribution<>()(engine);
  };
}

Chance& Tip_Chance() {
  static Chance chance = Of_The_Program();
  return chance;
}

}  // namespace

bool LoadTips(const std::string& file_name, Tip_Collection& collection) {
  if (file_name.empty()) return false;
  const auto path = Find_Path(file_name);
  std::string bytes;
  if (!path || Read_Whole_File(*path, bytes) != 0) return false;
  if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
  collection = {Lines_Of(From_Settings_Bytes(bytes)), 0};
  Next_Tip(collection);
  return true;
}

void Next_Tip(Tip_Collection& collection) {
  const auto tips = static_cast<int>(collection.tips.size());
  if (tips == 0) return;
  // A source that gives 1 all the same must not lead behind the last tip.
  collection.current = std::min(static_cast<int>(Tip_Chance()() * tips), tips - 1) + 1;
}

std::string Current_Tip(const Tip_Collection& collection) {
  if (collection.current == 0) return {};
  return collection.tips.at(static_cast<std::size_t>(collection.current - 1));
}

std::string Missing_Tips_Text() {
  const std::string file = kTipsFile;
  return "That the " + file + " file was not found? \n\nCreate a text file named " + file +
         " using NotePad with 1 tip per line. Then place it in the same directory as the "
         "application. ";
}

Chance Set_Tip_Chance(Chance chance) { return std::exchange(Tip_Chance(), std::move(chance)); }

bool Tips_At_Start_Wanted() {
  const std::string setting = Read_Setting(kOptionsSection, kTipsAtStartKey, "0");
  return Read_Real(setting).value.value_or(0) != 0;
}

void Choose_Tips_At_Start(bool wanted) {
  Write_Setting(kOptionsSection, kTipsAtStartKey, wanted ? "1" : "0");
}

void Open_Tips_At_Start() {
  if (Tips_At_Start_Wanted()) Open_Screen(Row_Of_Screen("frmTip"), false);
}

}  // namespace barvon

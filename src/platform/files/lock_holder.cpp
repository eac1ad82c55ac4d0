#include "platform/files/lock_holder.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <filesystem>
#include <system_error>

#include "platform/files/safe_file.h"

namespace barvon {
namespace {

constexpr std::string_view kFirstLine = "BARVON lock 1\n";
constexpr std::string_view kLastLine = "end\n";
constexpr std::size_t kLongestText = 200;

/// One line of at most so many bytes: names come from outside.
std::string On_One_Line(std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char c) { return c < ' ' || c == 127; }, '?');
  if (text.size() > kLongestText) text.resize(kLongestText);
  return text;
}

std::string First_Word_Of_File(const std::string& path) {
  std::string text;
  if (Read_Whole_File(path, text) != 0) return {};
  return text.substr(0, text.find_first_of(" \n"));
}

/// The 22nd value of the process's line; the name, the second, may hold blanks and brackets.
/// Empty when there is no such process, or only what is left of one until it is waited for.
std::string Start_Of_Process(long process) {
  std::string line;
  if (Read_Whole_File("/proc/" + std::to_string(process) + "/stat", line) != 0) return {};
  const std::size_t bracket = line.rfind(')');
  if (bracket == std::string::npos) return {};
  constexpr int kStart = 22, kState = 3;
  std::size_t at = bracket;
  std::string value;
  for (int i = kState; i <= kStart; ++i) {
    at = line.find(' ', at);
    if (at == std::string::npos) return {};
    const std::size_t next = line.find(' ', ++at);
    value = line.substr(at, next == std::string::npos ? next : next - at);
    if (i == kState && (value == "Z" || value == "X")) return {};
  }
  return value;
}

std::string User_Name() {
  const passwd* const entry = ::getpwuid(::geteuid());
  return entry != nullptr ? entry->pw_name : "user " + std::to_string(::geteuid());
}

std::string Host_Name() {
  std::array<char, HOST_NAME_MAX + 1> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

/// What stands behind "name=" on its line, which the lines lose.
std::optional<std::string> Take_Line(std::string_view& lines, std::string_view name) {
  const std::size_t end = lines.find('\n');
  if (end == std::string_view::npos || !lines.starts_with(name)) return std::nullopt;
  std::string value(lines.substr(name.size(), end - name.size()));
  lines.remove_prefix(end + 1);
  return value;
}

template <class Number>
bool Take_Number(std::string_view& lines, std::string_view name, Number& number) {
  const std::optional<std::string> text = Take_Line(lines, name);
  if (!text) return false;
  const char* const end = text->data() + text->size();
  const auto [behind, error] = std::from_chars(text->data(), end, number);
  return error == std::errc() && behind == end;
}

bool Take_Text(std::string_view& lines, std::string_view name, std::string& text) {
  std::optional<std::string> value = Take_Line(lines, name);
  if (!value) return false;
  text = *std::move(value);
  return true;
}

}  // namespace

Lock_Holder This_Program() {
  std::error_code error;
  Lock_Holder holder;
  holder.user = On_One_Line(User_Name());
  holder.host = On_One_Line(Host_Name());
  holder.program =
      On_One_Line(std::filesystem::read_symlink("/proc/self/exe", error).filename().string());
  holder.process = ::getpid();
  holder.start = Start_Of_Process(holder.process);
  holder.machine = On_One_Line(First_Word_Of_File("/etc/machine-id"));
  holder.boot = On_One_Line(First_Word_Of_File("/proc/sys/kernel/random/boot_id"));
  holder.since = std::time(nullptr);
  return holder;
}

std::string Holder_Lines(const Lock_Holder& holder) {
  return std::string(kFirstLine) + "user=" + holder.user + "\nhost=" + holder.host +
         "\nprogram=" + holder.program + "\nprocess=" + std::to_string(holder.process) +
         "\nstart=" + holder.start + "\nmachine=" + holder.machine + "\nboot=" + holder.boot +
         "\nsince=" + std::to_string(holder.since) + "\n" + std::string(kLastLine);
}

std::optional<Lock_Holder> Read_Holder(std::string_view lines) {
  if (!lines.starts_with(kFirstLine)) return std::nullopt;
  lines.remove_prefix(kFirstLine.size());
  Lock_Holder holder;
  const bool whole =
      Take_Text(lines, "user=", holder.user) && Take_Text(lines, "host=", holder.host) &&
      Take_Text(lines, "program=", holder.program) &&
      Take_Number(lines, "process=", holder.process) && Take_Text(lines, "start=", holder.start) &&
      Take_Text(lines, "machine=", holder.machine) && Take_Text(lines, "boot=", holder.boot) &&
      Take_Number(lines, "since=", holder.since) && lines == kLastLine;
  if (!whole) return std::nullopt;
  for (std::string* text : {&holder.user, &holder.host, &holder.program}) {
    *text = On_One_Line(*text);
  }
  return holder;
}

Holder_State State_Of(const Lock_Holder& holder) {
  const Lock_Holder here = This_Program();
  // Two systems can have one name, as copies of one system have one number.
  if (holder.host != here.host || holder.machine != here.machine) return Holder_State::Elsewhere;
  if (holder.boot != here.boot) {
    return here.machine.empty() ? Holder_State::Elsewhere : Holder_State::Has_Ended;
  }
  const std::string start = Start_Of_Process(holder.process);
  return !start.empty() && start == holder.start ? Holder_State::Runs : Holder_State::Has_Ended;
}

std::string Holder_In_Words(const Lock_Holder& holder) {
  return holder.user + " on " + holder.host + ", " + holder.program + " (process " +
         std::to_string(holder.process) + "), since " + Time_In_Words(holder.since);
}

std::string Time_In_Words(std::time_t time) {
  std::tm parts{};
  std::array<char, 32> text{};
  if (::localtime_r(&time, &parts) == nullptr) return "";
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts);
  return {text.data(), length};
}

}  // namespace barvon

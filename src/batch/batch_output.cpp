#include "batch/batch_output.h"

#include <cerrno>
#include <cstdio>

namespace barvon {
namespace {

int first_error = 0;

std::string One_Line(std::string text) {
  for (char& c : text) {
    // A file's name may hold what a terminal would act upon.
    constexpr char kDelete = 0x7F;
    if ((c >= 0 && c < ' ') || c == kDelete) c = ' ';
  }
  return text;
}

}  // namespace

void Say_Text(const std::string& text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() && first_error == 0) {
    first_error = errno;
  }
}

void Say(std::initializer_list<std::string> parts) {
  std::string line;
  for (const std::string& part : parts) {
    if (!line.empty()) line += '\t';
    line += One_Line(part);
  }
  Say_Text(line + "\n");
}

void Say_Problem(const std::string& file, const std::string& text) {
  // Standard error shows what was said before it in its place when both go to one terminal.
  std::fflush(stdout);
  std::fprintf(stderr, "%s: %s\n", file.empty() ? "barvon-run" : One_Line(file).c_str(),
               One_Line(text).c_str());
}

void Say_Warning(const std::string& file, const std::string& text) {
  Say_Problem(file, "warning: " + text);
}

int Finish_Output() {
  if (std::fflush(stdout) != 0 && first_error == 0) first_error = errno;
  return first_error;
}

}  // namespace barvon

// An input echo in a solver's place: it stands at the end of the road from a project to kept
// outputs, reads the marker and the model input as a solver does, and restates them. It simulates
// nothing.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "echo_outputs.h"
#include "solver/due_reader.h"
#include "solver/marker.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRefused = 1;
constexpr int kNotWritten = 2;
constexpr std::uintmax_t kLargestInput = 8u << 20;

bool Same_Name(const std::string& a, const std::string& b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

/// The file's name as it stands in the current directory, whatever the case of its letters. One
/// that is spelled exactly so goes first.
std::string Found_Name(const std::string& name) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(".")) {
    std::string found = entry.path().filename().string();
    if (found == name) return name;
    if (Same_Name(found, name)) names.push_back(std::move(found));
  }
  if (names.empty()) throw std::runtime_error(name + ": there is no such file here");
  return *std::min_element(names.begin(), names.end());
}

std::string Contents(const std::string& name) {
  if (!fs::is_regular_file(name)) throw std::runtime_error(name + ": not a file");
  if (fs::file_size(name) > kLargestInput) {
    throw std::runtime_error(name + ": no input is that large");
  }
  std::ifstream file(name, std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (!file) throw std::runtime_error(name + ": can't be read");
  return bytes;
}

bool Write(const std::string& name, const std::string& bytes) {
  std::ofstream file(name, std::ios::binary | std::ios::trunc);
  file << bytes;
  file.close();
  if (file) return true;
  std::fprintf(stderr, "merak32 (input echo): %s: can't be written\n", name.c_str());
  return false;
}

}  // namespace

int main() {
  std::printf("%s\n", echo::kNothingSimulated);
  companion::Model_Input input;
  try {
    const std::string marker = Found_Name("KOLBREE.TMP");
    const std::string due = Found_Name(companion::Read_Marker(marker, Contents(marker)));
    input = companion::Read_Model_Input(due, Contents(due));
  } catch (const std::exception& refusal) {
    std::fprintf(stderr, "merak32 (input echo): %s\n", refusal.what());
    return kRefused;
  }
  const bool written = Write("tmpfile.duo", echo::Listing(input)) &&
                       Write("tmpfile.dup", echo::Grid_Lines(input)) &&
                       Write("tmpfile.dut", echo::Time_Lines(input)) &&
                       Write("tmpfile.duc", echo::Depth_Lines(input));
  if (!written) return kNotWritten;
  std::printf("Restated \"%s\" in tmpfile.duo, .dup, .dut and .duc.\n", input.title.c_str());
  return EXIT_SUCCESS;
}

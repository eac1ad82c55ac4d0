// The companion solver: reads the marker and the model input that it names in the current
// directory, and leaves four outputs there.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "solver/additions_file.h"
#include "solver/due_reader.h"
#include "solver/input_sum.h"
#include "solver/listing.h"
#include "solver/marker.h"
#include "solver/output_files.h"
#include "solver/refusals.h"
#include "solver/simulation.h"
#include "solver/tables.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRefused = 1;
constexpr int kNotWritten = 2;
constexpr int kNoPhysics = 3;
constexpr std::uintmax_t kLargestInput = 8u << 20;

void Tell(const std::string& sentence) {
  std::fprintf(stderr, "barvon-solver: %s\n", sentence.c_str());
}

bool Same_Name(const std::string& a, const std::string& b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

/// The file's name as it stands in the current directory, whatever the case of its letters. One
/// that is spelled exactly so goes first.
std::optional<std::string> Found_Name(const std::string& name) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(".")) {
    std::string found = entry.path().filename().string();
    if (found == name) return name;
    if (Same_Name(found, name)) names.push_back(std::move(found));
  }
  if (names.empty()) return std::nullopt;
  return *std::min_element(names.begin(), names.end());
}

std::string Needed_Name(const std::string& name) {
  const auto found = Found_Name(name);
  if (!found) throw companion::Refusal(name, 1, "there is no such file here");
  return *found;
}

std::string Contents(const std::string& name) {
  if (!fs::is_regular_file(name)) throw companion::Refusal(name, 1, "not a file");
  if (fs::file_size(name) > kLargestInput) {
    throw companion::Refusal(name, 1, "no input is that large");
  }
  std::ifstream file(name, std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (!file) throw companion::Refusal(name, 1, "can't be read");
  return bytes;
}

std::vector<companion::Output_File> Run() {
  const std::string marker = Needed_Name("KOLBREE.TMP");
  const std::string due = Needed_Name(companion::Read_Marker(marker, Contents(marker)));
  const std::string due_bytes = Contents(due);
  companion::Model_Input input = companion::Read_Model_Input(due, due_bytes);
  companion::Check_Values(due, input);
  companion::Additions additions;
  std::string added_bytes;
  if (const auto found = Found_Name(companion::kAdditionsName)) {
    added_bytes = Contents(*found);
    additions = companion::Read_Additions(*found, added_bytes, input);
    companion::Check_Values(*found, additions);
  }
  input.sum = companion::Input_Sum(due_bytes, added_bytes);
  const companion::Outcome outcome = companion::Simulate(due, input, additions);
  for (const std::string& line : companion::Phase_Groups(input, outcome)) {
    std::printf("%s\n", line.c_str());
  }
  return {{"tmpfile.duo", companion::Listing(input, additions, outcome)},
          {"tmpfile.dup", companion::Sealed(companion::Phase_Table(input, outcome))},
          {"tmpfile.dut", companion::Sealed(companion::Series_Table(input, additions, outcome))},
          {"tmpfile.duc", companion::Sealed(companion::Map_Table(input, outcome))}};
}

int Refused(const companion::Refusal& refusal, int code) {
  Tell(refusal.file_ + ":" + std::to_string(refusal.line_) + ": " + refusal.reason_);
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--version") {
    std::printf("%s\n", companion::kVersion);
    return EXIT_SUCCESS;
  }
  if (argc > 1) {
    Tell("takes no argument but --version");
    return kRefused;
  }
  std::printf("%s\n", companion::Label().c_str());
  std::fflush(stdout);
  try {
    const std::string failed = companion::Write_Outputs(Run());
    if (failed.empty()) return EXIT_SUCCESS;
    Tell(failed + ": can't be written");
    return kNotWritten;
  } catch (const companion::No_Physics& refusal) {
    return Refused(refusal, kNoPhysics);
  } catch (const companion::Refusal& refusal) {
    return Refused(refusal, kRefused);
  } catch (const std::exception& problem) {
    Tell(problem.what());
    return kRefused;
  }
}

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>

#include "solver/input_sum.h"
#include "solver/listing.h"
#include "solver/simulation.h"
#include "solver/tables.h"
#include "tests/solver/sample_inputs.h"

namespace companion {
namespace {

/// FNV-1a of 64 bits, in hexadecimal digits.
std::string Checksum(const std::string& bytes) {
  std::uint64_t sum = 14695981039346656037U;
  for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
  std::string digits;
  for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[(sum >> shift) & 15U];
  return digits;
}

std::string Path(const std::string& name) {
  return std::string(BARVON_SOLVER_TESTS) + "/goldens/" + name;
}

/// Compares with the file kept; with BARVON_WRITE_GOLDENS in the environment, keeps instead.
void Expect_Kept(const std::string& name, const std::string& bytes) {
  if (std::getenv("BARVON_WRITE_GOLDENS") != nullptr) {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return;
  }
  const std::string kept = File_Bytes(Path(name));
  if (kept == bytes) return;
  std::size_t at = 0;
  while (at < kept.size() && at < bytes.size() && kept[at] == bytes[at]) ++at;
  const std::size_t from = bytes.rfind('\n', at) + 1;
  ADD_FAILURE() << name << " differs from byte " << at << " on:\n  kept "
                << kept.substr(from, kept.find('\n', at) - from) << "\n  now  "
                << bytes.substr(from, bytes.find('\n', at) - from);
}

class Goldens : public ::testing::TestWithParam<std::string> {};

/// The listing and the series in full, the two long outputs as their sizes and checksums: the same
/// bytes from every compiler and option.
TEST_P(Goldens, Are_The_Same_Bytes) {
  const std::string& sample = GetParam();
  Model_Input input = Sample_Input(sample);
  input.sum = Input_Sum(Sample_Bytes(sample), "");
  const Outcome outcome = Simulate(sample + ".due", input, {});
  Expect_Kept(sample + ".duo", Listing(input, {}, outcome));
  Expect_Kept(sample + ".dut", Series_Table(input, {}, outcome));
  const std::string phases = Phase_Table(input, outcome), maps = Map_Table(input, outcome);
  Expect_Kept(sample + ".sums", "dup " + std::to_string(phases.size()) + " " + Checksum(phases) +
                                    "\nduc " + std::to_string(maps.size()) + " " + Checksum(maps) +
                                    "\n");
}

INSTANTIATE_TEST_SUITE_P(Samples, Goldens, ::testing::ValuesIn(Samples()),
                         [](const auto& of) { return of.param; });

}  // namespace
}  // namespace companion

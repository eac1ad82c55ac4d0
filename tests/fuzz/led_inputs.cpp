// What libFuzzer leads through a reader: the one that BARVON_READER names. An input that takes more
// processor time than kLimitMs ends the run as a crash does, so that it is kept as a find.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "fuzz/readers.h"

namespace {

using namespace barvon::fuzz;

Reader Chosen_Reader() {
  const char* const name = std::getenv("BARVON_READER");
  for (const Reader& reader : Readers()) {
    if (name != nullptr && std::string_view(reader.name) == name) return reader;
  }
  std::fprintf(stderr, "BARVON_READER names no reader; mutated_files --names lists them\n");
  std::exit(2);
}

/// What is made once for all is no part of the first input's time.
Reader Warm_Reader() {
  const Reader reader = Chosen_Reader();
  for (const std::string& sample : reader.samples()) {
    reader.read(reader.made_of != nullptr ? reader.made_of(sample) : sample);
  }
  return reader;
}

double Time_To_Read(const Reader& reader, std::string_view file) {
  const double start = Processor_Ms();
  reader.read(file);
  return Processor_Ms() - start;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Only here: the libFuzzer driver has read its own files by now.
  static const std::string& folder = Work_Folder();
  if (folder.empty()) return 0;
  static const Reader reader = Warm_Reader();
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string made = reader.made_of != nullptr ? reader.made_of(input) : std::string();
  // Not a copy of the input: the address check knows where the driver's own bytes end.
  const std::string_view file = reader.made_of != nullptr ? std::string_view(made) : input;
  double took = Time_To_Read(reader, file);
  // A find ends the run, and what else the machine does can lengthen one reading: two must agree.
  if (took > kLimitMs) took = std::min(took, Time_To_Read(reader, file));
  if (took > kLimitMs) {
    std::fprintf(stderr, "%s: %.0f ms for %zu bytes\n", reader.name, took, file.size());
    std::abort();
  }
  if (reader.hold != nullptr) reader.hold(file);
  return 0;
}

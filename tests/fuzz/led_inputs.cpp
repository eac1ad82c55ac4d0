// What libFuzzer leads through a reader: the one that BARVON_READER names.

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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Reader reader = Chosen_Reader();
  // Only here: the libFuzzer driver has read its own files by now.
  static const std::string& folder = Work_Folder();
  if (folder.empty()) return 0;
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string made = reader.made_of != nullptr ? reader.made_of(input) : std::string();
  const std::string_view bytes = reader.made_of != nullptr ? std::string_view(made) : input;
  reader.read(bytes);
  if (reader.hold != nullptr) reader.hold(bytes);
  return 0;
}

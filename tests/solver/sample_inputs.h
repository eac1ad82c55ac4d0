#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "solver/due_reader.h"
#include "solver/model_input.h"

namespace companion {

/// The samples whose model inputs stand in tests/solver/inputs, the pipeline's but for one.
inline const std::vector<std::string>& Samples() {
  static const std::vector<std::string> kSamples = {
      "Barge_Four_Layers",    "Hopper_Six_Openings", "Section_103_Water_Quality",
      "Section_404_Sediment", "Section_404_Zid",     "Tidal_Estuary",
      "Variable_96_By_96"};
  return kSamples;
}

inline std::string File_Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::string Sample_Bytes(const std::string& sample) {
  return File_Bytes(std::string(BARVON_SOLVER_TESTS) + "/inputs/" + sample + ".due");
}

inline Model_Input Sample_Input(const std::string& sample) {
  return Read_Model_Input(sample + ".due", Sample_Bytes(sample));
}

/// The bytes with what stands between `from` and `to` on a line (both from 1) replaced.
inline std::string With_Columns(std::string bytes, int line, std::size_t from,
                                const std::string& text) {
  std::size_t at = 0;
  for (int i = 1; i < line; ++i) at = bytes.find('\n', at) + 1;
  return bytes.replace(at + from - 1, text.size(), text);
}

}  // namespace companion

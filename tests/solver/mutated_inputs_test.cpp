#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "solver/additions_file.h"
#include "solver/due_fields.h"
#include "solver/listing.h"
#include "solver/refusals.h"
#include "solver/simulation.h"
#include "solver/tables.h"
#include "tests/solver/sample_inputs.h"

namespace companion {
namespace {

constexpr int kInSuite = 150;             // mutations of the short form
constexpr int kTold = 500;                // seeds between two lines of the long form
constexpr double kLongestFollowed = 240;  // s of an accepted run that are simulated
constexpr double kBalance = 1e-9;         // of an input of any kind

int From_Environment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

class Mutator {
 public:
  explicit Mutator(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t end) { return random_() % end; }

  std::string Mutated(std::string bytes) {
    const std::size_t changes = 1 + Below(3);
    for (std::size_t i = 0; i < changes; ++i) Change(bytes);
    return bytes;
  }

 private:
  void Change(std::string& bytes) {
    const std::size_t kind = Below(20);
    if (bytes.empty()) return;
    const std::size_t at = Below(bytes.size());
    if (kind == 0) {
      bytes[at] = static_cast<char>(Below(256));
    } else if (kind == 1) {
      bytes.erase(at, 1 + Below(20));
    } else if (kind == 2) {
      bytes.insert(at, 1 + Below(5), " -0.1E9\n"[Below(8)]);
    } else if (kind == 3) {
      Change_Line(bytes, at);
    } else {
      Change_Number(bytes, at);
    }
  }

  void Change_Line(std::string& bytes, std::size_t at) {
    const std::size_t from = at == 0 ? 0 : bytes.rfind('\n', at - 1) + 1;
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size() - 1) + 1;
    const std::string line = bytes.substr(from, end - from);
    if (Below(2) == 0) {
      bytes.erase(from, line.size());
    } else {
      bytes.insert(from, line);
    }
  }

  /// Puts another number in a number's place, in the same columns where it fits them.
  void Change_Number(std::string& bytes, std::size_t at) {
    const std::size_t from = bytes.find_first_of("0123456789", at);
    if (from == std::string::npos) return;
    const std::size_t end = std::min(bytes.find_first_of(" \r\n", from), bytes.size());
    std::size_t low = from;
    while (low > 0 && bytes[low - 1] != ' ' && bytes[low - 1] != '\n') --low;
    const std::string number = Number(bytes.substr(low, end - low));
    while (low > 0 && bytes[low - 1] == ' ' && end - low < number.size()) --low;
    std::string padded(std::max(number.size(), end - low) - number.size(), ' ');
    bytes.replace(low, end - low, padded + number);
  }

  std::string Number(const std::string& old) {
    static const char* const kNumbers[] = {
        "0",     "1",     "-1",    "2",      "3",      "4",    "5",     "6",      "7",
        "0.001", "0.01",  "0.1",   "0.5",    "0.99",   "10",   "50",    "100",    "1000",
        "10000", "99999", "1E+09", "1E-09",  "1E+300", "-0.5", "-100",  "1E-300", "0.25",
        "2.65",  "1.02",  "96",    "0.0001", "20",     "600",  "-0.01", "7200",   "1E+15"};
    if (Below(3) != 0 || old.size() > 9) return kNumbers[Below(std::size(kNumbers))];
    return (Below(2) == 0 ? "1" : "-") + old;
  }

  std::mt19937 random_;
};

/// Additions that fit the sample.
std::string Additions_Of(const std::string& sample) {
  std::string text = "BARVON additions: 1\r\nCriterion: 0.05\r\nZidStandard: 0.4\r\n";
  if (sample == "Tidal_Estuary") {
    text += "TideStart: 1.5\r\n";
    for (const char* name : {"TideX:", "TideZ:"}) {
      text += name;
      for (int i = 0; i < kTidePoints; ++i) text += i % 12 < 6 ? " 0.5" : " -0.25";
      text += "\r\n";
    }
  }
  const Model_Input input = Sample_Input(sample);
  for (const auto& row : input.depths) {
    text += "DepthRow:";
    for (const double depth : row) text += " " + std::to_string(static_cast<int>(depth));
    text += "\r\n";
  }
  return text;
}

/// What the program does with the bytes; "refused" or "simulated".
std::string Outcome_Of(const std::string& bytes, const std::string& added) {
  try {
    Model_Input input = Read_Model_Input("x.due", bytes);
    Check_Values("x.due", input);
    Additions additions;
    if (!added.empty()) {
      additions = Read_Additions("x.add", added, input);
      Check_Values("x.add", additions);
    }
    if (input.duration > kLongestFollowed) {
      input.step = std::max(input.step * kLongestFollowed / input.duration, 1.0);
      input.duration = kLongestFollowed;
    }
    const Outcome outcome = Simulate("x.due", input, additions);
    EXPECT_LE(outcome.worst_balance, kBalance);
    for (const std::string& text :
         {Phase_Table(input, outcome), Series_Table(input, additions, outcome),
          Map_Table(input, outcome)}) {
      std::size_t at = text.find("\r\n", text.find("\r\n") + 2);  // behind the head
      for (const char* none : {" nan", " -nan", " inf", " -inf"}) {
        EXPECT_EQ(text.find(none, at), std::string::npos) << none;
      }
    }
    EXPECT_FALSE(Listing(input, additions, outcome).empty());
    return "simulated";
  } catch (const Refusal& refusal) {
    EXPECT_FALSE(refusal.reason_.empty());
    EXPECT_GE(refusal.line_, 1);
    return "refused";
  }
}

/// BARVON_MUTATIONS sets how many (the long form is 10,000), BARVON_MUTATION_SEED the first one's
/// seed. Every mutation has its own seed, which a failure tells.
TEST(MutatedInputs, End_In_Words) {
  const int count = From_Environment("BARVON_MUTATIONS", kInSuite);
  const int first = From_Environment("BARVON_MUTATION_SEED", 1);
  RecordProperty("mutations", count);
  int simulated = 0;
  double slowest = 0;
  for (int seed = first; seed < first + count; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Mutator mutator(static_cast<unsigned>(seed));
    const std::string& sample = Samples()[mutator.Below(Samples().size())];
    std::string bytes = Sample_Bytes(sample), added;
    if (mutator.Below(5) != 0) bytes = mutator.Mutated(bytes);
    if (mutator.Below(3) == 0) added = Additions_Of(sample);
    if (mutator.Below(2) == 0) added = mutator.Mutated(added);
    if (std::getenv("BARVON_MUTATIONS") != nullptr) {
      std::ofstream("mutated.due", std::ios::binary) << bytes;  // what a crash was about
      std::ofstream("mutated.add", std::ios::binary) << added;
    }
    if (seed % kTold == 0 && std::getenv("BARVON_MUTATIONS") != nullptr) {
      std::printf("seed %d, %d simulated\n", seed, simulated);
      std::fflush(stdout);
    }
    const std::clock_t begin = std::clock();
    if (Outcome_Of(bytes, added) == "simulated") ++simulated;
    const double took = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    if (took > slowest) {
      slowest = took;
      RecordProperty("slowest_seed", seed);
    }
    if (HasFailure()) break;
  }
  RecordProperty("simulated", simulated);
  if (std::getenv("BARVON_MUTATIONS") != nullptr) {
    std::printf("%d mutations from seed %d: %d simulated, slowest %.2f s\n", count, first,
                simulated, slowest);
  }
  EXPECT_GT(simulated, count / 10);
}

}  // namespace
}  // namespace companion

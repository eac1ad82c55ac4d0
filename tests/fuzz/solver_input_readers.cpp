#include "echo_outputs.h"
#include "fuzz/readers.h"
#include "solver/due_reader.h"
#include "solver/marker.h"

namespace barvon::fuzz {
namespace {

std::vector<std::string> Inputs() { return Files_Of(BARVON_TEST_DATA "/model_input", ".due"); }
std::vector<std::string> Markers() { return {"/data/site.DUE\r\n", "site.due"}; }

void Read_Input(std::string_view bytes) {
  try {
    const companion::Model_Input input =
        companion::Read_Model_Input("site.due", std::string(bytes));
    echo::Listing(input);
    echo::Grid_Lines(input);
    echo::Time_Lines(input);
    echo::Depth_Lines(input);
  } catch (const companion::Refusal&) {
    // In words, with the line: how an input ends that is none.
  }
}

void Read_Marker(std::string_view bytes) {
  try {
    companion::Read_Marker("KOLBREE.TMP", std::string(bytes));
  } catch (const companion::Refusal&) {
    // As above.
  }
}

constexpr Reader kReaders[] = {
    {"model_input", 12, Inputs, Read_Input, nullptr, nullptr},
    {"marker", 2, Markers, Read_Marker, nullptr, nullptr},
};

}  // namespace

std::span<const Reader> Solver_Input_Readers() { return kReaders; }

}  // namespace barvon::fuzz

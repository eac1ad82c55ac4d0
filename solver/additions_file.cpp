#include "solver/additions_file.h"

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "solver/due_fields.h"

namespace companion {
namespace {

constexpr char kFirstLine[] = "BARVON additions: ";

std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  std::size_t at = text.find_first_not_of(' ');
  while (at != std::string::npos) {
    const std::size_t end = text.find(' ', at);
    words.push_back(text.substr(at, end - at));
    at = text.find_first_not_of(' ', end);
  }
  return words;
}

class Additions_Reader {
 public:
  Additions_Reader(std::string file, const Model_Input& input)
      : file_(std::move(file)), input_(input) {}

  Additions Read(const std::string& bytes) {
    const std::vector<std::string> lines = Lines_Of(bytes);
    line_ = 1;
    Check_Version(lines.empty() ? "" : lines.front());
    for (std::size_t i = 1; i < lines.size(); ++i) {
      line_ = static_cast<int>(i) + 1;
      Take(lines[i]);
    }
    line_ = static_cast<int>(lines.size());
    Finish_Depths();
    Finish_Tide();
    read_.present = true;
    return std::move(read_);
  }

 private:
  [[noreturn]] void Refuse(const std::string& reason) const { throw Refusal(file_, line_, reason); }

  void Check_Version(const std::string& first) const {
    const std::string head = kFirstLine;
    if (first.compare(0, head.size(), head) != 0) {
      Refuse("the first line is not \"" + head + std::to_string(kAdditionsVersion) + "\"");
    }
    const std::string version = first.substr(head.size());
    if (version != std::to_string(kAdditionsVersion)) {
      Refuse("these additions are of version " + version + ", this solver knows version " +
             std::to_string(kAdditionsVersion));
    }
  }

  double Number(const std::string& name, const std::string& word) const {
    if (!Is_Number(word)) Refuse("\"" + word + "\" is no number for " + name);
    try {
      return Value_Of(word, Field_Kind::Number);
    } catch (const std::string& reason) {
      Refuse(reason);
    }
  }

  void Take(const std::string& line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) Refuse("there is no colon behind a name");
    const std::string name = line.substr(0, colon);
    static const std::map<std::string, int> kCounts = {{"Criterion", 1},
                                                       {"ZidStandard", 1},
                                                       {"TideStart", 1},
                                                       {"TideX", kTidePoints},
                                                       {"TideZ", kTidePoints}};
    const auto known = kCounts.find(name);
    const bool row = name == "DepthRow";
    if (known == kCounts.end() && !row) Refuse("nothing goes by the name \"" + name + "\"");
    const int expected = row ? input_.points_z : known->second;
    std::vector<double> values;
    for (const std::string& word : Words(line.substr(colon + 1))) {
      values.push_back(Number(name, word));
    }
    if (values.size() != static_cast<std::size_t>(expected)) {
      Refuse(name + " has " + std::to_string(values.size()) + " values, not " +
             std::to_string(expected));
    }
    if (row) {
      read_.depths.push_back(std::move(values));
    } else if (!values_.emplace(name, std::move(values)).second) {
      Refuse(name + " stands here a second time");
    }
    Keep_Standards(name);
  }

  void Keep_Standards(const std::string& name) {
    if (name != "Criterion" && name != "ZidStandard") return;
    const double value = values_[name][0];
    if (value < 0) Refuse(name + " is below 0");
    (name == "Criterion" ? read_.criterion : read_.zid_standard) = value;
  }

  void Finish_Depths() {
    if (read_.depths.empty()) return;
    if (input_.constant_depth) Refuse("a depth grid, where the model input has a constant depth");
    if (read_.depths.size() != static_cast<std::size_t>(input_.points_x)) {
      Refuse("the depth grid has " + std::to_string(read_.depths.size()) + " rows, not " +
             std::to_string(input_.points_x));
    }
  }

  void Finish_Tide() {
    const auto parts = values_.count("TideStart") + values_.count("TideX") + values_.count("TideZ");
    if (parts == 0) return;
    if (parts != 3) Refuse("of TideStart, TideX and TideZ one is missing");
    Tide tide;
    const double start = values_["TideStart"][0] * kSecondsPerHour;
    for (int i = 0; i < kTidePoints; ++i) tide.times.push_back(i * kTidePointSpacing - start);
    tide.x = std::move(values_["TideX"]);
    tide.z = std::move(values_["TideZ"]);
    read_.tide = std::move(tide);
  }

  std::string file_;
  const Model_Input& input_;
  int line_ = 0;
  Additions read_;
  std::map<std::string, std::vector<double>> values_;
};

}  // namespace

Additions Read_Additions(const std::string& file, const std::string& bytes,
                         const Model_Input& input) {
  return Additions_Reader(file, input).Read(bytes);
}

}  // namespace companion

#include "echo_outputs.h"

#include <array>
#include <cstdio>

namespace echo {

const char kNothingSimulated[] =
    "INPUT ECHO - this program simulates nothing, it restates the input that it was given.";

namespace {

constexpr char kEnd[] = "\r\n";
constexpr std::size_t kNameColumns = 30;

std::string Text(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.15g", value);
  return text.data();
}

std::string Padded(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

std::string Head(const Model_Input& input, const std::string& what) {
  return std::string(kNothingSimulated) + kEnd + what + " of \"" + input.title + "\"" + kEnd;
}

}  // namespace

std::string Listing(const Model_Input& input) {
  std::string text = Head(input, "Every value");
  for (const companion::Entry& entry : input.entries) {
    if (entry.name.empty()) {
      text += kEnd + entry.text + kEnd;
      continue;
    }
    text += "  " + Padded(entry.name, kNameColumns) + " = " + entry.text;
    if (!entry.unit.empty()) text += " " + entry.unit;
    text += kEnd;
  }
  return text;
}

std::string Grid_Lines(const Model_Input& input) {
  std::string text = Head(input, "The grid");
  text += "Grid points from the top (X), ft" + std::string(kEnd);
  for (int a = 0; a < input.points_x; ++a) text += "  " + Text(a * input.spacing_x) + kEnd;
  text += "Grid points from the left (Z), ft" + std::string(kEnd);
  for (int b = 0; b < input.points_z; ++b) text += "  " + Text(b * input.spacing_z) + kEnd;
  return text;
}

std::string Time_Lines(const Model_Input& input) {
  std::string text = Head(input, "The print times");
  std::vector<double> times = input.print_times;
  if (times.empty()) {
    text += "No times of its own: a quarter of the duration each, s" + std::string(kEnd);
    for (int quarter = 1; quarter <= 4; ++quarter) times.push_back(quarter * input.duration / 4);
  } else {
    text += "Times, s" + std::string(kEnd);
  }
  for (const double time : times) text += "  " + Text(time) + kEnd;
  return text;
}

std::string Depth_Lines(const Model_Input& input) {
  std::string text = Head(input, "The depths");
  if (input.constant_depth) {
    text += "Constant water depth, ft" + std::string(kEnd) + "  " + Text(input.depth) + kEnd;
  } else {
    text += "Water depth by rows of the grid, ft" + std::string(kEnd);
    for (const auto& row : input.depths) {
      for (const double depth : row) text += " " + Padded(Text(depth), 7);
      text += kEnd;
    }
  }
  text += "Water density (g/cc) by depth (ft)" + std::string(kEnd);
  for (std::size_t i = 0; i < input.profile_depths.size(); ++i) {
    text +=
        "  " + Padded(Text(input.profile_depths[i]), 12) + Text(input.profile_densities[i]) + kEnd;
  }
  text += "Depths of transport-diffusion output, ft" + std::string(kEnd);
  for (const double depth : input.output_depths) text += "  " + Text(depth) + kEnd;
  return text;
}

}  // namespace echo

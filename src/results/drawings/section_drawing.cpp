#include "results/drawings/section_drawing.h"

#include <algorithm>
#include <cmath>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "pictures/shapes/plot_frame.h"
#include "results/cell_places.h"
#include "results/drawings/map_words.h"

namespace barvon {
namespace {

constexpr double kFiner = 4;  // samples to the smaller spacing
constexpr double kFewestSteps = 20, kMostSteps = 2000;
constexpr double kLevelWidth = 2, kCurveWidth = 1.8;  // pixels
constexpr double kLeastPart = 1e-9;                   // of a length or value that has an axis

Colour Level_Colour(const Colour_Scale& levels, std::size_t band, bool less) {
  const std::size_t bands = levels.levels.size();
  if (!levels.two_sides) return Band_Colour(band, bands);
  return less ? Less_Colour(band, bands) : More_Colour(band, bands);
}

std::string Description_Of(const Section_Drawing& drawing) {
  const Section_Sample &first = drawing.samples.front(), &last = drawing.samples.back();
  std::string words = "Section of " + Short_Text(std::round(last.distance)) + " ft from " +
                      Place_Words(first.place) + " to " + Place_Words(last.place) + ".";
  const auto less = [](const Section_Sample& a, const Section_Sample& b) {
    return std::isfinite(b.value) && (!std::isfinite(a.value) || a.value < b.value);
  };
  const auto& largest = *std::ranges::max_element(drawing.samples, less);
  if (!std::isfinite(largest.value)) return words + " It has no values.";
  return words + " Largest " + Reading_Words(largest.value, drawing.unit) + " at " +
         Place_Words(largest.place) + ".";
}

}  // namespace

std::vector<Section_Sample> Samples_Along(const Cell_Values& cells, const Section_Line& line) {
  std::vector<Section_Sample> samples;
  const double down = line.to.x - line.from.x, right = line.to.z - line.from.z;
  const double length = std::hypot(down, right);
  if (!Is_Whole(cells) || !(length > 0) || !Can_Be_Drawn(length)) return samples;
  const double spacing = std::min(cells.spacing_x, cells.spacing_z);
  const double steps = std::clamp(std::ceil(kFiner * length / spacing), kFewestSteps, kMostSteps);
  for (double step = 0; step <= steps; ++step) {
    const double part = step / steps;
    const Result_Point place{line.from.x + part * down, line.from.z + part * right};
    samples.push_back({part * length, place, Value_At(cells, place)});
  }
  return samples;
}

Section_Drawing Draw_Section(const Cell_Values& cells, const Section_Line& line,
                             const std::string& unit, const Colour_Scale& levels,
                             bool logarithmic) {
  Section_Drawing drawing;
  drawing.unit = unit;
  drawing.levels = levels;
  drawing.samples = Samples_Along(cells, line);
  if (drawing.samples.empty()) {
    drawing.note = drawing.description = "The line has no length.";
    return drawing;
  }
  const double length = drawing.samples.back().distance;
  drawing.across = Scale_Over({0, length}, length * kLeastPart);
  drawing.across.high = length;
  std::vector<double> values;
  for (const Section_Sample& sample : drawing.samples) values.push_back(sample.value);
  if (logarithmic && !levels.two_sides && !levels.levels.empty()) {
    const double least = levels.levels.front();
    std::erase_if(values, [least](double value) { return !(value >= least); });
    values.insert(values.end(), {least, levels.levels.back()});
    drawing.upright = Log_Scale_Over(values);
  } else {
    values.push_back(0);
    const Value_Range range = *Range_Of(values);
    const double span = range.high - range.low;
    drawing.upright = Scale_Over(range, span > 0 ? span * kLeastPart : 1);
  }
  drawing.description = Description_Of(drawing);
  return drawing;
}

Shape_List Section_Shapes(const Section_Drawing& drawing, const Canvas& canvas) {
  Shape_List picture{std::max(canvas.width, 0.0),
                     std::max(canvas.height, 0.0),
                     "Section",
                     drawing.description,
                     {}};
  if (drawing.samples.empty()) {
    picture.shapes.push_back(Text_Shape{{canvas.width / 2, canvas.height / 2},
                                        drawing.note,
                                        canvas.text_size,
                                        kQuietInk,
                                        Anchor::middle});
    return picture;
  }
  Plot_Layout layout;
  layout.across = {drawing.across, "Distance along the line (ft)", 0};
  layout.across.short_label = "Distance (ft)";
  layout.upright = {drawing.upright, drawing.unit};
  const Plot_Frame frame(layout, canvas);
  picture = frame.Ground("Section", drawing.description);
  const std::vector<double>& levels = drawing.levels.levels;
  for (std::size_t band = 0; band < levels.size(); ++band) {
    const auto add = [&](double level, bool less) {
      if (level < drawing.upright.low || level > drawing.upright.high) return;
      frame.Add_Mark(picture, level, {Level_Colour(drawing.levels, band, less), kLevelWidth});
    };
    add(levels[band], false);
    if (drawing.levels.two_sides) add(-levels[band], true);
  }
  std::vector<Place> places;
  const auto end_line = [&] {
    if (places.size() > 1) picture.shapes.push_back(Line_Shape{places, {kInk, kCurveWidth}});
    places.clear();
  };
  for (const Section_Sample& sample : drawing.samples) {
    const bool has_place = Can_Be_Drawn(sample.value) && sample.value >= drawing.upright.low;
    if (!has_place) {
      end_line();
      continue;
    }
    places.push_back(frame.At(sample.distance, sample.value));
  }
  end_line();
  frame.Add_Axes(picture);
  // The ends of the line have their letters on the map too.
  const double size = canvas.text_size;
  picture.shapes.push_back(Text_Shape{
      {frame.left() + 3, frame.top() + size}, "A", size, kInk, Anchor::start, false, true});
  picture.shapes.push_back(Text_Shape{
      {frame.right() - 3, frame.top() + size}, "B", size, kInk, Anchor::end, false, true});
  return picture;
}

}  // namespace barvon
